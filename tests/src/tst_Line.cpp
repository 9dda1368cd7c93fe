#include "ToolFixtures.h"

using fixtures::Desk;
using fixtures::line;
using fixtures::painted;
using fixtures::solidPen;
using support::sameImage;

class tst_Line : public support::TestCase
{
    Q_OBJECT

private slots:
    void tapLeavesOnePoint();
    void previewIsInvertedOnScreenOnly();
    void anchorShowsThroughDuringPreview();
    void sharedPixelsStayInverted();
    void lineEndsAtTheLastMove();
    void zoomedLineLandsInThePicture();
};

void tst_Line::tapLeavesOnePoint()
{
    Desk desk(fixtures::Line);
    desk.stylus.click({10, 20});
    const QImage point = support::filled(desk.base, QRect(10, 20, 1, 1), Qt::blue);
    QVERIFY(sameImage(desk.canvas.merged(), point));
    QVERIFY(sameImage(desk.canvas.shown(), point));
    QVERIFY(desk.canvas.isModified());
    QCOMPARE(desk.canvas.undoFlag(), 1);
}

void tst_Line::previewIsInvertedOnScreenOnly()
{
    Desk desk(fixtures::Line, support::mosaic(QSize(80, 60)));
    desk.stylus.press({10, 10});
    desk.stylus.move({50, 10});
    QImage expected = desk.base;
    for (int x = 11; x <= 50; ++x)
        expected.setPixel(x, 10, expected.pixel(x, 10) ^ 0xffffff);
    QVERIFY(sameImage(desk.canvas.shown(), expected));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(!desk.canvas.isModified());
}

void tst_Line::anchorShowsThroughDuringPreview()
{
    Desk desk(fixtures::Line);
    desk.stylus.press({10, 10});
    for (const QPoint to : {QPoint(30, 10), QPoint(10, 40), QPoint(30, 40)}) {
        desk.stylus.move(to);
        QCOMPARE(desk.canvas.shown().pixelColor(10, 10), QColor(Qt::white));
        QCOMPARE(desk.canvas.shown().pixelColor(to), QColor(Qt::black));
    }
    desk.stylus.release({30, 40});
    QCOMPARE(desk.canvas.shown().pixelColor(10, 10), QColor(Qt::blue));
}

void tst_Line::sharedPixelsStayInverted()
{
    Desk desk(fixtures::Line);
    desk.stylus.press({10, 10});
    desk.stylus.move({50, 10});
    desk.stylus.move({30, 10});
    QVERIFY(sameImage(desk.canvas.shown(), support::filled(desk.base, QRect(11, 10, 20, 1), Qt::black)));
}

void tst_Line::lineEndsAtTheLastMove()
{
    Desk desk(fixtures::Line);
    desk.stylus.press({10, 10});
    desk.stylus.move({40, 10});
    desk.stylus.release({70, 50});
    const QImage expected = support::filled(desk.base, QRect(10, 10, 31, 1), Qt::blue);
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Line::zoomedLineLandsInThePicture()
{
    Desk desk(fixtures::Line, support::sheet(QSize(120, 40)), 150);
    desk.stylus.drag({{15, 15}, {151, 31}});
    QVERIFY(sameImage(desk.canvas.merged(),
                      painted(desk.base, solidPen(Qt::blue, 1), Qt::NoBrush, line({10, 10}, {100, 20}))));
    QVERIFY(sameImage(desk.canvas.shown(),
                      painted(desk.start, solidPen(Qt::blue, 1), Qt::NoBrush, line({15, 15}, {151, 31}))));
}

int main(int argc, char** argv)
{
    return support::run<tst_Line>(argc, argv);
}

#include "tst_Line.moc"
