#include "Fixtures.h"
#include "KORVA_MainView.h"
#include "KORVA_Manager.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Text.h"
#include "KORVA_Zoom.h"

using support::Gestures;
using support::sameImage;

namespace {

enum ToolID { Pencil, AreaSelect, Line, Text, Rectangle, Ellipse, Eraser, Hand };

constexpr int farStep = 10;
constexpr int zooms[] = {50, 100, 150, 200};
constexpr QPoint start(20, 30);

/// Some presses of one arrow key, plain or with Shift.
struct Way
{
    Qt::Key key;
    int times;
    bool isFar = false;
};
using Path = QList<Way>;

const Path crooked{{Qt::Key_Right, 4, true}, {Qt::Key_Down, 3, true}, {Qt::Key_Left, 6}, {Qt::Key_Down, 8}};

QPoint wayOf(Qt::Key key)
{
    return key == Qt::Key_Left    ? QPoint(-1, 0)
           : key == Qt::Key_Right ? QPoint(1, 0)
           : key == Qt::Key_Up    ? QPoint(0, -1)
                                  : QPoint(0, 1);
}

/// Where a pixel of the picture begins on the screen; for coordinates from 0.
int onScreen(int c, int zoom)
{
    return (c * zoom + 99) / 100;
}

QPoint onScreen(QPoint p, int zoom)
{
    return {onScreen(p.x(), zoom), onScreen(p.y(), zoom)};
}

/// An editor with a canvas larger than its view at 200 %, and a person at it.
struct Person
{
    explicit Person(ToolID tool = Pencil, int zoom = 100, const QImage& image = support::mosaic({200, 170}))
    {
        QPixmap picture = QPixmap::fromImage(image);
        editor.setPixmap(&picture);
        editor.setZoom(zoom);
        choose(tool);
        editor.clearModified();
        editor.show();
    }

    [[nodiscard]] KORVA_Canvas& canvas() { return *editor.canvas(); }
    [[nodiscard]] KORVA_PasteLabel& piece() { return *canvas().pasteLabel(); }
    [[nodiscard]] KORVA_ScrollView& view() { return *editor.mainView()->scrollView(); }
    [[nodiscard]] bool isFloating() { return !piece().isHidden(); }
    [[nodiscard]] QImage picture() { return canvas().pixmap()->toImage(); }
    [[nodiscard]] QImage shown() { return canvas().zoomedPixmap()->toImage(); }
    [[nodiscard]] QPoint pen() { return canvas().keyboardPen().value_or(QPoint(-1, -1)); }

    void choose(ToolID tool)
    {
        static constexpr ToolID order[] = {AreaSelect, Eraser, Line, Pencil, Text, Rectangle, Ellipse};
        const auto trigger = [this](const char* button, qsizetype row) {
            editor.findChild<QPushButton*>(button)->menu()->actions().at(row)->trigger();
        };
        const bool selects = tool == AreaSelect || tool == Hand;
        trigger("toolButton", std::ranges::find(order, selects ? AreaSelect : tool) - std::begin(order));
        if (selects)
            trigger("optionButton", tool == Hand ? 1 : 0);
        else if (tool == Eraser)
            trigger("optionButton", 2); // the smallest is nothing at 50 %
    }

    bool send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers held = {}, const QString& text = {},
              bool isRepeat = false)
    {
        QKeyEvent event(type, key, held, text, isRepeat);
        QCoreApplication::sendEvent(&canvas(), &event);
        return event.isAccepted();
    }
    bool down(Qt::Key key, Qt::KeyboardModifiers held = {}) { return send(QEvent::KeyPress, key, held); }
    bool up(Qt::Key key) { return send(QEvent::KeyRelease, key); }
    bool tap(Qt::Key key, Qt::KeyboardModifiers held = {}, const QString& text = {})
    {
        const bool isTaken = send(QEvent::KeyPress, key, held, text);
        send(QEvent::KeyRelease, key, held, text);
        return isTaken;
    }
    void type(const QString& text)
    {
        for (const QChar letter : text)
            tap(Qt::Key(letter.toUpper().unicode()), {}, letter);
    }
    void walk(const Path& path)
    {
        for (const Way& way : path) {
            for (int i = 0; i < way.times; ++i)
                tap(way.key, way.isFar ? Qt::ShiftModifier : Qt::NoModifier);
        }
    }
    /// Off it first, where it is seen; then step by step.
    void walkTo(QPoint place)
    {
        walk({{Qt::Key_Left, 40, true}, {Qt::Key_Up, 40, true}});
        QCOMPARE(pen(), QPoint(0, 0));
        walk({{Qt::Key_Right, place.x() / farStep, true}, {Qt::Key_Down, place.y() / farStep, true}});
    }

