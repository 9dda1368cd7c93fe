#include "Fixtures.h"
#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"

using namespace fixtures;
using namespace support;

namespace {

constexpr QSize size(60, 50);
const QImage picture = mosaic(size);
const QRect area(10, 20, 16, 12); // what is lifted out of it

} // namespace

class tst_Paste : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();

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
    void menuFollowsSelectionAndClipboard();
    void menuActionsWork();
    void itemsMenuReachesTheCanvas();
    void menusOpenAndWorkByKeyboard();
    void menuWorksByMouse();
};

void tst_Paste::init()
{
    TestCase::init();
    QGuiApplication::clipboard()->clear();
}

// --- Paste and stamp

void tst_Paste::pasteFloatsAtTheOrigin()
{
    PictureCanvas canvas(picture);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.paste();
    QCOMPARE(recorder.taken(), QStringList("modified()"));
    QVERIFY(canvas.isFloating());
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(0, 0, 8, 6));
    QVERIFY(!canvas.hasSelection());
    QVERIFY(sameImage(canvas.shown(), picture)); // not yet part of it
}

void tst_Paste::pasteTwiceMergesTheFirst()
{
    PictureCanvas canvas(picture);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    canvas.paste();
    canvas.pasteLabel()->move(20, 10);
    setClipboard(sheet(QSize(5, 5), Qt::blue));
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.paste();
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "modified()", "modified()"}));
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(0, 0, 5, 5));
    const QImage withFirst = filled(picture, QRect(20, 10, 8, 6), Qt::red);
    QVERIFY(sameImage(canvas.shown(), withFirst));
    QVERIFY(sameImage(canvas.merged(), filled(withFirst, QRect(0, 0, 5, 5), Qt::blue)));
}

void tst_Paste::pasteScrollsIntoSight_data()
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

void tst_Paste::pasteScrollsIntoSight()
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

void tst_Paste::pasteOfNothingStillSnapshotsAndMerges()
{
    PictureCanvas canvas(picture);
    canvas.clearCanvas(Qt::blue);
    canvas.setSelection(area);
    canvas.pasteLabel()->move(0, 0);
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.paste();
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "modified()"}));
    QVERIFY(!canvas.isFloating());
    const QImage merged =
        filled(filled(sheet(size, Qt::blue), area, Qt::white), QRect(QPoint(0, 0), area.size()), Qt::blue);
    QVERIFY(sameImage(canvas.merged(), merged));
    QVERIFY(sameImage(canvas.snapshot(), merged));
}

void tst_Paste::pasteAtAPlace()
{
    PictureCanvas canvas(picture);
    canvas.setZoom(200);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.paste(50, 40); // in picture coordinates, whatever the zoom; beyond the edge it is cut off
    QCOMPARE(recorder.taken(), QStringList("modified()"));
    const QImage expected = filled(picture, QRect(50, 40, 8, 6), Qt::red);
    QVERIFY(sameImage(canvas.shown(), support::scaled(expected, 200)));
    QVERIFY(sameImage(canvas.merged(), expected));
    canvas.paste(-4, 47);
    QVERIFY(sameImage(canvas.merged(), filled(expected, QRect(-4, 47, 8, 6), Qt::red)));
    QVERIFY(sameImage(canvas.snapshot(), expected));
}

void tst_Paste::pasteAtAPlaceKeepsTheFloatingPiece()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    setClipboard(sheet(QSize(8, 6), Qt::red));
    canvas.paste(40, 2);
    QVERIFY(canvas.isFloating());
    QVERIFY(
        sameImage(canvas.shown(), filled(filled(picture, area, Qt::white), QRect(40, 2, 8, 6), Qt::red)));
}

void tst_Paste::pasteAtAPlaceOfNothingDoesNothing()
{
    PictureCanvas canvas(picture);
    canvas.clearCanvas(Qt::blue);
    canvas.clearModified();
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.paste(3, 4);
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(!canvas.isModified());
    QVERIFY(sameImage(canvas.snapshot(), picture)); // the one of before
}

void tst_Paste::transparentPixelsLeaveThePictureAlone()
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

void tst_Paste::stampMergesAnEarlierPieceAndFloats()
{
    PictureCanvas canvas(picture);
    canvas.setSelection(area);
    canvas.pasteLabel()->move(30, 5);
    QPixmap stamp = QPixmap::fromImage(sheet(QSize(7, 7), Qt::red));
    SignalRecorder recorder;
    fixtures::watchSelection(recorder, canvas);
    canvas.insertStamp(stamp);
    QCOMPARE(recorder.taken(), QStringList({"modified()", "selection(false)", "modified()"}));
    QCOMPARE(canvas.pasteLabel()->geometry(), QRect(0, 0, 7, 7));
    const QImage merged = overlaid(filled(picture, area, Qt::white), QPoint(30, 5), picture.copy(area));
    QVERIFY(sameImage(canvas.shown(), merged));
    QVERIFY(sameImage(canvas.merged(), filled(merged, QRect(0, 0, 7, 7), Qt::red)));
}

void tst_Paste::stampTakesNoSnapshot()
{
    PictureCanvas canvas(picture);
    canvas.clearCanvas(Qt::blue);
    QPixmap stamp = QPixmap::fromImage(sheet(QSize(7, 7), Qt::red));
    canvas.insertStamp(stamp);
    canvas.pasteLabel()->hide();
    QVERIFY(sameImage(canvas.snapshot(), picture));
}

// --- Menus

void tst_Paste::menuFollowsSelectionAndClipboard()
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

void tst_Paste::menuActionsWork()
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

void tst_Paste::itemsMenuReachesTheCanvas()
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

void tst_Paste::menusOpenAndWorkByKeyboard()
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

void tst_Paste::menuWorksByMouse()
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
    return support::run<tst_Paste>(argc, argv);
}

#include "tst_Paste.moc"
