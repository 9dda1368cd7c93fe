#include "support/Images.h"
#include "support/PadProcess.h"
#include "support/TestCase.h"

using support::PadProcess;
using support::sameImage;
using support::sheet;

namespace {

constexpr QSize newCanvas(200, 170);

void writeFile(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray readFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

} // namespace

/// The program itself, as a person or a script starts it: exit codes, standard error, files.
class tst_CommandLine : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void help_data();
    void help();
    void version_data();
    void version();
    void failsWithOneLine_data();
    void failsWithOneLine();
    void savesInTheFormatOfTheName_data();
    void savesInTheFormatOfTheName();
    void replayThenSave();
    void valueBehindAnEqualsSign();
    void pictureIsWorkedOnAsAsked();
    void aPictureNamedLikeAnOption();
    void nothingIsWrittenAfterABrokenRecording();
    void aFailedSaveLeavesTheOldFile();
    void screenshotAtItsScale_data();
    void screenshotAtItsScale();
    void replayAloneEndsOffScreen();
    void withoutADisplay();
    void aPlatformThatCannotWork_data();
    void aPlatformThatCannotWork();
    void theMinimalPlatformHasLetters();
    void waitsAsLongAsTold();
    void aRecordingBeginsWithThePicture();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_CommandLine::init()
{
    support::TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    sheet(QSize(20, 10), Qt::blue).save(path("blue.png"));
    writeFile(path("dot.rec"), "press 10 10\nrelease 10 10\n");
    writeFile(path("broken.rec"), "press 10 10\nrelease 10\n");
    writeFile(path("text.png"), "this is no picture");
}

void tst_CommandLine::help_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("--help") << "--help";
    QTest::newRow("-h") << "-h";
}

void tst_CommandLine::help()
{
    QFETCH(QString, option);
    PadProcess pad({option});
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.exitCode(), 0);
    QCOMPARE(pad.errors(), "");
    const QString text = pad.output();
    for (const char* name : {"--scale", "--replay", "--record", "--save", "--screenshot", "--no-recovery",
                             "--undo-steps", "--working-size", "--working-depth", "--help", "--version"})
        QVERIFY2(text.contains(name), name);
}

void tst_CommandLine::version_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("--version") << "--version";
    QTest::newRow("-v") << "-v";
}

void tst_CommandLine::version()
{
    QFETCH(QString, option);
    PadProcess pad({option});
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.exitCode(), 0);
    QCOMPARE(pad.errors(), "");
    QVERIFY(QRegularExpression("^korva-pad \\d+\\.\\d+\\.\\d+\n$").match(pad.output()).hasMatch());
}

void tst_CommandLine::failsWithOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const QStringList& arguments, const char* line) {
        QTest::newRow(name) << arguments << QString(line);
    };
    row("unknown option", {"--zoom", "2"}, "unknown option '--zoom' (--help lists them)");
    row("unknown letter", {"-x"}, "unknown option '-x' (--help lists them)");
    row("value missing", {"--save"}, "--save needs a value: --save FILE");
    row("value empty", {"--replay="}, "--replay needs a value: --replay FILE");
    row("value of a flag", {"--help=yes"}, "--help takes no value");
    row("option twice", {"--save", "a.png", "--save", "b.png"}, "--save is given twice");
    row("two pictures", {"blue.png", "red.png"}, "one picture at a time: 'blue.png' and 'red.png'");
    row("empty name", {""}, "the picture's name is empty");
    row("scale of zero", {"--scale", "0"}, "--scale takes a number from 1 to 8, not '0'");
    row("scale in words", {"--scale", "two"}, "--scale takes a number from 1 to 8, not 'two'");
    row("no steps", {"--undo-steps", "0"}, "--undo-steps takes a number from 1 to 1000, not '0'");
    row("working size of one side", {"--working-size", "640"},
        "--working-size takes WxH, up to 4096x4096, not '640'");
    row("working size of nothing", {"--working-size", "0x480"},
        "--working-size takes WxH, up to 4096x4096, not '0x480'");
    row("working size too large", {"--working-size", "4097x10"},
        "--working-size takes WxH, up to 4096x4096, not '4097x10'");
    row("odd depth", {"--working-depth", "8"}, "--working-depth takes 16 or 24, not '8'");
    row("missing picture", {"none.png", "--save", "a.png"},
        "cannot open 'none.png': No such file or directory");
    row("not a picture", {"text.png", "--save", "a.png"}, "cannot open 'text.png': Failed to open file");
    row("missing recording", {"--replay", "none.rec"}, "cannot read 'none.rec': No such file or directory");
    row("broken recording", {"--replay", "broken.rec"}, "broken.rec:2: 'release' needs Y");
    row("unwritable drawing", {"--save", "none/a.png"},
        "cannot write 'none/a.png': No such file or directory");
    row("a GIF to write", {"--save", "a.gif"}, "cannot write 'a.gif': GIF pictures are only read");
    row("unwritable screenshot", {"--screenshot", "none/a.png"},
        "cannot write 'none/a.png': No such file or directory");
    row("unwritable recording", {"--record", "none/a.rec"},
        "cannot write 'none/a.rec': No such file or directory");
}

