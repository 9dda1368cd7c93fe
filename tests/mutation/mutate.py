"""What ./mutate does: changes random lines of the code, one at a time, and looks whether the tests notice.

The outcome of each is a line of build/mutation/SEED.jsonl, so that a run that was stopped goes on. Each number of a seed
is a draw of its own; what does not compile is none.
"""
import argparse
import collections
import json
import os
import random
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

import changes
import tests

ROOT = Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/coverage"
WORK = ROOT / "build/mutation"
PRISTINE = WORK / "pristine"  # the build folder without a change
LEVELS = ("toolkit", "platform", "src")
WANTED = 95  # % of the changes noticed


def arguments():
    parser = argparse.ArgumentParser(prog="./mutate", description="Changes lines of the code at random and looks "
                                                                  "whether the tests notice.")
    parser.add_argument("count", nargs="?", type=int, default=200, help="of changes that compile (200)")
    parser.add_argument("seed", nargs="?", type=int, default=1, help="makes the same choices again (1)")
    parser.add_argument("--again", type=int, nargs="*", metavar="NUMBER",
                        help="judge these changes of the log anew, or all that were not noticed")
    parser.add_argument("--tests", nargs="+", metavar="TEST", help="with --again: let only these tests judge")
    parser.add_argument("--patience", type=int, default=600, metavar="SECONDS",
                        help="ask no further test of a change after so long (600)")
    parser.add_argument("--report", action="store_true", help="change nothing: tell what the log says, as tables")
    return parser.parse_args()


class Source:
    """A file whose lines may be changed; restored at the end whatever happens, or by the next run."""

    def __init__(self, name):
        self.name = name
        self.path = ROOT / name
        self.text = self.path.read_text()
        self.lines = self.text.split("\n")
        self.codes = changes.masked(self.text)

    def changes(self, number):
        return changes.changes(self.codes, self.lines, number, self.name.endswith(".h"))

    def places(self):
        """The lines that can be changed."""
        return [(self, number) for number in range(1, len(self.lines) + 1) if self.changes(number)]

    def change(self, number, before, after):
        if self.lines[number - 1].strip() != before.strip():
            raise SystemExit(f"{self.name}:{number} is not what it was")
        shutil.copy2(self.path, WORK / "original")
        (WORK / "changed").write_text(self.name)
        indent = self.lines[number - 1][:-len(self.lines[number - 1].lstrip())]
        lines = self.lines[:number - 1] + [indent + after.strip()] + self.lines[number:]
        self.path.write_text("\n".join(lines))


def files(folder):
    """The size and the time of each file, by its path in the folder."""
    found = {}
    for path, _, names in os.walk(folder):
        for name in names:
            status = os.lstat(os.path.join(path, name))
            found[os.path.relpath(os.path.join(path, name), folder)] = (status.st_size, status.st_mtime_ns)
    return found


def make_same(folder, pattern):
    """Brings each file of `folder` to what it is in `pattern`, times included."""
    wanted = files(pattern)
    there = files(folder)
    for name in there.keys() - wanted.keys():
        (folder / name).unlink()
    for name in wanted.keys():
        if there.get(name) != wanted[name]:
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            (folder / name).unlink(missing_ok=True)
            shutil.copy2(pattern / name, folder / name, follow_symlinks=False)


def restore():
    """Source and build folder are what they were, so that nothing is compiled anew but the next change."""
    changed = WORK / "changed"
    if changed.exists():
        shutil.copy2(WORK / "original", ROOT / changed.read_text())
        make_same(BUILD, PRISTINE)
        changed.unlink()


def build(*targets):
    with open(WORK / "build.log", "w") as log:
        return tests.run_group(["ninja", "-C", str(BUILD), *targets], stdout=log, stderr=log) == 0


class Log:
    """The outcomes by number; of several, the last counts."""

    def __init__(self, seed):
        self.path = WORK / f"{seed}.jsonl"
        lines = self.path.read_text().splitlines() if self.path.exists() else []
        self.entries = {entry["number"]: entry for entry in map(json.loads, lines)}

    def add(self, entry):
        with self.path.open("a") as file:
            file.write(json.dumps(entry) + "\n")
        self.entries[entry["number"]] = entry

    def judged(self):
        return [entry for _, entry in sorted(self.entries.items()) if entry["outcome"] != "not compiled"]

    def unnoticed(self):
        return [entry for entry in self.judged() if entry["outcome"] == "not noticed"]


