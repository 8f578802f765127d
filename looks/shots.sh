#!/usr/bin/env bash
# Screenshots of a look program's windows at 100 % and 150 % (not run by CTest). Each SHOT is
# ARGUMENT=TITLE=NAME: the program is started with ARGUMENT, the window titled TITLE is taken
# as OUT_FOLDER/NAME-<dpi>.png, and the program is ended.
# Usage: scripts/with-xvfb bash tests/support/look_shots.sh LOOK_EXE WORK_FOLDER OUT_FOLDER SHOT...
set -euo pipefail
look=$1
work=$2
out=$3
shift 3
here=$(cd "$(dirname "$0")/../.." && pwd)
: "${DISPLAY:?needs an X display}"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
mkdir -p "$out"

for dpi in 96 144; do
    export WINEPREFIX=$work/prefix-$dpi
    "$here/scripts/wine-run" --prefix "$WINEPREFIX" cmd /c exit >/dev/null 2>&1 || true
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null
    wineserver -w
    for shot in "$@"; do
        IFS== read -r argument title name <<<"$shot"
        wine "Z:${look//\//\\}" "$argument" &
        window=""
        for _ in $(seq 60); do
            window=$(xdotool search --name "^$title\$" 2>/dev/null | head -1) && [ -n "$window" ] && break
            sleep 0.5
        done
        [ -n "$window" ] || { echo "FAIL: no $title window" >&2; exit 1; }
        sleep 2
        # Without a window manager the shot is the window's client area.
        import -display "$DISPLAY" -window "$window" "$out/$name-$dpi.png"
        wineserver -k || true
        wait || true
    done
done
ls "$out"
