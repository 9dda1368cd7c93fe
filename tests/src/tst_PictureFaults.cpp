#include "SaveFixtures.h"
#include "support/Mount.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

using fixtures::filesIn;
using fixtures::oldBytes;
using fixtures::red;
using fixtures::saved;
using fixtures::variable;
using support::contents;
using support::Mount;
using support::write;

namespace {

QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    std::mt19937 random(1);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random() | 0xff000000);
    return image;
}

/// What goes wrong with a save. The old file is photos/a.png, but for those on another file system.
enum class Fault {
    DiskFull,
    LimitReached, ///< on the size of files
    NoTemporaryFolder,
    TemporaryFolderIsAFile,
    TemporaryFileIsAFolder,
    EncoderFails,
    NoShellCommand,
    TargetIsAFolder,
    FolderVanished,
    FolderIsAFile,
    FileProtected,
    FolderProtected,
    FolderReadOnly,
    OtherDiskFull,
    OtherDiskReadOnly,
};

} // namespace

/// What is left when a save fails, or is not let to its end.
class tst_PictureFaults : public support::SaveTest
{
    Q_OBJECT

private slots:
    void savesAcrossFileSystems();
    void faultLeavesTheOldFile_data();
    void faultLeavesTheOldFile();
    void targetSurvivesKills_data();
    void targetSurvivesKills();
};

void tst_PictureFaults::savesAcrossFileSystems()
{
    const Mount other(path("other"), "size=1m");
    if (!other.isThere())
        QSKIP("mounting is not permitted here");
    write(path("other/a.png"), oldBytes);
    QVERIFY(saved(path("other/a.png"), red()));
    write(path("other/plain"), oldBytes);
    QVERIFY(support::sameImage(support::converted(path("other/a.png")), red()));
    QCOMPARE(filesIn(path("other")), QStringList({"a.png", "plain"}));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
    QCOMPARE(QFile::permissions(path("other/a.png")), QFile::permissions(path("other/plain")));
}

void tst_PictureFaults::faultLeavesTheOldFile_data()
{
    QTest::addColumn<int>("fault");
    const std::pair<const char*, Fault> rows[] = {
        {"full disk", Fault::DiskFull},
        {"files may not be that large", Fault::LimitReached},
        {"no temporary folder", Fault::NoTemporaryFolder},
        {"temporary folder is a file", Fault::TemporaryFolderIsAFile},
        {"temporary file is a folder", Fault::TemporaryFileIsAFolder},
        {"picture cannot be encoded", Fault::EncoderFails},
        {"no command to move it", Fault::NoShellCommand},
        {"target is a folder", Fault::TargetIsAFolder},
        {"folder vanished", Fault::FolderVanished},
        {"folder is a file", Fault::FolderIsAFile},
        {"file is write-protected", Fault::FileProtected},
        {"folder is write-protected", Fault::FolderProtected},
        {"folder is on a read-only disk", Fault::FolderReadOnly},
        {"other disk is full", Fault::OtherDiskFull},
        {"other disk is read-only", Fault::OtherDiskReadOnly},
    };
    for (const auto& [name, fault] : rows)
        QTest::addRow("%s", name) << int(fault);
}