    /// The same by mouse: a press at the start, a move for every step.
    void drag(const Path& path)
    {
        const int zoom = canvas().zoom();
        QPoint at = onScreen(start, zoom);
        Gestures mouse(canvas());
        mouse.press(at);
        for (const Way& way : path) {
            for (int i = 0; i < way.times; ++i) {
                const QPoint before = at;
                at = onScreen(at * 100 / zoom + wayOf(way.key) * (way.isFar ? farStep : 1), zoom);
                if (at == before) // half a pixel of the screen: it is a whole one
                    at += wayOf(way.key);
                mouse.move(at);
            }
        }
        mouse.release(at);
    }

    KORVA_EditCanvas editor{KORVA_COLOR_16BIT};
};

bool sameDrawing(Person& keys, Person& mouse)
{
    return sameImage(keys.shown(), mouse.shown()) && keys.isFloating() == mouse.isFloating() &&
           keys.piece().geometry() == mouse.piece().geometry() &&
           sameImage(keys.editor.snapshot(), mouse.editor.snapshot()) &&
           keys.editor.isModified() == mouse.editor.isModified() &&
           keys.canvas().undoFlag() == mouse.canvas().undoFlag();
}

} // namespace

class tst_KeyboardPen : public support::TestCase
{
    Q_OBJECT

private slots:
    void drawsAsTheMouseDoes_data();
    void drawsAsTheMouseDoes();
    void movesByPicturePixels();
    void staysOnTheCanvas();
    void aSelectionReachesTheLastPixel();
    void isOffAtFirst();
    void keysAreTheCanvass();
    void heldOnceForAll();
    void letsGoWhenTheFocusGoes();
    void givesWayToThePointer();
    void isSeenOnEveryGround_data();
    void isSeenOnEveryGround();
    void isNoPartOfTheDrawing();
    void theViewScrollsAlong();
    void theHandMovesTheView();
    void keepsItsPlaceInThePicture();
    void textIsTyped();
    void escapeEndsAText();
    void aPieceIsMoved_data();
    void aPieceIsMoved();
    void aPieceIsStretched_data();
    void aPieceIsStretched();
    void aLargePieceGrows();
    void aPieceIsTurned();
    void aPieceIsMerged();
    void theSmallestPieceIsMoved();
    void tellsWhatAKeyIs();
};

void tst_KeyboardPen::drawsAsTheMouseDoes_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<bool>("isHeld");
    for (const int tool : {Pencil, AreaSelect, Line, Rectangle, Ellipse, Eraser}) {
        for (const int zoom : zooms) {
            for (const bool isHeld : {true, false})
                QTest::addRow("tool %d at %d %% %s", tool, zoom, isHeld ? "held" : "latched")
                    << tool << zoom << isHeld;
        }
    }
}

void tst_KeyboardPen::drawsAsTheMouseDoes()
{
    QFETCH(const int, tool);
    QFETCH(const int, zoom);
    QFETCH(const bool, isHeld);
    Person keys(ToolID(tool), zoom);
    Person mouse(ToolID(tool), zoom);
    const QImage before = keys.picture();
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    QCOMPARE(keys.pen(), start);
    QVERIFY(sameImage(keys.picture(), before));
    QVERIFY(!keys.editor.isModified());

    if (isHeld)
        keys.down(Qt::Key_Space);
    else
        keys.tap(Qt::Key_Return);
    keys.walk(crooked);
    if (isHeld)
        keys.up(Qt::Key_Space);
    else
        keys.tap(Qt::Key_Enter);
    mouse.drag(crooked);

    QVERIFY(tool == AreaSelect ? keys.isFloating() : keys.editor.snapshot() != before);
    QVERIFY(sameDrawing(keys, mouse));
    keys.editor.undo();
    mouse.editor.undo();
    QVERIFY(sameDrawing(keys, mouse));
}

