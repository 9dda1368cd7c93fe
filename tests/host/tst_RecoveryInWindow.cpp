#include "support/Images.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_Journal.h>

#include <bitset>
#include <map>
#include <random>

#include <sys/stat.h>

using support::contents;
using support::PadOnScreen;

namespace {

constexpr int patience = PadOnScreen::patience;
constexpr QSize newDrawing(200, 170);
constexpr QSize framedSize(160, 120);
constexpr QPoint from(40, 30);
constexpr QPoint to(90, 30);
constexpr QPoint on(70, 30);
constexpr auto saveDialog = "Save picture as";
constexpr auto saved = "Saved Successfully";

QImage inRgb(const QString& fileName)
{
    return QImage(fileName).convertToFormat(QImage::Format_RGB32);
}

QImage withStroke(const QImage& picture)
{
    return support::filled(picture.convertToFormat(QImage::Format_RGB32), QRect(from, to), Qt::red);
}

QStringList filesIn(const QString& folder, const QString& pattern)
{
    return QDir(folder).entryList({pattern}, QDir::Files);
}

} // namespace

/// What is left of a drawing when its program ends before it is saved, on a real screen.
class tst_RecoveryInWindow : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void killedDrawingIsBroughtBack_data();
    void killedDrawingIsBroughtBack();
    void notNowPutsItAmongTheEarlier();
    void programThatIsToldToEndKeepsTheDrawing();
    void nothingIsOfferedOfWhatWasSaved();
    void livingDrawingIsNobodyElses();
    void withoutRecoveryNothingIsWrittenNorOffered();
    void replayWritesNoneAndIsOfferedNone();
    void whatIsGivenUpIsKept_data();
    void whatIsGivenUpIsKept();
    void earlierDrawingIsBroughtBack();
    void oldestOfAllIsBroughtBack();
    void theNewestTwentyAreKept();
    void killsAtRandomMoments();

private:
    [[nodiscard]] QString recovery() const { return m_pad->recoveryFolder(); }
    [[nodiscard]] QStringList living() const { return filesIn(recovery(), "living-*.png"); }
    [[nodiscard]] QStringList earlier() const { return filesIn(recovery(), "earlier-*.png"); }
    [[nodiscard]] bool waitForLiving() const
    {
        return QTest::qWaitFor([this] { return living().size() == 1; }, patience);
    }
    /// Whether a drawing is offered that is called so; a picture of the question is left.
    [[nodiscard]] bool isOffered(const QString& name = {})
    {
        const auto isAsked = [&] {
            const QString box = m_pad->box();
            return box.startsWith("A drawing of today at ") && box.endsWith(" was not saved.") &&
                   box.contains(" on ") != name.isEmpty() && box.contains(name);
        };
        const bool isAskedInTime = QTest::qWaitFor(isAsked, patience);
        return isAskedInTime &&
               m_pad->waitForBox(
                   m_pad->box(),
                   QString("host_tst_RecoveryInWindow-%1-offer").arg(QTest::currentTestFunction()));
    }
    /// Nothing is asked of who starts.
    [[nodiscard]] bool isNothingOffered() const
    {
        QTest::qWait(1000);
        return m_pad->box().isEmpty();
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<PadOnScreen> m_pad;
};

void tst_RecoveryInWindow::init()
{
    support::TestCase::init();
    m_home = std::make_unique<QTemporaryDir>();
    m_pad = std::make_unique<PadOnScreen>(m_home->path());
    QVERIFY(m_pad->server().isReady());
}

void tst_RecoveryInWindow::cleanup()
{
    m_pad.reset();
    m_home.reset();
}

// --- After a crash

void tst_RecoveryInWindow::killedDrawingIsBroughtBack_data()
{
    QTest::addColumn<bool>("isNamed");
    QTest::newRow("new drawing") << false;
    QTest::newRow("opened picture") << true;
}

