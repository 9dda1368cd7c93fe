#include "ToolFixtures.h"

#include "KORVA_MainView.h"
#include "KORVA_Pixel.h"
#include "KORVA_ScrollView.h"
#include "support/XServer.h"

#include <cstdio>
#include <random>

using fixtures::ToolID;

namespace {

/// A device pixel ratio as a fraction, so that what is expected is reckoned without rounding.
struct Ratio
{
    const char* name; // as in the environment
    int pixels;       // of the screen
    int width;        // of a widget, for as many
};

constexpr Ratio ratios[] = {{"1", 1, 1}, {"1.25", 5, 4}, {"1.5", 3, 2}, {"1.75", 7, 4},
                            {"2", 2, 1}, {"2.5", 5, 2},  {"3", 3, 1},   {"4", 4, 1}};
constexpr const char* ratioVariable = "QT_SCALE_FACTOR";
constexpr int presses = 500;
constexpr QPoint editorPlace(5, 3);

/// An editor in a window at the ratio of the environment, and a pointer that moves over the screen's own
/// pixels: its events come in where a display's do.
class Desk
{
public:
    Desk()
    {
        const QByteArray name = qgetenv(ratioVariable);
        m_ratio = *std::find_if(std::begin(ratios), std::end(ratios),
                                [&](const Ratio& ratio) { return name == ratio.name; });
        m_window.resize(250, 240);
        editor.move(editorPlace);
        m_window.show();
        (void)QTest::qWaitForWindowExposed(&m_window);
        manager().setLMBColor(Qt::blue);
        setPicture(support::sheet(QSize(200, 170)));
        QCoreApplication::processEvents();
    }

    [[nodiscard]] KORVA_Canvas& canvas() const { return *editor.canvas(); }
    [[nodiscard]] KORVA_Manager& manager() const { return *editor.manager(); }
    [[nodiscard]] double ratio() const { return double(m_ratio.pixels) / m_ratio.width; }
    [[nodiscard]] QImage picture() const { return canvas().pixmap()->toImage(); }
    [[nodiscard]] QImage shown() const { return canvas().zoomedPixmap()->toImage(); }
    [[nodiscard]] QImage screenshot() { return m_window.screen()->grabWindow(m_window.winId()).toImage(); }
    /// The window as one repaint makes it.
    [[nodiscard]] QImage screen() { return m_window.grab().toImage(); }
    void setPicture(const QImage& image)
    {
        QPixmap picture = QPixmap::fromImage(image);
        editor.setPixmap(&picture);
    }

    /// The canvas's pixel that lies under one of the screen's.
    [[nodiscard]] QPoint pixelAt(QPoint onScreen) const
    {
        const QPoint inWindow(onScreen.x() * m_ratio.width / m_ratio.pixels,
                              onScreen.y() * m_ratio.width / m_ratio.pixels);
        return canvas().mapFrom(&m_window, inWindow);
    }
    /// The screen's pixels that a rectangle of the canvas takes.
    [[nodiscard]] QRect onScreen(const QRect& inCanvas) const
    {
        const QRect r(canvas().mapTo(&m_window, inCanvas.topLeft()), inCanvas.size());
        const auto first = [this](int c) {
            return (c * m_ratio.pixels + m_ratio.width - 1) / m_ratio.width;
        };
        return {QPoint(first(r.left()), first(r.top())),
                QPoint(first(r.right() + 1) - 1, first(r.bottom() + 1) - 1)};
    }
    /// A pixel of the screen in a rectangle of the canvas, by chance.
    [[nodiscard]] QPoint anyIn(const QRect& inCanvas)
    {
        const QRect area = onScreen(inCanvas);
        const auto number = [this](int low, int high) {
            return std::uniform_int_distribution<int>(low, high)(m_random);
        };
        return {number(area.left(), area.right()), number(area.top(), area.bottom())};
    }

