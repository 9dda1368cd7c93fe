#include "Fixtures.h"
#include "KORVA_Pen.h"

using fixtures::PictureCanvas;
using support::Gestures;
using support::inkBounds;
using support::inkCount;
using support::sameImage;
using support::sheet;

namespace {

constexpr QSize size(60, 50);

/// A pencil at work on a white canvas: red in the primary, green in the secondary button.
struct Drawing
{
    explicit Drawing(int penWidth = 1, int zoom = 100)
    {
        canvas.setZoom(zoom);
        pen.setLeftPen(QPen(Qt::red, penWidth));
        pen.setRightPen(QPen(Qt::green, penWidth));
        fixtures::use(canvas, pen);
    }

    // The canvas keeps the other buttons for itself.
    void sendToTool(QEvent::Type type, QPoint at, Qt::MouseButton button)
    {
        QMouseEvent event(type, at, at, button, Qt::NoButton, Qt::NoModifier);
        switch (type) {
        case QEvent::MouseButtonPress:
            return pen.mousePressEvent(&event);
        case QEvent::MouseMove:
            return pen.mouseMoveEvent(&event);
        default:
            return pen.mouseReleaseEvent(&event);
        }
    }

    PictureCanvas canvas{sheet(size)};
    KORVA_Pen pen{"Pencil"};
    Gestures stylus{canvas};
};

QImage redOnWhite(const QRect& rect)
{
    return support::filled(sheet(size), rect, Qt::red);
}

} // namespace

class tst_Pen : public support::TestCase
{
    Q_OBJECT

private slots:
    void nameAndClass();
    void activatingSetsTheCrossCursor();
    void tapLeavesADotInBothPictures();
    void tapIsUndoable();
    void dotIsAsWideAsThePen_data();
    void dotIsAsWideAsThePen();
    void linesFollowEveryMove();
    void strokeIsAsWideAsThePen_data();
    void strokeIsAsWideAsThePen();
    void penKeepsItsWidth();
    void moveToTheSamePointDrawsAndRepaintsNothing();
    void releaseDrawsNothing();
    void releaseOfAnotherButtonKeepsTheStroke();
    void moveAfterReleaseDrawsNothing();
    void moveBeforeAnyPressDrawsNothing();
    void pressDuringAStrokeBeginsAnother();
    void oneStrokeIsOneModification();
    void otherButtonsTakeTheSecondaryPen_data();
    void otherButtonsTakeTheSecondaryPen();
    void inactiveToolDoesNothing();
    void activatingEndsAStroke();
    void pressCommitsAFloatingPiece();
    void strokesBeyondTheEdgeAreCutOff();
};

void tst_Pen::nameAndClass()
{
    const KORVA_Pen pen("Pencil");
    QCOMPARE(pen.name(), "Pencil");
    QCOMPARE(pen.metaObject()->className(), "KORVA_Pen");
}

void tst_Pen::activatingSetsTheCrossCursor()
{
    Drawing d;
    QCOMPARE(d.canvas.cursor().shape(), Qt::CrossCursor);
}

void tst_Pen::tapLeavesADotInBothPictures()
{
    Drawing d;
    d.stylus.click({12, 34});
    QVERIFY(sameImage(d.canvas.shown(), redOnWhite({12, 34, 1, 1})));
    QVERIFY(sameImage(d.canvas.merged(), redOnWhite({12, 34, 1, 1})));
    QVERIFY(d.canvas.isModified());
}

void tst_Pen::tapIsUndoable()
{
    Drawing d;
    d.stylus.click({12, 34});
    QCOMPARE(d.canvas.undoFlag(), 1);
    d.canvas.undo();
    QVERIFY(sameImage(d.canvas.merged(), sheet(size)));
    d.canvas.redo();
    QVERIFY(sameImage(d.canvas.merged(), redOnWhite({12, 34, 1, 1})));
}

void tst_Pen::dotIsAsWideAsThePen_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    for (const int zoom : {37, 50, 75, 100, 150, 200, 333})
        for (const int width : {0, 1, 2, 3, 4, 5, 10})
            QTest::addRow("%d %%, pen %d", zoom, width) << zoom << width;
}

