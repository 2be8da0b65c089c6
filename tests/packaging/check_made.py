#!/usr/bin/env python3
"""Checks the files that velara-packaging has made, and an installed tree: check_made.py BUILD-FOLDER. What needs a program that
isn't there is named as skipped."""
import configparser
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

build = pathlib.Path(sys.argv[1]).resolve()
made = build / "packaging"
faults = []


def said(*command, **more):
    return subprocess.run([str(c) for c in command], capture_output=True, text=True, check=False, **more)


def check(program, *arguments, wants=0):
    """The program finds no fault."""
    if not shutil.which(program):
        print(f"SKIPPED: {program} is not installed")
        return
    got = said(program, *arguments)
    if got.returncode != wants:
        faults.append(f"{program}: {got.stdout}{got.stderr}")


def entry(name):
    parser = configparser.ConfigParser(interpolation=None, strict=True)
    parser.optionxform = str
    parser.read(made / name, encoding="utf-8")
    return parser


def rows(header, table):
    """The first text of each row of a table in a header."""
    text = (pathlib.Path(__file__).parents[2] / "src/fileio" / header).read_text()
    return re.findall(r'^\s*\{"(.+?)"', text[text.index(table):].split("};")[0], re.MULTILINE)


def typesAgreeWithTheSystem():
    """Each extension has the type by which file managers know it; the rest is declared by us."""
    ours = {g.get("pattern")[2:]: m.get("type") for m in xml.parse(made / "org.velara.Studio.xml").getroot()
            for g in m if g.tag.endswith("glob")}
    types = entry("org.velara.Studio.desktop")["Desktop Entry"]["MimeType"].strip(";").split(";")
    database = pathlib.Path("/usr/share/mime/globs2")
    if not database.exists():
        return print("SKIPPED: there is no database of types")
    known = {}
    for line in database.read_text().splitlines():
        if not line.startswith("#") and line.split(":")[2].startswith("*."):
            known.setdefault(line.split(":")[2][2:], set()).add(line.split(":")[1])
    for extension in rows("formats.h", "kFormats[]"):
        if extension in ours and extension in known and ours[extension] not in known[extension]:
            faults.append(f".{extension} is declared, but the system has {known[extension]}")
        if not {ours.get(extension), *known.get(extension, ())} & set(types):
            faults.append(f".{extension} is none of the types of the desktop file")
    for declared in ours.values():
        if declared not in types:
            faults.append(f"{declared} is declared and not opened")


def completionCompletes():
    """What bash offers on a command line, in a folder of a picture and a text."""
    with tempfile.TemporaryDirectory() as folder:
        for name in ("photo one.PNG", "notes.txt"):
            (pathlib.Path(folder) / name).touch()
        for program, words, wanted in [("velara-batch", ["GreySc"], "GreyScale("), ("velara-batch", ["p"], "photo one.PNG"),
                                       ("velara-batch", ["--metadata", "no"], "no-place"), ("velara-batch", ["EMBO"], "EMBOSS("),
                                       ("velara-open", ["--act"], "--action"), ("velara-studio", [""], "photo one.PNG")]:
            line = " ".join(f"'{w}'" for w in [program, *words])
            got = said("bash", "-c", f"source '{made}/{program}.bash'; COMP_WORDS=({line}); COMP_CWORD={len(words)}; "
                       f"_{program.replace('-', '_')}; printf '%s\\n' \"${{COMPREPLY[@]}}\"", cwd=folder)
            offered = got.stdout.splitlines()
            if got.stderr or not set(wanted.split("|")) & set(offered) or "notes.txt" in offered:
                faults.append(f"{line} completes to {offered} {got.stderr}")


