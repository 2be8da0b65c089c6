#!/bin/sh
# The editor as a screen reader finds it, over the accessibility bus: every control of the frame and of all windows has a role
# and a name, and windows are opened by pressing menu items there.
bus=""
. "$(dirname "$0")/lib.sh"
for needed in /usr/libexec/at-spi-bus-launcher /usr/bin/dbus-daemon; do
    [ -x "$needed" ] || { echo "skipped: there is no $needed"; exit 0; }
done
dbus-daemon --session --nofork --print-address=3 3>"$scratch/bus" >/dev/null 2>&1 &
pids="$pids $!"
until_true "a bus" test -s "$scratch/bus"
DBUS_SESSION_BUS_ADDRESS=$(cat "$scratch/bus")
export DBUS_SESSION_BUS_ADDRESS QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 GIO_USE_VFS=local
/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
pids="$pids $!"
until_true "the accessibility bus" dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress

convert -size 40x30 gradient:red-blue "BMP3:$scratch/in.bmp"
start
open_file "$scratch/in.bmp"
status=0
/usr/bin/python3 "$(dirname "$0")/reader.py" "Save All ..." >"$scratch/told" 2>&1 || status=$?
cat "$scratch/told"
[ "$status" != 77 ] || { echo "skipped: no bindings of the accessibility bus (gir1.2-atspi-2.0)"; exit 0; }
[ "$status" = 0 ] || fail "what a screen reader finds"
