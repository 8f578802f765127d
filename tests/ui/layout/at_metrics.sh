#!/usr/bin/env bash
# Runs a test program in a Wine prefix of its own with the window metrics of Windows 10 and 11
# (a 23 px caption and a 4 px padded border at 96 dpi) at one DPI.
# Usage: at_metrics.sh TEST_EXE PREFIX DPI
set -euo pipefail
exe=$1
prefix=$2
dpi=$3
here=$(cd "$(dirname "$0")/../../.." && pwd)
export WINEPREFIX=$prefix
"$here/scripts/set-metrics" "$prefix" "$dpi"
# Windows left to Wine rather than to a window manager: with none on the display, Wine waits 2 s
# for one each time a shown window goes, and the frame is Wine's own either way.
"$here/scripts/wine-run" --prefix "$prefix" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed \
    /d N /f >/dev/null 2>&1
wineserver -w
trap 'wineserver -k 2>/dev/null || true' EXIT
"$here/scripts/wine-test" --prefix "$prefix" "$exe"
