#!/bin/sh
# Icons with a real mouse: cut out of a capture of another program's window, and made of a picture with a mask colour.
. "$(dirname "$0")/lib.sh"
unset XDG_CURRENT_DESKTOP || true
export DBUS_SESSION_BUS_ADDRESS=unix:path=$scratch/no-bus

convert -size 200x120 gradient:red-blue "$scratch/gradient.png"
display -geometry +700+500 "$scratch/gradient.png" >/dev/null 2>&1 &
pids="$pids $!"
until_true "the other program's window" has_window 'gradient.png'
start
sleep 0.3
other=$(xdotool search --onlyvisible --name 'gradient.png' | head -1)

# No document: the lower half works. What stands behind the frame is captured.
keys alt+t o
until_true "the extractor" has_window '^Extract Icon$'
keys b alt+g
until_true "the icon maker" has_window '^Icon Maker$'
no_window '^Velara Studio' || fail "the frame stands in the way"
sleep 0.5
import -window root "$scratch/screen.png"
xdotool mousemove 400 300 mousedown 1
sleep 0.1
xdotool mousemove 600 450
sleep 0.1
xdotool mousemove 760 560
sleep 0.1
xdotool mouseup 1
sleep 0.1
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
until_true "the message" has_window '^Velara Studio$'
keys Return
cut() { convert "$scratch/screen.png" -crop "$2" +repage "$scratch/cut.png" && same "$scratch/icons/$1.ico" "$scratch/cut.png" || fail "$1 is another part of the screen"; }
cut 1Velara 32x32+744+544
cut 2Velara 16x16+753+562
[ "$(ls "$scratch/icons")" = "$(printf '1Velara.ico\n2Velara.ico')" ] || fail "the folder has $(ls "$scratch/icons")"
keys Escape
until_true "the extractor to go" no_window '^Extract Icon$'

# A picture of the icon's size: what has the mask's colour is transparent, all else is as it was.
convert -size 32x32 'xc:#c0c0c0' -fill '#123456' -draw 'rectangle 5,6 20,25' "BMP3:$scratch/in.bmp"
convert "$scratch/in.bmp" -transparent '#c0c0c0' "$scratch/wanted.png"
open_file "$scratch/in.bmp"
keys alt+t o
until_true "the extractor" has_window '^Extract Icon$'
keys alt+m alt+s
until_true "the save dialog" has_window '^Save Icon as$'
sleep 0.2
xdotool type --delay 4 "$scratch/masked"
keys Return
until_true "the icon" test -s "$scratch/masked.ico"
convert "$scratch/masked.ico" -background lime -flatten "$scratch/got.png"
convert "$scratch/wanted.png" -background lime -flatten "$scratch/flat.png"
same "$scratch/got.png" "$scratch/flat.png" || fail "the masked icon"
keys Escape
quit
