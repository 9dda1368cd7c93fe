#!/usr/bin/env python3
"""Writes demo.rec: an evening at the lake, stroke by stroke. Run it after a change: ./demo.py > demo.rec"""
import math
import random

WIDTH, HEIGHT, HORIZON = 200, 170, 98
SUN = (128, 70)
random.seed(7)


def say(*words):
    print(*words)


def color(rgb):
    say("color", "#%02x%02x%02x" % tuple(max(0, min(255, round(c))) for c in rgb))


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def gradient(stops, t):
    for (t0, c0), (t1, c1) in zip(stops, stops[1:]):
        if t <= t1:
            return mix(c0, c1, (t - t0) / (t1 - t0))
    return stops[-1][1]


def stroke(points):
    points = [(round(x), round(y)) for x, y in points]
    say("press", *points[0])
    for point in points[1:]:
        say("move", *point)
    say("release", *points[-1])


def curve(points, steps=24):
    """A smooth stroke through all points (Catmull-Rom)."""
    padded = [points[0], *points, points[-1]]
    path = []
    for p0, p1, p2, p3 in zip(padded, padded[1:], padded[2:], padded[3:]):
        for i in range(steps):
            t = i / steps
            path.append(tuple(
                0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t + (3 * b - a - 3 * c + d) * t ** 3)
                for a, b, c, d in zip(p0, p1, p2, p3)))
    stroke(path + [points[-1]])


def box(x, y, right, bottom):
    stroke([(x, y), (right, bottom)])


def disc(centre, radius):
    (x, y), r = centre, radius
    stroke([(x - r, y - r), (x + r, y + r)])


def polygon(corners):
    """Filled with one level stroke a row."""
    top, bottom = min(y for _, y in corners), max(y for _, y in corners)
    for y in range(round(top), round(bottom) + 1):
        crossings = sorted(
            x0 + (y - y0) * (x1 - x0) / (y1 - y0)
            for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1])
            if min(y0, y1) <= y < max(y0, y1))
        for left, right in zip(crossings[::2], crossings[1::2]):
            stroke([(left, y), (right, y)])


def sky():
    say("# the sky, from the zenith down")
    say("tool rectangle")
    say("option 1")
    stops = [(0, (38, 58, 110)), (0.35, (92, 98, 160)), (0.62, (214, 130, 140)), (0.85, (250, 178, 118)),
             (1, (255, 214, 150))]
    step = 2
    for y in range(0, HORIZON, step):
        color(gradient(stops, y / HORIZON))
        box(-2, y, WIDTH + 2, y + step + 1)


def sun():
    say("# the sun and its glow")
    say("tool ellipse")
    say("option 1")
    for radius, shade in ((27, (250, 170, 122)), (23, (252, 184, 126)), (19, (254, 203, 140)),
                          (15, (255, 226, 165)), (12, (255, 244, 205))):
        color(shade)
        disc(SUN, radius)


def clouds():
    say("# thin clouds")
    say("tool pencil")
    for x, y, length, shade in ((12, 24, 62, (150, 128, 176)), (30, 29, 70, (176, 138, 176)),
                                (118, 16, 66, (128, 118, 172)), (140, 21, 44, (150, 126, 174)),
                                (4, 52, 48, (240, 168, 150)), (20, 56, 44, (248, 186, 158)),
                                (158, 46, 40, (244, 170, 146))):
        color(shade)
        for row in range(3):
            say("option", 1 if row == 1 else 0)
            inset = abs(row - 1) * length * 0.18
            curve([(x + inset, y + row * 2), (x + length * 0.35, y + row * 2 - 2), (x + length * 0.7, y + row * 2 + 1),
                   (x + length - inset, y + row * 2 - 1)], 8)


def mountains():
    say("# two ranges of mountains")
    say("tool pencil")
    say("option 1")
    for base, height, shade, seed in ((HORIZON, 34, (122, 96, 142), 3), (HORIZON, 20, (78, 70, 116), 11)):
        rng = random.Random(seed)
        waves = [(rng.uniform(0.02, 0.09), rng.uniform(0, 6.28), rng.uniform(0.3, 1)) for _ in range(5)]
        for x in range(0, WIDTH + 2, 2):
            rise = sum(a * math.sin(f * x + p) for f, p, a in waves)
            away = min(1, abs(x - SUN[0]) / 70)
            top = base - max(2, height * (0.35 + 0.65 * away) * (0.55 + 0.22 * rise))
            color(mix(shade, (250, 190, 140), 0.25 * (1 - away)))
            stroke([(x, top), (x, base)])


def lake():
    say("# the lake")
    say("tool rectangle")
    say("option 1")
    stops = [(0, (246, 186, 140)), (0.12, (206, 138, 140)), (0.45, (92, 92, 140)), (1, (26, 40, 78))]
    step = 2
    for y in range(HORIZON, HEIGHT, step):
        color(gradient(stops, (y - HORIZON) / (HEIGHT - HORIZON)))
        box(-2, y, WIDTH + 2, y + step + 1)
    say("# light on the water")
    say("tool pencil")
    for y in range(HORIZON + 2, HEIGHT - 4, 2):
        depth = (y - HORIZON) / (HEIGHT - HORIZON)
        for _ in range(3):
            say("option", 1 if depth > 0.7 else 0)
            centre = SUN[0] + random.gauss(0, 5 + 15 * depth)
            length = random.uniform(4, 7 + 14 * depth)
            color(mix((255, 232, 176), (214, 140, 132), min(1, depth * random.uniform(0.5, 1.2))))
            curve([(centre - length / 2, y), (centre, y + random.choice((-1, 0, 1))), (centre + length / 2, y)], 4)
    for _ in range(46):
        y = random.uniform(HORIZON + 14, HEIGHT - 6)
        x = random.uniform(-6, WIDTH)
        color(mix((120, 112, 158), (44, 60, 104), (y - HORIZON) / (HEIGHT - HORIZON)))
        say("option 0")
        curve([(x, y), (x + 7, y - 1), (x + 14, y), (x + 20, y - 1)], 4)


