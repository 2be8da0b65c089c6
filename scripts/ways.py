#!/usr/bin/env python3
"""The worked examples of docs/architecture.md, put into the source.

    scripts/ways.py --check BUILD    a copy with all of them compiles; with one block left out the compiler names its file
    scripts/ways.py --new-filter NAME    writes the blocks of the filter under that name

The first line of a block says where the rest goes: "// FILE: new", "at the end", "at the end of `TABLE`", "above `TEXT`" or
"below `TEXT`". BUILD has the compile_commands.json. Exit 1 when something doesn't hold."""
import concurrent.futures
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
# A block that may be forgotten, and the file whose compilation fails then.
TELLERS = {
    "src/engine/cBitFilter.h: at the end of `kOperationRows`": "src/commands/filterDialogs.cpp",
    "src/commands/vocabulary.h: at the end of `kCommandWords`": "src/app/frame/fMain_commands.cpp",
    "src/app/frame/fMain_commands.cpp: at the end of `kHandlers`": "src/app/frame/fMain_commands.cpp",
    "src/fileio/formats.h: at the end of `kFormats`": "src/fileio/decode/decode.cpp",
    "src/fileio/formats.h: at the end of `kOpened`": "src/fileio/formats.cpp",
    "src/fileio/formats.h: at the end of `kFamilies`": "src/fileio/formats.cpp",
    "src/fileio/mimeTypes.h: at the end of `kMimeTypes`": "src/fileio/formats.cpp",
    "src/fileio/decode/decode.cpp: at the end of `kReaders`": "src/fileio/decode/decode.cpp",
    "src/fileio/SetupStore.cpp: at the end of `kFields`": "src/fileio/SetupStore.cpp",
}


def blocks(name):
    """(first line, file, where, code) of each block, in document order; the filter with another name."""
    text = open(os.path.join(ROOT, "docs/architecture.md"), encoding="utf-8").read()
    found = re.findall(r"```cpp\n// ((\S+): ([^\n]*))\n(.*?)```", text, re.S)
    if len(found) != text.count("```cpp"):
        sys.exit("docs/architecture.md: a block doesn't say where it goes")
    dialogs = open(os.path.join(ROOT, "src/commands/filterDialogs.cpp"), encoding="utf-8").read()
    number = max(int(n) for n in re.findall(r'^    \{ ?(\d+), "', dialogs, re.M)) + 1
    own = lambda code: code.replace("POSTERIZE", name.upper()).replace("Posterize", name).replace("{41,", f"{{{number},")
    return [(line, file, where, own(code)) for line, file, where, code in found]


def put(root, file, where, code):
    path = os.path.join(root, file)
    if where == "new":
        open(path, "w", encoding="utf-8").write(code)
        return
    lines = open(path, encoding="utf-8").read().split("\n")
    named = re.search(r"`(.*)`", where)
    matching = [i for i, line in enumerate(lines) if not named or named[1] in line]
    if not matching:
        sys.exit(f"{file} has no {where}")
    at = matching[0]
    if where == "at the end":
        at = max(i for i, line in enumerate(lines) if line.startswith("} // namespace velara"))
    elif where.startswith("at the end of"):
        starts = [i for i in matching if re.search(re.escape(named[1]) + r"(\[.*\{|$)", lines[i])]
        at = next(i for i in range(starts[-1], len(lines)) if lines[i].strip() == "};")
    elif where.startswith("below"):
        at += 1
    lines[at:at] = code.rstrip("\n").split("\n") + [""] * code.endswith("\n\n")
    open(path, "w", encoding="utf-8").write("\n".join(lines))


def copyWith(chosen):
    tree = tempfile.mkdtemp(prefix="ways")
    for folder in ("src", "tools"):
        shutil.copytree(os.path.join(ROOT, folder), os.path.join(tree, folder))
    for _, file, where, code in chosen:
        put(tree, file, where, code)
    return tree


def compiled(tree, commands, file):
    """The compiler's output for the file in the copy; empty on success. A new file takes the flags of a neighbour."""
    own = os.path.join(ROOT, file)
    flagged = own if own in commands else next(c for c in commands if os.path.dirname(c) == os.path.dirname(own))
    command = re.sub(r" -o \S+ -c \S+", "", commands[flagged]["command"]).replace(ROOT + "/src", tree + "/src")
    command = command.replace(f"-I{ROOT} ", f"-I{tree} ")
    done = subprocess.run(f"{command} -fsyntax-only {os.path.join(tree, file)}", shell=True, capture_output=True, text=True,
                          cwd=commands[flagged]["directory"], check=False)
    return done.stderr if done.returncode else ""


def check(build):
    all_blocks = blocks("Solarise")  # as --new-filter writes it
    commands = {c["file"]: c for c in json.load(open(os.path.join(build, "compile_commands.json"), encoding="utf-8"))}
    trees, jobs = [], []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        trees.append(copyWith(all_blocks))
        touched = {b[1] for b in all_blocks if b[1].endswith(".cpp")} | set(TELLERS.values())
        for file in sorted(touched):
            jobs.append((f"with all examples {file}", "", pool.submit(compiled, trees[0], commands, file)))
        for line, teller in TELLERS.items():
            chosen = [b for b in all_blocks if b[0] != line]
            if len(chosen) == len(all_blocks):
                sys.exit(f"docs/architecture.md has no example for {line}")
            trees.append(copyWith(chosen))
            jobs.append((f"without the block {line}", line.split(":")[0], pool.submit(compiled, trees[-1], commands, teller)))
    faults = 0
    for what, wanted, job in jobs:
        said = job.result()
        told = re.findall(r"error: .*", said)
        if (wanted and not any(wanted in line for line in told)) or (not wanted and said):
            faults += 1
            print(f"{what}: the compiler says\n{said[:1500] or 'nothing'}")
    for tree in trees:
        shutil.rmtree(tree)
    print(f"{len(jobs)} compiled, {faults} not as they should")
    return faults > 0


def newFilter(name):
    if not re.fullmatch(r"[A-Z][A-Za-z0-9]*", name):
        sys.exit("NAME is a word of letters and digits that begins with a capital, as Posterize")
    for file in ("engine/cBitFilter.h", "commands/filterDialogs.cpp", "commands/vocabulary.h", "commands/presets.cpp"):
        text = open(os.path.join(ROOT, "src", file), encoding="utf-8").read()
        if re.search(rf'\b{name}\(|"{name.upper()}"', text):
            sys.exit(f"src/{file} has a {name} already")
    for _, file, where, code in blocks(name):
        if name in code:
            put(ROOT, file, where, code)
            print(f"{file}: {where}")
    print("Now put the formula into the filter and its definition, then: make reference test")


if len(sys.argv) != 3 or sys.argv[1] not in ("--check", "--new-filter"):
    sys.exit(__doc__)
sys.exit(check(sys.argv[2]) if sys.argv[1] == "--check" else newFilter(sys.argv[2]))
