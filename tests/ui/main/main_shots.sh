#!/usr/bin/env bash
# Screenshots of the main window's Go, Index, Options and Help panels at 100 % and 150 %, with
# main_look.exe (not run by CTest).
# Usage: scripts/with-xvfb bash tests/ui/main/main_shots.sh LOOK_EXE WORK_FOLDER OUT_FOLDER
set -euo pipefail
look=$1
work=$2
out=$3
here=$(cd "$(dirname "$0")/../../.." && pwd)
: "${DISPLAY:?needs an X display}"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
mkdir -p "$out"

for dpi in 96 144; do
    export WINEPREFIX=$work/prefix-$dpi
    "$here/scripts/wine-run" --prefix "$WINEPREFIX" cmd /c exit >/dev/null 2>&1 || true
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null
    wineserver -w
    panel=0
    for name in go index options help; do
        wine "Z:${look//\//\\}" "$panel" &
        window=""
        for _ in $(seq 60); do
            window=$(xdotool search --name '^Quorin$' 2>/dev/null | head -1) && [ -n "$window" ] && break
            sleep 0.5
        done
        [ -n "$window" ] || { echo "FAIL: no main window" >&2; exit 1; }
        sleep 2
        # Without a window manager the shot is the window's client area.
        import -display "$DISPLAY" -window "$window" "$out/main-$name-$dpi.png"
        wineserver -k || true
        wait || true
        panel=$((panel + 1))
    done
done
ls "$out"
