#include "support/Images.h"
#include "support/PadProcess.h"
#include "support/TestCase.h"
#include "support/XServer.h"

using support::PadProcess;
using support::XServer;

namespace {

constexpr QSize window(240, 320);
constexpr QPoint menuKey(60, 285);
constexpr QPoint undoKey(180, 285);
constexpr QColor frameColor(0, 130, 66); // one that the working depth leaves alone
constexpr int patience = 20'000;         // ms

QRect placeOf(const QColor& color, const QImage& screen)
{
    QRect place;
    for (int y = 0; y < screen.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
        for (int x = 0; x < screen.width(); ++x) {
            if (line[x] == color.rgb())
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

} // namespace

/// The program in a real window of a real X server, worked with a real pointer and keyboard.
class tst_RealWindow : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void showsThePicture();
    void startBringsInNoUnneededPictureFormat();
    void pasteWithoutAPictureKeepsTheWayBack();
    void strokeUndoneAndRedoneFromTheMenu();
    void softKeyUndoes();
    void shortcuts();
    void aMessageSwallowsNoStroke();
    void menuStaysInsideTheWindow();
    void everyPointOfAFloodIsDrawn();
    void theClipboardBothWays();
    void everyPressIsUnderThePointer_data();
    void everyPressIsUnderThePointer();
    void scaleFollowsTheScreen_data();
    void scaleFollowsTheScreen();
    void aScaleThatDoesNotFitIsToldAndLowered();
    void sizeAndScaleAreRemembered();
    void aLargerWindowIsUsed();
    void scriptedRunsRememberNothing_data();
    void scriptedRunsRememberNothing();
    void quits();

private:
    /// Starts the program on a white picture and waits until it is shown.
    [[nodiscard]] bool start(const QStringList& more = {});
    [[nodiscard]] QPoint onPicture(QPoint at) const { return m_picture.topLeft() + at; }
    [[nodiscard]] bool isRed(QPoint at) const
    {
        return m_server->screenshot().pixelColor(onPicture(at)) == QColor(Qt::red);
    }
    [[nodiscard]] bool isWhite(QPoint at) const
    {
        return m_server->screenshot().pixelColor(onPicture(at)) == QColor(Qt::white);
    }
    void strokeTo(QPoint from, QPoint to);
    /// A command of the menu's page for editing, by its letter.
    void choose(const char* mnemonic);
    void writeSettings(const QByteArray& text) const;

    std::unique_ptr<XServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PadProcess> m_pad;
    QRect m_window;
    QRect m_picture;
};

void tst_RealWindow::init()
{
    support::TestCase::init();
    m_pad.reset();
    m_server = std::make_unique<XServer>();
    QVERIFY(m_server->isReady());
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_RealWindow::writeSettings(const QByteArray& text) const
{
    QVERIFY(QDir(m_folder->path()).mkpath("XDG_CONFIG_HOME/korva"));
    QFile file(m_folder->filePath("XDG_CONFIG_HOME/korva/pad.conf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

bool tst_RealWindow::start(const QStringList& more)
{
    // The frame tells where the picture is on the screen.
    QImage picture = support::sheet(QSize(160, 120), frameColor);
    picture = support::filled(picture, QRect(1, 1, 158, 118), Qt::white);
    picture.save(m_folder->filePath("frame.png"));
    m_pad = std::make_unique<PadProcess>(QStringList{m_folder->filePath("frame.png")} + more,
                                         m_server->display());
    m_window = m_server->waitForWindow(window);
    const auto isShown = [this] {
        m_picture = placeOf(frameColor, m_server->screenshot());
        return m_picture.size() == QSize(160, 120);
    };
    return QTest::qWaitFor(isShown, patience);
}

void tst_RealWindow::strokeTo(QPoint from, QPoint to)
{
    m_server->moveTo(onPicture(from));
    m_server->press();
    m_server->moveTo(onPicture(to));
    m_server->release();
}

void tst_RealWindow::choose(const char* mnemonic)
{
    const QImage before = m_server->screenshot();
    m_server->click(m_window.topLeft() + menuKey);
    QTRY_VERIFY(m_server->screenshot().copy(m_picture) != before.copy(m_picture)); // the menu lies over it
    m_server->key("e");
    m_server->key(mnemonic);
}

void tst_RealWindow::showsThePicture()
{
    QVERIFY(start());
    const QImage shown = m_server->screenshot().copy(m_picture).convertToFormat(QImage::Format_RGB32);
    const QImage file = QImage(m_folder->filePath("frame.png")).convertToFormat(QImage::Format_RGB32);
    QVERIFY(support::sameImage(shown, file));
}

void tst_RealWindow::startBringsInNoUnneededPictureFormat()
{
    QVERIFY(start());
    QTest::qWait(200); // what is put off until after the start would come in now
    QFile maps(QStringLiteral("/proc/%1/maps").arg(m_pad->processId()));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QByteArray libraries = maps.readAll();
    QVERIFY(libraries.contains("libkorva.so"));
    for (const char* plugin : {"libqjpeg", "libqwbmp", "libqwebp", "libqtiff", "libqsvg"})
        QVERIFY2(!libraries.contains(plugin), plugin);
}

void tst_RealWindow::pasteWithoutAPictureKeepsTheWayBack()
{
    QVERIFY(start());
    strokeTo({20, 20}, {60, 20});
    QTRY_VERIFY(isRed({40, 20}));
    m_server->key("v", {"Control_L"});
    m_server->key("z", {"Control_L"});
    QTRY_VERIFY(isWhite({40, 20}));
}

void tst_RealWindow::strokeUndoneAndRedoneFromTheMenu()
{
    QVERIFY(start());
    strokeTo({20, 30}, {80, 30});
    QTRY_VERIFY(isRed({20, 30}) && isRed({50, 30}) && isRed({80, 30}));
    QVERIFY(isWhite({81, 30}));
    choose("u");
    QTRY_VERIFY(isWhite({20, 30}) && isWhite({50, 30}) && isWhite({80, 30}));
    choose("r");
    QTRY_VERIFY(isRed({20, 30}) && isRed({50, 30}) && isRed({80, 30}));
}

void tst_RealWindow::softKeyUndoes()
{
    QVERIFY(start());
    strokeTo({20, 30}, {80, 30});
    QTRY_VERIFY(isRed({80, 30}));
    m_server->click(m_window.topLeft() + undoKey);
    QTRY_VERIFY(isWhite({50, 30}));
    m_server->click(m_window.topLeft() + undoKey); // which is the way forward now
    QTRY_VERIFY(isRed({50, 30}));
}

void tst_RealWindow::shortcuts()
{
    QVERIFY(start());
    strokeTo({20, 30}, {80, 30});
    QTRY_VERIFY(isRed({80, 30}));
    m_server->key("z", {"Control_L"});
    QTRY_VERIFY(isWhite({50, 30}));
    m_server->key("y", {"Control_L"});
    QTRY_VERIFY(isRed({50, 30}));
    m_server->key("z", {"Control_L"});
    QTRY_VERIFY(isWhite({50, 30}));
    m_server->key("z", {"Control_L", "Shift_L"});
    QTRY_VERIFY(isRed({50, 30}));
    m_server->key("s", {"Control_L"});
    QTRY_COMPARE(QImage(m_folder->filePath("frame.png")).pixelColor(50, 30), QColor(Qt::red));
}

void tst_RealWindow::aMessageSwallowsNoStroke()
{
    QVERIFY(start());
    strokeTo({20, 30}, {80, 30});
    QTRY_VERIFY(isRed({80, 30}));
    // Only a clock tells a stroke that is drawn at once from one that waits until the box has gone by
    // itself, after a second. A busy machine may be late for it, but not each time.
    bool isAtOnce = false;
    for (int y = 10; y <= 22 && !isAtOnce; y += 4) {
        m_server->key("s", {"Control_L"}); // a box says that it went well
        QTRY_VERIFY(!isWhite({80, 100}));
        strokeTo({20, y}, {80, y}); // beside the box
        QElapsedTimer timer;
        timer.start();
        QTRY_VERIFY(isRed({80, y}));
        isAtOnce = timer.elapsed() < 900;
        QVERIFY(isRed({25, y})); // from its press on
        QTRY_VERIFY(isWhite({80, 100}));
        QCOMPARE(QImage(m_folder->filePath("frame.png")).pixelColor(80, y), QColor(Qt::white));
    }
    QVERIFY(isAtOnce);
}

void tst_RealWindow::menuStaysInsideTheWindow()
{
    QVERIFY(start());
    const QImage before = m_server->screenshot();
    m_server->click(m_window.topLeft() + menuKey);
    QTRY_VERIFY(m_server->screenshot().copy(m_picture) != before.copy(m_picture));
    m_server->key("z");
    QTest::qWait(300);
    const QImage after = m_server->screenshot();
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (!m_window.contains(x, y))
                QCOMPARE(after.pixel(x, y), before.pixel(x, y));
        }
    }
}

void tst_RealWindow::everyPointOfAFloodIsDrawn()
{
    QVERIFY(start());
    m_server->moveTo(onPicture({5, 10}));
    m_server->press();
    // A saw: where a point is left out, its teeth are cut.
    for (int x = 5; x < 150; ++x)
        m_server->moveTo(onPicture({x, x % 2 ? 10 : 60}));
    m_server->release();
    QTRY_VERIFY_WITH_TIMEOUT(isRed({149, 10}), patience);
    const QImage screen = m_server->screenshot();
    for (int x = 5; x < 150; ++x)
        QCOMPARE(screen.pixelColor(onPicture({x, x % 2 ? 10 : 60})), QColor(Qt::red));
}

void tst_RealWindow::theClipboardBothWays()
{
    const QImage sent = support::mosaic(QSize(60, 40));
    sent.save(m_folder->filePath("sent.png"));
    QProcess in;
    in.setProcessEnvironment([this] {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", m_server->display());
        return environment;
    }());
    in.start("xclip", {"-quiet", "-selection", "clipboard", "-t", "image/png", "-i",
                       m_folder->filePath("sent.png")});
    QVERIFY(in.waitForStarted());

    QVERIFY(start());
    m_server->moveTo(onPicture({20, 100}));
    m_server->key("v", {"Control_L"});
    m_server->moveTo(onPicture({20, 110}));
    m_server->click(onPicture({20, 20})); // merges the piece where it lies: in the middle of the canvas
    const QSize margin = (m_picture.size() - sent.size()) / 2;
    const QRect place(onPicture({margin.width(), margin.height()}), sent.size());
    QTRY_VERIFY(m_server->screenshot().copy(place).convertToFormat(QImage::Format_RGB32) ==
                sent.convertToFormat(QImage::Format_RGB32));

    m_server->key("v", {"Control_L"});
    QTRY_VERIFY(m_server->screenshot().copy(place).convertToFormat(QImage::Format_RGB32) !=
                sent.convertToFormat(QImage::Format_RGB32)); // the frame and its handles
    m_server->click(place.center(), 3);
    QTest::qWait(200);
    m_server->key("Down");
    m_server->key("Return");               // Copy
    QVERIFY(in.waitForFinished(patience)); // another program owns the clipboard now

    QProcess out;
    out.setProcessEnvironment(in.processEnvironment());
    out.start("xclip", {"-selection", "clipboard", "-t", "image/png", "-o"});
    QVERIFY(out.waitForFinished(patience));
    QVERIFY(support::sameImage(QImage::fromData(out.readAllStandardOutput(), "PNG"), sent));
}

void tst_RealWindow::everyPressIsUnderThePointer_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<int>("presses");
    for (const int scale : {2, 3}) {
        for (const char* tool : {"pencil", "eraser", "line", "rectangle"})
            QTest::addRow("%s at %d", tool, scale) << scale << QByteArray(tool) << 500;
        // Each is cut out, which takes its time.
        QTest::addRow("select at %d", scale) << scale << QByteArray("select") << 60;
    }
}

void tst_RealWindow::everyPressIsUnderThePointer()
{
    QFETCH(const int, scale);
    QFETCH(const QByteArray, tool);
    QFETCH(const int, presses);
    constexpr QSize size(200, 160);
    m_server = std::make_unique<XServer>(QSize(800, 1000));
    support::sheet(size, frameColor).save(m_folder->filePath("sheet.png"));
    m_pad = std::make_unique<PadProcess>(
        QStringList{m_folder->filePath("sheet.png"), "--scale", QString::number(scale)},
        m_server->display());
    const auto isShown = [&] {
        m_picture = placeOf(frameColor, m_server->screenshot());
        return m_picture.size() == size * scale;
    };
    QVERIFY(QTest::qWaitFor(isShown, patience));
    const QMap<QByteArray, const char*> keys{
        {"pencil", "p"}, {"eraser", "e"}, {"line", "l"}, {"rectangle", "r"}, {"select", "s"}};
    m_server->moveTo(m_picture.center());
    m_server->key(keys[tool]);
    if (tool == "rectangle")
        m_server->key("2"); // filled

    QImage expected = support::sheet(size, frameColor);
    QRandomGenerator random(7);
    const auto anywhere = [&](QSize room) {
        return QPoint(random.bounded(room.width() * scale), random.bounded(room.height() * scale));
    };
    for (int i = 0; i < presses; ++i) {
        const bool isDrag = tool != "pencil" && tool != "eraser";
        const QPoint from = anywhere(isDrag ? size - QSize(30, 30) : size);
        // Far enough to be no tap; a line goes straight.
        QPoint to = isDrag ? from + QPoint(3 * scale, 3 * scale) + anywhere(QSize(20, 20)) : from;
        if (tool == "line")
            to.setY(from.y());
        const QPoint first(from.x() / scale, from.y() / scale);
        const QPoint last(to.x() / scale, to.y() / scale);
        const bool isOpenEnded = tool == "rectangle" || tool == "select"; // the last pixel is outside
        const QRect area(first, isOpenEnded ? last - QPoint(1, 1) : last);
        const bool isWhite = tool == "eraser" || tool == "select";
        expected = support::filled(expected, area, isWhite ? Qt::white : Qt::red);
        m_server->moveTo(m_picture.topLeft() + from);
        m_server->press();
        m_server->moveTo(m_picture.topLeft() + to);
        m_server->release();
        if (tool == "select")
            m_server->key("x", {"Control_L"});
    }
    const QImage shown = expected.scaled(m_picture.size()).convertToFormat(QImage::Format_RGB32);
    const auto screen = [&] {
        return m_server->screenshot().copy(m_picture).convertToFormat(QImage::Format_RGB32);
    };
    m_server->moveTo({0, 0});
    const bool isAsExpected = QTest::qWaitFor([&] { return screen() == shown; }, patience);
    QVERIFY(isAsExpected || support::sameImage(screen(), shown));
}

void tst_RealWindow::scaleFollowsTheScreen_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("low screen") << QSize(800, 899) << QStringList() << QSize(240, 320);
    QTest::newRow("tall screen") << QSize(800, 900) << QStringList() << QSize(480, 640);
    QTest::newRow("asked for 1") << QSize(800, 900) << QStringList{"--scale", "1"} << QSize(240, 320);
    QTest::newRow("asked for 3") << QSize(800, 1000) << QStringList{"--scale", "3"} << QSize(720, 960);
}

void tst_RealWindow::scaleFollowsTheScreen()
{
    QFETCH(QSize, screen);
    QFETCH(QStringList, option);
    QFETCH(QSize, expected);
    m_server = std::make_unique<XServer>(screen);
    m_pad = std::make_unique<PadProcess>(option, m_server->display());
    QCOMPARE(m_server->waitForWindow(expected).size(), expected);
}

void tst_RealWindow::aScaleThatDoesNotFitIsToldAndLowered()
{
    m_server = std::make_unique<XServer>(QSize(800, 700));
    m_pad = std::make_unique<PadProcess>(QStringList{"--scale", "5"}, m_server->display());
    const QRect place = m_server->waitForWindow(window * 2);
    QVERIFY(!place.isEmpty());
    m_server->moveTo(place.center());
    QTest::qWait(300);
    m_server->key("q", {"Control_L"});
    QVERIFY(m_pad->waitForEnd());
    QCOMPARE(m_pad->errors(), "korva-pad: --scale 5 does not fit a screen of 800 x 700; taking 2\n");
}

void tst_RealWindow::sizeAndScaleAreRemembered()
{
    m_server = std::make_unique<XServer>(QSize(1000, 1000));
    const auto starts = [this](const QStringList& arguments, QSize size) {
        m_pad = std::make_unique<PadProcess>(arguments, m_server->display(), QString(), m_folder->path());
        const QRect place = m_server->waitForWindow(size);
        m_server->moveTo(place.center());
        QTest::qWait(300);
        m_server->key("q", {"Control_L"});
        return !place.isEmpty() && m_pad->waitForEnd() && m_pad->errors().isEmpty();
    };
    QVERIFY(starts({}, window * 2));
    QVERIFY(starts({"--scale", "3"}, window * 3));
    QVERIFY(starts({}, window * 3));
    writeSettings("[window-1000x1000]\nscale=2\nsize=@Size(400 450)\n");
    QVERIFY(starts({}, QSize(800, 900)));
    QVERIFY(starts({}, QSize(800, 900)));
    QVERIFY(starts({"--scale", "1"}, QSize(400, 450)));
    writeSettings("[window-1000x1000]\nscale=7\nsize=@Size(9000 1)\n"); // of nobody's hand
    QVERIFY(starts({}, QSize(999, 960)));
}

void tst_RealWindow::aLargerWindowIsUsed()
{
    writeSettings("[window-800x600]\nsize=@Size(500 420)\n");
    m_pad = std::make_unique<PadProcess>(QStringList(), m_server->display(), QString(), m_folder->path());
    const QRect place = m_server->waitForWindow(QSize(500, 420));
    QVERIFY(!place.isEmpty());
    QTest::qWait(500);
    const QImage before = m_server->screenshot();
    m_server->click(place.topLeft() + QPoint(120, 385)); // the left key, which keeps to the lower edge
    QTRY_VERIFY(m_server->screenshot() != before);
    const QPoint inMenu = place.topLeft() + QPoint(60, 330);
    QTRY_VERIFY(m_server->screenshot().pixel(inMenu) != before.pixel(inMenu));
}

void tst_RealWindow::scriptedRunsRememberNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("save") << QStringList{"--save", "a.png"};
    QTest::newRow("screenshot") << QStringList{"--screenshot", "a.png"};
    QTest::newRow("replay") << QStringList{"--replay", "a.rec", "--save", "a.png"};
}

void tst_RealWindow::scriptedRunsRememberNothing()
{
    QFETCH(QStringList, arguments);
    QFile recording(m_folder->filePath("a.rec"));
    QVERIFY(recording.open(QIODevice::WriteOnly));
    recording.close();
    const auto end = [&](const QStringList& more) {
        PadProcess pad(arguments + more, m_server->display(), m_folder->path(), m_folder->path());
        return pad.waitForEnd() && pad.errors().isEmpty() && pad.exitCode() == 0;
    };
    QVERIFY(end({"--scale", "2"}));
    QVERIFY(!QFile::exists(m_folder->filePath("XDG_CONFIG_HOME")));

    const QByteArray kept = "[window-800x600]\nscale=1\nsize=@Size(500 420)\n";
    writeSettings(kept);
    const QString shot = m_folder->filePath("shot.png");
    QVERIFY(end(arguments.contains("--screenshot") ? QStringList() : QStringList{"--screenshot", shot}));
    QCOMPARE(QImage(arguments.contains("--screenshot") ? m_folder->filePath("a.png") : shot).size(),
             window);
    QFile settings(m_folder->filePath("XDG_CONFIG_HOME/korva/pad.conf"));
    QVERIFY(settings.open(QIODevice::ReadOnly));
    QCOMPARE(settings.readAll(), kept);
}

void tst_RealWindow::quits()
{
    QVERIFY(start());
    m_server->moveTo(onPicture({80, 100}));
    m_server->key("q", {"Control_L"});
    QVERIFY(m_pad->waitForEnd());
    QCOMPARE(m_pad->exitCode(), 0);
    QCOMPARE(m_pad->errors(), "");
}

int main(int argc, char** argv)
{
    return support::run<tst_RealWindow>(argc, argv);
}

#include "tst_RealWindow.moc"
