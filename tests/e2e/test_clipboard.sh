#!/bin/sh
# Pictures that other programs put on the clipboard: whole, in a large one's pieces, and from one that is silent.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 plasma:red-blue -depth 8 -type truecolor "$scratch/in.png"
convert -size 1500x1200 plasma:red-blue -type truecolor "$scratch/in.bmp" # comes in pieces
start
count=0
for kind in png bmp; do
    offer image/$kind "$scratch/in.$kind"
    keys alt+e f
    count=$((count + 1))
    until_true "the picture as $kind" documents $count
    saves "$scratch/out_$kind.bmp" "$scratch/in.$kind" "a picture of the clipboard as $kind"
done

offer image/png "$scratch/in.png"
kill -STOP "$owner"
before=$(date +%s%N)
keys alt+e f ctrl+q
until_true "the editor to end" gone
took=$((($(date +%s%N) - before) / 1000000))
kill -CONT "$owner"
wait "$editor" || fail "the editor ended with $?"
[ "$took" -lt 20000 ] || fail "a silent owner cost $took ms"
