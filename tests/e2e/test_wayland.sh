#!/bin/sh
# A Wayland session: the editor starts there without being told, what it shows stays inside of its window, the clipboard goes
# both ways, the portal gives the screen, and a launcher's token brings the window to the front.
E2E_DESKTOP=wayland
. "$(dirname "$0")/lib.sh"
shot() { [ -z "${E2E_SHOTS:-}" ] || screen "$E2E_SHOTS/wayland_$1.png"; }
convert -size 300x200 xc:red xc:blue -append "BMP3:$scratch/in.bmp"

# A bus with a portal that gives this picture of the screen
convert -size 1280x900 xc:lime -fill black -draw 'point 7,5' "$scratch/shot.png"
cp "$scratch/shot.png" "$scratch/screen.png"
dbus-daemon --session --nofork --print-address=3 3>"$scratch/bus" 2>/dev/null &
pids="$pids $!"
until_true "a bus" test -s "$scratch/bus"
DBUS_SESSION_BUS_ADDRESS=$(cat "$scratch/bus")
export DBUS_SESSION_BUS_ADDRESS
/usr/bin/python3 -m dbusmock --session -t "$(dirname "$0")/../platform/portal.py" \
    -p "{\"answer\": 0, \"uri\": \"file://$scratch/screen.png\", \"log\": \"$scratch/portal\"}" >/dev/null 2>"$scratch/mock.log" &
pids="$pids $!"
has_name() { gdbus call --session -d org.freedesktop.DBus -o / -m org.freedesktop.DBus.NameHasOwner "$1" | grep -q true; }
until_true "the portal" has_name org.freedesktop.portal.Desktop

export WAYLAND_DEBUG=client # tells of every request
start
unset WAYLAND_DEBUG
[ "$(windows | cut -d' ' -f7 | sort -u)" = org.velara.Studio ] || fail "the desktop doesn't know the program: $(windows)"
count_windows 1 || fail "a box has a window of its own: $(windows)"
open_file "$scratch/in.bmp"
until_true "the frame's keys" frame_has_keys

# The pane of a tool lies beside the strip, in the frame, and can be used.
covered=$(in_frame 200 238 | tr ' ' ,)
red_is() { [ "$(grim -t ppm -g "$covered 1x1" - | tail -c 3 | od -An -tu1 | grep -c '255 *0 *0')" = "$1" ]; }
until_true "the picture" red_is 1
point $(in_frame 126 151) # Brush
until_true "the pane of the tool" red_is 0
shot pane
count_windows 1 || fail "the pane is a window, which the desktop puts anywhere"
point $(in_frame 600 500)
until_true "the pane to go" red_is 1

# A box that is pulled out goes back, or to the other side; a bar, too.
set -- $(in_frame 690 166)
stroke $1 $2 $(($1 - 40)) $(($2 + 20)) $(($1 - 300)) $(($2 + 300))
until_true "the box in the frame" count_windows 1
set -- $(in_frame 6 74)
stroke $1 $2 $(($1 + 20)) $(($2 + 40)) $(($1 + 300)) $(($2 + 300))
until_true "the bar in the frame" count_windows 1
shot docked

# The clipboard: text into a field and out of it, pictures both ways, and those leave alone what is selected elsewhere.
printf '%s' "$scratch/in.bmp" >"$scratch/text"
offer text/plain "$scratch/text"
brings 'Open file' ctrl+o
keys ctrl+a ctrl+v Home shift+End ctrl+c
copied() { [ "$(wl-paste --no-newline 2>/dev/null)" = "$scratch/in.bmp" ] && gone_is "$owner"; }
gone_is() { ! kill -0 "$1" 2>/dev/null; } # an owner ends when the clipboard is another's
until_true "the text of the field" copied
keys Return
until_true "the second document" documents 2
until_true "the frame's keys" frame_has_keys
offer image/png "$scratch/shot.png"
keys Escape alt+e f
until_true "the picture of the clipboard" documents 3
saves "$scratch/pasted.png" "$scratch/shot.png" "the picture of the clipboard is another"
printf 'selected' | wl-copy --primary
keys ctrl+a ctrl+c
gives_picture() { wl-paste --type image/png >"$scratch/copied.png" 2>/dev/null && gone_is "$owner" && same "$scratch/copied.png" "$scratch/shot.png"; }
until_true "the editor's picture on the clipboard" gives_picture
[ "$(wl-paste --primary --no-newline)" = selected ] || fail "the selection of the other program is gone"

# The screen comes by the portal, with the frame away, and the frame comes back.
keys alt+t q d
until_true "the capture" documents 4
until_true "the frame again" count_windows 1
main=$(frame)
until_true "its keys" frame_has_keys
grep -q Screenshot "$scratch/portal" || fail "the portal wasn't asked"
saves "$scratch/captured.png" "$scratch/shot.png" "the capture is not the portal's picture"

# A picture that is opened by a launcher comes to the front by the launcher's token.
swaymsg focus_on_window_activation focus >/dev/null
"$bin/drag_source" >/dev/null 2>&1 &
pids="$pids $!"
behind() { ! frame_has_keys && swaymsg -t get_tree | grep -q '"drag source"'; }
until_true "another program in front" behind
user token
token=$answer
XDG_ACTIVATION_TOKEN=$token "$bin/velara-open" "$scratch/in.bmp" || fail "velara-open ended with $?"
until_true "the frame in front" frame_has_keys
until_true "its picture" documents 5
grep -q "xdg_activation_v1@.*activate(\"$token\"" "$scratch/log" || fail "by another right than the launcher's"
shot opened
quit

# On a screen of twice the scale each pixel of a picture is four of the screen's, unblurred.
swaymsg output HEADLESS-1 scale 2 >/dev/null
layout 640 450
convert -size 60x40 xc: +noise Random -depth 8 -type truecolor "$scratch/noise.png"
convert "$scratch/noise.png" -sample 200% -depth 8 "rgb:$scratch/noise.rgb"
start
open_file "$scratch/noise.png"
sharp() {
    screen "$scratch/fine.png" && convert "$scratch/fine.png" -depth 8 "rgb:$scratch/fine.rgb" && python3 - "$scratch" <<'END'
import sys
shot, noise = (open(f"{sys.argv[1]}/{name}.rgb", "rb").read() for name in ("fine", "noise"))
at, line, row = shot.find(noise[:360]), 1280 * 3, 120 * 3
sys.exit(at < 0 or any(shot[at + y * line:at + y * line + row] != noise[y * row:(y + 1) * row] for y in range(80)))
END
}
until_true "the picture's own pixels" sharp
shot fine
quit
