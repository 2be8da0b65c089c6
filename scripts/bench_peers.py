#!/usr/bin/env python3
"""The same work by velara-bench and by other libraries in one run, on one thread and on all: a table, and how the time grows
with the picture, as a plot. For a machine at rest.

    scripts/bench_peers.py PROGRAMS [--size WxH] [--into docs/speed.md]     PROGRAMS is the folder of velara-bench

Peers that aren't installed are left out: python3-opencv, libvips42, graphicsmagick, imagemagick. The last two are whole
programs: what it takes them to do nothing to the picture is measured, too, and subtracted. libvips computes a picture into
memory of its own each time, all of it."""
import argparse
import ctypes
import ctypes.util
import math
import os
import re
import shutil
import statistics
import subprocess
import tempfile
import time

try:
    import cv2
except ImportError:
    cv2 = None

ROUNDS = 5
CORES = os.cpu_count() or 1


# --- The work: the row of velara-bench, and the same for each peer

BLACK_AND_WHITE, SRGB, NEAREST, LINEAR = 1, 22, 0, 1  # numbers of libvips

# name of the row; OpenCV; operation of libvips with its arguments by place and by name, None where it has nothing of the kind;
# arguments of gm and convert
WORK = (
    ("Invert", lambda p: cv2.bitwise_not(p), ("invert", (), {}), "-negate"),
    ("GammaCorrection(-30)", lambda p: cv2.LUT(p, TABLE), ("gamma", (), {"exponent": 0.7}), "-gamma 0.7"),
    ("GreyScale", lambda p: cv2.cvtColor(cv2.cvtColor(p, cv2.COLOR_BGRA2GRAY), cv2.COLOR_GRAY2BGRA),
     ("colourspace", (BLACK_AND_WHITE,), {}), "-colorspace Gray"),
    ("SHARPEN(10)", lambda p: cv2.filter2D(p, -1, KERNEL), ("conv", ("mask",), {"precision": 0}), "-sharpen 1x1"),
    ("DILATE", lambda p: cv2.dilate(p, SQUARE), ("rank", (3, 3, 8), {}), None),
    ("BitsRotate90", lambda p: cv2.rotate(p, cv2.ROTATE_90_CLOCKWISE), ("rot", (1,), {}), "-rotate 90"),
    ("Flip(true,false)", lambda p: cv2.flip(p, 1), ("flip", (0,), {}), "-flop"),
    ("Flip(false,true)", lambda p: cv2.flip(p, 0), ("flip", (1,), {}), "-flip"),
    ("RotateSmooth(30)", lambda p: cv2.warpAffine(p, turned(p), (p.shape[1], p.shape[0]), flags=cv2.INTER_LINEAR),
     ("similarity", (), {"angle": 30.0}), None),
    ("BitsResample(3000,2000)", lambda p: cv2.resize(p, (3000, 2000), interpolation=cv2.INTER_LINEAR),
     ("resize", (0.5,), {"kernel": LINEAR}), "-filter Triangle -resize 50%"),
    ("BitsResample(9000,6000)", lambda p: cv2.resize(p, (9000, 6000), interpolation=cv2.INTER_LINEAR),
     ("resize", (1.5,), {"kernel": LINEAR}), None),
    ("BitsResize(3000,2000)", lambda p: cv2.resize(p, (3000, 2000), interpolation=cv2.INTER_NEAREST),
     ("resize", (0.5,), {"kernel": NEAREST}), "-sample 50%"),
    ("NOISE(20,true)", lambda p: cv2.add(p, noise(p)), None, None),
    ("all, opaque", lambda p: cv2.floodFill(FLAT.copy(), None, (10, 10), (255, 0, 0)), None, None),
)
SHARPEN = ((0, -1, 0), (-1, 5, -1), (0, -1, 0))


def turned(p):
    return cv2.getRotationMatrix2D((p.shape[1] / 2, p.shape[0] / 2), 30, 1)


def noise(p):
    into = p.copy()
    cv2.randu(into, 0, 20)
    return into


def openCvPicture(width, height):
    """A picture of random numbers, and the tables of the work."""
    global TABLE, KERNEL, SQUARE, FLAT
    import numpy
    FLAT = numpy.zeros((height, width, 3), dtype=numpy.uint8)
    TABLE = numpy.array([round(255 * (v / 255) ** 1.3) for v in range(256)], dtype=numpy.uint8)
    KERNEL = numpy.array(SHARPEN, dtype=numpy.float32)
    SQUARE = numpy.ones((3, 3), dtype=numpy.uint8)
    return numpy.random.default_rng(1).integers(0, 256, (height, width, 4), dtype=numpy.uint8)


# --- Measuring

def milliseconds(work):
    times = []
    for _ in range(ROUNDS):
        start = time.monotonic()
        work()
        times.append(1000 * (time.monotonic() - start))
    return statistics.median(times)


