#!/bin/sh
# The ordinary user of test_package.sh: opens a picture, inverts it, saves it, and looks where things have been put.
set -eu
cd "$HOME"
mkdir -m 700 run
export XDG_RUNTIME_DIR=$HOME/run DISPLAY=:7
fail() {
    echo "FAILED: $*" >&2
    exit 1
}
until_true() {
    what=$1
    shift
    patience=$(($(date +%s) + 120))
    until "$@" >/dev/null 2>&1; do
        [ "$(date +%s)" -lt "$patience" ] || fail "waited in vain: $what"
        sleep 0.1
    done
}
! touch /usr/bin/trace 2>/dev/null || fail "/usr can be written to"
printf 'P3 3 1 255 10 20 30 200 100 50 0 0 0\n' >in.ppm
velara-batch in.ppm a.png
printf 'P3 3 1 255 245 235 225 55 155 205 255 255 255\n' >wanted.ppm
velara-batch wanted.ppm wanted.ppm 2>/dev/null # as it writes them
Xvfb :7 -noreset -screen 0 1280x900x24 >/dev/null 2>&1 &
server=$!
until_true "a display" test -S /tmp/.X11-unix/X7
openbox >/dev/null 2>&1 &
until_true "a window manager" sh -c 'xdotool get_num_desktops'
velara-open a.png || fail "velara-open ended with $?"
until_true "the frame" xdotool search --onlyvisible --name '^Velara Studio.*a[.]png'
until_true "its keys" sh -c "xdotool getactivewindow getwindowname | grep -q 'Velara Studio'"
cp a.png before.png
steps() { [ "$(find .local/state/velara-studio/Temp -name 'b*.dat' | wc -l)" = "$1" ]; }
windows() { xdotool search --onlyvisible --class velara-studio | wc -l; }
until_true "the first snapshot" steps 1
open=$(windows)
menu() { [ "$(windows)" -gt "$open" ]; }
xdotool key alt+l
until_true "the menu" menu
xdotool key i
until_true "the inverted picture" steps 2
xdotool key ctrl+s
until_true "the saved picture" sh -c '! cmp -s a.png before.png'
velara-batch a.png out.ppm 2>/dev/null
cmp out.ppm wanted.ppm || fail "the saved picture is not the inverted one"
xdotool key ctrl+q
until_true "the end of the editor" sh -c '! ls run/*.socket'
for place in .config/velara-studio/Vlaera.dat .local/share/velara-studio/Stamps .local/state/velara-studio/Temp; do
    [ -e "$place" ] || fail "$place is missing: $(find . -name 'V*' -o -name Temp)"
done
velara-open --thumbnail 32 a.png small.png || fail "no thumbnail"
kill "$server"
