# shellcheck shell=bash disable=SC2154
# Shared by the end-to-end scripts; sourced with the script's arguments: EXE_FOLDER (unless the
# script set exe_folder) WORK_FOLDER [SCREENSHOT_FOLDER]. Each script needs DISPLAY (an Xvfb of
# 1280x800, see scripts/with-xvfb), has its own Wine prefix and program folder in WORK_FOLDER,
# and stops only the Wine server of that prefix.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
: "${DISPLAY:?needs an X display}"
exe_folder=${exe_folder:-$1}
work=$2
shots=${3:-$work/screenshots}

export WINEPREFIX=$work/wineprefix
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
program=$work/program

# A failure leaves the screen as it was in failure.png and names the windows then shown.
fail() {
    echo "FAIL: $*" >&2
    shot failure 2>/dev/null || true
    echo "windows shown:" >&2
    xdotool search --onlyvisible --name . getwindowname %@ >&2 2>/dev/null || true
    exit 1
}
# The screen, or its area AREA, as NAME.png.
shot() {  # NAME [AREA]
    import -display "$DISPLAY" -window root ${2:+-crop "$2" +repage} "$shots/$1.png"
}
stop() { wineserver -k 2>/dev/null || true; }

# The main window is centred on the 1280 x 800 desktop: its tabs are at y 373, its word box at
# 620, 399, and the tray icon at 1270, 790. The wizard is centred too, its "Next >" and Finish
# links at 765, 551.
main_area=380x120+450+340
wizard_area=532x352+373+224
# The start of the panel's first line, left of the word box and its caret: each tab shows
# another text there.
panel_start=70x14+460+392

# A checksum of the screen area WxH+X+Y as it shows now.
area_sum() { import -display "$DISPLAY" -window root -crop "$1" rgb:- | md5sum; }

# Waits (up to 5 s, without failing: a blinking caret never holds still) until AREA shows the
# same for half a second, so that a screenshot catches a window painted.
settled() {  # AREA
    local last now
    last=$(area_sum "$1")
    for _ in $(seq 10); do
        sleep 0.5
        now=$(area_sum "$1")
        [ "$now" = "$last" ] && return 0
        last=$now
    done
}

# Clicks at X Y with BUTTON and waits until the screen area AREA shows the click's effect (a tab
# chosen, a box checked, a menu shown) and has settled.
click_and_wait() {  # X Y AREA [BUTTON]
    local before
    before=$(area_sum "$3")
    xdotool mousemove "$1" "$2" click "${4:-1}"
    wait_until 10 "a click at $1, $2 changed nothing in $3" area_changed "$3" "$before"
    settled "$3"
}
area_changed() { [ "$(area_sum "$1")" != "$2" ]; }

# A fresh program folder holding the program, no settings of an earlier run, and the prefix made
# on first use, with one Wine server kept up for the whole script: every wine command started
# its own server otherwise, and waiting for one to end before the program started took seconds.
# The first start is marked done, so that the program starts without its wizard, unless the
# script sets first_start=1.
prepare_program() {
    rm -rf "$program" "$shots"
    mkdir -p "$program" "$shots"
    cp "$exe_folder/quorin.exe" "$exe_folder/findfile.avi" "$exe_folder/qn.HLP" "$program/"
    trap stop EXIT
    "$here/scripts/wine-run" --prefix "$WINEPREFIX" reg delete 'HKCU\Software\Quorin' /f \
        >/dev/null 2>&1 || true
    stop
    wineserver -p
    [ "${first_start:-0}" = 1 ] || set_setting Main Configured 1
}

# A tree of FOLDERS x SUBFOLDERS folders at $tree, each of the first level with a file
# notesN.txt, big enough for a build's progress to be seen; made once per prefix.
make_tree() {  # FOLDERS SUBFOLDERS
    [ ! -d "$tree/dir$1" ] || return 0
    local a b folders=() files=()
    for a in $(seq "$1"); do
        for b in $(seq "$2"); do folders+=("$tree/dir$a/sub$b"); done
        files+=("$tree/dir$a/notes$a.txt")
    done
    mkdir -p "${folders[@]}"
    touch "${files[@]}"
}

# set_setting SECTION NAME VALUE
set_setting() { wine reg add "HKCU\\Software\\Quorin\\$1" /v "$2" /d "$3" /f >/dev/null; }
# The text of the REG_SZ value NAME of KEY; empty when there is none (or of another type).
reg_value() {  # KEY NAME
    wine reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n "s/^ *$2 *REG_SZ *//p"
}
# The one root to index, and the filter's types, included or (False) left out.
index_root() {  # ROOT FILTER FILTER_IS_INCLUDE
    set_setting Index DriveCount 1
    set_setting Index Drive0 "$1"
    set_setting Index Filter "$2"
    set_setting Index FilterIsInclude "$3"
}

# A Linux path as Wine's Z: drive sees it.
windows_path() { echo "Z:${1//\//\\}"; }

# Files "opened" by the program leave their path in the marker file: the classes root gets a type
# whose open command writes it there (under this Wine, user classes are not merged into it).
marker=$work/marker.txt
register_marking_type() {  # EXTENSION CLASS
    wine reg add "HKCR\\$1" /ve /d "$2" /f >/dev/null
    wine reg add "HKCR\\$2\\shell\\open\\command" /ve \
        /d "cmd /c echo %1> $(windows_path "$marker")" /f >/dev/null
}
opened() { [ -s "$marker" ] && grep -qF "$1" "$marker"; }

