#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tells what the tests have run of the library, and compares the rest with uncovered.txt.

Counted twice. By line: what gcovr says, where all that was made from a template is one. And apart:
the code of every record type, as the compiler has made it from the templates, for itself.
Usage: report.py BUILD-FOLDER GCOV-PROGRAM GCOVR-JSON-FILE
"""

import itertools
import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = ("wire", "runtime", "foreign", "ethsw_mgmt")
LEAST_LINES, LEAST_BRANCHES = 100.0, 98.0


class Exceptions:
    """The rows of uncovered.txt: what no test can run, and why."""

    def __init__(self, path, width):
        lines = path.read_text().splitlines()
        # A line of code may have such strokes itself.
        rows = [[*line.split(" | ", 2)[:2], *line.split(" | ", 2)[-1].rsplit(" | ", 1)]
                for line in lines if line and not line.startswith("#")]
        if any(len(row) != 4 or not row[3].strip() for row in rows):
            sys.exit(f"{path.name}: a row is file | function | line of code | reason")
        rows = [(re.sub(f" {width}$", "", row[0].strip()), *(part.strip() for part in row[1:]))
                for row in rows]
        self.rows = [row for row in rows if not row[0].endswith("-bit")]
        self.used = set()

    def allow(self, file, code, function=None):
        """True where a row has this line; with a function, where the row is for that, too."""
        found = [row for row in self.rows if row[0] == file and row[2] == code and
                 (function is None or re.search(row[1], function))]
        self.used.update(found)
        return bool(found)

    def unused(self):
        return [row for row in self.rows if row not in self.used]


class Tally:
    """How many of a kind there are, and how many of these were run."""

    def __init__(self, what):
        self.what, self.run, self.all = what, 0, 0

    def add(self, counts):
        self.all += len(counts)
        self.run += sum(count > 0 for count in counts)

    def percent(self):
        return 100.0 * self.run / self.all if self.all else 0.0

    def __str__(self):
        return f"{self.run} of {self.all} {self.what} ({self.percent():.2f} %)"


def code_of(file, number):
    return (ROOT / file).read_text().splitlines()[number - 1].strip()


def by_line(gcovr_file, copied, exceptions, missing):
    """The lines, branches and exported functions that gcovr has seen. But for what is copied into
    its callers: of that, gcovr counts the copies in tests, too."""
    lines, branches, operations = Tally("lines"), Tally("branches"), Tally("exported functions")
    for file in json.loads(gcovr_file.read_text())["files"]:
        name = file["file"]
        if name.split("/")[0] not in FOLDERS:
            continue
        for line in file["lines"]:
            if line["gcovr/noncode"]:
                continue
            counts = [branch["count"] for branch in line["branches"]]
            counts = copied.get((name, line["line_number"]), counts)
            if 0 in [line["count"], *counts]:
                code = code_of(name, line["line_number"])
                if exceptions.allow(name, code):
                    continue
                missing.append(f"{name}:{line['line_number']}: {code}")
            lines.add([line["count"]])
            branches.add(counts)
        for function in file["functions"]:
            if re.fullmatch(r"tarn_\w+_(encode_ext|decode_ext|duplicate|free_ext)",
                            function["name"]):
                operations.add([function["execution_count"]])
                if not function["execution_count"]:
                    missing.append(f"{name}: {function['name']}")
    return lines, branches, operations


def counts_of(build, gcov):
    """What gcov knows of each function of the library's own objects: file, function, line -> count,
    branches. In-line functions are in the tests' objects, too, and the linker takes only one."""
    lines, names = {}, {}
    data_files = sorted(build.glob("**/*.gcda"))
    own = [data for data in data_files if data.is_relative_to(build / "CMakeFiles")]
    for data in own + [data for data in data_files if data not in own]:
        command = [gcov, "--stdout", "--json-format", "--branch-probabilities", str(data)]
        output = subprocess.run(command, capture_output=True, text=True, check=True).stdout
        for file in json.loads(output)["files"]:
            path = pathlib.Path(file["file"])
            if not path.is_relative_to(ROOT) or path.relative_to(ROOT).parts[0] not in FOLDERS:
                continue
            names.update({each["name"]: each["demangled_name"] for each in file["functions"]})
            for line in file["lines"]:
                key = str(path.relative_to(ROOT)), line.get("function_name"), line["line_number"]
                branches = [branch["count"] for branch in line["branches"]]
                if data in own:
                    known = lines.setdefault(key, [0, []])[1]
                    known += [0] * (len(branches) - len(known))
                if key in lines:
                    add_counts(lines[key], line["count"], branches)
    return lines, names


def add_counts(counts, count, branches):
    """Those of a test's object may have more branches: its own copies of what is in line."""
    counts[0] += count
    counts[1] = [known + more for known, more in
                 itertools.zip_longest(counts[1], branches[:len(counts[1])], fillvalue=0)]


def apart(counts, names, exceptions, missing):
    """The lines and branches of every function that was made from a template, for itself."""
    lines, branches = Tally("lines"), Tally("branches")
    for (file, mangled, number), (count, taken) in counts.items():
        if 0 in [count, *taken]:
            function, code = names.get(mangled, ""), code_of(file, number)
            if exceptions.allow(file, code, function):
                continue
            missing.append(f"{file}:{number}: {code}\n    in {function[:200]}")
        lines.add([count])
        branches.add(taken)
    return lines, branches


def main():
    build, gcov, gcovr_file = pathlib.Path(sys.argv[1]), sys.argv[2], pathlib.Path(sys.argv[3])
    name = build.name
    exceptions = Exceptions(ROOT / "tests/coverage/uncovered.txt",
                            "32-bit" if name.endswith("i686") else "64-bit")
    missing = []
    counts, names = counts_of(build, gcov)
    copied = {(file, number): taken for (file, function, number), (_, taken) in counts.items()
              if not function}
    lines, branches, operations = by_line(gcovr_file, copied, exceptions, missing)
    every_line, every_branch = apart(counts, names, exceptions, missing)
    print(f"{name}: {lines}, {branches}, {operations}")
    print(f"{name}: with every record type for itself, {every_line}, {every_branch}")
    missing += ["in uncovered.txt, but all of it was run: " + " | ".join(row)
                for row in exceptions.unused()]
    for each in missing:
        print(f"{name}: not covered: {each}")
    enough = lines.percent() >= LEAST_LINES and branches.percent() >= LEAST_BRANCHES
    if not enough:
        print(f"{name}: at least {LEAST_LINES} % of lines and {LEAST_BRANCHES} % of branches")
    exports = len((ROOT / "abi/exports.txt").read_text().split())
    if operations.all != exports:
        print(f"{name}: of {exports} exported functions, {operations.all} were seen")
    return 0 if enough and not missing and operations.all == exports and every_line.all else 1


if __name__ == "__main__":
    sys.exit(main())
