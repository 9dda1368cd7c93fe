"""Manual pages, by mandoc."""
import html
import re
import subprocess

from pages import ROOT, Page, Section, address


def text_of(fragment):
    return html.unescape(re.sub(r"\s+", " ", re.sub(r"<[^>]+>", "", fragment))).strip()


def make(document):
    made = subprocess.run(["mandoc", "-T", "html", "-O", "fragment", ROOT / document], check=True, capture_output=True,
                          text=True).stdout
    made = re.sub(r'<table class="(head|foot)">.*?</table>', "", made, flags=re.DOTALL)
    made = made.replace("<pre>", '<pre tabindex="0">')
    made = re.sub(r"<(/?)h([12])\b", lambda tag: f"<{tag[1]}h{int(tag[2]) + 1}", made)

    page = Page(address(document), document.rsplit("/", 1)[1].replace(".1", "(1)"))
    parts = re.split(r'<h([23])[^>]* id="([^"]+)">(.*?)</h[23]>', made, flags=re.DOTALL)
    for level, anchor, heading, text in zip(*[iter(parts[1:])] * 4):
        page.sections.append(Section(anchor, int(level), text_of(heading).capitalize(), text_of(text)))
    page.body = f"<h1>{page.title}</h1>\n{made}"
    return page
