#include "support/Images.h"
#include "support/PadProcess.h"
#include "support/TestCase.h"
#include "support/WaylandServer.h"

using support::PadProcess;
using support::WaylandServer;

namespace {

constexpr QSize window(240, 320);
constexpr QPoint menuKey(60, 285);
constexpr QPoint toolButton(18, 14);
constexpr QPoint zoomBox(130, 14);
constexpr QPoint colorButton(215, 14);
constexpr QPoint orange(146, 108);     // in the pop-up of that button
constexpr QPoint moreColors(175, 212); // while only one color was used
constexpr QPoint onCanvas(60, 80);
constexpr int patience = 20'000; // ms

QString demo()
{
    return QString(KORVA_SOURCE_DIR) + "/host/demo.rec";
}

} // namespace

/// The program on a real Wayland compositor, worked with a pointer and a keyboard.
class tst_Wayland : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void playsTheDemo();
    void aStrokeIsDrawn();
    void everyPixelIsShownAsOftenAsAsked_data();
    void everyPixelIsShownAsOftenAsAsked();
    void whatOpensStaysInsideTheWindow_data();
    void whatOpensStaysInsideTheWindow();
    void aDialogHasAllInput();
    void fullScreenAndBack();
    void theWindowComesBackAsItWas();
    void aDeadDisplayDoesNotStopALivingOne_data();
    void aDeadDisplayDoesNotStopALivingOne();
    void withoutALivingDisplayItSaysSo();

private:
    /// Starts the program and waits until its window is on the screen.
    [[nodiscard]] bool start(const QStringList& arguments = {}, QSize size = window);
    [[nodiscard]] QColor colorAt(QPoint inWindow) const
    {
        return m_server->screenshot().pixelColor(m_place.topLeft() + inWindow);
    }
    [[nodiscard]] QImage shot() const { return m_server->screenshot().copy(m_place); }
    // The compositor paints the pointer into what one sees: it goes out of the way.
    void click(QPoint inWindow) { drag(inWindow, inWindow); }
    void openPicker(const QImage& before);
    void drag(QPoint from, QPoint to)
    {
        m_server->moveTo(m_place.topLeft() + from);
        m_server->press();
        m_server->moveTo(m_place.topLeft() + to);
        m_server->release();
        m_server->moveTo(QPoint());
    }

    std::unique_ptr<WaylandServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PadProcess> m_pad;
    QRect m_place;
};

void tst_Wayland::init()
{
    TestCase::init();
    m_pad.reset();
    m_server = std::make_unique<WaylandServer>();
    QVERIFY(m_server->isReady());
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("ASAN_OPTIONS", "detect_leaks=0"); // no name is known of the plugin that leaks
    qputenv("QT_QPA_PLATFORM", "");
    qputenv("DISPLAY", "");
    qputenv("WAYLAND_DISPLAY", m_server->display().toUtf8());
}

bool tst_Wayland::start(const QStringList& arguments, QSize size)
{
    m_pad = std::make_unique<PadProcess>(arguments, QString(), QString(), m_folder->path());
    m_server->moveTo(QPoint());
    m_place = m_server->waitForWindow(size);
    // Painted, too: the pixel is the page's.
    const int scale = size.width() / window.width();
    return !m_place.isEmpty() &&
           QTest::qWaitFor([&] { return colorAt(onCanvas * scale) == QColor(Qt::white); }, patience);
}

void tst_Wayland::playsTheDemo()
{
    PadProcess off({"--replay", demo(), "--save", m_folder->filePath("off.png")});
    QVERIFY(off.waitForEnd());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    PadProcess on({"--replay", demo(), "--save", m_folder->filePath("on.png")});
    QVERIFY(on.waitForEnd());
    QCOMPARE(off.errors() + on.errors(), "");
    QCOMPARE(off.exitCode() + on.exitCode(), 0);
    const QImage drawing(m_folder->filePath("on.png"));
    QVERIFY(support::inkCount(drawing) > 1000);
    QVERIFY(support::sameImage(QImage(m_folder->filePath("off.png")), drawing));
}