void tst_CommandLine::failsWithOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, line);
    PadProcess pad(arguments, {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "korva-pad: " + line + "\n");
    QCOMPARE(pad.output(), "");
    QCOMPARE(pad.exitCode(), 1);
    QVERIFY(!QFile::exists(path("a.png")));
}

void tst_CommandLine::savesInTheFormatOfTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("png") << "a.png" << QByteArray("png");
    QTest::newRow("capitals") << "a.PNG" << QByteArray("png");
    QTest::newRow("bmp") << "a.bmp" << QByteArray("bmp");
    QTest::newRow("jpg") << "a.jpg" << QByteArray("jpeg");
    QTest::newRow("jpe") << "a.jpe" << QByteArray("jpeg");
    QTest::newRow("jpeg") << "a.jpeg" << QByteArray("jpeg");
    QTest::newRow("wbmp is not written") << "a.wbmp" << QByteArray("png");
    QTest::newRow("no extension") << "drawing" << QByteArray("png");
    QTest::newRow("quotes, blanks and a dollar") << "a 'b' \"c\" $d.png" << QByteArray("png");
}

void tst_CommandLine::savesInTheFormatOfTheName()
{
    QFETCH(QString, name);
    PadProcess pad({"blue.png", "--save", name}, {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QCOMPARE(pad.exitCode(), 0);
    QTEST(QImageReader::imageFormat(path(name)), "format");
    QCOMPARE(QImage(path(name)).size(), QSize(20, 10));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 5); // nothing temporary stays
}

void tst_CommandLine::replayThenSave()
{
    PadProcess pad({"blue.png", "--replay", "dot.rec", "--save", "out.png"}, {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QCOMPARE(pad.exitCode(), 0);
    QVERIFY(sameImage(QImage(path("out.png")),
                      support::filled(sheet(QSize(20, 10), Qt::blue), QRect(10, 10, 1, 1), Qt::red)));
}

void tst_CommandLine::valueBehindAnEqualsSign()
{
    PadProcess pad({"--save=" + path("a=b.png")});
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QVERIFY(sameImage(QImage(path("a=b.png")), sheet(newCanvas)));
}

void tst_CommandLine::pictureIsWorkedOnAsAsked()
{
    const QColor deep(1, 2, 3); // not of 16 bits
    sheet(QSize(800, 600), deep).save(path("photo.png"));
    PadProcess pad({"--working-size", "640x480", "--working-depth", "24", "photo.png", "--save", "out.png"},
                   {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QVERIFY(sameImage(QImage(path("out.png")), sheet(QSize(640, 480), deep)));
}

void tst_CommandLine::aPictureNamedLikeAnOption()
{
    QVERIFY(QFile::copy(path("blue.png"), path("--help")));
    PadProcess pad({"--save", "out.png", "--", "--help"}, {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QVERIFY(sameImage(QImage(path("out.png")), sheet(QSize(20, 10), Qt::blue)));
}

void tst_CommandLine::nothingIsWrittenAfterABrokenRecording()
{
    writeFile(path("old.png"), "old");
    writeFile(path("late.rec"), "save old.png\nscribble\n");
    PadProcess pad({"--replay", "late.rec", "--screenshot", "shot.png", "--record", "new.rec"}, {},
                   m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "korva-pad: late.rec:2: unknown command 'scribble'\n");
    QCOMPARE(pad.exitCode(), 1);
    QCOMPARE(readFile(path("old.png")), "old");
    QVERIFY(!QFile::exists(path("shot.png")));
    QVERIFY(!QFile::exists(path("new.rec")));
}

void tst_CommandLine::aFailedSaveLeavesTheOldFile()
{
    writeFile(path("a.gif"), "old");
    PadProcess pad({"--save", path("a.gif")});
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.exitCode(), 1);
    QCOMPARE(readFile(path("a.gif")), "old");
}

void tst_CommandLine::screenshotAtItsScale_data()
{
    QTest::addColumn<QStringList>("scale");
    QTest::addColumn<QSize>("size");
    QTest::newRow("small screen") << QStringList() << QSize(240, 320);
    QTest::newRow("1") << QStringList{"--scale", "1"} << QSize(240, 320);
    QTest::newRow("2") << QStringList{"--scale", "2"} << QSize(480, 640);
    QTest::newRow("3") << QStringList{"--scale", "3"} << QSize(720, 960);
}

void tst_CommandLine::screenshotAtItsScale()
{
    QFETCH(QStringList, scale);
    QFETCH(QSize, size);
    PadProcess pad(scale + QStringList{"blue.png", "--screenshot", "shot.jpg"}, {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QCOMPARE(pad.exitCode(), 0);
    QCOMPARE(QImageReader::imageFormat(path("shot.jpg")), "png"); // whatever the name
    const QImage shot(path("shot.jpg"));
    QCOMPARE(shot.size(), size);
    const int times = size.width() / 240;
    int blue = 0;
    for (int y = 0; y < shot.height(); ++y) {
        for (int x = 0; x < shot.width(); ++x)
            blue += shot.pixelColor(x, y) == QColor(Qt::blue) ? 1 : 0;
    }
    QCOMPARE(blue, 20 * 10 * times * times);
}

void tst_CommandLine::replayAloneEndsOffScreen()
{
    writeFile(path("saves.rec"), "press 3 4\nrelease 3 4\nsave \"out 1.png\"\n");
    PadProcess pad({"--replay", "saves.rec"}, {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QCOMPARE(pad.exitCode(), 0);
    QVERIFY(sameImage(QImage(path("out 1.png")),
                      support::filled(sheet(newCanvas), QRect(3, 4, 1, 1), Qt::red)));
}

void tst_CommandLine::withoutADisplay()
{
    const auto unset = [](const char* name) {
        const QByteArray old = qgetenv(name);
        qunsetenv(name);
        return qScopeGuard([name, old] { qputenv(name, old); });
    };
    const auto platform = unset("QT_QPA_PLATFORM");
    const auto display = unset("DISPLAY");
    const auto wayland = unset("WAYLAND_DISPLAY");

    PadProcess nowhere({});
    QVERIFY(nowhere.waitForEnd());
    QCOMPARE(nowhere.errors(), "korva-pad: there is no display\n");
    QCOMPARE(nowhere.exitCode(), 1);

    PadProcess alone({"--save", path("out.png")});
    QVERIFY(alone.waitForEnd());
    QCOMPARE(alone.errors(), "");
    QCOMPARE(alone.exitCode(), 0);
    QVERIFY(QFile::exists(path("out.png")));
}

void tst_CommandLine::aPlatformThatCannotWork_data()
{
    QTest::addColumn<QByteArray>("platform");
    QTest::newRow("unknown") << QByteArray("nonsense");
    QTest::newRow("no framebuffer") << QByteArray("linuxfb:fb=/none");
}

void tst_CommandLine::aPlatformThatCannotWork()
{
    QFETCH(QByteArray, platform);
    const QByteArray old = qgetenv("QT_QPA_PLATFORM");
    const QByteArray sanitizer = qgetenv("ASAN_OPTIONS");
    const QByteArray fatal = qgetenv("QT_FATAL_CRITICALS");
    const auto restore = qScopeGuard([old, sanitizer, fatal] {
        qputenv("QT_FATAL_CRITICALS", fatal);
        qputenv("QT_QPA_PLATFORM", old);
        qputenv("ASAN_OPTIONS", sanitizer);
    });
    qputenv("QT_QPA_PLATFORM", platform);
    qputenv("ASAN_OPTIONS", "detect_leaks=0"); // a plugin that fails leaks what it began with
    qunsetenv("QT_FATAL_CRITICALS");           // and it tells so
    PadProcess pad({});
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.exitCode(), 1);
    const QString line = pad.errors();
    QVERIFY2(line.startsWith("korva-pad: cannot show anything on '" + platform + "': "), qPrintable(line));
    QCOMPARE(line.count('\n'), 1);
    QVERIFY(line.endsWith('\n'));
}

void tst_CommandLine::theMinimalPlatformHasLetters()
{
    const QByteArray old = qgetenv("QT_QPA_PLATFORM");
    const auto restore = qScopeGuard([old] { qputenv("QT_QPA_PLATFORM", old); });
    for (const char* platform : {"minimal", "offscreen"}) {
        qputenv("QT_QPA_PLATFORM", platform);
        PadProcess pad({"--screenshot", path(platform)});
        QVERIFY(pad.waitForEnd());
        QCOMPARE(pad.errors(), "");
    }
    QVERIFY(sameImage(QImage(path("minimal")), QImage(path("offscreen"))));
}

void tst_CommandLine::waitsAsLongAsTold()
{
    writeFile(path("wait.rec"), "wait 400\n");
    QElapsedTimer timer;
    timer.start();
    PadProcess pad({"--replay", path("wait.rec")});
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.exitCode(), 0);
    QCOMPARE_GE(timer.elapsed(), 400);
}

void tst_CommandLine::aRecordingBeginsWithThePicture()
{
    PadProcess pad({"blue.png", "--record", "new.rec", "--save", "out.png"}, {}, m_folder->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "");
    QCOMPARE(readFile(path("new.rec")), "open \"" + path("blue.png").toUtf8() + "\"\n");
}

int main(int argc, char** argv)
{
    return support::run<tst_CommandLine>(argc, argv);
}

#include "tst_CommandLine.moc"