void tst_KeyboardPen::movesByPicturePixels()
{
    for (const int zoom : zooms) {
        Person keys(Pencil, zoom);
        keys.canvas().setKeyboardDrawing(true);
        keys.walkTo(start);
        const int step = zoom < 100 ? 100 / zoom : 1; // no less than a pixel of the screen
        keys.tap(Qt::Key_Right);
        QCOMPARE(keys.pen(), start + QPoint(step, 0));
        keys.tap(Qt::Key_Left);
        QCOMPARE(keys.pen(), start);
        keys.tap(Qt::Key_Down);
        QCOMPARE(keys.pen(), start + QPoint(0, step));
        keys.tap(Qt::Key_Up);
        QCOMPARE(keys.pen(), start);
        keys.tap(Qt::Key_Right, Qt::ControlModifier);
        keys.tap(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(keys.pen(), start + QPoint(10, 10));
        keys.send(QEvent::KeyPress, Qt::Key_Up, Qt::KeypadModifier, {}, true); // held down
        QCOMPARE(keys.pen(), start + QPoint(10, 10 - step));
    }
}

void tst_KeyboardPen::staysOnTheCanvas()
{
    Person keys;
    keys.canvas().setKeyboardDrawing(true);
    keys.tap(Qt::Key_Right);
    QCOMPARE(keys.pen(), QPoint(100, 84)); // from the middle of what is seen
    keys.walk({{Qt::Key_Left, 30, true}, {Qt::Key_Up, 30, true}});
    QCOMPARE(keys.pen(), QPoint(0, 0));
    keys.walk({{Qt::Key_Right, 300}, {Qt::Key_Down, 300}});
    QCOMPARE(keys.pen(), QPoint(199, 169));
}

void tst_KeyboardPen::aSelectionReachesTheLastPixel()
{
    Person keys(AreaSelect);
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo({0, 0});
    keys.down(Qt::Key_Space);
    keys.walk({{Qt::Key_Right, 30, true}, {Qt::Key_Down, 30, true}});
    keys.up(Qt::Key_Space);
    QCOMPARE(keys.piece().geometry(), QRect(0, 0, 200, 170));
    QCOMPARE(keys.pen(), QPoint(199, 169));
}

void tst_KeyboardPen::isOffAtFirst()
{
    Person keys(Pencil, 200);
    const QImage before = keys.picture();
    const auto pressAll = [&keys] {
        keys.view().setContentsPos(40, 40);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape})
            QVERIFY(!keys.tap(key));
        keys.tap(Qt::Key_Right); // the scroll view's, as ever
        keys.tap(Qt::Key_Down);
    };
    pressAll();
    const QPoint scrolled(keys.view().contentsX(), keys.view().contentsY());
    QVERIFY(scrolled.x() > 40 && scrolled.y() > 40);
    QVERIFY(!keys.canvas().isKeyboardDrawing());
    QVERIFY(!keys.canvas().keyboardPen());

    keys.canvas().setKeyboardDrawing(true);
    QVERIFY(keys.canvas().isKeyboardDrawing());
    QVERIFY(!keys.canvas().keyboardPen()); // nobody has used it yet
    keys.tap(Qt::Key_Right);
    QVERIFY(keys.canvas().keyboardPen());
    keys.canvas().setKeyboardDrawing(false);
    QVERIFY(!keys.canvas().keyboardPen());
    pressAll();
    QCOMPARE(QPoint(keys.view().contentsX(), keys.view().contentsY()), scrolled);
    QVERIFY(sameImage(keys.picture(), before));
    QVERIFY(!keys.editor.isModified());
}

