#include "Fixtures.h"

using namespace fixtures;
using namespace support;

namespace {

constexpr QSize size(60, 50);
const QImage picture = mosaic(size);
const QRect area(10, 20, 16, 12); // at 100 %

} // namespace

class tst_Selection : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();

    void liftedSizeFollowsTheZoom_data();
    void liftedSizeFollowsTheZoom();
    void liftingLeavesAWhiteHole();
    void holeIsWhereTheSelectionIsAtEveryZoom_data();
    void holeIsWhereTheSelectionIsAtEveryZoom();
    void swappedCornersAreNormalised();
    void liftingMergesAnEarlierPiece();
    void liftingEndsAtTheEdge();
    void liftingMarksNothing();
    void clearSelectionForgetsTheRectangle();

    void copyLeavesThePictureAlone();
    void copyTakesWhatTheHiddenItemHolds();
    void copyOfNothingEmptiesNothing();
    void cutLeavesWhiteAndFillsTheClipboard();
    void cutOfAMovedPieceLeavesTheTargetAlone();
    void cutAnnouncesItselfTwice();
    void cutWithoutSelectionPaintsNothing();
    void undoAfterCutKeepsTheHole();

    void mergeWithoutPieceDoesNothing();
    void mergePaintsThenSnapshots();
    void mergeKeepsTheSelectionRectangle();
    void pointInPiece_data();
    void pointInPiece();
    void noPointIsInAHiddenPiece();
};

void tst_Selection::init()
{
    TestCase::init();
    QGuiApplication::clipboard()->clear();
}

// --- Lifting

void tst_Selection::liftedSizeFollowsTheZoom_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QRect>("selection");
    QTest::addColumn<QRect>("lifted");
    QTest::newRow("100") << 100 << QRect(3, 5, 20, 10) << QRect(3, 5, 20, 10);
    QTest::newRow("50") << 50 << QRect(3, 5, 20, 10) << QRect(6, 10, 40, 20);
    QTest::newRow("150 with a margin") << 150 << QRect(4, 5, 20, 10) << QRect(2, 3, 15, 8);
    QTest::newRow("200 with a margin") << 200 << QRect(7, 5, 20, 10) << QRect(3, 2, 12, 7);
    QTest::newRow("300 without") << 300 << QRect(7, 5, 20, 10) << QRect(2, 1, 6, 3);
    QTest::newRow("37 without") << 37 << QRect(1, 2, 10, 5) << QRect(2, 5, 27, 13);
}

void tst_Selection::liftedSizeFollowsTheZoom()
{
    QFETCH(const int, zoom);
    QFETCH(const QRect, selection);
    QFETCH(const QRect, lifted);
    PictureCanvas canvas(picture);
    canvas.setZoom(zoom);
    canvas.setSelection(selection);
    QVERIFY(sameImage(canvas.pasteLabel()->getImage(), picture.copy(lifted)));
    QCOMPARE(canvas.pasteLabel()->pos(), selection.topLeft());
    QCOMPARE(canvas.selection(), selection);
}

void tst_Selection::liftingLeavesAWhiteHole()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    QVERIFY(canvas.isFloating());
    QVERIFY(canvas.hasSelection());
    QVERIFY(sameImage(canvas.shown(), filled(picture, area, Qt::white)));
    QVERIFY(sameImage(canvas.merged(), picture)); // put back where it was
}

void tst_Selection::holeIsWhereTheSelectionIsAtEveryZoom_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QRect>("selection");
    QTest::addColumn<QRect>("hole");
    QTest::newRow("50") << 50 << QRect(4, 6, 10, 8) << QRect(8, 12, 20, 16);
    QTest::newRow("150") << 150 << QRect(15, 30, 30, 12) << QRect(10, 20, 20, 8);
    QTest::newRow("200") << 200 << QRect(20, 40, 32, 24) << QRect(10, 20, 16, 12);
    QTest::newRow("300") << 300 << QRect(30, 60, 48, 36) << QRect(10, 20, 16, 12);
}

