#!/bin/sh
# Pictures that other programs put on the clipboard: whole, in a large one's pieces, and from one that is silent.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 plasma:red-blue -type truecolor "$scratch/in.bmp"
convert "$scratch/in.bmp" "$scratch/in.png"
convert -size 1500x1200 plasma:red-blue -type truecolor "$scratch/large.bmp" # comes in pieces
start
offer image/png "$scratch/in.png"
keys alt+e f
sleep 0.5
save_as "$scratch/out.bmp"
same "$scratch/in.bmp" "$scratch/out.bmp" || fail "a PNG from the clipboard"

offer image/bmp "$scratch/large.bmp"
keys alt+e f
sleep 1
save_as "$scratch/large_out.bmp"
same "$scratch/large.bmp" "$scratch/large_out.bmp" || fail "a large BMP from the clipboard"

offer image/png "$scratch/in.png"
kill -STOP "$owner"
before=$(date +%s%N)
keys alt+e f ctrl+q
until_true "the editor to end" gone
took=$((($(date +%s%N) - before) / 1000000))
kill -CONT "$owner"
wait "$editor" || fail "the editor ended with $?"
[ "$took" -lt 3500 ] || fail "a silent owner cost $took ms"
