#!/usr/bin/env bash
# Gives a Wine prefix the colours of a high-contrast scheme, white on black, for the screenshots
# taken with QUORIN_HIGH_CONTRAST=1. Programs started afterwards draw with them.
# Usage: high_contrast.sh PREFIX
set -euo pipefail
prefix=$1
here=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX=$prefix
run() { "$here/scripts/wine-run" --prefix "$prefix" "$@" >/dev/null 2>&1; }
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
wineserver -w
