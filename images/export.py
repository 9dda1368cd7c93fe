#!/usr/bin/env python3
"""Exports the drawings in images/source as the pictures that Korva uses.

Every drawing but the application icon becomes a GIF at its own size and, as NAME@2x.gif and
NAME@3x.gif, at two and three times that size. The application icon becomes PNGs for the desktop.
The drawings in designer become PNGs beside themselves, as NAME.png and NAME@2x.png. Running the script again yields the same bytes.

Needs only: apt-get install python3 librsvg2-bin imagemagick

    images/export.py            write the pictures beside this script
    images/export.py --check    write nothing; fail when a picture is missing or out of date
"""

import collections
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree
from pathlib import Path

IMAGES = Path(__file__).resolve().parent
SOURCE = IMAGES / "source"
DESIGNER = IMAGES.parent / "designer"
APPLICATION = "korva-pad"

SCALES = {1: "", 2: "@2x", 3: "@3x"}
APPLICATION_SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
DESIGNER_SCALES = (1, 2)

# A GIF pixel is opaque or absent, so edges are blended with the ground the controls stand on,
# and what an edge hardly touches is left out: it would show as a speck on a pressed control.
GROUND = (0xF4, 0xF5, 0xF7)
LEAST_ALPHA = 16
ABSENT = bytes(4)

# Keeps a GIF's colour table at 64 entries, one of them for the absent pixels.
MOST_COLOURS = 63


def size(drawing):
    root = xml.etree.ElementTree.parse(drawing).getroot()
    return int(root.get("width")), int(root.get("height"))


def render(drawing, width, height):
    command = ["rsvg-convert", "--width", str(width), "--height", str(height), str(drawing)]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def convert(data, *arguments):
    return subprocess.run(["convert", *arguments], check=True, input=data, stdout=subprocess.PIPE).stdout


def on_ground(pixel):
    alpha = pixel[3]
    if alpha < LEAST_ALPHA:
        return ABSENT
    blended = ((ink * alpha + ground * (255 - alpha) + 127) // 255 for ink, ground in zip(pixel, GROUND))
    return bytes((*blended, 255))


def distance(one, other):
    return sum((a - b) ** 2 for a, b in zip(one, other))


def with_few_colours(pixels):
    """The commonest colours stay exact, so flat areas do; a rare one, on an edge, gives way to the nearest."""
    counts = collections.Counter(pixel for pixel in pixels if pixel != ABSENT)
    kept = sorted(counts, key=lambda colour: (-counts[colour], colour))[:MOST_COLOURS]
    nearest = {colour: min(kept, key=lambda candidate: distance(colour, candidate)) for colour in counts}
    return [nearest.get(pixel, ABSENT) for pixel in pixels]


def as_gif(png, width, height):
    raw = convert(png, "png:-", "-depth", "8", "rgba:-")
    pixels = [on_ground(raw[at:at + 4]) for at in range(0, len(raw), 4)]
    data = b"".join(with_few_colours(pixels))
    return convert(data, "-size", f"{width}x{height}", "-depth", "8", "rgba:-", "gif:-")


def export(target):
    for drawing in sorted(SOURCE.glob("*.svg")):
        name = drawing.stem
        if name == APPLICATION:
            for side in APPLICATION_SIZES:
                (target / f"{name}-{side}.png").write_bytes(render(drawing, side, side))
            continue
        width, height = size(drawing)
        for scale, suffix in SCALES.items():
            across, down = width * scale, height * scale
            picture = as_gif(render(drawing, across, down), across, down)
            (target / f"{name}{suffix}.gif").write_bytes(picture)


def export_designer(target):
    for drawing in sorted(DESIGNER.glob("*.svg")):
        width, height = size(drawing)
        for scale in DESIGNER_SCALES:
            picture = render(drawing, width * scale, height * scale)
            (target / f"{drawing.stem}{SCALES[scale]}.png").write_bytes(picture)


def pictures(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir() if path.suffix in (".gif", ".png")}


def outdated():
    stale = []
    for make, place in ((export, IMAGES), (export_designer, DESIGNER)):
        with tempfile.TemporaryDirectory() as folder:
            make(Path(folder))
            fresh, present = pictures(Path(folder)), pictures(place)
        stale += [name for name in fresh.keys() | present.keys() if fresh.get(name) != present.get(name)]
    return sorted(stale)


def main(arguments):
    for program in ("rsvg-convert", "convert"):
        if not shutil.which(program):
            return f"{program} is missing: apt-get install librsvg2-bin imagemagick"
    if arguments == ["--check"]:
        stale = outdated()
        return "out of date: " + ", ".join(stale) if stale else 0
    if arguments:
        return __doc__
    export(IMAGES)
    export_designer(DESIGNER)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
