"""What a start and what the memory consist of: lists whose sums are what was measured."""
import collections
import re
import shutil
import subprocess
import sys
import time
from pathlib import Path

from programs import BARE_WITH_TEXT, MARKER, PAD, programs
from screen import IDLE_S, clients, end, started

# In the order of Marks.cpp; what remains of the total comes last.
PARTS = ("exec and dynamic linking", "QApplication itself", "loading plugins (dlopen)", "waiting for the X server",
         "fontconfig and opening fonts", "shaping and drawing letters", "icons", "translations", "settings",
         "showing: layout and painting")
REST = "the rest, our own code among it"

# Which library an instruction is in; the first that matches.
OBJECTS = (
    ("dynamic linking", r"/ld-linux"),
    ("fonts", r"fontconfig|freetype|harfbuzz|graphite|expat"),
    ("window system", r"libxcb|libX|XcbQpa|libqxcb|xkbcommon|libICE|libSM"),
    ("our own", r"korva"),
    ("Qt", r"Qt6"),
    ("C and C++ libraries", r"libc\.so|libstdc|libm\.so|libgcc"),
    ("all others", r""),
)


def subjects(built):
    return [program for program in programs(built) if program.name in (BARE_WITH_TEXT, PAD)]


# --- Start ----------------------------------------------------------------------------------------------------------


def milliseconds(client, program, built, sheet, folder):
    marks = folder / "marks"
    marks.unlink(missing_ok=True)
    answer = client("start", MARKER, *program.arguments(sheet, folder), KORVA_BENCH_MARKS=str(marks),
                    LD_PRELOAD=str(built / "benchmarks/libkorva-bench-marks.so"))
    end(answer["pid"])
    found = {part: value * 1e3 for part, value in zip(PARTS, answer["marks"], strict=True)}
    return found | {REST: answer["ms"] - sum(found.values())}


def by_object(path):
    """Instructions of each library, from callgrind's file."""
    objects = {}
    found = collections.Counter()
    current = None
    is_call = False
    for line in path.read_text(errors="replace").splitlines():
        if line.startswith("ob="):
            number, _, name = line[3:].partition(" ")
            objects.setdefault(number, name)
            current = objects[number]
        elif line.startswith("cob="):
            number, _, name = line[4:].partition(" ")
            objects.setdefault(number, name)
        elif line.startswith("calls="):
            is_call = True
        elif line[:1].isdigit() or line.startswith(("+", "-", "*")):
            if not is_call:
                found[current] += int(line.split()[1])
            is_call = False
    return found


def instructions(client, program, sheet, folder):
    """Of the whole process until it is on the screen, in millions."""
    out = folder / "callgrind-start"
    answer = client("start", MARKER, "valgrind", "--tool=callgrind", f"--callgrind-out-file={out}",
                    *program.arguments(sheet, folder))
    subprocess.run(["vgdb", f"--pid={answer['pid']}", "dump"], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
    end(answer["pid"])
    dump = next(path for path in folder.glob("callgrind-start*") if path.stat().st_size > 0)
    found = {name: 0.0 for name, _ in OBJECTS}
    for name, number in by_object(dump).items():
        part = next(part for part, pattern in OBJECTS if re.search(pattern, name or ""))
        found[part] += number / 1e6
    for path in folder.glob("callgrind-start*"):
        path.unlink()
    return found


# --- Memory ---------------------------------------------------------------------------------------------------------


def kind(path, permissions):
    name = Path(path).name
    if path in ("[heap]", ""):
        return "heap and other private memory"
    if path.startswith("["):
        return "stack"
    if path.startswith(("/SYSV", "/memfd", "/dev/")):
        return "pictures shared with the X server"
    if re.search(r"\.(ttf|otf|pfb|pcf(\.gz)?)$|fontconfig|cache-", path):
        return "fonts and their caches"
    if ".so" in name or "x" in permissions or name.startswith("korva-"):
        what = "data and relocations" if "w" in permissions or "x" not in permissions else "code"
        return f"{name}: {what}"
    return "other files"


def mappings(pid):
    """Proportional memory in KiB by kind."""
    found = collections.Counter()
    current = None
    for line in Path(f"/proc/{pid}/smaps").read_text().splitlines():
        head = re.match(r"[0-9a-f]+-[0-9a-f]+ (\S+) \S+ \S+ \S+\s*(.*)", line)
        if head:
            current = kind(head[2], head[1])
        elif line.startswith("Pss:"):
            found[current] += int(line.split()[1])
    return found


def memory(client, program, sheet, folder):
    with started(client, program, sheet, folder) as (pid, _):
        time.sleep(IDLE_S)
        return mappings(pid)


PLUGINS = "only the bare widget: Qt's picture plugins and their libraries"


def by_kind(bare, pad):
    """The libraries that both have become one row for each kind of page, the program's and our library's stay."""
    both = {name.split(":")[0] for name in bare} & {name.split(":")[0] for name in pad}
    found = {}
    for column, sums in ((BARE_WITH_TEXT, bare), (PAD, pad)):
        for name, value in sums.items():
            library, _, pages = name.partition(": ")
            if pages and library in both:
                name = f"libraries of both: {pages}"
            elif pages and "korva" not in library:
                name = f"only the pad: {library}" if column == PAD else PLUGINS
            name = re.sub("korva-bench-bare-widget|korva-pad", "the program", name)
            found.setdefault(name, {BARE_WITH_TEXT: 0, PAD: 0})[column] += value
    return dict(sorted(found.items(), key=lambda item: item[1][BARE_WITH_TEXT] - item[1][PAD]))


# --- Both -----------------------------------------------------------------------------------------------------------



def in_parts(built, rounds, sheet, folder):
    times = collections.defaultdict(list)
    pages = collections.defaultdict(list)
    found = {"start_ms": {}, "start_million_instructions": {}}
    with clients(built, folder) as client:
        for number in range(rounds):
            print(f"\rparts of start and memory: round {number + 1} of {rounds}{'':20}", end="", file=sys.stderr,
                  flush=True)
            for program in subjects(built):
                times[program.name].append(milliseconds(client, program, built, sheet, folder))
                pages[program.name].append(memory(client, program, sheet, folder))
        for program in subjects(built) if shutil.which("valgrind") else ():
            found["start_million_instructions"][program.name] = instructions(client, program, sheet, folder)
    print(file=sys.stderr)
    for name, samples in times.items():
        by_total = sorted(samples, key=lambda sample: sum(sample.values()))
        found["start_ms"][name] = by_total[len(by_total) // 2]  # one run, so that the sum is its own
    middle = {name: sorted(samples, key=lambda sample: sum(sample.values()))[len(samples) // 2]
              for name, samples in pages.items()}
    found["memory_kib"] = by_kind(middle[BARE_WITH_TEXT], middle[PAD])
    return found