void tst_KeyboardPen::keysAreTheCanvass()
{
    QWidget window;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    QStringList run;
    for (const char* keys : {"Space", "Right", "Shift+Right", "Return", "]", "A"}) {
        auto* command = new QAction(&window);
        command->setShortcut(QKeySequence(keys));
        connect(command, &QAction::triggered, &window, [&run, keys] { run << keys; });
        window.addAction(command);
    }
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto pressAll = [&] {
        run.clear();
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Return, Qt::Key_BracketRight})
            QTest::keyClick(editor.canvas(), key);
        QTest::keyClick(editor.canvas(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(editor.canvas(), Qt::Key_A);
        return run.join(' ');
    };
    QCOMPARE(pressAll(), "Space Right Return ] Shift+Right A");
    editor.canvas()->setKeyboardDrawing(true);
    QCOMPARE(pressAll(), "] A"); // nothing floats that could be turned
    editor.selectAll();
    QCOMPARE(pressAll(), "] A"); // Return has merged it
    editor.selectAll();
    QTest::keyClick(editor.canvas(), Qt::Key_BracketRight);
    QCOMPARE(run.join(' '), "] A");
}

void tst_KeyboardPen::heldOnceForAll()
{
    Person keys(Line);
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    const QImage before = keys.picture();
    keys.down(Qt::Key_Space);
    for (int i = 0; i < 3; ++i) { // as the system repeats a key
        QVERIFY(keys.send(QEvent::KeyRelease, Qt::Key_Space, {}, " ", true));
        QVERIFY(keys.send(QEvent::KeyPress, Qt::Key_Space, {}, " ", true));
    }
    keys.walk({{Qt::Key_Right, 5, true}});
    QVERIFY(!keys.editor.isModified());
    keys.up(Qt::Key_Space);
    QVERIFY(keys.editor.isModified());
    Person mouse(Line);
    mouse.drag({{Qt::Key_Right, 5, true}});
    QVERIFY(sameDrawing(keys, mouse));

    // Down by Return it goes up by either, and a hold may become lasting.
    for (const bool byReturn : {true, false}) {
        keys.editor.clearModified();
        keys.down(Qt::Key_Space);
        keys.tap(Qt::Key_Return);
        keys.up(Qt::Key_Space);
        keys.walk({{Qt::Key_Down, 2, true}});
        QVERIFY(!keys.editor.isModified());
        keys.tap(byReturn ? Qt::Key_Return : Qt::Key_Space);
        QVERIFY(keys.editor.isModified());
    }
    QVERIFY(keys.picture() != before);
}

void tst_KeyboardPen::letsGoWhenTheFocusGoes()
{
    Person keys(Line);
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    keys.down(Qt::Key_Space);
    keys.walk({{Qt::Key_Right, 5, true}});
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&keys.canvas(), &out);
    QTRY_VERIFY(keys.editor.isModified());
    QVERIFY(!keys.canvas().keyboardPen());
    const QImage drawn = keys.picture();
    keys.up(Qt::Key_Space);
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&keys.canvas(), &in);
    QCOMPARE(keys.pen(), start + QPoint(50, 0)); // who comes by keyboard sees where it is
    keys.walk({{Qt::Key_Down, 5, true}});
    QVERIFY(sameImage(keys.picture(), drawn));
}

void tst_KeyboardPen::givesWayToThePointer()
{
    Person keys(Line);
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    keys.tap(Qt::Key_Return);
    keys.walk({{Qt::Key_Right, 3, true}});
    Gestures(keys.canvas()).drag({{70, 80}, {90, 100}});
    QVERIFY(!keys.canvas().keyboardPen());
    keys.tap(Qt::Key_Right);
    QCOMPARE(keys.pen(), QPoint(91, 100));

    Person mouse(Line);
    mouse.drag({{Qt::Key_Right, 3, true}});
    Gestures(mouse.canvas()).drag({{70, 80}, {90, 100}});
    QVERIFY(sameDrawing(keys, mouse));
}

