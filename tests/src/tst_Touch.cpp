#include "TouchFixtures.h"

using fixtures::goOnAlike;
using fixtures::same;
using fixtures::ToolID;
using fixtures::TouchDesk;
using fixtures::undoAlike;
using fixtures::Work;

namespace {

const QList<QPoint> path{{30, 40}, {32, 41}, {50, 60}, {80, 55}, {90, 20}};

void toolsAndZooms(std::initializer_list<Work> works)
{
    QTest::addColumn<ToolID>("tool");
    QTest::addColumn<int>("zoomRow");
    QTest::addColumn<Work>("work");
    for (const auto& [tool, toolName] : fixtures::allTools) {
        for (int zoomRow = 0; zoomRow < 4; ++zoomRow) {
            for (const Work work : works) {
                QTest::addRow("%s, row %d, %s", toolName, zoomRow, fixtures::works[work].second)
                    << tool << zoomRow << work;
            }
        }
    }
}

double distance(QPointF a, QPointF b)
{
    return QLineF(a, b).length();
}

} // namespace

/// Fingers on the canvas, from the window on: what one draws, what two do, and what leaves no mark.
class tst_Touch : public support::TestCase
{
    Q_OBJECT

private slots:
    void aFingerDrawsAsTheMouse_data() { toolsAndZooms({fixtures::Nothing, fixtures::Lifted}); }
    void aFingerDrawsAsTheMouse();
    void aTapIsATap_data() { toolsAndZooms({fixtures::Nothing, fixtures::Undone}); }
    void aTapIsATap();
    void aFingerThatStaysIsDown();
    void typingGoesOnUntilTheFingerIsLifted();
    void aFingerMovesAndStretchesThePiece();

    void aSecondFingerTakesTheStrokeBack_data();
    void aSecondFingerTakesTheStrokeBack();
    void moreStepsOfUndoStay_data();
    void moreStepsOfUndoStay();
    void theFirstStrokeOfAllIsTakenBack();
    void aPieceThatIsPutBackCanBeDropped();
    void theHostHearsThatItIsTakenBack();
    void aCancelledTouchLeavesNoMark_data() { toolsAndZooms({fixtures::Nothing, fixtures::Pasted}); }
    void aCancelledTouchLeavesNoMark();
    void randomSequencesLeaveNoTrace();
    void whatTheHostChangesStays();
    void whatIsSavedStays();
    void nothingIsDrawnUntilAllAreLifted();

    void twoFingersPan();
    void twoFingersPinch_data();
    void twoFingersPinch();
    void whatLiesBetweenTheFingersStays();
    void aPinchThatReachesNoStepChangesNothing();
    void largePicturesPinchUpToRealSize();

    void aLongPressOpensTheMenu();
    void aLongPressOpensThePiecesMenu();
    void aLongPressTakesTheDotBack();
    void noMenuWhileDrawing();
    void noMenuForTheMouse();

    void handlesReachForAFinger_data();
    void handlesReachForAFinger();
    void smallPiecesCanBeMoved();
    void handlesStayForTheMouse();

    void aFingerPansWhereTheHostSaysSo();
    void aFingerThatPansTakesHoldOfThePiece();
    void aHeldMouseKeepsTheTool();
    void whatIsMadeOfTouchesDoesNotComeTwice();
};

// --- One finger

void tst_Touch::aFingerDrawsAsTheMouse()
{
    QFETCH(const ToolID, tool);
    QFETCH(const int, zoomRow);
    QFETCH(const Work, work);
    TouchDesk touched(tool, zoomRow, work);
    TouchDesk expected(tool, zoomRow, work);
    QList<QPoint> points;
    for (const QPoint& point : path)
        points << (work == fixtures::Lifted ? touched.besidePiece() + (point - path.first()) / 4 : point);

    touched.fingers.drag(points);
    support::Gestures mouse(expected.canvas());
    mouse.press(points.first());
    for (const QPoint& point : points.mid(1))
        mouse.move(point);
    mouse.release(points.last());

    QCOMPARE(touched.log.taken(), expected.log.taken());
    QVERIFY(same(touched.state(), expected.state()));
    QVERIFY(undoAlike(touched, expected));
}

void tst_Touch::aTapIsATap()
{
    QFETCH(const ToolID, tool);
    QFETCH(const int, zoomRow);
    QFETCH(const Work, work);
    TouchDesk touched(tool, zoomRow, work);
    TouchDesk expected(tool, zoomRow, work);
    touched.fingers.tap({30, 40});
    support::Gestures(expected.canvas()).click({30, 40});
    QCOMPARE(touched.log.taken(), expected.log.taken());
    QVERIFY(same(touched.state(), expected.state()));
    QVERIFY(undoAlike(touched, expected));
}

