"""The colours of the recording language."""
from pygments.lexer import RegexLexer
from pygments.token import Comment, Keyword, Number, String, Text


class RecordingLexer(RegexLexer):
    name = "Recording"
    tokens = {
        "root": [
            (r"#[0-9a-fA-F]{6}\b", Number),
            (r"#.*", Comment),
            (r"^[a-z]+\b", Keyword),
            (r'"[^"\n]*"', String),
            (r"-?\d+\b", Number),
            (r"[^\s#\"]+|\s+|.", Text),
        ]
    }
