#include "KORVA_Pen.h"
#include "PieceFixtures.h"
#include "support/Dice.h"

using fixtures::PieceDesk;
using support::sameImage;

namespace {

constexpr int zooms[] = {37, 80, 100, 133, 150, 200, 333};

KORVA_Manners mannersOf(const QString& name)
{
    return name == "modern" ? KORVA_Manners::modern() : KORVA_Manners();
}

/// Two editors in the same hands. Somebody holds the pictures of one of them, so that it paints at once;
/// the other one may put it off.
struct Pair
{
    explicit Pair(const KORVA_Manners& manners) : watched(manners), alone(manners)
    {
        watched.editor->pixmap();
        for (const PieceDesk* desk : desks)
            desk->editor->show();
        QCoreApplication::processEvents();
    }

    template <typename Act>
    void both(const Act& act)
    {
        for (int i = 0; i < 2; ++i)
            act(*desks[i], hands[i]);
    }
    [[nodiscard]] bool sameScreen() const
    {
        return sameImage(alone.canvas().zoomed().toImage(), watched.canvas().zoomed().toImage());
    }
    [[nodiscard]] bool samePicture() const { return sameImage(alone.whole(), watched.whole()); }

    PieceDesk watched;
    PieceDesk alone;
    PieceDesk* desks[2] = {&watched, &alone};
    support::Gestures hands[2] = {support::Gestures(watched.canvas()), support::Gestures(alone.canvas())};
};

/// The bitmap that a paint event would show now, without asking the canvas first.
QImage onScreen(const KORVA_Canvas& canvas)
{
    return const_cast<KORVA_Canvas&>(canvas).grab().toImage();
}

} // namespace

/// A stroke's painting waits until somebody looks, and nobody can tell.
class tst_PaintLater : public support::TestCase
{
    Q_OBJECT

private slots:
    void nobodyCanTell_data();
    void nobodyCanTell();
    void whatIsHeldIsUpToDate();
    void repaintShowsIt();
    void changesOfThePenComeAfter();
    void whatAToolHasLeftStays();
    void aToolMayWorkWithoutTheCanvasesLeave();
    void nothingIsLeftOfACanvasThatIsGone();
};

void tst_PaintLater::nobodyCanTell_data()
{
    QTest::addColumn<QString>("manners");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("tool");
    for (const char* manners : {"classic", "modern"}) {
        for (const int zoom : zooms) {
            for (const int tool : {KORVA_TOOL_PENCIL, KORVA_TOOL_LINE, KORVA_TOOL_RECTANGLE,
                                   KORVA_TOOL_ELLIPSE, KORVA_TOOL_ERASER, KORVA_TOOL_SELECT})
                QTest::addRow("%s, %d %%, tool %d", manners, zoom, tool) << manners << zoom << tool;
        }
    }
}

void tst_PaintLater::nobodyCanTell()
{
    QFETCH(QString, manners);
    QFETCH(int, zoom);
    QFETCH(int, tool);
    Pair pair(mannersOf(manners));
    support::Dice dice(quint32(zoom * 10 + tool));
    pair.both([&](PieceDesk& desk, support::Gestures&) {
        desk.editor->setZoom(zoom);
        desk.editor->selectTool(tool);
    });
    const QSize size = pair.alone.canvas().size();
    const auto anywhere = [&] { return QPoint(dice.below(size.width()), dice.below(size.height())); };
    for (int stroke = 0; stroke < 6; ++stroke) {
        const int option = dice.below(3);
        const QPoint start = anywhere();
        pair.both([&](PieceDesk& desk, support::Gestures& hand) {
            desk.editor->selectOption(option);
            hand.press(start);
        });
        for (int move = 0; move < 24; ++move) {
            // Near the start a shape may be one that leaves a trace.
            const QPoint to = dice.chance() ? anywhere() : start + QPoint(dice.below(5), dice.below(5));
            const int act = dice.below(12);
            const QColor color = dice.color();
            pair.both([&](PieceDesk& desk, support::Gestures& hand) {
                hand.move(to);
                switch (act) {
                case 0:
                    desk.editor->setColor(color);
                    break;
                case 1:
                    desk.canvas().updateZoomed();
                    break;
                case 2:
                    desk.canvas().erase(QRect(to, QSize(4, 4)), QRect(to, QSize(4, 4)));
                    break;
                case 3:
                    desk.editor->selectOption(color.red() % 3);
                    break;
                default:
                    break;
                }
            });
            if (act == 4)
                QVERIFY2(pair.sameScreen(),
                         qPrintable(QString("stroke %1, move %2").arg(stroke).arg(move)));
            if (act == 5)
                QVERIFY2(pair.samePicture(),
                         qPrintable(QString("stroke %1, move %2").arg(stroke).arg(move)));
            if (act == 6)
                QVERIFY(sameImage(onScreen(pair.alone.canvas()), onScreen(pair.watched.canvas())));
        }
        const QPoint end = anywhere();
        pair.both([&](PieceDesk&, support::Gestures& hand) { hand.release(end); });
        QVERIFY2(pair.samePicture() && pair.sameScreen(), qPrintable(QString("stroke %1").arg(stroke)));
        if (dice.chance()) {
            pair.both([&](PieceDesk& desk, support::Gestures&) { desk.editor->undo(); });
            QVERIFY(pair.samePicture() && pair.sameScreen());
        }
    }
}

