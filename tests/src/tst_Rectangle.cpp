#include "ToolFixtures.h"

using fixtures::Desk;
using fixtures::toggled;
using support::filled;
using support::sameImage;

class tst_Rectangle : public support::TestCase
{
    Q_OBJECT

private slots:
    void frameCoversThePlainDifference();
    void frameOfAWidePen_data();
    void frameOfAWidePen();
    void oneSideOfOnePixelUnderAWidePen_data();
    void oneSideOfOnePixelUnderAWidePen();
    void tapPaintsNothingButCounts();
    void dragWithoutWidthLeavesNoTrace_data();
    void dragWithoutWidthLeavesNoTrace();
    void draggedUpAndLeftItKeepsItsAnchor_data();
    void draggedUpAndLeftItKeepsItsAnchor();
    void filledWithTheBrush();
    void rightButtonFillsWithItsOwnBrush();
    void previewIsAnOutlineWhateverTheBrush();
    void commitsToTheRelease();
    void zoomedCornersAreConvertedOneByOne();
};

namespace {

QImage framed(const QImage& image, const QRect& rect, const QColor& color = Qt::blue)
{
    const QRect inside = rect.adjusted(1, 1, -1, -1);
    const QImage all = filled(image, rect, color);
    return inside.isValid() ? support::overlaid(all, inside.topLeft(), image.copy(inside)) : all;
}

} // namespace

void tst_Rectangle::frameCoversThePlainDifference()
{
    Desk desk(fixtures::Rectangle);
    desk.stylus.drag({{10, 20}, {30, 50}});
    const QImage expected = framed(desk.base, QRect(10, 20, 20, 30));
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Rectangle::frameOfAWidePen_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QRect>("outside");
    QTest::addColumn<QRect>("inside");
    QTest::newRow("3") << 3 << QRect(QPoint(9, 19), QPoint(30, 50))
                       << QRect(QPoint(12, 22), QPoint(27, 47));
    QTest::newRow("4") << 4 << QRect(QPoint(8, 18), QPoint(30, 50))
                       << QRect(QPoint(12, 22), QPoint(26, 46));
    QTest::newRow("5") << 5 << QRect(QPoint(8, 18), QPoint(31, 51))
                       << QRect(QPoint(13, 23), QPoint(26, 46));
}

void tst_Rectangle::frameOfAWidePen()
{
    QFETCH(const int, width);
    QFETCH(const QRect, outside);
    QFETCH(const QRect, inside);
    Desk desk(fixtures::Rectangle);
    desk.manager.setPenWidth(width);
    desk.stylus.drag({{10, 20}, {30, 50}});
    QVERIFY(
        sameImage(desk.canvas.merged(), filled(filled(desk.base, outside, Qt::blue), inside, Qt::white)));
}

void tst_Rectangle::oneSideOfOnePixelUnderAWidePen_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("covered");
    QTest::newRow("1 x 20") << QPoint(11, 40) << QRect(8, 18, 5, 24);
    QTest::newRow("20 x 1") << QPoint(30, 21) << QRect(8, 18, 24, 5);
    QTest::newRow("1 x 1") << QPoint(11, 21) << QRect(8, 18, 5, 5);
}

void tst_Rectangle::oneSideOfOnePixelUnderAWidePen()
{
    QFETCH(const QPoint, to);
    QFETCH(const QRect, covered);
    Desk desk(fixtures::Rectangle);
    desk.manager.setPenWidth(5);
    desk.stylus.press({10, 20});
    desk.stylus.move(to);
    QVERIFY(sameImage(desk.canvas.shown(), filled(desk.base, covered, Qt::black)));
    desk.stylus.release(to);
    QVERIFY(sameImage(desk.canvas.merged(), filled(desk.base, covered, Qt::blue)));
}

void tst_Rectangle::tapPaintsNothingButCounts()
{
    Desk desk(fixtures::Rectangle);
    desk.stylus.click({10, 20});
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(desk.canvas.isModified());
    QCOMPARE(desk.canvas.undoFlag(), 1);
}