void tst_Wayland::aStrokeIsDrawn()
{
    QVERIFY(start());
    drag(onCanvas, onCanvas + QPoint(60, 0));
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(onCanvas + QPoint(60, 0)), QColor(Qt::red), patience);
    const QImage shown = shot();
    for (int x = 0; x <= 60; ++x)
        QCOMPARE(shown.pixelColor(onCanvas + QPoint(x, 0)), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(onCanvas + QPoint(61, 0)), QColor(Qt::white));
    m_server->key("z", true);
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(onCanvas), QColor(Qt::white), patience);
}

void tst_Wayland::everyPixelIsShownAsOftenAsAsked_data()
{
    QTest::addColumn<int>("screensScale");
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<int>("times");
    QTest::newRow("a tall screen") << 1 << QStringList() << 2;
    QTest::newRow("asked for 1") << 1 << QStringList{"--scale", "1"} << 1;
    QTest::newRow("asked for 3") << 1 << QStringList{"--scale", "3"} << 3;
    QTest::newRow("a sharp screen") << 2 << QStringList() << 2;
    QTest::newRow("2 on a sharp screen") << 2 << QStringList{"--scale", "2"} << 2;
    QTest::newRow("1 on a sharp screen") << 2 << QStringList{"--scale", "1"} << 1;
    QTest::newRow("4 on a sharp screen") << 2 << QStringList{"--scale", "4"} << 3;
}

void tst_Wayland::everyPixelIsShownAsOftenAsAsked()
{
    QFETCH(int, screensScale);
    QFETCH(QStringList, option);
    QFETCH(int, times);
    m_server = std::make_unique<WaylandServer>(QSize(1600, 1000), screensScale);
    qputenv("WAYLAND_DISPLAY", m_server->display().toUtf8());
    QVERIFY(start(option, window * times));
    click(onCanvas * times);
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(onCanvas * times), QColor(Qt::red), patience);
    const QImage shown = shot();
    int red = 0;
    for (int y = 60 * times; y < 100 * times; ++y) {
        for (int x = 40 * times; x < 80 * times; ++x)
            red += shown.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
    }
    QCOMPARE(red, times * times); // one pixel of the picture
}

void tst_Wayland::whatOpensStaysInsideTheWindow_data()
{
    QTest::addColumn<QPoint>("opener");
    QTest::addColumn<QByteArray>("shortcut");
    QTest::newRow("tools") << toolButton << QByteArray();
    QTest::newRow("zoom") << zoomBox << QByteArray();
    QTest::newRow("colour") << colorButton << QByteArray();
    QTest::newRow("menu") << menuKey << QByteArray();
    QTest::newRow("open") << QPoint() << QByteArray("o");
    QTest::newRow("new") << QPoint() << QByteArray("n");
}

void tst_Wayland::whatOpensStaysInsideTheWindow()
{
    QFETCH(QPoint, opener);
    QFETCH(QByteArray, shortcut);
    QVERIFY(start());
    const QImage before = m_server->screenshot();
    if (shortcut.isEmpty())
        click(opener);
    else
        m_server->key(shortcut.constData(), true);
    const QRect middle(60, 90, 120, 120);
    QTRY_VERIFY_WITH_TIMEOUT(shot().copy(middle) != before.copy(m_place).copy(middle), patience);
    QTest::qWait(300);
    QCOMPARE(m_server->windows().size(), 1);
    const QImage after = m_server->screenshot();
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (!m_place.contains(x, y))
                QCOMPARE(after.pixel(x, y), before.pixel(x, y));
        }
    }
    m_server->key("Escape");
    QTRY_VERIFY_WITH_TIMEOUT(shot().copy(middle) == before.copy(m_place).copy(middle), patience);
}

void tst_Wayland::openPicker(const QImage& before)
{
    click(colorButton);
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(orange), QColor(255, 128, 0), patience);
    click(moreColors);
    QTRY_VERIFY_WITH_TIMEOUT(shot().copy(0, 300, 240, 20) != before.copy(0, 300, 240, 20), patience);
}

