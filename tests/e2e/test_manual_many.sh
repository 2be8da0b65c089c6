#!/bin/bash
# What docs/manual/many.md shows is run as it stands there: its blocks of the shell, in order, but for those of several machines
# (make test-cluster).
. "$(dirname "$0")/manual.sh"
blocks many.md
[ "$(grep -c '^velara-batch\|velara-batch -' blocks.sh)" = 9 ] || fail "the manual has other blocks than this test knows"
mkdir holiday
for name in beach boat castle; do convert -size 400x300 plasma:red-blue "holiday/$name.jpg"; done
cp -r holiday before
run_blocks
sizes() { identify -format '%wx%h ' "$1"/*; }
[ "$(sizes small)$(sizes web)" = "200x150 200x150 200x150 200x150 200x150 200x150 " ] || fail "half the size: $(sizes small)$(sizes web)"
[ "$(ls named)" = "$(printf '%s\n' 001-beach-web.jpg 002-boat-web.jpg 003-castle-web.jpg)" ] || fail "names: $(ls named)"
[ "$(ls sized)" = "$(printf '%s\n' beach-200x150.jpg boat-200x150.jpg castle-200x150.jpg)" ] || fail "sizes in names: $(ls sized)"
for name in beach boat castle; do # the corner has white letters, the rest is that of small
    [ "$(convert "signed/$name.jpg" -crop 110x20+85+120 +repage -threshold 92% -format '%[fx:mean>0.05]' info:)" = 1 ] || fail "the text on $name"
done
[ "$(shown beach.png)" = "PNG 200x150" ] || fail "the pipe"
grep -q '3 skipped' log || fail "the second run of what is new did it again"
[ "$(python3 -c 'import json,sys; print([json.loads(l)["result"] for l in open("done.json")])')" = "['done', 'done', 'done']" ] || fail "the report"
diff -r holiday before || fail "the originals have changed"
