"""Ordinary use of korva-pad, in rounds that touch everything."""
import time

PATIENCE = 20  # s
MESSAGE = 4  # s, longer than a message stays
TOOLS = {"p": "pencil", "l": "line", "r": "rectangle", "o": "ellipse", "e": "eraser", "h": "hand", "f": "fill",
         "k": "picker"}
# What opens a dialog, and how the title begins that says so.
DIALOGS = {"Control_L+n": "Canvas Size", "Control_L+o": "Open picture", "Control_L+Shift_L+s": "Save picture as",
           "F1": "Keys", "c": "Color", "Control_L+i": "Insert stamp", "Control_L+t": "New from picture",
           "Control_L+m": "Save for a message", "Control_L+e": "Earlier drawings", "Control_L+p": "Print"}
PLACES = ((0, 0, 240, 320), (20, 10, 480, 400), (0, 0, 800, 600), (60, 40, 640, 480))
SAVED = "Saved Successfully"  # goes by itself
SAVING = "Saving drawing"
PAGES = "petv"  # of the menu


class Wrong(Exception):
    """The program did not do what it should."""


class Use:
    """`breathe` is called after each thing that is done; `done` counts them."""

    def __init__(self, pad, person, home, dice, breathe):
        self.pad = pad
        self.person = person
        self.home = home
        self.dice = dice
        self.breathe = breathe
        self.pictures = {file.name for file in home.pictures.iterdir()}
        self.done = 0
        self.rounds = 0

    # --- Small things

    def finish(self):
        """Until the program has done what it was told."""
        if self.person.ask(self.pad.window(), PATIENCE, self.pad.is_running) is None:
            raise Wrong("no answer" if self.pad.is_running() else f"it ended with {self.pad.wait(0)}")
        self.done += 1
        self.breathe()

    def key(self, name):
        self.person.focus([w for w in self.person.windows() if not w.is_popup][-1])
        self.person.key(name)
        self.finish()

    def is_soon(self, condition, patience=PATIENCE):
        end = time.monotonic() + patience
        while not condition():
            if time.monotonic() > end:
                return False
            time.sleep(0.005)
            self.breathe()
        return True

    def wait_for(self, condition, what):
        if not self.is_soon(condition):
            raise Wrong(f"{what}; instead: {[w.title for w in self.person.windows()]}")

    def box(self):
        boxes = self.pad.boxes()
        return boxes[-1].title if boxes else ""

    def open_dialog(self, key, title):
        """Once more, as a person does, if a message was there and took the key."""
        for _ in range(3):
            self.wait_for_no_box()
            self.key(key)
            if self.is_soon(lambda: self.box().startswith(title), MESSAGE):
                return
        raise Wrong(f"no box '{title}'; instead: {[w.title for w in self.person.windows()]}")

    def settle(self, key):
        """Presses it until nothing is unsaved. Answers each question with what its first key says, or gives up a
        drawing."""
        answered = ""

        def is_settled():
            nonlocal answered
            box = self.box()
            # One that is still closing must not get the key twice, and the key of a wait is Cancel.
            if box not in ("", SAVED, SAVING, answered):
                if box.startswith("Save changes"):
                    self.key("Tab")  # to No
                self.key("Return")
            answered = box
            return "*" not in self.pad.window().title and not self.box()
        for _ in range(3):
            answered = ""
            self.key(key)
            if self.is_soon(is_settled, MESSAGE):
                return
        raise Wrong(f"{key} does not settle it: {[w.title for w in self.person.windows()]}")

    def wait_for_no_box(self):
        self.wait_for(lambda: not self.box(), "a box stays")

    def place(self):
        """Somewhere in the drawing's view."""
        pad = self.pad.window()
        left = 140 if pad.width >= 640 else 10
        return (pad.x + self.dice.uniform(left, pad.width - 20), pad.y + self.dice.uniform(60, pad.height - 110))

    def drag(self, points):
        self.person.drag([self.place() for _ in range(points)])
        self.finish()

    # --- What somebody does

    def draw(self):
        for tool in TOOLS:
            self.key(tool)
            for option in self.dice.sample("123", 2):
                self.key(option)
                self.drag(self.dice.randint(2, 15))

    def write(self):
        self.key("t")
        for _ in range(3):
            self.person.click(*self.place())
            for key in (*"korva", "space", *"pad"):
                self.key(key)
        self.key("Escape")

    def select(self):
        self.key("s")
        for _ in range(2):
            self.drag(2)
            for key in ("Control_L+c", "Control_L+v"):
                self.key(key)
            self.drag(4)
            for key in ("bracketleft", "Alt_L+Prior", "Left", "Return"):
                self.key(key)
        for key in ("Control_L+a", "Control_L+x", "Control_L+v", "Control_L+z", "Control_L+Shift_L+c"):
            self.key(key)

    def go_back_and_forth(self):
        for key in 8 * ("Control_L+z",) + 4 * ("Control_L+y",):
            self.key(key)

    def zoom(self):
        for key in ("Control_L+plus", "Control_L+plus", "Control_L+minus", "Control_L+9", "Control_L+0"):
            self.key(key)
            self.drag(3)

    def open_menus(self):
        for page in PAGES:
            pad = self.pad.window()
            self.person.click(pad.x + pad.width * 0.25, pad.y + pad.height - 35)
            self.finish()
            self.person.key(page)
            self.finish()
            self.key("Escape")
            self.key("Escape")

    def open_dialogs(self):
        self.save()  # or it would be asked first
        for key, title in DIALOGS.items():
            self.open_dialog(key, title)
            self.key("Escape")
            self.wait_for_no_box()

    def save(self):
        """Under its name; or under the one that the dialog offers, if it has none."""
        self.settle("Control_L+s")

    def open_another(self):
        self.save()
        self.choose_picture("Control_L+o", "Open picture")

    def stamp(self):
        self.choose_picture("Control_L+i", "Insert stamp")
        self.drag(3)
        self.key("Return")

    def choose_picture(self, key, title):
        self.open_dialog(key, title)
        for key in ("Home", *self.dice.randrange(3) * ("Right",)):
            self.key(key)
        self.key("Return")
        self.wait_for_no_box()

    def begin_anew(self):
        """What was drawn is given up, and becomes one of the earlier drawings."""
        self.key("p")
        self.drag(9)
        time.sleep(1.2)  # until it is kept
        self.settle("Control_L+n")
        self.draw()
        self.save()

    def tidy_up(self):
        """Takes away what was saved under new names, or the folder dialogs would show more and more."""
        title = self.pad.window().title
        for file in self.home.pictures.iterdir():
            if file.name not in self.pictures and file.name not in title:
                file.unlink()

    def resize(self):
        self.person.place(self.pad.window(), *PLACES[self.rounds % len(PLACES)])
        self.finish()

    def round(self):
        for part in (self.draw, self.write, self.select, self.go_back_and_forth, self.zoom, self.open_menus,
                     self.open_dialogs, self.stamp, self.open_another, self.begin_anew, self.tidy_up,
                     self.open_another, self.resize):
            part()
        self.rounds += 1
