"""Makes the documentation as a site: make_site.py DOXYFILE FOLDER. ./site calls it."""
import json
import shutil
import sys
import tempfile
from pathlib import Path

from pygments.formatters import HtmlFormatter

import guides
import manual
from pages import GROUPS, HERE, HOME, REFERENCE, framed
from reference import PARTS, Reference
from sources import Files

ICON = "images/korva-pad-32.png"


def make_page(document, about, reference, files):
    if document == REFERENCE:
        return reference.index
    if not document.endswith(".md"):
        return manual.make(document)
    try:
        return guides.make(document, about, reference.names, files)
    except FileNotFoundError as lost:
        sys.exit(f"{document}: there is no {lost}")


def make_groups(reference, files):
    listed = {document for _, group in GROUPS for document in group}
    if lost := guides.documents() - listed:
        sys.exit(f"In no group of docs/site/pages.py: {', '.join(sorted(lost))}")
    groups = []
    for name, group in GROUPS:
        groups.append((name, [make_page(document, about, reference, files) for document, about in group.items()]))
    return groups


def put_in_line(groups):
    line = [page for _, pages in groups for page in pages]
    for before, after in zip(line, line[1:]):
        before.steps = (before.steps[0], after)
        after.steps = (before, after.steps[1])


def add_doors(home, groups):
    """Where each reader begins, on the first page before its first heading."""
    rows = ""
    for name, pages in groups[1:]:
        links = "".join(f"<li>{home.link(page.address, page.title)}</li>" for page in pages[:5])
        rows += f"<li><b>{name}</b><ul>{links}</ul></li>"
    before, heading, after = home.body.partition("<h2")
    home.body = f'{before}<nav aria-label="Where to begin"><ul class="doors">{rows}</ul></nav>\n{heading}{after}'


def search_index(pages):
    """What is searched: every heading with its text, but not the headings that each class has."""
    rows = [[page.address + ("" if section.level == 1 else "#" + section.anchor), page.title, section.heading,
             " ".join(section.text.split())] for page in pages for section in page.sections
            if section.heading not in PARTS.values()]
    return f"var korvaIndex = {json.dumps(rows, ensure_ascii=False, separators=(',', ':'))};\n"


def code_colors():
    light, dark = ("\n".join(HtmlFormatter(style=style).get_token_style_defs("pre"))
                   for style in ("xcode", "github-dark"))
    return f"{light}\n@media (prefers-color-scheme: dark) {{\n{dark}\n}}\n"


def make(doxyfile, folder):
    files = Files()
    files.picture(ICON)
    with tempfile.TemporaryDirectory() as work:
        reference = Reference(doxyfile, Path(work), files)
    described = reference.pages()
    groups = make_groups(reference, files)
    put_in_line(groups)
    described[1].steps = (reference.index, described[1].steps[1])
    add_doors(groups[0][1][0], groups)
    assert groups[0][1][0].address == HOME
    sources = files.pages()
    groups[-1][1].append(sources[0])

    guided = [page for _, pages in groups for page in pages]
    pages = {page.address: page for page in guided + described + sources}
    shutil.rmtree(folder, ignore_errors=True)
    for page in pages.values():
        path = folder / page.address
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(framed(page, groups))
    files.copy_pictures(folder)
    for name in ("style.css", "ranking.js", "page.js"):
        shutil.copyfile(HERE / name, folder / name)
    (folder / "code.css").write_text(code_colors())
    (folder / "index.js").write_text(search_index(guided[:-1] + reference.by_weight()))
    return len(pages)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("Usage: make_site.py DOXYFILE FOLDER")
    count = make(Path(sys.argv[1]).resolve(), Path(sys.argv[2]))
    print(f"{count} pages: {sys.argv[2]}/index.html")
