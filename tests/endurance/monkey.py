#!/usr/bin/env python3
"""A monkey at korva-pad: presses, drags, keys and taps at random in a real window, while the window is hidden, moved,
resized and closed, the owner of the clipboard dies and other programs write over the opened picture. At the end the
display goes away, and the next start must offer the drawing.

monkey.py PROGRAM [EVENTS] [SEED]

Ends with 0 if nothing was found. The same seed makes the same choices; how far the program has come between two of them
is not in its hand. Everything but the scratch folder is read-only for the program, and there is no printer.
"""
import argparse
import collections
import contextlib
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from display import Person, Screen
from pad import Home, Pad

PATIENCE = int(os.environ.get("KORVA_PATIENCE", "5"))  # s; who has not answered by then hangs
PASTE_PATIENCE = PATIENCE + 7  # s; Qt waits 5 s for each picture that a dead owner of the clipboard has promised
SLOW = 0.1  # s
END_PATIENCE = 60  # s, to end and to look for leaks
SHOWN_GESTURES = 40  # before a finding
SCREEN = "1024x768"
BELOW_MIDDLE = 31  # how far the middle of the window is below that of the drawing's view, at scale 1
SKIPPED = 77  # to CTest
MODIFIERS = ("Control_L", "Shift_L", "Alt_L")
LETTERS = "abcdefghijklmnopqrstuvwxyz"
KEYS = (*LETTERS, *"0123456789", "space", "Return", "Escape", "Tab", "BackSpace", "Delete", "Left", "Right", "Up",
        "Down", "Home", "End", "Prior", "Next", "bracketleft", "bracketright", "plus", "minus", "Menu", "F1", "F10",
        "F11")
COMMANDS = ("n", "o", "s", "Shift_L+s", "q", "t", "i", "l", "m", "d", "p", "e", "Delete", "z", "y", "x", "c", "v", "a",
            "Shift_L+c", "plus", "minus", "0", "9", "h")
TOOLS = "plroetshfk123"
PICTURES = {"photo.png": "400x300", "picture.jpg": "900x700", "moving.gif": "120x90", "sheet.bmp": "64x80",
            "great.png": "1600x1200"}


def inside(scratch):
    """In front of a command: it can write nowhere else."""
    return ["bwrap", "--die-with-parent", "--ro-bind", "/", "/", "--dev-bind", "/dev", "/dev", "--proc", "/proc",
            "--bind", scratch, scratch]


class Found(Exception):
    """Something that must not happen."""


