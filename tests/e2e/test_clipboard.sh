#!/bin/sh
# Pictures that other programs put on the clipboard: complete, large ones in pieces, and from an owner that doesn't answer.
. "$(dirname "$0")/lib.sh"
convert -size 60x40 plasma:red-blue -depth 8 -type truecolor "$scratch/in.png"
convert -size 1500x1200 plasma:red-blue -type truecolor "$scratch/in.bmp" # comes in pieces
# pastes CONDITION...: "From the clipboard", until the condition holds. It is asked for again where load kept the keys from the
# menu: the editor answers once it waits for no owner. took: milliseconds of the last attempt
pastes() {
    wants
    until_true "the end of the paste: $*" ends_with "$@"
    took=$((($(date +%s%N) - before) / 1000000))
}
wants() {
    before=$(date +%s%N)
    keys Escape alt+e f
}
ends_with() {
    if "$@"; then return 0; fi
    if ! frame_has_keys; then return 1; fi
    settled
    if "$@"; then return 0; fi
    if frame_has_keys; then wants; fi
    return 1
}
# arrived N: so many documents at least; where load kept the owner from answering in time, its message is closed (a box that
# waits has no OK)
arrived() {
    if [ "$(find "$folder/Temp" -name 'b*00.dat' | wc -l)" -ge "$1" ]; then return 0; fi
    if box_has_keys; then xdotool key alt+o; fi
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
    pastes arrived $count
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
start
owner many "$scratch/in.png"
pastes arrived 1
[ "$took" -lt 15000 ] || fail "a million types cost $took ms"
saves "$scratch/out_many.bmp" "$scratch/in.png" "a picture among a million types"
owner late 850
pastes count_titled 2 # told that it isn't handed over
asked=$(grep -c asked "$scratch/owns")
[ "$asked" -gt 0 ] && [ "$asked" -lt 8 ] || fail "ten late kinds were waited for $asked times"
told "the late owner"
owner drip "$scratch/in.bmp" 4000 # a minute and more
# Escape in the box, then the message. Where load kept the owner from beginning in time there is a message alone.
given_up() {
    until_true "the frame's keys" frame_has_keys
    pastes count_titled 2
    until_true "its keys" box_has_keys
    if [ -n "${E2E_SHOTS:-}" ]; then import -window root "$E2E_SHOTS/clipboard.png"; fi
    keys Escape
    settled
    count_titled 2
}
until_true "the bytes to be given up" given_up
told "the bytes that were given up"
owner drip "$scratch/in.bmp" 130000
pastes arrived $(($(find "$folder/Temp" -name 'b*00.dat' | wc -l) + 1)) # after more than two seconds
saves "$scratch/out_drip.bmp" "$scratch/in.bmp" "a picture in slow pieces"
until_true "the editor to end" ends
wait "$editor" || fail "the editor ended with $?"
