#include "RecoveryFixtures.h"

#include <bitset>
#include <map>
#include <random>

using namespace fixtures;
using support::PadOnScreen;

/// A program that is killed at any moment loses a moment's work and damages nothing.
class tst_KillsInWindow : public support::TestCase
{
    Q_OBJECT

private slots:
    void killsAtRandomMoments();
};

namespace {

// What was on the screen, and how long ago, only a clock can tell. Two seconds are promised; the rest is
// for four pads and their screens at a time, each late to show what it has. A session lasts long enough to
// lose more.
constexpr int mostLoss = 2500;       // milliseconds
constexpr int longestSession = 4500; // milliseconds
constexpr int pads = 4;              // at a time
constexpr int usualKills = 40;       // KORVA_TEST_KILLS asks for more
constexpr int columns = 15;
constexpr int rows = 14;
constexpr int cells = columns * rows;
constexpr QPoint strokeLength(5, 0);

/// Which cells of the picture have a stroke.
using Drawing = std::bitset<cells>;

QPoint startOf(int cell)
{
    return {5 + 10 * (cell % columns), 5 + 8 * (cell / columns)};
}

Drawing drawingOf(const QImage& picture)
{
    Drawing drawing;
    for (int cell = 0; cell < cells; ++cell)
        drawing[size_t(cell)] = picture.pixelColor(startOf(cell) + strokeLength / 2) == QColor(Qt::red);
    return drawing;
}

/// What a person saw on the screen, and since when.
class Memory
{
public:
    explicit Memory(const Drawing& drawing) : m_seen({{0, drawing}}) { m_clock.start(); }

    [[nodiscard]] const Drawing& now() const { return m_seen.back().drawing; }
    /// What is being done now: it may be there already, or not yet.
    void expect(const Drawing& drawing) { m_expected = drawing; }
    void see()
    {
        m_seen.push_back({m_clock.elapsed(), *m_expected});
        m_expected.reset();
    }
    [[nodiscard]] qint64 time() const { return m_clock.elapsed(); }
    /// How many milliseconds of work until then are missing in what is left; nothing when it never was on
    /// the screen.
    [[nodiscard]] std::optional<qint64> lossOf(const Drawing& left, qint64 end) const
    {
        if (left == m_expected || left == now())
            return 0;
        for (size_t i = m_seen.size() - 1; i-- > 0;) {
            if (m_seen[i].drawing == left)
                return end - m_seen[i + 1].since;
        }
        return {};
    }

private:
    struct Seen
    {
        qint64 since;
        Drawing drawing;
    };

    QElapsedTimer m_clock;
    std::vector<Seen> m_seen;
    std::optional<Drawing> m_expected;
};

/// Somebody who draws, undoes, clears and saves at random, and whose program is killed again and again.
class UnluckyPerson
{
public:
    explicit UnluckyPerson(unsigned seed) : m_random(seed), m_pad(m_home.path()), m_memory(Drawing())
    {
        m_pad.setPictureSize(framedSize);
        m_file = m_pad.pictures() + "/drawing.png";
        support::sheet(framedSize).save(m_file);
        m_files[m_file] = {Drawing()};
    }

    /// What went wrong; empty for nothing.
    QString suffer(int kills)
    {
        for (int i = 0; i < kills; ++i) {
            if (const QString fault = session(); !fault.isEmpty())
                return QString("kill %1: %2").arg(i).arg(fault);
        }
        return {};
    }
    /// In milliseconds, of each kill.
    [[nodiscard]] const std::vector<qint64>& losses() const { return m_losses; }
    [[nodiscard]] int offers() const { return m_offers; }
    [[nodiscard]] int saves() const { return m_saves; }

private:
    [[nodiscard]] int upTo(int most) { return std::uniform_int_distribution(0, most)(m_random); }

    QString session()
    {
        const QStringList living = filesIn(m_pad.recoveryFolder(), "living-*.png");
        const bool isOffered = !living.isEmpty();
        m_pad.setDeadline(QDeadlineTimer::Forever);
        if (!m_pad.start(isOffered ? QStringList() : QStringList(m_file)))
            return "it does not start";
        m_pad.setDeadline(QDeadlineTimer(upTo(longestSession)));
        const QString fault = isOffered ? takeBack() : QString();
        while (fault.isEmpty() && !isOver() && work()) {
        }
        const qint64 end = m_memory.time();
        m_pad.process().kill();
        return fault.isEmpty() ? look(end) : fault;
    }

