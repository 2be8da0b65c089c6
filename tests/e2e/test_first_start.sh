#!/bin/sh
# A first start in an empty folder, which is killed; the second has everything nevertheless. And the life of one picture:
# open, filter, undo, redo, save.
. "$(dirname "$0")/lib.sh"
start
for made in Stamps/Velara1.bmp Stamps/Velara8.bmp Images/Velara.bmp Vlaera.dat; do
    [ -e "$folder/$made" ] || fail "$made was not made"
done
[ -d "$folder/Temp" ] || fail "no Temp folder"
[ -s "${folder}logo.bmp" ] || fail "no logo beside the folder"
kill -KILL "$editor"
wait "$editor" 2>/dev/null || true
has_configuration() { [ "$(stat -c %s "$folder/Vlaera.dat")" = 3081 ] || fail "the configuration has a wrong length"; }
has_configuration
start

# Three quarters of the screen, with the boxes inside.
has_size() { [ "$(frame_size)" = 960x675 ]; }
until_true "the frame's size" has_size
settled
! has_window '^Select Color' || fail "a box floats at a first start"

convert -size 60x40 plasma:red-blue -depth 8 -type truecolor "$scratch/in.png"
convert "$scratch/in.png" -negate "$scratch/negative.png"
open_file "$scratch/in.png"
until_true "the first snapshot" undo_files 1
keys alt+l i
until_true "the snapshot of the filter" undo_files 2
saves "$scratch/filtered.png" "$scratch/negative.png" "the filter's picture is wrong"
keys ctrl+z
saves "$scratch/undone.bmp" "$scratch/in.png" "undo did not bring the picture back"
keys ctrl+y
saves "$scratch/redone.bmp" "$scratch/negative.png" "redo did not bring the filter back"
quit
undo_files 0 || fail "undo files are left behind"
has_configuration
for flag in 266 2324 2336 2338; do # the question before closing, two bars, the status bar
    [ "$(od -An -td2 -j$flag -N2 "$folder/Vlaera.dat" | tr -d ' ')" = -1 ] || fail "the flag at $flag is off"
done
