#!/usr/bin/env bash
# Screenshots of the main window's Go, Index, Options and Help panels at 100 % and 150 %, with
# main_look.exe (not run by CTest).
# Usage: scripts/with-xvfb bash tests/ui/main/main_shots.sh LOOK_EXE WORK_FOLDER OUT_FOLDER
exec bash "$(dirname "$0")/../../support/look_shots.sh" "$1" "$2" "$3" \
    0=Quorin=main-go 1=Quorin=main-index 2=Quorin=main-options 3=Quorin=main-help
