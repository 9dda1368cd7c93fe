#include "ToolFixtures.h"

#include <QSignalSpy>

#include <cmath>

using fixtures::Desk;
using fixtures::painted;
using fixtures::toggled;
using fixtures::ToolID;
using support::sameImage;

namespace {

constexpr QSize screenSize(64, 48); // of every zoom

/// A desk whose shapes are even while Shift is held.
struct EvenDesk : Desk
{
    EvenDesk(ToolID id, const QImage& image, int zoom) : Desk(id, image, zoom)
    {
        KORVA_Manners manners;
        manners.evenShapes = true;
        canvas.setManners(manners);
    }

    void send(QEvent::Type type, QPoint at, Qt::KeyboardModifiers held = Qt::ShiftModifier)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, canvas.mapToGlobal(QPointF(at)), button, down, held);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void press(QPoint at) { send(QEvent::MouseButtonPress, at, Qt::NoModifier); }
    void move(QPoint to, Qt::KeyboardModifiers held = Qt::ShiftModifier)
    {
        send(QEvent::MouseMove, to, held);
    }
    void release(QPoint at, Qt::KeyboardModifiers held = Qt::ShiftModifier)
    {
        send(QEvent::MouseButtonRelease, at, held);
    }
};

QPoint inPicture(QPoint p, int zoom)
{
    return {p.x() * 100 / zoom, p.y() * 100 / zoom};
}

QPoint onScreen(QPoint p, int zoom)
{
    const auto shown = [zoom](int c) { return c < 0 ? -((-c * zoom + 99) / 100) : (c * zoom + 99) / 100; };
    return {shown(p.x()), shown(p.y())};
}

/// The far corner of a square that reaches as far as the pointer on its longer side.
QPoint squareCorner(QPoint from, QPoint to)
{
    const QPoint span = to - from;
    const int side = std::max(std::abs(span.x()), std::abs(span.y()));
    return {from.x() + (span.x() < 0 ? -side : side), from.y() + (span.y() < 0 ? -side : side)};
}

/// The pixels about the place on the nearest of the 24 directions.
QList<QPoint> evenEnds(QPoint from, QPoint to)
{
    const QPointF span = to - from;
    QPointF nearest;
    double least = INFINITY;
    for (int direction = 0; direction < 24; ++direction) {
        const double angle = direction * 15 * M_PI / 180;
        const double length = span.x() * std::cos(angle) + span.y() * std::sin(angle);
        const QPointF foot(length * std::cos(angle), length * std::sin(angle));
        if (const double distance = std::hypot(foot.x() - span.x(), foot.y() - span.y());
            length >= 0 && distance < least - 1e-9) {
            least = distance;
            nearest = foot;
        }
    }
    QList<QPoint> ends;
    for (const double x : {std::floor(nearest.x()), std::ceil(nearest.x())}) {
        for (const double y : {std::floor(nearest.y()), std::ceil(nearest.y())})
            ends.append(from + QPoint(int(x), int(y)));
    }
    return ends;
}

QPoint randomPoint(QRandomGenerator& random)
{
    return {random.bounded(-8, screenSize.width() + 8), random.bounded(-8, screenSize.height() + 8)};
}

} // namespace

/// Shift during a drag of a shape, a line or a selection.
class tst_EvenShapes : public support::TestCase
{
    Q_OBJECT

private slots:
    void squaresAndCircles_data();
    void squaresAndCircles();
    void lines_data();
    void lines();
    void diagonalsAreExact();
    void shiftOnlyWhileHeld();
    void shiftIsNothingClassically();
    void selections_data();
    void selections();
    void sizesAreTold();

private:
    static void addCases(std::initializer_list<ToolID> ids, std::initializer_list<int> zooms);
};

void tst_EvenShapes::addCases(std::initializer_list<ToolID> ids, std::initializer_list<int> zooms)
{
    QTest::addColumn<ToolID>("id");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    for (const ToolID id : ids) {
        for (const int zoom : zooms) {
            for (const int width : {1, 2, 3, 5})
                QTest::addRow("tool %d, %d %%, width %d", id, zoom, width) << id << zoom << width;
        }
    }
}

