#!/usr/bin/env bash
# Gives a Wine prefix (made on first use) the window metrics of Windows 10 and 11, a 23 px caption
# and a 4 px padded border at 96 dpi, and a DPI; with QUORIN_HIGH_CONTRAST=1 also the colours of a
# high-contrast scheme, white on black. Programs started afterwards draw with them.
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
if [ "${QUORIN_HIGH_CONTRAST:-}" = 1 ]; then
    while read -r name rgb; do
        run reg add 'HKCU\Control Panel\Colors' /v "$name" /t REG_SZ /d "$rgb" /f
    done <<'COLORS'
Window 0 0 0
WindowText 255 255 255
ButtonFace 0 0 0
ButtonText 255 255 255
ButtonShadow 128 128 128
ButtonHilight 255 255 255
ButtonLight 255 255 255
ButtonDkShadow 255 255 255
Menu 0 0 0
MenuText 255 255 255
Hilight 26 235 255
HilightText 0 0 0
GrayText 63 242 63
HotTrackingColor 255 255 0
ActiveTitle 0 0 0
TitleText 255 255 255
InactiveTitle 0 0 0
InactiveTitleText 192 192 192
ActiveBorder 255 255 255
InactiveBorder 192 192 192
WindowFrame 255 255 255
InfoWindow 0 0 0
InfoText 255 255 255
AppWorkSpace 0 0 0
Background 0 0 0
COLORS
fi
wineserver -w
