#include "KORVA_EditCanvas.h"
#include "support/Fingers.h"
#include "support/Tablet.h"

#include "TextFixtures.h"

#include <QSignalSpy>

using fixtures::WritingDesk;
using support::sameImage;

namespace {

KORVA_Manners movable(bool withOthers)
{
    KORVA_Manners manners;
    manners.movableText = true;
    if (withOthers)
        manners.coloredText = manners.escapeDropsText = manners.undoTypes = manners.textInside = true;
    return manners;
}

struct MovingDesk : WritingDesk
{
    explicit MovingDesk(bool withOthers, int zoom = 100, int width = 1,
                        const QImage& image = support::mosaic(QSize(200, 160)))
        : WritingDesk(image, zoom, width)
    {
        canvas.setManners(movable(withOthers));
    }

    /// What a commit now would leave.
    [[nodiscard]] QImage pending() const { return canvas.KORVA_Canvas::snapshot().toImage(); }
    /// Shows the text at the place where it was tapped or moved, and the picture is untouched.
    [[nodiscard]] bool shows(const QString& string)
    {
        const QImage screen = canvas.manners().coloredText ? support::scaled(written(string), canvas.zoom())
                                                           : previewed(string);
        return sameImage(canvas.merged(), base) && sameImage(this->screen(), screen) &&
               sameImage(pending(), written(string));
    }
    /// A place on the first letters.
    [[nodiscard]] QPoint grip() const { return tapped + QPoint(4, -3) * canvas.zoom() / 100; }
};

/// An editor on screen, for fingers and pens.
struct Screen
{
    Screen()
    {
        window.resize(260, 240);
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
        QPixmap picture = QPixmap::fromImage(support::mosaic(QSize(200, 170)));
        editor.setPixmap(&picture);
        editor.clearModified();
        editor.setManners(movable(true));
        editor.selectTool(KORVA_TOOL_TEXT);
    }
    void write(QPoint at, const QString& letters)
    {
        support::Gestures(canvas).click(at);
        for (const QChar letter : letters) {
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(&canvas, &key);
        }
    }
    /// The screen without an I-beam.
    [[nodiscard]] QImage shown() const
    {
        editor.currentText()->clearOldCursor();
        return canvas.zoomedPixmap()->toImage();
    }

    QWidget window;
    KORVA_EditCanvas editor{KORVA_COLOR_16BIT, &window};
    KORVA_Canvas& canvas = *editor.canvas();
    support::Fingers fingers{canvas};
    support::Tablet pen{canvas};
};

constexpr QPoint place(30, 60);
constexpr QPoint onIt(36, 56);
constexpr QPoint way(40, 25);

/// What a text shows that was tapped and typed at another place.
QImage writtenAt(QPoint at)
{
    Screen screen;
    screen.write(at, "Hello");
    return screen.shown();
}

} // namespace

/// Moving an open text by its letters.
class tst_MovableText : public support::TestCase
{
    Q_OBJECT

private slots:
    void dragMovesTheText_data();
    void dragMovesTheText();
    void undoGoesOnAtTheNewPlace();
    void linesFollowTheEdge();
    void textStaysWithinReach();
    void tapOnTheTextIsATap_data();
    void tapOnTheTextIsATap();
    void dragBesideTheTextEndsIt();
    void everyPressEndsItClassically();
    void escapeWhileItIsMoved();
    void escapeWhileItIsHeld();
    void emptyTextIsMovedByItsBeam();
    void goesOnAfterACommit();
    void fingerMovesIt();
    void secondFingerPutsItBack();
    void keysDuringAFingersDragStay();
    void fingersTapIsATap();
    void penMovesIt();
    void pointerIsSeen();
    void randomHands_data();
    void randomHands();
};

void tst_MovableText::dragMovesTheText_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("withOthers");
    for (const int zoom : {50, 100, 150, 200}) {
        for (const int width : {1, 5}) {
            QTest::addRow("%d %%, width %d", zoom, width) << zoom << width << false;
            QTest::addRow("%d %%, width %d, with the others", zoom, width) << zoom << width << true;
        }
    }
}

