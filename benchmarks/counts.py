"""What one motion event costs, counted and not timed.

Each count is the difference of two strokes of different length, so that start and end cancel out. Counts hardly
depend on how busy the machine is.
"""
import collections
import contextlib
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

import programs
from outside import STROKE, draw
from screen import clients, ready

COUNTED, MEASURED = "korvaBenchCounted", 200  # in events.cpp: the function, and the events in it
SHORT_PACED, LONG_PACED = 400, 2000  # idle moments come and go between them
TRIES = 3  # a stroke whose events wait too long for the processor is repeated

TOOLS = ("pencil", "line", "rectangle", "ellipse", "select", "eraser", "piece", "pan", "text")
ZOOMS = (100, 200, 333)
YARDSTICKS = ("receive", "bare")
# Counting instructions takes its time; the other counts are taken of all subjects that korva-bench-events has.
INSTRUCTED = (*YARDSTICKS, *(f"{tool} {zoom} modern" for tool in TOOLS for zoom in ZOOMS),
              *(f"{tool} 100 {manners}" for tool in ("pencil", "line", "eraser")
                for manners in ("classic", "watched")))
WAITS = ("poll", "ppoll", "select", "pselect6", "epoll_wait", "epoll_pwait")


# --- Inside the program ---------------------------------------------------------------------------------------------


def counted_by_itself(program):
    """All but the instructions. Exact, and the same under sanitizers."""
    run = subprocess.run([program, "count"], check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return json.loads(run.stdout)


def instructions(program, folder):
    """Of all that are INSTRUCTED, one after the other in one process: callgrind writes a file for each."""
    out = folder / "callgrind"
    subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={out}", f"--toggle-collect={COUNTED}",
                    f"--dump-after={COUNTED}", program, "run", *INSTRUCTED],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    found = {}
    for number, subject in enumerate(INSTRUCTED, 1):
        total = re.search(r"^totals: (\d+)", Path(f"{out}.{number}").read_text(errors="replace"), re.MULTILINE)
        found[subject] = int(total[1]) / MEASURED
    return found


def inside(built, folder):
    """Per motion event, off screen, 500 a second by a clock of their own, each followed by what is due."""
    program = built / "benchmarks/korva-bench-events"
    found = counted_by_itself(program)
    if shutil.which("valgrind"):
        print("instructions ...", file=sys.stderr, flush=True)
        for subject, value in instructions(program, folder).items():
            found[subject] = {"instructions": value} | found[subject]
    return found


# --- From the outside: strace ---------------------------------------------------------------------------------------


def system_calls(pid, work, folder):
    """The system calls of a process and its threads while `work` is done."""
    out = folder / "strace"
    tracer = subprocess.Popen(["strace", "-f", "-c", "-U", "calls,name", "-o", out, "-p", str(pid)],
                              stderr=subprocess.PIPE, text=True)
    tracer.stderr.readline()  # "Process N attached"
    time.sleep(0.3)
    work()
    time.sleep(0.2)
    tracer.send_signal(signal.SIGINT)
    tracer.communicate()
    found = collections.Counter()
    for line in out.read_text().splitlines():
        row = re.fullmatch(r"\s*(\d+)\s+(\w+)", line)
        if row and row[2] != "total":
            found[row[2]] += int(row[1])
    return found


def waited_us(pid):
    """How long its threads were ready to run and did not, because others did."""
    total = 0
    for stat in Path(f"/proc/{pid}/task").glob("*/schedstat"):
        with contextlib.suppress(OSError):
            total += int(stat.read_text().split()[1])
    return total / 1e3


def tolerable_us():
    """In real time they wait for each other only, which changes nothing."""
    return 200 if os.sched_getscheduler(0) == os.SCHED_RR else 30


def least_disturbed(client, program, sheet, events, folder):
    """The system calls of a stroke, and for how long each event had to wait for the processor.

    A program that waits finds several events at once, and needs fewer calls for each.
    """
    best = None
    for _ in range(TRIES):
        with ready(client, program, sheet, folder) as pid:
            before = waited_us(pid)
            calls = system_calls(pid, lambda: draw(client, pid, events, STROKE["rate"]), folder)
            waited = (waited_us(pid) - before) / events
        if best is None or waited < best[1]:
            best = calls, waited
        if waited < tolerable_us():
            break
    return best


def traced(client, program, sheet, folder):
    """Per motion event of a paced stroke: system calls, those of them that wait and return, and all by name."""
    short, waited_short = least_disturbed(client, program, sheet, SHORT_PACED, folder)
    long, waited_long = least_disturbed(client, program, sheet, LONG_PACED, folder)
    waited = max(waited_short, waited_long)
    by_name = {name: (long[name] - short[name]) / (LONG_PACED - SHORT_PACED) for name in long}
    return {"system_calls": sum(by_name.values()), "wake_ups": sum(by_name.get(name, 0) for name in WAITS),
            "waited_us": waited, "disturbed": waited >= tolerable_us(),
            "by_name": {name: value for name, value in sorted(by_name.items(), key=lambda item: -item[1])
                        if abs(value) >= 0.005}}


def outside(built, sheet, folder):
    found = {}
    if shutil.which("strace"):
        with clients(built, folder, real_time=True) as client:
            for program in programs.programs(built):
                if "stroke" in program.measures:
                    print(f"\rsystem calls: {program.name:32}", end="", file=sys.stderr, flush=True)
                    found[program.name] = traced(client, program, sheet, folder)
        print(file=sys.stderr)
    return found


def counted(built, sheet, folder):
    return {"outside": outside(built, sheet, folder), "inside": inside(built, folder)}
