#!/bin/bash
# SPDX-License-Identifier: MIT
# Takes pictures of the window in its various states: starts the real program on a virtual screen (Xvfb), with copies of
# the sample photographs, and operates it with mouse and keys.
#
#     tools/screenshots.sh [BUILD FOLDER [OUTPUT FOLDER]]
#
# Without an output folder, they go to the folder screenshots of the build, and those that are in README.md or the handbook
# take the place of the present ones. It does not take find-files.png; slide-screenshots.sh takes those of the slide show.
#
# Needs the Debian packages xvfb, xdotool and imagemagick.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build/release}
output=${2:-$build/screenshots}
photographs=/tmp/Photographs # the pictures show this path
portable=/tmp/Ovisto         # and this one, where the program's own files are chosen
work=$(mktemp -d)
mkdir -p "$output/handbook"

fail() { echo "screenshots.sh: $1" >&2; exit 1; }

cleanup() {
    [ -z "${program:-}" ] || kill "$program" 2>/dev/null || true
    [ -z "${screen:-}" ] || kill "$screen" 2>/dev/null || true
    rm -rf "$work" "$photographs" "$portable"
}
for folder in "$photographs" "$portable"; do
    [ ! -e "$folder" ] || fail "$folder is in the way"
done
unset folder
trap cleanup EXIT

[ -x "$build/bin/ovisto" ] || fail "no $build/bin/ovisto; build it first"
for tool in Xvfb xdotool import convert; do
    command -v $tool >/dev/null || fail "$tool is missing"
done

mkdir -p "$work/home/.config" "$work/runtime" "$photographs"
chmod 700 "$work/runtime"
mkdir "$portable"
cp -r "$root/data/." "$build/bin/ovisto" "$portable"
cp "$root"/samples/{little-endian,night,portrait,xmp}.jpg "$photographs"
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_RUNTIME_DIR=$work/runtime
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset DBUS_SESSION_BUS_ADDRESS QT_SCALE_FACTOR QT_QPA_PLATFORMTHEME XDG_CURRENT_DESKTOP

exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 3840x2160x24 >/dev/null 2>&1 &
screen=$!
sleep 1
DISPLAY=:$(head -1 "$work/display")
export DISPLAY

# start PLACEMENT [ARGUMENT...]: starts the program with its window at a place given in twips, 15 per pixel
start() {
    printf '[Lumetra]\nControlForm="%s"\nFolder="%s"\nSearchWords="%s"\n' "$1" "${folder:-$photographs}" "${words:-}" \
        >"$XDG_CONFIG_HOME/Castelmar.conf"
    shift
    "$portable/ovisto" "$@" 2>/dev/null &
    program=$!
    sleep 2
    window=$(windows | tail -1)
    xdotool windowfocus "$window"
    sleep 0.5
}

stop() {
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
}

# windows: the windows that the program shows, the smallest first; the largest is the main window
windows() {
    local id
    for id in $(xdotool search --onlyvisible --pid "$program" 2>/dev/null); do
        eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
        echo $((WIDTH * HEIGHT)) "$id"
    done | sort -n | cut -d' ' -f2
}

# front: the window in front, a dialog if there is one
front() { windows | head -1; }

# shoot NAME: takes a picture of the main window and whatever is in front of it
shoot() {
    sleep 0.5
    eval "$(xdotool getwindowgeometry --shell "$window")"
    import -window root -crop "${WIDTH}x${HEIGHT}+$X+$Y" +repage "$work/shot.png"
    convert "$work/shot.png" -colors 256 "PNG8:$output/$1.png"
    echo "$output/$1.png"
}

# cut_out NAME GEOMETRY: makes a picture of a part of the one that was taken last
cut_out() { convert "$work/shot.png" -crop "$2" +repage -colors 256 "PNG8:$output/$1.png"; }

# shoot_dialog NAME: takes a picture of the window in front alone
shoot_dialog() {
    sleep 0.5
    eval "$(xdotool getwindowgeometry --shell "$(front)")"
    import -window root -crop "${WIDTH}x${HEIGHT}+$X+$Y" +repage "$work/dialog.png"
    convert "$work/dialog.png" -colors 256 "PNG8:$output/$1.png"
}

