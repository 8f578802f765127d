#!/usr/bin/env bash
# Gives a Wine prefix (made on first use) the window metrics of Windows 10 and 11, a 23 px caption
# and a 4 px padded border at 96 dpi, and a DPI. Programs started afterwards draw with them.
# Usage: set_metrics.sh PREFIX DPI
set -euo pipefail
prefix=$1
dpi=$2
here=$(cd "$(dirname "$0")/../.." && pwd)
export WINEPREFIX=$prefix
run() { "$here/scripts/wine-run" --prefix "$prefix" "$@" >/dev/null 2>&1; }
desktop='HKCU\Control Panel\Desktop'
run reg add "$desktop" /v LogPixels /t REG_DWORD /d "$dpi" /f
run reg add "$desktop\\WindowMetrics" /v CaptionHeight /t REG_SZ /d -345 /f
run reg add "$desktop\\WindowMetrics" /v PaddedBorderWidth /t REG_SZ /d -60 /f
wineserver -w
