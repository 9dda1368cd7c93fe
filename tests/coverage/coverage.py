"""What ./coverage does when everything is built."""
import argparse
import collections
import concurrent.futures
import json
import os
import shutil
import subprocess
import sys
import xml.etree.ElementTree as xml
from pathlib import Path

import counters

ROOT = Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/coverage"
REPORT = BUILD / "tests.xml"
APART = BUILD / "apart"
MAP = BUILD / "map.json"
DURATIONS = BUILD / "durations.json"
DOCUMENT = ROOT / "docs/coverage.md"
WANTED = 95  # % of the lines of each level
LEFT_OUT = r"^(install/|fuzz/|monkey$)"  # they say nothing of single lines, or build everything once more


def arguments():
    parser = argparse.ArgumentParser(prog="./coverage", description="Counts which lines the tests run.")
    parser.add_argument("--map", action="store_true",
                        help=f"keep the tests apart: {MAP.relative_to(ROOT)} says which of them run a line, "
                             f"{DURATIONS.name} how many seconds each takes")
    parser.add_argument("--branches", action="store_true", help="tell the branches, too, that were not taken")
    parser.add_argument("--document", action="store_true",
                        help=f"write the figures into {DOCUMENT.relative_to(ROOT)}")
    parser.add_argument("--counted", action="store_true", help="run no test: tell what the last run counted")
    return parser.parse_args()


def clear():
    shutil.rmtree(APART, ignore_errors=True)
    for counted in BUILD.rglob("*.gcda"):
        counted.unlink()


def run_tests(apart):
    environment = os.environ | ({"KORVA_COUNTERS": str(APART)} if apart else {})
    command = ["ctest", "--test-dir", BUILD, "--parallel", "2", "--timeout", "400", "--exclude-regex", LEFT_OUT,
               "--output-on-failure", "--output-junit", REPORT]
    if subprocess.run(command, env=environment).returncode != 0:
        print("What failed ran, too; ./test judges it. Without optimization what is timed may take too long.\n")


def programs():
    """The test of each program."""
    command = ["ctest", "--test-dir", BUILD, "--show-only=json-v1"]
    output = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
    return {Path(word).name: test["name"]
            for test in json.loads(output)["tests"] for word in test.get("command", [])[:2]}


def read_apart():
    """What was counted by all, and by line which tests ran it."""
    names = programs()
    whole = counters.read(ROOT, counters.notes(BUILD))  # of what was not run at all, too
    runners = collections.defaultdict(lambda: collections.defaultdict(list))
    folders = sorted(APART.iterdir())
    with concurrent.futures.ProcessPoolExecutor(2) as pool:
        for folder, sources in zip(folders, pool.map(read_one, folders)):
            for name, source in sources.items():
                whole.setdefault(name, counters.Source()).merge(source)
                for line, count in source.counts.items():
                    if count:
                        runners[name][line].append(names[folder.name])
    return whole, runners


def read_one(folder):
    return counters.read_apart(ROOT, BUILD, folder)


def write_map(runners):
    MAP.write_text(json.dumps(runners, sort_keys=True))
    durations = {case.get("name"): float(case.get("time")) for case in xml.parse(REPORT).iter("testcase")}
    DURATIONS.write_text(json.dumps(durations, sort_keys=True, indent=1))


def ranges(numbers):
    """"3, 5-7" for 3, 5, 6, 7."""
    parts = []
    for number in numbers:
        if parts and parts[-1][1] == number - 1:
            parts[-1][1] = number
        else:
            parts.append([number, number])
    return ", ".join(str(first) if first == last else f"{first}-{last}" for first, last in parts)


class Figures:
    """Of some files together."""

    def __init__(self, sources):
        self.lines = sum(len(source.counts) for source in sources)
        self.missed = sum(len(source.missed()) for source in sources)
        self.branches = sum(len(taken) for source in sources for taken in source.branches.values())
        self.branches_missed = sum(taken.count(0) for source in sources for taken in source.branches.values())

    def share(self):
        return 100 * (self.lines - self.missed) / self.lines if self.lines else 100

    def row(self):
        branches = self.branches - self.branches_missed
        return (f"{self.lines:,}", f"{self.lines - self.missed:,}", f"{self.share():.1f} %",
                f"{100 * branches / self.branches if self.branches else 100:.1f} %")


def levels(sources):
    """The figures of each level, and of the whole."""
    rows = {level: Figures([source for name, source in sources.items() if name.startswith(level + "/")])
            for level in counters.LEVELS}
    return rows | {"all": Figures(sources.values())}


def tell(sources, branches):
    for name, source in sorted(sources.items()):
        figures = Figures([source])
        missed = source.missed()
        print(f"{name}: {figures.lines - figures.missed} of {figures.lines}"
              + (f"; not {ranges(missed)}" if missed else ""))
        if branches:
            for number, taken in source.one_sided():
                print(f"{name}:{number}: taken {', '.join(map(str, taken))} times")
    print(f"\n{'':10}{'lines':>9}{'run':>9}{'':>9}{'branches':>10}")
    for level, figures in levels(sources).items():
        print(f"{level:10}{figures.row()[0]:>9}{figures.row()[1]:>9}{figures.row()[2]:>9}{figures.row()[3]:>10}")


def write_document(sources):
    begin, end = "<!-- figures -->\n", "<!-- end of the figures -->\n"
    before, rest = DOCUMENT.read_text().split(begin)
    rows = [f"| {'the whole' if level == 'all' else f'`{level}/`'} | {' | '.join(figures.row())} |\n"
            for level, figures in levels(sources).items()]
    head = "| level | lines | run | of the lines | of the branches |\n|---|---:|---:|---:|---:|\n"
    DOCUMENT.write_text(before + begin + head + "".join(rows) + end + rest.split(end)[1])


def main():
    options = arguments()
    if not options.counted:
        clear()
        run_tests(options.map)
    if options.map:
        sources, runners = read_apart()
        write_map(runners)
    else:
        sources = counters.read(ROOT, counters.notes(BUILD))
    tell(sources, options.branches)
    if options.document:
        write_document(sources)
    short = [level for level, figures in levels(sources).items() if figures.share() < WANTED]
    if short:
        print(f"Less than {WANTED} % of the lines were run: {', '.join(short)}")
    return 1 if short else 0


sys.exit(main())
