#!/usr/bin/env python3
"""Draws the curves of a soak, each in a field of its own: plot.py soak.csv soak.svg"""
import csv
import sys
from xml.sax.saxutils import escape

COLUMNS = 2
WIDTH, HEIGHT = 440, 170  # of a field
LEFT, TOP, RIGHT, BOTTOM = 58, 34, 30, 30  # around the curve in it
LINE, GRID, SHADE, TEXT = "#1f5fa8", "#d5d9de", "#eef2f7", "#2b3440"


def text(x, y, words, anchor="middle", size=11):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" font-size="{size}">{escape(words)}</text>'


def field(name, times, values, x, y):
    """One curve from 0 up, over the fifths of the time that are compared."""
    width, height = WIDTH - LEFT - RIGHT, HEIGHT - TOP - BOTTOM
    highest = max(*values, 1) * 1.15
    end = times[-1]
    left, bottom = x + LEFT, y + HEIGHT - BOTTOM
    parts = [text(x + WIDTH / 2, y + 22, name, size=13)]
    for fifth in (1, 4):
        parts.append(f'<rect x="{left + width * fifth / 5:.1f}" y="{y + TOP}" width="{width / 5:.1f}" '
                     f'height="{height}" fill="{SHADE}"/>')
    for part in (0, 0.5, 1):
        at = bottom - height * part
        parts.append(f'<path d="M{left} {at:.1f}h{width}" stroke="{GRID}"/>')
        parts.append(text(left - 6, at + 4, f"{highest * part:.{0 if highest >= 10 else 1}f}", "end"))
        parts.append(text(left + width * part, bottom + 16, f"{end * part / 60:.1f} min"))
    points = " ".join(f"{left + width * t / end:.1f},{bottom - height * v / highest:.1f}"
                      for t, v in zip(times, values))
    parts.append(f'<polyline points="{points}" fill="none" stroke="{LINE}" stroke-width="1.4"/>')
    return parts


def draw(source, target):
    with open(source, newline="", encoding="utf-8") as file:
        rows = [{key: float(value) for key, value in row.items()} for row in csv.DictReader(file)]
    names = [name for name in rows[0] if name != "s"]
    times = [row["s"] for row in rows]
    lines = -(-len(names) // COLUMNS)
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH * COLUMNS} {HEIGHT * lines}" '
             f'width="{WIDTH * COLUMNS}" height="{HEIGHT * lines}" font-family="DejaVu Sans, sans-serif" '
             f'fill="{TEXT}">',
             f'<rect width="{WIDTH * COLUMNS}" height="{HEIGHT * lines}" fill="white"/>']
    for number, name in enumerate(names):
        parts += field(name, times, [row[name] for row in rows],
                       number % COLUMNS * WIDTH, number // COLUMNS * HEIGHT)
    with open(target, "w", encoding="utf-8") as file:
        file.write("\n".join([*parts, "</svg>\n"]))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    draw(*sys.argv[1:])