    void press(QPoint at) { send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton); }
    void move(QPoint to, Qt::MouseButtons held = Qt::LeftButton)
    {
        send(QEvent::MouseMove, to, held, Qt::NoButton);
    }
    void release(QPoint at) { send(QEvent::MouseButtonRelease, at, Qt::NoButton, Qt::LeftButton); }

private:
    void send(QEvent::Type type, QPoint at, Qt::MouseButtons held, Qt::MouseButton button)
    {
        const QPointF local = QPointF(at) / ratio();
        m_time += 1000; // no two of them are a double click
        qt_handleMouseEvent(m_window.windowHandle(), local, m_window.windowHandle()->position() + local,
                            held, button, type, Qt::NoModifier, m_time);
        QCoreApplication::processEvents();
    }

    Ratio m_ratio;
    QWidget m_window;
    int m_time = 0;
    std::mt19937 m_random{4711}; // the same for each run

public:
    KORVA_EditCanvas editor{KORVA_COLOR_16BIT, &m_window};
};

/// Counts what is wrong and tells of the first one.
class Verdict
{
public:
    explicit Verdict(const char* what) : m_what(what) {}
    ~Verdict()
    {
        if (m_wrong)
            std::printf("%s: %d wrong, first %s\n", m_what, m_wrong, qPrintable(m_first));
    }
    Verdict(const Verdict&) = delete;
    Verdict& operator=(const Verdict&) = delete;

    void expect(bool right, QPoint onScreen, QPoint inCanvas)
    {
        if (!right && !m_wrong++)
            QDebug(&m_first) << onScreen << "on the screen," << inCanvas << "in the canvas";
    }
    [[nodiscard]] int wrong() const { return m_wrong; }

private:
    const char* m_what;
    int m_wrong = 0;
    QString m_first;
};

QImage withShape(const QImage& image, ToolID tool, QPoint from, QPoint to)
{
    const QPen pen = fixtures::solidPen(Qt::blue, 1);
    return fixtures::painted(image, pen, Qt::NoBrush, fixtures::shape(tool, from, to));
}

int wrongWithPencil(Desk& desk)
{
    Verdict verdict("pencil");
    const QImage white = support::sheet(desk.canvas().size());
    desk.manager().setCurrentTool(fixtures::Pencil);
    // Around the canvas, too: there nothing is drawn.
    const QRect area = desk.canvas().rect().adjusted(-2, -2, 2, 2);
    const QRect canvas = desk.canvas().rect();
    QList<QPoint> places;
    for (int i = 0; i < presses; ++i)
        places << desk.anyIn(area);
    const QRect onScreen = desk.onScreen(area);
    for (int x = onScreen.left(); x <= onScreen.right(); ++x)
        if (const QPoint p = desk.pixelAt({x, 100}); p.x() < 2 || p.x() >= canvas.width() - 2)
            places << QPoint(x, onScreen.center().y());
    for (int y = onScreen.top(); y <= onScreen.bottom(); ++y)
        if (const QPoint p = desk.pixelAt({100, y}); p.y() < 2 || p.y() >= canvas.height() - 2)
            places << QPoint(onScreen.center().x(), y);
    for (const QPoint& place : places) {
        const QPoint p = desk.pixelAt(place);
        desk.press(place);
        desk.release(place);
        const QImage expected = canvas.contains(p) ? withShape(white, fixtures::Line, p, p) : white;
        verdict.expect(desk.picture() == expected.convertToFormat(desk.picture().format()), place, p);
        desk.canvas().pixmap()->fill(Qt::white);
    }
    desk.canvas().updateZoomed();
    return verdict.wrong();
}