def ours(program, names, size, cores=True):
    """By row: milliseconds on one thread, those on all, and the most memory in pictures."""
    table = subprocess.run([program, "--size", size, *(["--cores"] if cores else []), *names], check=True,
                           capture_output=True, text=True).stdout
    rows = {}
    for line in table.splitlines()[1:]:
        fields = re.match(r"(.{28}) (.{40}) +([\d.]+) +([\d.]+|-) +\S+ +\S+ +\S+ +(\S+) +(\S+)", line)
        if fields:
            one = float(fields[3])
            rows[fields[2].strip()] = (one, one * float(fields[5]) if fields[5] != "-" else None, fields[6])
    return rows


def byOpenCv(work, picture, threads):
    cv2.setNumThreads(threads)
    return milliseconds(lambda: work(picture))


def byProgram(run, work, nothing):
    return max(0.0, milliseconds(lambda: run(work)) - milliseconds(lambda: run(nothing)))


class Vips:
    """libvips in this process, on a picture of four bands."""

    def __init__(self, picture):
        self.vips = ctypes.CDLL("libvips.so.42")
        for name in ("vips_image_new_from_memory", "vips_image_new_matrix_from_array", "vips_image_write_to_memory"):
            getattr(self.vips, name).restype = ctypes.c_void_p
        if self.vips.vips_init(b"bench"):
            raise OSError("libvips does not start")
        self.vips.vips_cache_set_max(0)  # each time anew
        self.pixels = picture.tobytes()
        height, width, bands = picture.shape
        stored = ctypes.c_void_p(self.vips.vips_image_new_from_memory(
            self.pixels, ctypes.c_size_t(len(self.pixels)), width, height, bands, 0))
        self.picture = self.call("copy", stored, (), {"interpretation": SRGB})
        weights = [float(v) for row in SHARPEN for v in row]
        self.mask = ctypes.c_void_p(self.vips.vips_image_new_matrix_from_array(
            3, 3, (ctypes.c_double * 9)(*weights), 9))

    def call(self, name, picture, places, names):
        result = ctypes.c_void_p()
        words = [self.mask if v == "mask" else ctypes.c_double(v) if isinstance(v, float) else v for v in places]
        for key, value in names.items():
            words += [key.encode(), ctypes.c_double(value) if isinstance(value, float) else value]
        if self.vips.vips_call(name.encode(), picture, ctypes.byref(result), *words, None):
            raise RuntimeError("libvips: " + name)
        return result

    def compute(self, name, places, names):
        result, size = self.call(name, self.picture, places, names), ctypes.c_size_t()
        pixels = ctypes.c_void_p(self.vips.vips_image_write_to_memory(result, ctypes.byref(size)))
        self.vips.g_free(pixels)
        self.vips.g_object_unref(result)

    def by(self, work, threads):
        self.vips.vips_concurrency_set(threads)
        return milliseconds(lambda: self.compute(*work))


def byMagick(program, arguments, file):
    return byProgram(lambda words: subprocess.run([*program, file, *words.split(), "null:"], check=True), arguments, "")


# --- The growth

GROWTH = ("memcpy", "BRIGHTNESS(20)", "SHARPEN(10)", "TWIRL(20,0,true)", "snapshot written, ten stand", "brush 25", "zoom 1")
SIZES = ((1000, 1000), (2000, 2000), (4000, 4000), (8000, 8000), (16000, 16000))


def growth(program):
    """Milliseconds by row and size, and the most memory by row; sizes whose pictures don't fit into memory are left out."""
    free = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_AVPHYS_PAGES")
    sizes = [(w, h) for w, h in SIZES if 24 * w * h < free]
    times, memory = {name: [] for name in GROWTH}, {}
    for width, height in sizes:
        measured = ours(program, GROWTH, f"{width}x{height}", cores=False)
        for name in GROWTH:
            times[name].append(measured.get(name, (math.nan,))[0])
            memory[name] = measured.get(name, (None, None, "-"))[2]
    return [w * h / 1e6 for w, h in sizes], times, memory


def exponent(sizes, times, least=4):
    """The slope of the line through the logarithms, from `least` megapixels on: smaller pictures stay in the caches."""
    points = [(math.log(s), math.log(t)) for s, t in zip(sizes, times) if s >= least and t > 0.005]
    if len(points) < 2:
        return 0.0
    mx, my = (statistics.mean(v) for v in zip(*points))
    return sum((x - mx) * (y - my) for x, y in points) / sum((x - mx) ** 2 for x, _ in points)


