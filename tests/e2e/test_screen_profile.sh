#!/bin/sh
# Pictures by the screen's colour profile: one that shows red as blue turns the picture on the screen, and nothing else,
# as soon as it is set, and no longer than that; files are what they were.
. "$(dirname "$0")/lib.sh"

# profile RED BLUE: a profile of a screen with these primaries, by the names of sRGB's
profile() {
    python3 - "$1" "$2" <<'END'
import struct, sys
fixed = lambda values: b''.join(struct.pack('>i', round(v * 65536)) for v in values)
xyz = lambda *values: b'XYZ \0\0\0\0' + fixed(values)
primaries = {'red': xyz(.4361, .2225, .0139), 'green': xyz(.3851, .7169, .0971), 'blue': xyz(.1431, .0606, .7141)}
curve = b'curv' + bytes(4) + struct.pack('>IH', 1, 0x233) + bytes(2)
name = b'A screen of the test\0'
tags = [(b'desc', b'desc' + bytes(4) + struct.pack('>I', len(name)) + name + bytes(78 + (-len(name) - 78 - 12) % 4)),
        (b'cprt', b'text' + bytes(4) + b'none' + bytes(4)), (b'wtpt', xyz(.9642, 1, .8249)),
        (b'rXYZ', primaries[sys.argv[1]]), (b'gXYZ', primaries['green']), (b'bXYZ', primaries[sys.argv[2]]),
        (b'rTRC', curve), (b'gTRC', curve), (b'bTRC', curve)]
table, body = struct.pack('>I', len(tags)), b''
for tag, value in tags:
    table += tag + struct.pack('>II', 128 + 4 + 12 * len(tags) + len(body), len(value))
    body += value
head = struct.pack('>I4sI4s4s4s', 128 + len(table) + len(body), bytes(4), 0x02400000, b'mntr', b'RGB ', b'XYZ ')
head += bytes(12) + b'acsp' + bytes(28) + fixed((.9642, 1, .8249)) + bytes(48)
sys.stdout.buffer.write(head + table + body)
END
}
# shows X Y COLOUR: whether the screen is about red or blue there
shows() {
    import -window root -crop "1x1+$1+$2" -depth 8 rgb:- | od -An -tu1 |
        awk -v want="$3" '{ exit want != ($1 > 240 && $3 < 16 ? "red" : $1 < 16 && $3 > 240 ? "blue" : "other") }'
}

convert -size 300x300 xc:red xc:lime +append "BMP3:$scratch/in.bmp"
start_plain
xdotool windowmove --sync "$(frame)" 0 0
open_file "$scratch/in.bmp"
# Where the picture's halves are on the screen
place() { import -window root -depth 8 txt:- | grep -m1 "$1" | cut -d: -f1 | tr ',' ' '; }
until_true "the picture" sh -c "import -window root -depth 8 txt:- | grep -q '#FF0000'"
set -- $(place '#FF0000')
x=$(($1 + 40)) y=$(($2 + 40))
profile blue red | "$bin/set_property" _ICC_PROFILE
settled
shows $x $y red || fail "a profile that nobody asked for"

# switch: presses the box of the options
switch() {
    brings 'Velara Studio: Options' alt+e i
    # By the mouse: a key shows the box pressed for a while before it changes.
    xdotool mousemove --window "$(xdotool search --onlyvisible --name '^Velara Studio: Options$')" 28 247 click 1
    settled
    if [ -n "${E2E_SHOTS:-}" ]; then import -window root "$E2E_SHOTS/options.png"; fi
    keys Return
    until_true "the options to go" no_window '^Velara Studio: Options$'
}
switch
until_true "blue in place of red" shows $x $y blue
if [ -n "${E2E_SHOTS:-}" ]; then import -window root "$E2E_SHOTS/screen_profile.png"; fi
saves "$scratch/out.bmp" "$scratch/in.bmp" "the file has the screen's colours"
profile red blue | "$bin/set_property" _ICC_PROFILE
until_true "red by another profile" shows $x $y red
profile blue red | "$bin/set_property" _ICC_PROFILE
until_true "blue again" shows $x $y blue
echo "no profile" | "$bin/set_property" _ICC_PROFILE
until_true "red without a usable one" shows $x $y red
profile blue red | "$bin/set_property" _ICC_PROFILE
until_true "blue once more" shows $x $y blue
xprop -root -remove _ICC_PROFILE
until_true "red without any" shows $x $y red
profile blue red | "$bin/set_property" _ICC_PROFILE
until_true "blue before the end" shows $x $y blue

# Two screens, of which the right one has another profile: the picture follows the window.
xrandr --setmonitor left 640/169x900/238+0+0 screen --setmonitor right 640/169x900/238+640+0 none >/dev/null
until_true "blue on the left" shows $x $y blue
profile red blue | "$bin/set_property" _ICC_PROFILE_1
xdotool windowsize --sync "$(frame)" 600 700 windowmove --sync "$(frame)" 660 0
until_true "red on the right" shows $((x + 660)) $y red
profile blue red | "$bin/set_property" _ICC_PROFILE_1
until_true "blue by a new profile of the right" shows $((x + 660)) $y blue
profile red blue | "$bin/set_property" _ICC_PROFILE_1
until_true "red again" shows $((x + 660)) $y red
if [ -n "${E2E_SHOTS:-}" ]; then screen "$E2E_SHOTS/screen_profile_right.png"; fi
xdotool windowmove --sync "$(frame)" 0 0
until_true "blue on the left again" shows $x $y blue
switch
until_true "red when it is switched off" shows $x $y red
quit
