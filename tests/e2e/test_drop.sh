#!/bin/sh
# Files dragged from another program onto the frame: the kinds that are taken open in order, others are passed over.
. "$(dirname "$0")/lib.sh"
for name in a.bmp b.png c.jpg d.gif; do convert -size 60x40 gradient:red-blue "$scratch/$name"; done
start
xdotool windowmove --sync "$(frame)" 500 100
"$bin/drag_source" "$scratch/a.bmp" "$scratch/b.png" "$scratch/c.jpg" "$scratch/d.gif" >"$scratch/drag.log" 2>&1 &
pids="$pids $!"
until_true "the source" has_window '^drag source$'
source=$(xdotool search --onlyvisible --name '^drag source$')
xdotool windowmove --sync "$source" 10 10
sleep 0.3
xdotool mousemove --window "$source" 40 40 mousedown 1
for x in 60 200 500 700 800 900 905; do
    xdotool mousemove $x 400
    sleep 0.05
done
sleep 0.2
xdotool mouseup 1
snapshots() { [ "$(find "$folder/Temp" -name 'b*.dat' | wc -l)" = "$1" ]; }
until_true "three documents" snapshots 3
sleep 0.3
snapshots 3 || fail "a file was opened that is not taken"
xdotool windowactivate --sync "$(frame)"
quit
