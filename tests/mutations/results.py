# SPDX-License-Identifier: MIT
# The table of results.md: one row for each fault, kept until the fault is run again.
from collections import Counter
from dataclasses import dataclass
from pathlib import Path

FILE = Path(__file__).parent / "results.md"
SURVIVED = "nothing"
HEAD = """# Which test catches which fault

Written by `scripts/mutate`; see [README.md](README.md). Each row is the first test that failed
after the fault had been planted. The quickest programs run first, so a fault may fail others, too.
"""


@dataclass
class Row:
    preset: str  # empty when no test has caught the fault
    test: str


NOT_RUN = Row("", "not run")


def read():
    rows = {}
    if FILE.exists():
        for line in FILE.read_text().splitlines():
            cells = [cell.strip().strip("`") for cell in line.strip("|").split("|")]
            if line.startswith("| `") and len(cells) == 5:
                rows[cells[0]] = Row(cells[3], cells[4])
    return rows


def _program(row):
    return f"{row.preset}, {row.test.split('.')[0].split(' (')[0]}"


def totals(faults, rows):
    done = [rows.get(fault.id, NOT_RUN) for fault in faults]
    caught = [row for row in done if row.preset]
    survived = sum(row.test == SURVIVED for row in done)
    by_program = Counter(map(_program, caught))
    return [f"{len(faults)} faults: {len(caught)} caught, {survived} survived, "
            f"{len(faults) - len(caught) - survived} not run.", "",
            *(f"- {program}: {count}" for program, count in by_program.most_common())]


def write(faults, rows):
    lines = [HEAD, *totals(faults, rows), ""]
    lines += ["| Fault | File | What goes wrong | Preset | Caught by |", "|---|---|---|---|---|"]
    for fault in faults:
        row = rows.get(fault.id, NOT_RUN)
        lines.append(f"| `{fault.id}` | `{fault.file}` | {fault.wrong} "
                     f"| {row.preset} | {row.test} |")
    FILE.write_text("\n".join(lines) + "\n")
