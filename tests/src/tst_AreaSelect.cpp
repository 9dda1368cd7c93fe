#include "ToolFixtures.h"

using fixtures::Desk;
using fixtures::toggled;
using support::sameImage;

class tst_AreaSelect : public support::TestCase
{
    Q_OBJECT

private slots:
    void cursorIsACross();
    void dragSelectsUpToTheRelease();
    void dragOutsideIsLimitedToTheCanvas_data();
    void dragOutsideIsLimitedToTheCanvas();
    void draggedUpAndLeft();
    void frameFollowsTheMovesAndLeavesNothing();
    void frameIsDashed();
    void framesOutsideLeaveNothing();
    void rightButtonStartsNothing();
    void rightReleaseKeepsTheDrag();
    void everyEventInEveryState_data();
    void everyEventInEveryState();
    void rightPressKeepsTheAnchor();
    void tapKeepsTheAnchorForTheNextDrag();
    void moveWithoutPressShowsNothing();
    void releaseWithoutPressSelectsNothing();
    void selectAllTakesTheWholeCanvas_data();
    void selectAllTakesTheWholeCanvas();
    void selectAllLeavesNoFrame();
    void selectAllDuringADragDoesNothing();
    void selectAllAfterATapTakesTheWholeCanvas();
    void selectAllMergesAFloatingPieceFirst();
    void selectionMergesAFloatingPieceFirst();
    void leavingTheToolDropsTheSelection();
    void leavingTheToolEndsADrag();
    void zoomKeepsTheFrame();
    void timerTogglesTheFrame();
    void disableSelectionTakesTheFrameAway_data();
    void disableSelectionTakesTheFrameAway();
    void selectionSignalDisables();
    void inactiveToolDoesNothing();

private:
    static QImage framed(const QImage& image, const QRect& rect);
};

// The frame that the pen draws, inverted; its look is frameIsDashed()'s business.
QImage tst_AreaSelect::framed(const QImage& image, const QRect& rect)
{
    return toggled(image, 0, [&](QPainter& painter) {
        QPen pen(Qt::white, 0, Qt::DashLine, Qt::SquareCap, Qt::MiterJoin);
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    });
}

void tst_AreaSelect::cursorIsACross()
{
    const Desk desk(fixtures::AreaSelect);
    QCOMPARE(desk.canvas.cursor().shape(), Qt::CrossCursor);
}

void tst_AreaSelect::dragSelectsUpToTheRelease()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.stylus.drag({{10, 10}, {30, 20}, {50, 40}});
    QVERIFY(desk.canvas.hasSelection());
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(10, 10), QPoint(49, 39)));
    QVERIFY(desk.canvas.isFloating());
    QVERIFY(sameImage(desk.canvas.pasteLabel()->getImage(), desk.base.copy(10, 10, 40, 30)));
    QVERIFY(sameImage(desk.canvas.shown(), support::filled(desk.base, QRect(10, 10, 40, 30), Qt::white)));
    QVERIFY(!desk.canvas.isModified());
}

void tst_AreaSelect::dragOutsideIsLimitedToTheCanvas_data()
{
    QTest::addColumn<QPoint>("release");
    QTest::addColumn<QRect>("selection");
    QTest::newRow("right") << QPoint(200, 40) << QRect(QPoint(10, 10), QPoint(79, 39));
    QTest::newRow("bottom") << QPoint(50, 60) << QRect(QPoint(10, 10), QPoint(49, 59));
    QTest::newRow("one beyond") << QPoint(81, 61) << QRect(QPoint(10, 10), QPoint(79, 59));
    QTest::newRow("left") << QPoint(0, 40) << QRect(QPoint(0, 10), QPoint(10, 39));
    QTest::newRow("far left and up") << QPoint(-50, -50) << QRect(QPoint(0, 0), QPoint(10, 10));
}

