#!/bin/sh
# The memory needed by a document of 24 megapixels: idle, and at the peak of a filter.
. "$(dirname "$0")/lib.sh"
if grep -q __asan_init "$bin/velara-studio"; then
    echo "Skipped: the sanitizer's own memory would be counted"
    exit 0
fi
convert -size 6000x4000 gradient:red-blue "BMP3:$scratch/in.bmp"
picture=$((6004 * 4004 * 4 / 1024)) # kB
start
memory() { awk -v key="$1:" '$1 == key { print $2 }' "/proc/$editor/status"; }
empty=$(memory VmRSS)
open_file "$scratch/in.bmp"
until_true "the first snapshot" test -s "$folder/Temp/b000100.dat"
at_rest() { resting=$(($(memory VmRSS) - empty)) && [ $((resting * 10)) -le $((picture * 22)) ]; }
until_true "at most 2.2 times the picture's $picture kB at rest" at_rest

echo 5 >"/proc/$editor/clear_refs" # the peak counts from here
keys alt+l i # Invert
until_true "the filter's undo step" test -s "$folder/Temp/b000101.dat"
settled
peak=$(($(memory VmHWM) - empty))
[ "$peak" -le $((picture * 4)) ] || fail "while a filter ran $peak kB for a picture of $picture kB"
echo "at rest $((resting * 100 / picture)) hundredths of the picture, at most $((peak * 100 / picture)) while a filter ran"
keys ctrl+z # back at the first step, the close asks nothing
quit
