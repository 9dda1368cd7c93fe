"""The programs that are measured, and the pictures that they show."""
import shutil
import subprocess
from dataclasses import dataclass, field

MARKER = "f0e0c0"  # a colour that no program uses much of in its window: it shows where the picture is

BARE = "bare Qt widget"
BARE_WITH_TEXT = "bare widget with a line of text"
RECEIVER = "only receives"
PAD = "korva-pad"
PEER = "xpaint"


@dataclass
class Program:
    """A program to measure, and how to make it draw freehand."""

    name: str
    command: list
    setup: list = field(default_factory=list)  # lines of a recording, for korva-pad
    tap: tuple = ()  # a place on the screen that chooses the pencil
    measures: tuple = ("stroke",)

    def arguments(self, picture, folder):
        if not self.setup:
            return [*self.command, picture]
        recording = folder / "setup.rec"
        recording.write_text("\n".join(self.setup) + "\n")
        return [*self.command, "--replay", recording, picture]


def programs(built):
    # Every program is killed at its end; korva-pad would offer its drawing at the next start.
    pad = [built / "host/korva-pad", "--scale", "1", "--no-recovery"]
    bare = [built / "benchmarks/korva-bench-bare-widget"]
    window = ("start", "memory")
    known = [
        Program(BARE, bare, measures=(*window, "stroke", "flood")),
        Program(BARE_WITH_TEXT, [*bare, "--text"], measures=window),
        Program(RECEIVER, [*bare, "--only-receive"]),
        Program(PAD, pad, measures=(*window, "stroke", "flood", "photo")),
        Program(f"{PAD}, 200 %", pad, ["zoom 200"]),
        *(Program(f"{PAD}, {tool}", pad, [f"tool {tool}"]) for tool in ("line", "rectangle", "ellipse", "select")),
        Program("mtPaint", ["mtpaint"], tap=(18, 78), measures=(*window, "stroke", "flood", "photo")),
        Program("KolourPaint", ["kolourpaint"], measures=(*window, "stroke", "flood", "photo")),
        Program(PEER, ["xpaint", "-operation", "1"], measures=(*window, "stroke", "flood")),
        Program(f"{PEER}, line", ["xpaint", "-operation", "7"]),
    ]
    return [p for p in known if shutil.which(str(p.command[0]))]


def make_pictures(folder):
    """A sheet in the marker's colour; a photograph of 12 megapixels with such a corner; one of each format."""
    sheet = folder / "sheet.png"
    photo = folder / "photo.jpg"
    convert = ["convert", "-seed", "7"]
    grain = ["plasma:navy-orange", "-attenuate", "0.3", "+noise", "gaussian"]
    subprocess.run([*convert, "-size", "240x320", f"xc:#{MARKER}", "-define", "png:color-type=2", sheet], check=True)
    subprocess.run([*convert, "-size", "1000x750", *grain, "-resize", "4000x3000!", "-fill", f"#{MARKER}",
                    "-draw", "rectangle 0,0 1999,1499", "-sampling-factor", "2x2", "-quality", "90", photo],
                   check=True)
    formats = folder / "formats"
    formats.mkdir()
    for size in ("240x320", "1408x1152"):
        source = formats / "source.bmp"
        subprocess.run([*convert, "-size", size, *grain, source], check=True)
        for extension in ("png", "jpg", "gif", "bmp", "wbmp"):
            target = f"bmp3:{formats / size}.bmp" if extension == "bmp" else formats / f"{size}.{extension}"
            subprocess.run(["convert", source, "-depth", "8", target], check=True)
        source.unlink()
    shutil.copy(photo, formats / "4000x3000.jpg")
    return sheet, photo, formats
