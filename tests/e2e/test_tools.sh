#!/bin/sh
# Every mouse tool, taken from the strip and dragged over the real window: what the undo file holds afterwards.
. "$(dirname "$0")/lib.sh"

W=64 H=48 zoom=4
convert -size ${W}x$H 'xc:#ff00ff' "BMP3:$scratch/in.bmp"

# A configuration with a frame of known size, no bars, no boxes and maximized pictures: the strip and the picture lie still.
start
quit
patch_config() { printf "$2" | dd of="$folder/Vlaera.dat" bs=1 seek="$1" conv=notrunc 2>/dev/null; }
patch_config 0 '\274\064\004\051'                                     # 900 x 700 pixels in twips
patch_config 6 '\377\377'                                             # pictures maximized
patch_config 2318 '\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0'  # no boxes over the picture, no bars
start
open_file "$scratch/in.bmp"
keys ctrl+plus ctrl+plus ctrl+plus
xdotool mousemove 600 20
sleep 0.5

# The picture on the screen: the box of its colour.
import -window root "$scratch/screen.png"
box=$(convert "$scratch/screen.png" -fill black +opaque '#ff00ff' -format '%@' info:)
[ "${box%%+*}" = $((W * zoom))x$((H * zoom)) ] || fail "the picture is $box on the screen"
left=$(echo "$box" | cut -d+ -f2) top=$(echo "$box" | cut -d+ -f3)
over() { echo $((left + $1 * zoom + zoom / 2)) $((top + $2 * zoom + zoom / 2)); }

# tool COLUMN ROW: presses a button of the strip
tool() {
    xdotool mousemove --window "$(frame)" $((24 + $1 * 34)) $((40 + $2 * 31)) click 1
    sleep 0.15
}
# drag X1 Y1 X2 Y2, in picture pixels
drag() {
    xdotool mousemove $(over "$1" "$2") mousedown 1
    sleep 0.05
    xdotool mousemove $(over $((($1 + $3) / 2)) $((($2 + $4) / 2)))
    sleep 0.05
    xdotool mousemove $(over "$3" "$4")
    sleep 0.05
    xdotool mouseup 1
    sleep 0.25
}
step=$folder/Temp/b000101.dat
# pixel X Y of the step: blue green red
pixel() { od -An -tu1 -j $((40 + (($2 + 2) * (W + 4) + $1 + 2) * 4)) -N 3 "$step" | tr -s ' ' | sed 's/^ //'; }
green() { pixel "$1" "$2" | cut -d' ' -f2; }
is() { [ "$(pixel "$1" "$2")" = "$3" ] || fail "$4: at $1,$2 wanted $3, got $(pixel "$1" "$2")"; }
between() { [ "$(green "$1" "$2")" -ge "$3" ] && [ "$(green "$1" "$2")" -le "$4" ] || fail "$5: green at $1,$2 is $(green "$1" "$2")"; }
plain='255 0 255' white='255 255 255'
# What is common to all: one step more, and one undo takes it away again.
one_step() {
    until_true "$1 to leave one undo step" test -s "$step"
    [ "$(find "$folder/Temp" -name 'b*.dat' | wc -l)" = 2 ] || fail "$1: $(ls "$folder/Temp")"
}
back() {
    keys ctrl+z
    sleep 0.2
    rm "$step"
}

tool 0 2 # Pencil
drag 5 5 25 5
one_step Pencil
between 15 5 120 255 Pencil
is 15 20 "$plain" Pencil
back

tool 3 0 # Brush: 25 wide, a quarter of the colour
drag 30 24 30 24
one_step Brush
is 30 24 '255 64 255' Brush
is 41 24 '255 64 255' Brush
is 30 38 "$plain" Brush
back

tool 1 1 # Airbrush: 75 wide, most in the middle
drag 32 24 34 24
one_step Airbrush
between 32 24 40 255 Airbrush
back

tool 0 1 # Shape: a line
drag 4 4 60 40
one_step Shape
between 32 22 100 255 Shape
is 50 5 "$plain" Shape
back

tool 4 0 # Fill
drag 10 10 10 10
one_step Fill
is 63 47 "$white" Fill
back

tool 3 1 # Gradient: white to black, by half
drag 0 24 63 24
one_step Gradient
between 0 24 120 130 Gradient
between 63 24 0 8 Gradient
back

tool 2 1 # Stamp
drag 32 24 32 24
one_step Stamp
is 0 0 "$plain" Stamp
cmp -s "$step" "$folder/Temp/b000100.dat" && fail "Stamp: nothing was laid down"
back

# A selection limits what is painted, and moves.
tool 2 0
drag 10 10 20 20
tool 4 0
drag 15 15 15 15
one_step "Fill in a selection"
is 19 19 "$white" "Fill in a selection"
is 20 20 "$plain" "Fill in a selection"
is 9 15 "$plain" "Fill in a selection"
back
tool 1 0 # SelectionMove: the outline
drag 15 15 35 25
tool 4 0
drag 35 25 35 25
one_step "Fill in the moved selection"
is 30 20 "$white" "Fill in the moved selection"
is 15 15 "$plain" "Fill in the moved selection"
back

# The right button takes a drag back, and no step is taken.
tool 0 1
xdotool mousemove $(over 4 4) mousedown 1 mousemove $(over 40 30)
sleep 0.1
xdotool mousedown 3 mouseup 3
sleep 0.2
xdotool mouseup 1
sleep 0.3

tool 0 0 # GetColor
drag 3 3 3 3
quit
[ "$(od -An -tx1 -j2348 -N4 "$folder/Vlaera.dat" | tr -d ' ')" = ff00ff00 ] || fail "the pipette took nothing"
