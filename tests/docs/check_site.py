"""Makes the documentation's site and walks every page of it: check_site.py DOXYFILE."""
import html
import json
import posixpath
import re
import subprocess
import sys
import tempfile
import unittest
from html.parser import HTMLParser
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "docs/site"))
from reference import Names  # noqa: E402

LOADED = {"link": "href", "script": "src", "img": "src", "source": "src", "iframe": "src", "object": "data"}
ELSEWHERE = re.compile(r"([a-z][a-z0-9+.-]*:|//)", re.IGNORECASE)

# What is asked, and what must be found first.
QUERIES = {
    "KORVA_EditCanvas::setManners": "reference/KORVA_EditCanvas.html#setManners",
    "KORVA_EditCanvas": "reference/KORVA_EditCanvas.html",
    "setManners": "reference/KORVA_EditCanvas.html#setManners",
    "setmanners()": "reference/KORVA_EditCanvas.html#setManners",
    "undo steps": "reference/KORVA_EditCanvas.html#setUndoSteps",
    "KORVA_ZOOM_FIT": "reference/KORVA_Types.h.html#KORVA_ZOOM_FIT",
    "KorvaPreview": "reference/KORVA_Preview.h.html#KorvaPreview",
    "where is it": "ARCHITECTURE.html#where-is-it",
    "services of the platform": "docs/embedding.html#services-of-the-platform",
    "exit status korva-preview": "docs/man/korva-preview.html#EXIT_STATUS",
}

# Where a name in the text leads, and None where it must not lead anywhere.
NAMES = {
    ("README", "index.html", "KORVA_EditCanvas"): "reference/KORVA_EditCanvas.html",
    ("a file", "ARCHITECTURE.html", "src/KORVA_ToolTable.cpp"): "source/src/KORVA_ToolTable.cpp.html",
    ("a file beside it", "fuzzing/index.html", "targets"): "source/fuzzing/targets.html",
    ("a file of one name", "ARCHITECTURE.html", "KORVA_TextInput.cpp"): "source/src/KORVA_TextInput.cpp.html",
    ("a word", "CONTRIBUTING.html", "test"): None,
    ("a document", "index.html", "ARCHITECTURE.md"): "ARCHITECTURE.html",
    ("the editor's", "docs/embedding.html", "canUndo(bool)"): "reference/KORVA_EditCanvas.html#canUndo",
    ("the canvas's", "ARCHITECTURE.html", "undo()"): "reference/KORVA_Canvas.html#undo",
    ("another class's", "docs/embedding.html", "flush()"): "reference/KORVA_Journal.html#flush",
    ("a chain", "docs/tools.html", "zoom().toPicture()"): "reference/KORVA_Zoom.html#toPicture",
    ("a chain to many", "docs/tools.html", "canvas()->showLater(this, …)"): "reference/KORVA_Canvas.html#showLater",
    ("a recording's word", "docs/recording.html", "undo"): None,
    ("many have it", "docs/performance.html", "pixmap()"): None,
}


class Read(HTMLParser):
    """What a page links to, loads and is made of."""

    def __init__(self, path):
        super().__init__()
        self.links, self.loads, self.ids, self.in_nav, self.headings, self.faults = [], [], [], [], [], []
        self.inside = []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.ids.append(values["id"])
        if tag in ("nav", "main"):
            self.inside.append(tag)
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
            if "nav" in self.inside:
                self.in_nav.append(values["href"])
        if tag in LOADED and LOADED[tag] in values:
            self.loads.append(values[LOADED[tag]])
        if tag == "img" and "main" in self.inside and not values.get("alt"):
            self.faults.append("a picture without words: " + values["src"])
        if re.fullmatch("h[1-6]", tag) and "nav" not in self.inside:
            self.headings.append(int(tag[1]))

    def handle_endtag(self, tag):
        if tag in ("nav", "main"):
            self.inside.pop()


def made_site(folder):
    subprocess.run([sys.executable, "-B", ROOT / "docs/site/make_site.py", sys.argv[1], folder], check=True,
                   stdout=subprocess.DEVNULL)
    return {path.relative_to(folder).as_posix(): Read(path) for path in folder.rglob("*.html")}


