#include "KORVA_PictureSave.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

using support::contents;
using support::write;

namespace {

const QByteArray oldBytes = "the old file";
constexpr const char* variable = "KIV_LOCAL_DOWNLOAD_PATH";

/// Makes mounts possible that only this program sees and that go with it. False where even that is not
/// permitted.
bool enterOwnMountSpace()
{
    const uid_t user = getuid();
    const gid_t group = getgid();
    if (user == 0)
        return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", QByteArray("0 ") + QByteArray::number(user) + " 1");
    write("/proc/self/gid_map", QByteArray("0 ") + QByteArray::number(group) + " 1");
    return true;
}

bool canMount = false;

/// A file system of its own under a folder, for as long as it lives.
class Mount
{
public:
    Mount(const QString& folder, const char* options) : m_folder(QFile::encodeName(folder))
    {
        QDir().mkpath(folder);
        m_isThere = canMount && mount("none", m_folder.constData(), "tmpfs", 0, options) == 0;
    }
    ~Mount()
    {
        if (m_isThere)
            umount2(m_folder.constData(), MNT_DETACH);
    }
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;

    [[nodiscard]] bool isThere() const { return m_isThere; }
    [[nodiscard]] bool setReadOnly() const
    {
        return mount("none", m_folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    QByteArray m_folder;
    bool m_isThere;
};

bool saved(const QString& name, const QImage& image, const char* format = "PNG")
{
    return picturesave::replace(
        name, [&](const QString& temporary) { return picturesave::write(image, temporary, format); });
}

QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    std::mt19937 random(1);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random() | 0xff000000);
    return image;
}

QImage red()
{
    return support::sheet(QSize(40, 30), Qt::red);
}

} // namespace

class tst_PictureSave : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void temporaryPath_data();
    void temporaryPath();
    void roundTripIsExact_data();
    void roundTripIsExact();
    void jpegIsGood();
    void unknownFormatIsNotWritten();
    void pngIsNoLargerThanOthers_data();
    void pngIsNoLargerThanOthers();
    void savesUnderAnyName_data();
    void savesUnderAnyName();
    void singleQuoteRunsNoShell_data();
    void singleQuoteRunsNoShell();
    void shellGetsTheMove();
    void leadingDashIsNoOption();
    void existingFileIsReplaced();
    void staleTemporaryFileIsNotWrittenThrough();
    void savesAcrossFileSystems();
    void faultLeavesTheOldFile_data();
    void faultLeavesTheOldFile();
    void targetSurvivesKills_data();
    void targetSurvivesKills();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] QStringList filesIn(const QString& folder) const
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_PictureSave::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(path("")).mkpath("appwrite") && QDir(path("")).mkdir("photos"));
    qputenv(variable, path("").toUtf8());
    QVERIFY(QDir::setCurrent(path("")));
}

void tst_PictureSave::cleanup()
{
    QDir::setCurrent("/");
    m_folder.reset();
}

void tst_PictureSave::temporaryPath_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("path");
    QTest::addRow("with a slash and blanks")
        << QByteArray("  /mnt/data/ \t\n") << "/mnt/data/appwrite/korva.temp";
    QTest::addRow("without a slash") << QByteArray("/mnt/data") << "/mnt/data/appwrite/korva.temp";
    QTest::addRow("blanks within") << QByteArray(" /mnt/my data ") << "/mnt/my data/appwrite/korva.temp";
    QTest::addRow("only blanks") << QByteArray("  ") << "/appwrite/korva.temp";
    QTest::addRow("unset") << QByteArray() << "/appwrite/korva.temp";
}

void tst_PictureSave::temporaryPath()
{
    QFETCH(QByteArray, value);
    if (value.isNull())
        qunsetenv(variable);
    else
        qputenv(variable, value);
    QTEST(picturesave::temporaryPath(), "path");
}

void tst_PictureSave::roundTripIsExact_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<QByteArray>("format");
    const auto grey = [](int colors) {
        QImage image(50, 20, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const int level = (x + y) % colors * 255 / (colors - 1);
                image.setPixel(x, y, qRgb(level, level, level));
            }
        return image;
    };
    const auto colorful = [](int colors) {
        QImage image(50, 20, QImage::Format_RGB32);
        for (int i = 0; i < 1000; ++i)
            image.setPixel(i % 50, i / 50, qRgb(i % colors, 255 - i % colors, 7 * (i % colors) % 256));
        return image;
    };
    for (const char* format : {"PNG", "BMP"}) {
        for (const int colors : {2, 4, 16, 256})
            QTest::addRow("%s, %d greys", format, colors) << grey(colors) << QByteArray(format);
        for (const int colors : {1, 2, 3, 4, 5, 16, 17, 256})
            QTest::addRow("%s, %d colours", format, colors) << colorful(colors) << QByteArray(format);
        QTest::addRow("%s, every pixel another colour", format)
            << support::mosaic(QSize(61, 47)) << QByteArray(format);
        QTest::addRow("%s, one pixel", format) << support::sheet(QSize(1, 1)) << QByteArray(format);
    }
}