void tst_EvenShapes::squaresAndCircles_data()
{
    addCases({fixtures::Rectangle, fixtures::Ellipse}, {37, 50, 92, 100, 150, 200, 333});
}

void tst_EvenShapes::squaresAndCircles()
{
    QFETCH(const ToolID, id);
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    EvenDesk desk(id, support::mosaic(screenSize * 100 / zoom), zoom);
    desk.manager.setPenWidth(width);
    QRandomGenerator random(quint32(id * 10000 + zoom * 10 + width));
    for (int i = 0; i < 60; ++i) {
        const bool isFilled = random.bounded(2) == 1;
        desk.manager.setBrush(isFilled ? Qt::SolidPattern : Qt::NoBrush);
        const QPoint from = randomPoint(random);
        const QPoint to = randomPoint(random);
        const QPoint far = squareCorner(inPicture(from, zoom), inPicture(to, zoom));
        const int onScreenWidth = width * zoom / 100;

        desk.press(from);
        desk.move(to);
        QVERIFY(sameImage(desk.canvas.shown(), toggled(desk.start, onScreenWidth,
                                                       fixtures::shape(id, from, onScreen(far, zoom)))));
        desk.release(to);
        // Below 100 % the pixel that is shown for the corner may be the next one: still a square.
        const QPoint end = squareCorner(inPicture(from, zoom), inPicture(onScreen(far, zoom), zoom));
        QVERIFY(zoom < 100 || end == far);
        QVERIFY(sameImage(desk.canvas.merged(),
                          painted(desk.base, fixtures::solidPen(Qt::blue, width), desk.tool().leftBrush(),
                                  fixtures::shape(id, inPicture(from, zoom), end))));
        QVERIFY(desk.canvas.isModified());
        desk.canvas.undo();
        QVERIFY(sameImage(desk.canvas.merged(), desk.base));
        QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    }
}

void tst_EvenShapes::lines_data()
{
    addCases({fixtures::Line}, {100, 150, 200, 333}); // below, pixels of the picture share one
}

void tst_EvenShapes::lines()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    EvenDesk desk(fixtures::Line, support::mosaic(screenSize * 100 / zoom), zoom);
    desk.manager.setPenWidth(width);
    QRandomGenerator random(quint32(zoom * 10 + width));
    for (int i = 0; i < 60; ++i) {
        const QPoint from = randomPoint(random);
        const QPoint to = randomPoint(random);
        desk.press(from);
        desk.move(to);
        const QImage preview = desk.canvas.shown();
        desk.release(to);
        const QImage drawn = desk.canvas.merged();
        const QPoint begin = inPicture(from, zoom);
        bool isEven = false;
        for (const QPoint end : evenEnds(begin, inPicture(to, zoom))) {
            const QImage line = painted(desk.base, fixtures::solidPen(Qt::blue, width), Qt::NoBrush,
                                        fixtures::line(begin, end));
            QImage shown =
                toggled(desk.start, width * zoom / 100, fixtures::line(from, onScreen(end, zoom)));
            shown = toggled(shown, width * zoom / 100, fixtures::line(from, from)); // its first point
            isEven = isEven || (drawn == line && preview == shown);
        }
        QVERIFY(isEven);
        desk.canvas.undo();
        QVERIFY(sameImage(desk.canvas.merged(), desk.base));
        QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    }
}

void tst_EvenShapes::diagonalsAreExact()
{
    EvenDesk desk(fixtures::Line, support::sheet(QSize(80, 80)), 100);
    for (const QPoint to : {QPoint(60, 57), QPoint(57, 60), QPoint(61, 59)}) {
        desk.press({10, 10});
        desk.move(to);
        desk.release(to);
        const int side = (to.x() + to.y() - 20 + 1) / 2;
        QVERIFY(
            sameImage(desk.canvas.merged(), painted(desk.base, fixtures::solidPen(Qt::blue, 1), Qt::NoBrush,
                                                    fixtures::line({10, 10}, {10 + side, 10 + side}))));
        desk.canvas.undo();
    }
}

