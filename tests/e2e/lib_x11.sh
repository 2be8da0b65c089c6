# The virtual X server with its window manager, its input and its windows. Sourced by lib.sh; lib_wayland.sh has the same names.
# -noreset: a server that resets when its last client leaves disconnects a window manager that is just connecting.
Xvfb -noreset -displayfd 3 -screen 0 "${E2E_SCREEN:-1280x900}x24" 3>"$scratch/display" >/dev/null 2>&1 &
pids="$pids $!"
until_true "a display" test -s "$scratch/display"
DISPLAY=:$(cat "$scratch/display")
export DISPLAY
openbox >/dev/null 2>&1 &
pids="$pids $!"
until_true "a window manager" sh -c "xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'"

# Waits until the window manager and the editor have processed everything sent to them so far.
settled() { "$bin/settled" "$main" || fail "the editor doesn't answer"; }
has_window() { xdotool search --onlyvisible --name "$1"; }
# Whether the window with that title has the focus
has_keys() { xdotool getactivewindow getwindowname | grep -q "$1"; }
frame_has_keys() { [ "$(xdotool getactivewindow)" = "$main" ]; }
# The editor's windows with the frame's title: the frame and its boxes
titled() { xdotool search --all --onlyvisible --pid "$editor" --name '^Velara Studio' 2>/dev/null; }
# offer TYPE FILE: puts it on the clipboard as another program
offer() {
    xclip -selection clipboard -t "$1" -i -quiet "$2" >/dev/null 2>&1 &
    owner=$!
    pids="$pids $owner"
    until_true "the offer" sh -c "xclip -selection clipboard -t TARGETS -o | grep -q '$1'"
}

point() { xdotool mousemove "$1" "$2"; }
press() { xdotool mousedown "$1"; }
release() { xdotool mouseup "$1"; }
send_key() { xdotool key --clearmodifiers "$1"; }
write() { xdotool type --delay 4 "$1"; }
# in_frame X Y: that place of the frame, on the screen
in_frame() {
    xwininfo -id "$(frame)" | awk -v x="$1" -v y="$2" '/Absolute upper-left X/ { x += $NF } /Absolute upper-left Y/ { y += $NF } END { print x, y }'
}
frame_title() { xdotool getwindowname "$main"; }
screen() { import -window root "$1"; }
frame_size() { xdotool getwindowgeometry "$main" | sed -n 's/.*Geometry: //p'; }
# Of the editor's windows
titles() { for window in $(xdotool search --onlyvisible --pid "$editor" 2>/dev/null); do xdotool getwindowname "$window"; done; }
