#!/usr/bin/env python3
import sys
from pathlib import Path
from PyQt6.QtWidgets import QApplication
from korva import KORVA_EditCanvas

app = QApplication(sys.argv)
editor = KORVA_EditCanvas()
editor.setTool(KORVA_EditCanvas.Tool.Ellipse)
editor.setEncoded(Path(sys.argv[1]).read_bytes())
editor.show()
app.exec()
Path(sys.argv[2]).write_bytes(editor.encoded("PNG"))
