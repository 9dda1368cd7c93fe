#include "JournalFixtures.h"

using fixtures::Desk;
using fixtures::isSame;

namespace {

constexpr QSize large(1200, 1000);

/// Waits as its owner wants.
class Patient : public fixtures::SilentPlatform
{
public:
    using Wait = std::function<bool(QFuture<void> work)>;

    /// Puts it in force.
    static void install(const Wait& wait)
    {
        auto platform = std::make_unique<Patient>();
        platform->m_wait = wait;
        UTIL_Platform::install(std::move(platform));
    }
    bool waitFor(QWidget*, const QString&, const QFuture<void>& work) override { return m_wait(work); }

private:
    Wait m_wait;
};

bool refuse(QFuture<void> work)
{
    work.cancel();
    return false;
}

} // namespace

/// Large drawings are found and brought back while the user waits, who can cancel that.
class tst_JournalWaiting : public fixtures::JournalTest
{
    Q_OBJECT

private slots:
    void largeDrawingsAreWaitedFor();
    void whatIsNotWaitedForStays();
    void theJournalMayGoAwayMeanwhile();
    void drawingMayBeginMeanwhile();
};

void tst_JournalWaiting::largeDrawingsAreWaitedFor()
{
    int waits = 0;
    Patient::install([&](QFuture<void> work) {
        ++waits;
        work.waitForFinished();
        return true;
    });
    leave(Qt::red, 100);
    leave(Qt::blue, 0, {}, large);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QCOMPARE(found->size, large);
    QCOMPARE(waits, 1);
    QVERIFY(desk.journal.bringBack(*found));
    QCOMPARE(waits, 2);
    QVERIFY(isSame(desk.editor.drawing(), support::sheet(large, Qt::blue)));
    QCOMPARE(earlier().size(), 1);

    const auto thumbnail = KORVA_Journal::thumbnailer(*found, {30, 30})({});
    QCOMPARE(thumbnail.size(), QSize(30, 25));
    QCOMPARE(thumbnail.pixelColor(10, 10), QColor(Qt::blue));
    QVERIFY(KORVA_Journal::thumbnailer(*found, {30, 30})([] { return true; }).isNull());
    QCOMPARE(waits, 2);

    KORVA_Features quiet = desk.editor.features();
    quiet.dialogs = false;
    desk.editor.setFeatures(quiet);
    QVERIFY(desk.journal.bringBack(*found));
    QCOMPARE(waits, 2);
}

void tst_JournalWaiting::whatIsNotWaitedForStays()
{
    leave(Qt::blue, 0, "/photos/a.png", large);
    {
        Patient::install(refuse);
        Desk desk(folder());
        QVERIFY(!desk.journal.adopt());
        QCOMPARE(living().size(), 1);
        QCOMPARE(earlier(), QStringList());
    }
    Patient::install([](QFuture<void> work) {
        work.waitForFinished();
        return true;
    });
    Desk desk(folder());
    const auto found = desk.journal.adopt(); // nobody has locked it
    QVERIFY(found);
    Patient::install(refuse);
    const QImage before = desk.editor.drawing();
    QVERIFY(!desk.journal.bringBack(*found));
    QVERIFY(isSame(desk.editor.drawing(), before));
    QVERIFY(!desk.editor.isModified());
    QCOMPARE(living().size(), 1);
}

void tst_JournalWaiting::theJournalMayGoAwayMeanwhile()
{
    leave(Qt::blue, 0, {}, large);
    for (const bool withEditor : {true, false}) {
        std::unique_ptr<fixtures::Editor> editor;
        std::unique_ptr<KORVA_Journal> journal;
        bool isThere = true;
        Patient::install([&](QFuture<void> work) {
            work.waitForFinished();
            journal.reset();
            if (withEditor)
                editor.reset();
            isThere = false;
            return true;
        });
        editor = std::make_unique<fixtures::Editor>();
        journal = std::make_unique<KORVA_Journal>(editor.get(), folder());
        QVERIFY(!journal->adopt());
        QVERIFY(!isThere);
        QCOMPARE(living().size(), 1);
    }
}

void tst_JournalWaiting::drawingMayBeginMeanwhile()
{
    leave(Qt::blue, 0, {}, large);
    std::unique_ptr<Desk> desk;
    Patient::install([&](QFuture<void> work) {
        work.waitForFinished();
        desk->editor.draw();
        desk->journal.flush();
        return true;
    });
    desk = std::make_unique<Desk>(folder());
    QVERIFY(!desk->journal.adopt());
    QCOMPARE(living().size(), 2);
    desk->journal.settle();
    QCOMPARE(living().size(), 1); // its own is gone
    QVERIFY(isSame(livingPicture(), support::sheet(large, Qt::blue)));
}

int main(int argc, char** argv)
{
    return support::run<tst_JournalWaiting>(argc, argv);
}

#include "tst_JournalWaiting.moc"
