#!/usr/bin/python3
"""Draws how cost grows with the picture and with the zoom: plot.py RESULTS.json PICTURE.svg

Needs Debian's python3-matplotlib.
"""
import json
import re
import sys

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams["svg.hashsalt"] = "korva"  # the same results give the same file
from matplotlib import pyplot  # noqa: E402

SIZE = re.compile(r"(\d+)x(\d+)$")


def pixels(name):
    width, height = SIZE.search(name).groups()
    return int(width) * int(height)


def series(inside, pattern, key):
    """Points (key, microseconds, the limit's microseconds) of the operations whose names match."""
    rows = [(key(name, match), found["ns"] / 1e3, found["limit_ns"] / 1e3)
            for name, found in inside.items() if (match := re.fullmatch(pattern, name))]
    return zip(*sorted(rows))


def draw(axes, title, label, curves, limit):
    """Draws curves: on logarithmic scales with a limit, from 0 without one."""
    for name, (x, cost, floor) in curves:
        (line,) = axes.plot(x, cost, marker="o", label=name)
        if limit:
            axes.plot(x, floor, color=line.get_color(), linestyle=":", linewidth=1)
    axes.set_title(title)
    axes.set_xlabel(label)
    axes.set_xscale("linear" if "zoom" in label else "log")
    axes.set_yscale("log" if limit else "linear")
    if not limit:
        axes.set_ylim(bottom=0)
    axes.set_ylabel("µs of CPU")
    axes.grid(True, which="major", alpha=0.3)
    axes.legend()


def main(source, target):
    with open(source, encoding="utf-8") as file:
        inside = json.load(file)["inside"]
    tools = ("pencil", "line", "ellipse")
    operations = ("undo", "merge", "zoom_change")

    def by_size(pattern):
        return [*series(inside, pattern, lambda name, _: pixels(name))]

    def by_zoom(pattern):
        return [*series(inside, pattern, lambda _, match: int(match.group(1)))]

    figure, axes = pyplot.subplots(2, 2, figsize=(11, 8), layout="constrained")
    draw(axes[0][0], "One motion event at 100 %", "pixels of the picture",
         [(t, by_size(rf"by_size/{t}/100/.*")) for t in tools], False)
    draw(axes[0][1], "One motion event on 240 × 320", "zoom in percent",
         [(t, by_zoom(rf"by_zoom/{t}/(\d+)/.*")) for t in tools], False)
    draw(axes[1][0], "A whole picture at 100 % (dotted: copying it)", "pixels of the picture",
         [(o.replace("_", " "), by_size(rf"by_size/{o}/100/.*")) for o in operations], True)
    draw(axes[1][1], "A whole picture of 352 × 288 (dotted: copying it)", "zoom in percent",
         [(o.replace("_", " "), by_zoom(rf"{o}/(\d+)/.*")) for o in operations], True)
    figure.savefig(target, metadata={"Date": None})


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
