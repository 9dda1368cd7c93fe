#!/usr/bin/env python3
"""Measures Korva from the inside and from the outside, and prints the results as tables.

Called by ./bench with the folder of the built programs. Writes results.json there; prints the table.
See benchmarks/README.md for how to read it.
"""
import argparse
import contextlib
import json
import os
import platform
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path

import counts

MARKER = "f0e0c0"  # a colour that no program uses in its window: it shows where the picture is
SCREEN = "1024x768x24"
STROKE = {"events": 1000, "rate": 500}
FLOOD = {"events": 2000, "rate": 0}
IDLE_S = 0.7  # from the picture on the screen until memory is measured


@dataclass
class Program:
    """A program to measure, and how to make it draw freehand."""

    name: str
    command: list
    setup: list = field(default_factory=list)  # lines of a recording, for korva-pad
    tap: tuple = ()  # a place on the screen that chooses the pencil
    measures: tuple = ("start", "memory", "stroke")

    def arguments(self, picture, folder):
        if not self.setup:
            return [*self.command, picture]
        recording = folder / "setup.rec"
        recording.write_text("\n".join(self.setup) + "\n")
        return [*self.command, "--replay", recording, picture]


def programs(built):
    # Every program is killed at its end; korva-pad would offer its drawing at the next start.
    pad = [built / "host/korva-pad", "--scale", "1", "--no-recovery"]
    bare = [built / "benchmarks/korva-bench-bare-widget"]
    everything = ("start", "memory", "stroke", "flood", "photo")
    known = [
        Program("bare Qt widget", bare, measures=("start", "memory", "stroke", "flood")),
        Program("only receives", [*bare, "--only-receive"], measures=("stroke",)),
        Program("korva-pad", pad, measures=everything),
        Program("korva-pad, 200 %", pad, ["zoom 200"], measures=("stroke",)),
        *(Program(f"korva-pad, {tool}", pad, [f"tool {tool}"], measures=("stroke",))
          for tool in ("line", "rectangle", "ellipse", "select")),
        Program("mtPaint", ["mtpaint"], tap=(18, 78), measures=everything),
        Program("KolourPaint", ["kolourpaint"], measures=everything),
    ]
    return [p for p in known if shutil.which(str(p.command[0]))]


# --- Pictures -------------------------------------------------------------------------------------------------------


def make_pictures(folder):
    """A sheet in the marker's colour; a photograph of 12 megapixels with such a corner; one of each format."""
    sheet = folder / "sheet.png"
    photo = folder / "photo.jpg"
    convert = ["convert", "-seed", "7"]
    grain = ["plasma:navy-orange", "-attenuate", "0.3", "+noise", "gaussian"]
    subprocess.run([*convert, "-size", "240x320", f"xc:#{MARKER}", "-define", "png:color-type=2", sheet], check=True)
    subprocess.run([*convert, "-size", "1000x750", *grain, "-resize", "4000x3000!", "-fill", f"#{MARKER}",
                    "-draw", "rectangle 0,0 1999,1499", "-sampling-factor", "2x2", "-quality", "90", photo],
                   check=True)
    formats = folder / "formats"
    formats.mkdir()
    for size in ("240x320", "1408x1152"):
        source = formats / "source.bmp"
        subprocess.run([*convert, "-size", size, *grain, source], check=True)
        for extension in ("png", "jpg", "gif", "bmp", "wbmp"):
            target = f"bmp3:{formats / size}.bmp" if extension == "bmp" else formats / f"{size}.{extension}"
            subprocess.run(["convert", source, "-depth", "8", target], check=True)
        source.unlink()
    shutil.copy(photo, formats / "4000x3000.jpg")
    return sheet, photo, formats


# --- From the outside -----------------------------------------------------------------------------------------------


class Screen:
    """A virtual screen for one run."""

    def __enter__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", SCREEN, "-nolisten", "tcp"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as answer:
            number = answer.readline().strip()
        if not number:
            sys.exit("bench: Xvfb did not start")
        self.display = ":" + number
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()