void tst_Pen::dotIsAsWideAsThePen()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    const int inPicture = qMax(1, width);
    const int onScreen = qMax(1, width * zoom / 100);
    for (const QPoint place : {QPoint(20, 20), QPoint(25, 24), QPoint(30, 33)}) {
        Drawing d(width, zoom);
        const QPoint at(place.x() * zoom / 100, place.y() * zoom / 100);
        d.stylus.click(at);
        const QRect screen = inkBounds(d.canvas.shown());
        QCOMPARE(screen.size(), QSize(onScreen, onScreen));
        QCOMPARE(screen.topLeft(), at - QPoint(onScreen / 2, onScreen / 2));
        const QRect ink = inkBounds(d.canvas.merged());
        QCOMPARE(ink.size(), QSize(inPicture, inPicture));
        QCOMPARE(inkCount(d.canvas.merged()), inPicture * inPicture);
        QVERIFY(ink.contains(QPoint(at.x() * 100 / zoom, at.y() * 100 / zoom)));
    }
}

void tst_Pen::linesFollowEveryMove()
{
    Drawing d;
    d.stylus.drag({{5, 6}, {20, 6}, {20, 30}, {11, 30}});
    const QImage expected = sheet(size, Qt::white, [](QPainter& painter) {
        painter.fillRect(5, 6, 16, 1, Qt::red);
        painter.fillRect(20, 6, 1, 25, Qt::red);
        painter.fillRect(11, 30, 10, 1, Qt::red);
    });
    QVERIFY(sameImage(d.canvas.shown(), expected));
    QVERIFY(sameImage(d.canvas.merged(), expected));
}

void tst_Pen::strokeIsAsWideAsThePen_data()
{
    dotIsAsWideAsThePen_data();
}

void tst_Pen::strokeIsAsWideAsThePen()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    Drawing d(width, zoom);
    d.stylus.drag({{15 * zoom / 100, 20 * zoom / 100}, {45 * zoom / 100, 20 * zoom / 100}});
    const QRect middle(25, 0, 10, size.height()); // away from the ends
    const QImage screen = d.canvas.shown();
    QCOMPARE(inkBounds(screen.copy(28 * zoom / 100, 0, 2, screen.height())).height(),
             qMax(1, width * zoom / 100));
    const QImage stroke = d.canvas.merged().copy(middle);
    QCOMPARE(inkBounds(stroke).size(), QSize(10, qMax(1, width)));
    QCOMPARE(inkCount(stroke), 10 * qMax(1, width));
}

void tst_Pen::penKeepsItsWidth()
{
    Drawing d(3, 200);
    d.stylus.drag({{20, 20}, {50, 50}});
    QCOMPARE(d.pen.leftPen(), QPen(Qt::red, 3));
    QCOMPARE(d.pen.rightPen(), QPen(Qt::green, 3));
}

void tst_Pen::moveToTheSamePointDrawsAndRepaintsNothing()
{
    struct PaintCounter : QObject
    {
        int paints = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint;
            return false;
        }
    } counter;
    Drawing d;
    d.canvas.show();
    QCoreApplication::processEvents();
    d.canvas.installEventFilter(&counter);
    d.stylus.press({12, 34});
    QTRY_COMPARE(counter.paints, 1);
    d.canvas.zoomedPixmap()->fill(Qt::blue); // would show what is drawn again
    d.stylus.move({12, 34});
    QTest::qWait(20); // longer than the screen's pace
    QCOMPARE(counter.paints, 1);
    QVERIFY(sameImage(d.canvas.shown(), sheet(size, Qt::blue)));
    d.stylus.move({13, 34});
    QTRY_COMPARE(counter.paints, 2);
}

void tst_Pen::releaseDrawsNothing()
{
    Drawing d;
    d.stylus.press({12, 34});
    d.stylus.release({40, 10});
    QVERIFY(sameImage(d.canvas.merged(), redOnWhite({12, 34, 1, 1})));
}

void tst_Pen::releaseOfAnotherButtonKeepsTheStroke()
{
    Drawing d;
    d.stylus.press({12, 34});
    d.sendToTool(QEvent::MouseButtonRelease, {12, 34}, Qt::RightButton);
    d.stylus.move({20, 34});
    QVERIFY(sameImage(d.canvas.merged(), redOnWhite({12, 34, 9, 1})));
}

void tst_Pen::moveAfterReleaseDrawsNothing()
{
    Drawing d;
    d.stylus.click({12, 34});
    d.sendToTool(QEvent::MouseMove, {20, 34}, Qt::NoButton);
    QVERIFY(sameImage(d.canvas.merged(), redOnWhite({12, 34, 1, 1})));
}

void tst_Pen::moveBeforeAnyPressDrawsNothing()
{
    Drawing d;
    d.sendToTool(QEvent::MouseMove, {20, 34}, Qt::NoButton);
    d.sendToTool(QEvent::MouseButtonRelease, {20, 34}, Qt::LeftButton);
    QVERIFY(sameImage(d.canvas.merged(), sheet(size)));
    QVERIFY(!d.canvas.isModified());
}

