"""The class reference, from what doxygen writes of the public headers."""
import html
import re
import subprocess
import xml.etree.ElementTree as ElementTree

from pages import REFERENCE, ROOT, Page, Section, address

# The parts of a page, in order. Whatever else is public or protected has no place yet, and stops the making.
PARTS = {
    "public-type": "Types",
    "enum": "Enumerations",
    "define": "Macros",
    "public-attrib": "Values",
    "public-slot": "Slots",
    "signal": "Signals",
    "public-func": "Functions",
    "func": "Functions",
    "public-static-func": "Static functions",
    "public-static-attrib": "Constants",
    "protected-func": "Protected functions",
}

INLINE = {"computeroutput": "code", "emphasis": "em", "bold": "strong"}
BLOCKS = {"itemizedlist": "ul", "orderedlist": "ol", "parameterlist": "dl"}


def joined(element):
    return " ".join("".join(element.itertext()).split()) if element is not None else ""


def tidy(text):
    """A type as the sources write it, in which doxygen has put blanks."""
    text = re.sub(r"&lt; ", "&lt;", text)
    text = re.sub(r" (?=&gt;)", "", text)
    return re.sub(r" (?=&amp;|\*)", "", text)


class Names:
    """Where the reference has a class, a function, a number."""

    def __init__(self):
        self.full = {}
        self.last = {}

    def add(self, name, target):
        self.full.setdefault(name, target)
        if "::" in name:
            self.last.setdefault(name.rsplit("::", 1)[1], set()).add(name)

    def find(self, code, about):
        """What a text in code style means: a whole name, one of the class the text is about, or one that is alone."""
        parts = re.fullmatch(r"((?:\w+\(\)(?:->|\.))*)(~?\w+(?:::\w+)*)(\(.*\))?", code)
        if not parts:
            return None
        chain, name, arguments = parts.groups()
        if not chain and (target := self.full.get(name) or self.full.get(f"{about}::{name}")):
            return target
        alone = self.last.get(name, ())
        return self.full[next(iter(alone))] if len(alone) == 1 and arguments else None


class Anchors:
    """Names within a page, each of which is there once."""

    def __init__(self):
        self.counts = {}

    def take(self, name):
        self.counts[name] = self.counts.get(name, 0) + 1
        return name if self.counts[name] == 1 else self.take(f"{name}-{self.counts[name]}")