int wrongWithShape(Desk& desk, ToolID tool, const char* name)
{
    Verdict verdict(name);
    const QImage white = support::sheet(desk.canvas().size());
    desk.manager().setCurrentTool(tool);
    for (int i = 0; i < presses; ++i) {
        const QPoint from = desk.anyIn(desk.canvas().rect());
        const QPoint to = desk.anyIn(desk.canvas().rect());
        const QPoint p = desk.pixelAt(from);
        const QPoint q = desk.pixelAt(to);
        // An ellipse of such sides leaves its box in the toolkit, which the expected one does.
        const bool isNarrow = qAbs(p.x() - q.x()) < 13 || qAbs(p.y() - q.y()) < 13;
        if (tool == fixtures::Ellipse && isNarrow)
            continue;
        desk.press(from);
        desk.move(to);
        const QImage preview = fixtures::toggled(fixtures::toggled(white, 1, fixtures::shape(tool, p, q)),
                                                 1, fixtures::shape(tool, p, p));
        verdict.expect(desk.shown() == preview.convertToFormat(desk.shown().format()), to, q);
        desk.release(to);
        const QImage expected = withShape(white, tool, p, q).convertToFormat(desk.picture().format());
        verdict.expect(desk.picture() == expected && desk.shown() == expected, to, q);
        desk.editor.clearCanvas();
    }
    return verdict.wrong();
}

int wrongWithEraser(Desk& desk)
{
    Verdict verdict("eraser");
    const QImage black = support::sheet(desk.canvas().size(), Qt::black);
    desk.manager().setCurrentTool(fixtures::Rubber);
    desk.manager().setPenWidth(3);
    for (int i = 0; i < presses; ++i) {
        const QPoint place = desk.anyIn(desk.canvas().rect());
        const QPoint p = desk.pixelAt(place);
        desk.canvas().clearCanvas(Qt::black);
        desk.press(place);
        desk.release(place);
        const QImage expected = support::filled(black, QRect(p, QSize(3, 3)), Qt::white);
        verdict.expect(desk.picture() == expected.convertToFormat(desk.picture().format()), place, p);
    }
    verdict.expect(desk.canvas().cursor().hotSpot() == QPoint(0, 0), {}, {});
    desk.manager().setPenWidth(1);
    desk.editor.clearCanvas();
    return verdict.wrong();
}

int wrongWithText(Desk& desk)
{
    Verdict verdict("text");
    desk.manager().setCurrentTool(fixtures::Text);
    for (int i = 0; i < presses; ++i) {
        const QPoint place = desk.anyIn(desk.canvas().rect());
        const QPoint p = desk.pixelAt(place);
        desk.press(place);
        desk.release(place);
        const QRect cursor = desk.canvas().inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const QPoint foot(cursor.left() + cursor.width() / 2, cursor.bottom());
        verdict.expect(foot == p, place, p);
    }
    desk.manager().setCurrentTool(fixtures::Pencil);
    desk.editor.clearCanvas();
    return verdict.wrong();
}

int wrongWithSelection(Desk& desk)
{
    Verdict verdict("select");
    for (int i = 0; i < presses; ++i) {
        desk.manager().setCurrentTool(fixtures::AreaSelect);
        const QPoint from = desk.anyIn(desk.canvas().rect());
        const QPoint to = desk.anyIn(desk.canvas().rect());
        const QPoint p = desk.pixelAt(from);
        const QPoint q(qMax(1, desk.pixelAt(to).x()), qMax(1, desk.pixelAt(to).y()));
        desk.press(from);
        desk.move(to);
        desk.release(to);
        const QPoint last = q - QPoint(1, 1);
        const QRect expected(QPoint(qMin(p.x(), last.x()), qMin(p.y(), last.y())),
                             QPoint(qMax(p.x(), last.x()), qMax(p.y(), last.y())));
        verdict.expect(p == q || desk.canvas().selection() == expected, to, q);
        desk.canvas().mergePastePixmap();
        desk.manager().setCurrentTool(fixtures::Pencil);
    }
    desk.editor.clearCanvas();
    return verdict.wrong();
}

