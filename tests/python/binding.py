#!/usr/bin/env python3
"""binding.py EXAMPLE: runs the example as a person uses it, off screen, and tries what else the module offers."""

import runpy
import sys
import tempfile
import unittest
from pathlib import Path

from PyQt6.QtCore import QBuffer, QIODevice, QLocale, QPoint, QSize, Qt, QTimer
from PyQt6.QtGui import QColor, QImage
from PyQt6.QtTest import QTest
from PyQt6.QtWidgets import QApplication, QPushButton, QWidget

import korva
from korva import KORVA_EditCanvas

EXAMPLE = sys.argv.pop(1)
RED, BLUE, WHITE = (QColor(name) for name in ("#ff0000", "#0000ff", "#ffffff"))


def sheet(colour, size=QSize(120, 90)):
    image = QImage(size, QImage.Format.Format_RGB32)
    image.fill(colour)
    return image


def as_png(image):
    buffer = QBuffer()
    buffer.open(QIODevice.OpenModeFlag.WriteOnly)
    image.save(buffer, "PNG")
    return bytes(buffer.data())


def drag(widget, start, end):
    QTest.mousePress(widget, Qt.MouseButton.LeftButton, pos=start)
    QTest.mouseMove(widget, end)
    QTest.mouseRelease(widget, Qt.MouseButton.LeftButton, pos=end)


class Binding(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.run_example(Path(cls.folder.name))
        cls.app = QApplication.instance() or QApplication(sys.argv)

    @classmethod
    def run_example(cls, folder):
        """In this process, whose one application is the example's, with a person at it."""
        opened, cls.saved = folder / "in.png", folder / "out.png"
        opened.write_bytes(as_png(sheet(BLUE)))

        def use():
            editor = next(w for w in QApplication.topLevelWidgets() if isinstance(w, KORVA_EditCanvas))
            cls.shown = editor.snapshot()
            drag(editor.canvas(), QPoint(20, 20), QPoint(80, 60))
            editor.close()

        run = QApplication.exec

        def use_and_run():
            QTimer.singleShot(0, use)
            return run()

        QApplication.exec = staticmethod(use_and_run)
        arguments, sys.argv = sys.argv, [EXAMPLE, str(opened), str(cls.saved)]
        try:
            cls.example = runpy.run_path(EXAMPLE, run_name="__main__")
        finally:
            QApplication.exec, sys.argv = staticmethod(run), arguments

    def test_example_is_short(self):
        self.assertLessEqual(len(Path(EXAMPLE).read_text().splitlines()), 13)

    def test_example_opens_draws_and_saves(self):
        self.assertEqual(self.shown, sheet(BLUE).convertToFormat(self.shown.format()))
        drawn = QImage(str(self.saved))
        self.assertEqual(drawn.size(), QSize(120, 90))
        self.assertEqual(drawn.pixelColor(50, 20), RED)  # the top of the ellipse
        self.assertEqual(drawn.pixelColor(50, 40), BLUE)  # inside
        self.assertEqual(drawn.pixelColor(21, 21), BLUE)  # in the corner

    def test_signals_and_history(self):
        editor = KORVA_EditCanvas()
        told = []
        editor.canUndo.connect(lambda possible: told.append(("undo", possible)))
        editor.canRedo.connect(lambda possible: told.append(("redo", possible)))
        editor.toolChanged.connect(lambda tool: told.append(("tool", tool)))
        blank = editor.snapshot()
        editor.selectTool(KORVA_EditCanvas.Tool.Line)
        drag(editor.canvas(), QPoint(10, 30), QPoint(90, 30))
        self.assertEqual(editor.snapshot().pixelColor(50, 30), RED)
        self.assertTrue(editor.isModified())
        editor.undo()
        self.assertEqual(editor.snapshot(), blank)
        self.assertEqual(told[0], ("tool", 2))
        self.assertEqual(told[-2:], [("undo", False), ("redo", True)])

    def test_properties(self):
        editor = KORVA_EditCanvas()
        editor.setOffers(KORVA_EditCanvas.Offer.Editing | KORVA_EditCanvas.Offer.Saving)
        self.assertEqual(editor.offers(), KORVA_EditCanvas.Offer.Editing | KORVA_EditCanvas.Offer.Saving)
        editor.setMannerWords(["round-pencil"])
        self.assertEqual(editor.mannerWords(), ["round-pencil"])
        editor.setProperty("zoomRow", KORVA_EditCanvas.ZoomRow.Zoom200.value)
        self.assertEqual(editor.zoomIndex(), KORVA_EditCanvas.ZoomRow.Zoom200)
        editor.setColor(BLUE)
        self.assertEqual(editor.property("color"), BLUE)
        self.assertEqual(KORVA_EditCanvas.toolWord(editor.tool()), "pencil")

    def test_bytes_in_and_out(self):
        editor = KORVA_EditCanvas(korva.KORVA_COLORTYPE.KORVA_COLOR_8BIT)
        self.assertEqual(editor.colorType(), korva.KORVA_COLORTYPE.KORVA_COLOR_8BIT)
        self.assertFalse(editor.setEncoded(b"no picture"))
        self.assertTrue(editor.setEncoded(as_png(sheet(RED))))
        self.assertEqual(QImage.fromData(editor.encoded("BMP")).pixelColor(60, 45), RED)
        self.assertLessEqual(len(editor.encoded("JPEG", 900)), 900)

    def test_parents_own_their_children(self):
        window = QWidget()
        editor, preview = KORVA_EditCanvas(window), korva.KORVA_PreviewWidget(window)
        gone = []
        editor.destroyed.connect(lambda: gone.append("editor"))
        preview.destroyed.connect(lambda: gone.append("preview"))
        del editor, preview
        self.assertEqual(gone, [])
        self.assertEqual(len(window.findChildren(KORVA_EditCanvas)), 1)
        window.deleteLater()
        del window
        QTest.qWait(0)
        self.assertEqual(sorted(gone), ["editor", "preview"])

    def test_derived_editor(self):
        class Own(KORVA_EditCanvas):
            def resizeEvent(self, event):
                super().resizeEvent(event)
                self.told = event.size()

        own = Own()
        own.resize(400, 300)
        own.show()
        QTest.qWait(0)
        self.assertEqual(own.told, QSize(400, 300))

    def test_preview(self):
        preview = korva.KORVA_PreviewWidget()
        preview.resize(200, 150)
        preview.setImage(sheet(BLUE))
        self.assertEqual(preview.grab().toImage().pixelColor(100, 75), BLUE)
        preview.setFileName("missing.png")
        self.assertEqual(preview.fileName(), "missing.png")

    def test_confirming(self):
        for key, expected in ((Qt.Key.Key_Return, 900), (Qt.Key.Key_Escape, 902)):
            def press():
                box = QApplication.activeModalWidget()
                if box and box.findChildren(QPushButton):
                    QTest.keyClick(box, key)
                else:
                    QTimer.singleShot(10, press)

            QTimer.singleShot(0, press)
            self.assertEqual(korva.KorvaPreview(str(self.saved)), expected)

    def test_languages(self):
        self.assertTrue(korva.KORVA_Translations.load(QLocale("de")))
        self.assertEqual(KORVA_EditCanvas.toolName(0), "Stift")
        korva.KORVA_Translations.unload()
        self.assertEqual(korva.KORVA_Translations.language(), "en")


if __name__ == "__main__":
    unittest.main()
