#include "EditorFixtures.h"
#include "PasteItem.h"

using fixtures::EditorDesk;
using fixtures::PasteItem;
using fixtures::PictureCanvas;

namespace {

constexpr int fitIndex = 4;
constexpr qint64 most = 16'000'000; ///< the screen of the tests is small
constexpr QSize working(352, 288);

qint64 area(QSize size)
{
    return qint64(size.width()) * size.height();
}

/// An editor with a picture of one pixel that fills the page.
struct DotDesk : EditorDesk
{
    DotDesk()
    {
        setPicture(support::mosaic(working));
        editor->resizeImage(1, 1);
        chooseZoom(fitIndex);
        (void)log.taken();
    }
};

using Reaction = void (*)(EditorDesk&);

} // namespace

Q_DECLARE_METATYPE(Reaction)

/// What zooming, stretching and selecting stop at.
class tst_Limits : public support::TestCase
{
    Q_OBJECT

private slots:
    void aDotFillsThePage();
    void theZoomFallsBack_data();
    void theZoomFallsBack();
    void theZoomFallsBackJustBeyondTheLimit_data();
    void theZoomFallsBackJustBeyondTheLimit();
    void whoListensHearsOfIt();
    void theEraserFollows();
    void aSmallerPictureIsStillFitted();
    void aHiddenPieceIsNotScaled();
    void aPieceIsScaledWhenItIsShown();

    void aStretchStops_data();
    void aStretchStops();
    void aStretchStopsAtRealSize();
    void whatIsStretchedNoFurtherStays();

    void aSelectionIsCutOff_data();
    void aSelectionIsCutOff();
    void nothingIsSelectedOutside();
    void aDragThatBeginsOutsideIsCutOff();
};

void tst_Limits::aDotFillsThePage()
{
    const DotDesk desk;
    QCOMPARE(desk.canvas().zoom(), 18600);
    QCOMPARE(desk.canvas().size(), QSize(186, 186));
    QCOMPARE(desk.zoomBox().currentIndex(), fitIndex);
}

void tst_Limits::theZoomFallsBack_data()
{
    QTest::addColumn<Reaction>("reaction");
    QTest::addColumn<QSize>("picture");
    const auto add = [](const char* name, QSize picture, Reaction reaction) {
        QTest::newRow(name) << reaction << picture;
    };
    add("a picture is opened", working, [](EditorDesk& desk) {
        const fixtures::PictureFolder folder;
        (void)desk.editor->openNewFilePrivate(0, folder.written("flag.png", fixtures::flag(working)));
    });
    add("a picture is set", working, [](EditorDesk& desk) {
        QPixmap picture = QPixmap::fromImage(support::mosaic(working));
        desk.editor->setPixmap(&picture);
    });
    add("a resize is undone", working, [](EditorDesk& desk) { desk.editor->undo(); });
    add("the picture grows", {150, 120}, [](EditorDesk& desk) { desk.editor->resizeImage(150, 120); });
    add("the canvas grows", {150, 120}, [](EditorDesk& desk) { desk.editor->setCanvasSize(150, 120); });
    add("a canvas is chosen", {240, 320},
        [](EditorDesk& desk) { desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 240, 320); });
    add("a stamp comes in", {1, 1}, [](EditorDesk& desk) {
        QPixmap stamp = QPixmap::fromImage(support::mosaic(working));
        desk.editor->insertStamp(stamp);
    });
    add("a piece is pasted", {1, 1}, [](EditorDesk& desk) {
        fixtures::setClipboard(support::mosaic(working));
        desk.editor->paste();
    });
    add("a host zooms", {1, 1}, [](EditorDesk& desk) { desk.editor->setZoom(1'000'000'000); });
}

void tst_Limits::theZoomFallsBack()
{
    QFETCH(const Reaction, reaction);
    QFETCH(const QSize, picture);
    DotDesk desk;
    reaction(desk);
    QCOMPARE(desk.canvas().zoom(), 100);
    QCOMPARE(desk.zoomBox().currentIndex(), 1);
    QCOMPARE(desk.canvas().pictureSize(), picture);
    QCOMPARE(desk.canvas().size(), picture);
    QCOMPARE(desk.canvas().zoomedPixmap()->size(), picture);
    if (!desk.canvas().pasteLabel()->isHidden())
        QCOMPARE(desk.canvas().pasteLabel()->size(), working);
}

void tst_Limits::theZoomFallsBackJustBeyondTheLimit_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("zoom");
    QTest::newRow("as large as may be") << QSize(2000, 2000) << 200 << 200;
    QTest::newRow("a column more") << QSize(2001, 2000) << 200 << 100;
    QTest::newRow("a percent more") << QSize(2000, 2000) << 201 << 100;
    QTest::newRow("at real size") << QSize(4001, 4000) << 100 << 100;
    QTest::newRow("made smaller") << QSize(4001, 4000) << 99 << 99;
}

void tst_Limits::theZoomFallsBackJustBeyondTheLimit()
{
    QFETCH(const QSize, picture);
    QFETCH(const int, percent);
    QFETCH(const int, zoom);
    PictureCanvas canvas(support::sheet(picture));
    canvas.setZoom(percent);
    QCOMPARE(canvas.zoom(), zoom);
    QCOMPARE(canvas.size(), QSize(int(picture.width() * zoom / 100), int(picture.height() * zoom / 100)));
}

void tst_Limits::whoListensHearsOfIt()
{
    DotDesk desk;
    desk.log.watch(&desk.canvas(), &KORVA_Canvas::zoomFellBack, "canvas");
    QPixmap picture = QPixmap::fromImage(support::mosaic(working));
    desk.editor->setPixmap(&picture);
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(false)", "pixmapChanged(352x288)",
                                            "sizeChanged()", "canvas.zoomFellBack()"}));
    desk.editor->setPixmap(&picture);
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(false)", "pixmapChanged(352x288)"}));
}

