#!/usr/bin/env bash
# The Options dialog end to end: opened from the main window's Options panel, the file-type
# filter switched to a test type only, OK, "Update Index Now", and a Go on a file of that type
# opens it; a word added through Add New Word stays in words.txt after the Options dialog is
# cancelled, and is gone once deleted with Yes.
. "$(dirname "$0")/lib.sh"
tree=$work/tree
rm -rf "$tree" "$marker"
mkdir -p "$tree" "$WINEPREFIX/dosdevices"
touch "$tree/report.qzp" "$tree/notes.txt"
# The General page offers whole drives, so the tree is a drive of its own, q:, and the only one
# indexed: OK keeps it, and every build walks just the tree. Wine reads its drives as it starts.
ln -sfn "$tree" "$WINEPREFIX/dosdevices/q:"
prepare_program
index_root q: '' True
register_marking_type .qzp QuorinOptionsTest

setting() { reg_value 'HKCU\Software\Quorin\Index' "$1"; }
words() { tr -d '\r' <"$program/words.txt" 2>/dev/null || true; }
options_shown() { window_shown '^Options$'; }

# The Options panel's link at Y opens the dialog; keys go to it once it has the focus. The panel
# may be up already, so the tab's click is given again rather than waited for.
open_options() {  # LINK_Y
    for _ in 1 2 3; do
        xdotool mousemove 550 373 click 1
        settled "$main_area"
        xdotool mousemove 525 "$1" click 1
        poll 10 options_shown && break
    done
    options_shown || fail "the Options link at $1 opened no dialog"
    take_focus '^Options$'
}

start_and_index

# File Types: the dialog opens at the page with the focus in the include list, which holds the
# classes root's file types in the registry's order; the arrow keys go to the test type and Space
# selects it.
position=$(wine reg query HKCR 2>/dev/null | tr -d '\r' | sed -n 's/^HKEY_CLASSES_ROOT\\//p' |
    grep -E '^\.[^.*,]*$' | grep -nix '.qzp' | cut -d: -f1)
[ -n "$position" ] || fail "the classes root does not list .qzp"
open_options 410
settled 500x400+390+200
shot options-live 500x400+390+200
xdotool key Home
for _ in $(seq 2 "$position"); do xdotool key Down; done
xdotool key space Return
wait_until 20 "OK did not close the Options dialog" window_gone '^Options$'
[ "$(setting Filter)" = ".QZP " ] || fail "Filter is \"$(setting Filter)\", not \".QZP \""
[ "$(setting FilterIsInclude)" = True ] || fail "FilterIsInclude is not True"
[ "$(setting DriveCount)" = 1 ] && [ "$(setting Drive0)" = q: ] || fail "the drive q: was not kept"

# The next build takes the new filter; its one match opens at once.
rm -f "$program/index.txt.old"
cp "$program/index.txt" "$program/index.txt.old"
click_and_wait 502 373 "$main_area"
xdotool mousemove 480 429 click 1
wait_until 60 "Update Index Now built no new index" \
    bash -c "! cmp -s '$program/index.txt' '$program/index.txt.old' && grep -q 'report.qzp' '$program/index.txt'"
click_and_wait 472 373 "$main_area"
go report
wait_until 20 "Go on report did not open report.qzp" opened 'report.qzp'

# Words: Add New Word from the Words page (Alt+N), then Cancel the Options dialog.
open_options 429
xdotool key alt+n
wait_until 20 "Add New Word did not open" window_shown '^Add New Word$'
take_focus '^Add New Word$'
xdotool type --delay 50 plan
xdotool key Tab
xdotool type --delay 20 "$(windows_path "$tree")\\notes.txt"
xdotool key Return
wait_until 20 "OK did not close Add New Word" window_gone '^Add New Word$'
xdotool key Escape
wait_until 20 "Escape did not close the Options dialog" window_gone '^Options$'
words | grep -qx plan || fail "words.txt holds no word plan after Cancel"

# Delete it: the list takes the focus with Tab, Home selects the row, Alt+D asks, Enter is Yes.
open_options 429
xdotool key Tab Home alt+d
wait_until 20 "Delete Word asked nothing" window_shown '^Confirm delete$'
xdotool key Return
wait_until 20 "the question stayed" window_gone '^Confirm delete$'
! words | grep -qx plan || fail "words.txt still holds plan after Delete Word"
xdotool key Escape
wait_until 20 "Escape did not close the Options dialog" window_gone '^Options$'
echo "PASS"
