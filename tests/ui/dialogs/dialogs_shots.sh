#!/usr/bin/env bash
# Screenshots of the Options dialog's pages and the Add New Word dialog at 100 % and 150 %, with
# dialogs_look.exe (not run by CTest).
# Usage: scripts/with-xvfb bash tests/ui/dialogs/dialogs_shots.sh LOOK_EXE WORK_FOLDER OUT_FOLDER
exec bash "$(dirname "$0")/../../support/look_shots.sh" "$1" "$2" "$3" \
    general=Options=options-general filetypes=Options=options-filetypes \
    words=Options=options-words "newword=Add New Word=options-newword"