void tst_MovableText::dragMovesTheText()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    QFETCH(const bool, withOthers);
    MovingDesk desk(withOthers, zoom, width);
    desk.tap(QPoint(20, 50) * zoom / 100);
    desk.type("Wg\nab");
    QVERIFY(desk.shows("Wg\nab"));
    QPoint pointer = desk.grip();
    desk.stylus.press(pointer);
    QVERIFY(desk.shows("Wg\nab")); // a press alone may be a tap
    for (const QPoint step : {QPoint(9, 4), QPoint(31, 17), QPoint(-12, 8)}) {
        pointer += step;
        desk.tapped += step;
        desk.stylus.move(pointer);
        desk.blink();
        QVERIFY(desk.shows("Wg\nab"));
    }
    desk.stylus.release(pointer);
    QVERIFY(desk.tool().takesText());
    desk.type("c");
    QVERIFY(desk.shows("Wg\nabc"));
    desk.type("\b\b\b\b\b");
    QVERIFY(desk.shows("W"));
    desk.stylus.press({1, 1});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("W")));
}

void tst_MovableText::undoGoesOnAtTheNewPlace()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.type("one two");
    desk.stylus.drag({desk.grip(), desk.grip() + QPoint(30, 40)});
    desk.tapped += QPoint(30, 40);
    QVERIFY(desk.shows("one two"));
    desk.canvas.undo();
    QVERIFY(desk.shows("one "));
    desk.canvas.redo();
    QVERIFY(desk.shows("one two"));
}

void tst_MovableText::linesFollowTheEdge()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.type("one two");
    const QPoint grip = desk.grip();
    const QPoint start = desk.tapped;
    const int room = desk.metrics().horizontalAdvance("one tw");
    desk.stylus.press(grip);
    const QPoint atEdge(200 - room - start.x(), 10);
    desk.stylus.move(grip + atEdge);
    desk.tapped = start + atEdge;
    QVERIFY(desk.shows("one \ntwo"));
    desk.stylus.move(grip + QPoint(0, 10));
    desk.tapped = start + QPoint(0, 10);
    QVERIFY(desk.shows("one two"));
    desk.stylus.move(grip + QPoint(0, 150)); // below the picture: the whole line stays
    desk.tapped = QPoint(start.x(), 160 - desk.metrics().descent());
    QVERIFY(desk.shows("one two"));
    desk.stylus.release(grip + QPoint(0, 150));
    QVERIFY(desk.shows("one two"));
}

void tst_MovableText::textStaysWithinReach()
{
    for (const QPoint far : {QPoint(-500, -500), QPoint(900, 900)}) {
        MovingDesk desk(false);
        desk.tap({60, 60});
        desk.type("Wg");
        const QPoint grip = desk.grip();
        desk.stylus.drag({grip, far});
        QVERIFY(desk.tool().isOnText({far.x() < 0 ? 0 : 199, far.y() < 0 ? 0 : 159}));
        QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    }
}

void tst_MovableText::tapOnTheTextIsATap_data()
{
    QTest::addColumn<QPoint>("moved");
    QTest::newRow("no move") << QPoint();
    QTest::newRow("a jitter") << QPoint(2, -2);
}

void tst_MovableText::tapOnTheTextIsATap()
{
    QFETCH(const QPoint, moved);
    MovingDesk actual(true);
    MovingDesk expected(true);
    expected.canvas.setManners([] {
        KORVA_Manners others = movable(true);
        others.movableText = false;
        return others;
    }());
    for (MovingDesk* desk : {&actual, &expected}) {
        desk->tap({20, 50});
        desk->type("one");
        const QPoint at = desk->grip();
        desk->stylus.press(at);
        desk->stylus.move(at + moved);
        desk->stylus.release(at + moved);
        desk->type("x");
    }
    QVERIFY(actual.tool().takesText());
    QVERIFY(sameImage(actual.canvas.merged(), expected.canvas.merged()));
    QVERIFY(actual.canvas.merged() != actual.base);
    QVERIFY(sameImage(actual.screen(), expected.screen()));
    QCOMPARE(actual.cursor(), expected.cursor());
}

void tst_MovableText::dragBesideTheTextEndsIt()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.type("Wg");
    desk.stylus.press({120, 120});
    QVERIFY(!desk.tool().takesText());
    desk.stylus.move({150, 130});
    desk.stylus.release({150, 130});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("Wg")));
}