void tst_Touch::aFingerThatStaysIsDown()
{
    TouchDesk desk;
    const TouchDesk::State before = desk.state();
    desk.fingers.press(0, {30, 40});
    QVERIFY(same(desk.state(), before)); // a second one may follow
    QTRY_VERIFY_WITH_TIMEOUT(desk.editor.isModified(), 10 * fixtures::secondFinger);
    desk.fingers.release(0);
    QCOMPARE(desk.log.taken(), QStringList({"modified()", "canUndo(true)", "canRedo(false)"}));
}

void tst_Touch::typingGoesOnUntilTheFingerIsLifted()
{
    TouchDesk desk(fixtures::Text, 1, fixtures::OpenText);
    const TouchDesk::State before = desk.state();
    desk.fingers.press(0, {90, 90});
    QTest::qWait(2 * fixtures::secondFinger);
    QVERIFY(same(desk.state(), before)); // the text is not committed
    desk.fingers.release(0);
    QVERIFY(!desk.canvas().getCurrentTool()->getTextKey());
    QVERIFY(desk.canvas().getCurrentTool()->takesText()); // another one is open
}

void tst_Touch::aFingerMovesAndStretchesThePiece()
{
    for (const auto& [from, expected] : {std::pair(QPoint(40, 35), QRect(40, 30, 40, 30)),
                                         std::pair(QPoint(59, 49), QRect(20, 20, 60, 40))}) {
        TouchDesk desk(fixtures::Pencil, 1, fixtures::Pasted);
        desk.fingers.drag({from, from + QPoint(8, 4), from + QPoint(20, 10)});
        QCOMPARE(desk.piece().geometry(), expected);
    }
}

// --- Taken back

void tst_Touch::aSecondFingerTakesTheStrokeBack_data()
{
    toolsAndZooms({fixtures::Nothing, fixtures::Drawn, fixtures::Undone, fixtures::Lifted, fixtures::Pasted,
                   fixtures::OpenText});
}

void tst_Touch::aSecondFingerTakesTheStrokeBack()
{
    QFETCH(const ToolID, tool);
    QFETCH(const int, zoomRow);
    QFETCH(const Work, work);
    TouchDesk touched(tool, zoomRow, work);
    TouchDesk expected(tool, zoomRow, work);
    // Beside a piece, which the stroke merges, and on it.
    for (const QPoint& from : {touched.besidePiece(), touched.at({40, 35})}) {
        touched.fingers.press(0, from);
        touched.fingers.move(0, from - QPoint(4, 10));
        touched.fingers.move(0, from - QPoint(15, 12));
        touched.fingers.press(1, from - QPoint(18, 6));
        QVERIFY(same(touched.state(), expected.state()));
        touched.fingers.release(1);
        touched.fingers.release(0);
        QVERIFY(same(touched.state(), expected.state()));
    }
    QVERIFY(undoAlike(touched, expected));
}

void tst_Touch::moreStepsOfUndoStay_data()
{
    QTest::addColumn<Work>("work");
    for (const auto& [work, name] : fixtures::works)
        QTest::newRow(name) << work;
}

void tst_Touch::moreStepsOfUndoStay()
{
    QFETCH(const Work, work);
    constexpr int steps = 20;
    TouchDesk touched(fixtures::Pencil, 1, work, steps);
    TouchDesk expected(fixtures::Pencil, 1, work, steps);
    for (TouchDesk* each : {&touched, &expected}) {
        support::Gestures mouse(each->canvas());
        mouse.drag({{5, 150}, {30, 160}});
        mouse.drag({{5, 160}, {30, 150}});
        each->editor.undo();
    }
    QCoreApplication::processEvents(); // what is possible is told now
    touched.fingers.press(0, touched.besidePiece());
    touched.fingers.move(0, touched.besidePiece() + QPoint(20, 10));
    QCoreApplication::processEvents();
    touched.fingers.press(1, {20, 20});
    QCoreApplication::processEvents();
    QVERIFY(same(touched.state(), expected.state()));
    for (const auto step : {&KORVA_EditCanvas::undo, &KORVA_EditCanvas::redo}) {
        for (int i = 0; i < 5; ++i) {
            (touched.editor.*step)();
            (expected.editor.*step)();
            QVERIFY(same(touched.state(), expected.state()));
        }
    }
}

