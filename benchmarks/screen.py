"""A virtual screen, and a client on it that starts programs and draws in them."""
import contextlib
import json
import os
import signal
import subprocess
import sys
import time

from programs import MARKER

SCREEN = "1024x768x24"
IDLE_S = 0.7  # from the picture on the screen until a program is left alone


@contextlib.contextmanager
def preferred(real_time=False):
    """What is started meanwhile runs before other work on the machine, as far as the system allows it."""
    before = os.sched_getscheduler(0), os.sched_getparam(0), os.getpriority(os.PRIO_PROCESS, 0)
    with contextlib.suppress(OSError):
        os.setpriority(os.PRIO_PROCESS, 0, -20)
        if real_time:
            os.sched_setscheduler(0, os.SCHED_RR, os.sched_param(1))
    try:
        yield
    finally:
        os.sched_setscheduler(0, *before[:2])
        os.setpriority(os.PRIO_PROCESS, 0, before[2])


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

    def __call__(self, *words, **environment):
        run = subprocess.run([self.program, *map(str, words)], env=self.environment | environment, text=True,
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if run.returncode != 0:
            raise RuntimeError(run.stderr.strip())
        return json.loads(run.stdout) if run.stdout else {}


@contextlib.contextmanager
def clients(built, folder, real_time=False):
    """A virtual screen, and a home without memories."""
    environment = {key: value for key, value in os.environ.items() if not key.startswith(("QT_", "WAYLAND"))}
    home = folder / "home"
    home.mkdir(mode=0o700, exist_ok=True)
    environment |= {"HOME": str(home), "XDG_RUNTIME_DIR": str(home), "LANG": "C.UTF-8"}
    settings = home / ".config/korva/pad.conf"
    settings.parent.mkdir(parents=True, exist_ok=True)
    settings.write_text("[start]\nbuttons=true\n")  # or a card lies over the window
    with preferred(real_time), Screen() as screen:
        environment["DISPLAY"] = screen.display
        yield Client(built / "benchmarks/korva-bench-client", environment)


def end(pid):
    with contextlib.suppress(ProcessLookupError):
        os.killpg(pid, signal.SIGKILL)
    time.sleep(0.2)


@contextlib.contextmanager
def started(client, program, picture, folder):
    """Its process, and the milliseconds until its picture was on the screen."""
    answer = client("start", MARKER, *program.arguments(picture, folder))
    try:
        yield answer["pid"], answer["ms"]
    finally:
        end(answer["pid"])


def choose_pencil(client, program):
    if program.tap:
        client("click", *program.tap)
        time.sleep(0.3)


@contextlib.contextmanager
def ready(client, program, picture, folder):
    """Its process, at rest, with the pencil."""
    with started(client, program, picture, folder) as (pid, _):
        time.sleep(IDLE_S)
        choose_pencil(client, program)
        yield pid
