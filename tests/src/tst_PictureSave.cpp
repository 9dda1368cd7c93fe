#include "SaveFixtures.h"
#include "support/Mount.h"

#include <sys/stat.h>
#include <unistd.h>

using fixtures::filesIn;
using fixtures::oldBytes;
using fixtures::red;
using fixtures::saved;
using fixtures::variable;
using support::contents;
using support::Mount;
using support::write;

class tst_PictureSave : public support::SaveTest
{
    Q_OBJECT

private slots:
    void temporaryPath_data();
    void temporaryPath();
    void staleTemporaryFileGoes_data();
    void staleTemporaryFileGoes();
    void roundTripIsExact_data();
    void roundTripIsExact();
    void pngIsNoLongerThanTheCodecs_data();
    void pngIsNoLongerThanTheCodecs();
    void jpegIsGood();
    void unknownFormatIsNotWritten();
    void nothingIsLeftOnAFullDisk();
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
    void modeStays_data();
    void modeStays();
    void newFileFollowsTheUmask_data();
    void newFileFollowsTheUmask();
    void linkStays_data();
    void linkStays();
    void linkIntoAnotherFileSystemStays();
    void linkThatLeadsNowhereGoodFails_data();
    void linkThatLeadsNowhereGoodFails();
    void plantedTemporaryFile_data();
    void plantedTemporaryFile();
};

