#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Holds the instructions that callgrind has counted inside the library against the baseline.
# Usage: instructions.py [--write] BASELINE LIBRARY TARGET=CALLGRIND_FILE...
# Fails where an operation takes more than 3 % above; with --write, makes the baseline anew.
import re
import sys
from pathlib import Path

ALLOWED = 0.03
COLUMNS = ["x86_64", "i686"]
HEAD = """\
# Instructions that single operations execute inside the library, on one record of each of some
# workloads of the benchmark. What the C library, the sibling library and callbacks execute does not
# count. Written by scripts/check-performance --write.
#
"""


def counted(path, library):
    """(workload, operation) -> instructions: the costs of all functions of the library itself, in
    each part that the program has named."""
    counts = {}
    row, inside, is_call = None, False, False
    for line in path.read_text().splitlines():
        if line.startswith("desc: Trigger:"):
            named = re.search(r"Client Request: (\S+)/(\S+)$", line)
            row = named.groups() if named else None
            if row:
                counts[row] = 0
        elif line.startswith("ob="):
            inside = library in line
        elif line.startswith("calls="):
            is_call = True  # the next line is the cost of what was called
        elif line[:1].isdigit() or line[:1] in ("+", "-", "*"):
            if inside and row and not is_call:
                counts[row] += int(line.split()[1])
            is_call = False
    missing = [row for row, count in counts.items() if not count]
    if missing or not counts:
        sys.exit(f"{path}: nothing was counted of {missing or 'anything'}")
    return counts


def read(path):
    """target -> (workload, operation) -> instructions"""
    baseline = {target: {} for target in COLUMNS}
    for line in path.read_text().splitlines() if path.exists() else []:
        if not line.startswith("#"):
            workload, operation, *numbers = line.split()
            for target, number in zip(COLUMNS, numbers):
                baseline[target][workload, operation] = int(number)
    return baseline


def write(path, found):
    titles = ["# workload", "operation", *COLUMNS]
    lines = [[*row, *(str(found[target][row]) for target in COLUMNS)] for row in found[COLUMNS[0]]]
    widths = [max(map(len, column)) for column in zip(titles, *lines)]
    text = HEAD
    for line in [titles, *lines]:
        text += (f"{line[0]:<{widths[0]}}  {line[1]:<{widths[1]}}  " +
                 "  ".join(f"{cell:>{width}}" for cell, width in zip(line[2:], widths[2:])) + "\n")
    path.write_text(text)
    print(f"{len(lines)} operations written to {path}")


def compare(target, found, baseline):
    """Tells how the two differ. False where an operation takes too much, or is not in both."""
    good = True
    for row in sorted(found.keys() ^ baseline.keys()):
        print(f"{target} {' '.join(row)}: only in "
              f"{'this run' if row in found else 'the baseline'}")
        good = False
    rows = [row for row in found if row in baseline]
    changes = {row: found[row] / baseline[row] - 1 for row in rows}
    for row in rows:
        if abs(changes[row]) > ALLOWED:
            more = changes[row] > 0
            print(f"{target} {' '.join(row)}: {found[row]} instructions, the baseline has "
                  f"{baseline[row]}: {changes[row]:+.1%}{', TOO MUCH' if more else ''}")
            good = good and not more
    if rows:
        print(f"{target}: {len(rows)} operations, {sum(found.values())} instructions, "
              f"{min(changes.values()):+.1%} to {max(changes.values()):+.1%} against the baseline")
    return good, any(change < -ALLOWED for change in changes.values())


def main():
    arguments = sys.argv[1:]
    writing = arguments[0] == "--write"
    path, library, *files = arguments[1:] if writing else arguments
    path = Path(path)
    found = {}
    for file in files:
        target, _, name = file.partition("=")
        found[target] = counted(Path(name), library)
    if writing:
        write(path, found)
        return
    baseline = read(path)
    results = [compare(target, found[target], baseline[target]) for target in found]
    if not all(good for good, _ in results):
        print("If that is meant: scripts/check-performance --write makes a new baseline.")
        sys.exit(1)
    if any(much_less for _, much_less in results):
        print("Some take much less than before: scripts/check-performance --write keeps it so.")


main()
