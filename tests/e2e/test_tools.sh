#!/bin/sh
# Tools chosen from the strip and dragged over the real window, and the resulting undo files.
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/painting.sh"
convert -size ${W}x$H 'xc:#ff00ff' "BMP3:$scratch/in.bmp"
open_large "$scratch/in.bmp" '#ff00ff'

# Common to all: one more step, and one undo removes it again.
back() {
    undo_files 2 || fail "more than a step: $(ls "$folder/Temp")"
    keys ctrl+z
    rm "$(step 1)"
}

tool 3 0 # Brush: 25 wide, a quarter of the colour
drag 30 24 30 24
saved 1
is 1 30 24 '255 64 255'
is 1 41 24 '255 64 255'
is 1 30 38 "$plain"
back

for at in '0 2' '1 1' '0 1' '3 1' '2 1'; do # Pencil, Airbrush, Shape, Gradient, Stamp
    tool $at
    drag 4 4 60 40
    saved 1
    cmp -s "$(step 1)" "$(step 0)" && fail "the tool at $at has painted nothing"
    back
done

# Moves queued while the editor is busy are not merged: the corner of the stroke is kept.
tool 0 2
point $(over 5 40)
press 1
settled
kill -STOP "$editor"
point $(over 20 5)
point $(over 40 40)
release 1
kill -CONT "$editor"
saved 1
is 1 20 5 "$white"
back

# A selection limits what is painted, and moves.
tool 2 0
drag 10 10 20 20
tool 4 0 # Fill
drag 15 15 15 15
saved 1
is 1 19 19 "$white"
is 1 20 20 "$plain"
is 1 9 15 "$plain"
back
tool 1 0 # SelectionMove: the outline
drag 15 15 35 25
tool 4 0
drag 35 25 35 25
saved 1
is 1 30 20 "$white"
is 1 15 15 "$plain"
back

# The right button undoes a drag, without a step.
tool 0 1
point $(over 4 4)
press 1
point $(over 40 30)
settled
press 3
release 3
settled
release 1
settled
[ ! -e "$(step 1)" ] || fail "the right button has left a step"

tool 0 0 # GetColor
drag 3 3 3 3
quit
[ "$(od -An -tx1 -j2348 -N4 "$folder/Vlaera.dat" | tr -d ' ')" = ff00ff00 ] || fail "the pipette took nothing"