void tst_MovableText::everyPressEndsItClassically()
{
    MovingDesk desk(true);
    desk.canvas.setManners({});
    desk.tap({20, 50});
    desk.type("Wg");
    QVERIFY(!desk.tool().isOnText(desk.grip()));
    desk.stylus.press(desk.grip());
    QVERIFY(!desk.tool().takesText());
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("Wg")));
    desk.stylus.move({90, 90});
    desk.stylus.release({90, 90});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("Wg")));
}

void tst_MovableText::escapeWhileItIsMoved()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.type("Wg");
    desk.stylus.press(desk.grip());
    desk.stylus.move({90, 90});
    desk.stylus.key(Qt::Key_Escape);
    QVERIFY(desk.isUntouched());
    desk.stylus.move({60, 60});
    desk.stylus.release({60, 60});
    QVERIFY(desk.isUntouched());
    QVERIFY(!desk.tool().takesText());
}

// The release is none of a tap that begins another text.
void tst_MovableText::escapeWhileItIsHeld()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.type("Wg");
    desk.stylus.press(desk.grip());
    desk.stylus.key(Qt::Key_Escape);
    desk.stylus.release(desk.grip());
    QVERIFY(desk.isUntouched());
    QVERIFY(!desk.tool().takesText());
}

void tst_MovableText::emptyTextIsMovedByItsBeam()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.stylus.drag({{20, 45}, {50, 85}});
    desk.tapped = {50, 90};
    QCOMPARE(desk.cursor(), desk.tapped);
    desk.type("a");
    QVERIFY(desk.shows("a"));
}

/// What is in the picture stays; the rest of the line moves.
void tst_MovableText::goesOnAfterACommit()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.type("ab");
    desk.tool().paintProportionBuffer();
    const QImage committed = desk.written("ab");
    QVERIFY(sameImage(desk.canvas.merged(), committed));
    const QPoint rest(20 + desk.metrics().horizontalAdvance("ab"), 50);
    desk.type("cd");
    desk.stylus.drag({rest + QPoint(4, -3), rest + QPoint(44, 37)});
    QVERIFY(sameImage(desk.canvas.merged(), committed));
    QVERIFY(
        sameImage(desk.pending(), fixtures::painted(committed, fixtures::solidPen(Qt::blue, 1), Qt::NoBrush,
                                                    fixtures::text(rest + QPoint(40, 40), "cd", 1))));
}

void tst_MovableText::fingerMovesIt()
{
    Screen screen;
    screen.write(place, "Hello");
    screen.fingers.drag({onIt, onIt + way / 2, onIt + way});
    QVERIFY(screen.editor.currentText()->takesText());
    QVERIFY(sameImage(screen.shown(), writtenAt(place + way)));
}

void tst_MovableText::secondFingerPutsItBack()
{
    Screen screen;
    screen.write(place, "Hello");
    const QImage before = screen.shown();
    const QImage drawing = screen.editor.snapshot();
    QSignalSpy takenBack(&screen.editor, &KORVA_EditCanvas::strokeTakenBack);
    screen.fingers.press(0, onIt);
    screen.fingers.move(0, onIt + way);
    QVERIFY(screen.editor.snapshot() != drawing);
    screen.fingers.press(1, {150, 120});
    QCOMPARE(takenBack.size(), 1);
    QVERIFY(sameImage(screen.editor.snapshot(), drawing));
    QVERIFY(sameImage(screen.shown(), before));
    screen.fingers.release(1);
    screen.fingers.release(0);
    screen.fingers.drag({onIt, onIt + way}); // and it still lies there
    QVERIFY(sameImage(screen.shown(), writtenAt(place + way)));
}

void tst_MovableText::keysDuringAFingersDragStay()
{
    Screen screen;
    screen.write(place, "Hello!");
    screen.fingers.press(0, onIt);
    screen.fingers.move(0, onIt + way);
    support::Gestures(screen.canvas).key(Qt::Key_Backspace, "\b");
    screen.fingers.press(1, {150, 120}); // too late to take it back
    screen.fingers.release(1);
    screen.fingers.release(0);
    QVERIFY(screen.editor.currentText()->takesText());
    QVERIFY(sameImage(screen.shown(), writtenAt(place + way)));
}

