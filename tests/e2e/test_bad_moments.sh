#!/bin/sh
# Bad moments: broken files, the Temp folder deleted, the frame closed while a filter runs, a garbage configuration.
. "$(dirname "$0")/lib.sh"

# A configuration of zeros, then of noise: the frame appears, in a usable size.
zeros() { head -c "$1" /dev/zero; }
for source in zeros noise; do
    $source 3081 >"$folder/Vlaera.dat"
    start
    width=$(xdotool getwindowgeometry --shell "$(frame)" | sed -n 's/WIDTH=//p')
    [ "$width" -ge 320 ] || fail "a frame of $width pixels from $source"
    quit
done
rm "$folder/Vlaera.dat"

# A file that isn't a picture
start
echo "no picture" >"$scratch/bad.gif"
open_file "$scratch/bad.gif"
told "the file"

# Temp deleted: the filter still works, and undo has the later steps
convert -size 60x40 plasma:red-blue -type truecolor "$scratch/in.bmp"
convert "$scratch/in.bmp" -negate "$scratch/negative.bmp"
open_file "$scratch/in.bmp"
rm -r "$folder/Temp"
keys alt+l i
until_true "the folder to come back" test -d "$folder/Temp"
saves "$scratch/out.bmp" "$scratch/negative.bmp" "the filter without its Temp folder"
keys alt+l i ctrl+z
saves "$scratch/undone.bmp" "$scratch/negative.bmp" "undo after the folder came back"

# The frame closed while a filter runs
convert -size 4000x3000 gradient:red-blue "$scratch/large.bmp"
open_file "$scratch/large.bmp"
until_true "the large picture" sh -c "[ \$(find '$folder/Temp' -name 'b*.dat' -size +40000k | wc -l) = 1 ]"
for key in alt+l p alt+F4; do xdotool key $key; done
ended_or_asks() { gone || box_has_keys; }
until_true "the editor to end" ended_or_asks
if running; then xdotool key alt+n; fi # a filter that was quicker than the keys has changed the picture
until_true "the editor to end" gone
wait "$editor" || fail "the editor ended with $?"
undo_files 0 || fail "undo files are left behind"
