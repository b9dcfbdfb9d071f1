#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The companion in a real tray, on the demo PC: its icon is there and has the colour of the worst disk, the pointer on it
# brings the tooltip, a click the flyout, the Menu key that of a disk.
#
# Usage: tray.sh FOLDER [PICTURES [DPI [LANGUAGE]]]     FOLDER has the executable; the pictures are kept in PICTURES. The
# language goes by its number in the settings.
set -euo pipefail
source=$(dirname "$(readlink -f "$0")")/../..
for tool in Xvfb trayer xdotool import jq; do
    command -v $tool >/dev/null || { echo "SKIP: there is no $tool"; exit 77; }
done
scratch=$(mktemp -d)
pictures=${2:-$scratch}
dpi=${3:-96}
language=${4:-0}
pids=()
clean() {
    exec 2>/dev/null # nobody has to know that they were killed
    kill -9 "${pids[@]}" || true
    wait
    rm -rf "$scratch"
}
trap clean EXIT
fail() {
    echo "tray.sh: $*" >&2
    cat "$scratch/told" >&2
    exit 1
}

# await WHAT COMMAND…: until the command succeeds.
await() {
    local what=$1 i
    shift
    for ((i = 0; i < 200; i++)); do
        "$@" && return
        sleep 0.1
    done
    fail "no $what; windows: $(windows | tr '\n' ' ')"
}

windows() { xdotool search --onlyvisible --class '^VelmoraSMART$' 2>/dev/null | sort; }
# A window that has come since $known was read; its number goes to $window.
comes() {
    window=$(comm -13 <(printf '%s\n' "$known") <(windows) | head -n 1)
    [ -n "$window" ]
}
# isPainted COLOURS: the window has at least so many of them.
isPainted() { [ "$(import -window "$window" png:- | identify -format %k -)" -ge "$1" ]; }
isRed() { import -window "$window" png:- | convert - txt:- | grep -i '#d93030' >/dev/null; }
# take NAME: a picture of the screen.
take() { import -window root "$pictures/$1-$dpi-$language.png"; }

export HALVANE_PC=$scratch/pc HALVANE_PC_STATE=$scratch/state QT_FONT_DPI=$dpi DBUS_SESSION_BUS_ADDRESS=disabled:
"$source/demo/make-pc" "$HALVANE_PC" --dpi "$dpi" --no-images
jq --arg language "$language" '.settings.LanguageType = $language' "$HALVANE_PC/pc.json" >"$scratch/pc.json"
mv "$scratch/pc.json" "$HALVANE_PC/pc.json"
mkdir -p "$HALVANE_PC_STATE" "$pictures"
# All messages have been shown before, so that no other windows come.
memory=$HALVANE_PC_STATE/watch.json
disks() { jq '.disks | length' "$1" 2>/dev/null; }
knowsAll() { [ "$(disks "$memory")" = "$(disks "$HALVANE_PC/pc.json")" ]; }
QT_QPA_PLATFORM=offscreen "$1/VelmoraSMART" 2>"$scratch/told" &
pids+=($!)
await "memory of all disks" knowsAll
kill -9 "${pids[0]}"
wait "${pids[0]}" 2>/dev/null || true
pids=()
jq '.events[].told = true' "$memory" >"$memory.new"
mv "$memory.new" "$memory"

Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$scratch/display" 2>/dev/null &
pids+=($!)
await "display" test -s "$scratch/display"
DISPLAY=:$(cat "$scratch/display")
export DISPLAY
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
trayer --edge bottom --align right --widthtype request --height $((24 * dpi / 96)) >/dev/null 2>&1 &
pids+=($!)
await "tray" xdotool search --onlyvisible --class '^trayer$' >"$scratch/panel"
known=""
"$1/VelmoraSMART" Schedular 2>"$scratch/told" &
pids+=($!)

await "icon" comes
icon=$window
await "red of the icon" isRed
take icon
eval "$(xdotool getwindowgeometry --shell "$icon")"
((Y + HEIGHT > 768 - 40 * dpi / 96 && X + WIDTH > 1024 - 80)) || fail "the icon is at $X,$Y, not in the tray"

known=$(windows)
xdotool mousemove --sync $((X + WIDTH / 2)) $((Y + HEIGHT / 2))
await "tooltip" comes
await "text of the tooltip" isPainted 20
take tooltip
known=$(windows)
xdotool click 1
await "flyout" comes
[ "$(xdotool getwindowname "$window")" = "Velmora Halvane" ] || fail "a click shows $(xdotool getwindowname "$window")"
await "rows of the flyout" isPainted 100
take flyout
known=$(windows)
xdotool key Tab Menu
await "menu of a disk" comes
take menu
echo "the icon is there; the pointer brings the tooltip, a click the flyout, the Menu key its menu"
