"""Sources and pictures: what the documents name is shown or copied."""
import html
import re
import shutil
from pathlib import Path

from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import TextLexer, get_lexer_for_filename, guess_lexer
from pygments.util import ClassNotFound

from pages import ROOT, Page

INDEX = "source/index.html"
PICTURES = {".png", ".gif", ".svg"}


class Files:
    """The files of the project. Those that a page asks for become part of the site."""

    def __init__(self):
        folders = [path for path in ROOT.iterdir() if path.is_dir() and path.name[0] != "." and path.name != "build"]
        paths = [path for folder in folders for path in folder.rglob("*") if path.is_file()]
        paths += [path for path in ROOT.iterdir() if path.is_file() and path.name[0] != "."]
        self.paths = {path.relative_to(ROOT).as_posix() for path in paths}
        self.by_name = {}
        for path in self.paths:
            self.by_name.setdefault(Path(path).name, []).append(path)
        self.viewed = {}
        self.pictures = set()

    def named(self, name, folder):
        """The file that a text in a folder means: by its path, beside the text, or by a name that no other file has."""
        is_word = re.fullmatch(r"[\w-]+", name)  # and may mean anything, except of what is beside it
        ways = [f"{folder}/{name}"] if is_word else [name, f"{folder}/{name}"]
        alone = self.by_name.get(name, [])
        ways += alone if len(alone) == 1 and not is_word else []
        found = next((path for path in ways if path in self.paths), None)
        return None if found is None or Path(found).suffix in PICTURES else found

    def picture(self, path):
        if path not in self.paths:
            raise FileNotFoundError(path)
        self.pictures.add(path)
        return path

    def view(self, path):
        """The page that shows a file."""
        if path not in self.paths:
            raise FileNotFoundError(path)
        return self.viewed.setdefault(path, f"source/{path}.html")

    def copy_pictures(self, folder):
        for path in self.pictures:
            (folder / path).parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(ROOT / path, folder / path)

    def pages(self):
        """A page for each file that was asked for, and their list before them."""
        index = Page(INDEX, "Sources")
        shown_pages = [shown(path, page) for path, page in sorted(self.viewed.items())]
        rows, folder = [], None
        for page in shown_pages:
            above = str(Path(page.title).parent)
            if above != folder:
                name = html.escape(above) if above != "." else "Root"
                rows.append(("</ul>" if rows else "") + f"<h2>{name}</h2><ul>")
                folder = above
            rows.append(f"<li>{index.link(page.address, page.title)}</li>")
        index.body = ('<h1>Sources</h1><p>The sources that the guides name, and the public headers.</p>'
                      f'<nav class="names" aria-label="Sources">{"".join(rows)}</ul></nav>')
        return [index, *shown_pages]


def shown(path, address):
    page = Page(address, path)
    text = (ROOT / path).read_text()
    try:
        lexer = get_lexer_for_filename(path) if Path(path).suffix else guess_lexer(text)
    except ClassNotFound:
        lexer = TextLexer()
    formatter = HtmlFormatter(nowrap=False, linenos="inline", lineanchors="line", cssclass="source", wrapcode=True)
    page.body = (f"<h1>{html.escape(path)}</h1>\n" +
                 highlight(text, lexer, formatter).replace("<pre>", '<pre tabindex="0">', 1))
    return page
