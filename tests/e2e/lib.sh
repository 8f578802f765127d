# shellcheck shell=bash disable=SC2154
# Shared by the end-to-end scripts; sourced, with exe_folder, work and shots set by the caller.
# Each script has its own Wine prefix and program folder in `work`, and stops only the Wine server
# of that prefix.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
: "${DISPLAY:?needs an X display}"

export WINEPREFIX=$work/wineprefix
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
program=$work/program

# A failure leaves the screen as it was in failure.png and names the windows then shown.
fail() {
    echo "FAIL: $*" >&2
    import -display "$DISPLAY" -window root "$shots/failure.png" 2>/dev/null || true
    echo "windows shown:" >&2
    xdotool search --onlyvisible --name . getwindowname %@ >&2 2>/dev/null || true
    exit 1
}
shot() { import -display "$DISPLAY" -window root "$shots/$1.png"; }
stop() { wineserver -k 2>/dev/null || true; }

# The main window is centred on the 1280 x 800 desktop; these are its tabs, its word box and the
# tray icon.
click() {
    xdotool mousemove "$1" "$2" click "${3:-1}"
    sleep 1.5
}
crop_main() { convert "$shots/$1.png" -crop 380x120+450+340 +repage "$shots/$1.png"; }

# A fresh program folder holding the program, no settings of an earlier run, and the prefix made
# on first use. The first start is marked done, so that the program starts without its wizard,
# unless the script sets first_start=1.
prepare_program() {
    rm -rf "$program" "$shots"
    mkdir -p "$program" "$shots"
    cp "$exe_folder/quorin.exe" "$exe_folder/findfile.avi" "$exe_folder/qn.HLP" "$program/"
    trap stop EXIT
    "$here/scripts/wine-run" --prefix "$WINEPREFIX" reg delete 'HKCU\Software\Quorin' /f \
        >/dev/null 2>&1 || true
    [ "${first_start:-0}" = 1 ] || set_setting Main Configured 1
}

# set_setting SECTION NAME VALUE
set_setting() { wine reg add "HKCU\\Software\\Quorin\\$1" /v "$2" /d "$3" /f >/dev/null; }

# A Linux path as Wine's Z: drive sees it.
windows_path() { echo "Z:${1//\//\\}"; }

# Starts quorin.exe on a Wine desktop filling the display; sets `desktop` to its process.
start_program() {
    wine explorer /desktop=quorin,1280x800 "$(windows_path "$program")\\quorin.exe" &
    desktop=$!
    xdotool mousemove 640 200
}

# Waits up to $1 seconds for the command after it to succeed; fails with $2 otherwise.
wait_until() {
    local seconds=$1 what=$2
    shift 2
    for _ in $(seq "$((seconds * 4))"); do
        "$@" && return 0
        sleep 0.25
    done
    fail "$what"
}

window_shown() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }

# The "Missing index" question of a start without an index.
question_shown() { window_shown '^Missing index$'; }
wait_for_question() { wait_until 60 "no \"Missing index\" question at start" question_shown; }

# The question's box is centred on the desktop too, its Yes button here. The button is clicked
# rather than Return pressed: under load Wine can leave the box inactive, where keys do not reach
# it but clicks do.
answer_missing_index() {
    local _ __
    for _ in $(seq 5); do
        xdotool mousemove 606 432 click 1
        for __ in $(seq 12); do
            sleep 0.25
            question_shown || return 0
        done
    done
    fail "\"Missing index\" did not take a click on Yes"
}

# After "Missing index" was answered Yes: the first build.
wait_for_index() { wait_until 120 "no index.txt after answering Yes" test -f "$program/index.txt"; }

# Ends the program through its Exit tab and waits for it to be gone.
exit_program() {
    click 803 379
    for _ in $(seq 30); do
        kill -0 "$desktop" 2>/dev/null || break
        sleep 1
    done
    ! kill -0 "$desktop" 2>/dev/null || fail "the Exit tab did not end the program"
}
