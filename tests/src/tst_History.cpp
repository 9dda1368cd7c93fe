#include "EditorFixtures.h"
#include "KORVA_History.h"
#include "support/TestCase.h"

#include <QRandomGenerator>

using fixtures::EditorDesk;
using support::sameImage;

namespace {

constexpr qint64 plenty = 64 << 20;

void pump()
{
    QCoreApplication::processEvents();
}

/// What a person may do, so that afterwards nothing floats and no text is open.
class Person
{
public:
    Person(EditorDesk& desk, quint32 seed) : m_desk(desk), m_random(seed) {}

    void act()
    {
        using Act = void (Person::*)();
        static constexpr Act acts[] = {
            &Person::stroke,   &Person::stroke,    &Person::stroke, &Person::type, &Person::lookAtText,
            &Person::moveArea, &Person::paste,     &Person::stamp,  &Person::cut,  &Person::clear,
            &Person::resize,   &Person::newCanvas, &Person::open,   &Person::drop, &Person::zoom};
        (this->*acts[number(0, std::size(acts) - 1)])();
        m_desk.editor->commitText();
        m_desk.canvas().mergePastePixmap();
    }

private:
    int number(int from, int to) { return m_random.bounded(from, to + 1); }
    QPoint place()
    {
        const QSize size = m_desk.canvas().size();
        return {number(0, qMax(1, size.width() - 1)), number(0, qMax(1, size.height() - 1))};
    }
    support::Gestures hand() { return support::Gestures(m_desk.canvas()); }

    void stroke()
    {
        static constexpr int tools[] = {KORVA_TOOL_PENCIL, KORVA_TOOL_LINE, KORVA_TOOL_RECTANGLE,
                                        KORVA_TOOL_ELLIPSE, KORVA_TOOL_ERASER};
        m_desk.editor->selectTool(tools[number(0, std::size(tools) - 1)]);
        m_desk.editor->selectOption(number(0, 2));
        m_desk.editor->setColor(QColor::fromRgb(m_random.generate()));
        hand().drag({place(), place(), place()});
    }
    void type() { m_desk.type("Abc"); }
    void lookAtText()
    {
        m_desk.editor->selectTool(KORVA_TOOL_TEXT);
        m_desk.editor->selectTool(KORVA_TOOL_PENCIL);
    }
    void select()
    {
        m_desk.editor->selectTool(KORVA_TOOL_SELECT);
        hand().drag({place(), place()});
    }
    void moveArea()
    {
        select();
        m_desk.canvas().pasteLabel()->move(place());
    }
    void cut()
    {
        select();
        m_desk.editor->cut();
    }
    void drop()
    {
        select();
        m_desk.editor->deleteSelection();
    }
    void paste()
    {
        QGuiApplication::clipboard()->setImage(support::mosaic({number(1, 30), number(1, 30)}));
        m_desk.editor->paste();
    }
    void stamp()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic({number(1, 30), number(1, 30)}));
        m_desk.editor->insertStamp(picture);
    }
    void clear() { m_desk.editor->clearCanvas(); }
    void resize() { m_desk.editor->setCanvasSize(number(1, 120), number(1, 120)); }
    void newCanvas() { m_desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, number(1, 90), number(1, 90)); }
    void open()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic({number(1, 90), number(1, 90)}));
        m_desk.editor->setPixmap(&picture);
    }
    void zoom() { m_desk.editor->selectZoom(number(KORVA_ZOOM_50, KORVA_ZOOM_FIT)); }

    EditorDesk& m_desk;
    QRandomGenerator m_random;
};

} // namespace

class tst_History : public support::TestCase
{
    Q_OBJECT

private slots:
    void stepsLeadBackAndForward();
    void oldestStepsGoFirst();
    void newestStepStaysHoweverLarge();
    void strokesAreSmall();

    void oneStepIsTheExchange();
    void walksThroughStrokes();
    void undoneStepsAreForgottenByAChange();
    void oneUndoTakesATextBack();
    void lookingAtAToolCostsNothing();
    void whiteOnWhiteIsNoStep();
    void wholeActsAreOneStep_data();
    void wholeActsAreOneStep();
    void offersAreTrue();
    void walkingMarksModified();
    void otherLimitsForgetTheSteps();
    void everyStateIsWalkedBackAndForward_data();
    void everyStateIsWalkedBackAndForward();
};

void tst_History::stepsLeadBackAndForward()
{
    const QList<QImage> states{support::sheet({40, 30}),
                               support::mosaic({40, 30}),
                               support::filled(support::mosaic({40, 30}), {39, 29, 1, 1}, Qt::white),
                               support::mosaic({7, 90}),
                               support::sheet({1, 1}, Qt::red),
                               support::mosaic({1500, 1000}), // compressed beside the caller
                               support::filled(support::mosaic({1500, 1000}), {0, 0, 1, 1}, Qt::white)};
    KORVA_History history;
    history.setLimits(50, plenty);
    for (int i = 1; i < states.size(); ++i)
        history.add(states[i - 1], states[i]);
    for (int round = 0; round < 2; ++round) {
        QImage now = states.last();
        for (int i = int(states.size()) - 2; i >= 0; --i) {
            QVERIFY(history.canUndo());
            now = history.undo(now);
            QVERIFY(sameImage(now, states[i]));
        }
        QVERIFY(!history.canUndo());
        for (int i = 1; i < states.size(); ++i) {
            QVERIFY(history.canRedo());
            now = history.redo(now);
            QVERIFY(sameImage(now, states[i]));
        }
        QVERIFY(!history.canRedo());
        QThreadPool::globalInstance()->waitForDone();
    }
}

