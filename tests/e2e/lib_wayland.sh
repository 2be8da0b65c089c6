# A headless compositor, its input and its windows, under the names of lib_x11.sh. Sourced by lib.sh.
for needed in sway swaymsg grim jq wl-copy /usr/bin/python3; do
    command -v $needed >/dev/null || { echo "skipped: there is no $needed" && exit 77; }
done
/usr/bin/python3 -c 'import dbus' 2>/dev/null || { echo "skipped: there is no python3-dbus" && exit 77; }
find /usr/lib -name 'libqwayland-generic.so' 2>/dev/null | grep -q . || { echo "skipped: there is no qt6-wayland" && exit 77; }

cat >"$scratch/sway.conf" <<END
output HEADLESS-1 resolution ${E2E_SCREEN:-1280x900} position 0 0
default_border none
default_floating_border none
for_window [app_id=".*"] floating enable
xwayland disable
END
# sway refuses to be root, as which a test in a container may run; its sockets are reached from outside of its folder.
mkdir "$scratch/sway"
cp "$scratch/sway.conf" "$scratch/sway/"
ordinary=""
if [ "$(id -u)" = 0 ]; then
    ordinary="setpriv --reuid=65534 --regid=65534 --clear-groups"
    chmod 711 "$scratch"
    chown -R 65534:65534 "$scratch/sway"
fi
export SWAYSOCK="$scratch/sway/ipc"
HOME=$scratch/sway XDG_RUNTIME_DIR=$scratch/sway WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 \
    $ordinary sway -c "$scratch/sway/sway.conf" >"$scratch/sway.log" 2>&1 &
pids="$pids $!"
until_true "a compositor" swaymsg -t get_version
ln -s "$scratch/sway/wayland-1" "$XDG_RUNTIME_DIR/wayland-1"
export WAYLAND_DISPLAY=wayland-1
unset DISPLAY

# layout WIDTH HEIGHT: a mouse and a keyboard for screens of this size together
layout() {
    exec 8>&- 9<&-
    rm -f "$scratch/orders" "$scratch/answers"
    mkfifo "$scratch/orders" "$scratch/answers"
    "$(dirname "$0")/wayland_user.py" "$1" "$2" <"$scratch/orders" >"$scratch/answers" 2>>"$scratch/user.log" 8>&- 9<&- &
    pids="$pids $!"
    exec 8>"$scratch/orders" 9<"$scratch/answers"
    read -r answer <&9 || fail "no mouse: $(cat "$scratch/user.log")"
}
user() {
    echo "$*" >&8
    read -r answer <&9 || fail "the mouse has gone: $(cat "$scratch/user.log")"
}
layout $(echo "${E2E_SCREEN:-1280x900}" | tr x ' ')

# Waits until the compositor and the editor have processed everything sent to them so far.
settled() { user ping "$(echo "$XDG_RUNTIME_DIR"/velara-studio-*-"$editor".socket)"; }
# The editor's windows: id, whether it has the focus, left, top, width, height, program, title
windows() {
    swaymsg -t get_tree | jq -r --argjson pid "${editor:-0}" '.. | objects | select(.pid? == $pid) |
        "\(.id) \(.focused) \(.rect.x) \(.rect.y) \(.rect.width) \(.rect.height) \(.app_id) \(.name)"'
}
count_windows() { [ "$(windows | wc -l)" = "$1" ]; }
titles() { windows | cut -d' ' -f8-; }
has_window() { titles | grep "$1"; }
# Whether the window with that title has the focus
has_keys() { windows | grep '^[0-9]* true' | cut -d' ' -f8- | grep -q "$1"; }
frame_has_keys() { windows | grep -q "^$main true"; }
# The editor's windows with the frame's title: the frame and its boxes
titled() { windows | grep '^\([^ ]* \)\{7\}Velara Studio' | cut -d' ' -f1; }

# offer TYPE FILE: puts it on the clipboard as another program
offer() {
    wl-copy --foreground --type "$1" <"$2" &
    owner=$!
    pids="$pids $owner"
    until_true "the offer" sh -c "wl-paste --list-types | grep -q '$1'"
}
point() { user move "$1" "$2"; }
press() { user down "$1"; }
release() { user up "$1"; }
send_key() { user key "$1"; }
write() { user type "$1"; }
# in_frame X Y: that place of the frame, on the screen
in_frame() { windows | awk -v id="$main" -v x="$1" -v y="$2" '$1 == id { print $3 + x, $4 + y }'; }
frame_title() { windows | grep "^$main " | cut -d' ' -f8-; }
screen() { grim "$1"; }
frame_size() { windows | awk -v id="$main" '$1 == id { print $5 "x" $6 }'; }
