#!/usr/bin/env python3
"""How much of one thread's time the operations take with all cores, by the calling pattern that spreads them.

    scripts/bench_cores.py BENCH [--size WxH] [--into docs/speed.md]

BENCH is velara-bench. Prints a table, and with --into writes it between the lines <!-- cores --> of a file. For a machine
at rest: says so where it isn't. A row that takes at most two copies of the picture on one thread is bound by memory, and
must not get slower; the others compute.
"""

import argparse
import os
import re
import statistics
import subprocess
import sys

# Pattern: what its rows are called, as "family: name", beginning with one of these.
PATTERNS = [
    ("eachSpan: points",       ["channel ", "colour distance", "saturation", "HSL", "tables:", "random: NOISE", "gradients"]),
    ("eachSpan: neighbours",   ["3x3", "rank", "general mask", "painting"]),
    ("sum, then eachSpan",     ["tables after"]),
    ("eachSpan in an ellipse", ["selection shape"]),
    ("blocks of DIFFUSE",      ["random: DIFFUSE"]),
    ("eachTile",               ["nearest warps", "trigonometric: TWIRL", "trigonometric: BEND", "bilinear warp"]),
    ("disc",                   ["trigonometric: LENS", "light"]),
    ("cells",                  ["cells"]),
    ("crossing",               ["rows and columns", "tangents"]),
    ("moves",                  ["moves"]),
    ("quarter turn",           ["quarter turn"]),
    ("resizes",                ["nearest resize", "bilinear resize"]),
    ("SetDepth",               ["depth reduction: SetDepth"]),
    ("waves of diffusions",    ["error diffusion"]),
    ("nearest colours",        ["palette", "depth reduction: best"]),
    ("snapshot",               ["undo store: snapshot"]),
    ("previews",               ["filter preview", "preview"]),
    ("region shapes",          ["selection: two ellipses"]),
]
OF_MEMORY = 2.0  # copies
LINE = re.compile(r"(.{28}) (.{40}\S*) +(\S+) +(\S+) +(\S+) +(\S+)  (?:goal|must|no|-) +(\S+) +(\S+)  (.+)")


def measured(bench, size):
    """The rows that spread: "family: name", copies of the picture on one thread, part."""
    names = sorted({begin.split(":")[0].strip() for _, begins in PATTERNS for begin in begins})
    out = subprocess.run([bench, "--cores", "--size", size, *names], capture_output=True, text=True, check=True).stdout
    found = [line for line in map(LINE.match, out.splitlines()) if line and line[7] not in ("-", "cores")]
    copy = statistics.median([float(line[3]) / float(line[4]) for line in found if line[9].strip() == "memcpy"] or [1])
    return [(f"{line[1].strip()}: {line[2].strip()}", float(line[3]) / copy, float(line[7])) for line in found]


def table(rows):
    def line(pattern, kind, parts):
        if not parts:
            return []
        values = [part for _, part in parts]
        worst = max(parts, key=lambda part: part[1])
        return [f"| {pattern} | {kind} | {len(values)} | {min(values):.2f} | {statistics.median(values):.2f} | "
                f"{worst[1]:.2f} | {worst[0].split(': ', 1)[1]} |"]

    lines = ["| pattern | bound by | rows | least | median | most | which |", "|---|---|---|---|---|---|---|"]
    for pattern, begins in PATTERNS:
        own = [row for row in rows if any(row[0].startswith(begin) for begin in begins)]
        lines += line(pattern, "memory", [(name, part) for name, copies, part in own if copies <= OF_MEMORY])
        lines += line(pattern, "arithmetic", [(name, part) for name, copies, part in own if copies > OF_MEMORY])
    return lines


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("bench")
    parser.add_argument("--size", default="6000x4000")
    parser.add_argument("--into")
    asked = parser.parse_args()
    load, cores = os.getloadavg()[0], os.cpu_count()
    rows = measured(asked.bench, asked.size)
    if not rows:
        sys.exit(f"{asked.bench} gives no rows")
    rest = "at rest" if load < 0.3 else f"not at rest (load {load:.1f}), so the figures are too high"
    text = "\n".join([f"{asked.size}, {cores} cores, parts of the time with one thread; {rest}.", "", *table(rows)])
    print(text)
    if not asked.into:
        return
    mark = "<!-- cores -->"
    with open(asked.into, encoding="utf-8") as file:
        parts = file.read().split(mark)
    if len(parts) != 3:
        sys.exit(f"{asked.into} has not two lines {mark}")
    with open(asked.into, "w", encoding="utf-8") as file:
        file.write(f"{parts[0]}{mark}\n{text}\n{mark}{parts[2]}")


if __name__ == "__main__":
    main()
