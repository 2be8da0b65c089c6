#!/bin/sh
# Wallpaper, capture and scanner on a real server: the root window in all three modes, the screen as a document, the
# picture of the scanner library's own test device.
. "$(dirname "$0")/lib.sh"

export SANE_CONFIG_DIR=$scratch/sane
mkdir "$SANE_CONFIG_DIR"
echo test >"$SANE_CONFIG_DIR/dll.conf"
printf '%s\n' 'number_of_devices 1' 'mode Color' 'depth 8' 'test-picture "Color pattern"' 'resolution 50' \
    >"$SANE_CONFIG_DIR/test.conf"

pixel_is() { [ "$(convert "$1" -format "%[hex:p{$2,$3}]" info: | cut -c1-6)" = "$4" ] || fail "$1 at $2,$3: $(convert "$1" -format "%[hex:p{$2,$3}]" info:) and not $4"; }
root_pixel() { [ "$(import -window root -crop "1x1+$1+$2" -depth 8 rgb:- | od -An -tx1 | tr -d ' \n')" = "$3" ]; }
saved_size() { [ "$(identify -format '%wx%h' "$1")" = "$2" ] || fail "$1 is $(identify "$1")"; }

# 40 by 30: left half red, right half blue
convert -size 20x30 xc:red xc:blue +append "BMP3:$scratch/in.bmp"
start_plain
xdotool windowmove --sync "$(frame)" 0 0
open_file "$scratch/in.bmp"

# Wallpaper; the frame leaves the lower right of the screen free.
keys alt+t e t
until_true "tiles" root_pixel 1205 800 ff0000
until_true "tiles" root_pixel 1225 800 0000ff
[ -s "$XDG_DATA_HOME/velara-studio/ClearPane_Wallpaper.bmp" ] || fail "the file of the wallpaper"
keys alt+t e s
until_true "the stretched picture" root_pixel 1205 800 0000ff
keys alt+t e c
until_true "the ground of the centred picture" root_pixel 1225 800 000000

# captured N: waits for the Nth document, with the frame visible again
captured() {
    until_true "document $1" test -s "$folder/Temp/b000${1}00.dat"
    until_true "the frame back" frame_has_keys
    settled
}
# quick KEY N FILE: saves the capture of an item of the quick capture menu
quick() {
    keys alt+t q "$1"
    captured "$2"
    save_as "$3"
}
# pick KEY: opens the picker for the entry of the dialog's list with that key
pick() {
    brings 'Capture Screen' alt+t s
    brings 'Capture Rectangle' "$1" alt+u
}

# The desktop without any window, which shows the picture in its middle.
quick d 2 "$scratch/desktop.bmp"
[ ! -e "$folder/New.bmp" ] || fail "New.bmp is left"
saved_size "$scratch/desktop.bmp" 1280x900
pixel_is "$scratch/desktop.bmp" 630 450 FF0000
pixel_is "$scratch/desktop.bmp" 650 450 0000FF
pixel_is "$scratch/desktop.bmp" 5 5 000000

quick f 3 "$scratch/foreground.bmp"
saved_size "$scratch/foreground.bmp" 800x600
pixel_is "$scratch/foreground.bmp" 795 595 "$(convert "$scratch/foreground.bmp" -format '%[hex:p{790,590}]' info: | cut -c1-6)"

# A rectangle of the screen: around the middle of the wallpaper.
pick d
stroke 610 440 640 450 670 460
captured 4
save_as "$scratch/rectangle.bmp"
saved_size "$scratch/rectangle.bmp" 60x20
pixel_is "$scratch/rectangle.bmp" 20 10 FF0000
pixel_is "$scratch/rectangle.bmp" 40 10 0000FF

# Another program's window: it is behind the frame, and not part of the desktop.
known=12AB34
convert -size 120x90 "xc:#$known" "$scratch/known.png"
display -geometry +1000+720 "$scratch/known.png" >/dev/null 2>&1 &
pids="$pids $!"
until_true "the other program's window" has_keys 'known.png'
eval "$(xdotool getwindowgeometry --shell "$(xdotool search --onlyvisible --name 'known.png' | head -1)" | grep '^[XY]=')"
xdotool windowactivate --sync "$(frame)"
quick b 5 "$scratch/background.bmp"
pixel_is "$scratch/background.bmp" $((X + 60)) $((Y + 45)) $known
pixel_is "$scratch/background.bmp" 200 12 000000
quick d 6 "$scratch/bare.bmp"
same "$scratch/bare.bmp" "$scratch/desktop.bmp" || fail "a window on the desktop"
until_true "the other program's window back" has_window 'known.png'
pick b
part="$((X + 10)) $((Y + 10)) $((X + 40)) $((Y + 20)) $((X + 60)) $((Y + 30))"
stroke $part
captured 7
save_as "$scratch/known.bmp"
[ "$(convert "$scratch/known.bmp" -unique-colors -format '%k %[hex:p{0,0}]' info:)" = "1 $known" ] || fail "the window's part"

# Esc leaves the picker: no document, and the frame is back.
pick d
keys Escape
until_true "the frame back" has_window '^Velara Studio'
[ ! -e "$folder/Temp/b000800.dat" ] || fail "Esc has captured"

# The scanner delivers the same picture as to another program.
xdotool windowactivate --sync "$(frame)"
brings Acquire alt+f e a
scanned() {
    has_window '^Acquire$' && keys Return
    [ -s "$folder/Temp/b000800.dat" ]
}
until_true "a scan" scanned
until_true "the frame back" frame_has_keys
save_as "$scratch/scan.bmp"
scanimage -d test:0 --mode Color --resolution 50 -l 0 -t 0 -x 200 -y 200 --format=pnm >"$scratch/wanted.pnm" 2>/dev/null
same "$scratch/scan.bmp" "$scratch/wanted.pnm" || fail "another picture than the scanner gives"
[ ! -e "$folder/temp.bmp" ] || fail "temp.bmp is left"
quit

# With windows at double scale captures are still in the screen's own pixels.
export QT_SCALE_FACTOR=2
start
holds() { [ "$(stat -c %s "$folder/Temp/b000$1.dat")" = $((40 + ($2 + 4) * ($3 + 4) * 4)) ]; }
keys alt+t q b
captured 1
holds 100 1280 900 || fail "another size than the screen's"
pick b
stroke $part
captured 2
holds 200 50 20 || fail "another size than the rectangle's"
[ "$(od -An -tx1 -j $((40 + (2 * 54 + 2) * 4)) -N 3 "$folder/Temp/b000200.dat" | tr -d ' ')" = 34ab12 ] || fail "the part at scale 2"