// Of an editor that has told nothing yet.
void tst_Touch::theFirstStrokeOfAllIsTakenBack()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    const QSignalSpy undo(&editor, &KORVA_EditCanvas::canUndo);
    const QSignalSpy redo(&editor, &KORVA_EditCanvas::canRedo);
    support::Fingers fingers(*editor.canvas());
    fingers.press(0, {30, 40});
    fingers.move(0, {60, 50});
    QCOMPARE(undo, QList<QVariantList>{{true}});
    fingers.press(1, {90, 90});
    QCOMPARE(undo, QList<QVariantList>({{true}, {false}}));
    QVERIFY(!redo.contains(QVariantList{true}));
}

// As if the stroke had never merged it: the drawing is that from before the piece, unmodified.
void tst_Touch::aPieceThatIsPutBackCanBeDropped()
{
    TouchDesk touched;
    TouchDesk expected;
    for (TouchDesk* each : {&touched, &expected}) {
        KORVA_Manners manners;
        manners.pieceKeys = true;
        each->editor.setManners(manners);
        each->canvas().setSelection(fixtures::pieceInPicture);
    }
    touched.fingers.press(0, touched.besidePiece());
    touched.fingers.move(0, touched.besidePiece() + QPoint(20, 10));
    QVERIFY(touched.piece().isHidden());
    touched.fingers.press(1, {20, 20});
    touched.fingers.release(1);
    touched.fingers.release(0);
    for (TouchDesk* each : {&touched, &expected}) {
        QVERIFY(!each->piece().isHidden());
        QTest::keyClick(&each->canvas(), Qt::Key_Escape);
        QVERIFY(each->piece().isHidden());
        QVERIFY(!each->editor.isModified());
    }
    QVERIFY(same(touched.state(), expected.state()));
}

void tst_Touch::theHostHearsThatItIsTakenBack()
{
    {
        TouchDesk desk(fixtures::Pencil, 1, fixtures::Undone);
        desk.fingers.press(0, {30, 40});
        desk.fingers.move(0, {60, 50});
        QCOMPARE(desk.log.taken(), QStringList({"modified()", "canUndo(true)", "canRedo(false)"}));
        desk.fingers.press(1, {90, 90});
        QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(true)", "strokeTakenBack()"}));
    }
    {
        TouchDesk desk(fixtures::Pencil, 1, fixtures::Lifted);
        desk.fingers.press(0, desk.besidePiece());
        desk.fingers.move(0, {150, 110});
        QVERIFY(desk.log.taken().contains("selection(false)"));
        desk.fingers.press(1, {90, 90});
        QCOMPARE(desk.log.taken(), QStringList({"selection(true)", "canUndo(false)", "strokeTakenBack()"}));
    }
}

void tst_Touch::aCancelledTouchLeavesNoMark()
{
    QFETCH(const ToolID, tool);
    QFETCH(const int, zoomRow);
    QFETCH(const Work, work);
    TouchDesk touched(tool, zoomRow, work);
    TouchDesk expected(tool, zoomRow, work);
    touched.fingers.press(0, touched.besidePiece());
    touched.fingers.move(0, touched.besidePiece() - QPoint(6, 5));
    touched.fingers.move(0, touched.besidePiece() - QPoint(10, 30));
    touched.fingers.cancel();
    touched.fingers.move(0, {70, 60});
    touched.fingers.release(0);
    QVERIFY(same(touched.state(), expected.state()));
    QVERIFY(undoAlike(touched, expected));
}