def draw(places, seed, number):
    dice = random.Random(f"{seed}:{number}")
    source, line = dice.choice(places)
    change = dice.choice(source.changes(line))
    return {"number": number, "file": source.name, "line": line, "kind": change.kind,
            "before": source.lines[line - 1].strip(), "after": change.after.strip()}


def judge(entry, runners, patience, only=None):
    """The entry with its outcome, and how many tests were asked of how many that run the line."""
    begin = time.monotonic()
    asked = only or runners.of(entry["file"], entry["line"])
    outcome = {"outcome": "not noticed", "by": None, "asked": 0, "of": len(asked)}
    Source(entry["file"]).change(entry["line"], entry["before"], entry["after"])
    try:
        if not build("korva"):
            outcome["outcome"] = "not compiled"
            asked = []
        built = time.monotonic()
        for name in asked:
            if time.monotonic() - built > patience:
                break
            outcome["asked"] += 1
            if runners.is_built_of(entry["file"], name) and not build(runners[name].program):
                outcome["outcome"] = "not compiled"
                break
            if how := runners.notices(name):
                outcome |= {"outcome": how, "by": name}
                break
    finally:
        restore()
    name = outcome["by"]
    if name and not runners.passes_unchanged(name):
        print(f"{name} fails without any change, too, and is not asked again", flush=True)
        return judge(entry, runners, patience, [other for other in asked if other != name])
    if name:
        runners.remember(entry["file"], name)
    return entry | outcome | {"seconds": round(time.monotonic() - begin)}


def tell(entry):
    print(f"{entry['number']}: {entry['file']}:{entry['line']} ({entry['kind']}, {entry['seconds']} s)\n"
          f"    {entry['before']}\n    {entry['after']}\n"
          f"    {entry['outcome']}{', by ' + entry['by'] if entry['by'] else ''}; {entry['asked']} of {entry['of']} tests asked",
          flush=True)


def report(log):
    judged = log.judged()
    unnoticed = log.unnoticed()
    kinds = collections.defaultdict(collections.Counter)
    for entry in judged:
        kinds[entry["kind"]][entry["outcome"]] += 1
    print("| kind | changes | failed | crashed | out of time | not noticed |\n|---|---:|---:|---:|---:|---:|")
    for kind, outcomes in sorted(kinds.items()):
        print(f"| {kind} | {outcomes.total()} | "
              + " | ".join(str(outcomes[how]) for how in ("failed", "crashed", "out of time", "not noticed")) + " |")
    print()
    for entry in unnoticed:
        print(f"{entry['number']}: {entry['file']}:{entry['line']}\n    {entry['before']}\n    {entry['after']}")
    share = 100 * (1 - len(unnoticed) / len(judged)) if judged else 0
    print(f"{len(judged)} changes, {len(judged) - len(unnoticed)} noticed: {share:.1f} %")
    return 0 if share >= WANTED else 1


def main():
    options = arguments()
    log = Log(options.seed)
    if options.report:
        return report(log)
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda *_: sys.exit(1))
    WORK.mkdir(parents=True, exist_ok=True)
    tests.adopt_orphans()
    restore()
    # A program need not be linked anew because the library that it loads has changed.
    subprocess.run(["cmake", "-S", ROOT, "-B", BUILD, "-D", "CMAKE_LINK_DEPENDS_NO_SHARED=ON"], check=True,
                   stdout=subprocess.DEVNULL)
    if not build():
        raise SystemExit(f"The code does not compile as it is: {WORK / 'build.log'}")
    make_same(PRISTINE, BUILD)
    runners = tests.Tests(BUILD)
    for entry in log.judged():
        if entry["by"]:
            runners.remember(entry["file"], entry["by"])
    if options.again is not None:
        for number in options.again or [entry["number"] for entry in log.unnoticed()]:
            log.add(judge(log.entries[number], runners, options.patience, options.tests))
            tell(log.entries[number])
        return report(log)
    places = [place for level in LEVELS for path in sorted((ROOT / level).iterdir()) if path.suffix in (".cpp", ".h")
              for place in Source(str(path.relative_to(ROOT))).places()]
    number = 0
    while len(log.judged()) < options.count:
        number += 1
        if number not in log.entries:
            log.add(judge(draw(places, options.seed, number), runners, options.patience))
            tell(log.entries[number])
    return report(log)


sys.exit(main())
