#include "SaveFixtures.h"

#include "UTIL_FileLock.h"

#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

using fixtures::filesIn;
using fixtures::oldBytes;
using fixtures::red;
using fixtures::saved;
using support::contents;
using support::write;

/// Programs that save through the same download folder.
class tst_SharedSave : public support::SaveTest
{
    Q_OBJECT

private slots:
    void twoProgramsLoseNothing();
    void deadHolderStopsNobody();
    void leftLockFileStopsNobody();
    void livingHolderIsWaitedFor();
    void livingHolderIsGivenUp();
    void failedSaveLeavesNoLock_data();
    void failedSaveLeavesNoLock();
    void plantedLockFile_data();
    void plantedLockFile();
};

namespace {

QString lockFile()
{
    return picturesave::temporaryPath() + ".lock";
}

/// A process that runs `work` and then sleeps until it is killed; it is over with the object.
class Child
{
public:
    explicit Child(const std::function<int()>& work)
    {
        int ends[2];
        if (pipe(ends) != 0)
            qFatal("no pipe");
        m_process = fork();
        if (m_process == 0) {
            setpgid(0, 0);
            const int result = work();
            const char ready = 'r';
            if (::write(ends[1], &ready, 1) != 1)
                _exit(1);
            if (result >= 0)
                _exit(result);
            for (;;)
                pause();
        }
        setpgid(m_process, m_process);
        m_ready = ends[0];
        close(ends[1]);
    }
    ~Child()
    {
        if (m_process > 0)
            kill();
        close(m_ready);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void waitUntilReady() const
    {
        char ready;
        QCOMPARE(read(m_ready, &ready, 1), 1);
    }
    [[nodiscard]] bool isReadyWithin(int milliseconds) const
    {
        pollfd waiting{m_ready, POLLIN, 0};
        return poll(&waiting, 1, milliseconds) == 1;
    }
    /// What the work gave.
    [[nodiscard]] int result()
    {
        int status = 0;
        waitpid(std::exchange(m_process, 0), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    void kill()
    {
        ::kill(-m_process, SIGKILL);
        waitpid(std::exchange(m_process, 0), nullptr, 0);
    }

private:
    pid_t m_process;
    int m_ready;
};

constexpr int staysAlive = -1;

/// Takes the lock of the download folder and holds it.
int holdLock()
{
    auto* lock = new UTIL_FileLock(lockFile());
    return lock->lock() ? staysAlive : 1;
}

/// Saves again and again pictures that no other program has; how often that went wrong.
int saveOften(const QString& name, const QColor& color)
{
    constexpr int saves = 500;
    constexpr int differentOnes = 5;
    constexpr int mostTold = 100;
    QList<QImage> pictures;
    QList<QByteArray> files;
    for (int i = 0; i < differentOnes; ++i) {
        pictures << support::filled(support::sheet({20, 20}, color), {i, i, 5, 5}, Qt::white);
        files << picturesave::encoded(pictures[i], "BMP");
    }
    int failures = 0;
    for (int i = 0; i < saves; ++i) {
        const auto save = [&] { return saved(name, pictures[i % differentOnes], "BMP"); };
        const bool isSaved = save() || save(); // on a busy machine the other's turn may be too long to wait
        failures += !isSaved || contents(name) != files[i % differentOnes];
    }
    return qMin(failures, mostTold);
}

} // namespace

void tst_SharedSave::twoProgramsLoseNothing()
{
    Child one([this] { return saveOften(path("photos/one.bmp"), Qt::red); });
    Child other([this] { return saveOften(path("photos/other.bmp"), Qt::blue); });
    QCOMPARE(one.result(), 0);
    QCOMPARE(other.result(), 0);
    QCOMPARE(filesIn(path("photos")), QStringList({"one.bmp", "other.bmp"}));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_SharedSave::deadHolderStopsNobody()
{
    Child holder(holdLock);
    holder.waitUntilReady();
    QVERIFY(!UTIL_FileLock(lockFile()).lock());
    holder.kill();
    QVERIFY(QFile::exists(lockFile()));
    QVERIFY(saved(path("photos/a.png"), red())); // who waits for it waits in vain
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_SharedSave::leftLockFileStopsNobody()
{
    write(lockFile(), {});
    QVERIFY(saved(path("photos/a.png"), red()));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_SharedSave::livingHolderIsWaitedFor()
{
    constexpr int holdTime = 700;
    Child holder(holdLock);
    holder.waitUntilReady();
    QElapsedTimer timer;
    timer.start();
    const std::unique_ptr<QThread> killer(QThread::create([&holder] {
        QThread::msleep(holdTime);
        holder.kill();
    }));
    killer->start();
    const bool isSaved = saved(path("photos/a.png"), red());
    const qint64 time = timer.elapsed();
    killer->wait();
    QVERIFY(isSaved);
    QVERIFY2(time >= holdTime, qPrintable(QString::number(time)));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_SharedSave::livingHolderIsGivenUp()
{
    constexpr int waitTime = 5000;
    constexpr int patience = 20'000; // of a machine that is busy: what counts is that it ends
    write(path("photos/a.png"), oldBytes);
    Child holder([] {
        write(picturesave::temporaryPath(), "the holder's data");
        return holdLock();
    });
    holder.waitUntilReady();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!saved(path("photos/a.png"), red()));
    const qint64 time = timer.elapsed();
    QVERIFY2(time >= waitTime && time < waitTime + patience, qPrintable(QString::number(time)));
    QCOMPARE(contents(path("photos/a.png")), oldBytes);
    QCOMPARE(contents(picturesave::temporaryPath()), QByteArray("the holder's data"));
    QVERIFY(!UTIL_FileLock(lockFile()).lock()); // it holds it still
}

void tst_SharedSave::failedSaveLeavesNoLock_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("cannot be encoded") << "photos/a.gif" << QByteArray("GIF");
    QTest::newRow("no folder") << "missing/a.png" << QByteArray("PNG");
    QTest::newRow("a folder") << "photos" << QByteArray("PNG");
}

void tst_SharedSave::failedSaveLeavesNoLock()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, format);
    QVERIFY(!saved(path(name), red(), format.constData()));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_SharedSave::plantedLockFile_data()
{
    QTest::addColumn<QString>("planted");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("pipe") << "pipe" << true;
    QTest::newRow("link to the victim") << "victim" << false;
    QTest::newRow("link to nothing") << "nothing" << false;
    QTest::newRow("folder") << "folder" << false;
}

/// Whatever is there, no save waits for ever, and nothing else is touched.
void tst_SharedSave::plantedLockFile()
{
    QFETCH(const QString, planted);
    QFETCH(const bool, isSaved);
    write(path("victim"), oldBytes);
    write(path("photos/a.png"), oldBytes);
    if (planted == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(lockFile()).constData(), 0666), 0);
    else if (planted == "folder")
        QVERIFY(QDir().mkdir(lockFile()));
    else
        QVERIFY(QFile::link(path(planted), lockFile()));

    Child saver([this] { return saved(path("photos/a.png"), red()) ? 1 : 0; });
    QVERIFY(saver.isReadyWithin(4000));
    QCOMPARE(saver.result() == 1, isSaved);
    QCOMPARE(contents(path("photos/a.png")) == oldBytes, !isSaved);
    QCOMPARE(contents(path("victim")), oldBytes);
    QVERIFY(!QFileInfo::exists(path("nothing")));
    QVERIFY(!QFile::exists(picturesave::temporaryPath()));
}

int main(int argc, char** argv)
{
    return support::run<tst_SharedSave>(argc, argv);
}

#include "tst_SharedSave.moc"