void tst_AreaSelect::dragOutsideIsLimitedToTheCanvas()
{
    QFETCH(const QPoint, release);
    QFETCH(const QRect, selection);
    Desk desk(fixtures::AreaSelect);
    desk.stylus.drag({{10, 10}, release});
    QCOMPARE(desk.canvas.selection(), selection);
    desk.canvas.mergePastePixmap();
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_AreaSelect::draggedUpAndLeft()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.stylus.drag({{50, 40}, {10, 20}});
    // From the anchor to one before the release, which the canvas puts in order.
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(9, 19), QPoint(50, 40)));
    QVERIFY(sameImage(desk.canvas.pasteLabel()->getImage(), desk.base.copy(9, 19, 42, 22)));
}

void tst_AreaSelect::frameFollowsTheMovesAndLeavesNothing()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.stylus.press({10, 10});
    QVERIFY(desk.isUntouched());
    for (const QPoint to : {QPoint(50, 40), QPoint(30, 50), QPoint(70, 20)}) {
        desk.stylus.move(to);
        QVERIFY(
            sameImage(desk.canvas.shown(), framed(desk.start, QRect(QPoint(10, 10), to - QPoint(1, 1)))));
    }
    desk.stylus.move({5, 4});
    QVERIFY(sameImage(desk.canvas.shown(), framed(desk.start, QRect(QPoint(6, 5), QPoint(10, 10)))));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    desk.stylus.move({10, 10});
    QVERIFY(desk.isUntouched());
}

void tst_AreaSelect::frameIsDashed()
{
    Desk desk(fixtures::AreaSelect);
    desk.stylus.press({10, 10});
    desk.stylus.move({60, 50});
    const QImage image = desk.canvas.shown();
    QCOMPARE(support::inkBounds(image), QRect(QPoint(10, 10), QPoint(59, 49)));
    int dark = 0;
    for (int x = 10; x < 60; ++x)
        dark += image.pixelColor(x, 10) == QColor(Qt::black);
    QVERIFY(dark > 25 && dark < 50);
    QCOMPARE(support::inkCount(image.copy(11, 11, 48, 38)), 0);
}

void tst_AreaSelect::framesOutsideLeaveNothing()
{
    QRandomGenerator random(7);
    for (int drag = 0; drag < 100; ++drag) {
        Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)), 92);
        const QPoint anchor(random.bounded(-20, 100), random.bounded(-20, 80));
        desk.stylus.press(anchor);
        for (int i = 0; i < 4; ++i)
            desk.stylus.move({random.bounded(-40, 120), random.bounded(-40, 100)});
        desk.stylus.move(anchor);
        QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    }
}

void tst_AreaSelect::rightButtonStartsNothing()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    fixtures::Stylus stylus(desk.tool());
    stylus.press({10, 10}, Qt::RightButton);
    stylus.move({50, 40});
    stylus.release({50, 40}, Qt::RightButton);
    QVERIFY(desk.isUntouched());
    QVERIFY(!desk.canvas.hasSelection());
}

void tst_AreaSelect::rightReleaseKeepsTheDrag()
{
    Desk desk(fixtures::AreaSelect);
    fixtures::Stylus stylus(desk.tool());
    stylus.press({10, 10});
    stylus.move({50, 40});
    const QImage frame = desk.canvas.shown();
    stylus.release({50, 40}, Qt::RightButton);
    QVERIFY(!desk.canvas.hasSelection());
    QVERIFY(sameImage(desk.canvas.shown(), frame));
    stylus.move({60, 50});
    stylus.release({60, 50});
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(10, 10), QPoint(59, 49)));
    desk.canvas.cut();
    QVERIFY(sameImage(desk.canvas.shown(), support::filled(desk.start, QRect(10, 10, 50, 40), Qt::white)));
}

