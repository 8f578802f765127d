#!/usr/bin/env bash
# Screenshots of the Index panel after a build, folders left out ("limit") and every folder
# indexed ("all"), at 100 % and 150 % with Windows 10/11 window metrics, framed on a desktop.
# Usage: scripts/with-xvfb bash looks/index_panel_shots.sh LOOK_EXE WORK_FOLDER OUT_FOLDER
set -euo pipefail
look=$1
work=$2
out=$3
here=$(cd "$(dirname "$0")/.." && pwd)
: "${DISPLAY:?needs an X display}"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
mkdir -p "$out"
stop() { wineserver -k 2>/dev/null || true; }
trap stop EXIT

for dpi in 96 144; do
    export WINEPREFIX=$work/prefix-$dpi
    "$here/scripts/wine-run" --prefix "$WINEPREFIX" cmd /c exit >/dev/null 2>&1 || true
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null
    metrics='HKCU\Control Panel\Desktop\WindowMetrics'
    wine reg add "$metrics" /v CaptionHeight /t REG_SZ /d -345 /f >/dev/null
    wine reg add "$metrics" /v PaddedBorderWidth /t REG_SZ /d -60 /f >/dev/null
    wineserver -w
    for mode in limit all; do
        marks=$work/marks-$dpi-$mode
        rm -rf "$marks"
        mkdir -p "$marks"
        wine explorer /desktop=quorin,1280x800 "Z:${look//\//\\}" "$mode" "Z:${marks//\//\\}" &
        for _ in $(seq 120); do
            [ -s "$marks/place" ] && break
            sleep 0.5
        done
        [ -s "$marks/place" ] || { echo "FAIL: no Index panel ($mode, $dpi dpi)" >&2; exit 1; }
        sleep 2
        import -display "$DISPLAY" -window root "$work/full.png"
        # The window with its frame, as Windows draws it on the desktop.
        convert "$work/full.png" -crop "$(tr -d '\r\n' <"$marks/place")" +repage \
            "$out/index-panel-$mode-$dpi.png"
        wineserver -k || true
        wait || true
    done
done
ls "$out"