def luminance(color):
    parts = [int(color[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    parts = [part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2]


def contrast(one, other):
    dark, light = sorted((luminance(one), luminance(other)))
    return (light + 0.05) / (dark + 0.05)


class Site(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        work = tempfile.TemporaryDirectory()
        cls.addClassCleanup(work.cleanup)
        cls.folder = Path(work.name)
        cls.pages = made_site(cls.folder)

    def followed(self, page, link):
        """The file that a link of a page leads to, and the anchor there."""
        path, _, anchor = link.partition("#")
        target = posixpath.normpath(posixpath.join(posixpath.dirname(page), path)) if path else page
        return target, anchor

    def lost(self, page, link):
        """Whether a link leads nowhere."""
        target, anchor = self.followed(page, link)
        if not (self.folder / target).is_file():
            return True
        return bool(anchor) and (target not in self.pages or anchor not in self.pages[target].ids)

    def test_every_link_leads_somewhere(self):
        links = [(page, link) for page, read in self.pages.items() for link in read.links if not ELSEWHERE.match(link)]
        self.assertGreater(len(links), 5000)
        self.assertEqual([each for each in links if self.lost(*each)], [])

    def test_everything_a_page_loads_is_there(self):
        loads = [(page, link) for page, read in self.pages.items() for link in read.loads]
        self.assertGreater(len(loads), 4 * len(self.pages))
        self.assertEqual([each for each in loads if ELSEWHERE.match(each[1]) or self.lost(*each)], [])

    def test_nothing_is_loaded_from_a_network(self):
        for path in self.folder.rglob("*"):
            if path.suffix == ".css":
                self.assertNotRegex(path.read_text(), r"@import|url\(", path)
            elif path.suffix == ".svg":
                self.assertNotRegex(path.read_text(), r"(href|src)\s*=\s*[\"'](?!#)|@import|url\([\"']?(?!#)", path)
            elif path.suffix == ".js" and path.name != "index.js":
                self.assertNotRegex(path.read_text(), r"https?:|fetch\(|XMLHttpRequest|import\b", path)

    def test_a_menu_reaches_every_page(self):
        reached, waiting = {"index.html"}, ["index.html"]
        while waiting:
            page = waiting.pop()
            for link in self.pages[page].in_nav:
                target, _ = self.followed(page, link)
                if target in self.pages and target not in reached:
                    reached.add(target)
                    waiting.append(target)
        self.assertEqual(sorted(self.pages.keys() - reached), [])

    def test_pages_are_well_made(self):
        for page, read in self.pages.items():
            with self.subTest(page):
                self.assertEqual(read.faults, [])
                self.assertEqual(sorted(read.ids), sorted(set(read.ids)))
                self.assertEqual([level for level in read.headings if level == 1], [1])
                steps = [after - before for before, after in zip(read.headings, read.headings[1:])]
                self.assertLessEqual(max(steps, default=0), 1)

    def test_names_lead_where_they_mean(self):
        for (name, page, code), target in NAMES.items():
            with self.subTest(name):
                text = (self.folder / page).read_text()
                code = f"<code>{html.escape(code)}</code>"
                found = re.search(f'<a href="([^"]+)">{re.escape(code)}</a>', text)
                self.assertTrue(code in text)
                self.assertEqual(found and "#".join(filter(None, self.followed(page, found[1]))), target)

    def test_names_mean_what_is_clear(self):
        names = Names()
        for name in ("Pad", "Pad::undo", "Pad::zoom", "Zoom", "Zoom::rate", "Zoom::undo"):
            names.add(name, name)
        meant = {"Pad": "Pad", "Zoom::rate": "Zoom::rate", "undo": "Pad::undo", "undo(int)": "Pad::undo",
                 "rate()": "Zoom::rate", "zoom().rate()": "Zoom::rate", "zoom()->rate(f(1))": "Zoom::rate",
                 "rate": None, "zoom().undo()": None, "Pad::rate()": None, "undo rate": None, "": None}
        self.assertEqual({code: names.find(code, "Pad") for code in meant}, meant)
        self.assertIsNone(names.find("undo()", ""))

    def test_every_screenshot_is_shown(self):
        shown = self.pages["docs/screenshots/index.html"]
        for path in (ROOT / "docs/screenshots").glob("*.png"):
            self.assertIn(path.name, shown.links)

    def test_search_finds(self):
        script = self.folder / "ask.js"
        script.write_text(f"load({json.dumps(str(self.folder / 'index.js'))});\n"
                          f"load({json.dumps(str(self.folder / 'ranking.js'))});\n"
                          f"{json.dumps([*QUERIES, 'qqxyzzy', '::', ''])}.forEach(function (query) {{\n"
                          "    var found = korvaSearch(korvaIndex, query);\n"
                          "    print(found.length ? found[0][0] : '-');\n});\n")
        answered = subprocess.run(["mujs", script], check=True, capture_output=True, text=True).stdout.split("\n")
        self.assertEqual(dict(zip(QUERIES, answered)), QUERIES)
        self.assertEqual(answered[len(QUERIES):], ["-", "-", "-", ""])

    def test_search_leads_somewhere(self):
        index = (self.folder / "index.js").read_text()
        entries = json.loads(index[index.index("["):index.rindex(";")])
        self.assertGreater(len(entries), 500)
        self.assertEqual([entry[0] for entry in entries if self.lost("index.html", entry[0])], [])
        self.assertTrue({"Functions", "Slots", "Signals"}.isdisjoint(entry[2] for entry in entries))  # each class has
        found = {self.followed("index.html", entry[0])[0] for entry in entries}
        self.assertEqual({page for page in self.pages if not page.startswith("source/")} - found, set())

    def test_colors_are_readable(self):
        schemes = [re.findall(r"--(\w+): (#\w{6})", part)
                   for part in (self.folder / "style.css").read_text().split("prefers-color-scheme: dark")]
        codes = (self.folder / "code.css").read_text().split("prefers-color-scheme: dark")
        for scheme, code in zip(map(dict, schemes), codes, strict=True):
            pairs = [(ink, ground) for ink in ("ink", "soft", "accent") for ground in ("ground", "panel")]
            colors = [(scheme[ink], scheme[ground]) for ink, ground in [*pairs, ("ink", "mark")]]
            used = re.findall(r"^pre \.(?!w )\w+ \{[^}]*?(?<!-)color: (#\w{6})", code, re.MULTILINE)
            self.assertGreater(len(used), 10)
            colors += [(color, scheme["panel"]) for color in used]
            self.assertEqual([each for each in colors if contrast(*each) < 4.5], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