void tst_KeyboardPen::isSeenOnEveryGround_data()
{
    QTest::addColumn<QColor>("ground");
    for (const QColor& ground :
         {QColor(Qt::white), QColor(Qt::black), QColor(128, 128, 128), QColor(Qt::red)})
        QTest::newRow(qPrintable(ground.name())) << ground;
}

void tst_KeyboardPen::isSeenOnEveryGround()
{
    QFETCH(const QColor, ground);
    Person keys(Pencil, 100, support::sheet({200, 170}, ground));
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    for (const bool isDown : {false, true}) {
        if (isDown)
            keys.down(Qt::Key_Space);
        const QImage seen = keys.canvas().grab().toImage();
        int darkest = 255;
        int lightest = 0;
        int marked = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                if (seen.pixelColor(x, y) == ground || QPoint(x, y) == start)
                    continue;
                ++marked;
                QVERIFY(QRect(start - QPoint(10, 10), start + QPoint(10, 10)).contains(x, y));
                darkest = qMin(darkest, qGray(seen.pixel(x, y)));
                lightest = qMax(lightest, qGray(seen.pixel(x, y)));
            }
        }
        QVERIFY(marked >= 20);
        const int light = qGray(ground.rgb());
        QVERIFY(qMax(light - darkest, lightest - light) > 100);
    }
    keys.up(Qt::Key_Space);
    QCOMPARE(keys.canvas().grab().toImage().pixelColor(start), QColor(Qt::red)); // it leaves its pixel free
}

void tst_KeyboardPen::isNoPartOfTheDrawing()
{
    Person keys;
    const QImage before = keys.picture();
    const QImage seen = keys.canvas().grab().toImage();
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    QVERIFY(keys.canvas().grab().toImage() != seen);
    QVERIFY(sameImage(keys.picture(), before));
    QVERIFY(sameImage(keys.shown(), before));
    QVERIFY(sameImage(keys.editor.snapshot(), before));
    QCOMPARE(keys.canvas().childAt(start), nullptr); // the pointer goes through it
    keys.canvas().setKeyboardDrawing(false);
    QVERIFY(sameImage(keys.canvas().grab().toImage(), seen));
}

void tst_KeyboardPen::theViewScrollsAlong()
{
    Person keys(Pencil, 200);
    keys.canvas().setKeyboardDrawing(true);
    const auto check = [&keys] {
        const QPoint at = onScreen(keys.pen(), 200) + keys.canvas().pos();
        QVERIFY2(keys.view().viewport()->rect().contains(at),
                 qPrintable(QString("%1, %2").arg(keys.pen().x()).arg(keys.pen().y())));
    };
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
        for (int i = 0; i < 25; ++i) {
            keys.tap(key, Qt::ShiftModifier);
            check();
        }
    }
    QCOMPARE(keys.pen(), QPoint(199, 169));
    QVERIFY(keys.view().contentsX() > 0 && keys.view().contentsY() > 0);
    keys.view().setContentsPos(0, 0);
    keys.down(Qt::Key_Space);
    keys.tap(Qt::Key_Left);
    check();
}

void tst_KeyboardPen::theHandMovesTheView()
{
    Person keys(Hand, 200);
    Person mouse(Hand, 200);
    for (Person* person : {&keys, &mouse})
        person->view().setContentsPos(0, 0);
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo({60, 60});
    keys.down(Qt::Key_Space);
    Gestures pointer(mouse.canvas());
    pointer.press({120, 120});
    for (int x = 100; x >= 20; x -= 20) {
        keys.tap(Qt::Key_Left, Qt::ShiftModifier);
        pointer.move({x, 120});
        QCOMPARE(keys.view().contentsX(), mouse.view().contentsX());
    }
    keys.up(Qt::Key_Space);
    QVERIFY(mouse.view().contentsX() > 20);
    QCOMPARE(keys.view().contentsX(), mouse.view().contentsX());
    QVERIFY(keys.view().viewport()->rect().contains(onScreen(keys.pen(), 200) + keys.canvas().pos()));
}

