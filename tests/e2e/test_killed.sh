#!/bin/bash
# The editor killed at random moments while it filters, saves and writes undo steps: the saved file is always complete,
# the next start offers what was not saved, and the next save removes leftovers. KILLS=200 for the long run.
. "$(dirname "$0")/lib.sh"
kills=${KILLS:-5}
RANDOM=$seed
mkdir "$scratch/pictures"
picture=$scratch/pictures/picture.bmp
convert -size 3000x2200 plasma:red-blue -type truecolor "BMP3:$scratch/one.bmp"
convert "$scratch/one.bmp" -negate "BMP3:$scratch/other.bmp"
cp "$scratch/one.bmp" "$picture"
is_whole() { same "$picture" "$scratch/one.bmp" || same "$picture" "$scratch/other.bmp"; }
strays() { find "$scratch/pictures" -name '.velara-*' | wc -l; }

begin() {
    start
    open_file "$picture"
    until_true "the first step" sh -c "ls '$folder'/Temp/b0001*.dat"
}

# What was not saved is offered, and opened as it was or would have been; without that all files go.
work_left() { [ -n "$(find "$folder/Temp" -name 'b*.dat')" ]; }
offered() { main=$(frame) && [ -n "$main" ] && { has_keys '^Recover Pictures$' || ! work_left; }; }
ended() { gone || { box_has_keys && keys alt+n; false; }; } # it asks about what is not saved
recover() {
    launch
    until_true "the offer, or an empty folder" offered
    if work_left >/dev/null 2>&1; then
        recovered=$((recovered + 1))
        [ -z "${E2E_SHOTS:-}" ] || screen "$E2E_SHOTS/offer.png"
        send_key alt+r
        until_true "the recovered picture" has_window '^Velara Studio - .picture'
        save_as "$scratch/again.bmp"
        same "$scratch/again.bmp" "$scratch/one.bmp" || same "$scratch/again.bmp" "$scratch/other.bmp" || fail "round $round: recovered another picture"
        rm "$scratch/again.bmp"
    fi
    until_true "the frame" started
    keys ctrl+q
    until_true "the editor to end" ended
    if work_left; then fail "round $round: files of an editor that has ended"; fi
}

caught=0 shortened=0 recovered=0
for round in $(seq "$kills"); do
    begin
    (while kill -0 "$editor"; do xdotool key alt+l key i key ctrl+s; done) >/dev/null 2>&1 &
    busy=$!
    sleep "$(printf '0.%03d' $((RANDOM % 900 + 60)))"
    kill -KILL "$editor"
    wait "$busy" "$editor" 2>/dev/null || true
    is_whole || fail "round $round: half a picture"
    [ "$(strays)" = 0 ] || caught=$((caught + 1))
    [ -z "$(find "$folder/Temp" -name 'b*.dat' -size -25000k)" ] || shortened=$((shortened + 1))
    [ "$(strays)" -le 1 ] || fail "round $round: what was left is not taken away"
    recover
done
begin
before=$(stat -c %i "$picture")
saved() { [ "$(stat -c %i "$picture")" != "$before" ] || { keys alt+l i ctrl+s && false; }; } # a key may be lost under load
until_true "the last save" saved
until_true "the strays to go" sh -c "[ \$(find '$scratch/pictures' -name '.velara-*' | wc -l) = 0 ]"
is_whole || fail "the picture saved at the end"
keys ctrl+q
until_true "the editor to end" ended
wait "$editor" || fail "the editor ended with $?"
echo "$kills killed: $caught while a picture was written, $shortened while an undo step was; $recovered with work to recover"
