#!/usr/bin/env python3
"""Holds what is counted against the ceilings in ceilings.txt.

By itself it holds what korva-bench-events counts, in any build: ceilings.py KORVA-BENCH-EVENTS
./bench --check holds the instructions and the system calls, too; ./bench --lower lowers the ceilings to what is
counted.
"""
import math
import sys
from pathlib import Path

import counts

FILE = Path(__file__).with_name("ceilings.txt")

# The columns of each section, and how far a ceiling lies above what is counted: a part of it, and its last digit.
COLUMNS = {
    "inside": {"instructions": (0.03, 100), "allocations": (0.05, 0.1), "handler_allocations": (0.05, 0.1),
               "painters": (0.01, 0.01), "deliveries": (0.01, 0.01), "repaints": (0.01, 0.01), "pixels": (0.01, 1)},
    "outside": {"system_calls": (0.05, 0.1), "wake_ups": (0.05, 0.1)},
}
FIRST = "first counted"


def read(path=FILE):
    """{"inside": {subject: {count: ceiling}}, "outside": ...}. A dash is no ceiling."""
    ceilings = {}
    columns = None
    for line in path.read_text().splitlines():
        if not line or line.startswith("#"):
            continue
        if line.startswith("["):
            section = ceilings.setdefault(line.strip("[]"), {})
            columns = None
            continue
        cells = [cell.strip() for cell in line.split("|")]
        if not columns:
            columns = cells
        elif len(cells) != len(columns) or not cells[-1]:
            raise ValueError(f"{path}: a row of {len(columns)} cells, the last of them a reason, is wanted: {line}")
        else:
            section[cells[0]] = {column: float(cell) for column, cell in zip(columns[1:-1], cells[1:-1])
                                 if cell != "-"} | {"why": cells[-1]}
    return ceilings


def written(ceilings):
    lines = [line for line in FILE.read_text().splitlines() if line.startswith("#")]
    for section, rows in ceilings.items():
        table = [["subject", *COLUMNS[section], "last raised because"]]
        table += [[subject, *(f"{row[count]:.10g}" if count in row else "-" for count in COLUMNS[section]), row["why"]]
                  for subject, row in rows.items()]
        widths = [max(len(row[i]) for row in table) for i in range(len(table[0]))]
        lines += ["", f"[{section}]"]
        lines += [" | ".join([row[0].ljust(widths[0]), *(cell.rjust(width) for cell, width in
                                                          zip(row[1:-1], widths[1:-1])), row[-1]]) for row in table]
    return "\n".join(lines) + "\n"


def complaints(found, ceilings):
    """What is above its ceiling, and what has none. What was not counted is not held."""
    for subject in sorted(ceilings.keys() - found.keys()):
        yield f"{subject}: there is a ceiling, but nothing is counted"
    for subject, row in found.items():
        if subject not in ceilings:
            yield f"{subject}: has no row of ceilings"
            continue
        for count, ceiling in ceilings[subject].items():
            if count != "why" and count in row and row[count] > ceiling:
                yield (f"{subject}: {count.replace('_', ' ')} per event are {row[count]:.2f}, "
                       f"at most {ceiling:g} are allowed")


def ours(found):
    """Without the yardsticks and other people's programs, and without what a busy machine has made wrong."""
    return {subject: {count: value for count, value in row.items() if not row.get("disturbed")}
            for subject, row in found.items()
            if subject.startswith("korva-pad") or subject.split()[0] in counts.TOOLS}


def hold(found, section):
    """Tells what is wrong; true if nothing is."""
    ceilings = read()[section]
    found = ours(found)
    wrong = list(complaints(found, ceilings))
    for line in wrong:
        print(line)
    held = sum(count in ceilings.get(subject, {}) for subject, row in found.items() for count in row)
    for subject in (subject for subject, row in found.items() if not row):
        print(f"{subject}: not held, the machine is too busy")
    print(f"{section}: {held} counts held against their ceilings, {len(wrong)} wrong")
    return not wrong and (held > 0 or not any(found.values()))


def lower(found):
    """Lowers ceilings, and gives those to what has none; raises none."""
    ceilings = read()
    for section, columns in COLUMNS.items():
        rows = ceilings.setdefault(section, {})
        for subject, row in ours(found[section]).items():
            ceiling = rows.setdefault(subject, {"why": FIRST})
            for count, (margin, digit) in columns.items():
                if count in row:
                    value = round(math.ceil(row[count] * (1 + margin) / digit) * digit, 2)
                    ceiling[count] = min(ceiling.get(count, value), value)
    FILE.write_text(written(ceilings))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(0 if hold(counts.counted_by_itself(sys.argv[1]), "inside") else 1)
