#include "EditorFixtures.h"
#include "support/TestCase.h"

using fixtures::EditorDesk;
using support::filled;
using support::mosaic;
using support::sameImage;

namespace {

constexpr QSize size(200, 170); // of a new drawing
constexpr QRect dot(QPoint(50, 40), QSize(20, 20));

/// A drawing on a sheet of paper, with a blue square on it.
struct Sheet : EditorDesk
{
    Sheet()
    {
        editor->setPaper(mosaic(size));
        QPainter(editor->pixmap()).fillRect(dot, Qt::blue);
        canvas().updateZoomed();
        editor->clearModified();
        (void)log.taken();
    }
};

} // namespace

class tst_Paper : public support::TestCase
{
    Q_OBJECT

private slots:
    void liesUnderTheDrawing();
    void anotherOneTakesItsPlace();
    void isScaledToTheDrawing();
    void clearingBringsItBack();
    void eraserBringsItBack_data();
    void eraserBringsItBack();
    void erasingBeyondTheEdgesChangesNothingElse();
    void holesShowIt_data();
    void holesShowIt();
    void newCanvasesShowIt();
    void openedPicturesCoverIt();
    void undoTakesItAway();
    void samePaperIsNoChange();
    void otherColorsAreClearedTo();
};

void tst_Paper::liesUnderTheDrawing()
{
    EditorDesk desk;
    desk.scribble();
    const QImage drawn = desk.picture();
    desk.editor->clearModified();
    desk.editor->setPaper(mosaic(size));
    QCOMPARE(desk.log.taken(), QStringList({"modified()", "canUndo(true)", "canRedo(false)"}));
    QImage expected = mosaic(size).convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (drawn.pixelColor(x, y) != QColor(Qt::white))
                expected.setPixelColor(x, y, drawn.pixelColor(x, y));
        }
    }
    QVERIFY(sameImage(desk.editor->snapshot(), expected));
    QVERIFY(sameImage(*desk.canvas().zoomedPixmap(), expected));
    desk.editor->setPaper(QImage());
    QVERIFY(sameImage(desk.editor->snapshot(), drawn));
}

void tst_Paper::anotherOneTakesItsPlace()
{
    Sheet desk;
    desk.editor->setPaper(support::inverted(mosaic(size)));
    QVERIFY(sameImage(desk.picture(), filled(support::inverted(mosaic(size)), dot, Qt::blue)));
}

void tst_Paper::isScaledToTheDrawing()
{
    EditorDesk desk;
    QImage quarters(2, 2, QImage::Format_RGB32);
    quarters.setPixel(0, 0, 0xff102030);
    quarters.setPixel(1, 0, 0xff405060);
    quarters.setPixel(0, 1, 0xff708090);
    quarters.setPixel(1, 1, 0xffa0b0c0);
    desk.editor->setPaper(quarters);
    QVERIFY(sameImage(desk.editor->snapshot(), quarters.scaled(size)));
    desk.editor->setCanvasSize(60, 50);
    desk.editor->clearCanvas();
    QVERIFY(sameImage(desk.editor->snapshot(), quarters.scaled(60, 50)));
}

void tst_Paper::clearingBringsItBack()
{
    Sheet desk;
    desk.editor->clearCanvas();
    QVERIFY(sameImage(desk.editor->snapshot(), mosaic(size)));
    QVERIFY(sameImage(*desk.canvas().zoomedPixmap(), mosaic(size)));
}

void tst_Paper::eraserBringsItBack_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("side");
    QTest::addRow("50 %%") << int(KORVA_ZOOM_50) << 2;
    QTest::addRow("100 %%") << int(KORVA_ZOOM_100) << 5;
    QTest::addRow("150 %%") << int(KORVA_ZOOM_150) << 7;
    QTest::addRow("200 %%") << int(KORVA_ZOOM_200) << 10;
}

void tst_Paper::eraserBringsItBack()
{
    QFETCH(const int, zoom);
    QFETCH(const int, side);
    Sheet desk;
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    desk.editor->selectOption(KORVA_OPTION_LARGE);
    desk.editor->selectZoom(zoom);
    const KORVA_Zoom rate(desk.canvas().zoom());
    support::Gestures hand(desk.canvas());
    const QPoint at = rate.toWidget(dot.center());
    hand.press(at);
    hand.move(at);
    const QRect erased(rate.toPicture(at), QSize(side, side));
    QImage expected = filled(mosaic(size).convertToFormat(QImage::Format_RGB32), dot, Qt::blue);
    expected = support::overlaid(expected, erased.topLeft(), mosaic(size).copy(erased));
    QVERIFY(sameImage(desk.editor->snapshot(), expected));
    QVERIFY(sameImage(*desk.canvas().zoomedPixmap(), support::scaled(expected, desk.canvas().zoom())));
}

