"""What was promised, beside what was found; and the tables."""
from counts import TOOLS, ZOOMS
from programs import BARE, BARE_WITH_TEXT, PAD, PEER

PREVIEWS = ("line", "rectangle", "ellipse", "select")
DRAGGED = [tool for tool in TOOLS if tool not in ("piece", "text")]


class Found:
    """What was measured, by name; None where it was not."""

    def __init__(self, result):
        self.result = result

    def __call__(self, *path):
        value = self.result
        for key in path:
            if not isinstance(value, dict) or key not in value:
                return None
            value = value[key]
        return value

    def median(self, program, key):
        return self("outside", program, key, "median")

    def ratio(self, key, program, other):
        return divided(self.median(program, key), self.median(other, key))

    def counted(self, where, subject, key, other):
        return divided(self("counts", where, subject, key), self("counts", where, other, key))


def divided(a, b):
    return None if a is None or not b else a / b


def most_allocations(found):
    """Of any tool at any zoom while it handles a motion, without what Qt allocates to deliver one."""
    of_delivery = found("counts", "inside", "receive", "handler_allocations")
    values = {f"{tool} {zoom}": found("counts", "inside", f"{tool} {zoom} modern", "handler_allocations")
              for tool in DRAGGED for zoom in ZOOMS}
    if of_delivery is None or None in values.values():
        return None, ""
    worst = max(values, key=values.get)
    return values[worst] - of_delivery, f"the most: {worst} %"


def must_reach(result):
    """Rows: what, found, relation, asked, note."""
    found = Found(result)
    inside = result.get("inside", {})
    pencil = "pencil 100 modern"

    def at_most(what, value, limit, note=""):
        return what, value, "<=", limit, note

    disturbed = any(found("counts", "outside", name, "disturbed") for name in (PAD, BARE))

    def cpu(what, program, peer):
        beside = found.ratio("cpu_us_per_event", peer, BARE)
        return at_most(f"CPU per motion event, {what}, x bare widget", found.ratio("cpu_us_per_event", program, BARE),
                       0.6, f"{peer}: {beside:.2f}" if beside else "")

    png = inside.get("save/352x288.png", {})
    handset = found("handset", "programs", PAD) or {}
    return [
        at_most("system calls per motion event, pencil at 100 %, x bare widget",
                found.counted("outside", PAD, "system_calls", BARE), 0.5,
                "the machine was too busy to tell" if disturbed else ""),
        at_most("instructions per motion event, pencil at 100 %, x bare widget",
                found.counted("inside", pencil, "instructions", "bare"), 0.7),
        at_most("instructions per motion event, pencil at 100 %, x only receiving",
                found.counted("inside", pencil, "instructions", "receive"), 1.25),
        at_most("allocations per motion event, any tool at any zoom", *rearranged(most_allocations(found), 0)),
        cpu("pencil at 100 %", PAD, PEER),
        cpu("pencil at 200 %", f"{PAD}, 200 %", PEER),
        *(cpu(f"{tool} preview", f"{PAD}, {tool}", f"{PEER}, line") for tool in PREVIEWS),
        at_most("start to painted, x bare widget with a line of text", found.ratio("start_ms", PAD, BARE_WITH_TEXT),
                1.15),
        at_most("memory idle (PSS), x bare widget with a line of text", found.ratio("pss_kib", PAD, BARE_WITH_TEXT),
                1.1),
        at_most("12-megapixel JPEG, start to painted, x mtPaint", found.ratio("photo_ms", PAD, "mtPaint"), 0.5),
        *(at_most(f"{name.replace('_', ' ')} of 352 x 288 at 200 %, x copying the zoomed picture",
                  found("inside", f"{name}/200/352x288", "ratio"), 2.5) for name in ("undo", "merge", "zoom_change")),
        at_most("saving 352 x 288 as PNG, x the codec's default call", png.get("ratio"), 3.0),
        at_most("its file, x the default call's", png.get("size_ratio"), 1.0),
        at_most("a tenth of a core, 200 events/s: the screen behind the pen, ms at worst",
                handset.get("worst_ms"), 50.0,
                f"half of them {handset['median_ms']:.1f}, in the worst round {handset['most_ms']:.1f}"
                if handset else ""),
        at_most("a tenth of a core, 200 events/s: points lost", handset.get("most_points_lost"), 0),
    ]


def rearranged(value_and_note, limit):
    return value_and_note[0], limit, value_and_note[1]


def also_kept(result):
    """What was reached before and is not to be lost."""
    found = Found(result)
    size = result.get("library_bytes")
    return [
        ("points drawn in a flood, %", found.median(PAD, "flood_points_percent"), ">=", 100.0, ""),
        ("start to painted, x mtPaint", found.ratio("start_ms", PAD, "mtPaint"), "<=", 1.0, ""),
        ("12-megapixel JPEG, without the start, x mtPaint", found.ratio("photo_open_ms", PAD, "mtPaint"), "<=", 0.6,
         ""),
        ("12-megapixel JPEG, peak memory above idle, x mtPaint",
         found.ratio("photo_peak_above_idle_kib", PAD, "mtPaint"), "<=", 0.5, ""),
        ("stripped library, kB", size and size / 1000, "<=", 700.0, ""),
    ]


