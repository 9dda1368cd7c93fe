"""What one motion event of a stroke costs, counted and not timed: system calls, instructions, allocations, painters.

Each count is the difference of two strokes of different length, so that start and end cancel out. Counts hardly
depend on how busy the machine is.
"""
import collections
import os
import re
import shutil
import signal
import subprocess
import time

SHORT, LONG = 200, 600  # events; these are exact
SHORT_PACED, LONG_PACED = 400, 2000  # idle moments come and go between them

ALLOCATORS = {"malloc", "calloc", "realloc", "posix_memalign", "aligned_alloc", "memalign"}
PAINTERS = {"QPainter::begin(QPaintDevice*)"}


# --- Inside the program: callgrind ----------------------------------------------------------------------------------


def read_callgrind(path):
    """Instructions executed, and how often each function was called."""
    names = {}
    calls = collections.Counter()
    instructions = 0
    callee = None

    def name_of(text):
        number, _, name = text.partition(" ")
        if name:
            names[number] = name
        return names[number]

    for line in path.read_text(errors="replace").splitlines():
        if line.startswith("fn="):
            name_of(line[3:])
        elif line.startswith("cfn="):
            callee = name_of(line[4:])
        elif line.startswith("calls="):
            calls[callee.partition("'")[0]] += int(line[6:].split()[0])  # 'N marks a recursion
        elif line.startswith(("summary:", "totals:")):
            instructions = int(line.split()[1])
    return instructions, calls


def callgrind(program, what, events, folder):
    name, _, manners = what.partition(", ")
    words = [name, str(events), *([manners] if manners else [])]
    out = folder / f"callgrind-{events}"
    subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={out}", program, *words],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                   env=os.environ | {"QT_QPA_PLATFORM": "offscreen"})
    return read_callgrind(out)


def inside(built, folder, subjects):
    """Per motion event, off screen, each followed by its repaint."""
    program = built / "benchmarks/korva-bench-events"
    found = {}
    for what in subjects:
        short, short_calls = callgrind(program, what, SHORT, folder)
        long, long_calls = callgrind(program, what, LONG, folder)
        per_event = LONG - SHORT

        def calls(functions):
            return sum(long_calls[f] - short_calls[f] for f in functions) / per_event

        found[what] = {"instructions": (long - short) / per_event, "allocations": calls(ALLOCATORS),
                       "painters": calls(PAINTERS)}
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


def outside(started, stroke, folder):
    """Per motion event of a paced stroke, by name. `started()` gives a fresh program each time."""
    counted = []
    for events in (SHORT_PACED, LONG_PACED):
        with started() as pid:
            counted.append(system_calls(pid, lambda: stroke(pid, events), folder))
    short, long = counted
    by_name = {name: (long[name] - short[name]) / (LONG_PACED - SHORT_PACED) for name in long}
    return {"system_calls": sum(by_name.values()),
            "by_name": {name: value for name, value in sorted(by_name.items(), key=lambda item: -item[1])
                        if abs(value) >= 0.005}}


def available():
    return [tool for tool in ("strace", "valgrind") if shutil.which(tool)]