void tst_Selection::holeIsWhereTheSelectionIsAtEveryZoom()
{
    QFETCH(const int, zoom);
    QFETCH(const QRect, selection);
    QFETCH(const QRect, hole);
    PictureCanvas canvas(picture);
    canvas.setZoom(zoom);
    canvas.setSelection(selection);
    canvas.pasteLabel()->hide();
    QVERIFY(sameImage(canvas.shown(), support::scaled(filled(picture, hole, Qt::white), zoom)));
    QVERIFY(sameImage(canvas.merged(), filled(picture, hole, Qt::white)));
}

void tst_Selection::swappedCornersAreNormalised()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(QRect(QPoint(30, 35), QPoint(10, 15)));
    QCOMPARE(canvas.selection(), QRect(QPoint(10, 15), QPoint(30, 35)));
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(10, 15, 21, 21));
    // The toolkit's own would lose a pixel on every side.
    QCOMPARE(QRect(QPoint(30, 35), QPoint(10, 15)).normalized(), QRect(11, 16, 19, 19));
}

void tst_Selection::liftingMergesAnEarlierPiece()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.pasteLabel()->move(30, 5);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.setSelection(QRect(28, 3, 10, 10));
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "selection(true)"}));
    // What is lifted was taken before the earlier piece came down.
    QVERIFY(sameImage(canvas.pasteLabel()->getImage(), picture.copy(28, 3, 10, 10)));
    const QImage after = overlaid(filled(picture, area, Qt::white), QPoint(30, 5), picture.copy(area));
    QVERIFY(sameImage(canvas.shown(), filled(after, QRect(28, 3, 10, 10), Qt::white)));
}

void tst_Selection::liftingEndsAtTheEdge()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(QRect(50, 45, 20, 10));
    QVERIFY(sameImage(canvas.pasteLabel()->getImage(), picture.copy(50, 45, 10, 5)));
    QVERIFY(sameImage(canvas.merged(), picture));
    canvas.setSelection(QRect(-5, -5, 10, 10));
    QVERIFY(sameImage(canvas.merged(), picture));
    canvas.setSelection(QRect(500, 500, 4, 4));
    QVERIFY(sameImage(canvas.merged(), picture));
}

void tst_Selection::liftingMarksNothing()
{
    PictureCanvas canvas(picture);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.setSelection(area);
    QCOMPARE(recorder.taken(), QStringList("selection(true)"));
    QVERIFY(!canvas.isModified());
    QCOMPARE(canvas.undoFlag(), 0);
}

void tst_Selection::clearSelectionForgetsTheRectangle()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.clearSelection();
    QCOMPARE(recorder.taken(), QStringList("selection(false)"));
    QVERIFY(!canvas.hasSelection());
    QCOMPARE(canvas.selection(), QRect());
    QVERIFY(canvas.isFloating());
}

// --- Copy and cut

void tst_Selection::copyLeavesThePictureAlone()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.copy();
    QCOMPARE(recorder.taken(), QStringList("clipboard(true)"));
    QVERIFY(sameImage(clipboardImage(), picture.copy(area)));
    QVERIFY(canvas.isFloating());
    QVERIFY(!canvas.isModified());
    QVERIFY(sameImage(canvas.merged(), picture));
}

void tst_Selection::copyTakesWhatTheHiddenItemHolds()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.mergePastePixmap();
    canvas.clearSelection();
    canvas.copy();
    QVERIFY(sameImage(clipboardImage(), picture.copy(area)));
}

void tst_Selection::copyOfNothingEmptiesNothing()
{
    PictureCanvas canvas(picture);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.copy();
    QVERIFY(clipboardImage().isNull());
    QCOMPARE(recorder.taken(), QStringList("clipboard(true)"));
    QVERIFY(sameImage(canvas.merged(), picture));
}

