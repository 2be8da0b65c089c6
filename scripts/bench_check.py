#!/usr/bin/env python3
"""Compares the benchmark's ratios with bench/baseline.json and fails when a row is worse by more than 15 % in three tries.

    scripts/bench_check.py PROGRAM [--write]     --write makes the present figures the baseline

A ratio to a copy of the same bytes in the same run depends little on the machine; rows in ms are left out."""
import json
import os
import subprocess
import sys
import tempfile

BASELINE = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "bench", "baseline.json")
ALLOWED, TRIES = 1.15, 3


def measured(program, names):
    with tempfile.NamedTemporaryFile(suffix=".json") as file:
        subprocess.run([program, "--json", file.name, *names], check=True, stdout=subprocess.DEVNULL)
        return json.load(open(file.name, encoding="utf-8"))


def main():
    program, write = sys.argv[1], "--write" in sys.argv
    if write:
        with open(BASELINE, "w", encoding="utf-8") as file:
            json.dump(measured(program, []), file, indent=1, sort_keys=True)
            file.write("\n")
        return 0
    baseline = json.load(open(BASELINE, encoding="utf-8"))
    best, names = {}, []
    for _ in range(TRIES):
        for row, figure in measured(program, names).items():
            best[row] = min(figure, best.get(row, figure))
        worse = [row for row in sorted(baseline) if row in best and best[row] > ALLOWED * baseline[row]]
        if not worse:
            break
        names = [row.split(": ", 1)[1] for row in worse]
    gone = sorted(set(baseline) - set(best))
    for row in worse:
        print(f"{row}: {best[row]:.2f}, was {baseline[row]:.2f}")
    for row in gone:
        print(f"{row}: it is not measured any more")
    print(f"{len(best)} rows, {len(worse)} worse by more than {round(100 * ALLOWED - 100)} %")
    return bool(worse or gone)


if __name__ == "__main__":
    sys.exit(main())