void tst_Touch::randomSequencesLeaveNoTrace()
{
    constexpr int sequences = 300;
    int taken = 0;
    for (quint32 seed = 1; seed <= sequences; ++seed) {
        QRandomGenerator random(seed);
        const auto tool = ToolID(random.bounded(8));
        const int zoomRow = random.bounded(4);
        const auto work = Work(random.bounded(6));
        TouchDesk touched(tool, zoomRow, work);
        TouchDesk expected(tool, zoomRow, work);
        int marks = 0;
        QObject::connect(&touched.editor, &KORVA_EditCanvas::strokeTakenBack, &touched.editor,
                         [&] { ++marks; });
        QPoint at;
        for (int sequence = random.bounded(1, 4); sequence > 0; --sequence) {
            const QRect seen = touched.canvas().visibleRegion().boundingRect();
            at = seen.topLeft() + QPoint(random.bounded(seen.width()), random.bounded(seen.height()));
            touched.fingers.press(0, at);
            for (int i = random.bounded(6); i > 0; --i)
                touched.fingers.move(0, at += QPoint(random.bounded(-12, 13), random.bounded(-12, 13)));
            if (random.bounded(2)) {
                const QWidget* viewport = touched.view().viewport();
                for (int finger = 1; finger <= random.bounded(1, 3); ++finger) {
                    const QPoint place(random.bounded(viewport->width()),
                                       random.bounded(viewport->height()));
                    touched.fingers.press(finger, touched.canvas().mapFrom(viewport, place));
                }
            }
            if (random.bounded(3) == 0 || touched.fingers.onScreen(1).isNull())
                touched.fingers.cancel();
            for (int finger = 2; finger >= 0; --finger) {
                if (!touched.fingers.onScreen(finger).isNull())
                    touched.fingers.release(finger);
            }
        }
        const QByteArray story = QString("seed %1: tool %2, zoom row %3, work %4")
                                     .arg(seed)
                                     .arg(tool)
                                     .arg(zoomRow)
                                     .arg(work)
                                     .toUtf8();
        QVERIFY2(same(touched.state(), expected.state()), story);
        QVERIFY2(undoAlike(touched, expected), story);
        taken += marks;
    }
    QVERIFY2(taken > sequences / 2, qPrintable(QString::number(taken))); // there was something to take back
}

void tst_Touch::whatTheHostChangesStays()
{
    const QImage other = support::mosaic(QSize(200, 170)).mirrored();
    TouchDesk desk;
    desk.fingers.press(0, {30, 40});
    desk.fingers.move(0, {60, 50});
    QPixmap picture = QPixmap::fromImage(other);
    desk.editor.setPixmap(&picture);
    desk.fingers.press(1, {90, 90});
    QVERIFY(support::sameImage(desk.editor.snapshot(), other));
    QVERIFY(!desk.log.taken().contains("strokeTakenBack()"));
}

void tst_Touch::whatIsSavedStays()
{
    TouchDesk desk;
    desk.fingers.press(0, {30, 40});
    desk.fingers.move(0, {60, 50});
    const QImage saved = desk.editor.snapshot();
    desk.editor.clearModified();
    desk.fingers.press(1, {90, 90});
    QVERIFY(support::sameImage(desk.editor.snapshot(), saved));
    QVERIFY(!desk.editor.hasChanges());
}

void tst_Touch::nothingIsDrawnUntilAllAreLifted()
{
    TouchDesk desk;
    const TouchDesk::State before = desk.state();
    desk.fingers.press(0, {30, 40});
    desk.fingers.press(1, {60, 60});
    desk.fingers.release(0);
    desk.fingers.move(1, {80, 80});
    desk.fingers.press(0, {20, 20});
    desk.fingers.release(1);
    desk.fingers.move(0, {50, 90});
    QTest::qWait(2 * fixtures::secondFinger);
    desk.fingers.release(0);
    QVERIFY(same(desk.state(), before));
    desk.fingers.drag({{30, 40}, {60, 60}});
    QVERIFY(desk.editor.isModified());
}

// --- Two fingers

void tst_Touch::twoFingersPan()
{
    TouchDesk desk(fixtures::Pencil, 3);
    const QPoint start(80, 70);
    desk.view().setContentsPos(start.x(), start.y());
    const QPoint middle = desk.canvas().mapFromGlobal(desk.view().viewport()->mapToGlobal(QPoint(100, 80)));
    desk.fingers.press(0, middle - QPoint(30, 0));
    desk.fingers.press(1, middle + QPoint(30, 0));
    for (int i = 1; i <= 5; ++i) {
        // The fingers' own places on the screen, whatever the canvas does below them.
        const QPoint left = desk.canvas().mapFromGlobal(desk.fingers.onScreen(0) + QPoint(-6, 4));
        const QPoint right = desk.canvas().mapFromGlobal(desk.fingers.onScreen(1) + QPoint(-6, 4));
        desk.fingers.move({{0, left}, {1, right}});
        QCOMPARE(QPoint(desk.view().contentsX(), desk.view().contentsY()), start + i * QPoint(6, -4));
    }
    QVERIFY(!desk.editor.isModified());
    QCOMPARE(desk.canvas().zoom(), 200);
}