void tst_History::oldestStepsGoFirst()
{
    KORVA_History history;
    history.setLimits(3, plenty);
    QImage now = support::sheet({20, 20});
    QList<QImage> states{now};
    for (int i = 0; i < 5; ++i) {
        now = support::filled(now, {i, 0, 1, 1}, Qt::black);
        history.add(states.last(), now);
        states << now;
    }
    for (int i = 4; i >= 2; --i) {
        now = history.undo(now);
        QVERIFY(sameImage(now, states[i]));
    }
    QVERIFY(!history.canUndo());
}

void tst_History::newestStepStaysHoweverLarge()
{
    KORVA_History history;
    history.setLimits(10, 100);
    const QImage a = support::sheet({200, 200});
    const QImage b = support::mosaic({200, 200});
    const QImage c = support::inverted(b);
    history.add(a, b);
    history.add(b, c);
    QVERIFY(history.bytes() > 100);
    QVERIFY(sameImage(history.undo(c), b));
    QVERIFY(!history.canUndo());
}

void tst_History::strokesAreSmall()
{
    KORVA_History history;
    history.setLimits(1000, plenty);
    QRandomGenerator random(1);
    QImage now = support::mosaic({352, 288}).convertToFormat(QImage::Format_RGB32);
    for (int step = 0; step < 100; ++step) {
        QImage next = now;
        QPainterPath path(QPointF(random.bounded(352), random.bounded(288)));
        for (int i = 0; i < 3; ++i)
            path.cubicTo(random.bounded(352), random.bounded(288), random.bounded(352), random.bounded(288),
                         random.bounded(352), random.bounded(288));
        QPainter painter(&next);
        painter.strokePath(path, QPen(QColor::fromRgb(random.generate()), 5));
        painter.end();
        history.add(now, next);
        now = next;
    }
    qInfo("100 strokes take %lld bytes", history.bytes());
    QVERIFY(history.bytes() > 100 * 20);
    QVERIFY(history.bytes() < 4 << 20);
}

void tst_History::oneStepIsTheExchange()
{
    EditorDesk desk;
    QCOMPARE(desk.editor->undoSteps(), 1);
    const QImage before = desk.picture();
    desk.scribble();
    const QImage after = desk.picture();
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), before));
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), after));
    pump();
    QCOMPARE(desk.log.taken(),
             QStringList({"canUndo(false)", "canRedo(true)", "canUndo(false)", "canRedo(true)"}));
}

void tst_History::walksThroughStrokes()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    support::Gestures hand(desk.canvas());
    QList<QImage> states{desk.picture()};
    for (int i = 0; i < 10; ++i) {
        hand.drag({{10 + 9 * i, 10}, {20 + 9 * i, 60}});
        states << desk.picture();
    }
    for (int i = 9; i >= 0; --i) {
        desk.editor->undo();
        QVERIFY(sameImage(desk.picture(), states[i]));
        QVERIFY(sameImage(*desk.canvas().zoomedPixmap(), states[i]));
    }
    desk.editor->undo(); // nothing is left
    QVERIFY(sameImage(desk.picture(), states[0]));
    for (int i = 1; i <= 10; ++i) {
        desk.editor->redo();
        QVERIFY(sameImage(desk.picture(), states[i]));
    }
    desk.editor->redo();
    QVERIFY(sameImage(desk.picture(), states[10]));
}

void tst_History::undoneStepsAreForgottenByAChange()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    support::Gestures hand(desk.canvas());
    hand.click({10, 10});
    const QImage first = desk.picture();
    hand.click({30, 10});
    desk.editor->undo();
    hand.click({50, 10});
    const QImage other = desk.picture();
    desk.editor->redo();
    QVERIFY(sameImage(desk.picture(), other));
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), first));
}

void tst_History::oneUndoTakesATextBack()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    desk.scribble();
    const QImage before = desk.picture();
    desk.type("Korva");
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    QVERIFY(desk.picture() != before);
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), before));
}

void tst_History::lookingAtAToolCostsNothing()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(2);
    const QImage before = desk.picture();
    desk.scribble();
    for (int tool = KORVA_TOOL_HAND; tool >= KORVA_TOOL_PENCIL; --tool)
        desk.editor->selectTool(tool);
    desk.editor->selectTool(KORVA_TOOL_TEXT);
    support::Gestures(desk.canvas()).click({40, 40});
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), before));
}