class Reference:
    def __init__(self, doxyfile, folder, files):
        settings = (f'@INCLUDE = "{doxyfile}"\nOUTPUT_DIRECTORY = "{folder}"\n'
                    "GENERATE_HTML = NO\nGENERATE_XML = YES\nXML_PROGRAMLISTING = NO\n")
        subprocess.run(["doxygen", "-"], input=settings, text=True, check=True, cwd=ROOT)
        self.files = files
        self.names = Names()
        self.targets = {}
        self.members = {}
        self.index = Page(address(REFERENCE), "Class reference")
        self.described = []
        for path in sorted((folder / "xml").glob("*.xml")):
            compound = ElementTree.parse(path).getroot().find("compounddef")
            if compound is not None:
                self.register(compound)

    def register(self, compound):
        """Gives each thing its place, before any page is written that links to it."""
        if compound.get("id") == "indexpage":
            self.targets["indexpage"] = self.index.address
            self.overview = compound
        parts = self.parts(compound)
        kind = compound.get("kind")
        if compound.get("prot") == "private" or (kind not in ("class", "struct") and not parts):
            return
        title = compound.findtext("compoundname")
        page = Page(f"reference/{title.replace('::', '.')}.html", title)
        self.targets[compound.get("id")] = page.address
        scope = "" if kind == "file" else title + "::"
        if scope:
            self.names.add(title, page.address)
        anchors = Anchors()
        for member in (each for _, members in parts for each in members):
            called = member.findtext("name")
            self.place(member, page, anchors.take(called), scope + called)
            for value in member.findall("enumvalue"):
                self.place(value, page, anchors.take(value.findtext("name")), scope + value.findtext("name"))
        parts = [(title, anchors.take(title.lower().replace(" ", "-")), members) for title, members in parts]
        self.described.append((page, compound, parts))

    def place(self, thing, page, anchor, name):
        target = f"{page.address}#{anchor}"
        self.members[thing.get("id")] = (anchor, name)
        self.targets[thing.get("id")] = target
        self.names.add(name, target)

    @staticmethod
    def parts(compound):
        found = {}
        for part in compound.findall("sectiondef"):
            if not part.get("kind").startswith(("private", "friend")):
                found.setdefault(PARTS[part.get("kind")], []).extend(part.findall("memberdef"))
        return [(title, found[title]) for title in dict.fromkeys(PARTS.values()) if title in found]

    def pages(self):
        self.described.sort(key=lambda each: each[0].title)
        self.index.siblings = [page for page, _, _ in self.described]
        for page, compound, parts in self.described:
            self.describe(page, compound, parts)
        self.write_index()
        for i, page in enumerate(self.index.siblings):
            after = self.index.siblings[i + 1] if i + 1 < len(self.index.siblings) else None
            page.steps = (self.index.siblings[i - 1] if i else self.index, after)
        return [self.index, *self.index.siblings]

    def by_weight(self):
        """The pages that the overview names, in its order, and then the others."""
        named = [self.targets.get(each.get("refid")) for each in self.overview.iter("ref")]
        return sorted(self.index.siblings,
                      key=lambda page: named.index(page.address) if page.address in named else len(named))

    def write_index(self):
        page = self.index
        text = self.blocks(self.overview.find("detaileddescription"), page)
        page.sections = [Section("top", 1, page.title, joined(self.overview.find("detaileddescription")))]
        page.sections.append(Section("all", 2, "Classes and headers", ""))
        rows = [f"<dt>{page.link(other.address, other.title)}</dt>"
                f"<dd>{self.inline(compound.find('briefdescription'), page)}</dd>"
                for other, compound, _ in self.described]
        page.body = (f'<h1>{page.title}</h1>\n{text}<h2 id="all"><a href="#all">Classes and headers</a></h2>'
                     f'<nav aria-label="Classes and headers"><dl class="classes">{"".join(rows)}</dl></nav>')

    # One page.

    def describe(self, page, compound, parts):
        brief, details = compound.find("briefdescription"), compound.find("detaileddescription")
        page.sections.append(Section("top", 1, page.title, joined(brief) + " " + joined(details)))
        body = [f'<h1>{html.escape(page.title)}</h1>', f'<p>{self.inline(brief, page)}</p>',
                self.blocks(details, page), self.facts(page, compound)]
        for title, anchor, members in parts:
            page.sections.append(Section(anchor, 2, title, ""))
            body.append(f'<h2 id="{anchor}"><a href="#{anchor}">{title}</a></h2>')
            if len(members) > 4:
                names = {member.findtext("name"): self.members[member.get("id")][0] for member in reversed(members)}
                rows = [f'<li><a href="#{html.escape(anchor)}"><code>{html.escape(name)}</code></a></li>'
                        for name, anchor in reversed(names.items())]
                body.append(f'<ul class="names">{"".join(rows)}</ul>')
            body += [self.member(page, each) for each in members]
        page.body = "\n".join(body)

    def facts(self, page, compound):
        location = compound.find("location")
        header = location.get("file") if compound.get("kind") != "namespace" else self.header_of(compound)
        view = page.link(self.files.view(header), "source")
        rows = [("Include", f"<code>#include &lt;{html.escape(header.rsplit('/', 1)[1])}&gt;</code> ({view})")]
        for tag, title in (("basecompoundref", "Derives from"), ("derivedcompoundref", "Derived classes"),
                           ("innerclass", "Contains")):
            links = [self.linked(each, page) for each in compound.findall(tag) if each.get("prot") != "private"]
            if links and compound.get("kind") != "file":
                rows.append((title, ", ".join(links)))
        return '<dl class="facts">' + "".join(f"<dt>{name}</dt><dd>{text}</dd>" for name, text in rows) + "</dl>"

    @staticmethod
    def header_of(compound):
        return next(compound.iter("memberdef")).find("location").get("file")

    def member(self, page, member):
        anchor, full = self.members[member.get("id")]
        brief, details = member.find("briefdescription"), member.find("detaileddescription")
        page.sections.append(Section(anchor, 3, full, f"{joined(brief)} {joined(details)}"))
        heading, name = html.escape(anchor), html.escape(member.findtext("name"))
        made = (f'<h3 id="{heading}"><a href="#{heading}">{name}</a></h3>\n'
                f'<pre class="signature" tabindex="0"><code>{self.signature(page, member)}</code></pre>\n'
                f"<p>{self.inline(brief, page)}</p>{self.blocks(details, page)}")
        values = "".join(self.value(page, value) for value in member.findall("enumvalue"))
        return made + (f'<dl class="values">{values}</dl>' if values else "")

    def value(self, page, value):
        anchor, full = self.members[value.get("id")]
        brief, details = value.find("briefdescription"), value.find("detaileddescription")
        page.sections.append(Section(anchor, 4, full, f"{joined(brief)} {joined(details)}"))
        return (f'<dt id="{anchor}"><code>{value.findtext("name")}</code></dt>'
                f"<dd>{self.inline(brief, page)}{self.blocks(details, page)}</dd>")

    def signature(self, page, member):
        kind = member.get("kind")
        name = f"<b>{html.escape(member.findtext('name'))}</b>"
        if kind == "enum":
            return f"enum {name}"
        if kind == "define":
            return f"#define {name}" + self.parameters(page, member, "defname")
        type_ = tidy(self.inline(member.find("type"), page))
        words = [word for word, is_so in (("static", member.get("static") == "yes"),
                                          ("explicit", member.get("explicit") == "yes"),
                                          ("virtual", member.get("virt") in ("virtual", "pure-virtual"))) if is_so]
        start = " ".join([*words, type_]).strip()
        start += "" if not start or start.endswith(("&amp;", "*")) else " "
        if kind == "typedef":
            return f"using {name} = {type_}"
        if kind == "variable":
            return start + name + html.escape(f" {joined(member.find('initializer'))}".rstrip())
        after = member.findtext("argsstring").rpartition(")")[2]
        after = after.replace("=0", " = 0").replace("=default", " = default").replace("=delete", " = delete")
        return start + name + self.parameters(page, member, "declname") + html.escape(after)

    def parameters(self, page, member, tag):
        rows = []
        for each in member.findall("param"):
            type_ = tidy(self.inline(each.find("type"), page)) if each.find("type") is not None else ""
            name = html.escape(each.findtext(tag) or "")
            blank = " " if type_ and name and not type_.endswith(("&amp;", "*")) else ""
            value = each.find("defval")
            rows.append(type_ + blank + name + (f" = {html.escape(joined(value))}" if value is not None else ""))
        if not rows and tag == "defname":
            return ""
        return f"({', '.join(rows)})"

    # What doxygen understood of a docstring.

    def linked(self, element, page):
        text = html.escape("".join(element.itertext()))
        target = self.targets.get(element.get("refid"))
        return f'<a href="{html.escape(page.to(target))}">{text}</a>' if target else text

    def named(self, text, page):
        """A text in which the names lead to their places, also those that doxygen left as they are."""
        def linked(name):
            target = self.names.full.get(name[0])
            return f'<a href="{html.escape(page.to(target))}">{name[0]}</a>' if target else name[0]
        return re.sub(r"\b(?:KORVA|UTIL|RES)_\w+(?:::\w+)?", linked, html.escape(text or ""))

    def inline(self, element, page):
        """A text without its paragraphs."""
        if element is None:
            return ""
        made = self.named(element.text, page)
        for child in element:
            if child.tag == "ref":
                made += self.linked(child, page)
            elif child.tag in INLINE:
                made += f"<{INLINE[child.tag]}>{self.inline(child, page)}</{INLINE[child.tag]}>"
            elif child.tag == "para":
                made += self.inline(child, page)
            elif child.tag in ("ndash", "mdash", "nonbreakablespace"):
                made += {"ndash": "–", "mdash": "—", "nonbreakablespace": "\u00a0"}[child.tag]
            elif child.tag != "anchor":
                raise ValueError(f"{page.title}: no way to write <{child.tag}>")
            made += self.named(child.tail, page)
        return made.strip() if element.tag in ("para", "briefdescription", "entry", "type") else made

    def blocks(self, element, page):
        made = ""
        for child in element if element is not None else ():
            if child.tag == "sect1":
                anchor = joined(child.find("title")).lower().replace(" ", "-")
                made += f'<h2 id="{anchor}"><a href="#{anchor}">{html.escape(joined(child.find("title")))}</a></h2>\n'
                made += self.blocks(child, page)
            elif child.tag == "para":
                made += self.paragraph(child, page)
            elif child.tag != "title":
                raise ValueError(f"{page.title}: no way to write <{child.tag}>")
        return made

    def paragraph(self, para, page):
        """A paragraph of doxygen's may hold lists and tables; HTML's may not."""
        made, words = "", ElementTree.Element("para")
        words.text = para.text

        def flush():
            text = self.inline(words, page)
            words.clear()
            return f"<p>{text}</p>\n" if text else ""

        for child in para:
            if child.tag not in (*BLOCKS, "table", "simplesect"):
                words.append(child)
                continue
            made += flush()
            made += self.block(child, page)
            words.text = child.tail
        return made + flush()

    def block(self, element, page):
        if element.tag == "table":
            rows = "".join("<tr>" + "".join(self.cell(entry, page) for entry in row) + "</tr>" for row in element)
            return f'<div class="wide" tabindex="0"><table>{rows}</table></div>\n'
        if element.tag == "simplesect":
            return f"<p>{element.get('kind').capitalize()}:</p>{self.blocks(element, page)}"
        if element.tag == "parameterlist":
            rows = "".join(f"<dt><code>{html.escape(joined(item.find('parameternamelist')))}</code></dt>"
                           f"<dd>{self.blocks(item.find('parameterdescription'), page)}</dd>" for item in element)
            return f'<dl class="values">{rows}</dl>\n'
        rows = "".join(f"<li>{self.inline(item, page)}</li>" for item in element)
        return f"<{BLOCKS[element.tag]}>{rows}</{BLOCKS[element.tag]}>\n"

    def cell(self, entry, page):
        tag = "th" if entry.get("thead") == "yes" else "td"
        return f"<{tag}>{self.inline(entry, page)}</{tag}>"