int wrongWithHand(Desk& desk)
{
    Verdict verdict("hand");
    desk.editor.setZoom(200);
    desk.manager().setCurrentTool(fixtures::Drag);
    KORVA_ScrollView& view = *desk.canvas().scrollView();
    QCoreApplication::processEvents();
    for (int i = 0; i < presses; ++i) {
        view.setContentsPos(80, 70);
        const QRect visible = QRect(80, 70, 150, 120);
        const QPoint from = desk.anyIn(visible);
        const QPoint to = desk.anyIn(visible);
        const QPoint p = desk.pixelAt(from);
        const QPoint q = desk.pixelAt(to);
        desk.press(from);
        desk.move(to);
        const QPoint expected(80 - (q.x() - p.x()) / 10, 70 - (q.y() - p.y()) / 10);
        verdict.expect(QPoint(view.contentsX(), view.contentsY()) == expected, to, q);
        desk.release(to);
    }
    desk.editor.setZoom(100);
    return verdict.wrong();
}

int wrongWithPiece(Desk& desk)
{
    Verdict verdict("floating piece");
    desk.manager().setCurrentTool(fixtures::AreaSelect);
    KORVA_PasteLabel& piece = *desk.canvas().pasteLabel();
    const QRect place(50, 40, 60, 50);
    desk.canvas().setSelection(place);
    for (int i = 0; i < presses; ++i) {
        piece.move(place.topLeft());
        const QPoint from = desk.anyIn(place.adjusted(10, 10, -10, -10));
        const QPoint to = desk.anyIn(QRect(20, 20, 120, 100));
        desk.move(from, Qt::NoButton);
        desk.press(from);
        desk.move(to);
        desk.release(to);
        const QPoint moved = desk.pixelAt(to) - desk.pixelAt(from);
        verdict.expect(piece.pos() == place.topLeft() + moved, to, desk.pixelAt(to));
    }
    // What is on it and what beside, pixel by pixel.
    const QRect around = desk.onScreen(place.adjusted(-2, 0, 2, 0));
    for (int x = around.left(); x <= around.right(); ++x) {
        const QPoint at(x, around.center().y());
        desk.canvas().setSelection(place);
        desk.move(at, Qt::NoButton);
        desk.press(at);
        const bool floats = !piece.isHidden();
        desk.release(at);
        verdict.expect(floats == place.contains(desk.pixelAt(at)), at, desk.pixelAt(at));
        desk.canvas().mergePastePixmap();
    }
    desk.manager().setCurrentTool(fixtures::Pencil);
    desk.editor.clearCanvas();
    return verdict.wrong();
}

/// How many pixels of the screen show another pixel of the canvas than the one that a press there means.
int wrongOnScreen(Desk& desk, const QImage& screen, const QImage& shown, const QRect& inCanvas,
                  Verdict& verdict)
{
    const QRect area = desk.onScreen(inCanvas);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QPoint p = desk.pixelAt({x, y});
            verdict.expect(screen.pixel(x, y) == shown.pixel(p), {x, y}, p);
        }
    }
    return verdict.wrong();
}

} // namespace

/// The pixel under the pointer is the one that is drawn, and the one that is shown there, at each device
/// pixel ratio. A process has one ratio, so that each is tried in one of its own.
class tst_Ratios : public support::TestCase
{
    Q_OBJECT

public:
    Q_INVOKABLE int everyTool();
    Q_INVOKABLE int everyPixel();
    Q_INVOKABLE int pieceOnScreen();
    Q_INVOKABLE int nothingIsLeftOver();

private slots:
    void theToolsDrawUnderThePointer_data() { addRatios(); }
    void theToolsDrawUnderThePointer() { runCase("everyTool"); }
    void theScreenShowsWhatAPressMeans_data() { addRatios(); }
    void theScreenShowsWhatAPressMeans() { runCase("everyPixel"); }
    void thePieceIsWhole_data() { addRatios(); }
    void thePieceIsWhole() { runCase("pieceOnScreen"); }
    void aRealScreenIsRepaintedWhole_data() { addRatios(); }
    void aRealScreenIsRepaintedWhole();
    void aWholePositionIsItsOwnPixel();

private:
    static void addRatios();
    static void runCase(const char* name);
};