# click X Y: clicks at a place in the window, counted from the right or lower edge if negative
click() {
    eval "$(xdotool getwindowgeometry --shell "$window")"
    local x=$1 y=$2
    [ "$x" -ge 0 ] || x=$((WIDTH + x))
    [ "$y" -ge 0 ] || y=$((HEIGHT + y))
    xdotool mousemove $((X + x)) $((Y + y)) click 1
    sleep 0.3
}

key() { xdotool key --delay 60 "$@"; sleep 0.3; }

small=0,0,11655,8505
large=0,0,18000,12000

# The empty window, after its message was answered.
mkdir "$work/empty"
start $large "$work/empty"
xdotool windowfocus "$(front)"; key Return
shoot empty
stop

# The smallest size with room for everything.
start $small "$photographs"
shoot smallest
stop

# A file, its properties, and its values in all their forms. Opening a file gives the tree the focus.
start $large "$photographs"
key Down Down
shoot file
click -100 -250
key ctrl+a
xdotool type --delay 30 "Mountain lake at dawn"
key Tab
shoot editing
cut_out handbook/editing 404x780+796+20
key alt+a
xdotool windowfocus "$(front)"; key Down Down Down
shoot add-node
shoot_dialog handbook/add-node
key Escape
xdotool windowfocus "$window"
click -150 100
key End
shoot hex
cut_out handbook/hex 404x215+796+390
click -110 -377
shoot thumbnail
cut_out handbook/thumbnail 404x370+796+390
key alt+i Down Return
sleep 1
shoot properties
xdotool windowfocus "$(front)"; key Escape
xdotool windowfocus "$window"; key alt+h; key alt+i Right Return
xdotool windowfocus "$(front)"; key alt+s
shoot about
stop

# The folder chooser, without the main window and in front of it.
mkdir "$photographs"/{1985..2025}
folder=$photographs/2005 words="lake, mountain" start $large
shoot choose-first
stop
folder=$photographs/2005 words="no photograph has this" start $large "$photographs"
click 150 42
sleep 0.5
shoot choose
# A scan of many photographs, which takes a while.
rmdir "$photographs"/{1985..2025}
mkdir "$photographs/Archive"
for ((i = 10000; i < 40000; ++i)); do ln "$photographs/night.jpg" "$photographs/Archive/night $i.jpg"; done
xdotool windowfocus "$(front)"; key shift+Tab shift+Tab shift+Tab shift+Tab
xdotool type --delay 10 "$photographs/Archive"
key Return
shoot progress
xdotool windowfocus "$(front)"; key Escape
sleep 1
shoot nothing-found
stop
rm -r "$photographs/Archive"

# One change to all photographs, and a report on them.
start $large "$photographs"
key alt+b
xdotool windowfocus "$(front)"; key Down Down Down Down
shoot batch
xdotool type --delay 30 Art
key Tab Tab
xdotool type --delay 30 "Maren Tolvik"
shoot_dialog handbook/batch
key Escape
xdotool windowfocus "$window"; key alt+f g
shoot open-report
stop

# A value that cannot be saved.
start $large "$photographs"
key Down Down Down Down Down
click -100 -250
key ctrl+a
xdotool type --delay 30 abc
key ctrl+s
shoot_dialog handbook/message
stop

# A dark palette, as set by a desktop.
cat >"$XDG_CONFIG_HOME/kdeglobals" <<'PALETTE'
[KDE]
widgetStyle=Fusion
[Colors:Window]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
[Colors:View]
BackgroundNormal=35,38,41
BackgroundAlternate=49,54,59
ForegroundNormal=239,240,241
[Colors:Button]
BackgroundNormal=64,70,76
ForegroundNormal=239,240,241
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
PALETTE
export XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 KDE_FULL_SESSION=true
start $large "$photographs/night.jpg"
key Down Down
click -100 -250
key ctrl+a
xdotool type --delay 30 "The harbour by night"
key Tab
shoot dark
stop
unset XDG_CURRENT_DESKTOP KDE_SESSION_VERSION KDE_FULL_SESSION
rm "$XDG_CONFIG_HOME/kdeglobals"

# A screen of high resolution, and a large one.
QT_SCALE_FACTOR=2 start $small "$photographs/portrait.jpg"
shoot scaled
stop
start 0,0,57600,32400 "$photographs"
key Down Down
shoot large
stop

if [ $# -lt 2 ]; then
    cp "$output/file.png" "$root/docs/images"
    cp "$output/file.png" "$root/data/help/images/window.png"
    cp "$output"/handbook/*.png "$root/data/help/images"
fi
