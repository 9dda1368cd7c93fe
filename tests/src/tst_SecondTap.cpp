#include "TouchFixtures.h"

#include <QSignalSpy>

using fixtures::same;
using fixtures::ToolID;
using fixtures::TouchDesk;

namespace {

constexpr QPoint from(40, 30);
constexpr QPoint to(90, 55);
constexpr QPoint end(120, 60);
constexpr QPoint beside(160, 140);

/// An editor whose shapes may be even.
struct EvenDesk : TouchDesk
{
    explicit EvenDesk(ToolID tool, bool isModern = true) : TouchDesk(tool)
    {
        KORVA_Manners manners;
        manners.evenShapes = isModern;
        editor.setManners(manners);
    }

    /// What a mouse does, with Shift or without.
    void mouse(QEvent::Type type, QPoint at, bool isShift)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, canvas().mapToGlobal(QPointF(at)), button, down,
                          isShift ? Qt::ShiftModifier : Qt::NoModifier);
        QCoreApplication::sendEvent(&canvas(), &event);
    }
    void begin()
    {
        fingers.press(0, from);
        fingers.move(0, to);
    }
    void tapBeside()
    {
        fingers.press(1, beside);
        fingers.release(1);
    }
    [[nodiscard]] bool hasBeenTakenBack() { return log.taken().contains("strokeTakenBack()"); }
    [[nodiscard]] QPoint scrolled() const { return {view().contentsX(), view().contentsY()}; }
};

} // namespace

/// A second finger that taps while the first one drags a shape.
class tst_SecondTap : public support::TestCase
{
    Q_OBJECT

private slots:
    void keepsShapesEven_data();
    void keepsShapesEven();
    void anotherOneEndsIt();
    void nextShapeIsPlain();
    void movingOneMovesTheView_data();
    void movingOneMovesTheView();
    void movingFirstOneMovesTheView();
    void stayingOneTakesBack();
    void liftingTheFirstTakesBack();
    void thirdOneTakesBack();
    void cancelTakesBack();
    void otherToolsAreTakenBackAtOnce_data();
    void otherToolsAreTakenBackAtOnce();
};

void tst_SecondTap::keepsShapesEven_data()
{
    QTest::addColumn<ToolID>("tool");
    for (const auto& [tool, name] : {std::pair(fixtures::Line, "line"),
                                     {fixtures::Rectangle, "rectangle"},
                                     {fixtures::Ellipse, "ellipse"},
                                     {fixtures::AreaSelect, "select"}})
        QTest::newRow(name) << tool;
}

void tst_SecondTap::keepsShapesEven()
{
    QFETCH(const ToolID, tool);
    EvenDesk actual(tool);
    EvenDesk expected(tool);
    expected.mouse(QEvent::MouseButtonPress, from, false);
    expected.mouse(QEvent::MouseMove, to, false);
    actual.begin();
    QVERIFY(same(actual.state(), expected.state()));
    actual.tapBeside();
    expected.mouse(QEvent::MouseMove, to, true);
    QVERIFY(same(actual.state(), expected.state()));
    actual.fingers.move(0, end);
    expected.mouse(QEvent::MouseMove, end, true);
    QVERIFY(same(actual.state(), expected.state()));
    actual.fingers.release(0);
    expected.mouse(QEvent::MouseButtonRelease, end, true);
    QVERIFY(same(actual.state(), expected.state()));
    QVERIFY(!actual.hasBeenTakenBack());

    EvenDesk plain(tool); // and it made a difference
    plain.fingers.drag({from, to, end});
    QVERIFY(plain.state().drawing != actual.state().drawing || plain.state().facts != actual.state().facts);
}

void tst_SecondTap::anotherOneEndsIt()
{
    EvenDesk actual(fixtures::Rectangle);
    EvenDesk expected(fixtures::Rectangle);
    actual.begin();
    actual.tapBeside();
    actual.tapBeside();
    actual.fingers.release(0);
    expected.fingers.drag({from, to});
    QVERIFY(same(actual.state(), expected.state()));
}

void tst_SecondTap::nextShapeIsPlain()
{
    EvenDesk actual(fixtures::Rectangle);
    EvenDesk expected(fixtures::Rectangle);
    actual.begin();
    actual.tapBeside();
    actual.fingers.release(0);
    actual.editor.undo();
    expected.fingers.drag({from, to});
    expected.editor.undo();
    actual.fingers.drag({from, to});
    expected.fingers.drag({from, to});
    QVERIFY(same(actual.state(), expected.state()));
}