void tst_Paper::erasingBeyondTheEdgesChangesNothingElse()
{
    Sheet desk;
    desk.editor->setManners(KORVA_Manners::modern());
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    desk.editor->selectOption(KORVA_OPTION_LARGE);
    const QImage before = desk.editor->snapshot();
    support::Gestures hand(desk.canvas());
    hand.drag({{60, -30}, {-30, -2}, {-2, 50}, {-30, 190}, {100, 190}, {230, 60}, {60, -30}}); // around
    QVERIFY(sameImage(desk.editor->snapshot(), before));
    hand.drag({{-2, 30}, {-2, 50}}); // 3 of its 5 columns are inside
    QVERIFY(sameImage(desk.editor->snapshot(), before));
    hand.drag({{48, 30}, {48, 50}});
    QVERIFY(sameImage(desk.editor->snapshot(),
                      support::overlaid(before, {50, 40}, mosaic(size).copy(50, 40, 3, 15))));
}

void tst_Paper::holesShowIt_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<bool>("isCut");
    for (int zoom = KORVA_ZOOM_50; zoom <= KORVA_ZOOM_200; ++zoom) {
        for (const bool isCut : {false, true})
            QTest::addRow("row %d, %s", zoom, isCut ? "cut" : "deleted") << zoom << isCut;
    }
}

void tst_Paper::holesShowIt()
{
    QFETCH(const int, zoom);
    QFETCH(const bool, isCut);
    Sheet desk;
    EditorDesk white; // what is white there is paper here
    white.setPicture(filled(support::sheet(size, Qt::green), dot, Qt::blue));
    for (EditorDesk* each : {static_cast<EditorDesk*>(&desk), &white}) {
        each->editor->selectTool(KORVA_TOOL_SELECT);
        each->editor->selectZoom(zoom);
        support::Gestures(each->canvas()).drag({{13, 11}, {67, 58}});
        if (isCut)
            each->editor->cut();
        else
            each->editor->deleteSelection();
    }
    const QImage hole = white.picture();
    QImage expected = filled(mosaic(size).convertToFormat(QImage::Format_RGB32), dot, Qt::blue);
    const QImage paper = mosaic(size);
    int erased = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (hole.pixelColor(x, y) != QColor(Qt::white))
                continue;
            expected.setPixelColor(x, y, paper.pixelColor(x, y));
            ++erased;
        }
    }
    QVERIFY(erased > 100);
    QVERIFY(sameImage(desk.picture(), expected));
}

void tst_Paper::newCanvasesShowIt()
{
    Sheet desk;
    desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 200, 170);
    QVERIFY(sameImage(desk.picture(), mosaic(size)));
    const QImage large = mosaic({300, 250});
    desk.editor->setPaper(large);
    desk.editor->clearCanvas();
    desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 300, 250);
    QVERIFY(sameImage(desk.picture(), large)); // and not what 200 × 170 pixels have left of it
}

void tst_Paper::openedPicturesCoverIt()
{
    Sheet desk;
    desk.setPicture(support::sheet(size, Qt::green));
    QVERIFY(sameImage(desk.picture(), support::sheet(size, Qt::green)));
    desk.editor->clearCanvas();
    QVERIFY(sameImage(desk.picture(), mosaic(size)));
}

void tst_Paper::undoTakesItAway()
{
    EditorDesk desk;
    desk.editor->setPaper(mosaic(size));
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), support::sheet(size)));
}

void tst_Paper::samePaperIsNoChange()
{
    Sheet desk;
    desk.editor->setPaper(mosaic(size));
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(!desk.editor->hasChanges());
}

void tst_Paper::otherColorsAreClearedTo()
{
    Sheet desk;
    desk.canvas().clearCanvas(Qt::green);
    QVERIFY(sameImage(desk.picture(), support::sheet(size, Qt::green)));
}

int main(int argc, char** argv)
{
    return support::run<tst_Paper>(argc, argv);
}

#include "tst_Paper.moc"
