#!/usr/bin/env python3
"""Puts the results of a run into the documents: document.py build/bench/results.json

docs/performance.json keeps them without the single samples. In docs/performance.md each table between the comments
that name it is written anew; what stands around the tables is written by hand.
"""
import json
import re
import sys
from pathlib import Path

import report
from counts import TOOLS, YARDSTICKS, ZOOMS
from programs import PAD

DOCS = Path(__file__).parent.parent / "docs"
MADE = re.compile(r'(<!-- the table "([\w ]+)" is made by benchmarks/document.py -->\n).*?(<!-- its end -->\n)',
                  re.DOTALL)


def table(titles, rows):
    """The first column is text, the others are numbers."""
    lines = ["| " + " | ".join(titles) + " |", "|---|" + "---:|" * (len(titles) - 1)]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows]) + "\n"


def number(value, digits=2):
    return "" if value is None else f"{value:,.{digits}f}"


def promises(rows):
    relations = {"<=": "≤", ">=": "≥"}
    return table(["what", "found", "asked", "", ""],
                 [[row["what"].replace(" x ", " × "), number(row["found"]),
                   f"{relations[row['relation']]} {row['asked']:g}",
                   {None: "not measured", True: "met", False: "not met"}[row["met"]], row["note"]] for row in rows])


def times(result):
    return table(["medians", *(title.replace("CPU us", "CPU µs") for _, title in report.COLUMNS)],
                 [[name, *(number(found[key]["median"], 1) if key in found else "" for key, _ in report.COLUMNS)]
                  for name, found in result["outside"].items()])


def calls(result):
    return table(["program", "system calls", "wake-ups", "which"],
                 [[name, number(row["system_calls"], 1), number(row["wake_ups"], 1),
                   ", ".join(f"{call} {share:.1f}" for call, share in list(row["by_name"].items())[:6])]
                  for name, row in result["counts"]["outside"].items()])


def events(result):
    found = result["counts"]["inside"]
    subjects = [*YARDSTICKS, *(f"{tool} {zoom} modern" for tool in TOOLS for zoom in ZOOMS)]
    columns = ("instructions", "allocations", "handler_allocations", "painters", "deliveries", "repaints", "pixels")
    digits = dict.fromkeys(columns, 2) | {"instructions": 0, "pixels": 0, "allocations": 1, "handler_allocations": 1}
    return table(["subject", *("of them handling it" if c == "handler_allocations" else c for c in columns)],
                 [[subject.replace(" modern", " %"), *(number(found[subject].get(c), digits[c]) for c in columns)]
                  for subject in subjects])


def handset(result):
    return table(["program", "behind, median ms", "95 % ms", "worst ms", "points lost of 1,000"],
                 [[name, number(row["median_ms"], 1), number(row["p95_ms"], 1), number(row["worst_ms"], 1),
                   number(row["points_lost"], 0)] for name, row in result["handset"]["programs"].items()])


def parts(found, digits):
    rows = list(report.part_rows(found))
    rows.append(("**sum**", *(sum(row[i] for row in rows) for i in (1, 2, 3))))
    return table(["part", "bare widget with text", PAD, "beyond"],
                 [[row[0], *(number(value, digits) for value in row[1:])] for row in rows])


TABLES = {
    "must reach": lambda result: promises(result["must_reach"]),
    "reached before": lambda result: promises(result["also_kept"]),
    "times": times,
    "system calls": calls,
    "events": events,
    "handset": handset,
    "start in ms": lambda result: parts(result["parts"]["start_ms"], 1),
    "start in instructions": lambda result: parts(result["parts"]["start_million_instructions"], 1),
    "memory": lambda result: parts(result["parts"]["memory_kib"], 0),
}


def without_samples(value):
    if isinstance(value, dict):
        return {key: without_samples(inner) for key, inner in value.items() if key != "samples"}
    return value


def main(source):
    result = json.loads(Path(source).read_text())
    page = DOCS / "performance.md"
    text, made = MADE.subn(lambda match: f"{match[1]}\n{TABLES[match[2]](result)}\n{match[3]}", page.read_text())
    if made != len(TABLES):
        sys.exit(f"{page} has {made} of {len(TABLES)} tables")
    page.write_text(text)
    (DOCS / "performance.json").write_text(json.dumps(without_samples(result), indent=1, ensure_ascii=False) + "\n")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
