#!/usr/bin/env python3
"""Fails on an include of src/ that points up the floors, or sideways to another folder of its own floor."""
import pathlib
import re
import sys

FLOORS = [
    ["pixels"],
    ["region"],
    ["seams"],
    ["engine", "paint", "text", "reduce", "colour"],
    ["fileio"],
    ["platform", "document"],
    ["commands", "tools"],
    ["ui"],
    ["app", "batch"],
]
FLOOR = {room: number for number, rooms in enumerate(FLOORS, 1) for room in rooms}
SHARED = {"ui/widgets", "ui/widgets/inputs", "ui/widgets/marks"}  # what every folder of ui/ may include
MOST_FILES = 20

source = pathlib.Path(__file__).resolve().parent.parent / "src"
faults = []


def faultOf(folder, target):
    """What is wrong with an include from one folder to another, or None."""
    here, there = folder.split("/")[0], target.split("/")[0]
    if there not in FLOOR:
        return "not a room"
    if FLOOR[there] > FLOOR[here]:
        return "points up"
    if there != here and FLOOR[there] == FLOOR[here]:
        return "points sideways"
    if here == there == "ui" and target != folder and target not in SHARED:
        return "points sideways"
    return None


for file in sorted(source.rglob("*.[ch]*")):
    folder = file.parent.relative_to(source).as_posix()
    if folder.split("/")[0] not in FLOOR:
        faults.append(f"{file.relative_to(source)}: its folder stands on no floor")
        continue
    for line, text in enumerate(file.read_text().splitlines(), 1):
        named = re.match(r'\s*#\s*include "([^"]+)"', text)
        if named and "/" in named[1]:
            fault = faultOf(folder, named[1].rsplit("/", 1)[0])
            if fault:
                faults.append(f"{file.relative_to(source)}:{line}: {named[1]} {fault}")
for folder in [source, *sorted(p for p in source.rglob("*") if p.is_dir())]:
    files = [p for p in folder.iterdir() if p.suffix in (".cpp", ".h")]
    if len(files) > MOST_FILES:
        faults.append(f"{folder.relative_to(source)}: {len(files)} files, at most {MOST_FILES} fit a room")

print("\n".join(faults) or "every include points down")
sys.exit(bool(faults))
