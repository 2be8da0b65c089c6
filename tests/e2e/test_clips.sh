#!/bin/sh
# Selected parts cut, copied and pasted with a real mouse: what the undo files hold, what other programs get from the
# clipboard, and what they put there.
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/painting.sh"
convert -size ${W}x$H 'xc:#ff00ff' -fill '#00ff00' -draw 'rectangle 10,10 13,13' "BMP3:$scratch/in.bmp"
open_large "$scratch/in.bmp" '#ff00ff' '#00ff00'

# Nothing selected: a message, and no clip.
keys ctrl+c
told "the selection"

# A bitmap of another program, with an empty history: it follows the pointer, and a click places it.
convert -size 6x6 'xc:#0000ff' PNG32:- | xclip -selection clipboard -t image/png -i
keys ctrl+v
xdotool mousemove $(over 40 30)
settled
xdotool mousemove $(over 41 30) click 1
saved 1
is 1 39 28 '255 0 0'
is 1 50 30 "$plain"

# An ellipse copied: the desktop's clipboard has it with transparent surroundings.
tool 2 0 # Select
drag 8 8 18 18
keys ctrl+c
xclip -selection clipboard -t image/png -o >"$scratch/clip.png"
[ "$(identify -format '%wx%h' "$scratch/clip.png")" = 10x10 ] || fail "the clip is $(identify "$scratch/clip.png")"
[ "$(convert "$scratch/clip.png" -format '%[hex:p{3,3}]' info:)" = 00FF00FF ] || fail "the clip's pixel"

# It follows the pointer, Space places a copy, then another one, Esc drops it: one step each.
keys ctrl+v
xdotool mousemove $(over 30 20)
settled
xdotool mousemove $(over 31 20)
settled
keys space
saved 2
is 2 28 17 "$green" # the hot spot is the middle and one more: 31 - 6 + 2 and on
xdotool mousemove $(over 50 40)
settled
keys Escape
[ ! -e "$(step 3)" ] || fail "Esc has left a step"

# Cut: black where it was, and one step.
keys ctrl+x
saved 3
is 3 10 10 "$black"
is 3 28 17 "$green"
is 3 20 8 "$plain"

# The box: its second slot pastes the ellipse again, by the button "Clip 2"; the first has the other program's picture.
keys alt+v
keys l
xdotool mousemove --window "$main" 694 105 click 1 # docked at the right, where it narrows the pictures' area
settled
keys alt+v l
xdotool mousemove $(over 50 12)
settled
xdotool mousemove $(over 51 12) click 1
saved 4
is 4 48 9 "$green"

# What another program copies after our clips is what is pasted next.
convert -size 4x4 'xc:#ffff00' PNG32:- | xclip -selection clipboard -t image/png -i
settled
keys ctrl+v
xdotool mousemove $(over 20 40)
settled
xdotool mousemove $(over 21 40) click 1
saved 5
is 5 19 38 '0 255 255'
quit
