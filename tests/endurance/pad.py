"""korva-pad as a person starts it, in a home of its own that nothing leaves."""
import os
import re
import signal
import subprocess
import time
from pathlib import Path

START_PATIENCE = 60  # s; the sanitizers are slow to start, and so are busy machines
TITLE_END = " - Korva"
# What it may say although nothing is wrong: its messages, its traces, and what Qt says when the display goes away.
EXPECTED = re.compile(r"korva-pad: .*|\{\d\} \w+\.cpp:\d+\t.*|"
                      r".*The X11 connection broke.*|.*X connection to :\d+ broken.*")
SUPPRESSIONS = Path(__file__).parent.parent / "support/lsan.supp"


class Home:
    """The user's folders, below a scratch folder."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.pictures = self.folder / "Pictures"
        self.recovery = self.folder / "state/korva"
        self.reports = self.folder / "reports"
        for made in (self.pictures, self.reports, self.folder / "config/korva", self.folder / "tmp"):
            made.mkdir(parents=True)
        (self.folder / "config/user-dirs.dirs").write_text(f'XDG_PICTURES_DIR="{self.pictures}"\n')
        (self.folder / "config/korva/pad.conf").write_text("[start]\nbuttons=true\n")  # or a card lies over the window
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700)

    def environment(self, screen):
        kept = {key: value for key, value in os.environ.items()
                if not key.startswith(("QT_", "WAYLAND", "XDG_", "LC_", "DBUS_", "CUPS_"))}
        reports = f"log_path={self.reports}/report"
        return kept | {
            "HOME": str(self.folder), "TMPDIR": str(self.folder / "tmp"), "DISPLAY": screen.name, "LANG": "C.UTF-8",
            "XDG_CONFIG_HOME": str(self.folder / "config"), "XDG_STATE_HOME": str(self.folder / "state"),
            "XDG_DATA_HOME": str(self.folder / "data"), "XDG_CACHE_HOME": str(self.folder / "cache"),
            "XDG_RUNTIME_DIR": str(self.folder / "runtime"), "QT_QPA_PLATFORM": "xcb",
            "CUPS_SERVER": str(self.folder / "no-printer"), "DBUS_SESSION_BUS_ADDRESS": "disabled:",
            "ASAN_OPTIONS": f"detect_leaks=1:intercept_tls_get_addr=0:{reports}",
            "LSAN_OPTIONS": f"suppressions={SUPPRESSIONS}:print_suppressions=0",
            "UBSAN_OPTIONS": f"print_stacktrace=1:{reports}"}


class Pad:
    """One run of the program."""

    def __init__(self, command, home, screen, person, *arguments):
        self._person = person
        self._home = home
        self._log = home.folder / "pad.log"
        with open(self._log, "wb") as log:
            self._process = subprocess.Popen(
                [*command, *map(str, arguments)], env=home.environment(screen), cwd=home.folder,
                stdin=subprocess.DEVNULL, stdout=log, stderr=log, start_new_session=True)
        self.pid = self._process.pid
        self._wait_for_window()

    def _wait_for_window(self):
        end = time.monotonic() + START_PATIENCE
        while time.monotonic() < end and self.is_running():
            if self.window():
                return
            time.sleep(0.02)

    def is_running(self):
        return self._process.poll() is None

    def wait(self, patience):
        """Its exit code; None if it still runs after so many seconds."""
        try:
            return self._process.wait(patience)
        except subprocess.TimeoutExpired:
            return None

    def kill(self):
        if self.is_running():
            os.killpg(self.pid, signal.SIGKILL)
        self._process.wait()

    def window(self):
        """The pad's own window, if it can be seen."""
        return next((w for w in self._person.windows() if w.title.endswith(TITLE_END)), None)

    def boxes(self):
        """The boxes and dialogs over it, from the bottom to the top."""
        return [w for w in self._person.windows() if w.title and not w.title.endswith(TITLE_END)]

    def complaints(self):
        """What it and the sanitizers said that it should not have."""
        said = [line for line in self._log.read_text(errors="replace").splitlines()
                if line and not EXPECTED.fullmatch(line)]
        for report in sorted(self._home.reports.iterdir()):
            said += report.read_text(errors="replace").splitlines()
            report.unlink()
        return said