def installedTree():
    """make install into a folder: complete, and nothing else."""
    with tempfile.TemporaryDirectory() as folder:
        got = said("cmake", "--install", build, env=os.environ | {"DESTDIR": folder})
        if got.returncode:
            return faults.append(got.stderr)
        files = [p for p in pathlib.Path(folder).rglob("*") if p.is_file()]
        prefix = next(p for p in files if p.name == "velara-studio" and p.parent.name == "bin").parents[1]
        names = {p.relative_to(prefix).as_posix() for p in files}
        for wanted in ["bin/velara-open", "bin/velara-batch", "libexec/velara-studio/velara-decode",
                       "libexec/velara-studio/velara-batch-all", "libexec/velara-studio/velara-encode", "libexec/velara-studio/velara-scan",
                       "share/applications/org.velara.Studio.desktop", "share/dbus-1/services/org.velara.Studio.service",
                       "share/icons/hicolor/48x48/apps/org.velara.Studio.png", "share/man/man1/velara-batch.1.gz",
                       "share/icons/hicolor/scalable/apps/org.velara.Studio.svg",
                       "share/doc/velara-studio/manual/index.md", "share/doc/velara-studio/screenshots/options.png"]:
            if wanted not in names:
                faults.append(f"{wanted} is not installed")
        if any(p.name == "portable" for p in files):
            faults.append("an installed program would think that it is portable")
        for line in [p.read_text() for p in files if p.suffix in (".desktop", ".service", ".thumbnailer")]:
            for program in re.findall(r"^(?:Try)?Exec=(\S+)", line, re.MULTILINE):
                if not (pathlib.Path(folder) / program[1:]).is_file():
                    faults.append(f"{program} is started and not installed")
        home = pathlib.Path(folder) / "home"
        home.mkdir()
        picture = home / "p.ppm"
        picture.write_text("P3 2 1 255 1 2 3 4 5 6\n")
        clean = {k: v for k, v in os.environ.items() if not k.startswith("XDG_")} | {"HOME": str(home)}
        got = said(prefix / "bin/velara-batch", picture, "FLIPH", "--icon", "16x16", home / "i.ico", env=clean)
        if not got.returncode:
            got = said(prefix / "bin/velara-batch", picture, "FLIPH", home / "q.png", env=clean)
        if got.returncode or (prefix / "bin/Vlaera.dat").exists():
            faults.append(f"installed, velara-batch doesn't find its helpers: {got.stderr}")
        got = said(prefix / "bin/velara-open", "--thumbnail", "64", home / "q.png", home / "t.png", env=clean)
        if got.returncode or (home / "t.png").read_bytes()[:4] != b"\x89PNG":
            faults.append(f"no thumbnail: {got.stderr}")


def screenshotsExist():
    """What software centres show is a picture of docs/screenshots."""
    shown = xml.parse(made / "org.velara.Studio.metainfo.xml").iter("image")
    folder = pathlib.Path(__file__).parents[2] / "docs/screenshots"
    names = [image.text.rsplit("/", 1)[1] for image in shown]
    faults.extend(f"{name} is no screenshot" for name in names if not (folder / name).is_file())
    if not names:
        faults.append("no screenshots")


check("desktop-file-validate", made / "org.velara.Studio.desktop")
check("appstreamcli", "validate", "--no-net", made / "org.velara.Studio.metainfo.xml")
for page in sorted(made.glob("*.1")):
    if shutil.which("groff"):
        got = said("groff", "-man", "-ww", "-z", "-Tutf8", page)
        faults += [f"{page.name}: {got.stderr}"] if got.stderr else []
    else:
        print("SKIPPED: groff is not installed")
for shell, pattern in [("bash", "*.bash"), ("zsh", "_velara-*"), ("fish", "*.fish")]:
    for script in sorted(made.glob(pattern)):
        check(shell, "-n", script)
if not entry("velara-studio.thumbnailer")["Thumbnailer Entry"]["MimeType"]:
    faults.append("no thumbnails")
screenshotsExist()
typesAgreeWithTheSystem()
completionCompletes()
installedTree()
print("\n".join(faults) or "desktop, shells and man agree with the programs")
sys.exit(bool(faults))
