#include "ToolFixtures.h"

using fixtures::Desk;
using fixtures::painted;
using fixtures::toggled;
using fixtures::ToolID;
using support::sameImage;

/// Random drags of every shape tool at many zooms and widths with both buttons, held against drawings of
/// another make.
class tst_ShapeProperties : public support::TestCase
{
    Q_OBJECT

private slots:
    void randomDrags_data();
    void randomDrags();
    void randomErasing_data();
    void randomErasing();
    void oppositeDrags_data();
    void oppositeDrags();

private:
    struct Drag;
    static QString firstDeviation(Desk& desk, const Drag& drag, Qt::MouseButton button);
    static void addZoomsAndWidths(std::initializer_list<ToolID> ids);

    static constexpr int drags = 200;
};

namespace {

constexpr QSize screenSize(54, 42); // of every zoom, so that small pictures are not all outside
constexpr int beyond = 16;          // pixels around the canvas that drags reach

QPoint randomPoint(QRandomGenerator& random)
{
    return {random.bounded(-beyond, screenSize.width() + beyond),
            random.bounded(-beyond, screenSize.height() + beyond)};
}

// Every third drag is a tiny one: where the ellipse's limits, the thin and the mirrored shapes are.
std::vector<QPoint> randomPath(QRandomGenerator& random)
{
    std::vector<QPoint> path{randomPoint(random)};
    const bool tiny = random.bounded(3) == 0;
    for (int moves = random.bounded(5); moves > 0; --moves) {
        const QPoint step(random.bounded(-5, 6), random.bounded(-5, 6));
        path.push_back(tiny ? path.front() + step : randomPoint(random));
    }
    path.push_back(tiny || random.bounded(2) ? path.back() : randomPoint(random));
    return path;
}

QString told(const std::vector<QPoint>& path)
{
    QString text;
    for (const QPoint p : path)
        text += QString("(%1, %2) ").arg(p.x()).arg(p.y());
    return text;
}

Qt::MouseButton otherThan(Qt::MouseButton button)
{
    return button == Qt::LeftButton ? Qt::RightButton : Qt::LeftButton;
}

QPoint inPicture(QPoint p, int zoom)
{
    return {p.x() * 100 / zoom, p.y() * 100 / zoom};
}

QImage erased(const QImage& image, const QRect& square)
{
    return painted(image, Qt::NoPen, Qt::NoBrush,
                   [&](QPainter& painter) { painter.fillRect(square, Qt::white); });
}

} // namespace

/// A drag of one of the two-point tools, reckoned by hand.
struct tst_ShapeProperties::Drag
{
    ToolID id;
    int zoom;
    int width; ///< of the pen in the picture
    QColor color;
    QBrush brush;
    std::vector<QPoint> path; ///< press, moves, release

    [[nodiscard]] int screenWidth() const { return width * zoom / 100; }
    [[nodiscard]] QPoint anchor() const { return path.front(); }
    [[nodiscard]] QPoint lastMove() const { return path[path.size() - 2]; }
    [[nodiscard]] QPoint end() const { return id == fixtures::Line ? lastMove() : path.back(); }

    /// What an ellipse has left behind: it is not shown up to an area of 4, but removed above one of 3.
    [[nodiscard]] QImage withLeavings(QImage screen) const
    {
        if (id != fixtures::Ellipse)
            return screen;
        for (size_t i = 1; i + 2 < path.size(); ++i) {
            if (path[i] != path[i + 1] && fixtures::area(anchor(), path[i]) == 4)
                screen = toggled(screen, screenWidth(), fixtures::ellipse(anchor(), path[i], 3));
        }
        return screen;
    }
    [[nodiscard]] QImage withPreview(QImage screen) const
    {
        screen = toggled(screen, screenWidth(), fixtures::shape(id, anchor(), lastMove()));
        return toggled(screen, screenWidth(),
                       fixtures::shape(id, anchor(), anchor())); // a line's first point
    }
    [[nodiscard]] QImage onScreen(const QImage& screen) const
    {
        return painted(screen, fixtures::solidPen(color, screenWidth()), brush,
                       fixtures::shape(id, anchor(), end()));
    }
    [[nodiscard]] QImage inThePicture(const QImage& picture) const
    {
        return painted(picture, fixtures::solidPen(color, width), brush,
                       fixtures::shape(id, inPicture(anchor(), zoom), inPicture(end(), zoom)));
    }
};

void tst_ShapeProperties::addZoomsAndWidths(std::initializer_list<ToolID> ids)
{
    QTest::addColumn<ToolID>("id");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    QTest::addColumn<Qt::MouseButton>("button");
    for (const ToolID id : ids) {
        for (const int zoom : {37, 50, 92, 100, 150, 200, 333}) {
            for (const int width : {1, 3, 5}) {
                QTest::addRow("tool %d, %d %%, width %d, left", id, zoom, width)
                    << id << zoom << width << Qt::LeftButton;
                QTest::addRow("tool %d, %d %%, width %d, right", id, zoom, width)
                    << id << zoom << width << Qt::RightButton;
            }
        }
    }
}

void tst_ShapeProperties::randomDrags_data()
{
    addZoomsAndWidths({fixtures::Line, fixtures::Rectangle, fixtures::Ellipse});
}

