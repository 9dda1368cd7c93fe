"""Programs timed from the outside."""
import statistics
import sys
import time
from pathlib import Path

from programs import MARKER, programs
from screen import IDLE_S, choose_pencil, clients, ready, started

STROKE = {"events": 1000, "rate": 500}
FLOOD = {"events": 2000, "rate": 0}


def memory_kib(pid):
    def value(name, path):
        for line in Path(f"/proc/{pid}/{path}").read_text().splitlines():
            if line.startswith(name + ":"):
                return int(line.split()[1])
        raise RuntimeError(f"no {name}")

    return {"pss_kib": value("Pss", "smaps_rollup"), "rss_kib": value("VmRSS", "status"),
            "peak_kib": value("VmHWM", "status")}


def draw(client, pid, events, rate):
    return client("stroke", MARKER, pid, events, rate)


def measure(client, program, sheet, photo, folder):
    """One round of one program: a flat dictionary of numbers."""
    found = {}
    with started(client, program, sheet, folder) as (pid, ms):
        if "start" in program.measures:
            found["start_ms"] = ms
        time.sleep(IDLE_S)
        if "memory" in program.measures:
            found |= memory_kib(pid)
        if "stroke" in program.measures:
            choose_pencil(client, program)
            stroke = draw(client, pid, **STROKE)
            found["cpu_us_per_event"] = stroke["cpu_us_per_event"]
            found["paced_points_percent"] = 100 * stroke["points_drawn"] / stroke["events"]
    if "flood" in program.measures:
        with ready(client, program, sheet, folder) as pid:
            flood = draw(client, pid, **FLOOD)
            found["flood_points_percent"] = 100 * flood["points_drawn"] / flood["events"]
            found["flood_events_per_s"] = flood["events"] / flood["seconds"]
    if "photo" in program.measures:
        with started(client, program, photo, folder) as (pid, ms):
            found["photo_ms"] = ms
            found["photo_open_ms"] = ms - found["start_ms"]
            time.sleep(IDLE_S)
            found["photo_peak_above_idle_kib"] = memory_kib(pid)["peak_kib"] - found["rss_kib"]
    return found


def from_outside(built, rounds, sheet, photo, folder):
    samples = {}
    with clients(built, folder) as client:
        for number in range(-1, rounds):  # the first warms the file cache and is not counted
            for program in programs(built):
                print(f"\r{'warm-up' if number < 0 else f'round {number + 1} of {rounds}'}: {program.name:32}",
                      end="", file=sys.stderr, flush=True)
                found = measure(client, program, sheet, photo, folder)
                if number < 0:
                    continue
                for key, value in found.items():
                    samples.setdefault(program.name, {}).setdefault(key, []).append(value)
    print(file=sys.stderr)
    return {name: {key: {"median": statistics.median(values), "samples": values} for key, values in found.items()}
            for name, found in samples.items()}
