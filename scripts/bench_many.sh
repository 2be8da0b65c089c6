#!/bin/bash
# How many pictures a second velara-batch makes, beside other programs for the same: JPEGs of 12 megapixels to half the size,
# sharpened, as JPEG. Each program in turn over the same pictures, several rounds; the table has the middle one. Then small
# files: the time a picture, by their number, and the largest memory of a process.
#     scripts/bench_many.sh BIN [PICTURES [ROUNDS [SMALL]]]      make bench-many PICTURES=1000 ROUNDS=3
set -eu
bin=$(realpath "$1") pictures=${2:-40} rounds=${3:-3} small=${4:-2000}
for tool in vipsthumbnail vips gm mogrify convert; do
    command -v $tool >/dev/null || { echo "$tool is missing: apt-get install libvips-tools graphicsmagick imagemagick" >&2; exit 1; }
done
scratch=$(mktemp -d "${TMPDIR:-/tmp}/bench-many-XXXXXX")
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
mkdir in
# A few different ones; the others are further names of these.
for i in 0 1 2 3; do
    convert -size 4000x3000 -seed "$i" plasma:grey50-grey60 -attenuate 0.4 +noise gaussian -quality 90 "in/$i.jpg"
done
for i in $(seq 4 $((pictures - 1))); do ln "in/$((i % 4)).jpg" "in/$i.jpg"; done
cores=$(nproc)

run_velara() { "$bin/velara-batch" in 50 LIGHTSHARPEN --into out --quality 85 2>/dev/null; }
run_velara_1() { taskset -c 0 "$bin/velara-batch" in 50 LIGHTSHARPEN --into out --quality 85 --jobs 1 --threads 1 2>/dev/null; }
run_vipsthumbnail() { # shrinks while it decodes, which the others are not asked to do
    find in -name '*.jpg' -print0 | VIPS_CONCURRENCY=1 xargs -0 -n 25 -P "$cores" vipsthumbnail -s 2000x1500 -o "$PWD/out/%s.jpg[Q=85]"
}
run_vips() {
    find in -name '*.jpg' -printf '%f\0' | VIPS_CONCURRENCY=1 xargs -0 -n 1 -P "$cores" sh -c \
        'vips resize "in/$0" "tmp/$0.v" 0.5 && vips sharpen "tmp/$0.v" "out/$0[Q=85]" && rm "tmp/$0.v"'
}
run_gm() { mkdir -p out/in; find in -name '*.jpg' -print0 | OMP_NUM_THREADS=1 xargs -0 -n 10 -P "$cores" gm mogrify -output-directory out -resize 50% -sharpen 0x1 -quality 85; }
run_mogrify() { find in -name '*.jpg' -print0 | OMP_NUM_THREADS=1 xargs -0 -n 10 -P "$cores" mogrify -path out -resize 50% -sharpen 0x1 -quality 85; }

programs="velara velara_1 vipsthumbnail vips gm mogrify"
for round in $(seq "$rounds"); do
    for program in $programs; do
        rm -rf out tmp
        mkdir out tmp
        begin=$(date +%s%N)
        "run_$program"
        end=$(date +%s%N)
        [ "$(find out -name '*.jpg' | wc -l)" = "$pictures" ] || { echo "$program made too few" >&2; exit 1; }
        echo "$(((end - begin) / 1000000))" >>"times_$program"
        [ "$round" = "$rounds" ] && [ "$program" = velara ] && identify -format '%wx%h' out/0.jpg >size
    done
done
middle() { sort -n "$1" | sed -n "$((($(wc -l <"$1") + 1) / 2))p"; }
own=$(middle times_velara)
echo "$pictures JPEGs of 12 megapixels to $(cat size), sharpened, $rounds rounds, $cores cores"
printf '%-16s %10s %12s %10s\n' program seconds pictures/s "x velara"
for program in $programs; do
    awk -v n="$program" -v ms="$(middle "times_$program")" -v p="$pictures" -v own="$own" \
        'BEGIN { printf "%-16s %10.1f %12.2f %10.2f\n", n, ms / 1000, p * 1000 / ms, ms / own }'
done
echo "velara_1: one job on one core"

convert -size 64x48 plasma:red-blue small.jpg
mkdir /dev/shm/bench-many-$$ && trap 'rm -rf "$scratch" /dev/shm/bench-many-$$' EXIT
cd /dev/shm/bench-many-$$ # no disk: what is measured is the program
for count in $((small / 10)) "$small"; do
    mkdir "s$count"
    for i in $(seq "$count"); do ln "$scratch/small.jpg" "s$count/$i.jpg" 2>/dev/null || cp "$scratch/small.jpg" "s$count/$i.jpg"; done
    python3 - "$bin/velara-batch" "s$count" "$count" <<'PYTHON'
import resource, subprocess, sys, time
program, folder, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
for jobs in ("1", None):
    begin, used = time.monotonic(), resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run([program, folder, "INVERT", "--into", "o" + folder + str(jobs)] + (["--jobs", jobs] if jobs else []),
                   check=True, stderr=subprocess.DEVNULL)
    took, after = time.monotonic() - begin, resource.getrusage(resource.RUSAGE_CHILDREN)
    cpu = after.ru_utime + after.ru_stime - used.ru_utime - used.ru_stime
    print(f"{count} small files, jobs {jobs or 'as cores'}: {took / count * 1000:.2f} ms each, {cpu / count * 1000:.2f} ms of "
          f"processor time, {after.ru_maxrss // 1024} MB at most in a process")
PYTHON
done
