"""Guides: a document in Markdown becomes a page."""
import html
import posixpath
import re
from pathlib import Path

from markdown_it import MarkdownIt
from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import get_lexer_by_name

from pages import REFERENCE, ROOT, Page, Section, address
from recording_lexer import RecordingLexer
from sources import PICTURES


def colored(code, language, _attributes=""):
    lexer = RecordingLexer() if language == "korva" else get_lexer_by_name(language or "text", stripnl=False)
    return f'<pre tabindex="0"><code>{highlight(code, lexer, HtmlFormatter(nowrap=True))}</code></pre>\n'


def anchor_of(heading, taken):
    """The anchor that forges give a heading."""
    anchor = re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")
    taken[anchor] = taken.get(anchor, -1) + 1
    return f"{anchor}-{taken[anchor]}" if taken[anchor] else anchor


class Guide:
    def __init__(self, document, about, names, files):
        self.document = document
        self.about = about
        self.names = names
        self.files = files
        self.page = Page(address(document), "")

    def make(self):
        markdown = MarkdownIt("commonmark", {"highlight": colored}).enable("table")
        tokens = []
        taken = {}
        for token in markdown.parse((ROOT / self.document).read_text()):
            if token.type == "html_block" and token.content.startswith("<!--"):
                continue
            if token.type == "inline":
                heading = tokens[-1] if tokens[-1].type == "heading_open" else None
                text = plain(token)
                if heading:
                    self.begin(heading, text, taken)
                elif self.page.sections:
                    self.page.sections[-1].text += text + " "
                self.turn_links(token.children, bool(heading))
            elif token.type == "fence" and self.page.sections:
                self.page.sections[-1].text += token.content + " "
            tokens.append(token)
        renderer = markdown.renderer
        for name in ("heading_open", "heading_close", "table_open", "table_close", "code_inline"):
            renderer.rules[name] = getattr(self, name)
        body = renderer.render(tokens, markdown.options, {})
        self.page.body = re.sub(r"<th[^>]*></th>", "<td></td>", body)  # a corner heads nothing
        return self.page

    def begin(self, token, text, taken):
        anchor = anchor_of(text, taken)
        token.attrSet("id", anchor)
        self.page.title = self.page.title or text
        self.page.sections.append(Section(anchor, int(token.tag[1]), text, ""))

    def turn_links(self, children, in_heading):
        depth = 0
        for child in children:
            depth += {"link_open": 1, "link_close": -1}.get(child.type, 0)
            if child.type == "link_open":
                child.attrSet("href", self.turned(child.attrGet("href")))
            elif child.type == "image":
                picture = self.files.picture(self.beside(child.attrGet("src")))
                child.attrSet("src", self.page.to(picture))
            elif child.type == "code_inline" and not depth and not in_heading:
                child.meta["target"] = self.target(child.content)

    def beside(self, link):
        return posixpath.normpath(posixpath.join(posixpath.dirname(self.document), link))

    def turned(self, link):
        if re.match(r"[a-z]+:", link):
            return link
        path, _, anchor = link.partition("#")
        if not path:
            return link
        target = self.beside(path)
        if (ROOT / target).is_dir():
            target += "/README.md"
        if target.endswith(".md"):
            target = address(target)
        else:
            target = self.files.picture(target) if Path(target).suffix in PICTURES else self.files.view(target)
        return self.page.to(target) + ("#" + anchor if anchor else "")

    def target(self, code):
        """Where a name in the text leads: to the reference, to another document, to a source, or nowhere."""
        if found := self.names.find(code, self.about):
            return found
        if found := self.files.named(code, posixpath.dirname(self.document)):
            if found == self.document:
                return None
            return address(found) if Path(found).suffix == ".md" else self.files.view(found)
        return None

    # How tokens are written, where Markdown's own way is not enough.

    @staticmethod
    def heading_open(tokens, index, _options, _env):
        token = tokens[index]
        anchor = html.escape(token.attrGet("id"))
        return f'<{token.tag} id="{anchor}"><a href="#{anchor}">'

    @staticmethod
    def heading_close(tokens, index, _options, _env):
        return f"</a></{tokens[index].tag}>\n"

    @staticmethod
    def table_open(_tokens, _index, _options, _env):
        return '<div class="wide" tabindex="0"><table>\n'

    @staticmethod
    def table_close(_tokens, _index, _options, _env):
        return "</table></div>\n"

    def code_inline(self, tokens, index, _options, _env):
        token = tokens[index]
        code = f"<code>{html.escape(token.content)}</code>"
        target = token.meta.get("target")
        return f'<a href="{html.escape(self.page.to(target))}">{code}</a>' if target else code


def plain(inline):
    return "".join(" " if child.type == "softbreak" else child.content for child in inline.children)


def documents():
    found = [path.relative_to(ROOT).as_posix() for path in ROOT.rglob("*.md")]
    return {path for path in found if not path.startswith((".", "build"))}


def make(document, about, names, files):
    assert document != REFERENCE
    return Guide(document, about, names, files).make()
