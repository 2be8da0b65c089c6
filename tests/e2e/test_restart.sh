#!/bin/sh
# What a second start remembers: position, size, bars, the recent list, the configuration; and a second instance beside the first.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 gradient:red-blue "$scratch/in.bmp"
start
xdotool windowsize --sync "$(frame)" 900 640 windowmove --sync "$(frame)" 130 90
settled
keys alt+v b e # hides the Effects bar
open_file "$scratch/in.bmp"
size() { xdotool getwindowgeometry --shell "$(frame)" | grep -E '^(X|Y|WIDTH|HEIGHT)' | tr '\n' ' '; }
before=$(size)
quit
flag() { od -An -td2 -j2326 -N2 "$folder/Vlaera.dat" | tr -d ' '; }
[ "$(flag)" = 0 ] || fail "the hidden bar is not remembered: $(flag)"

start
[ "$(size)" = "$before" ] || fail "place and size were $before, are $(size)"
keys alt+f r Return
until_true "the recent picture" undo_files 1

first=$editor
(cd "$folder" && exec ./velara-studio) >"$scratch/log2" 2>&1 &
second=$!
pids="$pids $second"
editor=$second
until_true "the message" count_titled 1 # the frame comes after it
main=$(frame)
until_true "its keys" frame_has_keys
width() { xdotool getwindowgeometry --shell "$(frame)" | sed -n 's/WIDTH=//p'; }
[ "$(width)" -lt 600 ] || fail "no message of the second instance"
keys Return
wide() { [ "$(width)" -ge 600 ]; }
until_true "the second frame" wide
main=$(frame)
until_true "its keys" frame_has_keys
settled
kill -0 "$first" || fail "the first instance went"
quit