void tst_AreaSelect::everyEventInEveryState_data()
{
    enum State { Idle, Anchored, Dragging };
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("event");
    QTest::addColumn<QRect>("selected"); // by the event and a drag from (30, 30) to (50, 40) after it
    const QRect fromPress(QPoint(30, 30), QPoint(49, 39));
    const QRect fromAnchor(QPoint(10, 10), QPoint(49, 39));
    const QRect atOnce(QPoint(10, 10), QPoint(24, 24));
    const auto row = [](const char* name, State state, const char* event, const QRect& selected) {
        QTest::newRow(name) << int(state) << QByteArray(event) << selected;
    };
    row("idle, nothing", Idle, "", fromPress);
    row("idle, right press", Idle, "right press", fromPress);
    row("idle, right release", Idle, "right release", fromPress);
    row("idle, move", Idle, "move", fromPress);
    row("idle, left release", Idle, "left release", fromPress);
    row("anchored, nothing", Anchored, "", fromAnchor);
    row("anchored, right press", Anchored, "right press", fromAnchor);
    row("anchored, right release", Anchored, "right release", fromAnchor);
    row("anchored, move", Anchored, "move", fromAnchor);
    row("anchored, left release", Anchored, "left release", fromAnchor);
    row("dragging, left press", Dragging, "left press", fromAnchor);
    row("dragging, right press", Dragging, "right press", fromAnchor);
    row("dragging, right release", Dragging, "right release", fromAnchor);
    row("dragging, move", Dragging, "move", fromAnchor);
    row("dragging, left release", Dragging, "left release", atOnce);
}

void tst_AreaSelect::everyEventInEveryState()
{
    QFETCH(const int, state);
    QFETCH(const QByteArray, event);
    QFETCH(const QRect, selected);
    constexpr QPoint at(25, 25);
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    fixtures::Stylus stylus(desk.tool());
    if (state > 0)
        stylus.press({10, 10});
    if (state == 1)
        stylus.release({10, 10});
    if (event == "move")
        stylus.move(at);
    else if (!event.isEmpty()) {
        const Qt::MouseButton button = event.startsWith("left") ? Qt::LeftButton : Qt::RightButton;
        event.endsWith("press") ? stylus.press(at, button) : stylus.release(at, button);
    }
    if (state < 2) {
        QVERIFY(desk.isUntouched());
        stylus.press({30, 30});
    }
    if (!desk.canvas.hasSelection()) {
        stylus.move({50, 40});
        stylus.release({50, 40});
    }
    QCOMPARE(desk.canvas.selection(), selected);
    desk.canvas.cut();
    QVERIFY(sameImage(desk.canvas.shown(), support::filled(desk.start, selected, Qt::white)));
}

void tst_AreaSelect::rightPressKeepsTheAnchor()
{
    Desk desk(fixtures::AreaSelect);
    fixtures::Stylus stylus(desk.tool());
    stylus.press({10, 10});
    stylus.press({30, 30}, Qt::RightButton);
    stylus.move({50, 40});
    stylus.release({50, 40});
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(10, 10), QPoint(49, 39)));
}

void tst_AreaSelect::tapKeepsTheAnchorForTheNextDrag()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.stylus.click({10, 10});
    QVERIFY(desk.isUntouched());
    QVERIFY(!desk.canvas.hasSelection());
    desk.stylus.press({30, 30});
    desk.stylus.move({50, 40});
    QVERIFY(sameImage(desk.canvas.shown(), framed(desk.start, QRect(QPoint(10, 10), QPoint(49, 39)))));
    desk.stylus.release({50, 40});
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(10, 10), QPoint(49, 39)));
}

void tst_AreaSelect::moveWithoutPressShowsNothing()
{
    Desk desk(fixtures::AreaSelect);
    desk.stylus.click({10, 10});
    fixtures::Stylus(desk.tool()).move({50, 40});
    QVERIFY(desk.isUntouched());
}

void tst_AreaSelect::releaseWithoutPressSelectsNothing()
{
    Desk desk(fixtures::AreaSelect);
    fixtures::Stylus(desk.tool()).release({50, 40});
    QVERIFY(desk.isUntouched());
    QVERIFY(!desk.canvas.hasSelection());
}