# Starts quorin.exe (the program folder's, or the Windows path EXE with ARGS) on a Wine desktop
# filling the display; sets `desktop` to its process.
# shellcheck disable=SC2120
start_program() {  # [EXE [ARGS]]
    wine explorer /desktop=quorin,1280x800 "${1:-$(windows_path "$program")\\quorin.exe}" "${@:2}" &
    desktop=$!
    xdotool mousemove 640 200
}

# Polls COMMAND until it succeeds; returns 1 when SECONDS have run out.
poll() {  # SECONDS COMMAND...
    for _ in $(seq "$(($1 * 4))"); do
        "${@:2}" && return 0
        sleep 0.25
    done
    return 1
}
# The same, failing with WHAT when time runs out.
wait_until() { poll "$1" "${@:3}" || fail "$2"; }  # SECONDS WHAT COMMAND...

window_shown() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
window_gone() { ! window_shown "$1"; }
main_shown() { window_shown '^Quorin$'; }

# Wine mostly gives the X input focus to the X window of the active window, so this tells whether
# keys typed now reach a dialog titled $1.
has_focus() {
    local id
    id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -1)
    [ -n "$id" ] && [ "$(xdotool getwindowfocus 2>/dev/null)" = "$id" ]
}
# Gives the X input focus to the window titled $1.
give_focus() {
    xdotool windowfocus "$(xdotool search --onlyvisible --name "$1" | head -1)" 2>/dev/null || true
}
# Waits for the dialog titled $1 to have the focus. Under load Wine can show a dialog without
# making it active: it is given the focus then.
take_focus() {
    for _ in 1 2 3; do
        poll 5 has_focus "$1" && return 0
        give_focus "$1"
    done
    fail "the window $1 did not take the focus"
}

# The main window's word box: the colour inside it, and the dark pixels of its first 100 (a caret
# alone makes up to 13 of them, a short word over 60).
pixel() {
    import -display "$DISPLAY" -window root -crop "1x1+$1+$2" txt:- | tail -1 | awk '{print $3}'
}
word_box_ink() {
    import -display "$DISPLAY" -window root -crop 100x18+536+390 -depth 8 gray:- | od -An -v -tu1 |
        awk '{ for (i = 1; i <= NF; i++) n += $i < 128 } END { print n + 0 }'
}
# White where the box is: the Go panel is up, not the progress panel of a build still ending.
word_box_shown() { [[ "$(pixel 620 399)" == "#FFFFFF"* ]]; }
word_box_empty() { [ "$(word_box_ink)" -lt 30 ]; }
word_box_filled() { [ "$(word_box_ink)" -ge 30 ]; }

# Types WORD into the main window's word box, once the box is shown, and checks that it arrived;
# emptied first, so that a word left from before cannot pass for it. Whether keys reach the box
# is told by the box itself, not by the X focus: under Wine's desktop that can stay on the
# desktop's own window while Wine hands the keys to the active window. Under load a shown window
# can be left inactive, so the box is clicked and emptied again until the keys arrive.
type_word() {  # WORD
    wait_until 30 "the main window shows no word box" word_box_shown
    for try in 1 2 3 4 5; do
        # Under load Wine's desktop can keep the X focus off the active window; keys go nowhere.
        [ "$try" = 1 ] || give_focus '^Quorin$'
        xdotool mousemove 620 399 click 1
        xdotool key ctrl+a BackSpace
        poll 5 word_box_empty || continue
        xdotool type --delay 100 "$1"
        poll 5 word_box_filled && return 0
    done
    fail "the word \"$1\" did not arrive in the word box"
}

# The word in the word box, then Go through Enter.
go() {  # WORD
    type_word "$1"
    xdotool key Return
}

# The "Missing index" question of a start without an index.
question_shown() { window_shown '^Missing index$'; }
wait_for_question() { wait_until 60 "no \"Missing index\" question at start" question_shown; }

# The question's box is centred on the desktop too, its Yes button here. The button is clicked
# rather than Return pressed: under load Wine can leave the box inactive, where keys do not reach
# it but clicks do.
answer_missing_index() {
    for _ in $(seq 5); do
        xdotool mousemove 606 432 click 1
        poll 3 window_gone '^Missing index$' && return 0
    done
    fail "\"Missing index\" did not take a click on Yes"
}

# After "Missing index" was answered Yes: the first build.
wait_for_index() { wait_until 120 "no index.txt after answering Yes" test -f "$program/index.txt"; }
# The program started without an index, "Missing index" answered Yes and the first build done.
start_and_index() {
    start_program
    wait_for_question
    answer_missing_index
    wait_for_index
}

# "Next >" through the wizard's three pages after the first, each shot as wizard-NAME where
# names are given; then Finish.
wizard_shown() { window_shown '^Welcome to Quorin$'; }
walk_wizard() {  # [NAME NAME NAME]
    local names=("$@") i
    for i in 0 1 2; do
        click_and_wait 765 551 "$wizard_area"
        [ -z "${names[i]:-}" ] || shot "wizard-${names[i]}" "$wizard_area"
    done
    xdotool mousemove 765 551 click 1
}

# Ends the program through its Exit tab and waits for it to be gone; a click that came while the
# window was busy is given again.
program_gone() { ! kill -0 "$desktop" 2>/dev/null; }
exit_program() {
    for _ in 1 2 3; do
        xdotool mousemove 803 373 click 1
        poll 20 program_gone && return 0
    done
    fail "the Exit tab did not end the program"
}
