#include "KORVA_ScrollView.h"
#include "support/TestCase.h"

namespace {

/// A view of 100 x 80 pixels on screen, frame and margin included, with a child of 300 x 200 at (0, 0).
struct Scrolled
{
    Scrolled()
    {
        view.resize(100, 80);
        child = new QWidget;
        child->resize(300, 200);
        view.addChild(child, 0, 0);
        view.resizeContents(300, 200);
        view.show();
        QCoreApplication::processEvents(); // the bars come with the next turn of the event loop
    }

    [[nodiscard]] QPoint contentsPos() const { return {view.contentsX(), view.contentsY()}; }
    [[nodiscard]] QPoint lastPos() const
    {
        return QPoint(300, 200) - QPoint(view.viewport()->width(), view.viewport()->height());
    }

    KORVA_ScrollView view;
    QWidget* child; // the viewport's
};

} // namespace

class tst_ScrollView : public support::TestCase
{
    Q_OBJECT

private slots:
    void frameAndMarginTakeTwoPixels();
    void childIsTakenIntoTheViewport();
    void contentsMoveAtOnce();
    void positionsAreLimited();
    void smallerContentsLimitThePosition();
    void moveChildIsInContentsCoordinates();
    void largerViewLimitsThePosition();
    void barsComeAndGo_data();
    void barsComeAndGo();
    void wheelAndBarsScroll();
    void contentsKeepTheirSize();
};

void tst_ScrollView::frameAndMarginTakeTwoPixels()
{
    KORVA_ScrollView view;
    view.resize(100, 80);
    view.show();
    QCOMPARE(view.viewport()->geometry(), QRect(2, 2, 96, 76));
}

void tst_ScrollView::childIsTakenIntoTheViewport()
{
    Scrolled s;
    QCOMPARE(s.child->parentWidget(), s.view.viewport());
    QCOMPARE(s.view.viewport()->parentWidget(), &s.view);
}

void tst_ScrollView::contentsMoveAtOnce()
{
    Scrolled s;
    QCOMPARE(s.contentsPos(), QPoint(0, 0));
    s.view.setContentsPos(40, 25);
    QCOMPARE(s.contentsPos(), QPoint(40, 25));
    QCOMPARE(s.child->pos(), QPoint(-40, -25));
    s.view.setContentsPos(0, 0);
    QCOMPARE(s.child->pos(), QPoint(0, 0));
}

void tst_ScrollView::positionsAreLimited()
{
    Scrolled s;
    s.view.setContentsPos(-10, -10);
    QCOMPARE(s.contentsPos(), QPoint(0, 0));
    s.view.setContentsPos(5000, 5000);
    QCOMPARE(s.contentsPos(), s.lastPos());
    QCOMPARE(s.child->pos(), -s.lastPos()); // its last pixels are in sight
}

void tst_ScrollView::smallerContentsLimitThePosition()
{
    Scrolled s;
    s.view.setContentsPos(150, 100);
    s.view.resizeContents(120, 200);
    QCOMPARE(s.contentsPos(), QPoint(120 - s.view.viewport()->width(), 100));
    s.view.resizeContents(10, 10);
    QCOMPARE(s.contentsPos(), QPoint(0, 0));
    QCOMPARE(s.child->pos(), QPoint(0, 0));
}

void tst_ScrollView::moveChildIsInContentsCoordinates()
{
    Scrolled s;
    s.view.setContentsPos(40, 25);
    s.view.moveChild(s.child, 7, 9);
    QCOMPARE(s.child->pos(), QPoint(7 - 40, 9 - 25));
    s.view.setContentsPos(0, 0);
    QCOMPARE(s.child->pos(), QPoint(7, 9));
}

void tst_ScrollView::largerViewLimitsThePosition()
{
    Scrolled s;
    s.view.setContentsPos(5000, 5000);
    s.view.resize(200, 150);
    QCOMPARE(s.contentsPos(), s.lastPos());
    s.view.resize(400, 400);
    QCOMPARE(s.contentsPos(), QPoint(0, 0));
    QCOMPARE(s.child->pos(), QPoint(0, 0));
}

void tst_ScrollView::barsComeAndGo_data()
{
    QTest::addColumn<QSize>("contents");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");
    QTest::newRow("fits exactly") << QSize(96, 76) << false << false;
    QTest::newRow("a pixel too wide") << QSize(97, 20) << true << false;
    QTest::newRow("a pixel too high") << QSize(20, 77) << false << true;
    QTest::newRow("a pixel too wide and high") << QSize(97, 77) << true << true;
    QTest::newRow("too wide, and too high because of the bar") << QSize(200, 76) << true << true;
}

void tst_ScrollView::barsComeAndGo()
{
    QFETCH(const QSize, contents);
    QFETCH(const bool, horizontal);
    QFETCH(const bool, vertical);
    Scrolled s;
    QVERIFY(s.view.horizontalScrollBar()->isVisible());
    QVERIFY(s.view.verticalScrollBar()->isVisible());
    s.view.resizeContents(contents.width(), contents.height());
    QCoreApplication::processEvents();
    QCOMPARE(s.view.horizontalScrollBar()->isVisible(), horizontal);
    QCOMPARE(s.view.verticalScrollBar()->isVisible(), vertical);
}

void tst_ScrollView::wheelAndBarsScroll()
{
    Scrolled s;
    QWheelEvent wheel(QPointF(10, 10), s.view.mapToGlobal(QPointF(10, 10)), {}, QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(s.view.viewport(), &wheel);
    QVERIFY(s.view.contentsY() > 0);
    QCOMPARE(s.child->pos(), -s.contentsPos());
    QTest::keyClick(s.view.horizontalScrollBar(), Qt::Key_End);
    QCOMPARE(s.view.contentsX(), s.lastPos().x());
    QCOMPARE(s.child->pos(), -s.contentsPos());
}

void tst_ScrollView::contentsKeepTheirSize()
{
    Scrolled s;
    s.child->resize(500, 500); // only the owner sets it
    s.view.resize(50, 50);
    QCOMPARE(s.view.contentsWidth(), 300);
    QCOMPARE(s.view.contentsHeight(), 200);
}

int main(int argc, char** argv)
{
    return support::run<tst_ScrollView>(argc, argv);
}

#include "tst_ScrollView.moc"