void tst_AreaSelect::selectAllTakesTheWholeCanvas_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("piece");
    QTest::newRow("50 %") << 50 << QSize(40, 30) << QSize(80, 60);
    QTest::newRow("100 %") << 100 << QSize(80, 60) << QSize(80, 60);
    QTest::newRow("200 %") << 200 << QSize(160, 120) << QSize(82, 62);
}

void tst_AreaSelect::selectAllTakesTheWholeCanvas()
{
    QFETCH(const int, zoom);
    QFETCH(const QSize, screen);
    QFETCH(const QSize, piece);
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)), zoom);
    desk.as<KORVA_AreaSelect>().selectAll();
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(0, 0), screen));
    const QImage lifted = desk.canvas.pasteLabel()->getImage().toImage();
    QCOMPARE(lifted.size(), piece);
    QVERIFY(sameImage(lifted.copy(0, 0, 80, 60), desk.base));
    QVERIFY(!desk.canvas.isModified());
}

void tst_AreaSelect::selectAllLeavesNoFrame()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.as<KORVA_AreaSelect>().selectAll();
    QVERIFY(sameImage(desk.canvas.shown(), support::sheet(QSize(80, 60))));
    desk.canvas.mergePastePixmap();
    QVERIFY(sameImage(desk.canvas.shown(), desk.base));
    desk.stylus.drag({{10, 10}, {50, 40}}); // and the next drag has an anchor of its own
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(10, 10), QPoint(49, 39)));
}

void tst_AreaSelect::selectAllDuringADragDoesNothing()
{
    Desk desk(fixtures::AreaSelect);
    desk.stylus.press({10, 10});
    desk.stylus.move({50, 40});
    const QImage frame = desk.canvas.shown();
    desk.as<KORVA_AreaSelect>().selectAll();
    QVERIFY(!desk.canvas.hasSelection());
    QVERIFY(sameImage(desk.canvas.shown(), frame));
}

void tst_AreaSelect::selectAllAfterATapTakesTheWholeCanvas()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.stylus.press({10, 10});
    desk.stylus.release({10, 10});
    desk.as<KORVA_AreaSelect>().selectAll();
    QCOMPARE(desk.canvas.selection(), QRect(0, 0, 80, 60));
    QVERIFY(sameImage(desk.canvas.pasteLabel()->getImage(), desk.base));
}

void tst_AreaSelect::selectAllMergesAFloatingPieceFirst()
{
    Desk desk(fixtures::AreaSelect);
    fixtures::setClipboard(support::sheet(QSize(8, 8), Qt::red));
    desk.canvas.paste();
    desk.as<KORVA_AreaSelect>().selectAll();
    QVERIFY(sameImage(desk.canvas.pasteLabel()->getImage(),
                      support::filled(desk.base, QRect(0, 0, 8, 8), Qt::red)));
}

void tst_AreaSelect::selectionMergesAFloatingPieceFirst()
{
    Desk desk(fixtures::AreaSelect);
    fixtures::setClipboard(support::sheet(QSize(8, 8), Qt::red));
    fixtures::Stylus stylus(desk.tool());
    stylus.press({30, 30});
    stylus.move({2, 2});
    desk.canvas.paste();
    stylus.release({2, 2});
    QCOMPARE(desk.canvas.selection(), QRect(QPoint(1, 1), QPoint(30, 30)));
    QCOMPARE(desk.canvas.pasteLabel()->getImage().toImage().pixelColor(0, 0), QColor(Qt::red));
    desk.canvas.mergePastePixmap();
    QVERIFY(sameImage(desk.canvas.shown(), support::filled(desk.base, QRect(0, 0, 8, 8), Qt::red)));
}