void tst_KeyboardPen::keepsItsPlaceInThePicture()
{
    Person keys;
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo({60, 40});
    for (const int zoom : {200, 50, 150, 100}) {
        keys.editor.setZoom(zoom);
        QCOMPARE(keys.pen(), QPoint(60, 40));
    }
    QPixmap smaller(32, 20);
    smaller.fill(Qt::white);
    keys.editor.setPixmap(&smaller);
    QCOMPARE(keys.pen(), QPoint(31, 19));
}

void tst_KeyboardPen::textIsTyped()
{
    Person keys(Text);
    Person mouse(Text);
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    keys.tap(Qt::Key_Space);
    QVERIFY(!keys.canvas().keyboardPen()); // the caret takes its place
    Gestures(mouse.canvas()).click(start);
    for (Person* person : {&keys, &mouse}) {
        person->type("a b");
        QVERIFY(person->tap(Qt::Key_Return, {}, "\r"));
        person->type("]");
        QVERIFY(!person->send(QEvent::KeyPress, Qt::Key_F5));
    }
    QVERIFY(sameImage(keys.editor.snapshot(), mouse.editor.snapshot()));
    keys.choose(Pencil);
    mouse.choose(Pencil);
    QVERIFY(sameDrawing(keys, mouse));
    QVERIFY(keys.editor.isModified());
}

void tst_KeyboardPen::escapeEndsAText()
{
    Person keys(Text);
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    keys.tap(Qt::Key_Return);
    keys.tap(Qt::Key_Return); // a tap, for who can't hold a key
    keys.type("Korva");
    const QImage typed = keys.editor.snapshot();
    const QImage empty = keys.picture();
    QVERIFY(typed != empty);
    QVERIFY(keys.tap(Qt::Key_Escape));
    QCOMPARE(keys.pen(), start);
    QVERIFY(sameImage(keys.picture(), typed));
    QVERIFY(sameImage(keys.shown(), typed));
    QVERIFY(!keys.editor.currentText()->takesText());
    keys.type("x");
    QVERIFY(sameImage(keys.editor.snapshot(), typed));
    QVERIFY(!keys.tap(Qt::Key_Escape)); // now it is the host's
    keys.editor.undo();
    QVERIFY(sameImage(keys.picture(), empty));

    keys.tap(Qt::Key_Space); // one more, elsewhere
    keys.type("y");
    QVERIFY(keys.editor.snapshot() != empty);
}

void tst_KeyboardPen::aPieceIsMoved_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : zooms)
        QTest::addRow("%d %%", zoom) << zoom;
}

void tst_KeyboardPen::aPieceIsMoved()
{
    QFETCH(const int, zoom);
    Person keys(AreaSelect, zoom);
    Person mouse(AreaSelect, zoom);
    keys.canvas().setKeyboardDrawing(true);
    for (Person* person : {&keys, &mouse})
        person->canvas().setSelection(QRect(20, 20, 40, 30));
    keys.walk({{Qt::Key_Right, 2, true}, {Qt::Key_Down, 3}, {Qt::Key_Up, 1}, {Qt::Key_Left, 1, true}});
    const int single = zoom < 100 ? 100 / zoom : 1;
    const QPoint from(20 * 100 / zoom, 20 * 100 / zoom);
    const QPoint to = onScreen(from + QPoint(10, 2 * single), zoom);
    QCOMPARE(keys.piece().pos(), to);
    Gestures pointer(mouse.canvas());
    pointer.hover({40, 35});
    pointer.drag({{40, 35}, QPoint(40, 35) + to - QPoint(20, 20)});
    QVERIFY(sameDrawing(keys, mouse));
    QVERIFY(!keys.canvas().keyboardPen()); // the pen has not been used
    QVERIFY(sameImage(keys.picture(), mouse.picture()));

    keys.canvas().setSelection(QRect(20, 20, 40, 30));
    keys.walk({{Qt::Key_Left, 50, true}, {Qt::Key_Up, 50, true}});
    QCOMPARE(keys.piece().geometry().bottomRight(), QPoint(0, 0)); // it is never lost
}

