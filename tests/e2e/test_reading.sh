#!/bin/sh
# A picture whose reader never finishes: a box shows that it is being read, Esc and the box's close button cancel at
# once and without a message, and otherwise a time limit ends it with one. The editor goes on meanwhile.
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
    brings 'Open file' ctrl+o
    enter "$1"
    until_true "the box" reading
    until_true "its keys" box_has_keys
    settled
}
reading() { [ "$(titled | wc -l)" = 2 ] && pgrep -P "$editor" >/dev/null; }
given_up() { ! pgrep -P "$editor" >/dev/null; }
refused() { # no reader any more, and the message that it can't be read
    until_true "no reader of $1" given_up
    told "$1"
}
start
begin "$scratch/endless.gif"
from=$(now)
xdotool key Escape
until_true "no reader" given_up
took=$(($(now) - from))
[ "$took" -lt 5000 ] || fail "giving up took $took ms"
until_true "the box to go" count_titled 1

begin "$scratch/endless.gif"
keys alt+F4
until_true "no reader after the box's own close" given_up
until_true "the box to go" count_titled 1

begin "$scratch/short.gif"
refused "what was left alone"

open_file "$scratch/good.bmp"
until_true "a picture that is read" documents 1
quit
