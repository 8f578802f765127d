#!/usr/bin/env bash
# The first start end to end: quorin.exe in an empty program folder with no settings shows the
# wizard "Welcome to Quorin"; its four pages are walked with "Next >", Finish builds index.txt on
# the progress page, and the program runs on from the tray. A second start goes straight to the
# tray. A fresh start whose wizard is closed ends the program with no index built.
# Usage: first_run.sh EXE_FOLDER WORK_FOLDER [SCREENSHOT_FOLDER]
set -euo pipefail
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
wineserver -w

# The wizard is centred on the desktop; its navigation links and close box are here.
wizard_area=532x352+373+224
next_or_finish() { click_and_wait 765 551 "$wizard_area"; }
close_box() { xdotool mousemove 891 236 click 1; }
crop_wizard() { convert "$shots/$1.png" -crop "$wizard_area" +repage "$shots/$1.png"; }

wizard_shown() { window_shown '^Welcome to Quorin$'; }
wizard_gone() { ! wizard_shown; }
configured() { wine reg query 'HKCU\Software\Quorin\Main' /v Configured 2>/dev/null | grep -q 'REG_SZ *1'; }
# A click on the tray icon shows the main window once the program runs from the tray.
shown_from_tray() {
    xdotool mousemove 1270 790 click 1
    sleep 1
    window_shown '^Quorin$'
}

start_program
wait_until 60 "no wizard at the first start" wizard_shown
settled "$wizard_area"
shot wizard-welcome
[ ! -f "$program/index.txt" ] || fail "an index before Finish"
for page in file-types drives index; do
    next_or_finish
    shot "wizard-$page"
done
# The build is short: the last picture taken while it ran shows the progress page.
xdotool mousemove 765 551 click 1
for _ in $(seq 40); do
    [ ! -f "$program/index.txt" ] || break
    import -display "$DISPLAY" -window root "$shots/progress-now.png"
    [ -f "$program/index.txt" ] || mv "$shots/progress-now.png" "$shots/wizard-progress.png"
done
rm -f "$shots/progress-now.png"
wait_until 120 "no index.txt after Finish" test -f "$program/index.txt"
wait_until 30 "the wizard stayed after the first build" wizard_gone
grep -q 'notes17.txt' "$program/index.txt" || fail "index.txt misses a file of the tree"
configured || fail "Finish did not mark the first start done"
wait_until 30 "no tray icon after the wizard" shown_from_tray
! question_shown || fail "the \"Missing index\" question after the wizard built the index"
exit_program
for name in welcome file-types drives index progress; do
    [ ! -f "$shots/wizard-$name.png" ] || crop_wizard "wizard-$name"
done

start_program
wait_until 60 "the second start did not go to the tray" shown_from_tray
! wizard_shown || fail "the wizard came back after it was finished"
exit_program

rm -f "$program/index.txt"
wine reg delete 'HKCU\Software\Quorin\Main' /v Configured /f >/dev/null
start_program
wait_until 60 "no wizard at a start not yet configured" wizard_shown
close_box
wait_until 30 "closing the wizard did not end the program" program_gone
[ ! -f "$program/index.txt" ] || fail "closing the wizard built an index"
! configured || fail "closing the wizard marked the first start done"
echo "PASS"