void tst_MovableText::fingersTapIsATap()
{
    Screen screen;
    screen.write(place, "Hello");
    const QImage drawing = screen.editor.snapshot();
    screen.fingers.tap(onIt);
    QVERIFY(screen.editor.currentText()->takesText());
    QVERIFY(screen.editor.currentText()->isBufferEmpty());
    QVERIFY(sameImage(screen.canvas.pixmap()->toImage(), drawing));
}

void tst_MovableText::penMovesIt()
{
    Screen screen;
    screen.write(place, "Hello");
    screen.pen.drag({onIt, onIt + way / 2, onIt + way});
    QVERIFY(screen.editor.currentText()->takesText());
    QVERIFY(sameImage(screen.shown(), writtenAt(place + way)));
}

void tst_MovableText::pointerIsSeen()
{
    MovingDesk desk(true);
    desk.tap({20, 50});
    desk.type("Wg");
    QCOMPARE(desk.canvas.cursor().shape(), Qt::IBeamCursor);
    desk.stylus.press(desk.grip());
    QCOMPARE(desk.canvas.cursor().shape(), Qt::IBeamCursor);
    desk.stylus.move({90, 90});
    QCOMPARE(desk.canvas.cursor().shape(), Qt::SizeAllCursor);
    desk.stylus.release({90, 90});
    QCOMPARE(desk.canvas.cursor().shape(), Qt::IBeamCursor);
}

void tst_MovableText::randomHands_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<int>("zoom");
    for (const int zoom : {50, 100, 150, 200}) {
        for (quint32 seed = 1; seed <= 4; ++seed)
            QTest::addRow("%d %%, seed %u", zoom, seed) << seed << zoom;
    }
}

/// Whatever is done: what is seen is what a commit leaves, and until then the picture is as it was.
void tst_MovableText::randomHands()
{
    QFETCH(const quint32, seed);
    QFETCH(const int, zoom);
    MovingDesk desk(true, zoom);
    desk.canvas.setUndoSteps(50, 1 << 22);
    QRandomGenerator random(seed * 1000 + quint32(zoom));
    const auto anywhere = [&] {
        return QPoint(random.bounded(desk.canvas.width()), random.bounded(desk.canvas.height()));
    };
    int moves = 0;
    QImage committed = desk.base;
    for (int i = 0; i < 150; ++i) {
        const bool wasOpen = desk.tool().takesText();
        const QPoint at = wasOpen && random.bounded(3) > 0 ? desk.cursor() - QPoint(1, 2) : anywhere();
        const bool isOnText = desk.tool().isOnText(at);
        const QImage pending = desk.pending();
        switch (random.bounded(7)) {
        case 0:
        case 1:
            desk.stylus.press(at);
            QCOMPARE(desk.tool().takesText(), isOnText);
            for (int steps = random.bounded(4); steps > 0; --steps)
                desk.stylus.move(anywhere());
            desk.stylus.release(anywhere());
            if (!isOnText)
                committed = pending;
            else if (desk.tool().takesText())
                ++moves;
            break;
        case 2:
            desk.stylus.click(at);
            committed = pending;
            break;
        case 3:
            desk.canvas.undo();
            committed = wasOpen ? committed : desk.canvas.merged();
            break;
        case 4:
            desk.canvas.redo();
            committed = wasOpen ? committed : desk.canvas.merged();
            break;
        case 5:
            desk.resize(QList{1, 3, 5}[random.bounded(3)]);
            break;
        default:
            for (int letters = random.bounded(1, 12); letters > 0; --letters)
                desk.type(QStringLiteral("Wi g\b\na").at(random.bounded(7)));
        }
        QVERIFY(sameImage(desk.canvas.merged(), committed));
        QVERIFY(sameImage(desk.screen(), support::scaled(desk.pending(), zoom)));
        if (desk.tool().takesText())
            desk.blink();
    }
    QVERIFY(moves > 0);
}

int main(int argc, char** argv)
{
    return support::run<tst_MovableText>(argc, argv);
}

#include "tst_MovableText.moc"
