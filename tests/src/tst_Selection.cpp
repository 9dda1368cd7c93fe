#include "Fixtures.h"
#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"

using fixtures::clipboardImage;
using fixtures::enabledActions;
using fixtures::PictureCanvas;
using fixtures::setClipboard;
using support::filled;
using support::mosaic;
using support::overlaid;
using support::sameImage;
using support::sheet;
using support::SignalRecorder;

namespace {

constexpr QSize size(60, 50);
const QImage picture = mosaic(size);
const QRect area(10, 20, 16, 12); // at 100 %

void watchAll(SignalRecorder& recorder, const KORVA_Canvas& canvas)
{
    recorder.watch(&canvas, &KORVA_Canvas::pixmapChanged);
    recorder.watch(&canvas, &KORVA_Canvas::modified);
    recorder.watch(&canvas, qOverload<bool>(&KORVA_Canvas::selection));
    recorder.watch(&canvas, &KORVA_Canvas::clipboard);
}

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
    void liftingBeyondTheEdgeGivesWhite();
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

    void pasteFloatsAtTheOrigin();
    void pasteTwiceMergesTheFirst();
    void pasteScrollsIntoSight_data();
    void pasteScrollsIntoSight();
    void pasteOfNothingStillSnapshotsAndMerges();
    void pasteAtAPlace();
    void pasteAtAPlaceKeepsTheFloatingPiece();
    void pasteAtAPlaceOfNothingDoesNothing();
    void transparentPixelsLeaveThePictureAlone();
    void stampMergesAnEarlierPieceAndFloats();
    void stampTakesNoSnapshot();

    void mergeWithoutPieceDoesNothing();
    void mergePaintsThenSnapshots();
    void mergeKeepsTheSelectionRectangle();
    void pointInPiece_data();
    void pointInPiece();
    void noPointIsInAHiddenPiece();

    void menuFollowsSelectionAndClipboard();
    void menuActionsWork();
    void itemsMenuReachesTheCanvas();
    void menusOpenAndWorkByKeyboard();
    void menuWorksByMouse();
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
    watchAll(recorder, canvas);
    canvas.setSelection(QRect(28, 3, 10, 10));
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "selection(true)"}));
    // What is lifted was taken before the earlier piece came down.
    QVERIFY(sameImage(canvas.pasteLabel()->getImage(), picture.copy(28, 3, 10, 10)));
    const QImage after = overlaid(filled(picture, area, Qt::white), QPoint(30, 5), picture.copy(area));
    QVERIFY(sameImage(canvas.shown(), filled(after, QRect(28, 3, 10, 10), Qt::white)));
}

void tst_Selection::liftingBeyondTheEdgeGivesWhite()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(QRect(50, 45, 20, 10));
    QVERIFY(sameImage(canvas.pasteLabel()->getImage(),
                      overlaid(sheet(QSize(20, 10)), QPoint(0, 0), picture.copy(50, 45, 10, 5))));
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
    watchAll(recorder, canvas);
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
    watchAll(recorder, canvas);
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
    watchAll(recorder, canvas);
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
    watchAll(recorder, canvas);
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
    watchAll(recorder, canvas);
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

// --- Paste and stamp

void tst_Selection::pasteFloatsAtTheOrigin()
{
    PictureCanvas canvas(picture);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    SignalRecorder recorder;
    watchAll(recorder, canvas);
    canvas.paste();
    QCOMPARE(recorder.taken(), QStringList("modified()"));
    QVERIFY(canvas.isFloating());
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(0, 0, 8, 6));
    QVERIFY(!canvas.hasSelection());
    QVERIFY(sameImage(canvas.shown(), picture)); // not yet part of it
}

void tst_Selection::pasteTwiceMergesTheFirst()
{
    PictureCanvas canvas(picture);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    canvas.paste();
    canvas.pasteLabel()->move(20, 10);
    setClipboard(sheet(QSize(5, 5), Qt::blue));
    SignalRecorder recorder;
    watchAll(recorder, canvas);
    canvas.paste();
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "modified()", "modified()"}));
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(0, 0, 5, 5));
    const QImage withFirst = filled(picture, QRect(20, 10, 8, 6), Qt::red);
    QVERIFY(sameImage(canvas.shown(), withFirst));
    QVERIFY(sameImage(canvas.merged(), filled(withFirst, QRect(0, 0, 5, 5), Qt::blue)));
}

void tst_Selection::pasteScrollsIntoSight_data()
{
    using Command = std::function<void(KORVA_Canvas&)>;
    QTest::addColumn<Command>("command");
    QTest::newRow("paste") << Command([](KORVA_Canvas& canvas) { canvas.paste(); });
    QTest::newRow("insertStamp") << Command([](KORVA_Canvas& canvas) {
        QPixmap stamp(8, 8);
        stamp.fill(Qt::red);
        canvas.insertStamp(stamp);
    });
}