void tst_ShapeProperties::randomDrags()
{
    QFETCH(const ToolID, id);
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    QFETCH(const Qt::MouseButton, button);
    const bool left = button == Qt::LeftButton;

    Desk desk(id, support::mosaic(screenSize * 100 / zoom), zoom);
    desk.manager.setPenWidth(width);
    QRandomGenerator random(quint32(id * 100000 + zoom * 100 + width * 10 + int(button)));

    for (int i = 0; i < drags; ++i) {
        const bool filled = random.bounded(2) == 1 && id != fixtures::Line;
        desk.manager.setBrush(filled ? Qt::SolidPattern : Qt::NoBrush);
        const Drag drag{id,
                        zoom,
                        width,
                        left ? Qt::blue : Qt::darkGreen,
                        left ? desk.tool().leftBrush() : desk.tool().rightBrush(),
                        randomPath(random)};
        if (const QString step = firstDeviation(desk, drag, button); !step.isEmpty())
            QFAIL(qPrintable(QString("drag %1, %2: %3").arg(i).arg(told(drag.path), step)));
        desk.canvas.clearModified();
    }
}

// Makes the drag and undoes it; tells the first step at which a picture is not as reckoned.
QString tst_ShapeProperties::firstDeviation(Desk& desk, const Drag& drag, Qt::MouseButton button)
{
    fixtures::Stylus stylus(desk.tool());
    const QImage before = drag.withLeavings(desk.start);
    const QImage preview = drag.withPreview(before);

    stylus.press(drag.anchor(), button);
    for (size_t move = 1; move + 1 < drag.path.size(); ++move)
        stylus.move(drag.path[move]);
    if (!sameImage(desk.canvas.shown(), preview))
        return "preview";

    stylus.release(drag.path.back(), otherThan(button));
    if (!sameImage(desk.canvas.shown(), preview) || !sameImage(desk.canvas.merged(), desk.base) ||
        desk.canvas.isModified())
        return "release of the other button";

    stylus.release(drag.path.back(), button);
    if (!sameImage(desk.canvas.shown(), drag.onScreen(before)) || !desk.canvas.isModified())
        return "on screen";
    if (!sameImage(desk.canvas.merged(), drag.inThePicture(desk.base)))
        return "in the picture";

    desk.canvas.undo();
    if (!sameImage(desk.canvas.merged(), desk.base) || !sameImage(desk.canvas.shown(), desk.start))
        return "undo";
    return {};
}

void tst_ShapeProperties::randomErasing_data()
{
    addZoomsAndWidths({fixtures::Rubber});
}

void tst_ShapeProperties::randomErasing()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    QFETCH(const Qt::MouseButton, button);

    Desk desk(fixtures::Rubber, support::mosaic(screenSize * 100 / zoom), zoom);
    desk.manager.setPenWidth(width);
    fixtures::Stylus stylus(desk.tool());
    QRandomGenerator random(quint32(zoom * 100 + width * 10 + int(button)));
    const int side = width * zoom / 100;
    const QSize square(side, side);

    for (int i = 0; i < drags; ++i) {
        const std::vector<QPoint> path = randomPath(random);
        QImage screen = desk.start;
        QImage picture = desk.base;
        stylus.press(path.front(), button);
        for (size_t move = 1; move + 1 < path.size(); ++move) {
            stylus.move(path[move]);
            screen = erased(screen, QRect(path[move], square));
            picture = erased(picture, QRect(inPicture(path[move], zoom), square));
        }
        stylus.release(path.back(), otherThan(button));
        QVERIFY(sameImage(desk.canvas.shown(), screen));
        QVERIFY(sameImage(desk.canvas.merged(), picture));

        stylus.release(path.back(), button);
        const QRect last(inPicture(path.back(), zoom), square); // on screen, too
        QVERIFY(sameImage(desk.canvas.shown(), erased(screen, last)));
        QVERIFY(sameImage(desk.canvas.merged(), erased(picture, last)));

        desk.canvas.undo();
        QVERIFY(sameImage(desk.canvas.merged(), desk.base));
        QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    }
}

void tst_ShapeProperties::oppositeDrags_data()
{
    addZoomsAndWidths({fixtures::Ellipse});
}

// An ellipse is the same from any of its corners.
void tst_ShapeProperties::oppositeDrags()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    QFETCH(const Qt::MouseButton, button);

    Desk desk(fixtures::Ellipse, support::mosaic(screenSize * 100 / zoom), zoom);
    desk.manager.setPenWidth(width);
    fixtures::Stylus stylus(desk.tool());
    QRandomGenerator random(quint32(zoom * 100 + width * 10 + int(button)));
    for (int i = 0; i < drags; ++i) {
        const QPoint a = randomPoint(random);
        const QPoint b = randomPoint(random);
        QImage screen;
        QImage picture;
        for (const auto& [from, to] :
             {std::pair(a, b), std::pair(b, a), std::pair(QPoint(a.x(), b.y()), QPoint(b.x(), a.y()))}) {
            stylus.press(from, button);
            stylus.move(to);
            stylus.release(to, button);
            if (screen.isNull()) {
                screen = desk.canvas.shown();
                picture = desk.canvas.merged();
            }
            QVERIFY(sameImage(desk.canvas.shown(), screen));
            QVERIFY(sameImage(desk.canvas.merged(), picture));
            desk.canvas.undo();
        }
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_ShapeProperties>(argc, argv);
}

#include "tst_ShapeProperties.moc"