def boat():
    say("# the boat")
    say("tool pencil")
    say("option 0")
    color((240, 226, 206))
    polygon([(60, 54), (60, 112), (31, 112)])
    color((253, 244, 228))
    polygon([(63, 47), (63, 113), (94, 113)])
    say("# seams in the sails")
    color((222, 200, 178))
    for y in (70, 84, 98):
        curve([(64, y), (64 + (y - 47) * 0.21, y + 1.5), (64 + (y - 47) * 0.42, y)], 8)
    for y in (76, 92):
        curve([(59, y), (59 - (y - 54) * 0.22, y + 1.5), (59 - (y - 54) * 0.44, y)], 8)
    say("option 1")
    color((70, 42, 40))
    stroke([(61, 42), (61, 118)])
    say("option 0")
    color((96, 38, 44))
    polygon([(25, 117), (98, 116), (86, 130), (36, 130)])
    color((134, 56, 54))
    polygon([(25, 117), (98, 116), (95, 120), (28, 120)])
    color((245, 214, 150))
    curve([(30, 122), (60, 124), (92, 121)], 16)
    say("# a flag")
    color((224, 62, 62))
    polygon([(62, 38), (76, 41), (62, 45)])
    say("# its reflection")
    for i in range(17):
        y = 132 + i * 1.8
        sway = 3 * math.sin(i * 1.3)
        half = 30 - i * 1.5
        color(mix((116, 60, 74), (58, 52, 92), i / 17))
        curve([(60 + sway - half, y), (60 + sway, y + 1), (60 + sway + half, y)], 6)
        if i > 2:
            color(mix((226, 196, 190), (96, 88, 128), i / 17))
            curve([(66 + sway - half * 0.5, y + 1), (66 + sway + half * 0.4, y + 1)], 4)


def gull(x, y, size):
    curve([(x - size, y - size * 0.3), (x - size * 0.5, y - size * 0.6), (x, y), (x + size * 0.5, y - size * 0.6),
           (x + size, y - size * 0.25)], 8)


def birds():
    say("# gulls: one is drawn, two are its copies; the sky is the same all along a row")
    say("tool pencil")
    say("option 0")
    color((40, 40, 66))
    gull(162, 41, 7)
    left, top = 153, 28
    say("tool select")
    stroke([(left, top), (left + 10, top + 5), (left + 19, top + 16)])
    say("copy")
    for x in (96, 178):
        say("paste")
        say("move 9 8")
        stroke([(9, 8), (9 + x // 2, 20), (9 + x, 8 + top)])
    say("tool pencil")
    gull(146, 33, 4)
    gull(118, 30, 4)


def rigging():
    say("# rigging, and foam at the bow")
    say("tool line")
    say("option 0")
    color((92, 66, 66))
    stroke([(61, 43), (24, 116)])
    stroke([(61, 43), (97, 115)])
    say("tool eraser")
    say("option 0")
    curve([(90, 128), (96, 126), (103, 129)], 6)
    curve([(93, 131), (101, 130), (109, 132)], 6)


def portholes():
    say("# portholes, drawn at twice the size with the view moved along")
    say("zoom 200")
    say("tool hand")
    stroke([(100, 200), (100, 150)] + [(100 + i % 2, 100) for i in range(8)])
    say("tool ellipse")
    say("option 1")
    for x in (46, 56, 66, 76):
        color((255, 222, 150))
        stroke([(2 * x, 250), (2 * x + 7, 257)])
    say("zoom 100")


def reeds():
    say("# reeds at the shore")
    say("tool pencil")
    for i in range(38):
        x = 146 + i * 1.5 + random.uniform(-1, 1)
        tall = random.uniform(18, 46) * (0.5 + 0.5 * min(1, i / 20))
        lean = random.uniform(-9, 7)
        color(mix((22, 38, 44), (52, 74, 62), random.random()))
        say("option", 1 if i % 4 == 0 else 0)
        curve([(x, HEIGHT + 1), (x + lean * 0.25, HEIGHT - tall * 0.5), (x + lean, HEIGHT - tall)], 10)
        if i % 6 == 2:
            color((86, 52, 40))
            say("option 1")
            curve([(x + lean * 0.95, HEIGHT - tall - 4), (x + lean, HEIGHT - tall + 3)], 4)


def signature():
    say("# signed")
    say("tool text")
    say("option 0")
    color((214, 196, 190))
    say("press 8 164")
    say("release 8 164")
    say('type "Korva"')
    say("tool pencil")
    say("option 0")
    color((224, 62, 62))


print("# An evening at the lake. Written by demo.py.")
for part in (sky, sun, clouds, mountains, lake, boat, rigging, portholes, birds, reeds, signature):
    part()
