#!/bin/sh
# Files handed over from outside: velara-open and velara-studio start an editor or find it, by a socket and over a private bus,
# whatever the files are called; it comes to the front, and what can't be opened is told.
. "$(dirname "$0")/lib.sh"
pictures=$scratch/pictures
mkdir "$pictures" "$pictures/folder"
odd=$(printf 'old \374\377.png')
convert -size 60x40 gradient:red-blue "$scratch/in.png"
for name in 'a b.png' 'grün.png' "$odd" plain; do cp "$scratch/in.png" "$pictures/$name"; done
echo junk >"$pictures/broken.png"
bin=$(cd "$bin" && pwd)
cd "$pictures"
hand() { "$folder/velara-open" "$@" >"$scratch/said" 2>&1; }
says() { grep -q "$1" "$scratch/said" || fail "not told: $1 but $(cat "$scratch/said")"; }
# The steps of what is open are written while the editor goes on.
open_now() { until_true "$2: $1 pictures are open" documents "$1"; }
editors() { find "$XDG_RUNTIME_DIR" -name '*.socket' | sed 's/.*-\([0-9]*\)\.socket/\1/' | tr '\n' ' '; }
leave() { # the editor is no child of this script
    keys ctrl+q
    until_true "the editor to end" gone
    [ -z "$(find "$XDG_RUNTIME_DIR" -name '*.socket')" ] || fail "a socket is left behind"
}

# Nothing to start it on, and nothing to reach it by
status=0
(unset DISPLAY && hand plain) || status=$?
[ "$status" = 3 ] || fail "without a display it gave $status"
says 'could not be started'
status=0
(export HOME=/proc/none XDG_RUNTIME_DIR=/proc/none && hand plain) || status=$?
[ "$status" = 3 ] || fail "without a bus and a folder it gave $status"
says 'neither a message bus nor a folder'

# Nobody runs: one is started, by two callers at once, and stays when they have ended.
hand 'a b.png' &
caller=$!
"$folder/velara-studio" grün.png || fail "velara-studio with a file ended with $?"
wait "$caller" || fail "velara-open ended with $?"
editor=$(editors)
editor=${editor% }
pids="$pids $editor"
case $editor in *' '* | '') fail "editors: $editor" ;; esac
open_now 2 "two callers at once"
until_true "the frame" started

# It is found, and comes out from behind another window.
xmessage hello >/dev/null 2>&1 &
pids="$pids $!"
until_true "another window in front" has_keys xmessage
settled
hand "$odd" plain "file://$pictures/a%20b.png" || fail "velara-open ended with $?: $(cat "$scratch/said")"
open_now 5 "three files"
until_true "the frame in front" frame_has_keys
xdotool windowminimize "$main"
until_true "another window" has_keys xmessage
hand || fail "velara-open without a file ended with $?"
until_true "the frame out of its icon" frame_has_keys

# What can't be opened; the terminal of a person is played by script.
status=0
script -qec "'$folder/velara-open' gone.png folder broken.png plain" /dev/null >"$scratch/said" 2>&1 </dev/null || status=$?
[ "$status" = 1 ] || fail "files that can't be opened gave $status"
says 'gone.png can.t be read: there is no such file'
says 'folder can.t be read: it is a folder'
says 'broken.png can.t be read'
open_now 6 "the one that can"
count_titled 1 || fail "the editor tells what the terminal told"
hand gone.png http://far/a.png && fail "a missing file gave 0" || true
says 'gone.png can.t be read'
says 'no file of this computer'
for wrong in --nonsense '--action nonsense'; do
    status=0
    hand $wrong || status=$?
    [ "$status" = 2 ] || fail "$wrong gave $status"
done
told "what can't be opened" # nobody may have read it

# 200 at once
mkdir many
for i in $(seq 200); do cp "$scratch/in.png" "many/$i.png"; done
hand many/*.png || fail "200 files gave $?: $(tail -3 "$scratch/said")"
open_now 206 "200 files"
settled
leave

# Over a bus, by the desktop's own programs: the editor is started by its service file, and found afterwards.
command -v gio >/dev/null || { echo "SKIPPED: the bus, as there is no gio"; exit 0; }
data=$XDG_DATA_HOME
mkdir -p "$data/applications" "$data/dbus-1/services"
printf '[D-BUS Service]\nName=org.velara.Studio\nExec=%s\n' "$folder/velara-studio" >"$data/dbus-1/services/org.velara.Studio.service"
printf '[Desktop Entry]\nType=Application\nName=Velara Studio\nExec=%s %%F\nDBusActivatable=true\nMimeType=image/png;\n' \
    "$folder/velara-open" >"$data/applications/org.velara.Studio.desktop"
dbus-daemon --session --nofork --print-address=3 3>"$scratch/address" >/dev/null 2>&1 &
bus=$!
pids="$pids $bus"
until_true "a bus" test -s "$scratch/address"
DBUS_SESSION_BUS_ADDRESS=$(cat "$scratch/address")
export DBUS_SESSION_BUS_ADDRESS
gio launch "$data/applications/org.velara.Studio.desktop" 'a b.png' || fail "gio launch"
until_true "the picture of gio launch" documents 1
editor=$(editors)
editor=${editor% }
pids="$pids $editor"
until_true "the frame" started
opens=1
for way in "gio open" "gtk-launch org.velara.Studio" "$folder/velara-open"; do
    command -v ${way%% *} >/dev/null || continue
    [ "$way" != "gio open" ] || gio mime image/png org.velara.Studio.desktop >/dev/null
    $way "$pictures/$odd" >"$scratch/said" 2>&1 || fail "$way: $(cat "$scratch/said")"
    opens=$((opens + 1))
    until_true "the picture of $way" documents "$opens"
done
[ "$(editors)" = "$editor " ] || fail "a second editor was started"

# The bus dies; the socket is still there.
kill "$bus"
wait "$bus" 2>/dev/null || true
hand plain || fail "without its bus: $(cat "$scratch/said")"
opens=$((opens + 1))
open_now "$opens" "without a bus"
settled
leave
