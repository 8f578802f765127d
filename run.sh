#!/usr/bin/env bash
# Builds Quorin for Windows and starts it under Wine, in a program folder of its own
# (build/run), on a Wine desktop with a taskbar and a notification area. Without a display it
# starts a virtual one (Xvfb), says which, and saves screenshots of it.
set -euo pipefail
cd "$(dirname "$0")"
if [ -z "${DISPLAY:-}" ]; then
    # Xvfb picks a free display number itself; this script starts again on it.
    exec scripts/with-xvfb env QUORIN_RUN_VIRTUAL=1 "$0" "$@"
fi
virtual=${QUORIN_RUN_VIRTUAL:-}
root=${QUORIN_BUILD_ROOT:-build}
scripts/install-deps
QUORIN_BUILD_ROOT=$root scripts/build win

run=$root/run
mkdir -p "$run"
for file in quorin.exe findfile.avi qn.HLP; do
    cp -u "$root/win/src/app/$file" "$run/"
done
prefix=$(cd "$run" && pwd)/wineprefix

stop() { WINEPREFIX=$prefix wineserver -k 2>/dev/null || true; }
trap stop EXIT
trap 'exit 130' INT TERM

if [ -n "$virtual" ]; then
    echo "No display is set: Quorin runs on the virtual display $DISPLAY."
    echo "Look at it with: import -display $DISPLAY -window root shot.png"
    echo "(or connect a VNC server such as x11vnc -display $DISPLAY)."
fi

shown() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
wait_for() {  # SECONDS WINDOW_NAME...
    local tries=$(($1 * 4)) name
    shift
    for _ in $(seq "$tries"); do
        for name in "$@"; do shown "$name" && return 0; done
        sleep 0.25
    done
    return 1
}

# Nobody can answer on a virtual display: a first start shows the wizard, and Enter is "Next >"
# three times, then Finish, which builds the first index.
answer_first_start() {
    for _ in $(seq 20); do
        shown '^Welcome to Quorin$' || return 0
        xdotool key Return
        sleep 3
    done
}

echo "Starting Quorin from $run (Wine prefix $prefix)."
scripts/wine-run --prefix "$prefix" cmd /c exit >/dev/null 2>&1 || true  # prepares a new prefix
exe=$(cd "$run" && pwd)/quorin.exe
scripts/wine-run --prefix "$prefix" explorer /desktop=quorin,1280x800 "Z:${exe//\//\\}" &
wine=$!

# The program waits in the notification area, after the wizard as on every later start; a click
# on its icon shows the main window.
show_from_tray() {
    for _ in $(seq 30); do
        xdotool mousemove 1270 790 click 1
        wait_for 2 '^Quorin$' && return 0
    done
    echo "The main window did not show from the notification area within 60 s." >&2
}

if [ -n "$virtual" ]; then
    xdotool mousemove 640 200
    if [ -f "$run/index.txt" ]; then
        show_from_tray
        import -display "$DISPLAY" -window root "$run/screenshot-start.png"
    else
        wait_for 60 '^Welcome to Quorin$' || echo "Quorin showed no wizard within 60 s." >&2
        import -display "$DISPLAY" -window root "$run/screenshot-start.png"
        answer_first_start
        for _ in $(seq 240); do [ -f "$run/index.txt" ] && break; sleep 0.5; done
        show_from_tray
    fi
    import -display "$DISPLAY" -window root "$run/screenshot.png"
    echo "Screenshots: $run/screenshot-start.png and $run/screenshot.png"
    echo "Quorin keeps running on $DISPLAY; press Ctrl+C to stop it."
fi
wait "$wine" || true
