# SPDX-License-Identifier: MIT
# Reads the lists of planted faults, and plants one: finds its lines in a file, by their text, and
# gives back the file with the fault in it. README.md tells what a list looks like.
from dataclasses import dataclass, field
from pathlib import Path

FOLDER = Path(__file__).parent
KEYS = {"fault": "id", "file": "file", "wrong": "wrong"}


class BadList(Exception):
    """A list that cannot be read, or a fault that does not apply."""


@dataclass
class Fault:
    id: str = ""
    file: str = ""
    wrong: str = ""
    hunk: list = field(default_factory=list)

    def _lines(self, marks):
        return "".join(line[1:] + "\n" for line in self.hunk if line[0] in marks)

    def plant(self, text):
        """The text of the file with the fault in it; its old lines must be there exactly once."""
        old, new = self._lines(" -"), self._lines(" +")
        text = "\n" + text  # whole lines only
        found = text.count("\n" + old)
        if found != 1:
            raise BadList(f"{self.id}: its lines are {found} times in {self.file}, not once")
        return text.replace("\n" + old, "\n" + new)[1:]


def _read_stanza(place, lines):
    fault = Fault()
    for line in lines:
        key, _, value = line.partition(": ")
        if line[0] in " -+":
            fault.hunk.append(line)
        elif key in KEYS and not fault.hunk:
            setattr(fault, KEYS[key], value)
        else:
            raise BadList(f"{place}: cannot read: {line}")
    changes = {line[0] for line in fault.hunk} & {"-", "+"}
    if not (fault.id and fault.file and fault.wrong and changes):
        raise BadList(f"{place}: not a whole fault: {lines[0]}")
    return fault


def read_list(path):
    stanzas = [[]]
    for line in path.read_text().splitlines():
        if line.startswith("#"):
            continue
        if line.strip():
            stanzas[-1].append(line)
        elif stanzas[-1]:
            stanzas.append([])
    return [_read_stanza(path.name, lines) for lines in stanzas if lines]


def read_all():
    """All faults of all lists, ordered as they stand there."""
    faults = [fault for path in sorted(FOLDER.glob("*.txt")) for fault in read_list(path)]
    ids = [fault.id for fault in faults]
    twice = {id for id in ids if ids.count(id) > 1}
    if twice:
        raise BadList("two faults of one name: " + ", ".join(sorted(twice)))
    return faults
