#!/usr/bin/env bash
# Takes the screenshot of the shutdown panel with exit_panel_look.exe (not run by CTest).
# Usage: scripts/with-xvfb bash tests/ui/main/exit_panel_shot.sh LOOK_EXE WORK_FOLDER OUT.png
# Uses its own Wine prefix in WORK_FOLDER; the crop is the window centred on a 1280x800 desktop.
set -euo pipefail
look=$1
work=$2
out=$3
here=$(cd "$(dirname "$0")/../../.." && pwd)
: "${DISPLAY:?needs an X display}"

export WINEPREFIX=$work/wineprefix
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
"$here/scripts/wine-run" --prefix "$WINEPREFIX" cmd /c exit >/dev/null 2>&1 || true
stop() { wineserver -k 2>/dev/null || true; }
trap stop EXIT

marks=$work/marks
rm -rf "$marks"
mkdir -p "$marks"
xdotool mousemove 640 200
wine explorer /desktop=quorin,1280x800 "Z:${look//\//\\}" "Z:${marks//\//\\}" &
for _ in $(seq 60); do
    [ -f "$marks/shown" ] && break
    sleep 0.5
done
[ -f "$marks/shown" ] || { echo "FAIL: the shutdown panel was never shown" >&2; exit 1; }
sleep 1
import -display "$DISPLAY" -window root "$work/exit-full.png"
touch "$marks/taken"
convert "$work/exit-full.png" -crop 380x120+450+340 +repage "$out"
wineserver -w
echo "$out"