void tst_PictureFaults::faultLeavesTheOldFile()
{
    QFETCH(int, fault);
    QString target = path("photos/a.png");
    QImage image = noise(QSize(200, 150)); // no format packs it into the small disks
    std::optional<Mount> disk;
    const auto mounted = [&](const QString& folder) {
        disk.emplace(folder, "size=64k");
        return disk->isThere();
    };
    write(target, oldBytes);
    rlimit sizeLimit{};
    getrlimit(RLIMIT_FSIZE, &sizeLimit);
    const QByteArray searchPath = qgetenv("PATH");
    std::signal(SIGXFSZ, SIG_IGN);

    switch (Fault(fault)) {
    case Fault::DiskFull:
        if (!mounted(path("small")))
            QSKIP("mounting is not permitted here");
        QVERIFY(QDir(path("small")).mkdir("appwrite"));
        qputenv(variable, path("small").toUtf8());
        break;
    case Fault::LimitReached: {
        const rlimit low{100, sizeLimit.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &low), 0);
        break;
    }
    case Fault::NoTemporaryFolder:
        QVERIFY(QDir(path("")).rmdir("appwrite"));
        break;
    case Fault::TemporaryFolderIsAFile:
        QVERIFY(QDir(path("")).rmdir("appwrite"));
        write(path("appwrite"), oldBytes);
        break;
    case Fault::TemporaryFileIsAFolder:
        QVERIFY(QDir(path("appwrite")).mkdir("korva.temp"));
        break;
    case Fault::EncoderFails:
        image = {};
        break;
    case Fault::NoShellCommand:
        qputenv("PATH", "/nowhere");
        break;
    case Fault::TargetIsAFolder:
        QVERIFY(QFile::remove(target) && QDir().mkdir(target));
        break;
    case Fault::FolderVanished:
        target = path("vanished/a.png");
        break;
    case Fault::FolderIsAFile:
        target = path("photos/a.png/b.png");
        break;
    case Fault::FileProtected:
        QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::ReadOther));
        break;
    case Fault::FolderProtected:
        QVERIFY(QFile::setPermissions(path("photos"), QFile::ReadOwner | QFile::ExeOwner));
        break;
    case Fault::FolderReadOnly:
    case Fault::OtherDiskFull:
    case Fault::OtherDiskReadOnly:
        if (!mounted(path("other")))
            QSKIP("mounting is not permitted here");
        target = path("other/a.png");
        write(target, oldBytes);
        if (Fault(fault) == Fault::FolderReadOnly) {
            QVERIFY(QDir(path("other")).mkdir("appwrite"));
            qputenv(variable, path("other").toUtf8());
        }
        if (Fault(fault) != Fault::OtherDiskFull)
            QVERIFY(disk->setReadOnly());
        break;
    }

    const bool isSaved = saved(target, image);
    setrlimit(RLIMIT_FSIZE, &sizeLimit);
    qputenv("PATH", searchPath);
    QFile::setPermissions(path("photos"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    QVERIFY(!isSaved);
    const bool isMissing = Fault(fault) == Fault::TargetIsAFolder || Fault(fault) == Fault::FolderVanished;
    if (!isMissing)
        QCOMPARE(contents(Fault(fault) == Fault::FolderIsAFile ? path("photos/a.png") : target), oldBytes);
    for (const char* folder : {"appwrite", "small/appwrite", "other/appwrite", "photos/a.png"})
        QCOMPARE(filesIn(path(folder)), QStringList());
    QCOMPARE(filesIn(path("photos")).size(), Fault(fault) == Fault::TargetIsAFolder ? 0 : 1);
    if (QFile::exists(path("other")))
        QCOMPARE(filesIn(path("other")), QStringList{"a.png"});
}

void tst_PictureFaults::targetSurvivesKills_data()
{
    QTest::addColumn<bool>("isAcross");
    QTest::addRow("within a file system") << false;
    QTest::addRow("across file systems") << true;
}

void tst_PictureFaults::targetSurvivesKills()
{
    QFETCH(bool, isAcross);
    const Mount other(path("other"), "size=16m");
    const Mount disk(path("disk"), "size=16m"); // in memory, so that nothing waits for a real one
    if (isAcross && !other.isThere())
        QSKIP("mounting is not permitted here");
    QVERIFY(QDir(path("disk")).mkdir("appwrite"));
    qputenv(variable, path("disk").toUtf8());
    const QString target = path(isAcross ? "other/a.bmp" : "disk/a.bmp");
    const QImage pictures[] = {support::mosaic(QSize(500, 400)), support::sheet(QSize(500, 400), Qt::red)};
    QByteArray whole[2];
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(saved(target, pictures[i], "BMP"));
        whole[i] = contents(target);
    }
    const int saveTime = int(timer.nsecsElapsed() / 2000);

    constexpr int kills = 100; // in each of the two rows
    std::mt19937 random(1);
    int changes = 0;
    QByteArray before = contents(target);
    for (int i = 0; i < kills; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            setpgid(0, 0);
            for (int turn = 0;; ++turn)
                (void)saved(target, pictures[turn % 2], "BMP");
        }
        QVERIFY(child > 0);
        setpgid(child, child);
        usleep(useconds_t(random() % unsigned(3 * saveTime)));
        kill(-child, SIGKILL);
        QCOMPARE(waitpid(child, nullptr, 0), child);
        const QByteArray after = contents(target);
        QVERIFY2(after == whole[0] || after == whole[1], qPrintable(QString::number(after.size())));
        changes += after != before;
        before = after;
    }
    QVERIFY2(changes > 0, "no kill came late enough for a save");
}

int main(int argc, char** argv)
{
    Mount::allow();
    return support::run<tst_PictureFaults>(argc, argv);
}

#include "tst_PictureFaults.moc"