void tst_Ratios::addRatios()
{
    QTest::addColumn<QByteArray>("ratio");
    for (const Ratio& ratio : ratios)
        QTest::newRow(ratio.name) << QByteArray(ratio.name);
}

void tst_Ratios::runCase(const char* name)
{
    QFETCH(const QByteArray, ratio);
    qputenv(ratioVariable, ratio);
    const support::ChildProcess child = support::ChildProcess::run(name);
    qunsetenv(ratioVariable);
    QVERIFY2(child.signal == 0 && child.exitCode == 0, qPrintable(child.output + child.errors));
}

int tst_Ratios::everyTool()
{
    Desk desk;
    int wrong = wrongWithPencil(desk);
    wrong += wrongWithShape(desk, fixtures::Line, "line");
    wrong += wrongWithShape(desk, fixtures::Rectangle, "rectangle");
    wrong += wrongWithShape(desk, fixtures::Ellipse, "ellipse");
    wrong += wrongWithEraser(desk);
    wrong += wrongWithText(desk);
    wrong += wrongWithSelection(desk);
    wrong += wrongWithHand(desk);
    wrong += wrongWithPiece(desk);
    return qMin(wrong, 100);
}

int tst_Ratios::everyPixel()
{
    Verdict verdict("screen");
    Desk desk;
    const QImage mosaic = support::mosaic(QSize(200, 170)).convertToFormat(QImage::Format_RGB32);
    desk.setPicture(mosaic);
    const QRect inside =
        desk.canvas().rect().adjusted(1, 1, -1, -1); // at the edges the toolkit rounds its clip
    wrongOnScreen(desk, desk.screen(), desk.shown(), inside, verdict);
    desk.editor.setZoom(50);
    wrongOnScreen(desk, desk.screen(), desk.shown(), QRect(1, 1, 98, 83), verdict);
    desk.editor.setZoom(200);
    QCoreApplication::processEvents();
    desk.canvas().scrollView()->setContentsPos(37, 41);
    wrongOnScreen(desk, desk.screen(), desk.shown(), QRect(40, 44, 150, 120), verdict);
    return qMin(verdict.wrong(), 100);
}

int tst_Ratios::pieceOnScreen()
{
    Verdict verdict("piece");
    Desk desk;
    const QImage mosaic = support::mosaic(QSize(200, 170)).convertToFormat(QImage::Format_RGB32);
    desk.setPicture(mosaic);
    const QRect place(53, 41, 61, 47);
    desk.canvas().setSelection(place);
    desk.canvas().pasteLabel()->move(60, 50);

    // As at ratio 1, where the dots are told from the piece by being inverted.
    const QRect box(60, 50, 61, 47);
    QImage expected = support::overlaid(desk.shown(), box.topLeft(), mosaic.copy(place));
    const QImage without = expected;
    const QImage mask = support::sheet(expected.size(), Qt::black, [&](QPainter& painter) {
        painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
        painter.drawRect(box.adjusted(0, 0, -1, -1));
    });
    {
        QPainter painter(&expected);
        painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
        painter.drawImage(0, 0, mask);
    }
    const QImage screen = desk.screen();
    const auto isHandle = [&](QPoint p) {
        const QPoint in = p - box.topLeft();
        const auto near = [](int c, int size) {
            const int middle = (size - 6) / 2;
            return c <= 6 || c >= size - 7 || (c >= middle - 1 && c <= middle + 6);
        };
        return near(in.x(), box.width()) && near(in.y(), box.height());
    };
    const QRect area = desk.onScreen(box.adjusted(-3, -3, 3, 3));
    int dots = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QPoint p = desk.pixelAt({x, y});
            // The toolkit rounds where a widget begins between two of the screen's pixels.
            const bool isFirst = !box.contains(p) && box.contains(desk.pixelAt({x + 1, y + 1}));
            if (isHandle(p) || isFirst)
                continue;
            dots += expected.pixel(p) != without.pixel(p);
            verdict.expect(screen.pixel(x, y) == expected.pixel(p), {x, y}, p);
        }
    }
    verdict.expect(dots > 40, {}, {});
    return qMin(verdict.wrong(), 100);
}