void tst_PaintLater::whatIsHeldIsUpToDate()
{
    PieceDesk desk({});
    const QPixmap* const picture = desk.editor->pixmap();
    const QPixmap* const shown = desk.canvas().zoomedPixmap();
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    support::Gestures hand(desk.canvas());
    hand.press({5, 5});
    hand.move({15, 5}); // the press may have been repainted at once, this one is not
    hand.move({25, 5});
    const QRgb ink = picture->toImage().pixel(5, 5);
    QCOMPARE(picture->toImage().pixel(25, 5), ink);
    QCOMPARE(shown->toImage().pixel(25, 5), ink);
    hand.release({25, 5});
}

void tst_PaintLater::repaintShowsIt()
{
    PieceDesk desk({});
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    desk.editor->show();
    QCoreApplication::processEvents();
    support::Gestures hand(desk.canvas());
    hand.press({5, 5});
    const QPixmap before = desk.canvas().zoomed();
    for (int x = 6; x < 40; ++x) {
        hand.move({x, 5});
        QCOMPARE(onScreen(desk.canvas()).pixel(x, 5), before.toImage().pixel(5, 5));
    }
    hand.release({39, 5});
}

void tst_PaintLater::changesOfThePenComeAfter()
{
    PieceDesk desk({});
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    desk.editor->setColor(Qt::red);
    support::Gestures hand(desk.canvas());
    hand.press({5, 5});
    hand.move({15, 5});
    hand.move({25, 5});
    desk.editor->setColor(Qt::blue);
    hand.move({25, 15});
    hand.release({25, 15});
    QCOMPARE(QColor(desk.whole().pixel(20, 5)), QColor(Qt::red));
    QCOMPARE(QColor(desk.whole().pixel(25, 12)), QColor(Qt::blue));
}

void tst_PaintLater::whatAToolHasLeftStays()
{
    PieceDesk desk({});
    desk.editor->selectTool(KORVA_TOOL_ELLIPSE);
    support::Gestures hand(desk.canvas());
    hand.press({20, 20});
    hand.move({22, 22}); // the ellipse that is taken away without ever having been drawn
    hand.move({60, 60});
    hand.release({20, 20});
    const QRect there(18, 18, 7, 7);
    const QImage left = desk.canvas().zoomed().toImage().copy(there);
    QVERIFY(left != desk.whole().copy(there));

    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    hand.press({10, 10});
    hand.move({40, 10});
    hand.move({40, 40});
    hand.release({40, 40});
    const QImage shown = desk.canvas().zoomed().toImage();
    QVERIFY(sameImage(shown.copy(there), left));
    for (const QPoint drawn : {QPoint(10, 10), QPoint(25, 10), QPoint(40, 25), QPoint(40, 40)})
        QCOMPARE(shown.pixel(drawn), desk.whole().pixel(drawn));
    QVERIFY(shown.pixel(25, 10) != left.pixel(0, 0));
}

/// A stroke of a pencil that the canvas does not know, to be ended or not.
void stroke(KORVA_Pen& pen, const QList<QPointF>& way, bool isEnded)
{
    const auto send = [&](QEvent::Type type, const QPointF& at, void (KORVA_Pen::*handler)(QMouseEvent*)) {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, at, at, isMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
        (pen.*handler)(&event);
    };
    send(QEvent::MouseButtonPress, way.first(), &KORVA_Pen::mousePressEvent);
    for (const QPointF& at : way)
        send(QEvent::MouseMove, at, &KORVA_Pen::mouseMoveEvent);
    if (isEnded)
        send(QEvent::MouseButtonRelease, way.last(), &KORVA_Pen::mouseReleaseEvent);
}

void tst_PaintLater::aToolMayWorkWithoutTheCanvasesLeave()
{
    KORVA_Canvas canvas(nullptr, 40, 30);
    KORVA_Pen pen("pen");
    pen.setLeftPen(QPen(Qt::blue, 1));
    pen.activate(&canvas);
    stroke(pen, {{5, 5}, {15, 5}, {25, 5}}, false);
    const QImage picture = canvas.snapshot().toImage();
    QCOMPARE(picture.pixelColor(10, 5), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(25, 5), QColor(Qt::blue));
    QCOMPARE(canvas.zoomed().toImage().pixelColor(25, 5), QColor(Qt::blue));
    pen.deactivate();
}

void tst_PaintLater::nothingIsLeftOfACanvasThatIsGone()
{
    KORVA_Pen pen("pen");
    pen.setLeftPen(QPen(Qt::blue, 1));
    auto gone = std::make_unique<KORVA_Canvas>(nullptr, 40, 30);
    pen.activate(gone.get());
    stroke(pen, {{5, 5}, {15, 5}, {25, 15}}, false);
    gone.reset();
    pen.deactivate();

    KORVA_Canvas canvas(nullptr, 40, 30);
    pen.activate(&canvas);
    stroke(pen, {{5, 25}, {9, 25}, {15, 25}}, true);
    QImage expected(40, 30, QImage::Format_RGB32);
    expected.fill(Qt::white);
    for (int x = 5; x <= 15; ++x)
        expected.setPixelColor(x, 25, Qt::blue);
    QVERIFY(sameImage(canvas.zoomed().toImage(), expected));
    pen.deactivate();
}

int main(int argc, char** argv)
{
    return support::run<tst_PaintLater>(argc, argv);
}

#include "tst_PaintLater.moc"