void tst_KeyboardPen::aPieceIsStretched_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isFar");
    for (const int zoom : zooms) {
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            for (const bool isFar : {false, true})
                QTest::addRow("%d %% key %x %s", zoom, key, isFar ? "far" : "")
                    << zoom << int(key) << isFar;
        }
    }
}

void tst_KeyboardPen::aPieceIsStretched()
{
    QFETCH(const int, zoom);
    QFETCH(const int, key);
    QFETCH(const bool, isFar);
    Person keys(AreaSelect, zoom);
    Person mouse(AreaSelect, zoom);
    keys.canvas().setKeyboardDrawing(true);
    for (Person* person : {&keys, &mouse})
        person->canvas().setSelection(QRect(20, 20, 40, 30));
    const QSize before = keys.piece().size();
    QVERIFY(keys.tap(Qt::Key(key), Qt::AltModifier | (isFar ? Qt::ShiftModifier : Qt::NoModifier)));
    QVERIFY(keys.piece().size() != before);
    QCOMPARE(keys.piece().pos(), QPoint(20, 20));

    const QPoint way = wayOf(Qt::Key(key));
    const int length = qMax(1, onScreen(isFar ? farStep : 1, zoom));
    const QPoint handle = way.y() == 0 ? QPoint(before.width() - 3, before.height() / 2)
                                       : QPoint(before.width() / 2, before.height() - 3);
    Gestures pointer(mouse.piece());
    pointer.hover(handle);
    pointer.drag({handle, handle + way * length});
    QVERIFY(sameDrawing(keys, mouse));
    QVERIFY(sameImage(keys.piece().getImage(), mouse.piece().getImage().toImage()));
}

void tst_KeyboardPen::aLargePieceGrows()
{
    Person keys;
    keys.canvas().setKeyboardDrawing(true);
    keys.editor.selectAll();
    for (int i = 0; i < 3; ++i) {
        const QSize before = keys.piece().size();
        keys.tap(Qt::Key_Right, Qt::AltModifier); // a pixel is less than the hundredth that counts
        keys.tap(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(keys.piece().width() > before.width() && keys.piece().height() > before.height());
    }
    for (int i = 0; i < 100; ++i)
        keys.tap(Qt::Key_Left, Qt::AltModifier | Qt::ControlModifier);
    QCOMPARE(keys.piece().width(), 1);
}

void tst_KeyboardPen::aPieceIsTurned()
{
    const auto turned = [](std::initializer_list<std::pair<Qt::Key, Qt::KeyboardModifiers>> presses) {
        Person keys;
        keys.canvas().setKeyboardDrawing(true);
        keys.canvas().setSelection(QRect(20, 20, 40, 30));
        for (const auto& [key, held] : presses)
            keys.tap(key, held);
        return keys.piece().getImage().toImage();
    };
    const auto dragged = [](QPoint way) {
        Person mouse;
        mouse.canvas().setSelection(QRect(20, 20, 40, 30));
        Gestures pointer(mouse.piece());
        pointer.hover({38, 2});
        pointer.drag({{38, 2}, QPoint(38, 2) + way});
        return mouse.piece().getImage().toImage();
    };
    const QImage clockwise = dragged({0, 5});
    QCOMPARE(clockwise.size(), QSize(30, 40));
    QVERIFY(clockwise != dragged({0, -1}));
    QVERIFY(sameImage(turned({{Qt::Key_BracketRight, {}}}), clockwise));
    QVERIFY(sameImage(turned({{Qt::Key_PageDown, Qt::AltModifier}}), clockwise));
    QVERIFY(sameImage(turned({{Qt::Key_BracketLeft, {}}}), dragged({0, -1})));
    QVERIFY(sameImage(turned({{Qt::Key_PageUp, Qt::AltModifier}}), dragged({0, -1})));
    QVERIFY(sameImage(turned({{Qt::Key_BracketLeft, {}}, {Qt::Key_BracketRight, {}}}), turned({})));
}

void tst_KeyboardPen::aPieceIsMerged()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Person keys(Line);
        keys.canvas().setKeyboardDrawing(true);
        keys.canvas().setSelection(QRect(20, 20, 40, 30));
        keys.walk({{Qt::Key_Right, 5, true}});
        const QImage floating = keys.editor.snapshot();
        QVERIFY(!keys.send(QEvent::KeyPress, Qt::Key_Escape)); // the host's, as ever
        QVERIFY(keys.isFloating());
        keys.tap(key);
        QVERIFY(!keys.isFloating());
        QVERIFY(sameImage(keys.picture(), floating));
        keys.walk({{Qt::Key_Right, 5, true}}); // now it is the pen that moves
        QVERIFY(keys.canvas().keyboardPen());
        QVERIFY(sameImage(keys.picture(), floating));
    }

    // By the button beside it, as with a mouse; on it, the button drags.
    Person keys;
    Person mouse;
    keys.canvas().setKeyboardDrawing(true);
    keys.walkTo(start);
    for (Person* person : {&keys, &mouse})
        person->canvas().setSelection(QRect(10, 10, 40, 40));
    Gestures(keys.canvas()).hover({48, 30}); // where the mouse would stretch it
    keys.down(Qt::Key_Space);
    keys.walk({{Qt::Key_Right, 7, true}});
    keys.up(Qt::Key_Space);
    QCOMPARE(keys.piece().pos(), QPoint(80, 10));
    Gestures pointer(mouse.canvas());
    pointer.hover(start);
    pointer.drag({start, start + QPoint(70, 0)});
    keys.canvas().setSelection(QRect(10, 100, 20, 20));
    mouse.canvas().setSelection(QRect(10, 100, 20, 20));
    keys.tap(Qt::Key_Space);
    Gestures(mouse.canvas()).click(start + QPoint(70, 0));
    QVERIFY(!keys.isFloating());
    QVERIFY(sameDrawing(keys, mouse));
}