    /// Whether the deadline has come.
    [[nodiscard]] bool isOver() const { return m_pad.deadline().hasExpired(); }

    QString takeBack()
    {
        const auto isAsked = [this] { return m_pad.box().startsWith("A drawing of "); };
        if (!m_pad.waitFor(isAsked))
            return isOver() ? "" : "it is not offered";
        m_pad.key("Return");
        m_file.clear(); // it has no name any more
        if (!m_pad.waitForNoBox())
            return isOver() ? "" : "the question stays";
        if (!m_pad.waitFor([this] { return drawingOf(m_pad.picture()) == m_memory.now(); }))
            return isOver() ? "" : "something else is brought back";
        ++m_offers;
        m_isChanged = true;
        return {};
    }

    /// One step of work; false when it was not seen to be done.
    bool work()
    {
        const int dice = upTo(99);
        const Drawing& now = m_memory.now();
        bool isDone = true;
        if (dice < 4 || now.count() > cells - 20)
            isDone = clear();
        else if (dice < 10)
            isDone = m_last < 0 || undo();
        else if (dice < 15)
            isDone = !m_isChanged || save();
        else if (dice < 20)
            QThread::msleep(upTo(900));
        else
            isDone = draw();
        QThread::msleep(upTo(40));
        return isDone;
    }

    bool draw()
    {
        int cell = upTo(cells - 1);
        while (m_memory.now()[size_t(cell)])
            cell = (cell + 1) % cells;
        m_memory.expect(Drawing(m_memory.now()).set(size_t(cell)));
        m_last = cell;
        m_isChanged = true;
        return isSeen(m_pad.stroke(startOf(cell), startOf(cell) + strokeLength));
    }

    bool undo()
    {
        const int cell = std::exchange(m_last, -1);
        m_memory.expect(Drawing(m_memory.now()).reset(size_t(cell)));
        m_pad.key("z", {"Control_L"});
        return isSeen(m_pad.waitForColor(startOf(cell) + strokeLength, Qt::white));
    }

    bool clear()
    {
        const Drawing& now = m_memory.now();
        if (now.none())
            return true;
        int cell = 0;
        while (!now[size_t(cell)])
            ++cell;
        m_memory.expect(Drawing());
        m_last = -1;
        m_isChanged = true;
        m_pad.key("l", {"Control_L"});
        return isSeen(m_pad.waitForColor(startOf(cell) + strokeLength, Qt::white));
    }

    bool save()
    {
        const QString file = m_file.isEmpty() ? nextName() : m_file;
        m_files[file].push_back(m_memory.now());
        m_saving = file;
        m_pad.key("s", {"Control_L"});
        if (m_file.isEmpty()) {
            if (!m_pad.waitFor([this] { return m_pad.box() == saveDialog; }))
                return false;
            m_pad.key("Return");
        }
        if (!m_pad.waitFor([this] { return m_pad.box() == saved; }))
            return false;
        m_file = file;
        m_files[file] = {m_memory.now()};
        m_isChanged = false;
        m_last = -1;
        ++m_saves;
        m_pad.key("Return");
        return m_pad.waitForNoBox();
    }

    /// What the folder dialog proposes for a drawing that was brought back.
    [[nodiscard]] QString nextName() const
    {
        int number = 2;
        while (QFileInfo::exists(nameOf(number)))
            ++number;
        return nameOf(number);
    }
    [[nodiscard]] QString nameOf(int number) const
    {
        return QString("%1/drawing %2.png").arg(m_pad.pictures()).arg(number);
    }

    bool isSeen(bool isThere)
    {
        if (isThere)
            m_memory.see();
        return isThere;
    }

