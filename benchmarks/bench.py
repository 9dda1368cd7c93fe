#!/usr/bin/env python3
"""Measures Korva from the inside and from the outside, and prints the results as tables.

Called by ./bench with the folder of the built programs. Writes results.json there; prints the tables.
See benchmarks/README.md for how to read them.
"""
import argparse
import json
import os
import platform
import subprocess
import sys
import tempfile
from pathlib import Path

import ceilings
import counts
import handset
import parts
import report
from inside import from_inside
from outside import from_outside
from programs import make_pictures


def stripped_bytes(library, folder):
    copy = folder / "libkorva.so"
    subprocess.run(["strip", "--strip-unneeded", "-o", copy, library], check=True)
    return copy.stat().st_size


def check(found):
    """Both sections are told, also if the first one is wrong."""
    return all([ceilings.hold(found[section], section) for section in ("inside", "outside")])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("built", type=Path, help="the build folder")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--quick", action="store_true", help="one round, short: to see that it runs")
    parser.add_argument("--json", type=Path, help="where to write the results (BUILT/results.json)")
    only = parser.add_mutually_exclusive_group()
    only.add_argument("--counts", action="store_true", help="only what is counted, which a busy machine allows")
    only.add_argument("--check", action="store_true", help="only hold what is counted against benchmarks/ceilings.txt")
    only.add_argument("--lower", action="store_true", help="lower the ceilings to what is counted")
    only.add_argument("--parts", action="store_true", help="only what start and memory consist of")
    only.add_argument("--handset", action="store_true", help="only how far the screen is behind a slow program's pen")
    options = parser.parse_args()
    built = options.built.resolve()
    rounds = 1 if options.quick else options.rounds
    wants_counts = options.counts or options.check or options.lower
    everything = not (wants_counts or options.handset or options.parts)

    load = os.getloadavg()[0]
    if load > 0.5:
        print(f"The machine is busy (load {load:.1f}): take times with care.", file=sys.stderr)
    result = {"machine": {"cpus": os.cpu_count(), "kernel": platform.release(), "load_before": load}}
    with tempfile.TemporaryDirectory(prefix="korva-bench-") as name:
        folder = Path(name)
        sheet, photo, formats = make_pictures(folder)
        if wants_counts or everything:
            result["counts"] = counts.counted(built, sheet, folder)
        if options.check:
            sys.exit(0 if check(result["counts"]) else 1)
        if options.lower:
            ceilings.lower(result["counts"])
            return
        if everything:
            result["outside"] = from_outside(built, rounds, sheet, photo, folder)
            result["inside"] = from_inside(built, formats, folder, options.quick)
            result["library_bytes"] = stripped_bytes(built / "src/libkorva.so", folder)
        if everything or options.handset:
            result["handset"] = handset.at_handset_speed(built, rounds, sheet, folder)
        if everything or options.parts:
            result["parts"] = parts.in_parts(built, rounds, sheet, folder)
    result["must_reach"] = [report.judge(row) for row in report.must_reach(result)]
    result["also_kept"] = [report.judge(row) for row in report.also_kept(result)]
    target = options.json or (built / "results.json" if everything else None)
    if target:
        target.write_text(json.dumps(result, indent=1) + "\n")
    report.print_report(result)
    if target:
        print(f"\nAll of it: {target}")


if __name__ == "__main__":
    main()
