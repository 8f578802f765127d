#!/usr/bin/env bash
# Builds Quorin for Windows and starts it under Wine, in a program folder of its own
# (build/run), on a Wine desktop with a taskbar and a notification area. Without a display it
# starts a virtual one (Xvfb), says which, and saves screenshots of it.
set -euo pipefail
cd "$(dirname "$0")"
root=${QUORIN_BUILD_ROOT:-build}
scripts/install-deps
QUORIN_BUILD_ROOT=$root scripts/build win

run=$root/run
mkdir -p "$run"
for file in quorin.exe findfile.avi qn.HLP; do
    cp -u "$root/win/src/app/$file" "$run/"
done
prefix=$(cd "$run" && pwd)/wineprefix

xvfb=""
cleanup() {
    WINEPREFIX=$prefix wineserver -k 2>/dev/null || true
    if [ -n "$xvfb" ]; then kill "$xvfb" 2>/dev/null || true; fi
}
trap cleanup EXIT INT TERM

if [ -z "${DISPLAY:-}" ]; then
    n=90
    while [ -e /tmp/.X11-unix/X$n ] || [ -e /tmp/.X$n-lock ]; do n=$((n + 1)); done
    Xvfb :$n -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
    xvfb=$!
    for _ in $(seq 50); do [ -e /tmp/.X11-unix/X$n ] && break; sleep 0.1; done
    export DISPLAY=:$n
    echo "No display is set: Quorin runs on the virtual display $DISPLAY."
    echo "Look at it with: import -display $DISPLAY -window root shot.png"
    echo "(or connect a VNC server such as x11vnc -display $DISPLAY)."
fi

echo "Starting Quorin from $run (Wine prefix $prefix)."
scripts/wine-run --prefix "$prefix" cmd /c exit >/dev/null 2>&1 || true  # prepares a new prefix
exe=$(cd "$run" && pwd)/quorin.exe
scripts/wine-run --prefix "$prefix" explorer /desktop=quorin,1280x800 "Z:${exe//\//\\}" &
wine=$!

if [ -n "$xvfb" ]; then
    # Nobody can answer on a virtual display: Enter goes through the first-run wizard ("Next >"
    # three times, then Finish builds the first index); in the main window an empty word box
    # makes Enter do nothing.
    xdotool mousemove 640 200 2>/dev/null || true
    sleep 10
    import -display "$DISPLAY" -window root "$run/screenshot-start.png" 2>/dev/null || true
    for _ in $(seq 20); do
        [ -f "$run/index.txt" ] && break
        xdotool key Return 2>/dev/null || true
        sleep 3
    done
    import -display "$DISPLAY" -window root "$run/screenshot.png" 2>/dev/null || true
    echo "Screenshots: $run/screenshot-start.png and $run/screenshot.png"
    echo "Quorin keeps running on $DISPLAY; press Ctrl+C to stop it."
fi
wait "$wine" || true
