#!/bin/sh
# Pictures that other programs put on the clipboard: complete, large ones in pieces, and from an owner that doesn't answer.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 plasma:red-blue -depth 8 -type truecolor "$scratch/in.png"
convert -size 1500x1200 plasma:red-blue -type truecolor "$scratch/in.bmp" # comes in pieces
# arrives N: the picture of the clipboard becomes the Nth document, at least; it is asked for again where load kept its owner
# from answering in time, or the keys from the menu. took: milliseconds of the last attempt
arrives() {
    wants
    until_true "document $1 from the clipboard" here_or_asked "$1"
    took=$((($(date +%s%N) - before) / 1000000))
}
wants() {
    before=$(date +%s%N)
    keys Escape alt+e f
}
there() { [ "$(find "$folder/Temp" -name 'b*00.dat' | wc -l)" -ge "$1" ]; }
here_or_asked() {
    if there "$1"; then return 0; fi
    if box_has_keys; then
        xdotool key Return
    elif frame_has_keys; then
        settled # it answers once it waits for no owner any more, or has a box
        if there "$1"; then return 0; fi
        if frame_has_keys; then wants; fi
    fi
    return 1
}
# The keys go to the frame, or, where load has kept it from them, to the message about the owner, or to the question about a
# document of an attempt that was thought to be lost.
ends() {
    if box_has_keys; then xdotool key alt+n key Return; elif running; then xdotool key ctrl+q; fi
    gone
}
start
count=0
for kind in png bmp; do
    offer image/$kind "$scratch/in.$kind"
    count=$((count + 1))
    arrives $count
    saves "$scratch/out_$kind.bmp" "$scratch/in.$kind" "a picture of the clipboard as $kind"
done

offer image/png "$scratch/in.png"
kill -STOP "$owner"
before=$(date +%s%N)
keys alt+e f
until_true "the editor to end" ends
took=$((($(date +%s%N) - before) / 1000000))
kill -CONT "$owner"
wait "$editor" || fail "the editor ended with $?"
[ "$took" -lt 20000 ] || fail "a silent owner cost $took ms"

# owner HOW...: a misbehaving owner
owner() {
    kill "$owner" 2>/dev/null || true
    rm -f "$scratch/owns"
    "$bin/bad_owner" "$@" >"$scratch/owns" &
    owner=$!
    pids="$pids $owner"
    until_true "the owner" test -s "$scratch/owns"
}
# pastes TITLED: how long it takes until so many windows are open, in milliseconds
pastes() {
    before=$(date +%s%N)
    keys alt+e f
    until_true "the end of the paste" "$@"
    took=$((($(date +%s%N) - before) / 1000000))
}
start
owner many "$scratch/in.png"
arrives 1
[ "$took" -lt 15000 ] || fail "a million types cost $took ms"
saves "$scratch/out_many.bmp" "$scratch/in.png" "a picture among a million types"
owner late 850
pastes count_titled 2 # told that it isn't handed over
[ "$took" -lt 8000 ] || fail "ten late kinds cost $took ms"
told "the late owner"
owner drip "$scratch/in.bmp" 4000 # a minute and more
pastes count_titled 2 # the box
until_true "its keys" box_has_keys
if [ -n "${E2E_SHOTS:-}" ]; then import -window root "$E2E_SHOTS/clipboard.png"; fi
keys Escape
told "the bytes that were given up"
owner drip "$scratch/in.bmp" 130000
pastes documents 2 # after more than two seconds
saves "$scratch/out_drip.bmp" "$scratch/in.bmp" "a picture in slow pieces"
until_true "the editor to end" ends
wait "$editor" || fail "the editor ended with $?"
