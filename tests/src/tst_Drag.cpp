#include "ToolFixtures.h"

#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"

using support::sameImage;

class tst_Drag : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void cursorIsAHand();
    void nineTenthsDoNotScroll();
    void eachMoveScrollsATenth();
    void contentFollowsTheFinger();
    void samePositionDoesNotScroll();
    void backAtThePressTheDriftStops();
    void scrollingEndsAtTheEdges();
    void anyButtonPans();
    void hoverPansFromTheLastPress();
    void pictureIsNotTouched();
    void pressCountsWhileInactive();
    void movesWhileInactiveDoNothing();
    void canvasWithoutAScrollView();

private:
    [[nodiscard]] QPoint position() const
    {
        return {m_view->scrollView()->contentsX(), m_view->scrollView()->contentsY()};
    }
    void press(QPoint at) { fixtures::Stylus(*m_manager->currentTool()).press(at); }
    void move(QPoint to) { fixtures::Stylus(*m_manager->currentTool()).move(to); }

    std::unique_ptr<KORVA_MainView> m_view;
    std::unique_ptr<KORVA_Manager> m_manager;
};

void tst_Drag::init()
{
    TestCase::init();
    m_view = std::make_unique<KORVA_MainView>();
    m_view->resize(120, 100);
    m_view->setAttribute(Qt::WA_DontShowOnScreen);
    m_view->show();
    m_manager = std::make_unique<KORVA_Manager>(m_view->canvas());
    m_manager->setCurrentTool(fixtures::Drag);
    m_view->canvas()->setZoom(200); // 400 x 340
    m_view->scrollView()->setContentsPos(100, 100);
}

void tst_Drag::cleanup()
{
    m_manager.reset();
    m_view.reset();
}

void tst_Drag::cursorIsAHand()
{
    QCOMPARE(m_view->canvas()->cursor().shape(), Qt::PointingHandCursor);
}

void tst_Drag::nineTenthsDoNotScroll()
{
    press({100, 100});
    move({109, 91});
    move({91, 109});
    QCOMPARE(position(), QPoint(100, 100));
}

void tst_Drag::eachMoveScrollsATenth()
{
    press({100, 100});
    move({110, 100});
    QCOMPARE(position(), QPoint(99, 100));
    move({110, 101});
    QCOMPARE(position(), QPoint(98, 100));
    move({139, 101});
    QCOMPARE(position(), QPoint(95, 100));
}

void tst_Drag::contentFollowsTheFinger()
{
    press({100, 100});
    move({150, 70});
    QCOMPARE(position(), QPoint(95, 103));
}

void tst_Drag::samePositionDoesNotScroll()
{
    press({100, 100});
    move({150, 100});
    move({150, 100});
    QCOMPARE(position(), QPoint(95, 100));
}

void tst_Drag::backAtThePressTheDriftStops()
{
    press({100, 100});
    move({150, 100});
    move({100, 100});
    QCOMPARE(position(), QPoint(95, 100));
    move({101, 100});
    QCOMPARE(position(), QPoint(95, 100));
}

void tst_Drag::scrollingEndsAtTheEdges()
{
    press({0, 0});
    for (int i = 0; i < 20; ++i)
        move({500 + i, 500});
    QCOMPARE(position(), QPoint(0, 0));
    for (int i = 0; i < 20; ++i)
        move({-500 - i, -500});
    const QSize viewport = m_view->scrollView()->viewport()->size();
    QCOMPARE(position(), QPoint(400 - viewport.width(), 340 - viewport.height()));
}

void tst_Drag::anyButtonPans()
{
    fixtures::Stylus stylus(*m_manager->currentTool());
    stylus.press({100, 100}, Qt::RightButton);
    stylus.move({150, 100});
    QCOMPARE(position(), QPoint(95, 100));
}

void tst_Drag::hoverPansFromTheLastPress()
{
    fixtures::Stylus stylus(*m_manager->currentTool());
    stylus.press({100, 100});
    stylus.release({100, 100});
    stylus.move({150, 100}); // the tool does not ask; the canvas sends no moves without a button
    QCOMPARE(position(), QPoint(95, 100));
}

void tst_Drag::pictureIsNotTouched()
{
    KORVA_Canvas& canvas = *m_view->canvas();
    canvas.clearModified();
    canvas.setUndoFlag(0);
    const QImage picture = canvas.pixmap()->toImage();
    const QImage screen = canvas.zoomedPixmap()->toImage();
    support::Gestures(canvas).drag({{100, 100}, {150, 70}, {30, 10}});
    QVERIFY(position() != QPoint(100, 100));
    QVERIFY(sameImage(*canvas.pixmap(), picture));
    QVERIFY(sameImage(*canvas.zoomedPixmap(), screen));
    QVERIFY(!canvas.isModified());
    QCOMPARE(canvas.undoFlag(), 0);
}

void tst_Drag::pressCountsWhileInactive()
{
    m_manager->setCurrentTool(fixtures::Pencil);
    fixtures::Stylus(*m_manager->tool(fixtures::Drag)).press({100, 100});
    m_manager->setCurrentTool(fixtures::Drag);
    move({150, 100});
    QCOMPARE(position(), QPoint(95, 100));
}

void tst_Drag::movesWhileInactiveDoNothing()
{
    m_manager->setCurrentTool(fixtures::Pencil);
    fixtures::Stylus stylus(*m_manager->tool(fixtures::Drag));
    stylus.press({100, 100});
    stylus.move({150, 100});
    QCOMPARE(position(), QPoint(100, 100));
}

void tst_Drag::canvasWithoutAScrollView()
{
    fixtures::Desk desk(fixtures::Drag);
    desk.stylus.drag({{10, 10}, {50, 50}});
    QVERIFY(desk.isUntouched());
}

int main(int argc, char** argv)
{
    return support::run<tst_Drag>(argc, argv);
}

#include "tst_Drag.moc"
