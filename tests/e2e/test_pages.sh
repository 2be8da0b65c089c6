#!/bin/sh
# The pages of a file, as a person turns them: each is a picture of its own, and SAVE takes nothing from the file unasked.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 xc:red xc:lime xc:blue "$scratch/scan.tif"
convert -size 60x40 xc:lime "$scratch/wanted.png"
cp "$scratch/scan.tif" "$scratch/before.tif"
shot() { [ -z "${E2E_SHOTS:-}" ] || screen "$E2E_SHOTS/pages_$1.png"; }
start
open_file "$scratch/scan.tif"
keys ctrl+Next
until_true "the second page" documents 2
keys ctrl+Next
until_true "the third page" documents 3
keys ctrl+Next ctrl+Prior ctrl+Prior
shot first
documents 3 || fail "a page was opened twice"
brings 'Save' ctrl+s
shot question
keys Escape
until_true "the question to go" no_window '^Save$'
cmp "$scratch/scan.tif" "$scratch/before.tif" || fail "the file was written"
keys ctrl+Next
shot second
brings 'Save as' ctrl+s
shot name
enter "$scratch/second.png"
until_true "the saved page" test -s "$scratch/second.png"
until_true "the save dialog to close" no_window '^Save as$'
same "$scratch/second.png" "$scratch/wanted.png" || fail "it is another page"
cmp "$scratch/scan.tif" "$scratch/before.tif" || fail "the file was written"
quit