// A line ends where it was last shown, another shape where the button is lifted, each as Shift was then.
void tst_EvenShapes::shiftOnlyWhileHeld()
{
    EvenDesk desk(fixtures::Rectangle, support::sheet(QSize(80, 60)), 100);
    desk.press({10, 10});
    desk.move({30, 20});
    desk.move({40, 25}, Qt::NoModifier);
    QVERIFY(
        sameImage(desk.canvas.shown(), toggled(desk.start, 1, fixtures::rectangle({10, 10}, {40, 25}))));
    desk.release({40, 25});
    QVERIFY(sameImage(desk.canvas.merged(), painted(desk.base, fixtures::solidPen(Qt::blue, 1), Qt::NoBrush,
                                                    fixtures::rectangle({10, 10}, {40, 40}))));
    EvenDesk other(fixtures::Line, support::sheet(QSize(80, 60)), 100);
    other.press({10, 10});
    other.move({40, 12});
    other.release({40, 12}, Qt::NoModifier);
    QVERIFY(sameImage(other.canvas.merged(), painted(other.base, fixtures::solidPen(Qt::blue, 1),
                                                     Qt::NoBrush, fixtures::line({10, 10}, {40, 10}))));
}

void tst_EvenShapes::shiftIsNothingClassically()
{
    EvenDesk desk(fixtures::Rectangle, support::sheet(QSize(80, 60)), 100);
    desk.canvas.setManners({});
    desk.press({10, 10});
    desk.move({40, 25});
    desk.release({40, 25});
    QVERIFY(sameImage(desk.canvas.merged(), painted(desk.base, fixtures::solidPen(Qt::blue, 1), Qt::NoBrush,
                                                    fixtures::rectangle({10, 10}, {40, 25}))));
}

void tst_EvenShapes::selections_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("down") << QPoint(10, 10) << QPoint(30, 20) << QRect(10, 10, 20, 20);
    QTest::newRow("at the edge") << QPoint(10, 40) << QPoint(60, 50) << QRect(10, 40, 20, 20);
    QTest::newRow("beyond") << QPoint(50, 10) << QPoint(200, 12) << QRect(50, 10, 30, 30);
}

void tst_EvenShapes::selections()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, to);
    QFETCH(const QRect, expected);
    EvenDesk desk(fixtures::AreaSelect, support::mosaic(QSize(80, 60)), 100);
    desk.press(from);
    desk.move(to);
    desk.release(to);
    QCOMPARE(desk.canvas.selection(), expected);
    desk.canvas.mergePastePixmap();
    QVERIFY(sameImage(desk.canvas.merged(), desk.base)); // no frame is left
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_EvenShapes::sizesAreTold()
{
    const auto told = [](ToolID id, QPoint to, int zoom) {
        EvenDesk desk(id, support::sheet(QSize(80, 60)), zoom);
        QSignalSpy spy(&desk.canvas, &KORVA_Canvas::dragging);
        desk.press({10, 10});
        desk.move(to);
        desk.release(to);
        desk.move({70, 50}, Qt::NoModifier);
        QList<QSize> sizes;
        for (const QList<QVariant>& arguments : spy)
            sizes.append(arguments.first().toSize());
        return sizes;
    };
    QCOMPARE(told(fixtures::Rectangle, {40, 30}, 100), QList<QSize>({QSize(30, 30), QSize()}));
    QCOMPARE(told(fixtures::Rectangle, {40, 30}, 200), QList<QSize>({QSize(15, 15), QSize()}));
    QCOMPARE(told(fixtures::Ellipse, {40, 30}, 100), QList<QSize>({QSize(31, 31), QSize()}));
    QCOMPARE(told(fixtures::Line, {40, 12}, 100), QList<QSize>({QSize(31, 1), QSize()}));
    QCOMPARE(told(fixtures::AreaSelect, {40, 30}, 100), QList<QSize>({QSize(30, 30), QSize()}));
    QCOMPARE(told(fixtures::Pencil, {40, 30}, 100), QList<QSize>());
}

int main(int argc, char** argv)
{
    return support::run<tst_EvenShapes>(argc, argv);
}

#include "tst_EvenShapes.moc"