void tst_PictureSave::roundTripIsExact()
{
    QFETCH(QImage, image);
    QFETCH(QByteArray, format);
    const QString name = path("trip." + format.toLower());
    QVERIFY(saved(name, image, format.constData()));
    QVERIFY(support::sameImage(support::converted(name), image));
}

void tst_PictureSave::jpegIsGood()
{
    QVERIFY(support::convert({"-size", "120x90", "-seed", "1", "plasma:red-blue", "-blur", "0x2", "-depth",
                              "8", path("photo.png")}));
    const QImage photo(path("photo.png"));
    QVERIFY(saved(path("photo.jpg"), photo, "JPEG"));
    QVERIFY(support::distance(support::converted(path("photo.jpg")), photo).mean < 2);
    QProcess identify;
    identify.start("identify", {"-format", "%m %Q", path("photo.jpg")});
    QVERIFY(identify.waitForFinished());
    QCOMPARE(identify.readAllStandardOutput(), QByteArray("JPEG 96"));
}

void tst_PictureSave::unknownFormatIsNotWritten()
{
    for (const char* format : {"GIF", "NONSENSE", ""}) {
        QVERIFY(!picturesave::write(red(), path("unknown"), format));
        QVERIFY(!QFile::exists(path("unknown")));
    }
    QVERIFY(!picturesave::write({}, path("unknown"), "PNG"));
    QVERIFY(picturesave::write(red(), path("by-extension.bmp"), nullptr));
    QVERIFY(contents(path("by-extension.bmp")).startsWith("BM"));
}

void tst_PictureSave::pngIsNoLargerThanOthers_data()
{
    QTest::addColumn<QString>("making");
    const std::pair<const char*, const char*> rows[] = {
        {"white", "xc:white"},
        {"a drawing", "xc:white +antialias -fill red -stroke black -draw \"circle 100,100 140,140\""},
        {"a smooth drawing", "xc:white -fill red -stroke black -draw \"circle 100,100 140,140\""},
        {"grey gradient", "gradient:"},
        {"4 greys", "gradient: +dither -posterize 4"},
        {"gradient", "gradient:red-blue"},
        {"photograph", "-seed 1 plasma:red-blue"},
        {"photograph in 16 bits", "-seed 1 plasma:red-blue +dither -posterize 32"},
        {"noise", "-seed 1 xc: +noise Random"},
        {"noise of 2 colours", "-seed 1 xc: +noise Random -monochrome"},
        {"noise of 4 colours", "-seed 1 xc: +noise Random +dither -colors 4"},
        {"noise of 16 colours", "-seed 1 xc: +noise Random +dither -colors 16"},
        {"noise of 200 colours", "-seed 1 xc: +noise Random +dither -colors 200"},
    };
    for (const auto& [name, making] : rows)
        QTest::addRow("%s", name) << QString(making);
}

void tst_PictureSave::pngIsNoLargerThanOthers()
{
    QFETCH(QString, making);
    const QStringList size{"-size", "240x320"};
    QVERIFY(support::convert(size + QProcess::splitCommand(making) +
                             QStringList{"-depth", "8", "BMP3:" + path("it.bmp")}));
    QVERIFY(support::convert({path("it.bmp"), path("theirs.png")}));
    const QImage image(path("it.bmp"));
    QVERIFY(saved(path("ours.png"), image));
    QVERIFY(support::sameImage(support::converted(path("ours.png")),
                               image.convertToFormat(QImage::Format_RGB32)));
    const qint64 ours = QFileInfo(path("ours.png")).size();
    const qint64 theirs = QFileInfo(path("theirs.png")).size();
    QVERIFY2(ours <= theirs, qPrintable(QString("%1 > %2").arg(ours).arg(theirs)));
}

void tst_PictureSave::savesUnderAnyName_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"plain.png",
                             "with blanks .png",
                             "$HOME.png",
                             "$(touch pwned).png",
                             "`touch pwned`.png",
                             "new\nline.png",
                             "semi;touch pwned;.png",
                             "\"double\".png",
                             "back\\slash\\.png",
                             "-rf.png",
                             "--help",
                             "*.png",
                             "~",
                             "#.png",
                             "%1.png",
                             "a&b|c>d<e.png",
                             "\t.png",
                             "\xc3\xa4\xe2\x82\xac\xf0\x9f\x8e\xa8.png",
                             "\xff\xfe.png",
                             "\x01.png",
                             ".hidden",
                             "!!.png"})
        QTest::addRow("%s", QByteArray(name).toPercentEncoding(" $()`;\"\\*#&|<>!").constData())
            << QFile::decodeName(name);
}