/// What strokes, a piece and scrolling leave on the screen, part by part, is what one repaint gives.
int tst_Ratios::nothingIsLeftOver()
{
    Verdict verdict("screen");
    Desk desk;
    const auto compare = [&] {
        QImage expected;
        QImage screen;
        QRect area;
        const auto isComplete = [&] { // the display may be late, but then it is right
            expected = desk.screen().convertToFormat(QImage::Format_RGB32);
            screen = desk.screenshot().convertToFormat(QImage::Format_RGB32);
            area = desk.onScreen(desk.canvas().visibleRegion().boundingRect()) & screen.rect();
            return screen.size() == expected.size() && screen.copy(area) == expected.copy(area);
        };
        QTest::qWait(50);
        (void)QTest::qWaitFor(isComplete);
        verdict.expect(screen.size() == expected.size(), {}, {});
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                verdict.expect(screen.pixel(x, y) == expected.pixel(x, y), {x, y}, desk.pixelAt({x, y}));
    };
    desk.setPicture(support::mosaic(QSize(200, 170)));
    desk.manager().setCurrentTool(fixtures::Pencil);
    desk.manager().setPenWidth(5);
    for (int i = 0; i < 40; ++i) {
        desk.press(desk.anyIn(desk.canvas().rect()));
        for (int j = 0; j < 4; ++j)
            desk.move(desk.anyIn(desk.canvas().rect()));
        desk.release(desk.anyIn(desk.canvas().rect()));
    }
    compare();

    desk.setPicture(support::mosaic(QSize(200, 170)));
    desk.manager().setCurrentTool(fixtures::Rubber);
    for (int i = 0; i < 40; ++i) {
        const QPoint place = desk.anyIn(desk.canvas().rect());
        desk.press(place);
        desk.move(place);
        QTest::qWait(10); // its own repaint
    }
    compare();
    desk.release({});

    desk.manager().setPenWidth(1);
    desk.manager().setCurrentTool(fixtures::AreaSelect);
    desk.canvas().setSelection(QRect(50, 40, 61, 47));
    QPoint hold(80, 64);
    desk.move(desk.onScreen(QRect(hold, QSize(1, 1))).center(), Qt::NoButton);
    desk.press(desk.onScreen(QRect(hold, QSize(1, 1))).center());
    for (int i = 0; i < 20; ++i) {
        desk.move(desk.anyIn(QRect(40, 30, 120, 100)));
        QTest::qWait(5);
    }
    compare();
    desk.release(desk.anyIn(QRect(40, 30, 120, 100)));
    desk.canvas().mergePastePixmap();

    desk.editor.setZoom(200);
    QTest::qWait(50);
    for (int i = 1; i < 12; ++i) {
        desk.canvas().scrollView()->setContentsPos(i * 13, i * 11);
        QTest::qWait(5);
    }
    compare();
    return qMin(verdict.wrong(), 100);
}

void tst_Ratios::aRealScreenIsRepaintedWhole()
{
    const support::XServer server(QSize(1400, 1200));
    QVERIFY(server.isReady());
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DISPLAY", server.display().toLatin1());
    runCase("nothingIsLeftOver");
    qputenv("QT_QPA_PLATFORM", platform);
}

void tst_Ratios::aWholePositionIsItsOwnPixel()
{
    for (int c = -3000; c < 3000; ++c) {
        QCOMPARE(pixel::at(QPointF(c, -c)), QPoint(c, -c));
        QCOMPARE(pixel::at(QPointF(c + 0.5, c + 0.99)), QPoint(c, c));
        QCOMPARE(pixel::at(QPointF(c * 1.1 / 1.1, c / 1.1 * 1.1)), QPoint(c, c));
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_Ratios>(argc, argv);
}

#include "tst_Ratios.moc"
