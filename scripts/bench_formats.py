#!/usr/bin/env python3
"""Reading and writing whole files beside the plain programs of the same libraries, alternately, wall clock; and what the
presets of "Save for Web" make of photographs, in bytes and decibels, beside those programs at the same settings.

    scripts/bench_formats.py PROGRAMS --sample FILE [--size WxH] [--rounds N] [--photos FILE...] [--sizes-only]

PROGRAMS is the folder of velara-batch.

A row is a format: velara-batch reads a file of it and writes a PPM, as the plain program does; or both filter a JPEG. The
files lie in memory (/dev/shm). Rows whose program isn't installed are left out."""
import argparse
import math
import os
import re
import shutil
import statistics
import subprocess
import tempfile
import time

MAKE = {  # how the file of a format is made from the PNG
    "jpg": "pngtopnm {png} | cjpeg -quality 90 -outfile {file}",
    "png": "cp {png} {file}",
    "tif": "{batch} {png} {file}",
    "webp": "cwebp -quiet -q 85 -m 2 {png} -o {file}",
    "heic": "heif-enc -q 70 {png} -o {file}",
    "avif": "avifenc -s 9 {png} {file}",
    "jxl": "cjxl -d 1 -e 3 {png} {file}",
}
READ = {  # the plain program of the library
    "jpg": "djpeg -outfile {out} {file}",
    "png": "pngtopnm {file} > {out}",
    "tif": "tifftopnm {file} > {out}",
    "webp": "dwebp -quiet {file} -ppm -o {out}",
    "heic": "heif-convert {file} {out}.y4m",
    "avif": "heif-convert {file} {out}.y4m",
    "jxl": "djxl {file} {out}",
}
# Kernel of 3x3 that embosses, as EMBOSS does.
VIPS = "vips conv {file} {out}.jpg[Q=100,subsample-mode=on] {matrix}"  # as velara-batch writes it
MATRIX = "3 3 1 128\n-1 0 0\n0 0 0\n0 0 1\n"

# The presets, and the plain programs at what they set: AVIF's quality is a quantiser of 0 to 63 with speed 6.
PRESETS = {
    "webp": ("WebP", "cwebp -quiet -q {quality} {png} -o {file}"),
    "avif": (
        "AVIF",
        "avifenc -s 6 --min 0 --max 63 -a end-usage=q -a cq-level={quantiser} -y {chroma} {png} {file}",
    ),
    "jxl": ("JPEG XL", "cjxl -q {quality} -e 5 {png} {file}"),
}
QUALITIES = (50, 75, 90)


def seconds(command):
    start = time.monotonic()
    subprocess.run(command, shell=True, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.monotonic() - start


def compared(ours, theirs, rounds):
    """Medians of alternate runs."""
    times = ([], [])
    for _ in range(rounds):
        for command, kept in zip((ours, theirs), times):
            kept.append(seconds(command))
    return statistics.median(times[0]), statistics.median(times[1])


def there(command):
    return all(shutil.which(part.split()[0]) or "/" in part.split()[0] for part in command.split("|"))


def decibels(one, other):
    """Of two PPM files of one size."""

    def pixels(path):
        with open(path, "rb") as file:
            content = file.read()
        return content[re.match(rb"P6\s+(?:#.*\s+)*\d+\s+\d+\s+255\s", content).end() :]

    a, b = pixels(one), pixels(other)
    error = sum((x - y) ** 2 for x, y in zip(a, b)) / len(a)
    return 10 * math.log10(255 * 255 / error) if error else math.inf


def compare_presets(batch, photo, folder):
    """Bytes and decibels of each preset and of the plain program, the decoded files against the photograph."""
    names = {"png": os.path.join(folder, "photo.png")}
    original, decoded = os.path.join(folder, "photo.ppm"), os.path.join(folder, "decoded.ppm")
    for made in (names["png"], original):
        seconds(f"{batch} {photo} {made}")
    print(f"{os.path.basename(photo):24}{'bytes':>9}{'plain':>9}{'%':>8}{'dB':>8}{'plain':>8}")
    for kind, (preset, plain) in PRESETS.items():
        for quality in QUALITIES:
            names |= {"quality": quality, "quantiser": ((100 - quality) * 63 + 50) // 100}
            names |= {"chroma": "420" if quality < 90 else "444", "file": os.path.join(folder, "plain." + kind)}
            if not there(plain.format(**names)):
                continue
            ours = os.path.join(folder, "ours." + kind)
            seconds(f"{batch} {names['png']} --web '{preset}' --quality {quality} {ours}")
            seconds(plain.format(**names))
            sizes, levels = [], []
            for file in (ours, names["file"]):
                seconds(f"{batch} {file} {decoded}")
                sizes.append(os.path.getsize(file))
                levels.append(decibels(decoded, original))
            percent = 100 * (sizes[0] / sizes[1] - 1)
            row = f"{sizes[0]:9}{sizes[1]:9}{percent:+8.2f}{levels[0]:8.2f}{levels[1]:8.2f}"
            print(f"{kind + ' ' + str(quality):24}{row}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("programs")
    parser.add_argument("--size", default="6000x4000")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--sample", required=True, help="a small picture that is enlarged, with noise")
    parser.add_argument("--photos", nargs="*", default=[], help="for the presets")
    parser.add_argument("--sizes-only", action="store_true")
    given = parser.parse_args()
    batch = os.path.join(os.path.abspath(given.programs), "velara-batch")
    width, height = given.size.split("x")
    with tempfile.TemporaryDirectory(dir="/dev/shm") as folder:
        for photo in given.photos:
            compare_presets(batch, photo, folder)
        if given.sizes_only:
            return
        png, out = os.path.join(folder, "picture.png"), os.path.join(folder, "out.ppm")
        subprocess.run([batch, given.sample, f"BitsResample({width},{height})", "NOISE(6,true)", png], check=True)
        print(f"{'':24}{'velara-batch':>13}{'plain':>9}{'ratio':>8}")

        def row(name, ours, theirs):
            a, b = compared(ours, theirs, given.rounds)
            print(f"{name:24}{a:11.3f} s{b:7.3f} s{a / b:8.2f}", flush=True)

        for kind, read in READ.items():
            names = {"png": png, "batch": batch, "file": os.path.join(folder, "x." + kind), "out": out}
            make = MAKE[kind].format(**names)
            if not there(make) or not there(read.format(**names)):
                continue
            seconds(make)
            to = out
            row("read " + kind, f"{batch} {names['file']} {to}", read.format(**names))
        if shutil.which("vips"):
            photo, matrix = os.path.join(folder, "x.jpg"), os.path.join(folder, "emboss.mat")
            with open(matrix, "w", encoding="ascii") as file:
                file.write(MATRIX)
            ours = f"{batch} {photo} 'EMBOSS(10)' {out}.jpg"
            row("jpg, EMBOSS(10), jpg", ours, VIPS.format(file=photo, out=out, matrix=matrix))


if __name__ == "__main__":
    main()
