#!/bin/sh
# run-journey.sh PREFIX_MAKER PREFIX RUNNER LYTCALL EXPECTED: works the complete form with mouse and keyboard, as somebody
# does on a desktop: on a separate screen, under a window manager. What the call prints must be what EXPECTED holds; with
# LYT_UPDATE set it is written there instead. With LYT_PICTURES set to a folder, a picture of the screen is saved in it at
# each turn of the journey.
set -u
maker=$1
prefix=$2
runner=$3
lytcall=$4
expected=$5
folder=$(mktemp -d) || exit 2

screen=
manager=
call=
finish() {
    for process in $call $manager; do kill "$process" 2>/dev/null; done
    "$(dirname "$maker")/wine-stop.sh" "$prefix"
    [ -z "$screen" ] || kill "$screen" 2>/dev/null
    rm -rf "$folder"
}
trap finish EXIT
trap 'exit 130' INT TERM

complain() {
    echo "$1"
    picture complaint
    cat "$folder"/*.log "$folder/actual" 2>/dev/null
    exit 1
}

# until_done COMPLAINT COMMAND...: tries the command again and again, for a minute at most, LYT_PATIENCE times.
until_done() {
    complaint=$1
    shift
    deadline=$(($(date +%s) + 60 * ${LYT_PATIENCE:-1}))
    until "$@" >/dev/null 2>&1; do
        [ "$(date +%s)" -lt $deadline ] || complain "$complaint"
        sleep 0.05
    done
}

picture() {
    [ -z "${LYT_PICTURES:-}" ] || import -window root "$LYT_PICTURES/$1.png"
}

# The window with that title, once it has the keyboard.
has_keyboard() {
    window=$(xdotool getactivewindow) && [ "$(xdotool getwindowname "$window")" = "$1" ] &&
        [ "$(xdotool getwindowfocus)" = "$window" ]
}
meet() { until_done "the window \"$1\" is not there, or does not get the keyboard" has_keyboard "$1"; }

# click X Y: clicks in the window that was met, at a place in the units of the descriptions.
click() {
    xdotool mousemove --window "$window" $(($1 * 7557 / 10000)) $(($2 * 10818 / 10000)) click 1
}

press() { xdotool key "$@"; }
enter() { xdotool type "$1"; }

# ---- A screen, a window manager and the form on it

for program in Xvfb openbox xdotool; do
    command -v $program >/dev/null || complain "$program is missing; scripts/install-packages check installs it"
done
: >"$folder/display"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$folder/display" 2>"$folder/screen.log" &
screen=$!
until_done "Xvfb makes no screen" test -s "$folder/display"
DISPLAY=:$(cat "$folder/display")
export DISPLAY
openbox --sm-disable >"$folder/manager.log" 2>&1 &
manager=$!
until_done "openbox does not start" xdotool get_num_desktops
"$maker" "$prefix" screen
LYT_WINEPREFIX=$prefix "$runner" "$lytcall" group >"$folder/actual" 2>&1 &
call=$!

# ---- The journey

meet "Findings of an inspection"
picture 1-opened
click 34 209              # "With pictures": its mark goes
click 356 62              # the list "Order by" drops down
press Down Return         # from the first order to the second
click 316 266             # "Catalogue..."

meet "Catalogue of the inspection"
click 80 29               # the heading "Site", which is no group
press Return
meet "lyt64"
picture 2-refused-choice
press Return
meet "Catalogue of the inspection"
press Right Right Right   # its first heading, opened, and the first group in that
picture 3-choice
press Return

meet "Findings of an inspection"
click 100 332             # the second finding
press Return
meet "A finding"
picture 4-nested
press Return
meet "lyt64"              # a severe finding needs a place
picture 5-refused
press Return
meet "A finding"
press alt+p
enter "cellar stairs"
picture 6-place
press Return

meet "Findings of an inspection"
picture 7-back
click 603 448             # OK
wait $call
call=
if [ -n "${LYT_UPDATE:-}" ]; then
    cp "$folder/actual" "$expected"
else
    diff -u "$expected" "$folder/actual"
fi
