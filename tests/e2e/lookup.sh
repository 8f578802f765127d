#!/usr/bin/env bash
# The lookup end to end: quorin.exe indexes a small tree, a word with one match opens its file
# and leaves the main window up, a word with two matches shows "Multiple Matches", the first row
# is opened with "Always associate this word with this item" checked, and the same word typed
# again opens that file at once. Files open through a file type registered in the prefix whose
# "open" command writes the opened path to a marker file.
. "$(dirname "$0")/lib.sh"
prepare_program

tree=$work/tree
rm -rf "$tree" "$marker"
mkdir -p "$tree/papers"
touch "$tree/papers/alpha report.qzo" "$tree/papers/alpha notes.qzo" \
    "$tree/papers/alpha draft.txt" "$tree/beta plan.qzo"

index_root "$(windows_path "$tree")" '.QZO ' True
# The Matches window at 100, 100 with its designed size of 480 x 320 (in twips at 96 dpi), so
# that its check box and Open button are where the clicks below go.
for place in Left:1500 Top:1500 Width:7200 Height:4800; do
    set_setting Matches "${place%:*}" "${place#*:}"
done
register_marking_type .qzo QuorinLookupTest
wine reg add 'HKCR\QuorinLookupTest\DefaultIcon' /ve /d '%SystemRoot%\system32\notepad.exe,0' \
    /f >/dev/null

matches_shown() { window_shown '^Multiple Matches$'; }

start_and_index
grep -q 'alpha report.qzo' "$program/index.txt" || fail "index.txt misses alpha report.qzo"
! grep -q 'alpha draft.txt' "$program/index.txt" || fail "the filter let alpha draft.txt in"
# Matches come in index order, so the first row is the first of the two in index.txt.
first=$(tr -d '\r' <"$program/index.txt" | grep -m1 -E '^alpha (report|notes)\.qzo$') ||
    fail "index.txt misses the alpha files"

go beta
wait_until 20 "one match did not open beta plan.qzo" opened 'beta plan.qzo'
sleep 1.5
! matches_shown || fail "one match showed the Matches window"
main_shown || fail "the main window went away after one match"
shot main-after-go "$main_area"
rm -f "$marker"

go alpha
wait_until 20 "two matches showed no Matches window" matches_shown
settled 480x320+100+100
shot matches-live 480x320+100+100
[ ! -e "$marker" ] || fail "two matches opened a file without a choice"
wait_until 10 "the main window stayed up beside the Matches window" window_gone '^Quorin$'
# "Always associate this word with this item", then Open for the first row, selected on showing.
click_and_wait 118 397 150x18+108+388
xdotool mousemove 528 397 click 1
wait_until 20 "Open did not open $first" opened "$first"
wait_until 10 "the Matches window stayed after Open" window_gone '^Multiple Matches$'
tr -d '\r' <"$program/words.txt" >"$work/words.lf"
grep -qx alpha "$work/words.lf" || fail "words.txt holds no word alpha"
grep -Fqx "$(windows_path "$tree")\\papers" "$work/words.lf" || fail "words.txt holds no folder of alpha"
grep -Fqx "$first" "$work/words.lf" || fail "words.txt does not name $first"
rm -f "$marker"

wait_until 10 "the main window came back when the Matches window opened a file" \
    window_gone '^Quorin$'
xdotool mousemove 1270 790 click 1
wait_until 10 "a tray click did not bring the main window back" main_shown
go alpha
wait_until 20 "the assigned word did not open $first" opened "$first"
wait_until 10 "the main window stayed up after the assigned word opened its file" \
    window_gone '^Quorin$'
sleep 1
! matches_shown || fail "the assigned word showed the Matches window"
echo "PASS"
