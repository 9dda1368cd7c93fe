#include "TouchFixtures.h"
#include "support/Tablet.h"

using fixtures::same;
using fixtures::ToolID;
using fixtures::TouchDesk;
using fixtures::undoAlike;
using fixtures::Work;
using support::Tablet;

namespace {

const QList<QPointF> path{{80, 70}, {83, 71}, {95, 80}, {70, 60}, {90, 75}};

/// As path(), by the mouse.
void dragMouse(TouchDesk& desk)
{
    support::Gestures mouse(desk.canvas());
    mouse.press(path.first().toPoint());
    for (const QPointF& point : path.mid(1))
        mouse.move(point.toPoint());
    mouse.release(path.last().toPoint());
}

} // namespace

/// A pen on the canvas, from the window on.
class tst_Tablet : public support::TestCase
{
    Q_OBJECT

private slots:
    void aPenDrawsAsTheMouse_data();
    void aPenDrawsAsTheMouse();
    void everyFractionIsThePixelUnderThePen();
    void aPenMovesThePieceAndStretchesItAsTheMouse();
    void hoversAndOtherButtonsAreTheToolkits();
    void whatIsMadeOfThePenDoesNotComeTwice();

    void theEraserEndErases_data();
    void theEraserEndErases();
    void theEraserEndHasTheErasersSize();
    void theToolIsGivenBackWhenThePenLeaves();
    void anotherToolChosenMeanwhileStands();
    void theEraserEndErasesWithTheEraser();

    void aPalmIsIgnoredWhileAPenIsNear();
    void aPalmIsIgnoredUntilShortlyAfterThePenLeft();
    void aPenThatComesTakesTheFingersStrokeBack_data();
    void aPenThatComesTakesTheFingersStrokeBack();
    void aPenDrawsWhileFingersPan();
    void aPenDrawsWhereFingersPan();
};

void tst_Tablet::aPenDrawsAsTheMouse_data()
{
    QTest::addColumn<ToolID>("tool");
    QTest::addColumn<int>("zoomRow");
    QTest::addColumn<Work>("work");
    for (const auto& [tool, toolName] : fixtures::allTools) {
        for (int zoomRow = 0; zoomRow < 4; ++zoomRow) {
            for (const Work work : {fixtures::Nothing, fixtures::Lifted, fixtures::OpenText})
                QTest::addRow("%s, row %d, %s", toolName, zoomRow, fixtures::works[work].second)
                    << tool << zoomRow << work;
        }
    }
}

void tst_Tablet::aPenDrawsAsTheMouse()
{
    QFETCH(const ToolID, tool);
    QFETCH(const int, zoomRow);
    QFETCH(const Work, work);
    TouchDesk drawn(tool, zoomRow, work);
    TouchDesk expected(tool, zoomRow, work);
    Tablet pen(drawn.canvas());
    pen.drag(path);
    dragMouse(expected);
    QCOMPARE(drawn.log.taken(), expected.log.taken());
    QVERIFY(same(drawn.state(), expected.state()));
    QVERIFY(undoAlike(drawn, expected));
}

void tst_Tablet::everyFractionIsThePixelUnderThePen()
{
    TouchDesk desk;
    desk.editor.manager()->setLMBColor(QColor(1, 2, 3));
    QImage expected = desk.editor.snapshot();
    Tablet pen(desk.canvas());
    int y = 10;
    for (const double part : {0.0, 0.25, 0.4, 0.5, 0.6, 0.75, 0.95}) {
        pen.drag({{20 + part, y + 0.5}, {30 + part, y + 0.95}});
        for (int x = 20; x <= 30; ++x)
            expected.setPixelColor(x, y, QColor(1, 2, 3));
        y += 5;
    }
    QVERIFY(support::sameImage(desk.editor.snapshot(), expected));
}

void tst_Tablet::aPenMovesThePieceAndStretchesItAsTheMouse()
{
    TouchDesk desk;
    fixtures::setClipboard(support::mosaic(QSize(100, 80)));
    desk.editor.paste();
    desk.piece().move(40, 40);
    Tablet pen(desk.canvas());
    pen.drag({{47, 80}, {50, 84}, {57, 88}}); // beside the handle
    QCOMPARE(desk.piece().geometry(), QRect(50, 48, 100, 80));
    pen.drag({{55, 88}, {65, 88}});
    QCOMPARE(desk.piece().geometry(), QRect(60, 48, 90, 80));
    pen.drag({{30, 40}, {35, 45}}); // beside the piece
    QVERIFY(desk.piece().isHidden());
}

