#!/usr/bin/env bash
# Screenshots of the look programs under Wine (not run by CTest): each LOOK's windows at 100 % and
# 150 % (DPIS="96 144 192" for others), or for exit_panel the shutdown panel once, as
# <build root>/looks/shots/<name>[-<dpi>].png, from the win build (QUORIN_BUILD_ROOT as for it).
# Usage: scripts/with-xvfb looks/shots.sh LOOK...
#   LOOK: app controls dialogs exit_panel icon index_panel main matches tab_font
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
root=$(cd "$here" && realpath -m "${QUORIN_BUILD_ROOT:-build}")
programs=$root/win/looks
work=$root/looks
out=$work/shots
: "${DISPLAY:?needs an X display}"
[ $# -gt 0 ] || { sed -n '5,6s/^# //p' "$0" >&2; exit 2; }
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
mkdir -p "$out"
stop() { wineserver -k 2>/dev/null || true; }
trap stop EXIT

# A Wine prefix at DPI with the window metrics of Windows 10/11 (and with QUORIN_HIGH_CONTRAST=1
# a high-contrast scheme).
prefix() {
    export WINEPREFIX=$work/prefix-$1${QUORIN_HIGH_CONTRAST:+-contrast}
    "$here/scripts/set-metrics" "$WINEPREFIX" "$1"
    if [ "${QUORIN_HIGH_CONTRAST:-}" = 1 ]; then bash "$here/looks/high_contrast.sh" "$WINEPREFIX"; fi
}

# PROGRAM SHOT...: each SHOT is ARGUMENT=TITLE=NAME; the program is started with ARGUMENT, the
# window titled TITLE is taken as NAME-<dpi>.png, and the program is ended.
windows() {
    local look=$programs/$1.exe
    shift
    for dpi in ${DPIS:-96 144}; do
        prefix "$dpi"
        for shot in "$@"; do
            IFS== read -r argument title name <<<"$shot"
            wine "Z:${look//\//\\}" "$argument" &
            window=""
            for _ in $(seq 60); do
                window=$(xdotool search --name "^$title\$" 2>/dev/null | head -1) &&
                    [ -n "$window" ] && break
                sleep 0.5
            done
            [ -n "$window" ] || { echo "FAIL: no $title window" >&2; exit 1; }
            sleep 2
            # Without a window manager the shot is the window's client area.
            import -display "$DISPLAY" -window "$window" "$out/$name-$dpi.png"
            wineserver -k || true
            wait || true
        done
    done
}

# Starts the look PROGRAM with ARGUMENTs on a 1280x800 Wine desktop and waits up to a minute for
# MARK, a file the program writes once its window is painted.
onDesktop() {  # MARK PROGRAM ARGUMENT...
    local mark=$1 look=$programs/$2.exe
    shift 2
    wine explorer /desktop=quorin,1280x800 "Z:${look//\//\\}" "$@" &
    for _ in $(seq 120); do
        [ -e "$mark" ] && return 0
        sleep 0.5
    done
    echo "FAIL: no ${mark##*/} from $look" >&2
    exit 1
}

# The main window held on its shutdown panel, centred on a 1280x800 desktop, in a prefix of its
# own: exit_panel_look creates MARKS\shown once the panel is painted and goes on at MARKS\taken.
exitPanel() {
    export WINEPREFIX=$work/prefix-exit
    "$here/scripts/wine-run" --prefix "$WINEPREFIX" cmd /c exit >/dev/null 2>&1 || true
    local marks=$work/marks
    rm -rf "$marks"
    mkdir -p "$marks"
    xdotool mousemove 640 200
    onDesktop "$marks/shown" exit_panel_look "Z:${marks//\//\\}"
    sleep 1
    import -display "$DISPLAY" -window root "$work/exit-full.png"
    touch "$marks/taken"
    convert "$work/exit-full.png" -crop 380x120+450+340 +repage "$out/exit-panel.png"
    wineserver -w
}

# The Index panel after a build, folders left out ("limit") and every folder indexed ("all"),
# framed on a desktop: index_panel_look writes the window's place to MARKS\place.
indexPanel() {
    for dpi in 96 144; do
        prefix "$dpi"
        for mode in limit all; do
            local marks=$work/marks-$dpi-$mode
            rm -rf "$marks"
            mkdir -p "$marks"
            onDesktop "$marks/place" index_panel_look "$mode" "Z:${marks//\//\\}"
            sleep 2
            import -display "$DISPLAY" -window root "$work/full.png"
            # The window with its frame, as Windows draws it on the desktop.
            convert "$work/full.png" -crop "$(tr -d '\r\n' <"$marks/place")" +repage \
                "$out/index-panel-$mode-$dpi.png"
            wineserver -k || true
            wait || true
        done
    done
}

for look in "$@"; do
    case $look in
        app) windows app_demo splash=Quorin=splash "help=Quorin Help=help" \
            animation=Indexing=animation ;;
        controls) windows controls_demo =Quorin=controls ;;
        dialogs) windows dialogs_look general=Options=options-general \
            filetypes=Options=options-filetypes words=Options=options-words \
            "newword=Add New Word=options-newword" "wizard=Welcome to Quorin=wizard" ;;
        exit_panel) exitPanel ;;
        icon) windows icon_look "60=Icon extractor=icon-extractor" ;;
        index_panel) indexPanel ;;
        main) windows main_look 0=Quorin=main-go 1=Quorin=main-index 2=Quorin=main-options \
            3=Quorin=main-help 5=Quorin=main-progress ;;
        matches) windows matches_demo "60=Multiple Matches=matches" ;;
        tab_font) windows tab_font_look "=Tahoma bold=wine-tab-font" ;;
        *) echo "unknown look: $look" >&2; exit 2 ;;
    esac
done
ls "$out"
