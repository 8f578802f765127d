#!/usr/bin/env bash
# Screenshots of the Options dialog's pages and the Add New Word dialog at 100 % and 150 %, with
# dialogs_look.exe (not run by CTest).
# Usage: scripts/with-xvfb bash tests/ui/dialogs/dialogs_shots.sh LOOK_EXE WORK_FOLDER OUT_FOLDER
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
    for what in general filetypes words newword; do
        title=Options
        [ "$what" = newword ] && title="Add New Word"
        wine "Z:${look//\//\\}" "$what" &
        window=""
        for _ in $(seq 60); do
            window=$(xdotool search --name "^$title\$" 2>/dev/null | head -1) && [ -n "$window" ] && break
            sleep 0.5
        done
        [ -n "$window" ] || { echo "FAIL: no $title window" >&2; exit 1; }
        sleep 1.5
        # Without a window manager the shot is the dialog's client area.
        import -display "$DISPLAY" -window "$window" "$out/options-$what-$dpi.png"
        xdotool key --window "$window" Escape
        wait
    done
    wineserver -k || true
done
ls "$out"
