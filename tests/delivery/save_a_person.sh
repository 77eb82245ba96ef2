#!/bin/sh
# Starts PROGRAM on a screen of its own, enters a person NAME and saves; with "new" it presses New first, as
# where people are stored already.
# usage: save_a_person.sh PROGRAM NAME [new]
set -eu
export DISPLAY=:77
Xvfb :77 -screen 0 1280x900x24 >/dev/null 2>&1 &
screen=$!
# Waited for: the next one to use this screen's number would else find the old screen, on its way out.
trap 'kill $screen; wait $screen || true' EXIT

waited=0
wait_for() { # wait_for COMMAND...: polls for half a minute
    until "$@" >/dev/null 2>&1; do
        waited=$((waited + 1))
        [ $waited -lt 300 ] || { echo "gave up: $*" >&2; exit 1; }
        sleep 0.1
    done
}
wait_for xdotool getmouselocation
"$1" &
program=$!
wait_for xdotool search --onlyvisible --name '^Feng Shui$'
window=$(xdotool search --onlyvisible --name '^Feng Shui$' | head -n 1)
xdotool windowfocus --sync "$window"
[ "${3:-}" = new ] && xdotool key alt+p n
xdotool type "$2"
xdotool key Tab
xdotool type 1985-06-01
xdotool key Tab Tab space # past the calendar's button to the gender
xdotool key Tab Tab space # past the number to Calculate
xdotool key alt+s
wait_for grep -q "PROFILENAME=\"$2\"" ./.local/share/talivane/Profiles.xml ./*/Profiles.xml
xdotool key alt+f x
wait $program
