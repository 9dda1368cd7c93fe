#include "UTIL_FileLock.h"

#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <sys/stat.h>

#include <atomic>
#include <csignal>

class tst_FileLock : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();

    void oneAtATime();
    void theFileStaysUntilItIsRemoved();
    void lockingTwiceIsOnce();
    void removingWithoutTheLockDoesNothing();
    void waitsAsLongAsTold();
    void getsItAsSoonAsItIsFree();
    void aRemovedFileIsNoLock();
    void contentsAreNotTouched();
    void whatIsNoFile_data();
    void whatIsNoFile();
    void onlyOneIsAtWork();
    void aDeadProcessHoldsNothing();
    Q_INVOKABLE int lockAndDie();

private:
    [[nodiscard]] QString file() const { return m_folder->filePath("a.lock"); }
    std::optional<QTemporaryDir> m_folder;
};

void tst_FileLock::init()
{
    TestCase::init();
    m_folder.emplace();
}

void tst_FileLock::oneAtATime()
{
    UTIL_FileLock one(file());
    QVERIFY(!one.isLocked());
    QVERIFY(!QFile::exists(file()));
    QVERIFY(one.lock());
    QVERIFY(one.isLocked());
    UTIL_FileLock other(file());
    QVERIFY(!other.lock());
    QVERIFY(!other.isLocked());
    UTIL_FileLock elsewhere(m_folder->filePath("b.lock"));
    QVERIFY(elsewhere.lock());
    one.remove();
    QVERIFY(!one.isLocked());
    QVERIFY(other.lock());
    QVERIFY(!one.lock());
}

void tst_FileLock::theFileStaysUntilItIsRemoved()
{
    {
        UTIL_FileLock lock(file());
        QVERIFY(lock.lock());
    }
    QVERIFY(QFile::exists(file()));
    UTIL_FileLock lock(file());
    QVERIFY(lock.lock());
    lock.remove();
    QVERIFY(!QFile::exists(file()));
}

void tst_FileLock::lockingTwiceIsOnce()
{
    UTIL_FileLock lock(file());
    QVERIFY(lock.lock());
    QVERIFY(lock.lock());
    lock.remove();
    QVERIFY(UTIL_FileLock(file()).lock());
}

void tst_FileLock::removingWithoutTheLockDoesNothing()
{
    UTIL_FileLock holder(file());
    QVERIFY(holder.lock());
    UTIL_FileLock other(file());
    other.remove();
    QVERIFY(!other.lock());
    other.remove();
    QVERIFY(QFile::exists(file()));
    QVERIFY(!UTIL_FileLock(file()).lock());
}

void tst_FileLock::waitsAsLongAsTold()
{
    constexpr int wait = 300;
    UTIL_FileLock holder(file());
    QVERIFY(holder.lock());
    const auto timeOf = [&](int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        const bool isLocked = UTIL_FileLock(file()).lock(milliseconds);
        return isLocked ? 0 : timer.elapsed();
    };
    qint64 quickest = wait; // a busy machine may be slow once or twice
    for (int i = 0; i < 20; ++i)
        quickest = qMin(quickest, timeOf(0));
    QVERIFY(quickest < wait);
    QVERIFY(timeOf(wait) >= wait);
}

void tst_FileLock::getsItAsSoonAsItIsFree()
{
    constexpr int holdTime = 200;
    constexpr int longTime = 40'000;
    auto holder = std::make_unique<UTIL_FileLock>(file());
    QVERIFY(holder->lock());
    const std::unique_ptr<QThread> thread(QThread::create([&holder] {
        QThread::msleep(holdTime);
        holder.reset();
    }));
    QElapsedTimer timer;
    timer.start();
    thread->start();
    QVERIFY(UTIL_FileLock(file()).lock(longTime));
    QVERIFY(timer.elapsed() >= holdTime);
    QVERIFY(timer.elapsed() < longTime / 2);
    thread->wait();
}

void tst_FileLock::aRemovedFileIsNoLock()
{
    // Somebody takes the file away: the lock that is on it is on no name any more.
    UTIL_FileLock stale(file());
    QVERIFY(stale.lock());
    QVERIFY(QFile::remove(file()));
    UTIL_FileLock fresh(file());
    QVERIFY(fresh.lock());
    QVERIFY(QFile::exists(file()));
    QVERIFY(!UTIL_FileLock(file()).lock());
}

void tst_FileLock::contentsAreNotTouched()
{
    support::write(file(), "words");
    UTIL_FileLock lock(file());
    QVERIFY(lock.lock());
    QCOMPARE(support::contents(file()), QByteArray("words"));
}

void tst_FileLock::whatIsNoFile_data()
{
    QTest::addColumn<QString>("planted");
    QTest::addColumn<bool>("isLocked");
    QTest::newRow("link") << "link" << false;
    QTest::newRow("link to nothing") << "dangling" << false;
    QTest::newRow("folder") << "folder" << false;
    QTest::newRow("no folder") << "missing" << false;
    QTest::newRow("pipe") << "pipe" << true; // which nobody ever opens at the other end
}

void tst_FileLock::whatIsNoFile()
{
    QFETCH(const QString, planted);
    QFETCH(const bool, isLocked);
    constexpr int longTime = 40'000;
    const QString target = m_folder->filePath("target");
    if (planted == "link")
        support::write(target, "words");
    if (planted == "link" || planted == "dangling")
        QVERIFY(QFile::link(target, file()));
    if (planted == "folder")
        QVERIFY(QDir().mkdir(file()));
    if (planted == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(file()).constData(), 0600), 0);
    QElapsedTimer timer;
    timer.start();
    UTIL_FileLock lock(planted == "missing" ? m_folder->filePath("missing/a.lock") : file());
    QCOMPARE(lock.lock(longTime), isLocked);
    QVERIFY(timer.elapsed() < longTime / 2); // waiting would not help
    QCOMPARE(QFile::exists(target), planted == "link");
}

/// Each tries without a pause and most remove the file, so that it goes between the steps of others.
void tst_FileLock::onlyOneIsAtWork()
{
    constexpr int workers = 4;
    constexpr int turns = 200;
    std::atomic<int> atWork = 0;
    std::atomic<int> meetings = 0;
    std::atomic<int> done = 0;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < workers; ++i) {
        threads.emplace_back(QThread::create([&] {
            for (int turn = 0; turn < turns; ++turn) {
                UTIL_FileLock lock(file());
                while (!lock.lock()) {
                }
                meetings += ++atWork > 1;
                QThread::usleep(50);
                --atWork;
                ++done;
                if (turn % 3 != 0)
                    lock.remove();
            }
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads)
        thread->wait();
    QCOMPARE(meetings.load(), 0);
    QCOMPARE(done.load(), workers * turns);
}

void tst_FileLock::aDeadProcessHoldsNothing()
{
    qputenv("KORVA_TEST_LOCK", QFile::encodeName(file()));
    const support::ChildProcess child = support::ChildProcess::run("lockAndDie");
    qunsetenv("KORVA_TEST_LOCK");
    QCOMPARE(child.signal, SIGKILL);
    QVERIFY(QFile::exists(file()));
    QVERIFY(UTIL_FileLock(file()).lock());
}

int tst_FileLock::lockAndDie()
{
    UTIL_FileLock lock(qEnvironmentVariable("KORVA_TEST_LOCK"));
    if (!lock.lock())
        return 1;
    raise(SIGKILL);
    return 2;
}

int main(int argc, char** argv)
{
    return support::run<tst_FileLock>(argc, argv);
}

#include "tst_FileLock.moc"