namespace {

mode_t modeOf(const QString& fileName)
{
    struct stat status = {};
    return lstat(QFile::encodeName(fileName).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void setMode(const QString& fileName, mode_t mode)
{
    QCOMPARE(chmod(QFile::encodeName(fileName).constData(), mode), 0);
}

void link(const QString& name, const QString& target)
{
    QCOMPARE(symlink(QFile::encodeName(target).constData(), QFile::encodeName(name).constData()), 0);
}

QString leadsTo(const QString& link)
{
    char target[4096];
    const ssize_t length = readlink(QFile::encodeName(link).constData(), target, sizeof(target));
    return length < 0 ? QString() : QFile::decodeName(QByteArray(target, length));
}

} // namespace

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

void tst_PictureSave::staleTemporaryFileGoes_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isEncoded");
    QTest::addRow("saved") << "a.png" << true;
    QTest::addRow("a quote in the name") << "it's.png" << true;
    QTest::addRow("the target is a folder") << "." << true;
    QTest::addRow("write-protected") << "protected.png" << true;
    QTest::addRow("not encoded") << "a.png" << false;
}

/// Whatever becomes of the save.
void tst_PictureSave::staleTemporaryFileGoes()
{
    QFETCH(QString, target);
    QFETCH(bool, isEncoded);
    support::write(path("protected.png"), "old");
    QVERIFY(QFile::setPermissions(path("protected.png"), QFile::ReadOwner));
    const QString stale = picturesave::temporaryPath();
    support::write(stale, "half a picture of an earlier run");
    const bool isSaved = saved(path(target), isEncoded ? fixtures::red() : QImage());
    QCOMPARE(isSaved, isEncoded && target == "a.png");
    QVERIFY(!QFile::exists(stale));
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
        QTest::addRow("%s, a large photograph", format)
            << support::mosaic(QSize(1300, 1000)) << QByteArray(format);
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

void tst_PictureSave::pngIsNoLongerThanTheCodecs_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(352, 288);
    QTest::newRow("large") << QSize(1300, 1000);
}

void tst_PictureSave::pngIsNoLongerThanTheCodecs()
{
    QFETCH(QSize, size);
    const QString name = path("plasma.png");
    QVERIFY(support::convert({"-size", QString("%1x%2").arg(size.width()).arg(size.height()), "-seed", "1",
                              "plasma:red-blue", "-depth", "8", name}));
    const QImage photo = QImage(name).convertToFormat(QImage::Format_RGB32);
    QByteArray codecs;
    QBuffer buffer(&codecs);
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(photo.save(&buffer, "PNG"));
    QCOMPARE_LE(picturesave::encoded(photo, "PNG").size(), codecs.size());
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

void tst_PictureSave::nothingIsLeftOnAFullDisk()
{
    const Mount disk(path("disk"), "size=64k");
    if (!disk.isThere())
        QSKIP("mounting is not permitted here");
    QVERIFY(!picturesave::write(support::mosaic(QSize(300, 200)), path("disk/large.bmp"), "BMP"));
    QCOMPARE(filesIn(path("disk")), QStringList());
    QVERIFY(picturesave::write(support::mosaic(QSize(30, 20)), path("disk/small.bmp"), "BMP"));
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

void tst_PictureSave::modeStays_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<bool>("isAcross");
    for (const uint mode : {0600U, 0640U, 0755U, 0666U, 0604U, 0200U}) {
        QTest::addRow("%04o", mode) << mode << false;
        QTest::addRow("%04o across file systems", mode) << mode << true;
    }
}

void tst_PictureSave::modeStays()
{
    QFETCH(const uint, mode);
    QFETCH(const bool, isAcross);
    const Mount other(path("other"), "size=1m");
    if (isAcross && !other.isThere())
        QSKIP("mounting is not permitted here");
    const QString name = path(isAcross ? "other/a.png" : "photos/a.png");
    write(name, oldBytes);
    setMode(name, mode);
    QVERIFY(saved(name, red()));
    QCOMPARE(modeOf(name), mode_t(mode));
    QVERIFY(support::sameImage(support::converted(name), red()));
}

void tst_PictureSave::newFileFollowsTheUmask_data()
{
    QTest::addColumn<uint>("mask");
    for (const uint mask : {0U, 022U, 027U, 077U, 002U})
        QTest::addRow("%03o", mask) << mask;
}

void tst_PictureSave::newFileFollowsTheUmask()
{
    QFETCH(const uint, mask);
    const Mount other(path("other"), "size=1m");
    const mode_t before = umask(mask);
    const bool isSaved = saved(path("photos/a.png"), red()) && saved(path("other/a.png"), red());
    umask(before);
    QVERIFY(isSaved);
    QCOMPARE(modeOf(path("photos/a.png")), mode_t(0666 & ~mask));
    QCOMPARE(modeOf(path("other/a.png")), mode_t(0666 & ~mask));
}

void tst_PictureSave::linkStays_data()
{
    QTest::addColumn<QStringList>("links"); // in photos, each with what it leads to
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("exists");
    QTest::newRow("by its whole name") << QStringList{"a.png", "$/store/b.png"} << "store/b.png" << true;
    QTest::newRow("by its name from there")
        << QStringList{"a.png", "../store/b.png"} << "store/b.png" << true;
    QTest::newRow("in the same folder") << QStringList{"a.png", "b.png"} << "photos/b.png" << true;
    QTest::newRow("a row of links") << QStringList{"a.png",           "c.png", "c.png",
                                                   "../photos/d.png", "d.png", "$/store/b.png"}
                                    << "store/b.png" << true;
    QTest::newRow("through a linked folder")
        << QStringList{"a.png", "deep/c.png", "deep", "../store/inner", "../store/inner/c.png", "../b.png"}
        << "store/b.png" << true;
    QTest::newRow("to no file yet") << QStringList{"a.png", "../store/b.png"} << "store/b.png" << false;
    QTest::newRow("a row of links to no file yet")
        << QStringList{"a.png", "c.png", "c.png", "../store/b.png"} << "store/b.png" << false;
}

void tst_PictureSave::linkStays()
{
    QFETCH(const QStringList, links);
    QFETCH(const QString, target);
    QFETCH(const bool, exists);
    QVERIFY(QDir(path("")).mkpath("store/inner"));
    QMap<QString, QString> expected;
    for (int i = 0; i < links.size(); i += 2) {
        const QString to = QString(links[i + 1]).replace('$', QDir(path("")).absolutePath());
        link(path("photos/") + links[i], to);
        expected[path("photos/") + links[i]] = to;
    }
    if (exists) {
        write(path(target), oldBytes);
        setMode(path(target), 0640);
    }
    const qsizetype filesBefore = filesIn(path("photos")).size() + filesIn(path("store")).size();

    QVERIFY(saved(path("photos/a.png"), red()));

    for (auto each = expected.cbegin(); each != expected.cend(); ++each)
        QCOMPARE(leadsTo(each.key()), each.value());
    QVERIFY(!QFileInfo(path(target)).isSymLink());
    QVERIFY(support::sameImage(support::converted(path(target)), red()));
    if (exists) {
        QCOMPARE(modeOf(path(target)), mode_t(0640));
        QCOMPARE(filesIn(path("photos")).size() + filesIn(path("store")).size(), filesBefore);
    }
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_PictureSave::linkIntoAnotherFileSystemStays()
{
    const Mount other(path("other"), "size=1m");
    if (!other.isThere())
        QSKIP("mounting is not permitted here");
    QVERIFY(QDir(path("other")).mkdir("inner"));
    write(path("other/b.png"), oldBytes);
    setMode(path("other/b.png"), 0600);
    link(path("photos/deep"), path("other/inner"));
    link(path("other/inner/c.png"), "../b.png");
    link(path("photos/a.png"), "deep/c.png");
    QVERIFY(saved(path("photos/a.png"), red()));
    QCOMPARE(leadsTo(path("photos/a.png")), "deep/c.png");
    QCOMPARE(leadsTo(path("other/inner/c.png")), "../b.png");
    QVERIFY(support::sameImage(support::converted(path("other/b.png")), red()));
    QCOMPARE(modeOf(path("other/b.png")), mode_t(0600));
    QCOMPARE(filesIn(path("other")), QStringList("b.png"));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_PictureSave::linkThatLeadsNowhereGoodFails_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("itself") << "a.png";
    QTest::newRow("in a circle") << "circle";
    QTest::newRow("a folder") << "../store";
    QTest::newRow("a folder that is missing") << "../missing/b.png";
    QTest::newRow("a quoted name") << "../store/it's.png";
    QTest::newRow("a protected file") << "../store/protected.png";
}

void tst_PictureSave::linkThatLeadsNowhereGoodFails()
{
    QFETCH(const QString, target);
    QVERIFY(QDir(path("")).mkdir("store"));
    for (const char* name : {"store/it's.png", "store/protected.png"})
        write(path(name), oldBytes);
    setMode(path("store/protected.png"), 0444);
    link(path("photos/circle"), "a.png");
    link(path("photos/a.png"), target);
    QVERIFY(!saved(path("photos/a.png"), red()));
    QCOMPARE(leadsTo(path("photos/a.png")), target);
    QCOMPARE(contents(path("store/it's.png")), oldBytes);
    QCOMPARE(contents(path("store/protected.png")), oldBytes);
    QCOMPARE(QDir(path("photos"))
                 .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({"a.png", "circle"}));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

void tst_PictureSave::plantedTemporaryFile_data()
{
    QTest::addColumn<QString>("planted");
    for (const char* planted : {"file", "protected file", "second name of the victim", "link to the victim",
                                "link to nothing", "pipe"})
        QTest::newRow(planted) << QString(planted);
}

void tst_PictureSave::plantedTemporaryFile()
{
    QFETCH(const QString, planted);
    const QString temporary = picturesave::temporaryPath();
    write(path("victim"), oldBytes);
    if (planted.endsWith("file"))
        write(temporary, oldBytes);
    if (planted == "protected file")
        setMode(temporary, 0400);
    if (planted.startsWith("second"))
        QCOMPARE(
            ::link(QFile::encodeName(path("victim")).constData(), QFile::encodeName(temporary).constData()),
            0);
    if (planted.startsWith("link"))
        link(temporary, path(planted.endsWith("nothing") ? "nothing" : "victim"));
    if (planted == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(temporary).constData(), 0666), 0);

    QVERIFY(saved(path("photos/a.png"), red()));
    QCOMPARE(contents(path("victim")), oldBytes);
    QVERIFY(!QFileInfo::exists(path("nothing")));
    QVERIFY(!QFileInfo(path("photos/a.png")).isSymLink());
    QVERIFY(support::sameImage(support::converted(path("photos/a.png")), red()));
    QCOMPARE(filesIn(path("appwrite")), QStringList());
}

int main(int argc, char** argv)
{
    Mount::allow();
    return support::run<tst_PictureSave>(argc, argv);
}

#include "tst_PictureSave.moc"