void tst_Tablet::hoversAndOtherButtonsAreTheToolkits()
{
    TouchDesk desk;
    const TouchDesk::State before = desk.state();
    Tablet pen(desk.canvas());
    QVERIFY(!pen.hover({50, 50}));
    QVERIFY(!pen.press({50, 50}, Tablet::Tip, Qt::RightButton));
    QVERIFY(!pen.release({50, 50}, Tablet::Tip, Qt::RightButton));
    QVERIFY(same(desk.state(), before));
    QVERIFY(pen.press({50, 50}));
    QVERIFY(pen.move({60, 50}));
    QVERIFY(pen.release({60, 50}));
}

void tst_Tablet::whatIsMadeOfThePenDoesNotComeTwice()
{
    TouchDesk desk;
    Tablet pen(desk.canvas());
    pen.press({50, 50});
    pen.release({50, 50});
    const TouchDesk::State before = desk.state();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, {80, 80}, {80, 80}, {80, 80}, Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {},
                          Qt::MouseEventSynthesizedBySystem);
        QCoreApplication::sendEvent(&desk.canvas(), &event);
    }
    QVERIFY(same(desk.state(), before));
}

// --- The other end

void tst_Tablet::theEraserEndErases_data()
{
    QTest::addColumn<ToolID>("tool");
    QTest::addColumn<int>("option");
    QTest::addColumn<Work>("work");
    for (const auto& [tool, name] : fixtures::allTools) {
        if (tool == fixtures::Eraser)
            continue;
        for (const Work work : {fixtures::Nothing, fixtures::Pasted, fixtures::OpenText})
            QTest::addRow("%s, %s", name, fixtures::works[work].second)
                << tool << (tool == fixtures::AreaSelect ? 0 : 1) << work;
    }
}

void tst_Tablet::theEraserEndErases()
{
    QFETCH(const ToolID, tool);
    QFETCH(const int, option);
    QFETCH(const Work, work);
    TouchDesk desk(tool, 1, work);
    TouchDesk expected(tool, 1, work);
    for (TouchDesk* each : {&desk, &expected}) {
        each->editor.setColor(QColor(10, 200, 30));
        if (work != fixtures::OpenText)
            each->chooseOption(option);
    }
    const ToolID before = work == fixtures::OpenText ? fixtures::Text : tool;
    const QPen pen = desk.editor.manager()->currentTool()->leftPen();
    const QBrush brush = desk.editor.manager()->currentTool()->leftBrush();
    const QImage toolIcon = fixtures::iconPicture(desk.toolIcon(), QSize(24, 24));
    const QImage optionIcon = fixtures::iconPicture(desk.optionIcon(), QSize(24, 24));
    const QStringList options = desk.options();

    Tablet tablet(desk.canvas());
    tablet.drag(path, Tablet::Eraser);
    expected.choose(fixtures::Eraser);
    dragMouse(expected);
    expected.choose(before);

    QVERIFY(same(desk.state(), expected.state()));
    QCOMPARE(desk.editor.manager()->currentToolID(), int(before));
    QCOMPARE(desk.editor.manager()->currentTool()->leftPen(), pen);
    QCOMPARE(desk.editor.manager()->currentTool()->leftBrush(), brush);
    QCOMPARE(fixtures::iconPicture(desk.toolIcon(), QSize(24, 24)), toolIcon);
    QCOMPARE(fixtures::iconPicture(desk.optionIcon(), QSize(24, 24)), optionIcon);
    QCOMPARE(desk.options(), options);
    QCOMPARE(desk.editor.color(), QColor(10, 200, 30));
    QCOMPARE(desk.editor.snapshot().pixelColor(path.last().toPoint()), QColor(Qt::white));
    QVERIFY(undoAlike(desk, expected));
}

void tst_Tablet::theEraserEndHasTheErasersSize()
{
    for (int size = 0; size < 3; ++size) {
        TouchDesk desk;
        TouchDesk expected;
        for (TouchDesk* each : {&desk, &expected}) {
            each->choose(fixtures::Eraser);
            each->chooseOption(size);
        }
        desk.choose(fixtures::Rectangle);
        Tablet(desk.canvas()).drag(path, Tablet::Eraser);
        dragMouse(expected);
        QVERIFY(support::sameImage(desk.editor.snapshot(), expected.editor.snapshot()));
    }
}

void tst_Tablet::theToolIsGivenBackWhenThePenLeaves()
{
    TouchDesk desk(fixtures::Line);
    Tablet pen(desk.canvas());
    pen.enter(Tablet::Eraser);
    pen.press({50, 50}, Tablet::Eraser);
    QCOMPARE(desk.editor.manager()->currentToolID(), int(fixtures::Eraser));
    pen.leave(Tablet::Eraser); // without having been lifted
    QCOMPARE(desk.editor.manager()->currentToolID(), int(fixtures::Line));
}

void tst_Tablet::anotherToolChosenMeanwhileStands()
{
    TouchDesk desk(fixtures::Line);
    Tablet pen(desk.canvas());
    pen.press({50, 50}, Tablet::Eraser);
    desk.choose(fixtures::Ellipse);
    pen.release({60, 60}, Tablet::Eraser);
    QCOMPARE(desk.editor.manager()->currentToolID(), int(fixtures::Ellipse));
}