def plot(sizes, times, path):
    """Both axes logarithmic: 1 to 256 megapixels, 0.01 ms to 100 s."""
    width, height, left, top = 720, 420, 60, 20
    x = lambda s: left + math.log10(s) / math.log10(256) * (width - left - 220)
    y = lambda t: top + (5 - math.log10(max(t, 0.01))) / 7 * (height - 2 * top - 20)
    colours = ("#000000", "#1b6ca8", "#c0392b", "#2e8b57", "#8e44ad", "#b9770e", "#555555")
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" font-family="sans-serif" font-size="12">',
             f'<rect width="{width}" height="{height}" fill="white"/>']
    for power in range(-2, 6):
        label = f"{10 ** power:g} ms" if power < 3 else f"{10 ** (power - 3):g} s"
        lines.append(f'<path d="M{left} {y(10 ** power):.1f}H{width - 220}" stroke="#dddddd"/>'
                     f'<text x="{left - 6}" y="{y(10 ** power) + 4:.1f}" text-anchor="end">{label}</text>')
    for size in sizes:
        lines.append(f'<text x="{x(size):.1f}" y="{height - 10}" text-anchor="middle">{size:g} MP</text>')
    free = 0.0  # below the label before
    for colour, (name, row) in sorted(zip(colours, times.items()), key=lambda line: y(line[1][1][-1])):
        points = " ".join(f"{x(s):.1f},{y(t):.1f}" for s, t in zip(sizes, row))
        label = max(y(row[-1]) + 4, free)
        free = label + 14
        lines.append(f'<polyline points="{points}" fill="none" stroke="{colour}" stroke-width="2"/>'
                     f'<text x="{width - 212}" y="{label:.1f}" fill="{colour}">{name}, {exponent(sizes, row):.2f}</text>')
    with open(path, "w", encoding="utf-8") as file:
        file.write("\n".join([*lines, "</svg>\n"]))


# --- The tables

def cell(value):
    return "-" if value is None else f"{value:.1f}"


def peersTable(programs, size):
    width, height = map(int, size.split("x"))
    picture = openCvPicture(width, height) if cv2 else None
    vips = Vips(picture) if picture is not None and ctypes.util.find_library("vips") else None
    measured = ours(os.path.join(programs, "velara-bench"), [row[0] for row in WORK], size)
    tools = [[name, *more] for name, more in (("gm", ["convert"]), ("convert", [])) if shutil.which(name)]
    both = (1, CORES)
    yield ["ms", *(f"{name}, {n}" for name, there in (("here", True), ("OpenCV", cv2), ("libvips", vips)) if there
                   for n in both), *(tool[0] for tool in tools)]
    with tempfile.TemporaryDirectory(dir="/dev/shm") as folder:
        file = os.path.join(folder, "picture.ppm")
        with open(file, "wb") as ppm:
            ppm.write(b"P6\n%d %d\n255\n" % (width, height) + os.urandom(3 * width * height))
        for name, openCv, forVips, arguments in WORK:
            row = list(measured.get(name, (None, None, None)))[:2]
            row += [byOpenCv(openCv, picture, n) for n in both] if cv2 else []
            row += [vips.by(forVips, n) if forVips else None for n in both] if vips else []
            row += [byMagick(tool, arguments, file) if arguments else None for tool in tools]
            yield [name, *map(cell, row)]


def growthTable(sizes, times, memory):
    yield ["ms", *(f"{size:g} MP" for size in sizes), "exponent from 4 MP", "from 16 MP", "memory at most, pictures"]
    for name, row in times.items():
        yield [name, *(f"{t:.2f}" for t in row), f"{exponent(sizes, row):.2f}", f"{exponent(sizes, row, 16):.2f}",
               memory[name]]


def asText(rows):
    rows = list(rows)
    return "\n".join("| " + " | ".join(row) + " |" + ("\n|" + "---|" * len(row) if i == 0 else "")
                     for i, row in enumerate(rows)) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("programs")
    parser.add_argument("--size", default="6000x4000")
    parser.add_argument("--into", help="a text whose part after the line of three dashes is replaced")
    given = parser.parse_args()
    sizes, times, memory = growth(os.path.join(given.programs, "velara-bench"))
    text = (f"{given.size}, {CORES} cores, milliseconds; gm and convert with all cores, less what reading takes: 0.0 is less "
            + "than that varies.\n\n"
            + asText(peersTable(given.programs, given.size))
            + "\nHow the time grows with the picture, one thread. The copy's row is the machine's own share: pictures of 4 megapixels "
            + "lie in its caches, those from 16 on in memory.\n\n" + asText(growthTable(sizes, times, memory)))
    print(text)
    if given.into:
        picture = os.path.join(os.path.dirname(given.into), "pictures", "growth.svg")
        plot(sizes, times, picture)
        with open(given.into, encoding="utf-8") as file:
            before = file.read().split("\n---\n")[0]
        with open(given.into, "w", encoding="utf-8") as file:
            file.write(before + "\n---\n\n" + text + "\n![growth](pictures/growth.svg)\n")


if __name__ == "__main__":
    main()