void tst_KeyboardPen::theSmallestPieceIsMoved()
{
    Person keys;
    keys.canvas().setKeyboardDrawing(true);
    keys.canvas().setSelection(QRect(20, 20, 3, 2));
    keys.tap(Qt::Key_Right);
    keys.tap(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(keys.piece().geometry(), QRect(21, 30, 3, 2));
}

void tst_KeyboardPen::tellsWhatAKeyIs()
{
    Person keys(Text);
    KORVA_Canvas& canvas = keys.canvas();
    const auto use = [&canvas](Qt::Key key, Qt::KeyboardModifiers held = {}) {
        return canvas.penKey(QKeyEvent(QEvent::KeyPress, key, held));
    };
    QCOMPARE(use(Qt::Key_Space), KORVA_Canvas::NotThePens);
    canvas.setKeyboardDrawing(true);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Left})
        QCOMPARE(use(key), KORVA_Canvas::AsPointer);
    QCOMPARE(use(Qt::Key_Left, Qt::ShiftModifier | Qt::KeypadModifier), KORVA_Canvas::AsPointer);
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_BracketLeft, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Menu})
        QCOMPARE(use(key), KORVA_Canvas::NotThePens);
    QCOMPARE(use(Qt::Key_Left, Qt::AltModifier), KORVA_Canvas::NotThePens);
    QCOMPARE(use(Qt::Key_Space, Qt::ControlModifier), KORVA_Canvas::NotThePens);

    Gestures(canvas).click(start);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Left, Qt::Key_BracketLeft})
        QCOMPARE(use(key), KORVA_Canvas::NotThePens);
    QCOMPARE(use(Qt::Key_Escape), KORVA_Canvas::AsPointer);

    keys.choose(Pencil);
    canvas.setSelection(QRect(20, 20, 40, 30));
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Return, Qt::Key_BracketLeft})
        QCOMPARE(use(key), KORVA_Canvas::OnPiece);
    QCOMPARE(use(Qt::Key_Left, Qt::AltModifier), KORVA_Canvas::OnPiece);
    QCOMPARE(use(Qt::Key_Space), KORVA_Canvas::AsPointer);
}

int main(int argc, char** argv)
{
    return support::run<tst_KeyboardPen>(argc, argv);
}

#include "tst_KeyboardPen.moc"
