#!/bin/sh
# A picture whose reader never comes to an end: a box shows that it is being read, Esc and the box's own close give it up
# at once, and left alone it ends by itself. The editor lives on in each case.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 plasma:red-blue -type truecolor "$scratch/good.bmp"
convert "$scratch/good.bmp" "$scratch/endless.gif"
head -c 3000000 /dev/zero >>"$scratch/endless.gif" # a large file may take longer
cp "$scratch/endless.gif" "$scratch/short.gif"
truncate -s 2000 "$scratch/short.gif"
mv "$folder/velara-decode" "$folder/reader"
cat >"$folder/velara-decode" <<'READER'
#!/bin/sh
while [ "$1" = gif ]; do :; done
exec "${0%/*}/reader" "$@"
READER
chmod +x "$folder/velara-decode"

now() { echo $(($(date +%s%N) / 1000000)); }
begin() {
    keys ctrl+o
    until_true "the open dialog" has_window '^Open file$'
    sleep 0.2
    xdotool type --delay 4 "$1"
    xdotool key Return
}
reading() { [ "$(titled | wc -l)" = 2 ] && pgrep -P "$editor" >/dev/null; }
given_up() { ! pgrep -P "$editor" >/dev/null; }
told() { # the message that it can't be read, and no reader any more
    until_true "$1: no reader" given_up
    until_true "$1: the message" count_titled 2
    keys Return
    until_true "$1: the message to go" count_titled 1
}
start
begin "$scratch/endless.gif"
until_true "the box" reading
sleep 0.3
from=$(now)
xdotool key Escape
until_true "no reader" given_up
took=$(($(now) - from))
[ "$took" -lt 1000 ] || fail "giving up took $took ms"
told "given up by Esc"

begin "$scratch/endless.gif"
until_true "the box" reading
sleep 0.3
keys alt+F4
told "given up by closing the box"

from=$(now)
begin "$scratch/short.gif"
until_true "the box" reading
told "left alone"

open_file "$scratch/good.bmp"
until_true "a picture that is read" sh -c "ls '$folder/Temp'/b*00.dat"
quit