void tst_Limits::theEraserFollows()
{
    DotDesk desk;
    desk.chooseTool(fixtures::Eraser);
    QVERIFY(desk.canvas().cursor().pixmap().width() > 100);
    QPixmap picture = QPixmap::fromImage(support::mosaic(working));
    desk.editor->setPixmap(&picture);
    QCOMPARE(desk.canvas().cursor().pixmap().width(), desk.manager().currentTool()->leftPen().width() + 2);
}

void tst_Limits::aSmallerPictureIsStillFitted()
{
    DotDesk desk;
    QPixmap picture = QPixmap::fromImage(support::mosaic({20, 20}));
    desk.editor->setPixmap(&picture);
    QCOMPARE(desk.canvas().zoom(), 930);
    QCOMPARE(desk.zoomBox().currentIndex(), fitIndex);
}

void tst_Limits::aHiddenPieceIsNotScaled()
{
    PictureCanvas canvas(support::sheet({20, 20}));
    QPixmap stamp = QPixmap::fromImage(support::mosaic({300, 250}));
    canvas.insertStamp(stamp);
    canvas.mergePastePixmap();
    canvas.setZoom(2000);
    QCOMPARE(canvas.size(), QSize(400, 400));
    QCOMPARE(canvas.pasteLabel()->size(), QSize(300, 250));
    canvas.setSelection(QRect(0, 0, 100, 40));
    QCOMPARE(canvas.pasteLabel()->getImage().size(), QSize(5, 2));
    QCOMPARE(canvas.pasteLabel()->size(), QSize(100, 40));
}

void tst_Limits::aPieceIsScaledWhenItIsShown()
{
    PictureCanvas canvas(support::sheet({60, 50}));
    QPixmap stamp = QPixmap::fromImage(support::mosaic({30, 20}));
    canvas.insertStamp(stamp);
    canvas.mergePastePixmap();
    canvas.setZoom(200);
    canvas.pasteLabel()->show();
    QCOMPARE(canvas.pasteLabel()->size(), QSize(60, 40));
    QVERIFY(support::sameImage(canvas.pasteLabel()->getImage(), support::mosaic({30, 20})));
}

// --- Stretching

void tst_Limits::aStretchStops_data()
{
    QTest::addColumn<QPoint>("handle");
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<QPoint>("fixed"); ///< a corner of the item, in halves of its size, that stays
    const QPoint right(99, 40);
    const QPoint left(1, 40);
    const QPoint bottom(50, 79);
    const QPoint top(50, 1);
    QTest::newRow("to the right") << right << QPoint(1'000'000, 0) << QPoint(0, 0);
    QTest::newRow("to the left") << left << QPoint(-1'000'000, 0) << QPoint(2, 0);
    QTest::newRow("down") << bottom << QPoint(0, 1'000'000) << QPoint(0, 0);
    QTest::newRow("up") << top << QPoint(0, -1'000'000) << QPoint(0, 2);
    QTest::newRow("both ways") << QPoint(98, 78) << QPoint(20'000, 20'000) << QPoint(0, 0);
    QTest::newRow("up and to the left") << QPoint(1, 1) << QPoint(-20'000, -20'000) << QPoint(2, 2);
}

