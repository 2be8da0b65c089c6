#!/bin/sh
# Pictures found by browsing: type ahead, look at the preview, open by a double click and by Enter; a folder chosen for
# the textures box; the preview in the open dialog. Screen contents are recognised by colours that nothing else has.
. "$(dirname "$0")/lib.sh"
export XDG_CACHE_HOME=$scratch/home/.cache

pictures=$scratch/home/Pictures
mkdir -p "$pictures"
convert -size 300x200 'xc:#12fe34' "$pictures/green.PNG"
convert -size 300x200 'xc:#fe12ab' "$pictures/pink.bmp"
for i in $(seq 60); do echo note >"$pictures/note$i.txt"; done

# place COLOUR [LEAST WIDTH]: the bounding box of the colour on the screen, as WxH+X+Y
place() {
    import -window root "$scratch/screen.png"
    convert "$scratch/screen.png" -fill black +opaque "$1" -fill white -opaque "$1" -define connected-components:verbose=true \
        -connected-components 4 null: | awk '/gray\(255\)|white|srgb\(255,255,255\)/ {print $2}'
}
# shows COLOUR COUNT: whether there are so many areas of it
areas() { place "$1" | grep -vc '^[0-4]x' || true; }
shows() { [ "$(areas "$1")" = "$2" ]; }
middle_of() { echo "$1" | tr 'x+' '  ' | awk '{print int($3 + $1 / 2), int($4 + $2 / 2)}'; }

touch -d '2024-05-06' "$pictures"/* # what is only just being written gets no shared thumbnail
start
cp -p "$pictures"/*.PNG "$pictures"/*.bmp "$folder/Images/" # beside the program's own
browse() { brings 'Browse For Graphic Filles' "$@"; }
closed() { no_window '^Browse For Graphic Filles$'; }
browse alt+f b
xdotool type --delay 30 gree
until_true "preview and thumbnails of the green one, in the tree and in the grid" shows '#12fe34' 3
until_true "the thumbnail in the shared cache" sh -c "ls $XDG_CACHE_HOME/thumbnails/large/*.png"

# The thumbnail is at the left of its row: a double click on it
thumb_at() { place '#12fe34' | sort -t+ -k2n | head -1; }
still() { # rows move while pictures come in
    thumb=$(thumb_at)
    settled
    [ "$thumb" = "$(thumb_at)" ]
}
double_clicked() { # two clicks that a busy machine pulls apart are none
    closed && return
    still || return
    xdotool mousemove $(middle_of "$thumb") click --repeat 2 --delay 60 1
    for _ in $(seq 40); do # a second one would meet what lies behind
        closed && return
        sleep 0.25
    done
    false
}
until_true "the browser to close after a double click" double_clicked
until_true "the open document" documents 1
until_true "the open picture" shows '#12fe34' 1

# It reopens where it was.
browse alt+f b
until_true "its place again" shows '#12fe34' 3
xdotool type --delay 30 pin
until_true "the other preview" shows '#fe12ab' 3
keys Return
until_true "the browser to close" closed

# The open dialog has small pictures, and shows what is typed or selected in it.
small() { place "$1" | grep -q '^[23][0-9]x'; }
large() { [ "$(place "$1" | grep -c '^[1-9][0-9][0-9]x')" = "$2" ]; }
brings 'Open file' ctrl+o
until_true "the small picture in the dialog" small '#fe12ab'
pinks=$(place '#fe12ab' | grep -c '^[1-9][0-9][0-9]x' || true)
xdotool type --delay 30 pink.bmp
until_true "the preview in the dialog" large '#fe12ab' $((pinks + 1))
keys Escape Escape
until_true "the dialog to close" no_window '^Open file$'

# A folder for the textures box; applying its one file changes every pixel of a plain picture.
press() { xdotool mousemove --window "$main" "$@"; settled; }
press 775 144 click 1 # its tab in the frame
press 699 193 click 1 # the page of effects
mkdir -p "$folder/Textures/Cloth"
convert -size 64x64 plasma:red-blue -colorspace gray "BMP3:$folder/Textures/Cloth/linen.bmp"
press 668 623 click 1 # the button of the folder
until_true "the choice of a folder" has_keys '^Browse For Graphic Filles$'
xdotool type --delay 30 clo
settled
keys Return
until_true "the choice to close" closed
settled
[ "$(areas '#fe12ab')" = 1 ] || fail "the pink picture is seen $(areas '#fe12ab') times"
press 670 508 click --repeat 2 --delay 60 1 # the first file of the list
until_true "the picture with the texture" shows '#fe12ab' 0
keys ctrl+z
until_true "the picture as it was" shows '#fe12ab' 1
quit
