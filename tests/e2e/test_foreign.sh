#!/bin/sh
# Nothing foreign is parsed in the editor: pictures come in by every way, intact and broken, and after each the editor
# has none of the system's plug-ins for picture formats in its memory. File names are shown literally, not as HTML.
. "$(dirname "$0")/lib.sh"

convert -size 60x40 plasma:red-blue -type truecolor "$scratch/in.bmp"
for extension in png gif jpg tif ico cur pcx tga ppm wbmp; do convert "$scratch/in.bmp" "$scratch/in.$extension"; done
head -c 300 "$scratch/in.png" >"$scratch/broken.png"
mkdir -p "$folder/Stamps"
cp "$scratch/in.gif" "$folder/Stamps/a.bmp" # the name lies
cp "$scratch/in.bmp" "$folder/Stamps/b.bmp"

pure() {
    foreign=$(grep -o '[^/]*/imageformats/.*' "/proc/$editor/maps" | sort -u | tr '\n' ' ')
    [ -z "$foreign" ] || fail "$1: $foreign"
}
readers_gone() { ! pgrep -P "$editor"; }
start_plain
pure "the start"

count=0
for extension in png gif jpg tif ico cur pcx tga ppm wbmp; do
    open_file "$scratch/in.$extension"
    count=$((count + 1))
    until_true "in.$extension" documents $count
done
brings 'Open file' ctrl+o
enter "$scratch/broken.png" # a window without a picture
until_true "the dialog to close" no_window '^Open file$'
until_true "no reader" readers_gone
settled
pure "files"

offer image/png "$scratch/in.png"
keys alt+e f
until_true "the picture of the clipboard" documents $((count + 1))
keys ctrl+v Escape
offer image/tiff "$scratch/broken.png"
keys alt+e f
told "the clipboard"
pure "the clipboard"

keys alt+t q d # the desktop, by way of New.bmp
until_true "the captured desktop" documents $((count + 2))
told "the screen, which is black all over"
until_true "the frame back" frame_has_keys
pure "New.bmp"

# The first stamp of the folder is a GIF with another extension; the folder's textures are shown as thumbnails.
tool 2 1
until_true "no reader" readers_gone
pure "a stamp"
mkdir -p "$folder/Textures"
cp "$scratch"/in.* "$scratch/broken.png" "$folder/Textures/"
keys alt+t m
until_true "the dialog of textures" has_window 'Textur'
settled
until_true "no reader" readers_gone
pure "textures"
keys Escape
xdotool mousemove 900 600 # off the strip, whose pop-up would lie in the way

"$bin/drag_source" "$scratch/in.gif" "$scratch/in.png" "$scratch/in.jpg" >"$scratch/drag.log" 2>&1 &
pids="$pids $!"
until_true "the source" has_window '^drag source$'
source=$(xdotool search --onlyvisible --name '^drag source$')
xdotool windowmove --sync "$source" 1000 10
settled
frame=$main
settled() { # a move goes from the source to the editor, and its answer back
    for main in "$source" "$frame" "$source"; do "$bin/settled" "$main" || fail "the drag stands still"; done
}
stroke 1060 90 1000 400 900 400 800 400 705 400 700 400
until_true "the dropped files" documents $((count + 5))
settled
documents $((count + 5)) || fail "more was opened than was dropped"
pure "a drop"
xdotool windowactivate --sync "$(frame)"
quit
