"""What the compiler's counters say of the sources, by gcov."""
import collections
import functools
import json
import os
import re
import subprocess
from pathlib import Path

LEVELS = ("toolkit", "platform", "src", "host")
FILES_AT_ONCE = 200


class Source:
    """The lines of one file: how often each was run, in which function it is, how often each of its branches was taken."""

    def __init__(self):
        self.counts = collections.Counter()
        self.functions = {}
        self.branches = {}

    def add(self, line):
        number = line["line_number"]
        self.counts[number] += line["count"]
        self.functions.setdefault(number, line.get("function_name", ""))
        # A branch that only an exception takes is none of the source's.
        taken = [branch["count"] for branch in line["branches"] if not branch["throw"]]
        known = self.branches.setdefault((number, len(taken)), [0] * len(taken))
        for i, count in enumerate(taken):
            known[i] += count

    def merge(self, other):
        self.counts.update(other.counts)
        self.functions.update(other.functions)
        for key, taken in other.branches.items():
            known = self.branches.setdefault(key, [0] * len(taken))
            for i, count in enumerate(taken):
                known[i] += count

    def missed(self):
        return sorted(number for number in self.counts if self.counts[number] == 0)

    def one_sided(self):
        """The lines that were run, but not in all ways, and how often in each."""
        return sorted((number, taken) for (number, _), taken in self.branches.items()
                      if self.counts[number] and 0 in taken)


def notes(build):
    """The compiler's notes of what can be counted."""
    return sorted(path for level in LEVELS for path in (build / level).rglob("*.gcno"))


@functools.cache
def lines_of(path):
    return path.read_text().splitlines()


def read(root, files, sources=None):
    """What is counted in `files`, which are notes with counters beside them, by file; added to `sources` if given."""
    sources = {} if sources is None else sources
    for begin in range(0, len(files), FILES_AT_ONCE):
        command = ["gcov", "--json-format", "--stdout", "--branch-probabilities",
                   "--relative-only", "--source-prefix", str(root), *map(str, files[begin:begin + FILES_AT_ONCE])]
        result = subprocess.run(command, capture_output=True)
        if result.returncode != 0:
            raise SystemExit(f"gcov cannot read the counters; were they made by another build?\n{result.stderr.decode()}")
        for unit in result.stdout.splitlines():
            report = json.loads(unit)
            folder = report["current_working_directory"]
            for file in report["files"]:
                name = os.path.relpath(os.path.join(folder, file["file"]), root)
                if name.split("/")[0] not in LEVELS:
                    continue
                source = sources.setdefault(name, Source())
                texts = lines_of(root / name)
                for line in file["lines"]:
                    # A brace alone stands for what only an exception would clear away.
                    if re.search(r"\w", texts[line["line_number"] - 1]):
                        source.add(line)
    return sources


def read_apart(root, build, folder):
    """The same of the counters in `folder`, where a program wrote them that had GCOV_PREFIX."""
    files = []
    for counted in sorted(folder.rglob("*.gcda")):
        origin = Path("/") / counted.relative_to(folder).with_suffix(".gcno")
        note = counted.with_suffix(".gcno")
        if origin.is_relative_to(build) and not note.exists():
            note.symlink_to(origin)
        if note.exists():
            files.append(note)
    return read(root, files)
