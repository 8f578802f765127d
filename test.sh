#!/usr/bin/env bash
# Every test: installs what is missing, checks the formatting, builds both builds, runs the
# native tests, fuzzes briefly and runs, under Wine on a private X display, the Windows tests.
# The builds go to QUORIN_BUILD_ROOT (default build/), as for scripts/build. Each step's time
# and CPU time go to the log: on a shared machine the CPU time tells a step grown slow.
set -euo pipefail
cd "$(dirname "$0")"
times_file=$(mktemp)
trap 'rm -f "$times_file"' EXIT
cpu_used() {  # the CPU seconds of the steps run so far, as `times` last wrote them
    awk 'NR == 2 { gsub(/s/, ""); split($1, u, "m"); split($2, s, "m")
                   printf "%d", u[1] * 60 + u[2] + s[1] * 60 + s[2] }' "$times_file"
}
step() {
    local start=$SECONDS before
    times >"$times_file"
    before=$(cpu_used)
    "$@"
    times >"$times_file"
    echo "== $* took $((SECONDS - start)) s, $(($(cpu_used) - before)) s of CPU" >&2
}
step scripts/install-deps
step scripts/check-format
step scripts/build native
step scripts/build win
step ctest --test-dir "${QUORIN_BUILD_ROOT:-build}/native" --output-on-failure -j "$(nproc)"
step scripts/fuzz 5
step scripts/with-xvfb scripts/win-ctest