void tst_Selection::pasteScrollsIntoSight()
{
    QFETCH(const std::function<void(KORVA_Canvas&)>, command);
    KORVA_MainView view;
    view.resize(100, 100);
    view.show();
    view.scrollView()->setContentsPos(40, 30);
    QCOMPARE(QPoint(view.scrollView()->contentsX(), view.scrollView()->contentsY()), QPoint(40, 30));
    setClipboard(sheet(QSize(8, 6), Qt::red));
    command(*view.canvas());
    QCOMPARE(QPoint(view.scrollView()->contentsX(), view.scrollView()->contentsY()), QPoint(0, 0));
    QCOMPARE(view.canvas()->pos(), QPoint(0, 0));
}

void tst_Selection::pasteOfNothingStillSnapshotsAndMerges()
{
    PictureCanvas canvas(picture);
    canvas.clearCanvas(Qt::blue);
    canvas.setSelection(area);
    canvas.pasteLabel()->move(0, 0);
    SignalRecorder recorder;
    watchAll(recorder, canvas);
    canvas.paste();
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "modified()"}));
    QVERIFY(!canvas.isFloating());
    const QImage merged =
        filled(filled(sheet(size, Qt::blue), area, Qt::white), QRect(QPoint(0, 0), area.size()), Qt::blue);
    QVERIFY(sameImage(canvas.merged(), merged));
    QVERIFY(sameImage(canvas.snapshot(), merged));
}

void tst_Selection::pasteAtAPlace()
{
    PictureCanvas canvas(picture);
    canvas.setZoom(200);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    SignalRecorder recorder;
    watchAll(recorder, canvas);
    canvas.paste(50, 40); // in picture coordinates, whatever the zoom; beyond the edge it is cut off
    QCOMPARE(recorder.taken(), QStringList("modified()"));
    const QImage expected = filled(picture, QRect(50, 40, 8, 6), Qt::red);
    QVERIFY(sameImage(canvas.shown(), support::scaled(expected, 200)));
    QVERIFY(sameImage(canvas.merged(), expected));
    canvas.paste(-4, 47);
    QVERIFY(sameImage(canvas.merged(), filled(expected, QRect(-4, 47, 8, 6), Qt::red)));
    QVERIFY(sameImage(canvas.snapshot(), expected));
}

void tst_Selection::pasteAtAPlaceKeepsTheFloatingPiece()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    canvas.paste(40, 2);
    QVERIFY(canvas.isFloating());
    QVERIFY(
        sameImage(canvas.shown(), filled(filled(picture, area, Qt::white), QRect(40, 2, 8, 6), Qt::red)));
}

void tst_Selection::pasteAtAPlaceOfNothingDoesNothing()
{
    PictureCanvas canvas(picture);
    canvas.clearCanvas(Qt::blue);
    canvas.clearModified();
    SignalRecorder recorder;
    watchAll(recorder, canvas);
    canvas.paste(3, 4);
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(!canvas.isModified());
    QVERIFY(sameImage(canvas.snapshot(), picture)); // the one of before
}

void tst_Selection::transparentPixelsLeaveThePictureAlone()
{
    QImage seeThrough(4, 4, QImage::Format_ARGB32);
    seeThrough.fill(qRgba(255, 0, 0, 0));
    seeThrough.setPixel(1, 2, qRgba(0, 0, 255, 255));
    setClipboard(seeThrough);
    PictureCanvas canvas(picture);
    canvas.paste(10, 10);
    const QImage once = filled(picture, QRect(11, 12, 1, 1), Qt::blue);
    QVERIFY(sameImage(canvas.merged(), once));
    canvas.paste();
    QVERIFY(sameImage(canvas.merged(), filled(once, QRect(1, 2, 1, 1), Qt::blue)));
}

void tst_Selection::stampMergesAnEarlierPieceAndFloats()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.pasteLabel()->move(30, 5);
    QPixmap stamp = QPixmap::fromImage(sheet(QSize(7, 7), Qt::red));
    SignalRecorder recorder;
    watchAll(recorder, canvas);
    canvas.insertStamp(stamp);
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "modified()"}));
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(0, 0, 7, 7));
    const QImage merged = overlaid(filled(picture, area, Qt::white), QPoint(30, 5), picture.copy(area));
    QVERIFY(sameImage(canvas.shown(), merged));
    QVERIFY(sameImage(canvas.merged(), filled(merged, QRect(0, 0, 7, 7), Qt::red)));
}