void tst_Touch::twoFingersPinch_data()
{
    QTest::addColumn<int>("fromRow");
    QTest::addColumn<int>("from"); // between the fingers
    QTest::addColumn<QList<int>>("distances");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("row");
    QTest::newRow("not yet") << 1 << 60 << QList{70, 80, 89} << 100 << 1;
    QTest::newRow("one step") << 1 << 60 << QList{75, 91} << 150 << 2;
    QTest::newRow("two steps") << 1 << 60 << QList{91, 121} << 200 << 3;
    QTest::newRow("at once") << 1 << 60 << QList{121} << 200 << 3;
    QTest::newRow("no farther") << 1 << 20 << QList{60, 180} << 200 << 3;
    QTest::newRow("trembling") << 1 << 60 << QList{91, 88, 91, 85} << 150 << 2;
    QTest::newRow("back again") << 1 << 60 << QList{91, 59} << 100 << 1;
    QTest::newRow("smaller, not yet") << 1 << 120 << QList{100, 61} << 100 << 1;
    QTest::newRow("smaller") << 1 << 120 << QList{100, 59} << 50 << 0;
    QTest::newRow("the smallest") << 0 << 160 << QList{80, 20} << 50 << 0;
    QTest::newRow("down to it") << 3 << 160 << QList{119, 79, 39} << 50 << 0;
}

void tst_Touch::twoFingersPinch()
{
    QFETCH(const int, fromRow);
    QFETCH(const int, from);
    QFETCH(const QList<int>, distances);
    QFETCH(const int, zoom);
    QFETCH(const int, row);
    TouchDesk desk(fixtures::Pencil, fromRow);
    const QPoint middle = desk.view().viewport()->mapToGlobal(QPoint(100, 80));
    const auto finger = [&](int side, int apart) {
        return desk.canvas().mapFromGlobal(middle + QPoint(side ? (apart + 1) / 2 : -(apart / 2), 0));
    };
    desk.fingers.press(0, finger(0, from));
    desk.fingers.press(1, finger(1, from));
    for (const int apart : distances)
        desk.fingers.move({{0, finger(0, apart)}, {1, finger(1, apart)}});
    desk.fingers.release(0);
    desk.fingers.release(1);
    QCOMPARE(desk.canvas().zoom(), zoom);
    QCOMPARE(desk.control<QComboBox>("zoomBox").currentIndex(), row);
    QVERIFY(!desk.editor.isModified());
}

void tst_Touch::whatLiesBetweenTheFingersStays()
{
    TouchDesk desk(fixtures::Pencil, 1);
    desk.window.resize(160, 160);
    desk.editor.resize(160, 160);
    QPixmap large = QPixmap::fromImage(support::mosaic(QSize(630, 470)));
    desk.editor.setPixmap(&large);
    QCoreApplication::processEvents();
    desk.view().setContentsPos(200, 150);
    const QPoint middle = desk.view().viewport()->mapToGlobal(QPoint(90, 60));
    const QPointF inPicture = desk.canvas().mapFromGlobal(QPointF(middle));
    const auto finger = [&](int side, int apart) {
        return desk.canvas().mapFromGlobal(middle + QPoint(side ? apart / 2 : -apart / 2, 0));
    };
    desk.fingers.press(0, finger(0, 40));
    desk.fingers.press(1, finger(1, 40));
    for (const int apart : {62, 82, 84, 58, 40}) {
        desk.fingers.move({{0, finger(0, apart)}, {1, finger(1, apart)}});
        const QPointF there = desk.canvas().mapToGlobal(inPicture * desk.canvas().zoom() / 100.0);
        QVERIFY2(distance(there, middle) <= 1,
                 qPrintable(QString("%1 at %2 %").arg(distance(there, middle)).arg(desk.canvas().zoom())));
    }
    QCOMPARE(desk.canvas().zoom(), 100);
}

void tst_Touch::aPinchThatReachesNoStepChangesNothing()
{
    for (const Work work : {fixtures::Lifted, fixtures::OpenText}) {
        TouchDesk touched(fixtures::Text, 1, work);
        TouchDesk expected(fixtures::Text, 1, work);
        touched.fingers.press(0, {60, 80});
        touched.fingers.press(1, {120, 80});
        touched.fingers.move({{0, {50, 80}}, {1, {130, 80}}});
        touched.fingers.move({{0, {70, 80}}, {1, {110, 80}}});
        touched.fingers.release(1);
        touched.fingers.release(0);
        QVERIFY(same(touched.state(), expected.state()));
        QCOMPARE(touched.log.taken(), QStringList());
        QVERIFY(undoAlike(touched, expected));
    }
}