void tst_RecoveryInWindow::killedDrawingIsBroughtBack()
{
    QFETCH(bool, isNamed);
    const QString file = m_pad->pictures() + "/photo.png";
    const QSize size = isNamed ? framedSize : newDrawing;
    m_pad->setPictureSize(size);
    QVERIFY(support::sheet(size).save(file));
    const QByteArray before = contents(file);

    QVERIFY(m_pad->start(isNamed ? QStringList(file) : QStringList()));
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(recovery()).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0700U);
    QCOMPARE(stat(QFile::encodeName(recovery() + '/' + living().value(0)).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0600U);

    QVERIFY(m_pad->start());
    QVERIFY(isOffered(isNamed ? "photo.png" : ""));
    m_pad->key("Return");
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(m_pad->waitForColor(on, Qt::red));
    QVERIFY(m_pad->waitForTitle(isNamed ? "photo.png* - Korva" : "Drawing* - Korva"));
    QVERIFY(contents(file) == before);

    // It has no name of its own, so that it overwrites nothing.
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(saveDialog));
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox(saved));
    const QString written = m_pad->pictures() + (isNamed ? "/photo 2.png" : "/Drawing.png");
    QVERIFY(support::sameImage(inRgb(written), withStroke(support::sheet(size))));
    QVERIFY(contents(file) == before);
    QTRY_COMPARE_WITH_TIMEOUT(living(), QStringList(), patience);
}

void tst_RecoveryInWindow::notNowPutsItAmongTheEarlier()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();

    QVERIFY(m_pad->start());
    QVERIFY(isOffered());
    m_pad->key("Tab");
    m_pad->key("Return");
    QVERIFY(m_pad->waitForNoBox());
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 1, patience);
    QCOMPARE(living(), QStringList());
    QVERIFY(m_pad->waitForColor(on, Qt::white));
    QCOMPARE(m_pad->title(), "Drawing - Korva");
    QVERIFY(
        support::sameImage(inRgb(recovery() + '/' + earlier()[0]), withStroke(support::sheet(newDrawing))));
    m_pad->process().kill();

    QVERIFY(m_pad->start()); // and is not offered again
    QVERIFY(isNothingOffered());
}

void tst_RecoveryInWindow::programThatIsToldToEndKeepsTheDrawing()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    m_pad->process().terminate(); // long before it would have been written
    QVERIFY(m_pad->process().waitForEnd());
    QCOMPARE(m_pad->process().exitCode(), 0);
    QCOMPARE(living().size(), 1);

    QVERIFY(m_pad->start());
    QVERIFY(isOffered());
    m_pad->process().terminate(); // and while it is asked
    QVERIFY(m_pad->process().waitForEnd());
    QCOMPARE(living().size() + earlier().size(), 1);
    const QString kept = recovery() + '/' + (living() + earlier())[0];
    QVERIFY(support::sameImage(inRgb(kept), withStroke(support::sheet(newDrawing))));
}

void tst_RecoveryInWindow::nothingIsOfferedOfWhatWasSaved()
{
    const QString file = m_pad->pictures() + "/photo.png";
    m_pad->setPictureSize(framedSize);
    QVERIFY(support::sheet(framedSize).save(file));
    QVERIFY(m_pad->start({file}));
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(saved));
    QTRY_COMPARE_WITH_TIMEOUT(living(), QStringList(), patience);
    m_pad->process().kill();
    QVERIFY(m_pad->start());
    QVERIFY(isNothingOffered());
}