void tst_Pen::pressDuringAStrokeBeginsAnother()
{
    Drawing d;
    d.stylus.press({5, 5});
    d.stylus.move({10, 5});
    d.stylus.press({30, 30});
    d.stylus.move({35, 30});
    QVERIFY(
        sameImage(d.canvas.merged(), support::filled(redOnWhite({5, 5, 6, 1}), {30, 30, 6, 1}, Qt::red)));
    d.canvas.undo();
    QVERIFY(sameImage(d.canvas.merged(), redOnWhite({5, 5, 6, 1})));
}

void tst_Pen::oneStrokeIsOneModification()
{
    Drawing d;
    support::SignalRecorder recorder;
    recorder.watch(&d.canvas, &KORVA_Canvas::modified);
    recorder.watch(&d.canvas, &KORVA_Canvas::pixmapChanged);
    recorder.watch(&d.pen, &KORVA_Tool::modified, "pen");
    d.stylus.drag({{5, 5}, {10, 5}, {10, 10}});
    QCOMPARE(recorder.taken(), QStringList("modified()"));
    d.canvas.undo();
    QVERIFY(sameImage(d.canvas.merged(), sheet(size)));
}

void tst_Pen::otherButtonsTakeTheSecondaryPen_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QColor>("color");
    QTest::newRow("left") << Qt::LeftButton << QColor(Qt::red);
    QTest::newRow("right") << Qt::RightButton << QColor(Qt::green);
    QTest::newRow("middle") << Qt::MiddleButton << QColor(Qt::green);
}

void tst_Pen::otherButtonsTakeTheSecondaryPen()
{
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const QColor, color);
    Drawing d;
    d.sendToTool(QEvent::MouseButtonPress, {5, 5}, button);
    d.sendToTool(QEvent::MouseMove, {9, 5}, Qt::NoButton);
    d.sendToTool(QEvent::MouseButtonRelease, {9, 5}, button);
    const QImage expected = support::filled(sheet(size), {5, 5, 5, 1}, color);
    QVERIFY(sameImage(d.canvas.shown(), expected));
    QVERIFY(sameImage(d.canvas.merged(), expected));
}

void tst_Pen::inactiveToolDoesNothing()
{
    Drawing d;
    fixtures::stopUsing(d.canvas, d.pen);
    d.sendToTool(QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton);
    d.sendToTool(QEvent::MouseMove, {9, 5}, Qt::NoButton);
    d.sendToTool(QEvent::MouseButtonRelease, {9, 5}, Qt::LeftButton);
    d.stylus.drag({{5, 5}, {9, 5}});
    QVERIFY(sameImage(d.canvas.merged(), sheet(size)));
    QVERIFY(!d.canvas.isModified());
}

void tst_Pen::activatingEndsAStroke()
{
    Drawing d;
    d.stylus.press({5, 5});
    fixtures::stopUsing(d.canvas, d.pen);
    fixtures::use(d.canvas, d.pen);
    d.stylus.move({20, 5});
    QVERIFY(sameImage(d.canvas.merged(), redOnWhite({5, 5, 1, 1})));
}

void tst_Pen::pressCommitsAFloatingPiece()
{
    Drawing d;
    fixtures::setClipboard(sheet(QSize(8, 8), Qt::blue));
    d.canvas.paste();
    d.stylus.click({30, 30});
    QVERIFY(!d.canvas.isFloating());
    const QImage merged = support::filled(sheet(size), {0, 0, 8, 8}, Qt::blue);
    QVERIFY(sameImage(d.canvas.shown(), support::filled(merged, {30, 30, 1, 1}, Qt::red)));
    QVERIFY(sameImage(d.canvas.merged(), support::filled(merged, {30, 30, 1, 1}, Qt::red)));
    d.canvas.undo(); // takes the dot back, the piece stays
    QVERIFY(sameImage(d.canvas.merged(), merged));
}

void tst_Pen::strokesBeyondTheEdgeAreCutOff()
{
    Drawing d(3);
    d.stylus.drag({{50, 25}, {500, 25}, {500, -400}, {-30, -400}, {-30, 10}, {3, 10}});
    QCOMPARE(inkBounds(d.canvas.merged()).right(), size.width() - 1);
    QCOMPARE(inkBounds(d.canvas.merged()).left(), 0);
    QVERIFY(sameImage(d.canvas.shown(), d.canvas.merged()));
}

int main(int argc, char** argv)
{
    return support::run<tst_Pen>(argc, argv);
}

#include "tst_Pen.moc"