void tst_Touch::largePicturesPinchUpToRealSize()
{
    TouchDesk desk(fixtures::Pencil, 0);
    QPixmap large = QPixmap::fromImage(support::sheet(QSize(640, 480)));
    desk.editor.setPixmap(&large);
    QCoreApplication::processEvents();
    desk.fingers.press(0, {60, 80});
    desk.fingers.press(1, {80, 80});
    desk.fingers.move({{0, {10, 80}}, {1, {130, 80}}});
    QCOMPARE(desk.canvas().zoom(), 100);
}

// --- A long press

namespace {

/// Short, for the time of a test.
class ShortHold
{
public:
    ShortHold() : m_before(QGuiApplication::styleHints()->mousePressAndHoldInterval())
    {
        QGuiApplication::styleHints()->setMousePressAndHoldInterval(time);
    }
    ~ShortHold() { QGuiApplication::styleHints()->setMousePressAndHoldInterval(m_before); }
    ShortHold(const ShortHold&) = delete;
    ShortHold& operator=(const ShortHold&) = delete;

    static constexpr int time = 200; // milliseconds

private:
    int m_before;
};

} // namespace

void tst_Touch::aLongPressOpensTheMenu()
{
    const ShortHold hold;
    for (const ToolID tool : {fixtures::Pencil, fixtures::Text}) {
        TouchDesk desk(tool, 1, fixtures::Drawn);
        TouchDesk expected(tool, 1, fixtures::Drawn);
        desk.fingers.press(0, {60, 70});
        desk.fingers.move(0, {62, 71});
        QTRY_VERIFY(desk.canvas().contextMenu()->isVisible());
        desk.fingers.release(0);
        QVERIFY(desk.canvas().contextMenu()->isVisible()); // the finger that opened it chooses nothing
        desk.canvas().contextMenu()->hide();
        QVERIFY(same(desk.state(), expected.state()));

        desk.fingers.drag({{30, 40}, {60, 60}}); // and the next touch counts again
        support::Gestures(expected.canvas()).drag({{30, 40}, {60, 60}});
        QVERIFY(same(desk.state(), expected.state()));
    }
}

void tst_Touch::aLongPressOpensThePiecesMenu()
{
    const ShortHold hold;
    TouchDesk desk(fixtures::Pencil, 1, fixtures::Pasted);
    const QRect place = desk.piece().geometry();
    desk.fingers.press(0, place.center());
    QTRY_VERIFY(desk.piece().menu()->isVisible());
    desk.fingers.release(0);
    desk.piece().menu()->hide();
    QCOMPARE(desk.piece().geometry(), place);
    QVERIFY(!desk.canvas().contextMenu()->isVisible());
}

void tst_Touch::aLongPressTakesTheDotBack()
{
    const ShortHold hold;
    TouchDesk desk;
    const TouchDesk::State before = desk.state();
    desk.fingers.press(0, {60, 70});
    QTRY_VERIFY(desk.editor.isModified());
    QTRY_VERIFY(desk.canvas().contextMenu()->isVisible());
    QVERIFY(same(desk.state(), before));
    desk.canvas().contextMenu()->hide();
    desk.fingers.release(0);
}

void tst_Touch::noMenuWhileDrawing()
{
    const ShortHold hold;
    for (const bool staysBefore : {false, true}) {
        TouchDesk desk;
        desk.fingers.press(0, {60, 70});
        if (staysBefore)
            QTRY_VERIFY(desk.editor.isModified());
        desk.fingers.move(0, {60 + QApplication::startDragDistance() + 1, 70});
        desk.fingers.move(0, {60, 70}); // back again
        QTest::qWait(2 * ShortHold::time);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(desk.editor.isModified());
        desk.fingers.release(0);
        QVERIFY(desk.editor.isModified());
    }
}

void tst_Touch::noMenuForTheMouse()
{
    const ShortHold hold;
    TouchDesk desk;
    QTest::mousePress(desk.window.windowHandle(), Qt::LeftButton, {},
                      desk.canvas().mapTo(&desk.window, QPoint(60, 70)));
    QTest::qWait(2 * ShortHold::time);
    QVERIFY(!QApplication::activePopupWidget());
    QTest::mouseRelease(desk.window.windowHandle(), Qt::LeftButton, {},
                        desk.canvas().mapTo(&desk.window, QPoint(60, 70)));
}

// --- The handles of the floating piece

