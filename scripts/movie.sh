#!/bin/bash
# Makes the moving picture of the README: movie.sh BIN OUTPUT.webp. The editor runs on a virtual screen and is used by mouse and
# keys; frames are taken of the screen, and the pointer is drawn into them.
set -eu
out=$(realpath "$2")
E2E_SCREEN=1000x640
. "$(dirname "$0")/../tests/e2e/lib.sh"
frames=${FRAMES:-$scratch/frames} # where they are left, if it is given
mkdir -p "$frames"
count=0
list="" # of img2webp: how long, and which

# shot MILLISECONDS: a frame, and how long it is seen
shot() {
    settled
    sleep 0.3 # for what is drawn after the last event: previews, the caret
    count=$((count + 1))
    name=$frames/$(printf %03d $count).png
    eval "$(xdotool getmouselocation --shell | grep -E '^[XY]=')"
    import -window root "$name"
    arrow="path 'M $X,$Y l 0,17 l 4,-4 l 3,7 l 3,-1 l -3,-7 l 6,0 Z'"
    convert "$name" -fill black -stroke white -strokewidth 1 -draw "$arrow" "$name"
    list="$list -d $1 $name"
}
# glide X Y: the pointer goes there in a few frames
glide() {
    eval "$(xdotool getmouselocation --shell | grep -E '^[XY]=')"
    fromX=$X fromY=$Y
    for part in 1 2 3 4; do
        xdotool mousemove $((fromX + ($1 - fromX) * part / 4)) $((fromY + ($2 - fromY) * part / 4))
        shot 80
    done
}
# run LETTERS...: finds a command by a few letters and takes it
run() {
    keys ctrl+shift+p
    until_true "the search" has_window 'Find a Command'
    for letters in "$@"; do
        xdotool type "$letters"
        shot 150
    done
    shot 900
    keys Return
    until_true "the search to close" no_window 'Find a Command'
}

# Whether there are so many states on the disk
changes() { [ "$(find "$folder/Temp" -name 'b*.dat' | wc -l)" -ge "$1" ]; }

start_plain maximized
xdotool windowsize --sync "$(frame)" 1000 640 windowmove "$(frame)" 0 0
open_file "$folder/Images/Velara.bmp"
keys ctrl+w
xdotool mousemove 700 500
shot 1200

# The recent picture of the start page
glide 282 250
touch "$scratch/asked"
xdotool click --repeat 2 --delay 60 1
until_true "the picture" opened
shot 1400

# The boat alone keeps its colors
keys s
shot 700
glide 596 272
xdotool mousedown 1
for step in 1 2 3 4 5 6; do
    xdotool mousemove $((596 + 28 * step)) $((272 + 24 * step))
    shot 90
done
xdotool mouseup 1
shot 900
keys ctrl+i
shot 900
run gr ey sc
until_true "the change" changes 2
shot 1800
keys ctrl+shift+a

# A filter with its preview
run lens
until_true "the filter" has_window 'Lens'
shot 1200
glide 240 274 # the boat in the picture before
xdotool click 1
shot 2200
keys Return
until_true "the filter to close" no_window 'Lens'
shot 1600

# Back
keys ctrl+h
shot 1600
keys ctrl+z
shot 1000
keys ctrl+z
shot 1600
# shellcheck disable=SC2086 # a list of words
img2webp -loop 0 -lossy -q 60 -m 6 $list -o "$out" >/dev/null
