#!/bin/bash
# velara-batch with many pictures at bad moments: it or its workers are killed, the disk is full, a signal comes. No output
# is ever half there, nothing of it lives on, and a second run makes the rest. 2,000 small files take no more memory than 200.
set -eu
bin=$(realpath "$1")
scratch=$(mktemp -d)
pids=""
finish() {
    status=$?
    for pid in $pids; do kill -KILL "$pid" 2>/dev/null || true; done
    if mountpoint -q "$scratch/tiny"; then umount "$scratch/tiny"; fi
    rm -rf "$scratch"
    exit "$status"
}
trap finish EXIT
fail() {
    echo "FAILED: $* (VELARA_SEED=$seed)" >&2
    cat log >&2 || true
    exit 1
}
until_true() {
    what=$1 patience=$(($(date +%s) + 120))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$(date +%s)" -lt "$patience" ] || fail "waited in vain: $what"
        sleep 0.02
    done
}
seed=${VELARA_SEED:-$(od -An -N2 -tu2 /dev/urandom | tr -d ' ')}
RANDOM=$seed
cd "$scratch"
convert -size 900x700 plasma:red-blue -quality 90 one.jpg
pictures=80
mkdir in
for i in $(seq $pictures); do cp one.jpg "in/$i.jpg"; done
batch() { "$bin/velara-batch" "$@"; }
begin() { # in the background, as $coordinator
    "$bin/velara-batch" "$@" 2>log &
    coordinator=$!
    pids="$pids $coordinator"
}
outputs() { find out -type f | wc -l; }
some_done() { [ "$(outputs)" -ge "$1" ]; }
family() { # the coordinator's children and theirs
    local pid
    for pid in $(pgrep -P "$1"); do echo "$pid"; family "$pid"; done
}
none_left() { for pid in $family; do if kill -0 "$pid" 2>/dev/null && ! grep -q '^State:.Z' "/proc/$pid/status"; then return 1; fi; done; }
all_whole() { # equal to what an undisturbed run makes
    for file in $(find out -type f); do cmp -s "$file" "wanted/$(basename "$file")" || fail "$1: $file is not whole"; done
    [ -z "$(find out -name '.velara*')" ] || fail "$1: something is left in the folder"
}
steps="INVERT BitsResample(1200,900)"
batch in $steps --into wanted 2>log || fail "an undisturbed run"
[ "$(find wanted -name '*.jpg' | wc -l)" = $pictures ] || fail "an undisturbed run made too few"

# kill -9 of the coordinator at random moments; the next run makes the rest.
rm -rf out
mkdir out
for round in $(seq "${KILLS:-4}"); do
    before=$(outputs)
    [ "$before" -lt $((pictures - 20)) ] || break
    begin in $steps --into out
    until_true "another output" some_done $((before + 1))
    sleep "$(printf '0.%03d' $((RANDOM % 50)))"
    family=$(family "$coordinator")
    kill -KILL "$coordinator"
    wait "$coordinator" 2>/dev/null || true
    until_true "the workers' end" none_left
    all_whole "killed in round $round"
done
batch in $steps --into out --existing newer 2>log || fail "the run after"
[ "$(outputs)" = $pictures ] || fail "the run after made too few"
all_whole "the run after"

# A signal: those under way are ended, the rest is told as not begun.
rm -rf out
mkdir out
begin in $steps --into out --report report
until_true "an output" some_done 1
family=$(family "$coordinator")
kill -TERM "$coordinator"
status=0
wait "$coordinator" || status=$?
[ "$status" = 143 ] || fail "after SIGTERM: $status"
grep -q 'not begun' log || fail "what is left was not told"
until_true "the workers' end" none_left
all_whole "a signal"
[ "$(grep -c '"result":"done"' report)" = "$(outputs)" ] || fail "the report is not what was done"

# Workers that crash take one picture each with them.
rm -rf out
mkdir out
begin in $steps --into out --report report
until_true "an output" some_done 1
for pid in $(pgrep -P "$coordinator"); do kill -SEGV "$pid" || true; done
status=0
wait "$coordinator" || status=$?
all_whole "a crash"
failed=$(grep -c '"result":"failed"' report || true)
[ "$status" = 1 ] || fail "after crashes: $status"
[ "$failed" -ge 1 ] && [ "$failed" -le "$(nproc)" ] || fail "$failed pictures failed by crashes"
[ "$(outputs)" = $((pictures - failed)) ] || fail "the others were not made"
grep -q 'Segmentation fault\|AddressSanitizer' log || fail "the crash was not told"

# A picture that vanishes, and a full disk.
rm -rf out
mkdir tiny out
if mount -t tmpfs -o size=1500k tiny tiny 2>/dev/null; then
    status=0
    batch in $steps --into tiny/out --report report 2>log || status=$?
    [ "$status" = 1 ] || fail "on a full disk: $status"
    grep -q 'the disk is full' log || fail "the full disk was not told"
    grep -q 'not begun' log || fail "the full disk did not stop it"
    mv tiny/out/* out/
    [ "$(grep -c '"result":"done"' report)" = "$(outputs)" ] || fail "the report of a full disk"
    all_whole "a full disk"
    umount tiny
else
    echo "No right to mount a small disk: that part is skipped"
fi
mkfifo in/0.jpg # keeps nobody waiting
mkdir in/5.png
status=0
batch in/*.jpg in/gone.jpg INVERT --into out/new 2>log || status=$?
[ "$status" = 1 ] && grep -q "$pictures done, 2 failed" log || fail "a pipe and a picture that is not there: $status"

# Many small ones: every one is made, and the memory does not grow with their number.
convert -size 32x24 plasma:red-blue small.png
peak() { # of coordinator and workers, in KB
    mkdir -p "small$1"
    for i in $(seq "$1"); do ln -f small.png "small$1/$i.png"; done
    /usr/bin/python3 - "$bin/velara-batch" "small$1" INVERT --into "out$1" <<'PYTHON' || fail "small files"
import resource, subprocess, sys
subprocess.run(sys.argv[1:], check=True, stderr=subprocess.DEVNULL)
print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)
PYTHON
}
few=$(peak 200)
many=$(peak 2000)
[ "$(find out2000 -name '*.png' | wc -l)" = 2000 ] || fail "small files are missing"
if ! grep -q __asan_init "$bin/velara-batch"; then
    [ "$many" -lt $((few + 8192)) ] || fail "$few KB for 200 files, $many KB for 2,000"
fi
echo "2,000 small files: $many KB at most in a process; 200: $few KB"