void tst_RecoveryInWindow::livingDrawingIsNobodyElses()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());

    PadOnScreen second(m_home->path());
    QVERIFY(second.start());
    QTest::qWait(1000);
    QCOMPARE(second.box(), "");
    const QPoint below(0, 60);
    QVERIFY(second.stroke(from + below, to + below));
    QTRY_COMPARE_WITH_TIMEOUT(living().size(), 2, patience);
    second.process().kill();

    // The third is offered the second's, and the first goes on.
    PadOnScreen third(m_home->path());
    QVERIFY(third.start());
    QTRY_VERIFY_WITH_TIMEOUT(third.box().startsWith("A drawing of today at "), patience);
    third.key("Return");
    QVERIFY(third.waitForNoBox());
    QVERIFY(third.waitForColor(on + below, Qt::red));
    QVERIFY(third.waitForColor(on, Qt::white));
    QVERIFY(m_pad->stroke(from + 2 * below, to + 2 * below));
    const auto isWritten = [&] {
        for (const QString& file : living()) {
            const QImage picture = inRgb(recovery() + '/' + file);
            if (picture.pixelColor(on) == Qt::red && picture.pixelColor(on + 2 * below) == Qt::red)
                return true;
        }
        return false;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isWritten(), patience);
    QCOMPARE(living().size(), 2);
}

void tst_RecoveryInWindow::withoutRecoveryNothingIsWrittenNorOffered()
{
    QVERIFY(m_pad->start({"--no-recovery"}));
    QVERIFY(m_pad->stroke(from, to));
    QTest::qWait(2500);
    m_pad->process().kill();
    QVERIFY(!QFileInfo::exists(recovery()));

    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();
    const QStringList left = living();
    QVERIFY(m_pad->start({"--no-recovery"}));
    QVERIFY(isNothingOffered());
    QCOMPARE(living(), left);
}

void tst_RecoveryInWindow::replayWritesNoneAndIsOfferedNone()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();
    const QStringList left = living();
    const QByteArray before = contents(recovery() + '/' + left[0]);

    support::write(m_home->filePath("line.rec"), "press 40 90\nmove 90 90\nrelease 90 90\nwait 1500\n");
    QVERIFY(m_pad->start({"--replay", m_home->filePath("line.rec")}));
    QVERIFY(m_pad->waitForColor({70, 90}, Qt::red));
    QTest::qWait(2500); // long after its end
    QVERIFY(isNothingOffered());
    QCOMPARE(living(), left);
    QVERIFY(contents(recovery() + '/' + left[0]) == before);
    QCOMPARE(earlier(), QStringList());
}

// --- What is given up

namespace {

enum class Way { Close, Open, New, Clear };

} // namespace

void tst_RecoveryInWindow::whatIsGivenUpIsKept_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("closed") << int(Way::Close);
    QTest::newRow("another one opened") << int(Way::Open);
    QTest::newRow("new one") << int(Way::New);
    QTest::newRow("cleared") << int(Way::Clear);
}

void tst_RecoveryInWindow::whatIsGivenUpIsKept()
{
    QFETCH(int, way);
    QVERIFY(support::sheet(framedSize, Qt::blue).save(m_pad->pictures() + "/blue.png"));
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    const auto answerNo = [this](const char* question) {
        if (!m_pad->waitForBox(question))
            return false;
        m_pad->key("Tab");
        m_pad->key("Return");
        return true;
    };
    switch (Way(way)) {
    case Way::Close:
        m_pad->key("q", {"Control_L"});
        QVERIFY(answerNo("Save changes to drawing before closing?"));
        QVERIFY(m_pad->process().waitForEnd());
        break;
    case Way::Open:
        m_pad->key("o", {"Control_L"});
        QVERIFY(answerNo("Save changes to drawing before opening?"));
        QVERIFY(m_pad->waitForBox("Open picture"));
        m_pad->key("Home");
        m_pad->key("Return");
        QVERIFY(m_pad->waitForTitle("blue.png - Korva"));
        break;
    case Way::New:
        m_pad->key("n", {"Control_L"});
        QVERIFY(answerNo("Save changes to drawing before creating?"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pad->boxPlace().isValid() && !m_pad->box().startsWith("Save"), patience);
        QTest::qWait(300);
        m_pad->key("Return");
        QVERIFY(m_pad->waitForBox("How many colors?"));
        m_pad->key("Return");
        QVERIFY(m_pad->waitForTitle("Drawing - Korva"));
        break;
    case Way::Clear:
        m_pad->key("l", {"Control_L"});
        QVERIFY(m_pad->waitForColor(on, Qt::white));
        break;
    }
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 1, patience);
    QVERIFY(
        support::sameImage(inRgb(recovery() + '/' + earlier()[0]), withStroke(support::sheet(newDrawing))));
}

