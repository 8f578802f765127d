#!/usr/bin/env bash
# Every test: installs what is missing, checks the formatting, builds both builds, runs the
# native tests, fuzzes briefly and runs, under Wine on a private X display, the Windows tests.
# The builds go to QUORIN_BUILD_ROOT (default build/), as for scripts/build. Each step's time
# and CPU time go to the log: on a shared machine the CPU time tells a step grown slow.
set -euo pipefail
cd "$(dirname "$0")"
scratch=$(mktemp -d)
trap 'jobs -p | xargs -r kill 2>/dev/null; rm -rf "$scratch"' EXIT
cpu_used() {  # the CPU seconds of the steps run so far in this shell, as `times` wrote them
    awk 'NR == 2 { gsub(/s/, ""); split($1, u, "m"); split($2, s, "m")
                   printf "%d", u[1] * 60 + u[2] + s[1] * 60 + s[2] }' "$1"
}
step() {
    local start=$SECONDS before file=$scratch/times.$BASHPID
    times >"$file"
    before=$(cpu_used "$file")
    "$@"
    times >"$file"
    echo "== $* took $((SECONDS - start)) s, $(($(cpu_used "$file") - before)) s of CPU" >&2
}
step scripts/install-deps
step scripts/check-format
# The win build keeps only about one core busy (its precompiled header and its links run alone),
# so the native build, its tests and the fuzzing run beside it; its log is shown when it ends.
step scripts/build win >"$scratch/win-build.log" 2>&1 &
win_build=$!
step scripts/build native
step ctest --test-dir "${QUORIN_BUILD_ROOT:-build}/native" --output-on-failure -j "$(nproc)"
step scripts/fuzz 5
if ! wait "$win_build"; then
    cat "$scratch/win-build.log" >&2
    exit 1
fi
tail -1 "$scratch/win-build.log" >&2
step scripts/with-xvfb scripts/win-ctest