void tst_Touch::handlesReachForAFinger_data()
{
    QTest::addColumn<QPoint>("from"); // from the piece's top left; it is 100 x 80
    QTest::addColumn<QRect>("change");
    QTest::newRow("the middle moves") << QPoint(50, 40) << QRect(10, 8, 0, 0);
    QTest::newRow("left, inside") << QPoint(20, 40) << QRect(10, 0, -10, 0);
    QTest::newRow("left, outside") << QPoint(-20, 40) << QRect(10, 0, -10, 0);
    QTest::newRow("right, inside") << QPoint(80, 40) << QRect(0, 0, 10, 0);
    QTest::newRow("right, outside") << QPoint(120, 40) << QRect(0, 0, 10, 0);
    QTest::newRow("top") << QPoint(50, -15) << QRect(0, 8, 0, -8);
    QTest::newRow("bottom") << QPoint(50, 95) << QRect(0, 0, 0, 8);
    QTest::newRow("top left") << QPoint(-15, -15) << QRect(10, 8, -10, -8);
    QTest::newRow("bottom left") << QPoint(15, 95) << QRect(10, 0, -10, 8);
    QTest::newRow("bottom right") << QPoint(115, 65) << QRect(0, 0, 10, 8);
    QTest::newRow("top right turns") << QPoint(110, 10) << QRect(0, 0, -20, 20);
}

void tst_Touch::handlesReachForAFinger()
{
    QFETCH(const QPoint, from);
    QFETCH(const QRect, change);
    TouchDesk desk;
    fixtures::setClipboard(support::mosaic(QSize(100, 80)));
    desk.editor.paste();
    desk.piece().move(40, 40);
    const QPoint at = QPoint(40, 40) + from;
    desk.fingers.drag({at, at + QPoint(5, 4), at + QPoint(10, 8)});
    QCOMPARE(desk.piece().geometry(),
             QRect(40 + change.x(), 40 + change.y(), 100 + change.width(), 80 + change.height()));
    QVERIFY(!desk.piece().isHidden());

    // Farther away nothing is meant for the piece.
    const double dots = qBound(40.0, desk.window.screen()->physicalDotsPerInch(), 400.0);
    const int reach = qRound(9 / 25.4 * dots);
    QVERIFY(desk.piece().gripFor({-reach, 20}, reach));
    desk.fingers.tap(desk.piece().pos() + QPoint(-reach - 1, 20));
    QVERIFY(desk.piece().isHidden());
}

void tst_Touch::smallPiecesCanBeMoved()
{
    for (const QSize& size : {QSize(12, 12), QSize(13, 40), QSize(40, 12), QSize(16, 9), QSize(9, 16)}) {
        TouchDesk desk;
        fixtures::setClipboard(support::mosaic(size));
        desk.editor.paste();
        desk.piece().move(60, 60);
        const QPoint at = desk.piece().geometry().center();
        desk.fingers.drag({at, at + QPoint(5, 4), at + QPoint(20, 10)});
        QCOMPARE(desk.piece().geometry(), QRect(QPoint(80, 70), size));
    }
}

void tst_Touch::handlesStayForTheMouse()
{
    TouchDesk desk;
    fixtures::setClipboard(support::mosaic(QSize(100, 80)));
    desk.editor.paste();
    desk.piece().move(40, 40);
    support::Gestures mouse(desk.canvas());
    mouse.hover({47, 80}); // beside the handle
    mouse.drag({{47, 80}, {57, 88}});
    QCOMPARE(desk.piece().geometry(), QRect(50, 48, 100, 80));
    mouse.hover({55, 88});
    mouse.drag({{55, 88}, {65, 88}});
    QCOMPARE(desk.piece().geometry(), QRect(60, 48, 90, 80));
    mouse.drag({{30, 40}, {35, 45}}); // beside the piece
    QVERIFY(desk.piece().isHidden());
}

// --- What the host chooses, and others that point