def judge(row):
    what, found, relation, asked, note = row
    met = None if found is None else found <= asked if relation == "<=" else found >= asked
    return {"what": what, "found": found, "relation": relation, "asked": asked, "met": met, "note": note}


COLUMNS = [("start_ms", "start ms"), ("pss_kib", "PSS KiB"), ("cpu_us_per_event", "CPU us/event"),
           ("paced_points_percent", "points %"), ("flood_points_percent", "flood %"),
           ("photo_ms", "photo ms"), ("photo_peak_above_idle_kib", "photo peak KiB")]


def print_times(result):
    print("\nMedians of the programs")
    print(f"{'program':32}" + "".join(f"{title:>15}" for _, title in COLUMNS))
    for name, found in result["outside"].items():
        cells = [f"{found[key]['median']:15.1f}" if key in found else f"{'-':>15}" for key, _ in COLUMNS]
        print(f"{name:32}" + "".join(cells))
    print("\nInside, CPU time beside its limit")
    print(f"{'operation':40}{'us':>12}{'limit us':>12}{'ratio':>9}")
    for name, found in result["inside"].items():
        print(f"{name:40}{found['ns'] / 1e3:12.2f}{found['limit_ns'] / 1e3:12.3f}{found['ratio']:9.1f}")


def print_handset(found):
    print(f"\nHeld to a tenth of a core, 200 events a second. {found['how']}")
    print(f"{'program':32}{'median ms':>12}{'95 % ms':>12}{'worst ms':>12}{'points lost':>13}{'stops':>8}")
    for name, row in found["programs"].items():
        print(f"{name:32}{row['median_ms']:12.1f}{row['p95_ms']:12.1f}{row['worst_ms']:12.1f}"
              f"{row['points_lost']:13g}{row['throttled']:8g}")


def print_counts(found):
    print("\nCounted, for each motion event of a paced stroke")
    print(f"{'program':32}{'system calls':>14}{'wake-ups':>10}  which")
    for name, row in found["outside"].items():
        which = ", ".join(f"{call} {number:.2f}" for call, number in list(row["by_name"].items())[:8])
        print(f"{name:32}{row['system_calls']:14.2f}{row['wake_ups']:10.2f}  "
              f"{'(disturbed) ' * row['disturbed']}{which}")
    columns = ("instructions", "allocations", "handler_allocations", "painters", "deliveries", "repaints", "pixels")
    print(f"\n{'inside':24}" + "".join(f"{title.replace('handler_allocations', 'handling them'):>15}"
                                       for title in columns))
    for name, row in found["inside"].items():
        print(f"{name:24}" + "".join(f"{row[key]:15.2f}" if key in row else f"{'-':>15}" for key in columns))


def print_parts(found):
    for key, title in (("start_ms", "A start, ms"), ("start_million_instructions", "A start, million instructions"),
                       ("memory_kib", "Memory idle (PSS), KiB")):
        rows = list(part_rows(found[key]))
        print(f"\n{title:60}{'bare, text':>12}{PAD:>12}{'beyond':>12}")
        for row in rows:
            print(f"{row[0]:60}" + "".join(f"{value:12.1f}" for value in row[1:]))
        print(f"{'sum':60}" + "".join(f"{sum(row[i] for row in rows):12.1f}" for i in (1, 2, 3)))


def part_rows(table):
    """Part, bare widget, pad, what the pad has beyond; by kind the most first."""
    if BARE_WITH_TEXT in table:
        table = {part: {BARE_WITH_TEXT: table[BARE_WITH_TEXT][part], PAD: value} for part, value in table[PAD].items()}
    for part, row in table.items():
        yield part, row[BARE_WITH_TEXT], row[PAD], row[PAD] - row[BARE_WITH_TEXT]


def print_judged(title, rows):
    print(f"\n{title}")
    print(f"{'what':76}{'found':>9}   {'asked':>9}")
    for row in rows:
        found = "-" if row["found"] is None else f"{row['found']:.2f}"
        verdict = {None: "not measured", True: "met", False: "NOT MET"}[row["met"]]
        print(f"{row['what']:76}{found:>9}   {row['relation']} {row['asked']:<6g} {verdict:13}{row['note']}".rstrip())


def print_report(result):
    if "outside" in result:
        print_times(result)
    if "counts" in result:
        print_counts(result["counts"])
    if "handset" in result:
        print_handset(result["handset"])
    if "parts" in result:
        print_parts(result["parts"])
    whole = "outside" in result
    rows = [row for row in result["must_reach"] if whole or row["found"] is not None]
    if rows:
        print_judged("What must be reached", rows)
    if whole:
        print_judged("What was reached before", result["also_kept"])