void tst_AreaSelect::leavingTheToolDropsTheSelection()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.stylus.drag({{10, 10}, {50, 40}});
    support::SignalRecorder recorder;
    recorder.watch(&desk.canvas, qOverload<bool>(&KORVA_Canvas::selection));
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(!desk.canvas.hasSelection());
    QCOMPARE(desk.canvas.selection(), QRect());
    QCOMPARE(recorder.taken(), QStringList({"selection(false)", "selection(false)"})); // merged, cleared
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_AreaSelect::leavingTheToolEndsADrag()
{
    Desk desk(fixtures::AreaSelect);
    desk.stylus.press({10, 10});
    desk.stylus.move({50, 40});
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(desk.isUntouched());
    desk.canvas.setZoom(200);
    desk.canvas.setZoom(100);
    desk.manager.setCurrentTool(fixtures::AreaSelect);
    QVERIFY(desk.isUntouched());
}

void tst_AreaSelect::zoomKeepsTheFrame()
{
    Desk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)));
    desk.stylus.press({10, 10});
    desk.stylus.move({50, 40});
    desk.canvas.setZoom(200);
    QVERIFY(sameImage(desk.canvas.shown(),
                      framed(support::scaled(desk.base, 200), QRect(QPoint(10, 10), QPoint(49, 39)))));
    desk.stylus.release({60, 50});
    desk.canvas.mergePastePixmap();
    QVERIFY(sameImage(desk.canvas.shown(), support::scaled(desk.base, 200)));
}

void tst_AreaSelect::timerTogglesTheFrame()
{
    Desk desk(fixtures::AreaSelect);
    desk.stylus.press({10, 10});
    desk.stylus.move({50, 40});
    const QImage frame = desk.canvas.shown();
    QTimerEvent tick(1);
    QCoreApplication::sendEvent(&desk.tool(), &tick);
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QCoreApplication::sendEvent(&desk.tool(), &tick);
    QVERIFY(sameImage(desk.canvas.shown(), frame));
}

void tst_AreaSelect::disableSelectionTakesTheFrameAway_data()
{
    QTest::addColumn<int>("ticks");
    QTest::newRow("not shown by a timer") << 0;
    QTest::newRow("shown by a timer") << 1;
}

void tst_AreaSelect::disableSelectionTakesTheFrameAway()
{
    QFETCH(const int, ticks);
    Desk desk(fixtures::AreaSelect);
    desk.stylus.drag({{10, 10}, {50, 40}});
    const QImage without = desk.canvas.shown();
    QTimerEvent tick(1);
    for (int i = 0; i < ticks; ++i)
        QCoreApplication::sendEvent(&desk.tool(), &tick);
    QCOMPARE(desk.canvas.shown() == without, ticks == 0);
    const int timer = desk.tool().startTimer(10000);
    desk.as<KORVA_AreaSelect>().disableSelection();
    QVERIFY(sameImage(desk.canvas.shown(), without));
    for (const auto& running : QAbstractEventDispatcher::instance()->registeredTimers(&desk.tool()))
        QVERIFY(running.timerId != timer);
}

void tst_AreaSelect::selectionSignalDisables()
{
    Desk desk(fixtures::AreaSelect);
    desk.stylus.drag({{10, 10}, {50, 40}});
    const QImage without = desk.canvas.shown();
    QTimerEvent tick(1);
    QCoreApplication::sendEvent(&desk.tool(), &tick);
    emit desk.canvas.selection(true);
    QVERIFY(desk.canvas.shown() != without);
    emit desk.canvas.selection(false);
    QVERIFY(sameImage(desk.canvas.shown(), without));
}

void tst_AreaSelect::inactiveToolDoesNothing()
{
    Desk desk(fixtures::Pencil);
    KORVA_Tool& tool = *desk.manager.tool(fixtures::AreaSelect);
    fixtures::Stylus stylus(tool);
    stylus.press({5, 5});
    stylus.move({15, 5});
    stylus.release({15, 5});
    qobject_cast<KORVA_AreaSelect*>(&tool)->selectAll();
    QTimerEvent tick(1);
    QCoreApplication::sendEvent(&tool, &tick);
    QVERIFY(desk.isUntouched());
    QVERIFY(!desk.canvas.hasSelection());
}

int main(int argc, char** argv)
{
    return support::run<tst_AreaSelect>(argc, argv);
}

#include "tst_AreaSelect.moc"