void tst_RecoveryInWindow::earlierDrawingIsBroughtBack()
{
    QVERIFY(m_pad->start());
    m_pad->key("e", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Earlier drawings", "host_tst_RecoveryInWindow-none"));
    m_pad->key("Escape");
    QVERIFY(m_pad->waitForNoBox());

    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("l", {"Control_L"});
    QVERIFY(m_pad->waitForColor(on, Qt::white));
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 1, patience);
    const QPoint below(0, 60);
    QVERIFY(m_pad->stroke(from + below, to + below));
    m_pad->key("l", {"Control_L"});
    QVERIFY(m_pad->waitForColor(on + below, Qt::white));
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 2, patience);

    m_pad->key("e", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Earlier drawings", "host_tst_RecoveryInWindow-earlier"));
    m_pad->key("Down"); // the older one
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox("Save changes to drawing before bringing another one back?",
                              "host_tst_RecoveryInWindow-changes"));
    m_pad->key("Tab");
    m_pad->key("Return"); // No
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(m_pad->waitForColor(on, Qt::red));
    QVERIFY(m_pad->waitForColor(on + below, Qt::white));
    QVERIFY(m_pad->waitForTitle("Drawing* - Korva"));
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 3, patience); // the one that it replaced, too
    QVERIFY(waitForLiving());
    QVERIFY(
        support::sameImage(inRgb(recovery() + '/' + living()[0]), withStroke(support::sheet(newDrawing))));
}

void tst_RecoveryInWindow::oldestOfAllIsBroughtBack()
{
    QVERIFY(QDir().mkpath(recovery()));
    for (int i = 0; i < KORVA_Journal::mostEarlier; ++i) {
        const QImage picture = i ? support::sheet(newDrawing) : withStroke(support::sheet(newDrawing));
        QVERIFY(picture.save(
            QString("%1/earlier-20200101-0000%2-000-0.png").arg(recovery()).arg(i, 2, 10, QChar('0'))));
    }
    QVERIFY(m_pad->start());
    const QPoint below(0, 60);
    QVERIFY(m_pad->stroke(from + below, to + below));
    m_pad->key("e", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Earlier drawings"));
    m_pad->key("End");
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox("Save changes to drawing before bringing another one back?"));
    m_pad->key("Tab");
    m_pad->key("Return"); // No: what is kept of this one makes the oldest one too many
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(m_pad->waitForColor(on, Qt::red));
    QVERIFY(m_pad->waitForColor(on + below, Qt::white));
}

void tst_RecoveryInWindow::theNewestTwentyAreKept()
{
    QVERIFY(m_pad->start());
    QStringList all;
    for (int i = 0; i < 25; ++i) {
        const QPoint below(0, 5 * i);
        QVERIFY(m_pad->stroke(from + below, to + below));
        m_pad->key("l", {"Control_L"});
        QVERIFY(m_pad->waitForColor(on + below, Qt::white));
        const auto isKept = [&] { return !earlier().isEmpty() && !all.contains(earlier().constLast()); };
        QTRY_VERIFY_WITH_TIMEOUT(isKept(), patience);
        all.append(earlier().constLast());
    }
    QTRY_COMPARE_WITH_TIMEOUT(earlier(), all.last(KORVA_Journal::mostEarlier), patience);
}

// --- Kills

namespace {

constexpr int mostLoss = 2000;       // milliseconds
constexpr int longestSession = 3500; // milliseconds
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

void tst_RecoveryInWindow::killsAtRandomMoments()
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
    return support::run<tst_RecoveryInWindow>(argc, argv);
}

#include "tst_RecoveryInWindow.moc"