void tst_Touch::aFingerPansWhereTheHostSaysSo()
{
    TouchDesk desk(fixtures::Pencil, 3);
    QCOMPARE(desk.canvas().fingerUse(), KORVA_Canvas::FingerDraws);
    desk.canvas().setFingerUse(KORVA_Canvas::FingerPans);
    QCOMPARE(desk.canvas().fingerUse(), KORVA_Canvas::FingerPans);
    desk.view().setContentsPos(80, 70);
    const TouchDesk::State before = desk.state();
    const QPoint from = desk.canvas().mapFromGlobal(desk.view().viewport()->mapToGlobal(QPoint(100, 80)));
    desk.fingers.tap(from);
    QTest::qWait(2 * fixtures::secondFinger);
    QVERIFY(same(desk.state(), before));

    desk.fingers.press(0, from);
    QTest::qWait(2 * fixtures::secondFinger);
    const auto moveBy = [&](QPoint step) {
        desk.fingers.move(0, desk.canvas().mapFromGlobal(desk.fingers.onScreen(0) + step));
    };
    moveBy({-4, 0}); // now it pans
    const QPoint start(desk.view().contentsX(), desk.view().contentsY());
    moveBy({-20, 7});
    moveBy({-20, 7});
    QCOMPARE(QPoint(desk.view().contentsX(), desk.view().contentsY()), start + QPoint(40, -14));
    desk.fingers.release(0);
    QVERIFY(!desk.editor.isModified());
    QCOMPARE(desk.log.taken(), QStringList());

    desk.canvas().setFingerUse(KORVA_Canvas::FingerDraws);
    desk.fingers.drag({from, from + QPoint(10, 10)});
    QVERIFY(desk.editor.isModified());
}

void tst_Touch::aFingerThatPansTakesHoldOfThePiece()
{
    TouchDesk desk(fixtures::Pencil, 1, fixtures::Pasted);
    desk.canvas().setFingerUse(KORVA_Canvas::FingerPans);
    const QRect place = desk.piece().geometry();
    desk.fingers.drag({place.center(), place.center() + QPoint(8, 5), place.center() + QPoint(20, 9)});
    QCOMPARE(desk.piece().geometry(), place.translated(20, 9));
}

void tst_Touch::aHeldMouseKeepsTheTool()
{
    TouchDesk desk;
    TouchDesk expected;
    for (TouchDesk* each : {&desk, &expected}) {
        const auto at = [each](QPoint p) { return each->canvas().mapTo(&each->window, p); };
        QWindow* window = each->window.windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, at({30, 40}));
        if (each == &desk)
            each->fingers.drag({{100, 100}, {120, 110}, {130, 90}});
        QTest::mouseMove(window, at({60, 50}));
        QTest::mouseRelease(window, Qt::LeftButton, {}, at({60, 50}));
    }
    QVERIFY(same(desk.state(), expected.state()));
    QVERIFY(desk.editor.isModified());
}

void tst_Touch::whatIsMadeOfTouchesDoesNotComeTwice()
{
    for (const Work work : {fixtures::Nothing, fixtures::Pasted}) {
        TouchDesk desk(fixtures::Pencil, 1, work);
        TouchDesk expected(fixtures::Pencil, 1, work);
        const auto send = [&desk](QEvent::Type type, QPoint at, Qt::MouseEventSource source) {
            QWidget* child = desk.canvas().childAt(at);
            QWidget* receiver = child ? child : &desk.canvas();
            const bool isMove = type == QEvent::MouseMove;
            const QPointF global = desk.canvas().mapToGlobal(QPointF(at));
            QMouseEvent event(type, receiver->mapFromGlobal(global), global, global,
                              isMove ? Qt::NoButton : Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {},
                              source);
            QCoreApplication::sendEvent(receiver, &event);
        };
        const QPoint from = work == fixtures::Pasted ? QPoint(40, 35) : QPoint(100, 100);
        const auto drag = [&](Qt::MouseEventSource source) {
            send(QEvent::MouseButtonPress, from, source);
            send(QEvent::MouseMove, from + QPoint(20, 10), source);
            send(QEvent::MouseButtonRelease, from + QPoint(20, 10), source);
        };
        desk.fingers.press(0, from);
        drag(Qt::MouseEventSynthesizedBySystem);
        desk.fingers.move(0, from + QPoint(20, 10));
        drag(Qt::MouseEventSynthesizedByQt);
        desk.fingers.release(0);
        drag(Qt::MouseEventSynthesizedBySystem);
        expected.fingers.drag({from, from + QPoint(20, 10)});
        QCOMPARE(desk.log.taken(), expected.log.taken());
        QVERIFY(same(desk.state(), expected.state()));
    }

    // Hosts that know no touch and make mouse events of their own still draw.
    TouchDesk desk;
    QMouseEvent press(QEvent::MouseButtonPress, {50, 50}, {50, 50}, {50, 50}, Qt::LeftButton,
                      Qt::LeftButton, {}, Qt::MouseEventSynthesizedByApplication);
    QCoreApplication::sendEvent(&desk.canvas(), &press);
    QVERIFY(desk.editor.isModified());
}

int main(int argc, char** argv)
{
    return support::run<tst_Touch>(argc, argv);
}

#include "tst_Touch.moc"