void tst_Wayland::aDialogHasAllInput()
{
    QVERIFY(start());
    click(onCanvas);
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(onCanvas), QColor(Qt::red), patience);
    const QImage before = shot();
    openPicker(before);
    const QImage open = shot();
    m_server->key("z", true); // would undo
    m_server->key("q", true); // would quit
    click(menuKey);
    for (int i = 0; i < 20; ++i) // stays inside
        m_server->key("Tab");
    m_server->key("F10"); // would open the menu
    QTest::qWait(300);
    QCOMPARE(shot().copy(0, 300, 240, 20), open.copy(0, 300, 240, 20));
    m_server->key("Escape");
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(onCanvas), QColor(Qt::red), patience);
    QVERIFY(m_pad->isRunning());
    m_server->key("z", true);
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(onCanvas), QColor(Qt::white), patience);

    // Return is the first key: the new colour is taken.
    openPicker(shot());
    m_server->key("Return");
    QTRY_VERIFY_WITH_TIMEOUT(shot().copy(0, 300, 240, 20) == before.copy(0, 300, 240, 20), patience);
}

void tst_Wayland::fullScreenAndBack()
{
    QVERIFY(start());
    m_server->key("F11");
    QVERIFY(!m_server->waitForWindow(QSize(800, 600)).isEmpty());
    m_server->key("F11");
    QVERIFY(!m_server->waitForWindow(window).isEmpty());
    QVERIFY(m_pad->isRunning());
}

void tst_Wayland::theWindowComesBackAsItWas()
{
    const auto quit = [this] {
        m_server->key("q", true);
        return m_pad->waitForEnd() && m_pad->exitCode() == 0;
    };
    QVERIFY(start());
    m_server->key("F11");
    QVERIFY(!m_server->waitForWindow(QSize(800, 600)).isEmpty());
    QVERIFY(quit());
    m_pad = std::make_unique<PadProcess>(QStringList(), QString(), QString(), m_folder->path());
    QVERIFY(!m_server->waitForWindow(QSize(800, 600)).isEmpty());
    QTest::qWait(300);
    m_server->key("F11");
    QVERIFY(!m_server->waitForWindow(window).isEmpty());
    QVERIFY(quit());

    constexpr QSize larger(400, 450);
    QVERIFY(start());
    m_server->resizeWindow(larger);
    QVERIFY(!m_server->waitForWindow(larger).isEmpty());
    QTest::qWait(300);
    QVERIFY(quit());
    m_pad = std::make_unique<PadProcess>(QStringList(), QString(), QString(), m_folder->path());
    QVERIFY(!m_server->waitForWindow(larger).isEmpty());
}

void tst_Wayland::aDeadDisplayDoesNotStopALivingOne_data()
{
    QTest::addColumn<QString>("session");
    QTest::newRow("a session of X") << "x11";
    QTest::newRow("a session of Wayland") << "wayland";
    QTest::newRow("an unknown session") << "";
}

void tst_Wayland::aDeadDisplayDoesNotStopALivingOne()
{
    QFETCH(QString, session);
    qputenv("XDG_SESSION_TYPE", session.toUtf8());
    const auto restore = qScopeGuard([] { qunsetenv("XDG_SESSION_TYPE"); });
    qputenv("DISPLAY", "nowhere:77");
    QVERIFY(start());
    QCOMPARE(m_pad->errors(), "");
}

void tst_Wayland::withoutALivingDisplayItSaysSo()
{
    qputenv("WAYLAND_DISPLAY", "nothing");
    PadProcess wayland({});
    QVERIFY(wayland.waitForEnd());
    QCOMPARE(wayland.errors(), "korva-pad: cannot open display 'nothing'\n");
    QCOMPARE(wayland.exitCode(), 1);

    qputenv("DISPLAY", "nowhere:77");
    PadProcess both({});
    QVERIFY(both.waitForEnd());
    QCOMPARE(both.errors(), "korva-pad: cannot open display 'nowhere:77' or 'nothing'\n");
    QCOMPARE(both.exitCode(), 1);
}

int main(int argc, char** argv)
{
    return support::run<tst_Wayland>(argc, argv);
}

#include "tst_Wayland.moc"
