#!/bin/sh
# The question before a changed picture is closed: cancel keeps everything, no discards, yes saves. Signals ask it, too, and
# if nobody answers the program ends and keeps the undo files.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 gradient:red-blue "$scratch/in.bmp"
convert "$scratch/in.bmp" -negate "$scratch/negative.bmp"
cp "$scratch/in.bmp" "$scratch/own.bmp"
asks() {
    until_true "the question $1" count_titled 2
    sleep 0.3
}
cancels() {
    keys Escape
    until_true "the question to go" count_titled 1
    running || fail "cancel let the editor end"
}
start
open_file "$scratch/own.bmp"
keys alt+l i ctrl+q
asks "of the frame"
cancels
keys ctrl+w
asks "of the document"
keys alt+y
until_true "the document to close" undo_files 0
same "$scratch/own.bmp" "$scratch/negative.bmp" || fail "yes did not save in the picture's own file"

open_file "$scratch/own.bmp"
keys alt+e n # a copy, which is nowhere else
until_true "the copy" documents 2
keys ctrl+w
asks "of the copy"
brings 'Save as' alt+y
keys Escape
until_true "the dialog to close" no_window '^Save as$'
documents 2 || fail "a save that was cancelled let the copy go"
keys ctrl+w
asks "of the copy"
brings 'Save as' alt+y
enter "$scratch/out.bmp"
until_true "the copy to close" documents 1
same "$scratch/out.bmp" "$scratch/negative.bmp" || fail "what was saved is not what was seen"

keys alt+l i
until_true "the filter" undo_files 2
for signal in TERM HUP; do # INT is what a shell has its background programs ignore
    kill -s $signal "$editor"
    asks "after $signal"
    kill -s $signal "$editor"
    sleep 0.3
    count_titled 2 || fail "a second $signal asked again, or ended the question"
    cancels
done
kill -TERM "$editor"
asks "that nobody answers"
until_true "the end without an answer" gone
undo_files 2 || fail "the undo files are gone with it"

# The next start has it.
launch
offered() { main=$(frame) && [ -n "$main" ] && has_keys '^Recover Pictures$'; }
until_true "the offer" offered
keys alt+r
shows_own() { frame_title | grep -q own.bmp; }
until_true "the picture" shows_own
until_true "the frame's keys" frame_has_keys
undo_files 2 || fail "the steps did not come with it"
keys alt+l i ctrl+q
asks "at the end"
keys alt+n
until_true "the editor to end" gone
same "$scratch/in.bmp" "$scratch/out.bmp" && fail "the file was written without being asked" || true
