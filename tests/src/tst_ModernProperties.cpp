#include "PieceFixtures.h"
#include "support/Dice.h"

using fixtures::PieceDesk;
using support::mosaic;
using support::sameImage;

namespace {

constexpr QSize pictureSize(60, 48);

/// What is known of a drawing at rest.
struct State
{
    QImage picture;
    bool isModified;
    int undoFlag;
};

/// A person at an editor with every switch on. Each act begins and ends at rest: nothing floats, no text is
/// open, no button is down. The same seed does the same again.
class Person
{
public:
    Person(quint32 seed, PieceDesk& desk) : m_desk(desk), m_dice(seed) {}

    void act()
    {
        using Act = void (Person::*)();
        static constexpr struct
        {
            const char* name;
            Act run;
        } acts[] = {{"stroke", &Person::stroke}, {"shape", &Person::shape},  {"shape", &Person::shape},
                    {"write", &Person::write},   {"write", &Person::write},  {"lift", &Person::lift},
                    {"paste", &Person::paste},   {"stamp", &Person::stamp},  {"cut", &Person::cut},
                    {"clear", &Person::clear},   {"resize", &Person::resize}};
        zoom();
        const auto& chosen = acts[m_dice.below(int(std::size(acts)))];
        m_log << QString("%1 at %2 %").arg(chosen.name).arg(m_desk.canvas().zoom());
        m_before = state();
        (this->*chosen.run)();
        rest();
        expectOneWayBack();
    }
    [[nodiscard]] QString fault() const { return m_fault; }
    [[nodiscard]] QByteArray story() const { return m_log.join(", ").toUtf8(); }

private:
    [[nodiscard]] State state() const
    {
        return {m_desk.whole(), m_desk.editor->isModified(), m_desk.canvas().undoFlag()};
    }
    void expect(bool isSo, const QString& what)
    {
        if (!isSo && m_fault.isEmpty())
            m_fault = what;
    }
    /// The picture is this one, and the screen shows it and nothing else.
    void expectShown(const QImage& picture, const QString& when)
    {
        QCoreApplication::processEvents();
        KORVA_Canvas& canvas = m_desk.canvas();
        expect(sameImage(m_desk.picture(), picture), when + ": another picture");
        expect(sameImage(canvas.zoomedPixmap()->toImage(), support::scaled(picture, canvas.zoom())),
               when + ": a trace on the screen");
    }
    /// Enlarged, the screen shows the picture's pixels, and not what was drawn at its own scale.
    void expectPixels(const QString& when)
    {
        if (m_desk.canvas().zoom() >= 100)
            expectShown(m_desk.picture(), when);
    }
    void expectNothingHappened(const QString& when)
    {
        expectShown(m_before.picture, when);
        const State now = state();
        expect(now.isModified == m_before.isModified, when + ": another modified flag");
        expect(now.undoFlag == m_before.undoFlag, when + ": another offer");
    }
    void rest()
    {
        m_desk.editor->commitText();
        m_desk.editor->selectTool(KORVA_TOOL_HAND);
        m_desk.canvas().mergePastePixmap();
        QCoreApplication::processEvents();
    }
    /// Undo leads back to what was before the act, by however many steps, and redo to what it made.
    void expectOneWayBack()
    {
        const QImage after = m_desk.picture();
        int steps = 0;
        while (m_desk.picture() != m_before.picture && steps < mostSteps) {
            m_desk.editor->undo();
            ++steps;
        }
        expectShown(m_before.picture, "undo");
        while (steps-- > 0)
            m_desk.editor->redo();
        expectShown(after, "redo");
    }

    QPoint place()
    {
        const QRect room = m_desk.canvas().rect().adjusted(-9, -9, 9, 9);
        return {m_dice.between(room.left(), room.right()), m_dice.between(room.top(), room.bottom())};
    }
    Qt::KeyboardModifiers shift() { return m_dice.chance() ? Qt::ShiftModifier : Qt::NoModifier; }
    void take(int tool)
    {
        m_desk.editor->selectTool(tool);
        m_desk.editor->setColor(m_dice.color());
        if (m_dice.chance())
            m_desk.editor->selectOption(m_dice.below(6));
        else
            m_desk.manager().setPenWidth(m_dice.between(1, 5));
    }
    void zoom()
    {
        static constexpr int rates[] = {37, 50, 92, 100, 150, 200, 333, 400, 800};
        const QImage before = m_desk.whole();
        m_desk.editor->setZoom(rates[m_dice.below(int(std::size(rates)))]);
        expect(sameImage(m_desk.whole(), before), "a zoom changes the drawing");
    }

