#!/usr/bin/env python3
"""Uses korva-pad in a real window for some minutes, as somebody does for hours, and watches what it costs.

soak.py PROGRAM MINUTES FOLDER

Once a second a sample is taken; FOLDER gets soak.csv with all of them and soak.svg with their curves. Ends with 0 if
every curve is flat: the median of the last fifth of the time is not above that of the second fifth by more than is
tolerated. The first fifth fills caches and the history of changes.
"""
import csv
import random
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

import plot
from display import Person, Screen
from pad import Home, Pad
from use import Use, Wrong

SEED = 7
SECONDS_OF_A_PERSON = 3  # for each thing done


@dataclass
class Quantity:
    """What is sampled, and by how much it may be greater at the end."""

    name: str
    factor: float
    margin: float


QUANTITIES = (
    Quantity("memory written to, MiB", 1.05, 1),
    Quantity("open files", 1, 1),
    Quantity("threads", 1, 1),
    Quantity("timers of the system", 1, 1),
    Quantity("processes started", 1, 0),
    Quantity("X resources", 1, 4),
    Quantity("X pixmaps, KiB", 1.05, 256),
    Quantity("wake-ups a second at rest", 1.2, 2),
)


def memory(process):
    """In MiB, the pages that it wrote to: other programs that come and go, and share the libraries, change none."""
    rollup = process / "smaps_rollup"
    return (field(rollup, "Private_Dirty") + field(rollup, "Shared_Dirty")) / 1024


def field(path, name):
    for line in path.read_text().splitlines():
        if line.startswith(name + ":"):
            return int(line.split()[1])
    raise RuntimeError(f"no {name} in {path}")


def wakeups(process):
    return sum(field(task / "status", "voluntary_ctxt_switches") for task in (process / "task").iterdir())


class Watcher:
    """Takes the samples, each a dictionary by the quantities' names."""

    def __init__(self, pad, person):
        self.process = Path(f"/proc/{pad.pid}")
        self.pad = pad
        self.person = person
        self.begin = time.monotonic()
        self.samples = []
        self.at_rest = 0

    def sample_when_due(self):
        now = time.monotonic() - self.begin
        if now < len(self.samples):
            return
        descriptors = [self.target(link) for link in (self.process / "fd").iterdir()]
        tasks = [*(self.process / "task").iterdir()]
        resources, pixmaps = self.person.client_resources(self.pad.window())
        timers = (self.process / "timers").read_text().count("ID:") + descriptors.count("anon_inode:[timerfd]")
        children = sum(len((task / "children").read_text().split()) for task in tasks)
        values = (memory(self.process), len(descriptors), len(tasks), timers, children,
                  sum(resources.values()), pixmaps / 1024, self.at_rest)
        self.samples.append({"s": now} | {q.name: value for q, value in zip(QUANTITIES, values)})

    @staticmethod
    def target(link):
        try:
            return str(link.readlink())
        except FileNotFoundError:
            return ""  # closed since it was listed

    def rest(self, seconds):
        """Does nothing for a while, and counts how often the program wakes up. A timer that nobody stopped shows here:
        those of a Qt program are none of the system's."""
        time.sleep(0.5)  # until what blinks or fades is done
        before = wakeups(self.process)
        time.sleep(seconds)
        self.at_rest = (wakeups(self.process) - before) / seconds


def verdict(samples):
    """Prints the table; whether all is flat."""
    end = samples[-1]["s"]

    def median(name, first, last):
        return statistics.median(s[name] for s in samples if end * first <= s["s"] <= end * last)

    is_flat = True
    print(f"{'':28}{'second fifth':>14}{'last fifth':>14}{'allowed':>14}")
    for q in QUANTITIES:
        early, late = median(q.name, 0.2, 0.4), median(q.name, 0.8, 1)
        allowed = early * q.factor + q.margin
        is_flat = is_flat and late <= allowed
        print(f"{q.name:28}{early:14.1f}{late:14.1f}{allowed:14.1f}"
              f"{'' if late <= allowed else '  grows'}")
    return is_flat


def write_csv(samples, target):
    with open(target, "w", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, samples[0])
        writer.writeheader()
        writer.writerows({key: round(value, 2) for key, value in sample.items()} for sample in samples)


def soak(program, minutes, scratch):
    """The samples, and how many things were done with how many events in how many rounds."""
    home = Home(scratch / "home")
    for name, size in (("photo.png", "300x200"), ("wide.jpg", "1200x900"), ("moving.gif", "120x90")):
        subprocess.run(["convert", "-seed", "7", "-size", size, "plasma:navy-orange", home.pictures / name], check=True)
    screen = Screen()
    person = Person(screen)
    pad = Pad([program, "--scale", "1"], home, screen, person, home.pictures / "photo.png")
    try:
        watcher = Watcher(pad, person)
        use = Use(pad, person, home, random.Random(SEED), watcher.sample_when_due)
        rounds = 0
        while time.monotonic() - watcher.begin < minutes * 60:
            use.round()
            watcher.rest(1.5)
            if rounds == 0:
                watcher.begin = time.monotonic()  # with the first number of what happens at rest
                watcher.samples.clear()
            rounds += 1
        said = pad.complaints()
        if said:
            raise Wrong("it said:\n" + "\n".join(said))
        return watcher.samples, use.done, person.events, rounds
    finally:
        pad.kill()
        screen.stop()


def main(program, minutes, folder):
    target = Path(folder)
    target.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(prefix="korva-soak-") as scratch:
        try:
            samples, done, events, rounds = soak(Path(program).resolve(), float(minutes), Path(scratch))
        except Wrong as wrong:
            sys.exit(f"soak: {wrong}")
    write_csv(samples, target / "soak.csv")
    plot.draw(target / "soak.csv", target / "soak.svg")
    print(f"{done} things done in {rounds} rounds with {events} events: "
          f"{done * SECONDS_OF_A_PERSON / 3600:.1f} hours of somebody who does one in {SECONDS_OF_A_PERSON} s")
    if not verdict(samples):
        sys.exit("Something grows")
    print("All is flat")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
