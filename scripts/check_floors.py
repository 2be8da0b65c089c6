#!/usr/bin/env python3
"""Fails on an include of src/ that points up the floors, or sideways to another folder of its own floor, on a folder of too
many files, and on a type's name that two places of the whole tree define: linked into one program they would be one."""
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

places = {}
for tree in ["src", "tests", "tools", "bench"]:
    for file in sorted((source.parent / tree).rglob("*.[ch]*")):
        anonymous, space = False, ""
        for text in file.read_text().splitlines():
            if text in ("namespace {", "} // namespace"):
                anonymous = text == "namespace {"
            elif opened := re.match(r"namespace (\S+) \{", text):
                space = opened[1]
            defined = re.match(r"(?:class|struct|enum class|enum|union) (\w+)(?: final)?(?: : [^;]*)? \{", text)
            if defined and not anonymous:
                places.setdefault(f"{space}::{defined[1]}", set()).add(file.relative_to(source.parent).as_posix())
faults += [f"{name} is defined in {' and '.join(sorted(found))}" for name, found in places.items() if len(found) > 1]

print("\n".join(faults) or "every include points down, every name means one thing")
sys.exit(bool(faults))