    void stroke()
    {
        take(m_dice.chance() ? KORVA_TOOL_PENCIL : KORVA_TOOL_ERASER);
        support::Gestures(m_desk.canvas()).drag({place(), place(), place()});
        expectPixels("after a stroke");
    }
    void shape()
    {
        static constexpr int tools[] = {KORVA_TOOL_LINE, KORVA_TOOL_RECTANGLE, KORVA_TOOL_ELLIPSE};
        take(tools[m_dice.below(3)]);
        const QImage before = m_desk.picture();
        support::Gestures hand(m_desk.canvas());
        hand.press(place());
        for (int moves = m_dice.between(1, 4); moves > 0; --moves) {
            hand.hold(shift());
            hand.move(place());
            expect(sameImage(m_desk.picture(), before), "a preview is in the picture");
        }
        hand.release(place());
        expectPixels("after a shape");
    }
    void write()
    {
        static const QStringList words{"Ab", "gy", "W ", " ", "\u00c5j", "\n"};
        take(KORVA_TOOL_TEXT);
        support::Gestures(m_desk.canvas()).click(place());
        for (int i = m_dice.below(6); i > 0; --i) {
            const QString& word = words[m_dice.below(int(words.size()))];
            for (const QChar letter : word)
                support::Gestures(m_desk.canvas())
                    .key(letter == '\n' ? Qt::Key_Return : Qt::Key_unknown, letter);
            if (m_dice.below(4) == 0)
                m_desk.key(Qt::Key_Backspace);
            if (m_dice.below(4) == 0)
                m_dice.chance() ? m_desk.editor->undo() : m_desk.editor->redo();
            if (m_dice.below(8) == 0) { // commits
                m_desk.editor->selectZoom(m_dice.below(5));
                return;
            }
            if (m_dice.below(4) == 0)
                m_desk.editor->setColor(m_dice.color());
            if (m_dice.below(4) == 0)
                m_desk.editor->selectOption(m_dice.below(6));
        }
        if (m_dice.chance())
            return;
        m_desk.key(Qt::Key_Escape);
        expectNothingHappened("Escape out of a text");
    }
    void handle()
    {
        for (int i = m_dice.below(5); i > 0; --i) {
            static const QStringList rows{"Turn left", "Turn right", "Flip",
                                          "Double",    "Halve",      "White is clear"};
            static constexpr Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
            if (!m_desk.floats())
                return;
            QAction* row = m_desk.row(rows[m_dice.below(int(rows.size()))]);
            const QRect box = m_desk.piece().rect();
            support::Gestures hand(m_desk.piece());
            switch (m_dice.below(5)) {
            case 0:
                row ? row->trigger() : void();
                break;
            case 1:
                m_desk.key(keys[m_dice.below(4)], shift());
                break;
            case 2:
                hand.drag({box.center(), box.center() + place() / 2});
                break;
            case 3:
                hand.drag({box.bottomRight(), box.bottomRight() + place() / 2});
                break;
            case 4:
                zoom();
                break;
            }
        }
        if (m_dice.chance() && m_desk.floats()) {
            m_desk.key(Qt::Key_Escape);
            expectNothingHappened("Escape out of a piece");
        }
    }
    void lift()
    {
        m_desk.editor->selectTool(KORVA_TOOL_SELECT);
        support::Gestures hand(m_desk.canvas());
        hand.hold(shift());
        hand.drag({place(), place()});
        if (m_dice.chance())
            return handle();
        m_desk.canvas().mergePastePixmap();
        expectShown(m_before.picture, "put down where it was lifted");
    }
    void paste()
    {
        m_desk.editor->paste();
        handle();
    }
    void stamp()
    {
        QPixmap stamp = QPixmap::fromImage(fixtures::dotted());
        m_desk.editor->insertStamp(stamp);
        handle();
    }
    void cut()
    {
        lift();
        if (m_desk.floats())
            m_dice.chance() ? m_desk.editor->cut() : m_desk.editor->deleteSelection();
    }
    void clear() { m_desk.editor->clearCanvas(); }
    void resize() { m_desk.editor->setCanvasSize(m_dice.between(20, 70), m_dice.between(20, 70)); }

    static constexpr int mostSteps = 40;

    PieceDesk& m_desk;
    support::Dice m_dice;
    State m_before;
    QStringList m_log;
    QString m_fault;
};

} // namespace

/// With every switch on, whatever a person does: previews leave no trace, Escape leaves none, undo and redo
/// restore every pixel, and picture and screen agree.
class tst_ModernProperties : public support::TestCase
{
    Q_OBJECT

private slots:
    void randomSequences_data();
    void randomSequences();

private:
    static constexpr quint32 seedsARow = 12;
};

void tst_ModernProperties::randomSequences_data()
{
    QTest::addColumn<quint32>("first");
    for (quint32 seed = 0; seed < 10 * seedsARow; seed += seedsARow)
        QTest::addRow("seeds from %u", seed) << seed;
}

void tst_ModernProperties::randomSequences()
{
    QFETCH(const quint32, first);
    for (quint32 seed = first; seed < first + seedsARow; ++seed) {
        PieceDesk desk(KORVA_Manners::modern());
        desk.setPicture(mosaic(pictureSize));
        desk.editor->setUndoSteps(1000, 1 << 30);
        desk.editor->setPaper(seed % 3 == 0 ? mosaic({30, 20}) : QImage());
        desk.editor->clearModified();
        const QImage beginning = desk.picture();
        Person person(seed, desk);
        for (int i = 0; i < 15; ++i) {
            person.act();
            QVERIFY2(person.fault().isEmpty(),
                     QString("%1; seed %2: ").arg(person.fault()).arg(seed).toUtf8() + person.story());
        }
        for (int i = 0; i < 600; ++i)
            desk.editor->undo();
        QVERIFY2(sameImage(desk.picture(), beginning), person.story());
        fixtures::setClipboard({});
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_ModernProperties>(argc, argv);
}

#include "tst_ModernProperties.moc"