void tst_SecondTap::movingOneMovesTheView_data()
{
    QTest::addColumn<QPoint>("first");
    QTest::addColumn<QPoint>("second");
    QTest::newRow("together") << QPoint(-30, -40) << QPoint(-30, -40);
    QTest::newRow("a pinch") << QPoint(0, 0) << QPoint(-40, -40);
}

/// Exactly as far as without the switch.
void tst_SecondTap::movingOneMovesTheView()
{
    QFETCH(const QPoint, first);
    QFETCH(const QPoint, second);
    EvenDesk actual(fixtures::Rectangle);
    EvenDesk expected(fixtures::Rectangle, false);
    for (EvenDesk* desk : {&actual, &expected}) {
        desk->editor.selectZoom(3);
        desk->fingers.press(0, {20, 30});
        desk->fingers.move(0, {60, 60});
        desk->fingers.press(1, {120, 120});
        desk->fingers.move({{0, QPoint(60, 60) + first / 2}, {1, QPoint(120, 120) + second / 2}});
        desk->fingers.move({{0, QPoint(60, 60) + first}, {1, QPoint(120, 120) + second}});
        desk->fingers.release(1);
        desk->fingers.release(0);
        QVERIFY(desk->hasBeenTakenBack());
    }
    QVERIFY(same(actual.state(), expected.state()));
    QVERIFY(actual.scrolled() != QPoint() || actual.canvas().zoom() != 200);
}

void tst_SecondTap::movingFirstOneMovesTheView()
{
    EvenDesk desk(fixtures::Rectangle);
    desk.begin();
    desk.fingers.press(1, beside);
    desk.fingers.move(0, to + QPoint(-QApplication::startDragDistance(), 0));
    QVERIFY(!desk.hasBeenTakenBack());
    desk.fingers.move(0, to + QPoint(-QApplication::startDragDistance() - 1, 0));
    QVERIFY(desk.hasBeenTakenBack());
}

void tst_SecondTap::stayingOneTakesBack()
{
    EvenDesk desk(fixtures::Rectangle);
    const TouchDesk::State before = desk.state();
    QSignalSpy takenBack(&desk.editor, &KORVA_EditCanvas::strokeTakenBack);
    desk.begin();
    desk.fingers.press(1, beside);
    QVERIFY(takenBack.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(takenBack.size(), 1, 2000);
    desk.fingers.release(1);
    desk.fingers.move(0, end);
    desk.fingers.release(0);
    QVERIFY(support::sameImage(desk.state().drawing, before.drawing));
    QVERIFY(!desk.editor.isModified());
}

void tst_SecondTap::liftingTheFirstTakesBack()
{
    EvenDesk desk(fixtures::Rectangle);
    const TouchDesk::State before = desk.state();
    desk.begin();
    desk.fingers.press(1, beside);
    desk.fingers.release(0);
    QVERIFY(desk.hasBeenTakenBack());
    desk.fingers.release(1);
    QVERIFY(same(desk.state(), before));
}

void tst_SecondTap::thirdOneTakesBack()
{
    EvenDesk desk(fixtures::Rectangle);
    desk.begin();
    desk.fingers.press(1, beside);
    desk.fingers.press(2, {20, 150});
    QVERIFY(desk.hasBeenTakenBack());
}

void tst_SecondTap::cancelTakesBack()
{
    EvenDesk desk(fixtures::Rectangle);
    const TouchDesk::State before = desk.state();
    desk.begin();
    desk.fingers.press(1, beside);
    desk.fingers.cancel();
    QVERIFY(desk.hasBeenTakenBack());
    QVERIFY(same(desk.state(), before));
}

void tst_SecondTap::otherToolsAreTakenBackAtOnce_data()
{
    QTest::addColumn<ToolID>("tool");
    QTest::addColumn<bool>("isModern");
    QTest::newRow("a pencil") << fixtures::Pencil << true;
    QTest::newRow("an eraser") << fixtures::Eraser << true;
    QTest::newRow("a rectangle, classically") << fixtures::Rectangle << false;
}

void tst_SecondTap::otherToolsAreTakenBackAtOnce()
{
    QFETCH(const ToolID, tool);
    QFETCH(const bool, isModern);
    EvenDesk desk(tool, isModern);
    desk.begin();
    desk.fingers.press(1, beside);
    QVERIFY(desk.hasBeenTakenBack());
}

int main(int argc, char** argv)
{
    return support::run<tst_SecondTap>(argc, argv);
}

#include "tst_SecondTap.moc"
