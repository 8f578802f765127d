#!/usr/bin/env bash
# The tray program end to end: quorin.exe in an empty program folder under a Wine desktop,
# "Missing index" answered Yes, the first build watched and finished, completion in the word box,
# the panels and the tray menu shown, and the program left through the Exit tab.
. "$(dirname "$0")/lib.sh"
tree=$work/wineprefix/drive_c/e2e-tree
prepare_program

make_tree 80 40
index_root 'C:\e2e-tree' '' False

# Two assigned words for the completion; their folder is indexed by the first build.
printf 'Notepad\r\nC:\\e2e-tree\\dir1\r\nnotes1.txt\r\nNotes\r\nC:\\e2e-tree\\dir2\r\nnotes2.txt\r\n' \
    >"$program/words.txt"

start_program
wait_for_question
settled 400x200+440+300
shot start
[ ! -f "$program/index.txt" ] || fail "an index before the question was answered"

answer_missing_index
shot main-progress "$main_area"
wait_for_index
head -1 "$program/index.txt" | grep -Eq '^[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9:]{8}' || fail "index.txt has no date"
grep -q 'notes17.txt' "$program/index.txt" || fail "index.txt misses a file of the tree"
wait_until 30 "the progress panel stayed after the build" word_box_shown
shot main-go "$main_area"

type_word no
shot completion "$main_area"
xdotool key ctrl+a BackSpace
for tab in 502:index 548:options 589:help; do
    click_and_wait "${tab%:*}" 373 "$panel_start"
    settled "$main_area"
    shot "main-${tab#*:}" "$main_area"
done
tray_menu_area=320x160+960+640
click_and_wait 1270 790 "$tray_menu_area" 3
shot tray-menu "$tray_menu_area"
before=$(area_sum "$tray_menu_area")
xdotool key Escape
wait_until 10 "Escape left the tray menu open" area_changed "$tray_menu_area" "$before"
exit_program
[ -n "$(reg_value 'HKCU\Software\Quorin\Main' StartX)" ] || fail "the exit saved no position"
[ -n "$(reg_value 'HKCU\Software\Quorin\Main' Path)" ] || fail "start-up recorded no path"
echo "PASS"