void tst_Selection::cutLeavesWhiteAndFillsTheClipboard()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.cut();
    QVERIFY(!canvas.isFloating());
    QVERIFY(!canvas.hasSelection());
    QVERIFY(canvas.isModified());
    QVERIFY(sameImage(clipboardImage(), picture.copy(area)));
    QVERIFY(sameImage(canvas.shown(), filled(picture, area, Qt::white)));
    QVERIFY(sameImage(canvas.merged(), filled(picture, area, Qt::white)));
}

void tst_Selection::cutOfAMovedPieceLeavesTheTargetAlone()
{
    PictureCanvas canvas(picture);
    canvas.setZoom(150);
    canvas.setSelection(QRect(15, 30, 30, 12));
    canvas.pasteLabel()->move(0, 0);
    canvas.cut();
    QVERIFY(sameImage(canvas.merged(), filled(picture, QRect(10, 20, 20, 8), Qt::white)));
}

void tst_Selection::cutAnnouncesItselfTwice()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.cut();
    QCOMPARE(recorder.taken(),
             QStringList({"clipboard(true)", "selection(false)", "modified()", "clipboard(true)"}));
}

void tst_Selection::cutWithoutSelectionPaintsNothing()
{
    PictureCanvas canvas(picture);
    canvas.cut();
    QVERIFY(sameImage(canvas.merged(), picture));
    QVERIFY(canvas.isModified());
}

void tst_Selection::undoAfterCutKeepsTheHole()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.cut();
    canvas.undo(); // the snapshot was taken when the piece was already out of the picture
    QVERIFY(sameImage(canvas.merged(), filled(picture, area, Qt::white)));
}

// --- Merging

void tst_Selection::mergeWithoutPieceDoesNothing()
{
    PictureCanvas canvas(picture);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.mergePastePixmap();
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(!canvas.isModified());
}

void tst_Selection::mergePaintsThenSnapshots()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.pasteLabel()->move(30, 5);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.mergePastePixmap();
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)"}));
    QVERIFY(canvas.isModified());
    QCOMPARE(canvas.undoFlag(), 1);
    const QImage merged = overlaid(filled(picture, area, Qt::white), QPoint(30, 5), picture.copy(area));
    QVERIFY(sameImage(canvas.shown(), merged));
    QVERIFY(sameImage(canvas.merged(), merged));
    QVERIFY(sameImage(canvas.snapshot(), merged));
}

void tst_Selection::mergeKeepsTheSelectionRectangle()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.mergePastePixmap();
    QVERIFY(canvas.hasSelection());
    QCOMPARE(canvas.selection(), area);
    QCOMPARE(enabledActions(canvas.contextMenu()), "000");
}

void tst_Selection::pointInPiece_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("inside");
    QTest::newRow("top left") << QPoint(10, 20) << true;
    QTest::newRow("left of it") << QPoint(9, 20) << false;
    QTest::newRow("above it") << QPoint(10, 19) << false;
    QTest::newRow("last column") << QPoint(25, 20) << true;
    QTest::newRow("beyond the last column") << QPoint(26, 20) << false;
    QTest::newRow("last row") << QPoint(10, 31) << true;
    QTest::newRow("beyond the last row") << QPoint(10, 32) << false;
    QTest::newRow("last corner") << QPoint(25, 31) << true;
    QTest::newRow("beyond the last corner") << QPoint(26, 32) << false;
}

void tst_Selection::pointInPiece()
{
    QFETCH(const QPoint, point);
    QFETCH(const bool, inside);
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    QCOMPARE(canvas.ptInPasteLabel(point), inside);
}

void tst_Selection::noPointIsInAHiddenPiece()
{
    PictureCanvas canvas(picture);
    QVERIFY(!canvas.ptInPasteLabel(QPoint(15, 15))); // where the item waits
    canvas.setSelection(area);
    canvas.mergePastePixmap();
    QVERIFY(!canvas.ptInPasteLabel(area.center()));
}

int main(int argc, char** argv)
{
    return support::run<tst_Selection>(argc, argv);
}

#include "tst_Selection.moc"