    /// At what the kill has left.
    QString look(qint64 end)
    {
        for (const auto& [name, drawings] : m_files) {
            if (!QFileInfo::exists(name) && name == m_saving && name != m_file)
                continue; // it was about to be made
            const QImage picture = inRgb(name);
            if (picture.size() != framedSize)
                return QString("%1 of %2 bytes is damaged; the drawing is %3, saved last was %4")
                    .arg(QFileInfo(name).fileName())
                    .arg(QFileInfo(name).size())
                    .arg(QFileInfo(m_file).fileName(), QFileInfo(m_saving).fileName());
            if (std::find(drawings.begin(), drawings.end(), drawingOf(picture)) == drawings.end())
                return QFileInfo(name).fileName() + " holds something that was never saved";
        }
        const QStringList living = filesIn(m_pad.recoveryFolder(), "living-*.png");
        if (living.size() > 1)
            return "there are two drawings";
        if (living.isEmpty() && m_file.isEmpty())
            m_file = m_saving;
        const QImage picture = inRgb(living.isEmpty() ? m_file : m_pad.recoveryFolder() + '/' + living[0]);
        if (picture.size() != framedSize)
            return "what was kept is damaged";
        const Drawing left = drawingOf(picture);
        const std::optional<qint64> loss = m_memory.lossOf(left, end);
        if (!loss)
            return QString("what was kept was never drawn: %1 strokes, at the end there were %2, %3 differ")
                .arg(left.count())
                .arg(m_memory.now().count())
                .arg((left ^ m_memory.now()).count());
        if (*loss > mostLoss)
            return QString("%1 ms are missing").arg(*loss);
        m_losses.push_back(*loss);
        m_memory = Memory(left);
        m_isChanged = false;
        m_last = -1;
        return {};
    }

    std::mt19937 m_random;
    QTemporaryDir m_home;
    PadOnScreen m_pad;
    Memory m_memory;
    QString m_file;                                  ///< the drawing's; empty for none
    QString m_saving;                                ///< the one that was saved last, or nearly
    std::map<QString, std::vector<Drawing>> m_files; ///< what they may hold
    int m_last = -1;                                 ///< the cell whose stroke can be undone
    bool m_isChanged = false;
    std::vector<qint64> m_losses;
    int m_offers = 0;
    int m_saves = 0;
};

} // namespace

void tst_KillsInWindow::killsAtRandomMoments()
{
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("KORVA_TEST_KILLS", &isNumber);
    const int kills = isNumber ? asked : usualKills;
    struct Outcome
    {
        QString fault = "it never came to an end";
        std::vector<qint64> losses;
        int offers = 0;
        int saves = 0;
    };
    std::array<Outcome, pads> outcomes;
    std::vector<std::unique_ptr<QThread>> threads;
    const unsigned seed = std::random_device()();
    for (unsigned i = 0; i < pads; ++i) {
        threads.emplace_back(QThread::create([&outcome = outcomes[i], seed = seed + i, kills] {
            UnluckyPerson person(seed);
            outcome.fault = person.suffer(kills / pads);
            outcome.losses = person.losses();
            outcome.offers = person.offers();
            outcome.saves = person.saves();
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads)
        QVERIFY(thread->wait());
    std::vector<qint64> losses;
    int offers = 0;
    int saves = 0;
    for (unsigned i = 0; i < pads; ++i) {
        const Outcome& outcome = outcomes[i];
        QVERIFY2(outcome.fault.isEmpty(),
                 qPrintable(QString("seed %1: %2").arg(seed + i).arg(outcome.fault)));
        losses.insert(losses.end(), outcome.losses.begin(), outcome.losses.end());
        offers += outcome.offers;
        saves += outcome.saves;
    }
    QCOMPARE(int(losses.size()), kills / pads * pads);
    QVERIFY(offers > 0 && saves >= kills / 4); // so that something was risked
    std::sort(losses.begin(), losses.end());
    qInfo("%d kills: %d drawings brought back, %d saves, lost at most %lld ms, in the middle %lld ms",
          int(losses.size()), offers, saves, qlonglong(losses.back()),
          qlonglong(losses[losses.size() / 2]));
}

int main(int argc, char** argv)
{
    support::XServer::allowThreads();
    return support::run<tst_KillsInWindow>(argc, argv);
}

#include "tst_KillsInWindow.moc"