void tst_Rectangle::dragWithoutWidthLeavesNoTrace_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::newRow("no height") << QPoint(60, 20);
    QTest::newRow("no width") << QPoint(10, 50);
}

void tst_Rectangle::dragWithoutWidthLeavesNoTrace()
{
    QFETCH(const QPoint, to);
    Desk desk(fixtures::Rectangle);
    desk.manager.setBrush(Qt::SolidPattern);
    desk.stylus.drag({{10, 20}, {30, 40}, to});
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(desk.canvas.isModified());
}

void tst_Rectangle::draggedUpAndLeftItKeepsItsAnchor_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("covered");
    QTest::newRow("up and left") << QPoint(10, 20) << QRect(QPoint(11, 21), QPoint(30, 50));
    QTest::newRow("up") << QPoint(40, 20) << QRect(QPoint(30, 21), QPoint(39, 50));
    QTest::newRow("left") << QPoint(10, 58) << QRect(QPoint(11, 50), QPoint(30, 57));
    QTest::newRow("one pixel") << QPoint(29, 49) << QRect(30, 50, 1, 1);
    QTest::newRow("two pixels") << QPoint(28, 48) << QRect(29, 49, 2, 2);
}

void tst_Rectangle::draggedUpAndLeftItKeepsItsAnchor()
{
    QFETCH(const QPoint, to);
    QFETCH(const QRect, covered);
    Desk desk(fixtures::Rectangle);
    desk.stylus.press({30, 50});
    desk.stylus.move(to);
    QVERIFY(sameImage(desk.canvas.shown(), framed(desk.base, covered, Qt::black)));
    desk.stylus.release(to);
    const QImage expected = framed(desk.base, covered);
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Rectangle::filledWithTheBrush()
{
    Desk desk(fixtures::Rectangle);
    desk.manager.setBrush(Qt::SolidPattern);
    desk.stylus.drag({{10, 20}, {30, 50}});
    const QImage expected = filled(desk.base, QRect(10, 20, 20, 30), Qt::blue);
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Rectangle::rightButtonFillsWithItsOwnBrush()
{
    Desk desk(fixtures::Rectangle);
    desk.tool().setRightBrush(Qt::yellow);
    fixtures::Stylus stylus(desk.tool());
    stylus.press({10, 20}, Qt::RightButton);
    stylus.release({30, 50}, Qt::RightButton);
    QVERIFY(sameImage(desk.canvas.merged(), framed(filled(desk.base, QRect(10, 20, 20, 30), Qt::yellow),
                                                   QRect(10, 20, 20, 30), Qt::darkGreen)));
}

void tst_Rectangle::previewIsAnOutlineWhateverTheBrush()
{
    Desk desk(fixtures::Rectangle);
    desk.manager.setBrush(Qt::SolidPattern);
    desk.stylus.press({10, 20});
    desk.stylus.move({30, 50});
    QVERIFY(sameImage(desk.canvas.shown(), framed(desk.base, QRect(10, 20, 20, 30), Qt::black)));
}

void tst_Rectangle::commitsToTheRelease()
{
    Desk desk(fixtures::Rectangle);
    desk.stylus.press({10, 20});
    desk.stylus.move({30, 50});
    desk.stylus.release({60, 40});
    const QImage expected = framed(desk.base, QRect(10, 20, 50, 20));
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Rectangle::zoomedCornersAreConvertedOneByOne()
{
    Desk desk(fixtures::Rectangle, support::sheet(QSize(60, 40)), 150);
    desk.stylus.drag({{16, 16}, {61, 49}});
    QVERIFY(sameImage(desk.canvas.shown(), framed(desk.start, QRect(16, 16, 45, 33))));
    QVERIFY(sameImage(desk.canvas.merged(), framed(desk.base, QRect(QPoint(10, 10), QPoint(39, 31)))));
}

int main(int argc, char** argv)
{
    return support::run<tst_Rectangle>(argc, argv);
}

#include "tst_Rectangle.moc"
