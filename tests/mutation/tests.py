"""The tests that run a line, and how one of them is run and ended with all that it started."""
import ctypes
import json
import os
import re
import signal
import subprocess
import tempfile
import xml.etree.ElementTree as xml
from dataclasses import dataclass
from pathlib import Path

PR_SET_CHILD_SUBREAPER = 36
PATIENCE = 20  # seconds, and so many times what the test takes else:
TIMES = 3
PROMISE = 4  # so many times as long may a test of the file's own subject take to be asked as early as another


@dataclass
class Test:
    name: str
    command: list
    program: str  # and the target that builds it
    folder: str
    environment: dict


def adopt_orphans():
    """What a test leaves running becomes a child of this program, which ends it."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def end_children():
    """All that was started here and still runs: processes that have left the test's group, X servers for one."""
    while children := Path("/proc/self/task", str(os.getpid()), "children").read_text().split():
        for child in children:
            try:
                os.kill(int(child), signal.SIGKILL)
                os.waitpid(int(child), 0)
            except (ProcessLookupError, ChildProcessError):
                pass


def end_group(group):
    try:
        os.killpg(group, signal.SIGKILL)
    except ProcessLookupError:
        pass


def run_group(command, limit=None, **others):
    """The exit code, or None if `limit` seconds did not suffice. Nothing that the command has started survives."""
    process = subprocess.Popen(command, start_new_session=True, stdin=subprocess.DEVNULL, **others)
    try:
        return process.wait(limit)
    except subprocess.TimeoutExpired:
        return None
    finally:
        end_group(process.pid)
        process.wait()
        end_children()


class Tests:
    """What ./coverage --map has found out: the tests that passed, how long each takes, the lines that it runs."""

    def __init__(self, build):
        for name in ("map.json", "durations.json", "tests.xml"):
            if not (build / name).exists():
                raise SystemExit(f"{build / name} is missing: ./coverage --map makes it")
        self._runners = json.loads((build / "map.json").read_text())
        self._durations = json.loads((build / "durations.json").read_text())
        passed = {case.get("name") for case in xml.parse(build / "tests.xml").iter("testcase")
                  if case.get("status") == "run"}
        shown = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], check=True,
                               stdout=subprocess.PIPE).stdout
        self._tests = {}
        for test in json.loads(shown)["tests"]:
            properties = {p["name"]: p["value"] for p in test.get("properties", [])}
            environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
            programs = [Path(word).name for word in test.get("command", []) if word.startswith(str(build))]
            if test["name"] in passed and programs:
                self._tests[test["name"]] = Test(test["name"], test["command"], programs[0],
                                                 properties["WORKING_DIRECTORY"], environment)
        # Those that hold code of the library; the others load it.
        self._whole = set(re.findall(r"^build tests/(\w+): .*libkorva_(?:toolkit|platform|engine)\.a",
                                     (build / "build.ninja").read_text(), re.MULTILINE))
        self._noticed = {}
        self._steady = set()

    def __getitem__(self, name):
        return self._tests[name]

    def is_built_of(self, file, name):
        """Whether a change of the file changes more than the library that the test's program loads."""
        return file.endswith(".h") or self._tests[name].program in self._whole

    def of(self, file, number):
        """The tests that run this line, the most promising first.

        Lines that nothing is compiled for by themselves, such as the second one of a statement or a row of a table,
        are taken to be run by all that run the nearest lines, and where there are none, by all that run the file.
        Declarations that are in no file that is run, such as a structure with its defaults, concern all tests.
        """
        lines = {int(line): names for line, names in self._runners.get(file, {}).items()}
        if not lines and file.endswith(".h"):
            return self.of(file[:-2] + ".cpp", number)
        names = set(lines.get(number, ()))
        if not names:
            near = [line for line in lines if abs(line - number) <= 3]
            names = {name for line in near or lines for name in lines[line]} or self._tests.keys()
        return sorted((name for name in names if name in self._tests), key=lambda name: self._order(file, name))

    def remember(self, file, name):
        """The test has noticed a change of the file: it is asked early next time."""
        self._noticed[file, name] = self._noticed.get((file, name), 0) + 1

    def _order(self, file, name):
        subject = Path(file).stem.split("_", 1)[-1].replace("_", "")
        own = name.rsplit("_", 1)[-1] in subject or subject in name
        seconds = self._durations.get(name, 0)
        return seconds / (1 + PROMISE * own + self._noticed.get((file, name), 0))

    def limit(self, name):
        return PATIENCE + TIMES * self._durations.get(name, 0)

    def run(self, name):
        """None if the test passes, else how it does not: "failed", "crashed" or "out of time"."""
        test = self._tests[name]
        with tempfile.TemporaryDirectory(prefix="korva-mutation-") as scratch:
            # Counters of a changed library would not fit those that are there.
            environment = os.environ | test.environment | {"TMPDIR": scratch, "GCOV_PREFIX": scratch + "/counters"}
            code = run_group(test.command, self.limit(name), cwd=test.folder, env=environment,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if code is None:
            return "out of time"
        return "crashed" if code < 0 else "failed" if code else None

    def notices(self, name):
        """As run(), but what fails must do so twice."""
        how = self.run(name)
        if how is None:
            self._steady.add(name)
        return how if how in (None, "crashed") else self.run(name)

    def passes_unchanged(self, name):
        """Whether the test passes here while nothing is changed; one that does not is not asked again."""
        if name not in self._steady and self.run(name):
            del self._tests[name]
            return False
        self._steady.add(name)
        return True
