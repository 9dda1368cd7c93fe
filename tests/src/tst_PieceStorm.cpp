#include "PieceFixtures.h"
#include "support/Dice.h"

using fixtures::PieceDesk;
using support::mosaic;
using support::sameImage;

namespace {

/// A person who does with pieces whatever comes to mind; the same seed does the same again.
class Fiddler
{
public:
    Fiddler(quint32 seed, PieceDesk& desk) : m_desk(desk), m_dice(seed) {}

    void doSomething()
    {
        static constexpr struct
        {
            const char* name;
            void (Fiddler::*run)();
        } actions[] = {
            {"lift", &Fiddler::lift},     {"lift", &Fiddler::lift},     {"paste", &Fiddler::paste},
            {"stamp", &Fiddler::stamp},   {"move", &Fiddler::move},     {"stretch", &Fiddler::stretch},
            {"change", &Fiddler::change}, {"change", &Fiddler::change}, {"zoom", &Fiddler::zoom},
            {"zoom", &Fiddler::zoom},     {"option", &Fiddler::option}, {"color", &Fiddler::color},
            {"key", &Fiddler::key},       {"escape", &Fiddler::escape}, {"escape", &Fiddler::escape},
            {"merge", &Fiddler::merge},   {"undo", &Fiddler::undo},     {"redo", &Fiddler::redo},
            {"cut", &Fiddler::cut},       {"delete", &Fiddler::erase},
        };
        const auto& action = actions[m_dice.below(int(std::size(actions)))];
        m_log << action.name;
        (this->*action.run)();
        QCoreApplication::processEvents(); // what is possible is told
    }
    void merge()
    {
        const QImage whole = m_desk.whole();
        m_desk.canvas().mergePastePixmap();
        if (!sameImage(m_desk.picture(), whole))
            fail("a merge makes something else than the snapshot");
    }
    [[nodiscard]] QByteArray story() const { return m_log.join(", ").toUtf8(); }
    [[nodiscard]] QString fault() const { return m_fault; }

private:
    struct State
    {
        QImage picture;
        bool isModified;
        int undoFlag;
    };
    [[nodiscard]] State state() const
    {
        return {m_desk.canvas().snapshot().toImage(), m_desk.editor->isModified(),
                m_desk.canvas().undoFlag()};
    }
    void fail(const QString& what)
    {
        if (m_fault.isEmpty())
            m_fault = what;
    }
    QPoint place()
    {
        const QRect room = m_desk.canvas().rect().adjusted(-5, -5, 5, 5);
        return {m_dice.between(room.left(), room.right()), m_dice.between(room.top(), room.bottom())};
    }
    void begin()
    {
        m_desk.canvas().mergePastePixmap();
        QCoreApplication::processEvents();
        m_before = state();
    }
    void lift()
    {
        begin();
        m_desk.canvas().setSelection(QRect(place(), place()));
    }
    void paste()
    {
        begin();
        m_desk.editor->paste();
    }
    void stamp()
    {
        begin();
        QPixmap stamp = QPixmap::fromImage(fixtures::dotted());
        m_desk.editor->insertStamp(stamp);
    }
    void drag(QPoint from)
    {
        support::Gestures pointer(m_desk.piece());
        pointer.hover(from);
        pointer.drag({from, from + QPoint(m_dice.between(-12, 12), m_dice.between(-12, 12))});
    }
    void move()
    {
        if (m_desk.floats())
            drag(m_desk.piece().rect().center());
    }
    void stretch()
    {
        const QRect box = m_desk.piece().rect();
        if (m_desk.floats())
            drag(m_dice.chance() ? box.bottomRight() : m_dice.chance() ? box.topLeft() : box.bottomLeft());
    }
    void change()
    {
        static const QStringList rows{"Turn left", "Turn right", "Flip",
                                      "Double",    "Halve",      "White is clear"};
        if (QAction* row = m_desk.row(rows[m_dice.below(int(rows.size()))]); row && m_desk.floats())
            row->trigger();
    }
    void zoom()
    {
        const bool floats = m_desk.floats();
        const QImage whole = m_desk.whole();
        if (m_dice.chance())
            m_desk.editor->setZoom(m_dice.between(37, 333));
        else
            m_desk.editor->selectZoom(m_dice.below(5));
        if (m_desk.floats() != floats || !sameImage(m_desk.whole(), whole))
            fail("a zoom changes the drawing");
    }
    void option() { m_desk.editor->selectOption(m_dice.below(3)); }
    void color() { m_desk.editor->setColor(m_dice.color()); }
    void key()
    {
        static constexpr Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down,
                                           Qt::Key_BracketLeft};
        m_desk.key(keys[m_dice.below(5)], m_dice.chance() ? Qt::ShiftModifier : Qt::NoModifier);
    }
    void escape()
    {
        if (!m_desk.floats())
            return;
        m_desk.key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        const State now = state();
        if (m_desk.floats() || !sameImage(now.picture, m_before.picture))
            fail("Escape leaves a trace");
        if (now.isModified != m_before.isModified || now.undoFlag != m_before.undoFlag)
            fail("Escape leaves another offer");
    }
    void undo() { m_desk.editor->undo(); }
    void redo() { m_desk.editor->redo(); }
    void cut() { m_desk.floats() ? m_desk.editor->cut() : void(); }
    void erase() { m_desk.editor->deleteSelection(); }

    PieceDesk& m_desk;
    support::Dice m_dice;
    State m_before;
    QStringList m_log;
    QString m_fault;
};

} // namespace

class tst_PieceStorm : public support::TestCase
{
    Q_OBJECT

private slots:
    void randomSequences_data();
    void randomSequences();
};

void tst_PieceStorm::randomSequences_data()
{
    constexpr int seedsARow = 25;
    QTest::addColumn<quint32>("first");
    for (quint32 seed = 0; seed < 8 * seedsARow; seed += seedsARow)
        QTest::addRow("seeds from %u", seed) << seed;
}

void tst_PieceStorm::randomSequences()
{
    QFETCH(const quint32, first);
    for (quint32 seed = first; seed < first + 25; ++seed) {
        PieceDesk desk(KORVA_Manners::modern());
        desk.editor->setUndoSteps(1000, 1 << 30);
        desk.editor->setPaper(seed % 4 == 0 ? mosaic({30, 20}) : QImage());
        desk.editor->clearModified();
        const QImage beginning = desk.whole();
        Fiddler fiddler(seed, desk);
        for (int step = 0; step < 40; ++step) {
            fiddler.doSomething();
            const QByteArray story = QString("seed %1: ").arg(seed).toUtf8() + fiddler.story();
            QVERIFY2(fiddler.fault().isEmpty(), fiddler.fault().toUtf8() + "; " + story);
        }
        const QByteArray story = QString("seed %1: ").arg(seed).toUtf8() + fiddler.story();
        fiddler.merge();
        QVERIFY2(fiddler.fault().isEmpty(), fiddler.fault().toUtf8() + "; " + story);
        const QImage end = desk.picture();
        QVERIFY2(
            sameImage(desk.canvas().zoomedPixmap()->toImage(), support::scaled(end, desk.canvas().zoom())),
            story);
        for (int i = 0; i < 200; ++i)
            desk.editor->undo();
        QVERIFY2(sameImage(desk.picture(), beginning), story);
        for (int i = 0; i < 200; ++i)
            desk.editor->redo();
        fixtures::setClipboard({});
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_PieceStorm>(argc, argv);
}

#include "tst_PieceStorm.moc"