void tst_Selection::stampTakesNoSnapshot()
{
    PictureCanvas canvas(picture);
    canvas.clearCanvas(Qt::blue);
    QPixmap stamp = QPixmap::fromImage(sheet(QSize(7, 7), Qt::red));
    canvas.insertStamp(stamp);
    canvas.pasteLabel()->hide();
    QVERIFY(sameImage(canvas.snapshot(), picture));
}

// --- Merging

void tst_Selection::mergeWithoutPieceDoesNothing()
{
    PictureCanvas canvas(picture);
    SignalRecorder recorder;
    watchAll(recorder, canvas);
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
    watchAll(recorder, canvas);
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

// --- Menus

void tst_Selection::menuFollowsSelectionAndClipboard()
{
    PictureCanvas canvas(picture);
    const QMenu* menu = canvas.contextMenu();
    const QMenu* itemMenu = canvas.pasteLabel()->menu();
    QCOMPARE(enabledActions(menu), "000");
    QCOMPARE(enabledActions(itemMenu), "110");
    canvas.setSelection(area);
    QCOMPARE(enabledActions(menu), "110");
    canvas.copy();
    QCOMPARE(enabledActions(menu), "111");
    QCOMPARE(enabledActions(itemMenu), "111");
    canvas.mergePastePixmap();
    QCOMPARE(enabledActions(menu), "001");
    canvas.slotClipBoard(false);
    QCOMPARE(enabledActions(menu), "000");
    QCOMPARE(enabledActions(itemMenu), "110");
    canvas.slotSelection(true);
    QCOMPARE(enabledActions(menu), "110");
}

void tst_Selection::menuActionsWork()
{
    PictureCanvas canvas(picture);
    const QList<QAction*> actions = canvas.contextMenu()->actions();
    canvas.setSelection(area);
    actions[1]->trigger();
    QVERIFY(sameImage(clipboardImage(), picture.copy(area)));
    QVERIFY(canvas.isFloating());
    actions[0]->trigger();
    QVERIFY(!canvas.isFloating());
    QVERIFY(!canvas.hasSelection());
    actions[2]->trigger();
    QVERIFY(canvas.isFloating());
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(QPoint(0, 0), area.size()));
}

void tst_Selection::itemsMenuReachesTheCanvas()
{
    PictureCanvas canvas(picture);
    const QList<QAction*> actions = canvas.pasteLabel()->menu()->actions();
    canvas.setSelection(area);
    actions[0]->trigger();
    QVERIFY(sameImage(clipboardImage(), picture.copy(area)));
    QVERIFY(canvas.isFloating());
    actions[1]->trigger();
    QVERIFY(!canvas.isFloating());
    actions[2]->trigger();
    QVERIFY(canvas.isFloating());
}

void tst_Selection::menusOpenAndWorkByKeyboard()
{
    PictureCanvas canvas(picture);
    canvas.show();
    setClipboard(sheet(QSize(8, 6), Qt::red));
    canvas.slotClipBoard(true);
    const auto menuKey = [&canvas] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                canvas.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&canvas, &event);
    };
    menuKey();
    QVERIFY(canvas.contextMenu()->isVisible());
    QTest::keyClick(canvas.contextMenu(), Qt::Key_Down); // Paste, the only one enabled
    QTest::keyClick(canvas.contextMenu(), Qt::Key_Return);
    QVERIFY(!canvas.contextMenu()->isVisible());
    QVERIFY(canvas.isFloating());

    menuKey(); // now the piece's own
    QMenu* itemMenu = canvas.pasteLabel()->menu();
    QVERIFY(itemMenu->isVisible());
    QVERIFY(!canvas.contextMenu()->isVisible());
    QTest::keyClick(itemMenu, Qt::Key_Down);
    QTest::keyClick(itemMenu, Qt::Key_Down); // Cut
    QTest::keyClick(itemMenu, Qt::Key_Return);
    QVERIFY(!canvas.isFloating());
}

void tst_Selection::menuWorksByMouse()
{
    PictureCanvas canvas(picture);
    canvas.show();
    canvas.setSelection(area);
    support::Gestures(canvas).press({2, 2}, Qt::RightButton);
    QMenu* menu = canvas.contextMenu();
    QVERIFY(menu->isVisible());
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(menu->actions().constFirst()).center());
    QVERIFY(!menu->isVisible());
    QVERIFY(!canvas.isFloating());
    QVERIFY(sameImage(canvas.merged(), filled(picture, area, Qt::white)));
}

int main(int argc, char** argv)
{
    return support::run<tst_Selection>(argc, argv);
}

#include "tst_Selection.moc"
