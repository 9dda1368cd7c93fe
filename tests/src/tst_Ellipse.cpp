#include "ToolFixtures.h"

using fixtures::Desk;
using fixtures::ellipse;
using fixtures::painted;
using fixtures::solidPen;
using fixtures::toggled;
using support::sameImage;

class tst_Ellipse : public support::TestCase
{
    Q_OBJECT

private slots:
    void boxHoldsBothCorners_data();
    void boxHoldsBothCorners();
    void oppositeDragsDrawTheSame_data();
    void oppositeDragsDrawTheSame();
    void neverLeavesItsBox();
    void areaOfFourDrawsNothingButCounts_data();
    void areaOfFourDrawsNothingButCounts();
    void areaAboveFourIsDrawn();
    void dragWithoutHeightDrawsNothing();
    void smallOnScreenAboveSizeOne();
    void smallInThePictureBelowSizeOne();
    void filledWithTheBrush();
    void previewIsAnOutlineWhateverTheBrush();
    void commitsToTheRelease();
    void moveFromAnAreaOfFourLeavesItInverted();
    void releaseFromAnAreaOfFourLeavesNothing();
};

void tst_Ellipse::boxHoldsBothCorners_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QRect>("box");
    QTest::newRow("1") << 1 << QRect(QPoint(10, 20), QPoint(40, 50));
    QTest::newRow("3") << 3 << QRect(QPoint(9, 19), QPoint(41, 51));
    QTest::newRow("5") << 5 << QRect(QPoint(8, 18), QPoint(42, 52));
}

void tst_Ellipse::boxHoldsBothCorners()
{
    QFETCH(const int, width);
    QFETCH(const QRect, box);
    Desk desk(fixtures::Ellipse);
    desk.manager.setPenWidth(width);
    desk.stylus.drag({{10, 20}, {40, 50}});
    QCOMPARE(support::inkBounds(desk.canvas.merged()), box);
    QCOMPARE(support::inkBounds(desk.canvas.shown()), box);
}

void tst_Ellipse::oppositeDragsDrawTheSame_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::newRow("up left") << QPoint(41, 50) << QPoint(10, 20);
    QTest::newRow("up right") << QPoint(10, 50) << QPoint(41, 20);
    QTest::newRow("down left") << QPoint(41, 20) << QPoint(10, 50);
}

void tst_Ellipse::oppositeDragsDrawTheSame()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, to);
    Desk forward(fixtures::Ellipse);
    forward.stylus.drag({{10, 20}, {41, 50}});
    Desk opposite(fixtures::Ellipse);
    opposite.stylus.drag({from, to});
    QVERIFY(sameImage(opposite.canvas.merged(), forward.canvas.merged()));
    QVERIFY(sameImage(opposite.canvas.shown(), forward.canvas.merged()));
}

void tst_Ellipse::neverLeavesItsBox()
{
    constexpr QPoint from(5, 5);
    Desk desk(fixtures::Ellipse, support::sheet(QSize(110, 40)));
    for (int w = 3; w <= 99; ++w) {
        for (const int h : {8, 9, 10, 11, 12, 30}) {
            desk.stylus.drag({from, from + QPoint(w - 1, h - 1)});
            const QRect bounds = support::inkBounds(desk.canvas.merged());
            QVERIFY(!bounds.isEmpty());
            QCOMPARE(bounds | QRect(from, QSize(w, h)), QRect(from, QSize(w, h)));
            desk.canvas.undo();
        }
    }
}

void tst_Ellipse::areaOfFourDrawsNothingButCounts_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::newRow("2 x 2") << QPoint(12, 22);
    QTest::newRow("1 x 4") << QPoint(11, 24);
    QTest::newRow("-2 x 2") << QPoint(8, 22);
}

void tst_Ellipse::areaOfFourDrawsNothingButCounts()
{
    QFETCH(const QPoint, to);
    Desk desk(fixtures::Ellipse);
    desk.stylus.press({10, 20});
    desk.stylus.release(to);
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(desk.canvas.isModified());
    QCOMPARE(desk.canvas.undoFlag(), 1);
}

