#!/bin/sh
# What the editor stands on goes away: the bus, the programs beside it, the room on the disk, the language. What is open stays,
# what can't be done is told, and nothing is lost.
. "$(dirname "$0")/lib.sh"
shot() { [ -z "${E2E_SHOTS:-}" ] || screen "$E2E_SHOTS/surroundings_$1.png"; }
convert -size 60x40 gradient:red-blue -depth 8 -type truecolor "$scratch/in.bmp"
convert "$scratch/in.bmp" -negate "$scratch/negative.bmp"

# A bus that dies, in a language that isn't installed
dbus-daemon --session --nofork --print-address=3 3>"$scratch/bus" 2>/dev/null &
bus=$!
pids="$pids $bus"
until_true "a bus" test -s "$scratch/bus"
no_bus=$DBUS_SESSION_BUS_ADDRESS
DBUS_SESSION_BUS_ADDRESS=$(cat "$scratch/bus") LC_ALL=xx_YY.UTF-8 LANGUAGE=xx
export DBUS_SESSION_BUS_ADDRESS LC_ALL LANGUAGE
start
unset LC_ALL LANGUAGE
open_file "$scratch/in.bmp"
keys alt+l i
until_true "the filter" undo_files 2
kill -KILL "$bus"
wait "$bus" 2>/dev/null || true
settled
running || fail "the editor ended with its bus"
saves "$scratch/out.bmp" "$scratch/negative.bmp" "the picture after the bus died"
export DBUS_SESSION_BUS_ADDRESS=$no_bus
"$bin/velara-open" "$scratch/negative.bmp" || fail "nothing opens without the bus"
until_true "the picture opened without the bus" documents 2

# The programs are removed, as when a package is: what is open can be changed and saved, what can't be opened is told.
mkdir "$scratch/away"
cp "$folder"/velara-* "$scratch/away/"
rm "$folder"/velara-*
keys alt+l i
until_true "a filter without the programs" undo_files 4
saves "$scratch/removed.bmp" "$scratch/in.bmp" "the picture without the programs"
brings 'Open file' ctrl+o
enter "$scratch/in.bmp"
told "the missing reader"
cp "$scratch/away"/velara-* "$folder/"
open_file "$scratch/in.bmp"
until_true "a picture with the programs back" documents 3
quit

# A disk without room, where one can be made: told at the save, and nothing is left there; the picture stays.
mkdir "$scratch/tiny"
mount -t tmpfs -o size=4m tiny "$scratch/tiny" 2>/dev/null || exit 0
unmount() {
    ended=$?
    umount -l "$scratch/tiny"
    return $ended
}
trap 'unmount; finish' EXIT
start
open_file "$scratch/in.bmp"
head -c 8m /dev/zero >"$scratch/tiny/full" 2>/dev/null || true
keys alt+l i
until_true "the filter" undo_files 2
brings 'Save as' ctrl+shift+s
enter "$scratch/tiny/out.bmp"
until_true "the message about the full disk" has_keys '^Internal Error$'
shot full
keys Return
until_true "the message to go" no_window '^Internal Error$'
[ ! -e "$scratch/tiny/out.bmp" ] || fail "half a file is left"
saves "$scratch/kept.bmp" "$scratch/negative.bmp" "the picture after the disk was full"
quit
