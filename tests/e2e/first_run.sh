#!/usr/bin/env bash
# The first start end to end: quorin.exe in an empty program folder with no settings shows the
# wizard "Welcome to Quorin"; its four pages are walked with "Next >", Finish builds index.txt on
# the progress page, and the program runs on from the tray. A second start goes straight to the
# tray. A fresh start whose wizard is closed ends the program with no index built.
first_start=1
. "$(dirname "$0")/lib.sh"
tree=$work/wineprefix/drive_c/first-run-tree
prepare_program

make_tree 60 60
set_setting Index DriveCount 1
set_setting Index Drive0 'C:\first-run-tree'
# File types of the default filter for the wizard's list, one of them without an icon.
register_type() {
    wine reg add "HKCR\\$1" /ve /d "$2" /f >/dev/null
    wine reg add "HKCR\\$2" /ve /d "$3" /f >/dev/null
    [ -z "$4" ] || wine reg add "HKCR\\$2\\DefaultIcon" /ve /d "$4" /f >/dev/null
}
register_type .txt QuorinFirstRun.Text 'Text Document' '%SystemRoot%\system32\notepad.exe,0'
register_type .htm QuorinFirstRun.Page 'HTML Document' '%SystemRoot%\system32\shell32.dll,1'
register_type .zip QuorinFirstRun.Zip 'Compressed Folder' ''

configured() { [ "$(reg_value 'HKCU\Software\Quorin\Main' Configured)" = 1 ]; }
# A click on the tray icon shows the main window once the program runs from the tray.
shown_from_tray() {
    xdotool mousemove 1270 790 click 1
    sleep 1
    main_shown
}

start_program
wait_until 60 "no wizard at the first start" wizard_shown
settled "$wizard_area"
shot wizard-welcome "$wizard_area"
[ ! -f "$program/index.txt" ] || fail "an index before Finish"
walk_wizard file-types drives index
# The build is short: the last picture taken while it ran shows the progress page.
for _ in $(seq 40); do
    [ ! -f "$program/index.txt" ] || break
    shot progress-now "$wizard_area"
    [ -f "$program/index.txt" ] || mv "$shots/progress-now.png" "$shots/wizard-progress.png"
done
rm -f "$shots/progress-now.png"
wait_until 120 "no index.txt after Finish" test -f "$program/index.txt"
wait_until 30 "the wizard stayed after the first build" window_gone '^Welcome to Quorin$'
grep -q 'notes17.txt' "$program/index.txt" || fail "index.txt misses a file of the tree"
configured || fail "Finish did not mark the first start done"
wait_until 30 "no tray icon after the wizard" shown_from_tray
! question_shown || fail "the \"Missing index\" question after the wizard built the index"
exit_program

start_program
wait_until 60 "the second start did not go to the tray" shown_from_tray
! wizard_shown || fail "the wizard came back after it was finished"
exit_program

rm -f "$program/index.txt"
wine reg delete 'HKCU\Software\Quorin\Main' /v Configured /f >/dev/null
start_program
wait_until 60 "no wizard at a start not yet configured" wizard_shown
xdotool mousemove 891 236 click 1  # the wizard's close box
wait_until 30 "closing the wizard did not end the program" program_gone
[ ! -f "$program/index.txt" ] || fail "closing the wizard built an index"
! configured || fail "closing the wizard marked the first start done"
echo "PASS"
