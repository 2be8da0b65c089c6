#!/bin/sh
# The question before a changed picture goes: cancel keeps everything, no lets go, yes asks for a name.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 gradient:red-blue "$scratch/in.bmp"
convert "$scratch/in.bmp" -negate "$scratch/negative.bmp"
start
open_file "$scratch/in.bmp"
keys alt+l i ctrl+q
until_true "the question" count_titled 2
keys Escape
until_true "the question to go" count_titled 1
running || fail "cancel let the editor end"
keys ctrl+w
until_true "the question of the document" count_titled 2
brings 'Save as' alt+y
enter "$scratch/out.bmp"
until_true "the saved file" test -s "$scratch/out.bmp"
same "$scratch/out.bmp" "$scratch/negative.bmp" || fail "what was saved is not what was seen"
open_file "$scratch/in.bmp"
keys alt+l i ctrl+q
until_true "the question at the end" count_titled 2
keys alt+n
until_true "the editor to end" gone
same "$scratch/in.bmp" "$scratch/out.bmp" && fail "the file was written without being asked" || true
