#!/usr/bin/env python3
"""Fails on an include or a forward declaration of src/ that points up the floors, or sideways to another folder of its own
floor, on a function that is defined on a higher floor than the header that declares it, on a folder of too many files, and on
a type's name that two places of the whole tree define: linked into one program they would be one. It reads text and no C++:
it relies on the formatter, which begins what stands in a namespace in the first column."""
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
    ["app", "batch", "open"],
]
FLOOR = {room: number for number, rooms in enumerate(FLOORS, 1) for room in rooms}
SHARED = {"ui/widgets", "ui/widgets/inputs", "ui/widgets/marks"}  # what every folder of ui/ may include
MOST_FILES = 20

source = pathlib.Path(__file__).resolve().parent.parent / "src"
faults = []


def faultOf(folder, target):
    """Why an include from one folder to another is wrong, or None."""
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



def roomOf(file):
    return file.parent.relative_to(source).as_posix()


def statements(file):
    """Each statement that begins in the first column: (line, namespace, text). Anonymous namespaces are skipped."""
    anonymous, space, lines = False, "", file.read_text().splitlines()
    for number, text in enumerate(lines, 1):
        if text in ("namespace {", "} // namespace"):
            anonymous = text == "namespace {"
        elif opened := re.match(r"namespace (\S+) \{", text):
            space = opened[1]
        elif not anonymous and re.match(r"[A-Za-z_~]", text):
            rest = number
            while not re.search(r"[;{]\s*(//.*)?$", text) and rest < len(lines) and lines[rest].strip():
                text, rest = text + " " + lines[rest].strip(), rest + 1
            yield number, space, re.sub(r"\s//.*$", "", text)


def functionOf(text):
    """Class (or ""), name and whether there is a body, for a statement that declares a function; or None."""
    named = re.match(r"(?!using |namespace |template |static |static_assert|return |else |case )[\w:<>,&* ]*?(?:(\w+)::)?(~?\w+)\(", text)
    if not named:
        return None
    depth, at = 1, named.end()
    while at < len(text) and depth:
        depth += {"(": 1, ")": -1}.get(text[at], 0)
        at += 1
    return named[1] or "", named[2], "{" in text[at:]


places, headers, bodies = {}, {}, []  # names of types; headers that declare a function; (file, line, class, name) of one that is defined
for tree in ["src", "tests", "tools", "bench"]:
    for file in sorted((source.parent / tree).rglob("*.[ch]*")):
        for line, space, text in statements(file):
            if defined := re.match(r"(?:class|struct|enum class|enum|union) (\w+)(?: final)?(?: : [^;]*)? \{", text):
                places.setdefault(f"{space}::{defined[1]}", set()).add(file.relative_to(source.parent).as_posix())
            elif tree == "src" and (function := functionOf(text)):
                owner, name, body = function
                if body and file.suffix == ".cpp":
                    bodies.append((file, line, space, owner, name))
                elif not body and file.suffix == ".h":
                    headers.setdefault((space, name), set()).add(roomOf(file))

homes = {}  # the rooms of a type, by its name alone
for name, found in places.items():
    homes.setdefault(name.rsplit("::", 1)[1], set()).update(
        p[len("src/"):].rsplit("/", 1)[0] for p in found if p.startswith("src/"))
for file in sorted(source.rglob("*.[ch]*")):
    for line, text in enumerate(file.read_text().splitlines(), 1):
        named = re.match(r"\s*(?:friend )?(?:class|struct|enum class|enum) (\w+)(?: : [\w:]+)?;", text)
        found = named and [faultOf(roomOf(file), home) for home in homes.get(named[1], ())]
        if found and all(found):
            faults.append(f"{file.relative_to(source)}:{line}: {text.strip()} {found[0]}")
for file, line, space, owner, name in bodies:
    declared = homes.get(owner, set()) if owner else headers.get((space, name), set())
    if declared and all(FLOOR[room.split("/")[0]] < FLOOR[roomOf(file).split("/")[0]] for room in declared):
        faults.append(f"{file.relative_to(source)}:{line}: {name} is declared below, in {' and '.join(sorted(declared))}")
faults += [f"{name} is defined in {' and '.join(sorted(found))}" for name, found in places.items() if len(found) > 1]

print("\n".join(faults) or "every include and declaration points down, every name means one thing")
sys.exit(bool(faults))
