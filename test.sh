#!/usr/bin/env bash
# Every test: installs what is missing, checks the formatting, builds both builds, runs the
# native tests, fuzzes briefly and runs, under Wine on a private X display, the Windows tests.
# The builds go to QUORIN_BUILD_ROOT (default build/), as for scripts/build.
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-deps
scripts/check-format
scripts/build native
scripts/build win
(cd "${QUORIN_BUILD_ROOT:-build}/native" && ctest --output-on-failure -j "$(nproc)")
scripts/fuzz 5
scripts/with-xvfb scripts/win-ctest