class Monkey:
    def __init__(self, program, folder, limit, dice):
        self.program = program
        self.home = Home(folder / "home")
        self.originals = folder / "originals"
        self.limit = limit
        self.dice = dice
        self.screen = Screen(SCREEN)
        self.person = Person(self.screen)
        self.pad = None
        self.window = None
        self.opened = None
        self.scale = 1
        self.gestures = 0
        self.starts = 0
        self.answers = []
        self.last = collections.deque(maxlen=SHOWN_GESTURES)
        self.table = [(30, self.drag), (15, self.click), (15, self.tool), (12, self.key), (10, self.command),
                      (6, self.menu), (6, self.escape), (4, self.type), (2, self.resize), (1, self.move_window),
                      (1, self.hide), (1, self.paste_from_the_dying), (1, self.replace_file), (0.5, self.close)]

    def make_pictures(self):
        self.originals.mkdir()
        for name, size in PICTURES.items():
            subprocess.run(["convert", "-seed", "7", "-size", size, "plasma:navy-orange", self.originals / name],
                           check=True)
            if name != "great.png":
                shutil.copy(self.originals / name, self.home.pictures)

    # --- What it does

    def somewhere(self, window=None):
        window = window or self.top()
        return (window.x + self.dice.random() * window.width, window.y + self.dice.random() * window.height)

    def top(self):
        """What is on top, for the pointer; the pad's window if there is nothing to be seen."""
        windows = self.person.windows()
        return windows[-1] if windows else self.window

    def focus(self):
        windows = [w for w in self.person.windows() if not w.is_popup]
        if windows:
            self.person.focus(windows[-1])

    def drag(self):
        button = self.dice.choices((1, 2, 3), (90, 2, 8))[0]
        held = self.dice.choice(KEYS) if self.dice.random() < 0.1 else None
        points = [self.somewhere() for _ in range(self.dice.randint(2, 20))]
        self.person.move(*points[0])
        self.person.press(button)
        for point in points[1:]:
            self.person.move(*point)
        if held:
            self.person.key(held)
        self.person.release(button)
        return f"button {button}, {len(points)} points, {held}"

    def click(self):
        button = self.dice.choices((1, 2, 3, 4, 5), (80, 3, 9, 4, 4))[0]
        for _ in range(self.dice.choices((1, 2, 3), (80, 15, 5))[0]):
            self.person.click(*self.somewhere(), button)
        return f"button {button}"

    def press_key(self, key):
        self.focus()
        self.person.key(key)
        return key

    def key(self):
        held = [m for m in MODIFIERS if self.dice.random() < 0.15]
        key = self.dice.choice(KEYS)
        return self.press_key("+".join([*held, key]))

    def command(self):
        return self.press_key("Control_L+" + self.dice.choice(COMMANDS))

    def tool(self):
        return self.press_key(self.dice.choice(TOOLS))

    def escape(self):
        return self.press_key("Escape")

    def type(self):
        return " ".join(self.press_key(self.dice.choice(LETTERS)) for _ in range(self.dice.randint(2, 12)))

    def menu(self):
        """The menu's key and two letters, or taps."""
        pad = self.pad.window()
        if not pad:
            return "no window"
        self.person.click(pad.x + pad.width * 0.25, pad.y + pad.height - 35)
        if self.dice.random() < 0.5:
            self.person.key(self.dice.choice("petv"))
            self.person.key(self.dice.choice(LETTERS))
            return "by letters"
        for _ in range(2):
            self.answer()
            self.person.click(*self.somewhere())
        return "by taps"

    def resize(self):
        width, height = self.dice.randint(60, self.screen.width), self.dice.randint(60, self.screen.height)
        self.person.place(self.window, 0, 0, width, height)
        return f"{width} x {height}"

    def move_window(self):
        x, y = self.dice.randint(-100, 600), self.dice.randint(-100, 500)
        self.person.place(self.window, x, y, self.window.width, self.window.height)
        return f"to {x}, {y}"

    def hide(self):
        """In the middle of a drag, at times."""
        is_dragged = self.dice.random() < 0.3
        if is_dragged:
            self.person.move(*self.somewhere())
            self.person.press()
            self.person.move(*self.somewhere())
        self.person.hide(self.window)
        self.answer()
        if is_dragged:
            self.person.release()
        time.sleep(self.dice.random() * 0.1)
        self.person.show(self.window)
        return "while dragging" if is_dragged else ""

    def close(self):
        self.person.close(self.window)

    def paste_from_the_dying(self):
        """The owner of the clipboard is killed while its picture is on its way."""
        name = self.dice.choice(list(PICTURES))
        with self.owner_of_clipboard(self.originals / name) as owner:
            time.sleep(0.1)  # until it owns the clipboard
            self.press_key("Control_L+v")
            if self.dice.random() < 0.7:
                time.sleep(self.dice.random() * 0.03)
                owner.kill()
                self.answer(PASTE_PATIENCE)
                return f"{name}, killed"
            self.answer()
        return name

    @contextlib.contextmanager
    def owner_of_clipboard(self, picture):
        owner = subprocess.Popen(
            ["xclip", "-quiet", "-selection", "clipboard", "-target", "image/png", "-in", picture],
            env={**os.environ, "DISPLAY": self.screen.name}, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        try:
            yield owner
        finally:
            owner.kill()
            owner.wait()

    def replace_file(self):
        """Another program writes over a picture, sometimes not all of it."""
        names = sorted(path.name for path in self.home.pictures.iterdir() if path.is_file())
        name = self.opened or (self.dice.choice(names) if names else "photo.png")
        other = self.dice.choice(list(PICTURES))
        data = (self.originals / other).read_bytes()
        size = len(data) if self.dice.random() < 0.6 else self.dice.randrange(len(data))
        new = self.home.pictures / ".new"
        new.write_bytes(data[:size])
        new.rename(self.home.pictures / name)
        return f"{name} by {size} bytes of {other}"

    # --- What must hold

    def answer(self, patience=PATIENCE):
        """Waits until the program has done what it was told."""
        self.window = self.pad.window() or self.window
        took = self.person.ask(self.window, patience, self.pad.is_running)
        if took is not None:
            self.answers.append(took)
        elif self.pad.is_running():
            raise Found(f"no answer within {patience} s")

    def judge_words(self):
        said = self.pad.complaints()
        if said:
            raise Found("it said:\n" + "\n".join(said))

    def judge_end(self, expected):
        code = self.pad.wait(END_PATIENCE)
        self.judge_words()
        if code is None:
            raise Found(f"did not end within {END_PATIENCE} s")
        if code not in expected:
            raise Found(f"ended with {code}")

    def start(self):
        self.opened = self.dice.choice([None, *PICTURES][:-1])
        arguments = [self.home.pictures / self.opened] if self.opened else []
        if self.opened:  # whole: who starts with a damaged picture is told, and that is all
            shutil.copy(self.originals / self.opened, arguments[0])
        scale = self.dice.choice((1, 1, 2))
        self.last.append(f"start with {self.opened} at scale {scale}")
        self.launch(scale, *arguments)

    def launch(self, scale, *arguments):
        self.scale = scale
        command = [*inside(self.home.folder), self.program, "--scale", str(scale)]
        self.pad = Pad(command, self.home, self.screen, self.person, *arguments)
        self.starts += 1
        self.window = self.pad.window()
        if not self.window:
            self.judge_words()
            raise Found("no window after the start")

    # --- The run

    def run(self):
        self.start()
        weights = [weight for weight, _ in self.table]
        while self.person.events < self.limit:
            if not self.pad.is_running():
                self.judge_end({0})
                self.start()
            gesture = self.dice.choices(self.table, weights)[0][1]
            self.last.append(gesture.__name__)
            said = gesture()
            self.last[-1] += f" ({said})" if said else ""
            self.gestures += 1
            self.answer()
            self.judge_words()

    def find_the_way_out(self):
        """Escape closes every box and menu."""
        for _ in range(30):
            self.escape()
            self.answer()
            if not self.pad.boxes():
                return
            time.sleep(0.1)
        raise Found(f"Escape does not close: {[box.title for box in self.pad.boxes()]}")

    def lose_the_display(self):
        """The program ends without a crash, and the next start offers its drawing."""
        if not self.pad.is_running():
            self.judge_end({0})
            self.start()
        self.last.append("the display goes away")
        self.person.show(self.window)
        width, height = 600, 700
        self.person.place(self.window, 0, 0, width, height)
        self.find_the_way_out()
        self.press_key("p")
        x, y = width / 2, height / 2 - BELOW_MIDDLE * self.scale  # the picture's middle
        self.person.drag([(x, y), (x + 10, y + 10), (x + 30, y + 15)])
        self.answer()
        if not self.wait_for(lambda: any(self.home.recovery.glob("living-*.png"))):
            raise Found("the drawing is not kept")
        self.person.leave()
        self.screen.kill()
        self.judge_end({1})  # what Qt ends a program with then
        self.screen = Screen(SCREEN)
        self.person = Person(self.screen)
        self.launch(1)
        if not self.wait_for(self.pad.boxes):
            raise Found("the drawing is not offered")
        self.press_key("Return")
        if not self.wait_for(lambda: not self.pad.boxes() and "*" in self.pad.window().title):
            raise Found(f"the drawing is not back: {[w.title for w in self.person.windows()]}")
        self.answer()
        self.judge_words()

    @staticmethod
    def wait_for(condition):
        end = time.monotonic() + PATIENCE * 2
        while not condition() and time.monotonic() < end:
            time.sleep(0.05)
        return condition()

    def stop(self):
        if self.pad:
            self.pad.kill()
        with contextlib.suppress(OSError):
            self.screen.stop()


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("program", type=Path)
    arguments.add_argument("events", type=int, nargs="?", default=20_000)
    arguments.add_argument("seed", type=int, nargs="?", default=random.SystemRandom().randrange(1_000_000))
    given = arguments.parse_args()
    if not shutil.which("bwrap") or subprocess.run([*inside("/tmp"), "true"], stderr=subprocess.DEVNULL).returncode:
        print("bubblewrap is not there, or cannot make folders read-only here")
        sys.exit(SKIPPED)
    print(f"seed {given.seed}", flush=True)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    begin = time.monotonic()
    with tempfile.TemporaryDirectory(prefix="korva-monkey-", ignore_cleanup_errors=True) as folder:
        monkey = Monkey(given.program.resolve(), Path(folder), given.events, random.Random(given.seed))
        events = 0
        try:
            monkey.make_pictures()
            monkey.run()
            events = monkey.person.events
            monkey.lose_the_display()
            found = None
        except Found as finding:
            found = finding
        finally:
            monkey.stop()
    answers = sorted(monkey.answers) or [0]
    print(f"{max(events, monkey.person.events)} events in {monkey.gestures} gestures and {monkey.starts} starts, "
          f"{time.monotonic() - begin:.0f} s; answers: median {answers[len(answers) // 2] * 1000:.0f} ms, "
          f"{sum(a > SLOW for a in answers)} over {SLOW * 1000:.0f} ms, the slowest {answers[-1] * 1000:.0f} ms")
    if found:
        print("The last gestures:", *monkey.last, sep="\n  ")
        sys.exit(f"Found: {found}")
    print("Nothing was found")


if __name__ == "__main__":
    main()