void tst_History::whiteOnWhiteIsNoStep()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    desk.scribble();
    pump();
    desk.editor->undo();
    (void)desk.log.taken();
    desk.editor->setColor(Qt::white);
    support::Gestures(desk.canvas()).click({60, 60});
    pump();
    QCOMPARE(desk.log.taken().mid(3), QStringList({"canUndo(false)", "canRedo(true)"}));
    desk.editor->redo(); // is still there
    QVERIFY(fixtures::hasInk(desk.picture()));
}

void tst_History::wholeActsAreOneStep_data()
{
    QTest::addColumn<std::function<void(EditorDesk&)>>("act");
    const auto add = [](const char* name, const std::function<void(EditorDesk&)>& act) {
        QTest::newRow(name) << act;
    };
    add("new canvas", [](EditorDesk& desk) { desk.editor->chooseCanvas(KORVA_CANVAS_8BIT, 30, 20); });
    add("resize", [](EditorDesk& desk) { desk.editor->setCanvasSize(30, 20); });
    add("clear", [](EditorDesk& desk) { desk.editor->clearCanvas(); });
    add("opened picture", [](EditorDesk& desk) {
        QPixmap picture = QPixmap::fromImage(support::mosaic({60, 20}));
        desk.editor->setPixmap(&picture);
    });
    add("moved area", [](EditorDesk& desk) {
        desk.editor->selectTool(KORVA_TOOL_SELECT);
        support::Gestures(desk.canvas()).drag({{10, 10}, {30, 30}});
        desk.canvas().pasteLabel()->move(70, 70);
        desk.canvas().mergePastePixmap();
    });
    add("pasted piece", [](EditorDesk& desk) {
        QGuiApplication::clipboard()->setImage(support::mosaic({30, 30}));
        desk.editor->paste();
        desk.canvas().mergePastePixmap();
    });
    add("stamp", [](EditorDesk& desk) {
        QPixmap picture = QPixmap::fromImage(support::mosaic({30, 30}));
        desk.editor->insertStamp(picture);
        desk.canvas().mergePastePixmap();
    });
}

void tst_History::wholeActsAreOneStep()
{
    QFETCH(const std::function<void(EditorDesk&)>, act);
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    desk.scribble();
    const QImage before = desk.picture();
    act(desk);
    const QImage after = desk.picture();
    QVERIFY(before != after);
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), before));
    desk.editor->redo();
    QVERIFY(sameImage(desk.picture(), after));
}

void tst_History::offersAreTrue()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(false)"}));
    support::Gestures hand(desk.canvas());
    hand.click({10, 10});
    QCOMPARE(desk.log.taken(), QStringList({"modified()", "canUndo(true)", "canRedo(false)"}));
    pump();
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(true)", "canRedo(false)"}));
    hand.click({30, 10});
    pump();
    (void)desk.log.taken();
    desk.editor->undo();
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(true)", "canRedo(true)"}));
    desk.editor->undo();
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(true)"}));
    desk.editor->redo();
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(true)", "canRedo(true)"}));
    QPixmap picture = QPixmap::fromImage(support::mosaic({60, 20}));
    desk.editor->setPixmap(&picture);
    pump();
    QCOMPARE(desk.log.taken().mid(4), QStringList({"canUndo(true)", "canRedo(false)"}));
}

void tst_History::walkingMarksModified()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    desk.scribble();
    QPixmap picture = QPixmap::fromImage(support::mosaic({60, 20}));
    desk.editor->setPixmap(&picture);
    desk.editor->clearModified();
    desk.editor->undo();
    QVERIFY(desk.editor->hasChanges());
}

void tst_History::otherLimitsForgetTheSteps()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(50);
    desk.scribble();
    const QImage drawn = desk.picture();
    (void)desk.log.taken();
    desk.editor->setUndoSteps(1);
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(false)"}));
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), drawn));
}

void tst_History::everyStateIsWalkedBackAndForward_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 500; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_History::everyStateIsWalkedBackAndForward()
{
    QFETCH(const quint32, seed);
    constexpr int acts = 8;
    constexpr int mostSteps = 10 * acts;
    EditorDesk desk;
    desk.editor->setUndoSteps(1000, plenty);
    Person person(desk, seed);
    QList<QImage> states{desk.picture()};
    for (int i = 0; i < acts; ++i) {
        person.act();
        if (const QImage state = desk.picture(); state != states.last())
            states << state;
    }
    // An act may be more than one step, but no state is left out, and each step leads back where it came
    // from.
    QList<QImage> walked{states.last()};
    for (int i = int(states.size()) - 2, steps = 0; i >= 0; --i) {
        do {
            desk.editor->undo();
            QVERIFY2(++steps < mostSteps, "a state is not on the way back");
            walked << desk.picture();
        } while (walked.last() != states[i]);
    }
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), states.first()));
    for (qsizetype i = walked.size() - 2; i >= 0; --i) {
        desk.editor->redo();
        QVERIFY(sameImage(desk.picture(), walked[i]));
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_History>(argc, argv);
}

#include "tst_History.moc"
