#!/usr/bin/env bash
# Every test: installs what is missing, builds both builds, runs the native tests and,
# under Wine on a private X display, the Windows ones.
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-deps
scripts/build native
scripts/build win
(cd build/native && ctest --output-on-failure -j "$(nproc)")
scripts/fuzz 5
scripts/with-xvfb scripts/win-ctest