void tst_Ellipse::areaAboveFourIsDrawn()
{
    Desk desk(fixtures::Ellipse);
    desk.stylus.drag({{10, 20}, {15, 21}});
    QCOMPARE(support::inkBounds(desk.canvas.merged()), QRect(QPoint(10, 20), QPoint(15, 21)));
}

void tst_Ellipse::dragWithoutHeightDrawsNothing()
{
    Desk desk(fixtures::Ellipse);
    desk.stylus.drag({{10, 20}, {70, 20}});
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_Ellipse::smallOnScreenAboveSizeOne()
{
    Desk desk(fixtures::Ellipse, support::sheet(QSize(60, 40)), 200);
    desk.stylus.drag({{20, 20}, {23, 23}});
    QCOMPARE(support::inkBounds(desk.canvas.shown()).size(), QSize(5, 5)); // 4 x 4 and a pen of 2
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
}

void tst_Ellipse::smallInThePictureBelowSizeOne()
{
    Desk desk(fixtures::Ellipse, support::sheet(QSize(60, 40)), 50);
    desk.stylus.drag({{10, 10}, {12, 12}});
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QCOMPARE(support::inkBounds(desk.canvas.merged()), QRect(20, 20, 5, 5));
}

void tst_Ellipse::filledWithTheBrush()
{
    Desk desk(fixtures::Ellipse);
    desk.tool().setLeftBrush(Qt::yellow);
    desk.stylus.drag({{10, 20}, {40, 50}});
    const QImage image = desk.canvas.merged();
    QVERIFY(sameImage(
        image, painted(desk.base, solidPen(Qt::blue, 1), QColor(Qt::yellow), ellipse({10, 20}, {40, 50}))));
    QVERIFY(sameImage(desk.canvas.shown(), image));
    QCOMPARE(image.pixelColor(25, 35), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(10, 35), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(10, 20), QColor(Qt::white));
}

void tst_Ellipse::previewIsAnOutlineWhateverTheBrush()
{
    Desk desk(fixtures::Ellipse, support::mosaic(QSize(80, 60)));
    desk.manager.setBrush(Qt::SolidPattern);
    desk.stylus.press({10, 20});
    desk.stylus.move({40, 50});
    QVERIFY(sameImage(desk.canvas.shown(), toggled(desk.start, 1, ellipse({10, 20}, {40, 50}))));
}

void tst_Ellipse::commitsToTheRelease()
{
    Desk desk(fixtures::Ellipse);
    desk.stylus.press({10, 20});
    desk.stylus.move({30, 50});
    desk.stylus.release({60, 40});
    const QImage expected =
        painted(desk.base, solidPen(Qt::blue, 1), Qt::NoBrush, ellipse({10, 20}, {60, 40}));
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Ellipse::moveFromAnAreaOfFourLeavesItInverted()
{
    Desk desk(fixtures::Ellipse);
    desk.stylus.press({10, 20});
    desk.stylus.move({12, 22});
    QVERIFY(sameImage(desk.canvas.shown(), desk.start)); // not above four: not shown
    desk.stylus.move({10, 22});
    const QImage left =
        toggled(desk.start, 1, ellipse({10, 20}, {12, 22}, 3)); // but above three: "removed"
    QVERIFY(support::inkCount(left) > 0);
    QVERIFY(sameImage(desk.canvas.shown(), left));
    desk.stylus.release({10, 22});
    QVERIFY(sameImage(desk.canvas.shown(), left));
    desk.canvas.updateZoomed();
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_Ellipse::releaseFromAnAreaOfFourLeavesNothing()
{
    Desk desk(fixtures::Ellipse);
    desk.stylus.drag({{10, 20}, {40, 50}, {12, 22}});
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
}

int main(int argc, char** argv)
{
    return support::run<tst_Ellipse>(argc, argv);
}

#include "tst_Ellipse.moc"
