#!/bin/sh
# Icons with a real mouse: cut out of a capture of another program's window.
. "$(dirname "$0")/lib.sh"

convert -size 200x120 gradient:red-blue "$scratch/gradient.png"
display -geometry +700+500 "$scratch/gradient.png" >/dev/null 2>&1 &
pids="$pids $!"
until_true "the other program's window" has_window 'gradient.png'
start
other=$(xdotool search --onlyvisible --name 'gradient.png' | head -1)

# No document: the lower half works. The window behind the frame is captured.
brings 'Extract Icon' alt+t o
brings 'Icon Maker' b alt+g
no_window '^Velara Studio' || fail "the frame stands in the way"
settled
import -window root "$scratch/screen.png"
stroke 400 300 600 450 760 560
keys Return minus Right shift+Down Return
[ ! -e "$folder/1Velara.ico" ] || fail "it is saved too early"
keys Escape
until_true "the extractor again" has_window '^Extract Icon$'
until_true "the frame" has_window '^Velara Studio'
[ "$(xdotool getactivewindow getwindowname)" = 'Extract Icon' ] || fail "another window has the keys"
xdotool search --onlyvisible --name 'gradient.png' | grep -qx "$other" || fail "the other program's window has not come back"

mkdir "$scratch/icons"
keys alt+e
xdotool type --delay 4 "$scratch/icons"
keys alt+v
told "the saved icons"
cut() { convert "$scratch/screen.png" -crop "$2" +repage "$scratch/cut.png" && same "$scratch/icons/$1.ico" "$scratch/cut.png" || fail "$1 is another part of the screen"; }
cut 1Velara 32x32+744+544
cut 2Velara 16x16+753+562
[ "$(ls "$scratch/icons")" = "$(printf '1Velara.ico\n2Velara.ico')" ] || fail "the folder has $(ls "$scratch/icons")"
keys Escape
until_true "the extractor to go" no_window '^Extract Icon$'
quit
