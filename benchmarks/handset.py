"""How far the screen is behind the pen when a program is held to a tenth of a core."""
import contextlib
import os
import signal
import statistics
import sys
import threading
import time
from pathlib import Path

from programs import BARE, MARKER, PAD, programs
from screen import clients, ready

PERIOD_US, SHARE_US = 10_000, 1_000
STROKE = {"events": 1000, "rate": 200}
SUBJECTS = (BARE, PAD, "mtPaint", "xpaint")


class Quota:
    """The system's own limit: a control group of our own, of either version."""

    def __init__(self):
        name = f"korva-bench-{os.getpid()}"
        # The weights: within its limit it runs before other work on the machine.
        for root, limits in ((Path("/sys/fs/cgroup"), {"cpu.max": f"{SHARE_US} {PERIOD_US}", "cpu.weight": 10000}),
                             (Path("/sys/fs/cgroup/cpu"), {"cpu.cfs_period_us": PERIOD_US,
                                                           "cpu.cfs_quota_us": SHARE_US, "cpu.shares": 262144})):
            self.group = root / name
            with contextlib.suppress(OSError):
                self.group.mkdir()
                if all((self.group / file).exists() for file in limits):
                    for file, value in limits.items():
                        (self.group / file).write_text(str(value))
                    return
                self.group.rmdir()  # a plain folder, or a group that may not limit this
        raise OSError("no control group can be made here")

    def hold(self, pid):
        (self.group / "cgroup.procs").write_text(str(pid))

    def throttled(self):
        """How often it was stopped."""
        stat = dict(line.split() for line in (self.group / "cpu.stat").read_text().splitlines())
        return int(stat["nr_throttled"])

    def close(self):
        for _ in range(20):
            with contextlib.suppress(OSError):
                return self.group.rmdir()
            time.sleep(0.1)  # until those in it are gone


class Duty:
    """Where there is none: the process runs one millisecond of ten, whether it has work or not."""

    def __init__(self):
        self.pid = None

    def hold(self, pid):
        self.pid = pid
        self.stops = 0
        threading.Thread(target=self.run, args=(pid,), daemon=True).start()

    def run(self, pid):
        with contextlib.suppress(ProcessLookupError):
            while self.pid == pid:
                os.kill(pid, signal.SIGSTOP)
                self.stops += 1
                time.sleep((PERIOD_US - SHARE_US) / 1e6)
                os.kill(pid, signal.SIGCONT)
                time.sleep(SHARE_US / 1e6)

    def throttled(self):
        return self.stops

    def close(self):
        self.pid = None


def holder():
    try:
        return Quota()
    except OSError:
        return Duty()


def at_handset_speed(built, rounds, sheet, folder):
    samples = {}
    how = None
    with clients(built, folder) as client:
        for number in range(rounds):
            for program in programs(built):
                if program.name not in SUBJECTS:
                    continue
                print(f"\rheld to a tenth of a core, {number + 1} of {rounds}: {program.name:20}", end="",
                      file=sys.stderr, flush=True)
                with contextlib.closing(holder()) as hold:
                    how = type(hold).__doc__
                    with ready(client, program, sheet, folder) as pid:
                        hold.hold(pid)
                        found = client("behind", MARKER, pid, STROKE["events"], STROKE["rate"])
                        found["points_lost"] = found["events"] - found["points_drawn"]
                        found["throttled"] = hold.throttled()
                for key, value in found.items():
                    samples.setdefault(program.name, {}).setdefault(key, []).append(value)
    print(file=sys.stderr)
    return {"how": how, "programs": {name: {key: statistics.median(values) for key, values in found.items()} |
                                     {"most_points_lost": max(found["points_lost"]), "most_ms": max(found["worst_ms"])}
                                     for name, found in samples.items()}}
