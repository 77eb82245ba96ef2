#!/usr/bin/env python3
"""Prints the line coverage of each layer, from what gcovr counted.

usage: coverage_table.py COVERAGE.json ARCHITECTURE.md

The layers are the rows of the table in ARCHITECTURE.md. Fails below the limits of the two totals.
"""
import json
import re
import sys

# Lines to be run, in percent.
LIMITS = {"below the windows": 95.0, "the windows": 85.0}


def layers(architecture):
    with open(architecture, encoding="utf-8") as text:
        return re.findall(r"^\| `(src/[^`]+)` \|", text.read(), re.MULTILINE)


def layer_of(path, folders):
    inside = [folder for folder in folders if path.startswith(folder + "/")]
    if not inside:
        sys.exit(f"{path} lies in no layer of the table")
    return max(inside, key=len)


def total_of(folder):
    is_window = folder.endswith("/windows") or re.match(r"src/(ui|app)(/|$)", folder)
    return "the windows" if is_window else "below the windows"


def ranges(numbers):
    """1 2 3 7 becomes "1-3 7"."""
    runs = []
    for number in sorted(numbers):
        if runs and number == runs[-1][1] + 1:
            runs[-1][1] = number
        else:
            runs.append([number, number])
    return " ".join(str(a) if a == b else f"{a}-{b}" for a, b in runs)


def percent(count):
    # Rounded down, so that nothing short of its limit looks as if it met it.
    return int(1000 * count[0] / count[1]) / 10 if count[1] else 100.0


def add(counts, key, covered, all_lines):
    count = counts.setdefault(key, [0, 0])
    count[0] += covered
    count[1] += all_lines


def main(coverage, architecture):
    folders = layers(architecture)
    counts = {folder: [0, 0] for folder in folders}
    totals = {}
    gaps = []
    with open(coverage, encoding="utf-8") as report:
        files = json.load(report)["files"]
    for file in sorted(files, key=lambda entry: entry["file"]):
        lines = {line["line_number"]: line["count"] for line in file["lines"] if not line.get("gcovr/noncode")}
        missed = [number for number, count in lines.items() if count == 0]
        folder = layer_of(file["file"], folders)
        for table, key in ((counts, folder), (totals, total_of(folder))):
            add(table, key, len(lines) - len(missed), len(lines))
        if missed:
            gaps.append(f"{file['file']}: {ranges(missed)}")

    print("lines not run\n" + "\n".join(f"  {gap}" for gap in gaps) + "\n")
    print(f"{'layer':24} {'run':>6} {'of':>6} {'%':>7}")
    for folder, count in counts.items():
        print(f"{folder:24} {count[0]:6} {count[1]:6} {percent(count):7.1f}")
    short = False
    for name, limit in LIMITS.items():
        count = totals.get(name, [0, 0])
        enough = count[1] > 0 and 100 * count[0] >= limit * count[1]
        short = short or not enough
        print(f"{name:24} {count[0]:6} {count[1]:6} {percent(count):7.1f}  "
              f"{'met' if enough else 'MISSED'}: at least {limit:.0f}")
    return 1 if short else 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2]))
