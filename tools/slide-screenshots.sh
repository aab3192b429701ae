#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Takes pictures of the slide show in its various states: starts the real program on a virtual screen (Xvfb), with
# copies of the sample photographs, and operates it with the keyboard.
#
#     tools/slide-screenshots.sh [BUILD FOLDER [OUTPUT FOLDER]]
#
# Needs the Debian packages xvfb, xdotool and imagemagick, and openbox for windows with a frame.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build/release}
output=${2:-$build/screenshots}
work=$(mktemp -d)
mkdir -p "$output"

fail() { echo "slide-screenshots.sh: $1" >&2; exit 1; }

cleanup() {
    [ -z "${program:-}" ] || kill "$program" 2>/dev/null || true
    [ -z "${manager:-}" ] || kill "$manager" 2>/dev/null || true
    [ -z "${screen:-}" ] || kill "$screen" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

[ -x "$build/bin/ovisto" ] || fail "no $build/bin/ovisto; build it first"
for tool in Xvfb xdotool import; do
    command -v $tool >/dev/null || fail "$tool is missing"
done

mkdir -p "$work/home/.config" "$work/runtime" "$work/photographs"
chmod 700 "$work/runtime"
cp "$root"/samples/{little-endian,night,no-exif,portrait}.jpg "$work/photographs"
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_RUNTIME_DIR=$work/runtime
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset DBUS_SESSION_BUS_ADDRESS QT_SCALE_FACTOR QT_QPA_PLATFORMTHEME XDG_CURRENT_DESKTOP

exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1280x800x24 >/dev/null 2>&1 &
screen=$!
sleep 1
DISPLAY=:$(head -1 "$work/display")
export DISPLAY
if command -v openbox >/dev/null; then
    openbox --sm-disable >/dev/null 2>&1 &
    manager=$!
    sleep 1
fi

# start FULLSCREEN RESIZE DETAILS: opens the options of the show from the main window; a slide lasts half a minute, so
# that only keys move the show
start() {
    printf '[Lumetra]\nControlForm="0,0,18000,12000"\nSlideForm="1500,1500,12000,9000"\n' >"$XDG_CONFIG_HOME/Castelmar.conf"
    printf 'SlideFullscreen=%s\nSlideResize=%s\nSlideDetails=%s\nSlideSecondsPer=30\n' "$1" "$2" "$3" \
        >>"$XDG_CONFIG_HOME/Castelmar.conf"
    "$build/bin/ovisto" "$work/photographs" 2>/dev/null &
    program=$!
    sleep 2
    focus '\[\*\]|little'
    key alt+l
    focus '^Slide Show$'
}

# focus TITLE: sends all following keys to the window with this title
focus() {
    sleep 0.5
    window=$(xdotool search --onlyvisible --name "$1" | tail -1)
    xdotool windowactivate "$window" 2>/dev/null || xdotool windowfocus "$window"
    sleep 0.3
}

stop() {
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
}

key() { xdotool key --delay 60 "$@"; sleep 0.5; }

# shoot NAME: takes a picture of the window with the focus, including its frame; shootAll: of the whole screen
shoot() { sleep 0.5; import -frame -window "$window" "$output/$1.png"; echo "$output/$1.png"; }
shootAll() { sleep 0.5; import -window root "$output/$1.png"; echo "$output/$1.png"; }

start 0 1 1
shoot slides-options
key Return
focus '^little-endian'
shoot slides-window
key space
shoot slides-window-paused
rm "$work/photographs/night.jpg"
key Right
shoot slides-missing
key F1
shootAll slides-hint
stop
cp "$root/samples/night.jpg" "$work/photographs"

start 1 1 1
key Return
focus '^ovisto$|^Ovisto$|^$' || true
sleep 2.5
shootAll slides-screen
key Right Right Right
shootAll slides-screen-portrait
key space
shootAll slides-screen-paused
stop

start 1 1 0
key Return
sleep 1
key space
shootAll slides-screen-paused-without-details
stop

start 0 0 1
key Return
focus '^little-endian'
xdotool windowsize "$window" 500 400
key ctrl+Right ctrl+Down ctrl+Down
shoot slides-own-size
stop