void tst_Tablet::theEraserEndErasesWithTheEraser()
{
    TouchDesk desk(fixtures::Eraser);
    TouchDesk expected(fixtures::Eraser);
    Tablet(desk.canvas()).drag(path, Tablet::Eraser);
    dragMouse(expected);
    QCOMPARE(desk.log.taken(), expected.log.taken());
    QVERIFY(same(desk.state(), expected.state()));
}

// --- Pen and fingers

void tst_Tablet::aPalmIsIgnoredWhileAPenIsNear()
{
    TouchDesk desk;
    TouchDesk expected;
    Tablet pen(desk.canvas());
    pen.enter();
    desk.fingers.drag({{10, 140}, {20, 150}, {40, 150}});
    desk.fingers.press(0, {10, 140});
    pen.press(path.first());
    desk.fingers.press(1, {40, 150});
    desk.fingers.move({{0, {5, 130}}, {1, {90, 150}}});
    for (const QPointF& point : path.mid(1))
        pen.move(point);
    pen.release(path.last());
    desk.fingers.release(0);
    desk.fingers.release(1);
    dragMouse(expected);
    QVERIFY(same(desk.state(), expected.state()));
    QCOMPARE(desk.log.taken(), expected.log.taken());
    pen.leave();
}

void tst_Tablet::aPalmIsIgnoredUntilShortlyAfterThePenLeft()
{
    constexpr int shortly = 500; // milliseconds
    TouchDesk desk;
    Tablet pen(desk.canvas());
    pen.enter();
    pen.leave();
    desk.fingers.drag({{10, 140}, {20, 150}, {40, 150}});
    QVERIFY(!desk.editor.isModified());
    QTest::qWait(shortly + 50);
    desk.fingers.drag({{10, 140}, {20, 150}, {40, 150}});
    QVERIFY(desk.editor.isModified());
}

void tst_Tablet::aPenThatComesTakesTheFingersStrokeBack_data()
{
    QTest::addColumn<bool>("isAnnounced");
    QTest::newRow("announced") << true;
    QTest::newRow("pressed") << false;
}

void tst_Tablet::aPenThatComesTakesTheFingersStrokeBack()
{
    QFETCH(const bool, isAnnounced);
    TouchDesk desk;
    TouchDesk expected;
    const TouchDesk::State before = desk.state();
    Tablet pen(desk.canvas());
    desk.fingers.press(0, {10, 140}); // the palm comes first
    desk.fingers.move(0, {30, 150});
    QVERIFY(desk.editor.isModified());
    if (isAnnounced) {
        pen.enter();
        QVERIFY(same(desk.state(), before));
    }
    pen.drag(path);
    desk.fingers.move(0, {60, 150});
    desk.fingers.release(0);
    if (isAnnounced)
        pen.leave();
    dragMouse(expected);
    QVERIFY(same(desk.state(), expected.state()));
    QVERIFY(undoAlike(desk, expected));
}

void tst_Tablet::aPenDrawsWhileFingersPan()
{
    TouchDesk desk(fixtures::Pencil, 3);
    TouchDesk expected(fixtures::Pencil, 3);
    desk.view().setContentsPos(80, 70);
    expected.view().setContentsPos(80, 70);
    Tablet pen(desk.canvas());
    const auto onCanvas = [&desk](QPoint p) {
        return desk.canvas().mapFromGlobal(desk.view().viewport()->mapToGlobal(p));
    };
    desk.fingers.press(0, onCanvas({20, 80}));
    desk.fingers.press(1, onCanvas({80, 80}));
    pen.press({150, 130});
    pen.move({155, 140});
    desk.fingers.move({{0, onCanvas({5, 60})}, {1, onCanvas({95, 60})}}); // no pinch while a pen is down
    pen.move({170, 150});
    pen.release({170, 150});
    desk.fingers.release(0);
    desk.fingers.release(1);

    support::Gestures(expected.canvas()).drag({{150, 130}, {155, 140}, {170, 150}});
    expected.view().setContentsPos(80, 90);
    QVERIFY(same(desk.state(), expected.state()));
}

void tst_Tablet::aPenDrawsWhereFingersPan()
{
    TouchDesk desk;
    TouchDesk expected;
    desk.canvas().setFingerUse(KORVA_Canvas::FingerPans);
    desk.fingers.drag({{10, 140}, {20, 150}, {40, 150}});
    Tablet(desk.canvas()).drag(path);
    dragMouse(expected);
    QVERIFY(same(desk.state(), expected.state()));
}

int main(int argc, char** argv)
{
    return support::run<tst_Tablet>(argc, argv);
}

#include "tst_Tablet.moc"
