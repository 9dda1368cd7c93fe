"""Lines of code, and what can be changed in one of them.

A change is small and still compiles, most times: what a tired developer gets wrong. Comments, texts, includes and
assertions are left alone.
"""
import re
from dataclasses import dataclass

SWAPS = (
    ("comparison", {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == "}),
    ("arithmetic", {" + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " += ": " -= ", " -= ": " += ",
                    " *= ": " /= ", " /= ": " *= ", "++": "--", "--": "++"}),
    ("logic", {" && ": " || ", " || ": " && "}),
    ("truth", {"true": "false", "false": "true"}),
    ("bounds", {"qMin(": "qMax(", "qMax(": "qMin(", "std::min(": "std::max(", "std::max(": "std::min("}),
    ("bits", {" | ": " & ", " & ": " | ", " << ": " >> ", " >> ": " << "}),
)
NUMBER = re.compile(r"(?<![\w.:'])(\d+)(?![\w.'])")
FRACTION = re.compile(r"(?<![\w.'])(\d+\.\d+)(?![\w.'])")
NEGATION = re.compile(r"!(?=[\w(*])")
CONDITION = re.compile(r"^(\s*(?:\} else )?(?:if|while) \()(.*)(\)(?: \{)?)$")
INITIALIZED = re.compile(r"; | = ")  # `if (const int n = f(); n > 0)` is no single condition
MEMBER = re.compile(r"^ {4}\w.*;$")  # in a header
DEFAULT = re.compile(r"^(?:true|false|nullptr|0|-?1|\d+)$")  # a return of it has changes of its own
CALL = re.compile(r"^\s*[\w:]+(?:(?:\.|->)[\w:]+|\(.*\)|\[.*\])*\(.*\);$")
ASSIGNMENT = re.compile(r"^\s*[\w.\->*\[\]()]+ [-+*/|&]?= [^;]*;$")
DECLARATION = re.compile(r"^\s*(?:const|constexpr|static|auto|using|typedef)\b")
RETURN = re.compile(r"^(\s*return) ([^{].*);$")
LEFT_OUT = re.compile(r"^\s*(?:#|$|(?:KORVA_ASSERT|static_assert|Q_\w+|QT_TRANSLATE_NOOP|namespace|using|friend|template|"
                      r"typedef|explicit operator)\b)")
TEXT = re.compile(r'R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|(?<![\w])\'(?:\\.|[^\'\\\n])+\'|//[^\n]*|/\*(?:.|\n)*?\*/')
NOTHING = "static_cast<void>(0);"


@dataclass(frozen=True)
class Change:
    kind: str
    after: str


def masked(source):
    """The lines of `source`, with a § for each character of comments and texts."""
    def mask(match):
        return re.sub(r"[^\n]", "§" if match[0][0] != "/" else " ", match[0])
    return TEXT.sub(mask, source).split("\n")


def _depth(text):
    depth = lowest = 0
    for letter in text:
        depth += (letter in "([{") - (letter in ")]}")
        lowest = min(lowest, depth)
    return depth, lowest


def _is_balanced(text):
    return _depth(text) == (0, 0)


def _at(line, begin, end, new):
    return line[:begin] + new + line[end:]


def _swaps(code, line):
    for kind, pairs in SWAPS:
        for old, new in pairs.items():
            word = old.isalpha()
            pattern = rf"\b{old}\b" if word else re.escape(old)
            for match in re.finditer(pattern, code):
                if kind == "bits" and "operator" in code:
                    continue
                yield Change(kind, _at(line, *match.span(), new))


def _constants(code, line):
    for match in NUMBER.finditer(code):
        number = int(match[1])
        yield Change("constant", _at(line, *match.span(), str(number + 1)))
        if number > 0:
            yield Change("constant", _at(line, *match.span(), str(number - 1)))
    for match in FRACTION.finditer(code):
        yield Change("constant", _at(line, *match.span(), str(float(match[1]) + 1)))


def _conditions(code, line):
    match = CONDITION.match(code.rstrip())
    if match and _is_balanced(match[2]) and not INITIALIZED.search(match[2]):
        yield Change("condition", f"{match[1]}!({line[match.end(1):match.end(2)]}){match[3]}")
    for match in NEGATION.finditer(code):
        yield Change("condition", _at(line, *match.span(), ""))


def _statements(code, line, begins):
    stripped = code.rstrip()
    indent = code[:len(code) - len(code.lstrip())]
    if not begins or not indent or not _is_balanced(stripped) or not stripped.endswith(";"):
        return
    if match := RETURN.match(stripped):
        if not DEFAULT.match(match[2]):
            yield Change("return", f"{match[1]} {{}};")
        if re.search(r" (?:[<>!=]=|[<>]|&&|\|\|) |return !", stripped) and " ? " not in stripped and "<<" not in stripped:
            yield Change("return", f"{match[1]} !({line[match.start(2):match.end(2)]});")
    elif stripped.strip() in ("break;", "continue;", "return;"):
        yield Change("statement", indent + NOTHING)
    elif DECLARATION.match(stripped):
        return
    elif re.match(r"^\s*emit ", stripped) or (CALL.match(stripped) and not re.match(r"^\s*return\b", stripped)):
        yield Change("statement", indent + NOTHING)
    elif ASSIGNMENT.match(stripped):
        yield Change("assignment", indent + NOTHING)


def changes(codes, lines, number, header=False):
    """All changes of the line with this number, from 1, of a file with these masked and these real lines."""
    code, line = codes[number - 1], lines[number - 1]
    if LEFT_OUT.match(code) or re.match(r"^\s*[\w:~<>*& ]+ operator", code):
        return []
    before = next((c.rstrip() for c in reversed(codes[:number - 1]) if c.strip()), "")
    begins = not (header and MEMBER.match(code.rstrip())) and (
        before.endswith((";", "{", "}", ":", ")")) or before.endswith("else"))
    found = [*_swaps(code, line), *_constants(code, line), *_conditions(code, line), *_statements(code, line, begins)]
    return [change for change in found if change.after != line]