void tst_Limits::aStretchStops()
{
    QFETCH(const QPoint, handle);
    QFETCH(const QPoint, distance);
    QFETCH(const QPoint, fixed);
    PasteItem item;
    const auto corner = [&] {
        return item.label.pos() +
               QPoint(item.label.width() * fixed.x() / 2, item.label.height() * fixed.y() / 2);
    };
    const QPoint before = corner();
    item.drag(handle, distance);
    QVERIFY(area(item.label.size()) <= most);
    QVERIFY(area(item.label.size()) > most * 95 / 100);
    QCOMPARE(item.label.getImage().size(), item.label.size());
    QCOMPARE(corner(), before);
}

void tst_Limits::aStretchStopsAtRealSize()
{
    PasteItem item(50);
    item.drag({98, 78}, {20'000, 20'000});
    QVERIFY(area(item.label.getImage().size()) <= most);
    QVERIFY(area(item.label.getImage().size()) > most * 95 / 100);
}

void tst_Limits::whatIsStretchedNoFurtherStays()
{
    PasteItem item;
    item.drag({98, 78}, {20'000, 20'000});
    const QRect large = item.label.geometry();
    item.drag({large.width() - 2, large.height() / 2}, {500, 0});
    QCOMPARE(item.label.geometry(), large);
    item.drag({large.width() - 2, large.height() / 2}, {-large.width() / 2, 0});
    QVERIFY(item.label.width() < large.width());
}

// --- Selecting

void tst_Limits::aSelectionIsCutOff_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QRect>("marked");
    QTest::addColumn<QRect>("selected");
    QTest::newRow("inside") << 100 << QRect(3, 5, 20, 10) << QRect(3, 5, 20, 10);
    QTest::newRow("lower right") << 100 << QRect(50, 45, 20, 10) << QRect(50, 45, 10, 5);
    QTest::newRow("upper left") << 100 << QRect(-5, -4, 10, 10) << QRect(0, 0, 5, 6);
    QTest::newRow("corners swapped") << 100 << QRect(QPoint(70, 60), QPoint(55, 48)) << QRect(55, 48, 5, 2);
    QTest::newRow("zoomed") << 200 << QRect(100, 90, 40, 40) << QRect(100, 90, 20, 10);
}

void tst_Limits::aSelectionIsCutOff()
{
    QFETCH(const int, zoom);
    QFETCH(const QRect, marked);
    QFETCH(const QRect, selected);
    const QImage picture = support::mosaic({60, 50});
    PictureCanvas canvas(picture);
    canvas.setZoom(zoom);
    canvas.setSelection(marked);
    QCOMPARE(canvas.selection(), selected);
    QCOMPARE(canvas.pasteLabel()->pos(), selected.topLeft());
    if (zoom == 100)
        QVERIFY(support::sameImage(canvas.pasteLabel()->getImage(), picture.copy(selected)));
    QVERIFY(support::sameImage(canvas.merged(), picture));
}

void tst_Limits::nothingIsSelectedOutside()
{
    PictureCanvas canvas(support::mosaic({60, 50}));
    support::SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.setSelection(QRect(500, 500, 4, 4));
    QVERIFY(!canvas.isFloating());
    QVERIFY(!canvas.hasSelection());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_Limits::aDragThatBeginsOutsideIsCutOff()
{
    EditorDesk desk;
    desk.chooseTool(fixtures::AreaSelect);
    support::Gestures(desk.canvas()).drag({{-30, -20}, {10, 10}, {41, 31}});
    QCOMPARE(desk.canvas().selection(), QRect(0, 0, 41, 31));
    QCOMPARE(desk.canvas().pasteLabel()->geometry(), QRect(0, 0, 41, 31));
}

int main(int argc, char** argv)
{
    return support::run<tst_Limits>(argc, argv);
}

#include "tst_Limits.moc"
