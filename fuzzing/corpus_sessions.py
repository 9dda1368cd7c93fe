"""What a person and a host do with an editor, as the bytes that the target "editor" reads."""
import pathlib
import random
import re

HERE = pathlib.Path(__file__).parent


def rows():
    """The numbers of the table in Happenings.cpp, by name."""
    names = re.findall(r'^    \{"(\w+)",', (HERE / 'Happenings.cpp').read_text(), re.MULTILINE)
    return {name: number for number, name in enumerate(names)}


class Session:
    def __init__(self):
        self.rows = rows()
        self.bytes = bytearray([0])  # all colours

    def do(self, name, *arguments):
        self.bytes += bytes([self.rows[name], *(argument & 0xff for argument in arguments)])
        return self

    def tool(self, number):
        return self.do('tool', number)

    def stroke(self, x=60, y=60, moves=6, shift=0):
        self.do('press', x, y, shift)
        for i in range(moves):
            self.do('move', 9 + 5, 9 + i - 2, shift)
        return self.do('release', shift)

    def write(self, letters=5):
        self.tool(3).stroke(50, 80, 0)
        for i in range(letters):
            self.do('type', i)
        return self

    def lift(self):
        return self.do('select', 138, 138, 178, 168)

    def pen(self, end=0):
        self.do('bringPen', end).do('penDown', 90, 90, 0)
        for _ in range(4):
            self.do('penMove', 14, 12)
        return self.do('penUp').do('takePenAway')

    def finger(self, wait=True):
        self.do('touch', 0, 80, 80)
        if wait:
            self.do('wait')
        for _ in range(4):
            self.do('moveFinger', 0, 1, 14, 12)
        return self.do('lift', 0)

    def pinch(self):
        self.do('touch', 0, 80, 80).do('touch', 1, 120, 120)
        for _ in range(4):
            self.do('moveFinger', 0, 0, 0, 0).do('moveFinger', 1, 0, 18, 18)
        return self.do('lift', 1).do('lift', 0)


def sessions():
    found = {}
    for tool in range(8):
        for manners in (1, 0):  # classic and modern
            start = Session().do('manners', manners).do('history', tool % 4, 0).tool(tool)
            start.stroke().stroke(90, 100, 3, 2).do('undo').do('redo').do('zoomRow', 3).stroke(120, 60).do('wheel', 80, 80, 30)
            found[f'tool{tool}-{manners}'] = start.do('undo').do('facts').bytes
    for manners in (1, 0):
        def begin(manners=manners):
            return Session().do('manners', manners)
        found[f'text-{manners}'] = begin().write().do('key', 2, 0).do('compose', 1, 1, 0, 2, 3, 5, 0).do('undo').do('key', 0, 0).write().do('key', 5, 0).do('commitText').bytes
        found[f'piece-{manners}'] = begin().stroke().lift().do('movePiece', 140, 130).do('stretchPiece', 150, 150).do('turnPiece', 1).do('changePiece', 3).do('cut').do('paste').stroke(5, 5, 4).do('undo').bytes
        found[f'drop-{manners}'] = begin().do('stamp', 20, 15, 0, 200, 10, 10, 0).do('placePiece', 150, 150).do('key', 5, 0).do('copy').do('pasteAt', 130, 130).do('delete').bytes
        found[f'touch-{manners}'] = begin().finger().finger(False).pinch().do('touch', 0, 9, 9).do('cancelTouch').bytes
        found[f'pen-{manners}'] = begin().pen().pen(1).tool(6).pen().bytes
        found[f'keys-{manners}'] = begin().do('keyboardDrawing', 1).do('key', 6, 0).do('key', 8, 0).do('key', 10, 1).do('key', 0, 0).do('key', 8, 2).do('key', 0, 0).bytes
        found[f'canvas-{manners}'] = begin().stroke().do('resize', 100, 60).do('undo').do('chooseCanvas', 1, 50, 40).do('canvasSize', 251, 30).do('depth', 0).do('setPixmap', 30, 30, 1, 1, 2, 3, 0, 0, 0).do('paper', 1, 9, 9, 0, 200, 200, 0, 0, 0).do('clear').bytes
        found[f'files-{manners}'] = begin().do('open', 0, 0).stroke().do('save', 0, 4).do('setFileName', 4).do('slotSave').do('open', 3, 1).do('slotOpen').do('encoded', 0, 1).do('slotDelete', 0, 0).do('saveChangePic', 0, 3, 0).bytes
        found[f'host-{manners}'] = begin().do('features', 0, 4, 2, 3, 1, 0, 90, 1, 0).do('addTool', 1, 2, 5, 9).tool(8).stroke().do('react', 6).stroke().do('reset').do('hide').stroke().do('show').do('deleteEditor').stroke().do('deleteLater').stroke().bytes
        found[f'zooms-{manners}'] = begin().do('zoom', 0, 0, 0).stroke().do('zoom', 7, 0, 0).lift().do('zoom', 4, 0, 0).do('stepZoom', 1).do('zoom', 11, 0, 0).do('zoomRow', 4).do('scroll', 160, 160).do('resizeEditor', 170, 190).bytes
    found['canvas-empty'] = Session().do('resize', 255, 255).stroke().write().lift().do('paste').do('undo').do('clear').bytes
    dice = random.Random(1)
    for i in range(6):
        mixed = bytearray([i])
        for _ in range(150):
            mixed += bytes([dice.randrange(len(rows())), *(dice.randrange(256) for _ in range(dice.randrange(4)))])
        found[f'random{i}'] = mixed
    return {name: bytes(data) for name, data in found.items()}


def recordings():
    demo = (HERE.parent / 'host' / 'demo.rec').read_text().splitlines()
    everything = """manners modern
history 20
tool pencil
option 1
color #12ab34
zoom 150
press 10 10
move 40 50
release 60 60 right
tool rectangle
press 20 20
move 90 80 shift
release 90 80 shift
undo
redo
tool text
press 30 30
release 30 30
type "two words\\" \\\\ \\n"
key Return
key Ctrl+Left
key BackSpace
zoom fit
selectall
copy
cut
paste
place 5 -7
piece turn-left
piece double
piece clear-white
delete
canvas 4bitb 60 50
answer 1
open a.png
stamp b.jpg
paper a.png
save c.bmp
answer 0
clear
manners joined-eraser,even-shapes
manners classic
wait 1
# a comment
tool fill
press 5 5
tool picker
"""
    found = {'everything': everything, 'quotes': 'type "\\t\\n\\""\ntype ""\ntype #\ncolor #ffffff # white\nopen "a b.png"'}
    for i in range(0, min(len(demo), 240), 40):
        found[f'demo{i}'] = '\n'.join(demo[i:i + 40])
    for line in everything.splitlines():
        found.setdefault('line-' + re.sub(r'\W', '', line)[:20], line)
    return {name: text.encode() for name, text in found.items()}
