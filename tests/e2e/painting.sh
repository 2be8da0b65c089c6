# A picture at zoom 4, painted on with a real mouse, and its undo files inspected. Source lib.sh first.
W=64 H=48 zoom=4

# is_shown COLOUR OTHER: all of the picture, as of now
is_shown() {
    screen "$scratch/screen.png"
    box=$(convert "$scratch/screen.png" -fill "$1" -opaque "$2" -fill black +opaque "$1" -format '%@' info: 2>/dev/null)
    [ "${box%%+*}" = $((W * zoom))x$((H * zoom)) ]
}
# open_large FILE COLOUR [OTHER]: a picture of W by H pixels in these colours, by which it is found on the screen
open_large() {
    start_plain maximized
    open_file "$1"
    keys ctrl+plus ctrl+plus ctrl+plus
    point 600 20
    settled
    until_true "a picture of $((W * zoom))x$((H * zoom)) on the screen" is_shown "$2" "${3:-$2}"
    left=$(echo "$box" | cut -d+ -f2) top=$(echo "$box" | cut -d+ -f3)
}
over() { echo $((left + $1 * zoom + zoom / 2)) $((top + $2 * zoom + zoom / 2)); }

# drag X1 Y1 X2 Y2: in picture pixels
drag() {
    stroke $(over "$1" "$2") $(over $((($1 + $3) / 2)) $((($2 + $4) / 2))) $(over "$3" "$4")
}

step() { echo "$folder/Temp/b00010$1.dat"; }
whole() { [ "$(stat -c %s "$1")" = $((40 + (W + 4) * (H + 4) * 4)) ]; }
saved() { until_true "step $1" whole "$(step "$1")"; settled; }
# is STEP X Y COLOUR: checks a pixel of an undo file, blue green red
is() {
    got=$(od -An -tu1 -j $((40 + (($3 + 2) * (W + 4) + $2 + 2) * 4)) -N 3 "$(step "$1")" | tr -s ' ' | sed 's/^ //')
    [ "$got" = "$4" ] || fail "step $1: at $2,$3 wanted $4, got $got"
}
plain='255 0 255' white='255 255 255' green='0 255 0' black='0 0 0'
