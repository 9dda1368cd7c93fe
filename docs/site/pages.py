"""The pages of the site: which documents they are made of, in which order, and the frame around each."""
import html
import posixpath
import string
from dataclasses import dataclass, field
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent

HOME = "index.html"
REFERENCE = "docs/reference.md"

# Who reads, and what. Every document of the project is in one of the groups. What a code span without a class means
# is looked up in the class named here first.
GROUPS = (
    ("Begin", {"README.md": "KORVA_EditCanvas", "docs/README.md": ""}),
    ("To draw", {
        "docs/man/korva-pad.1": "",
        "docs/man/korva-preview.1": "",
        "docs/accessibility.md": "KORVA_EditCanvas",
        "docs/recording.md": "",
        "docs/screenshots/README.md": ""}),
    ("To embed", {
        "docs/embedding.md": "KORVA_EditCanvas",
        "docs/tools.md": "KORVA_Tool",
        "docs/kiosk.md": "KORVA_EditCanvas",
        "docs/porting.md": "UTIL_Platform",
        "examples/README.md": "KORVA_EditCanvas",
        REFERENCE: "",
        "docs/expectations.md": "KORVA_EditCanvas",
        "docs/faults.md": "",
        "docs/security.md": "",
        "docs/versions.md": ""}),
    ("To contribute", {
        "CONTRIBUTING.md": "",
        "ARCHITECTURE.md": "KORVA_Canvas",
        "docs/performance.md": "",
        "benchmarks/README.md": "",
        "docs/soak.md": "",
        "docs/coverage.md": "",
        "docs/mutation.md": "",
        "fuzzing/README.md": "",
        "images/README.md": "",
        "packaging/README.md": ""}),
)


def address(document):
    """The page of a document."""
    if document == REFERENCE:
        return "reference/index.html"
    path = Path(document)
    if path.name == "README.md":
        return (path.parent / "index.html").as_posix()
    return path.with_suffix(".html").as_posix()


@dataclass
class Section:
    """A heading with the text up to the next one."""
    anchor: str
    level: int
    heading: str
    text: str


@dataclass
class Page:
    address: str
    title: str
    body: str = ""
    sections: list = field(default_factory=list)
    # The pages beside it, of which the menu shows those of one kind; and the pages that one reads before and after it.
    siblings: list = field(default_factory=list)
    steps: tuple = (None, None)

    def to(self, target):
        """A link from this page to an address."""
        return posixpath.relpath(target, posixpath.dirname(self.address) or ".")

    def link(self, target, text, attributes=""):
        return f'<a href="{html.escape(self.to(target))}"{attributes}>{html.escape(text)}</a>'


def menu(page, groups):
    """All pages by subject, the sections of this one, and what is beside it."""
    rows = []
    for name, pages in groups:
        rows.append(f"<h2>{html.escape(name)}</h2><ul>")
        for other in pages:
            here = ' aria-current="page"' if other is page else ""
            rows.append(f"<li>{page.link(other.address, other.title, here)}")
            if other is page or page in other.siblings:
                rows.append(contents(page, other))
            rows.append("</li>")
        rows.append("</ul>")
    return "".join(rows)


def contents(page, parent):
    headings = [f'<li><a href="#{html.escape(each.anchor)}">{html.escape(each.heading)}</a></li>'
                for each in page.sections if each.level == 2]
    inside = f"<ul>{''.join(headings)}</ul>" if headings else ""
    if not parent.siblings:
        return inside
    rows = []
    for other in parent.siblings:
        here = ' aria-current="page"' if other is page else ""
        rows.append(f"<li>{page.link(other.address, other.title, here)}{inside if here else ''}</li>")
    return f"<ul>{''.join(rows)}</ul>"


def steps(page):
    links = [page.link(other.address, other.title, f' rel="{rel}"') if other else "<span></span>"
             for other, rel in zip(page.steps, ("prev", "next"))]
    return f'<nav class="steps" aria-label="Next pages">{"".join(links)}</nav>' if any(page.steps) else ""


def framed(page, groups):
    frame = string.Template((HERE / "page.html").read_text())
    title = page.title if page.address == HOME else f"{page.title} – Korva"
    return frame.substitute(title=html.escape(title), root=page.to("."), home=page.to(HOME), menu=menu(page, groups),
                            body=page.body, steps=steps(page))
