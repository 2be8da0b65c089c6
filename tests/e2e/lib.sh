# The user of the end-to-end tests: a virtual screen with a window manager, a scratch copy of the programs, input, screenshots.
# Sourced with the folder of the built programs as $1. Everything started here ends with the script.
set -eu
bin=$1
scratch=$(mktemp -d)
folder=$scratch/studio # the program folder
mkdir -p "$folder" "$scratch/home" "$scratch/run"
chmod 700 "$scratch/run"
cp "$bin/velara-studio" "$bin/velara-open" "$bin/velara-decode" "$bin/velara-decode-all" "$bin/velara-encode" "$bin/velara-scan" "$folder/"
touch "$folder/portable" # user data stays there
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home/.config XDG_DATA_HOME=$scratch/home/.local XDG_RUNTIME_DIR=$scratch/run
export ASAN_OPTIONS=detect_leaks=0:exitcode=99
export DBUS_SESSION_BUS_ADDRESS=unix:path=$scratch/no-bus
export LC_ALL=C.UTF-8 # the texts are looked for in English
unset LANGUAGE QT_QPA_PLATFORM WAYLAND_DISPLAY XDG_SESSION_TYPE QT_SCALE_FACTOR XDG_CURRENT_DESKTOP || true
pids=""
editor="" main="" # its process and the frame's window
seed=${VELARA_SEED:-$(od -An -N2 -tu2 /dev/urandom | tr -d ' ')} # of what is random

finish() {
    status=$?
    trap - EXIT
    if [ "$status" != 0 ] && [ -n "${E2E_SHOTS:-}" ]; then screen "$E2E_SHOTS/$(basename "$0").png" || true; fi
    for pid in $pids; do kill "$pid" 2>/dev/null && kill -CONT "$pid" 2>/dev/null || true; done
    if grep -E 'ERROR: AddressSanitizer|runtime error:' "$scratch"/log* >&2 2>/dev/null; then status=99; fi
    wait 2>/dev/null || true
    rm -rf "$scratch"
    exit "$status"
}
trap finish EXIT

fail() {
    echo "FAILED: $* (VELARA_SEED=$seed)" >&2
    tail -n 60 "$scratch/log" >&2 2>/dev/null || true
    titles >&2
    exit 1
}

# until WHAT COMMAND...: waits for the command to succeed, with a generous limit for loaded machines
until_true() {
    what=$1
    patience=$(($(date +%s) + ${E2E_PATIENCE:-120}))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$(date +%s)" -lt "$patience" ] || fail "waited in vain: $what"
        sleep 0.05
    done
}
# noise BYTES: seeded random bytes
noise() { python3 -c 'import random as r, sys; r.seed(int(sys.argv[1])); sys.stdout.buffer.write(r.randbytes(int(sys.argv[2])))' "$seed" "$1"; }

running() { kill -0 "$editor" 2>/dev/null; }
gone() { ! running; }
no_window() { ! has_window "$1"; }
box_has_keys() { has_keys '^Velara Studio' && ! frame_has_keys; }

count_titled() { [ "$(titled | wc -l)" = "$1" ]; }
# The frame's window, while no box is open
frame() { titled | head -1; }
# The desktop: the same names for both kinds, and skipped (77) where the programs for it are missing
. "$(dirname "$0")/lib_${E2E_DESKTOP:-x11}.sh"

# Whether there are so many undo files, of so many documents
undo_files() { [ "$(find "$folder/Temp" -name 'b*.dat' | wc -l)" = "$1" ]; }
documents() { [ "$(find "$folder/Temp" -name 'b*00.dat' | wc -l)" = "$1" ]; }

# Whether the frame has the focus; unlike the splash picture it stays open.
started() { main=$(frame) && [ -n "$main" ] && settled && frame_has_keys && [ "$(titled)" = "$main" ]; }
launch() {
    (cd "$folder" && exec ./velara-studio) >"$scratch/log" 2>&1 &
    editor=$!
    pids="$pids $editor"
}
start() {
    launch
    until_true "the frame" started
}

# A frame of 900 by 700 pixels without boxes and bars, which asks no questions: strip and picture have fixed positions.
start_plain() {
    start
    quit
    patch_config() { printf "$2" | dd of="$folder/Vlaera.dat" bs=1 seek="$1" conv=notrunc 2>/dev/null; }
    patch_config 0 '\274\064\004\051'
    patch_config 2318 '\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0'
    patch_config 266 '\0\0'
    [ -z "${1:-}" ] || patch_config 6 '\377\377' # pictures maximized
    start
}

# tool COLUMN ROW: presses a button of the strip
tool() {
    point $(in_frame $((24 + $1 * 34)) $((40 + $2 * 31)))
    press 1
    release 1
    settled
}

keys() {
    for key in "$@"; do
        send_key "$key"
        settled
    done
}

# brings TITLE KEYS...: opens the window by the keys
brings() {
    title=$1
    shift
    keys "$@"
    until_true "$title" has_window "^$title\$"
    until_true "the keys of $title" has_keys "^$title\$"
    settled
}

# enter TEXT: replaces the text in the field, then Return
enter() {
    send_key ctrl+a
    write "$1"
    settled
    keys Return
}

# told WHAT: waits for a message box and closes it by Return
told() {
    until_true "the message about $1" count_titled 2
    until_true "its keys" box_has_keys
    keys Return
    until_true "the message about $1 to go" count_titled 1
}

# stroke X Y X Y...: drags with the left button from the first screen position to the last
stroke() {
    point "$1" "$2"
    press 1
    while [ $# -gt 2 ]; do
        shift 2
        settled
        point "$1" "$2"
    done
    settled
    release 1
    settled
}

# open FILE: by the file dialog; waits for its window or for a message
opened() { [ -n "$(find "$folder/Temp" -name 'b*00.dat' -size +0 -newer "$scratch/asked")" ] || ! count_titled 1; }
open_file() {
    until_true "the frame's keys" frame_has_keys
    brings 'Open file' ctrl+o
    touch "$scratch/asked"
    enter "$1"
    until_true "the open dialog to close" no_window '^Open file$'
    until_true "$1 to be open" opened
    settled
}

save_as() {
    until_true "the frame's keys" frame_has_keys # a box may have just closed
    brings 'Save as' ctrl+shift+s
    enter "$1"
    until_true "the saved file" test -s "$1"
    until_true "the save dialog to close" no_window '^Save as$'
    settled
}

quit() {
    keys ctrl+q
    until_true "the editor to end" gone
    wait "$editor" || fail "the editor ended with $?"
}

# same FILE FILE: whether they have the same pixels
same() { [ "$(compare -metric AE "$1" "$2" null: 2>&1)" = 0 ]; }
# saves FILE WANTED WHAT: saves the picture and compares it with the wanted one
saves() {
    save_as "$1"
    same "$1" "$2" || fail "$3"
}