void tst_PictureSave::savesUnderAnyName()
{
    QFETCH(QString, name);
    const QString photos = path("photos");
    QVERIFY(saved(photos + '/' + name, red()));
    QCOMPARE(filesIn(photos), QStringList{name});
    QVERIFY(contents(photos + '/' + name).startsWith("\x89PNG"));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
    QVERIFY(!QFile::exists("pwned") && !QFile::exists(QDir::homePath() + "/pwned"));
}

void tst_PictureSave::singleQuoteRunsNoShell_data()
{
    QTest::addColumn<QString>("name");
    QTest::addRow("a quote") << "it's.png";
    QTest::addRow("two quotes") << "'quoted'.png";
    QTest::addRow("a command") << "a'; touch pwned; '.png";
    QTest::addRow("a null character") << QString("a") + QChar::Null + "b.png";
    QTest::addRow("nothing") << QString();
}

void tst_PictureSave::singleQuoteRunsNoShell()
{
    QFETCH(QString, name);
    // Whatever a shell would run to move the file leaves a trace here.
    QDir(path("")).mkdir("bin");
    write(path("bin/mv"), "#!/bin/sh\n: > '" + path("ran").toUtf8() + "'\n");
    QFile::setPermissions(path("bin/mv"), QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", path("bin").toUtf8() + ':' + before);
    const bool isSaved = saved(name.isEmpty() ? name : path("photos/") + name, red());
    qputenv("PATH", before);
    QVERIFY(!isSaved);
    QVERIFY(!QFile::exists(path("ran")));
    QCOMPARE(filesIn(path("photos")), QStringList());
    QCOMPARE(filesIn(path("appwrite")), QStringList());

    qputenv(variable, path("it's/").toUtf8());
    QDir(path("")).mkpath("it's/appwrite");
    QVERIFY(!saved(path("photos/a.png"), red()));
}

void tst_PictureSave::shellGetsTheMove()
{
    QDir(path("")).mkdir("bin");
    write(path("bin/mv"),
          "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + path("arguments").toUtf8() + "'\nexit 1\n");
    QFile::setPermissions(path("bin/mv"), QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", path("bin").toUtf8() + ':' + before);
    const bool isSaved = saved(path("photos/a b.png"), red());
    qputenv("PATH", before);
    QVERIFY(!isSaved); // for it failed
    QCOMPARE(contents(path("arguments")),
             (picturesave::temporaryPath() + '\n' + path("photos/a b.png") + '\n').toUtf8());
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_PictureSave::leadingDashIsNoOption()
{
    QVERIFY(QDir::setCurrent(path("photos")));
    QVERIFY(QDir().mkdir("elsewhere"));
    const bool isSaved = saved("-t elsewhere", red()) && saved("--backup.png", red());
    QVERIFY(isSaved);
    QCOMPARE(filesIn(path("photos")), QStringList({"--backup.png", "-t elsewhere"}));
    QCOMPARE(filesIn(path("photos/elsewhere")), QStringList());
}

void tst_PictureSave::existingFileIsReplaced()
{
    write(path("photos/a.png"), oldBytes);
    QVERIFY(saved(path("photos/a.png"), red()));
    QVERIFY(support::sameImage(support::converted(path("photos/a.png")), red()));
    QCOMPARE(filesIn(path("photos")), QStringList{"a.png"});
}

void tst_PictureSave::staleTemporaryFileIsNotWrittenThrough()
{
    write(path("victim"), oldBytes);
    QVERIFY(QFile::link(path("victim"), picturesave::temporaryPath()));
    QVERIFY(saved(path("photos/a.png"), red()));
    QCOMPARE(contents(path("victim")), oldBytes);
    QVERIFY(!QFileInfo(path("photos/a.png")).isSymLink());
    QVERIFY(support::sameImage(support::converted(path("photos/a.png")), red()));
}

void tst_PictureSave::savesAcrossFileSystems()
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

namespace {

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

void tst_PictureSave::faultLeavesTheOldFile_data()
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

void tst_PictureSave::faultLeavesTheOldFile()
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

void tst_PictureSave::targetSurvivesKills_data()
{
    QTest::addColumn<bool>("isAcross");
    QTest::addRow("within a file system") << false;
    QTest::addRow("across file systems") << true;
}

void tst_PictureSave::targetSurvivesKills()
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
    canMount = enterOwnMountSpace();
    return support::run<tst_PictureSave>(argc, argv);
}

#include "tst_PictureSave.moc"
