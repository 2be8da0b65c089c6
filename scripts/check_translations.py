#!/usr/bin/env python3
"""Checks translations/*.ts: every text translated, and each translation with the same marks as its source: values (%1, %n),
parts of a list ("|"), one access key, three points at the end, blanks and line breaks at both ends. With --count it only says
how many texts are translated. With --current TEXTS LUPDATE SOURCES it also checks that the files know every text of the code:
TEXTS is velara-texts, SOURCES the folder of the code."""
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "translations"
ACCESS_KEY = re.compile(r"(?<!&)(?:&&)*&(?!&)\S")


def marks(text):
    """What a translation must have in common with its source."""
    return {
        "values": sorted(re.findall(r"%L?(?:\d+|n)", text)),
        "fields in braces": sorted(re.findall(r"\{\w+\}", text)),
        "parts of the list": text.count("|"),
        "access key": len(ACCESS_KEY.findall(text)),
        "points at the end": text.rstrip().endswith("..."),
        "end before the points": text.rstrip().endswith(" ..."),
        "blanks in front": text[: len(text) - len(text.lstrip())],
        "blanks behind": text[len(text.rstrip()):],
        "tabs": text.count("\t"),
        "tags": sorted(re.findall(r"</?[a-z]\w*>", text)),
    }


def messages(path):
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message.findtext("source"), message


def faults(path):
    for table, source, message in messages(path):
        translation = message.find("translation")
        forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
        where = f"{path.name}: {table}: {source!r}"
        if translation.get("type") or not all(forms):
            yield f"{where} is not translated"
            continue
        wanted = marks(source)
        for form in forms:
            has = marks(form)
            for mark, value in wanted.items():
                if mark == "values" and message.get("numerus") and has[mark] == sorted(set(value) - {"%n"}):
                    continue  # "one page"
                if has[mark] != value:
                    yield f"{where}: {mark}: {value!r} but {has[mark]!r} in {form!r}"


def texts(path):
    return {(table, source) for table, source, _ in messages(path)}


def missing(velara_texts, lupdate, sources):
    """The texts of the code that the files don't know."""
    with tempfile.TemporaryDirectory() as scratch:
        tables, found = Path(scratch, "tables.cpp"), Path(scratch, "found_de.ts")
        subprocess.run([velara_texts, tables], check=True)
        subprocess.run([lupdate, "-silent", "-I", sources, sources, tables, "-ts", found], check=True, stderr=subprocess.DEVNULL)
        wanted = texts(found)
    for path in sorted(FOLDER.glob("*.ts")):
        for table, source in sorted(wanted - texts(path)):
            yield f"{path.name}: {table}: {source!r} is missing: make translations"


def main():
    files = sorted(FOLDER.glob("*.ts"))
    arguments = sys.argv[1:]
    if arguments == ["--count"]:
        for path in files:
            all_of = list(messages(path))
            print(path.name, sum(not m.find("translation").get("type") for *_, m in all_of), "of", len(all_of))
        return 0
    found = [fault for path in files for fault in faults(path)]
    if arguments[:1] == ["--current"]:
        found += missing(*arguments[1:4])
    print("\n".join(found) or "all texts are translated")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
