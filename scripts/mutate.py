#!/usr/bin/env python3
"""Puts one fault at a time into a copy of the source and reports which of them survive the tests.

    scripts/mutate.py [--check] [--tree DIR] [NAME...]

tests/mutations.txt has the faults: "[name] file", "tests: program or program=Filter or e2e/script, ...", then the present
text after "- " and its replacement after "+ ". A NAME selects the faults that have it in their name or file.
--check only checks that each text is there, exactly once. Exit 1 when one isn't, when a fault does not build, or when
more than one in ten survives."""
import argparse
import filecmp
import os
import re
import shutil
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LIST = os.path.join(ROOT, "tests", "mutations.txt")
BUILD_LIMIT, TEST_LIMIT = 3600, 900  # seconds, of a build from nothing; with a fault a test may take thrice its usual time


class Fault:
    def __init__(self, name, path):
        self.name, self.path, self.tests, self.old, self.new = name, path, [], [], []

    def place(self, tree):
        """The text of the file with the fault in it; None when the pattern is not there exactly once."""
        try:
            text = open(os.path.join(tree, self.path), encoding="utf-8").read()
        except OSError:
            return None
        old, new = "\n".join(self.old), "\n".join(self.new)
        return text.replace(old, new) if self.old and text.count(old) == 1 else None


def faults():
    found = []
    for line in open(LIST, encoding="utf-8").read().split("\n"):
        head = re.match(r"\[(\S+)\] (\S+)$", line)
        if head:
            found.append(Fault(*head.groups()))
        elif line.startswith("tests: "):
            found[-1].tests = [word.strip() for word in line[7:].split(",")]
        elif line.startswith("- "):
            found[-1].old.append(line[2:])
        elif line.startswith("+ "):
            found[-1].new.append(line[2:])
        elif line and not line.startswith("#"):
            sys.exit(f"{LIST}: can't read: {line}")
    return found


def run(command, limit, **more):
    """Exit status and output; the status is None after a timeout."""
    try:
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=limit, **more)
        return done.returncode, done.stdout.decode(errors="replace")
    except subprocess.TimeoutExpired:
        return None, ""


class Copy:
    """A copy of the source, with a build of its own."""

    def __init__(self, tree):
        self.tree, self.build = tree, os.path.join(tree, "build", "release")
        self.usual = {}  # seconds that a test takes without a fault
        listed = ["git", "-C", ROOT, "ls-files", "-co", "--exclude-standard"]
        wanted = [f for f in subprocess.check_output(listed, text=True).split("\n") if f and os.path.exists(f"{ROOT}/{f}")]
        for folder, folders, files in os.walk(tree):
            folders[:] = [f for f in folders if os.path.join(folder, f) != os.path.join(tree, "build")]
            for gone in {os.path.relpath(os.path.join(folder, f), tree) for f in files} - set(wanted):
                os.remove(os.path.join(tree, gone))
        for name in wanted:  # untouched where nothing has changed, so that only what has is built again
            here, there = os.path.join(ROOT, name), os.path.join(tree, name)
            if not os.path.exists(there) or not filecmp.cmp(here, there, shallow=False):
                os.makedirs(os.path.dirname(there), exist_ok=True)
                shutil.copy2(here, there)
                os.utime(there)
        samples = os.path.normpath(os.path.join(ROOT, "..", "shared"))
        configure = ["cmake", "--preset", "release", f"-DCORPUS={samples}/corpus", f"-DGDI_FACTS={samples}/gdi"]
        status, output = run(configure, BUILD_LIMIT, cwd=tree)
        if status != 0:
            sys.exit(output)

    def make(self, targets):
        return run(["cmake", "--build", self.build, "--target", *targets], BUILD_LIMIT)

    def passes(self, test):
        """Whether the test passes."""
        if test.startswith("e2e/"):
            command = [os.path.join(self.tree, "tests", test), os.path.join(self.build, "bin")]
        else:
            program, _, only = test.partition("=")
            command = [os.path.join(self.build, "bin", "test_" + program)] + ([f"--gtest_filter={only}"] if only else [])
        surroundings = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "GTEST_FAIL_FAST": "1", "GTEST_BRIEF": "1"}
        if test.startswith("e2e/"):
            surroundings.pop("QT_QPA_PLATFORM")
        began = time.time()
        limit = 10 + 3 * self.usual[test] if test in self.usual else TEST_LIMIT
        passed = run(command, limit, env=surroundings, cwd=self.build)[0] == 0
        self.usual.setdefault(test, time.time() - began)
        return passed


def targets_of(tests):
    return sorted({"all" if t.startswith("e2e/") else "test_" + t.partition("=")[0] for t in tests})


def judge(copy, fault):
    """The fate of a fault: caught by a test, by the compiler, not built, or alive."""
    path = os.path.join(copy.tree, fault.path)
    sound, faulty = open(path, encoding="utf-8").read(), fault.place(copy.tree)
    open(path, "w", encoding="utf-8").write(faulty)
    try:
        status, output = copy.make(targets_of(fault.tests))
        if status != 0:
            return "caught by the compiler" if "static assertion failed" in output else "DOES NOT BUILD"
        return next((f"caught by {t}" for t in fault.tests if not copy.passes(t)), "SURVIVES")
    finally:
        open(path, "w", encoding="utf-8").write(sound)


def main():
    options = argparse.ArgumentParser(usage=__doc__)
    options.add_argument("--check", action="store_true")
    options.add_argument("--tree", default=os.path.join(ROOT, "build", "mutate"))
    options.add_argument("names", nargs="*")
    chosen = options.parse_args()
    wanted = [f for f in faults() if not chosen.names or any(n in f.name or n in f.path for n in chosen.names)]
    lost = [f for f in wanted if f.place(ROOT) is None]
    for fault in lost:
        print(f"{fault.name}: its text is not in {fault.path} exactly once")
    wanted = [f for f in wanted if f not in lost]
    if chosen.check:
        return bool(lost)

    copy = Copy(chosen.tree)
    status, output = copy.make(targets_of([t for f in wanted for t in f.tests]))
    if status != 0:
        sys.exit(output[-4000:])
    sound = sorted({t for f in wanted for t in f.tests})
    unsound = {test for test in sound if not copy.passes(test)}
    if unsound:
        print("without a fault these fail, and judge nothing: " + ", ".join(sorted(unsound)), flush=True)
    for fault in wanted:
        fault.tests = [test for test in fault.tests if test not in unsound]
    lost += [fault for fault in wanted if not fault.tests]
    wanted = [fault for fault in wanted if fault.tests]
    fates = {}
    for fault in wanted:
        began = time.time()
        fates[fault.name] = judge(copy, fault)
        print(f"{fault.name}: {fates[fault.name]} ({time.time() - began:.0f} s)", flush=True)
    alive = [name for name, fate in fates.items() if fate == "SURVIVES"]
    unbuilt = [name for name, fate in fates.items() if fate == "DOES NOT BUILD"]
    print(f"{len(fates)} faults, {len(alive)} survive{': ' if alive else ''}{', '.join(alive)}")
    return bool(lost or unbuilt) or 10 * len(alive) > len(fates)


if __name__ == "__main__":
    sys.exit(main())