class Client:
    def __init__(self, program, environment):
        self.program = program
        self.environment = environment

    def __call__(self, *words):
        run = subprocess.run([self.program, *map(str, words)], env=self.environment, text=True,
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if run.returncode != 0:
            raise RuntimeError(run.stderr.strip())
        return json.loads(run.stdout) if run.stdout else {}


def memory_kib(pid):
    def value(name, path):
        for line in Path(f"/proc/{pid}/{path}").read_text().splitlines():
            if line.startswith(name + ":"):
                return int(line.split()[1])
        raise RuntimeError(f"no {name}")

    return {"pss_kib": value("Pss", "smaps_rollup"), "rss_kib": value("VmRSS", "status"),
            "peak_kib": value("VmHWM", "status")}


def end(pid):
    with contextlib.suppress(ProcessLookupError):
        os.killpg(pid, signal.SIGKILL)
    time.sleep(0.2)


@contextlib.contextmanager
def started(client, program, picture, folder):
    answer = client("start", MARKER, *program.arguments(picture, folder))
    try:
        yield answer["pid"], answer["ms"]
    finally:
        end(answer["pid"])


def measure(client, program, sheet, photo, folder):
    """One round of one program: a flat dictionary of numbers."""
    found = {}
    with started(client, program, sheet, folder) as (pid, ms):
        if "start" in program.measures:
            found["start_ms"] = ms
        time.sleep(IDLE_S)
        if "memory" in program.measures:
            found |= memory_kib(pid)
        if program.tap:
            client("click", *program.tap)
            time.sleep(0.3)
        stroke = client("stroke", MARKER, pid, STROKE["events"], STROKE["rate"])
        found["cpu_us_per_event"] = stroke["cpu_us_per_event"]
        found["paced_points_percent"] = 100 * stroke["points_drawn"] / stroke["events"]
    if "flood" in program.measures:
        with started(client, program, sheet, folder) as (pid, _):
            time.sleep(IDLE_S)
            if program.tap:
                client("click", *program.tap)
                time.sleep(0.3)
            flood = client("stroke", MARKER, pid, FLOOD["events"], FLOOD["rate"])
            found["flood_points_percent"] = 100 * flood["points_drawn"] / flood["events"]
            found["flood_events_per_s"] = flood["events"] / flood["seconds"]
    if "photo" in program.measures:
        with started(client, program, photo, folder) as (pid, ms):
            found["photo_ms"] = ms
            found["photo_open_ms"] = ms - found["start_ms"]
            time.sleep(IDLE_S)
            found["photo_peak_above_idle_kib"] = memory_kib(pid)["peak_kib"] - found["rss_kib"]
    return found


def counted_outside(client, program, sheet, folder):
    @contextlib.contextmanager
    def fresh():
        with started(client, program, sheet, folder) as (pid, _):
            time.sleep(IDLE_S)
            if program.tap:
                client("click", *program.tap)
                time.sleep(0.3)
            yield pid

    return counts.outside(fresh, lambda pid, events: client("stroke", MARKER, pid, events, STROKE["rate"]), folder)


@contextlib.contextmanager
def clients(built, folder):
    """A virtual screen, and a home without memories."""
    environment = {key: value for key, value in os.environ.items() if not key.startswith(("QT_", "WAYLAND"))}
    home = folder / "home"
    home.mkdir(mode=0o700, exist_ok=True)
    environment |= {"HOME": str(home), "XDG_RUNTIME_DIR": str(home), "LANG": "C.UTF-8"}
    settings = home / ".config/korva/pad.conf"
    settings.parent.mkdir(parents=True, exist_ok=True)
    settings.write_text("[start]\nbuttons=true\n")  # or a card lies over the window
    with Screen() as screen:
        environment["DISPLAY"] = screen.display
        yield Client(built / "benchmarks/korva-bench-client", environment)


def counted(built, sheet, folder):
    tools = counts.available()
    found = {"outside": {}, "inside": {}}
    if "strace" in tools:
        with clients(built, folder) as client:
            for program in programs(built):
                print(f"\rsystem calls: {program.name:24}", end="", file=sys.stderr, flush=True)
                found["outside"][program.name] = counted_outside(client, program, sheet, folder)
    if "valgrind" in tools:
        print("\ninstructions ...", file=sys.stderr, flush=True)
        found["inside"] = counts.inside(built, folder, COUNTED)
    return found


def from_outside(built, rounds, sheet, photo, folder):
    samples = {}
    with clients(built, folder) as client:
        for number in range(-1, rounds):  # the first warms the file cache and is not counted
            for program in programs(built):
                print(f"\r{'warm-up' if number < 0 else f'round {number + 1} of {rounds}'}: {program.name:24}",
                      end="", file=sys.stderr, flush=True)
                found = measure(client, program, sheet, photo, folder)
                if number < 0:
                    continue
                for key, value in found.items():
                    samples.setdefault(program.name, {}).setdefault(key, []).append(value)
    print(file=sys.stderr)
    return {name: {key: {"median": statistics.median(values), "samples": values} for key, values in found.items()}
            for name, found in samples.items()}


# --- From the inside ------------------------------------------------------------------------------------------------


def from_inside(built, formats, folder, quick):
    out = folder / "inside.json"
    print("inside ...", file=sys.stderr, flush=True)
    subprocess.run([built / "benchmarks/korva-bench-inside", f"--benchmark_min_time={0.02 if quick else 0.1}",
                    f"--benchmark_repetitions={1 if quick else 5}", f"--benchmark_out={out}",
                    "--benchmark_enable_random_interleaving=true", formats],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    nanoseconds = {}
    unit = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    for run in json.loads(out.read_text())["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"bench: {run['name']}: {run['error_message']}")
        if run["run_type"] == "iteration":
            nanoseconds.setdefault(run["run_name"], []).append(run["cpu_time"] * unit[run["time_unit"]])
    medians = {name: statistics.median(values) for name, values in nanoseconds.items()}
    return {name: {"ns": value, "limit_ns": medians[name + "/limit"], "ratio": value / medians[name + "/limit"]}
            for name, value in medians.items() if not name.endswith("/limit")}


# --- The report -----------------------------------------------------------------------------------------------------

COUNTED = ("receive", "bare", "pencil", "pencil-200", "line", "line-200", "rectangle", "rectangle-200", "ellipse",
           "ellipse-200", "select", "select-200", "eraser", "eraser-200", "pencil, modern", "pencil-200, modern", "line-200, modern",
           "eraser, modern")

BARE = "bare Qt widget"
PAD = "korva-pad"


def must_reach(outside, inside, library_bytes):
    """The rows of the promises: name, value found, comparison, and the most (or least) that is allowed."""

    def ratio(key, program, other):
        if other not in outside or program not in outside:
            return None
        return outside[program][key]["median"] / outside[other][key]["median"]

    def at_most(name, value, limit):
        return name, value, "<=", limit

    def worst(key):
        return max((r["ratio"] for n, r in inside.items() if n.startswith(key)), default=None)

    return [
        at_most("CPU per motion event, pencil at 100 %, x bare widget", ratio("cpu_us_per_event", PAD, BARE), 0.6),
        at_most("CPU per motion event, pencil at 200 %, x bare widget",
                ratio("cpu_us_per_event", PAD + ", 200 %", BARE), 1.0),
        *(at_most(f"CPU per motion event, {tool} preview, x bare widget",
                  ratio("cpu_us_per_event", f"{PAD}, {tool}", BARE), 1.0)
          for tool in ("line", "rectangle", "ellipse", "select")),
        ("points drawn in a flood, %", outside[PAD]["flood_points_percent"]["median"], ">=", 100.0),
        at_most("start to painted, x bare widget", ratio("start_ms", PAD, BARE), 1.5),
        at_most("start to painted, x mtPaint", ratio("start_ms", PAD, "mtPaint"), 1.0),
        at_most("memory idle (PSS), x bare widget", ratio("pss_kib", PAD, BARE), 1.25),
        at_most("12-megapixel JPEG, start to painted, x mtPaint", ratio("photo_ms", PAD, "mtPaint"), 0.6),
        at_most("12-megapixel JPEG, without the start, x mtPaint", ratio("photo_open_ms", PAD, "mtPaint"), 0.6),
        at_most("12-megapixel JPEG, peak memory above idle, x mtPaint",
                ratio("photo_peak_above_idle_kib", PAD, "mtPaint"), 0.5),
        *(at_most(f"{name.replace('_', ' ')} of 352 x 288 at 200 %, x copying", worst(f"{name}/200/352x288"), 4.0)
          for name in ("undo", "merge", "zoom_change")),
        at_most("stripped library, kB", library_bytes / 1000, 700.0),
    ]


COLUMNS = [("start_ms", "start ms"), ("pss_kib", "PSS KiB"), ("cpu_us_per_event", "CPU us/event"),
           ("paced_points_percent", "points %"), ("flood_points_percent", "flood %"),
           ("photo_ms", "photo ms"), ("photo_peak_above_idle_kib", "photo peak KiB")]


def print_report(result):
    print("\nMedians of the programs")
    print(f"{'program':24}" + "".join(f"{title:>15}" for _, title in COLUMNS))
    for name, found in result["outside"].items():
        cells = [f"{found[key]['median']:15.1f}" if key in found else f"{'-':>15}" for key, _ in COLUMNS]
        print(f"{name:24}" + "".join(cells))
    print("\nInside, CPU time beside its limit")
    print(f"{'operation':40}{'us':>12}{'limit us':>12}{'ratio':>9}")
    for name, found in result["inside"].items():
        print(f"{name:40}{found['ns'] / 1e3:12.2f}{found['limit_ns'] / 1e3:12.3f}{found['ratio']:9.1f}")
    print("\nWhat must be reached")
    print(f"{'what':62}{'found':>9}   {'asked':>9}")
    for row in result["must_reach"]:
        found = "-" if row["found"] is None else f"{row['found']:.2f}"
        verdict = {None: "not measured here", True: "met", False: "NOT MET"}[row["met"]]
        print(f"{row['what']:62}{found:>9}   {row['relation']} {row['asked']:<6g} {verdict}")


def print_counts(found):
    print("\nCounted, for each motion event of a paced stroke")
    print(f"{'program':24}{'system calls':>14}  which")
    for name, row in found["outside"].items():
        which = ", ".join(f"{call} {number:.2f}" for call, number in list(row["by_name"].items())[:8])
        print(f"{name:24}{row['system_calls']:14.2f}  {which}")
    print(f"\n{'inside':24}{'instructions':>14}{'allocations':>13}{'painters':>10}")
    for name, row in found["inside"].items():
        print(f"{name:24}{row['instructions']:14.0f}{row['allocations']:13.2f}{row['painters']:10.2f}")


def stripped_bytes(library, folder):
    copy = folder / "libkorva.so"
    subprocess.run(["strip", "--strip-unneeded", "-o", copy, library], check=True)
    return copy.stat().st_size


def judge(row):
    what, found, relation, asked = row
    met = None if found is None else found <= asked if relation == "<=" else found >= asked
    return {"what": what, "found": found, "relation": relation, "asked": asked, "met": met}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("built", type=Path, help="the build folder")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--quick", action="store_true", help="one round, short: to see that it runs")
    parser.add_argument("--json", type=Path, help="where to write the results (BUILT/results.json)")
    parser.add_argument("--counts", action="store_true", help="only what is counted, which a busy machine allows")
    options = parser.parse_args()
    built = options.built.resolve()

    load = os.getloadavg()[0]
    if load > 0.5:
        print(f"The machine is busy (load {load:.1f}): take the numbers with care.", file=sys.stderr)
    with tempfile.TemporaryDirectory(prefix="korva-bench-") as name:
        folder = Path(name)
        sheet, photo, formats = make_pictures(folder)
        found = counted(built, sheet, folder)
        if options.counts:
            print_counts(found)
            return
        outside = from_outside(built, 1 if options.quick else options.rounds, sheet, photo, folder)
        inside = from_inside(built, formats, folder, options.quick)
        size = stripped_bytes(built / "src/libkorva.so", folder)
    result = {
        "machine": {"cpus": os.cpu_count(), "kernel": platform.release(), "load_before": load},
        "outside": outside,
        "inside": inside,
        "counts": found,
        "must_reach": [judge(row) for row in must_reach(outside, inside, size)],
    }
    target = options.json or built / "results.json"
    target.write_text(json.dumps(result, indent=1) + "\n")
    print_report(result)
    print_counts(found)
    print(f"\nAll of it: {target}")


if __name__ == "__main__":
    main()
