#include "support/Images.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

using support::PadOnScreen;

namespace {

constexpr int patience = 20'000; // ms
constexpr auto engine = "table:latex";
constexpr QPoint tap(60, 60); // on the canvas, as the next two
constexpr QRect aroundTheText(50, 40, 100, 40);
constexpr QPoint besideIt(20, 150);
constexpr auto strokeBesideIt = "tool pencil\npress 20 150\nmove 50 150\nrelease 50 150\n";

/// A session bus on which nothing is started but what is asked for.
constexpr auto busConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

/// The program with IBus, a table and its list of candidates, in a real window.
class tst_InputMethod : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void composedTextArrives_data();
    void composedTextArrives();

private:
    [[nodiscard]] bool isEngineChosen();
    [[nodiscard]] bool start(const QByteArray& recording);
    [[nodiscard]] QImage text() const { return m_pad->shot().copy(aroundTheText.translated(m_canvas)); }
    /// Where the list of candidates is on the screen; empty while there is none.
    [[nodiscard]] QRect list() const;
    void type(const QByteArrayList& keys);
    /// Types the beginning of a Greek letter; false, and nothing is typed, while the table is not there
    /// yet.
    [[nodiscard]] bool isComposing();

    QTemporaryDir m_home;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_bus;
    QProcess m_daemon;
    std::unique_ptr<PadOnScreen> m_pad;
    QPoint m_canvas; ///< in the window, which is at (0, 0)
};

void tst_InputMethod::initTestCase()
{
    const QString home = m_home.path();
    const auto set = [this](const char* variable, const QString& value) {
        m_environment.insert(variable, value);
        qputenv(variable, value.toLocal8Bit());
    };
    m_pad = std::make_unique<PadOnScreen>(home);
    QVERIFY(m_pad->server().isReady());
    set("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home + "/bus");
    set("IBUS_ADDRESS_FILE", home + "/address");
    set("QT_IM_MODULE", "ibus");
    set("IBUS_ENABLE_SYNC_MODE", "1"); // a key is answered before the next one comes
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        m_environment.insert(variable, home);
    m_environment.insert("DISPLAY", m_pad->server().display());
    m_environment.insert("GSETTINGS_BACKEND", "keyfile");
    m_environment.insert("NO_AT_BRIDGE", "1");
    support::write(home + "/bus.conf", QString(busConfiguration).arg(home).toUtf8());
    QVERIFY(QDir(home).mkpath("glib-2.0/settings"));
    support::write(home + "/glib-2.0/settings/keyfile",
                   QString("[desktop/ibus/general]\npreload-engines=['%1']\n").arg(engine).toUtf8());

    m_bus.setProcessEnvironment(m_environment);
    m_bus.start("dbus-daemon", {"--config-file=" + home + "/bus.conf", "--nofork"});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(home + "/bus"), patience);
    m_daemon.setProcessEnvironment(m_environment);
    m_daemon.start("ibus-daemon", {"--address=unix:path=" + home + "/ibus.socket", "--config=disable",
                                   "--emoji-extension=disable"});
    QTRY_VERIFY_WITH_TIMEOUT(isEngineChosen(), patience);
}

void tst_InputMethod::cleanupTestCase()
{
    m_pad.reset();
    for (QProcess* process : {&m_daemon, &m_bus}) {
        process->terminate();
        process->waitForFinished(patience);
    }
}

bool tst_InputMethod::isEngineChosen()
{
    QProcess ask;
    ask.setProcessEnvironment(m_environment);
    ask.start("ibus", {"engine"});
    return ask.waitForFinished(patience) && ask.readAllStandardOutput().trimmed() == engine;
}

bool tst_InputMethod::start(const QByteArray& recording)
{
    const QString name = m_home.filePath("text.rec");
    support::write(name, recording);
    if (!m_pad->start({"--no-recovery", "--replay", name}))
        return false;
    m_pad->server().activateTopWindow();
    return true;
}

QRect tst_InputMethod::list() const
{
    for (const support::XServer::Window& window : m_pad->server().windows()) {
        if (!window.title.endsWith(" - Korva") && window.place.width() > 20)
            return window.place;
    }
    return {};
}

void tst_InputMethod::type(const QByteArrayList& keys)
{
    for (const QByteArray& key : keys) {
        m_pad->server().key(key.constData());
        QTest::qWait(50); // as fast as a person
    }
}

bool tst_InputMethod::isComposing()
{
    type({"backslash", "a"});
    if (QTest::qWaitFor([this] { return !list().isEmpty(); }, 2000))
        return true;
    type({"BackSpace", "BackSpace"});
    return false;
}

void tst_InputMethod::composedTextArrives_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QPoint>("canvas");
    QTest::newRow("100 %") << 100 << QPoint(16, 44);
    QTest::newRow("200 %") << 200 << QPoint(4, 35);
}

void tst_InputMethod::composedTextArrives()
{
    QFETCH(const int, zoom);
    QFETCH(const QPoint, canvas);
    m_canvas = canvas;
    const QByteArray zoomed = "zoom " + QByteArray::number(zoom) + '\n';
    const auto isMarked = [this] {
        return support::inkCount(m_pad->shot().copy(QRect(m_canvas + besideIt, QSize(10, 1)))) > 0;
    };

    // What typing without an input method leaves.
    QVERIFY(start(zoomed + "tool text\npress 60 60\nrelease 60 60\ntype \"x\u03b1y\"\n" + strokeBesideIt));
    QVERIFY(m_pad->waitFor(isMarked));
    const QImage expected = text();
    QVERIFY(support::inkCount(expected) > 30);

    // The I-beam beside it tells that the tool is chosen.
    QVERIFY(start(zoomed + "tool text\npress 25 150\nrelease 25 150\n"));
    QVERIFY(m_pad->waitFor(isMarked));
    m_pad->click(m_canvas + tap);
    type({"x"});
    QVERIFY(m_pad->waitFor([this] { return isComposing(); }));
    type({"l", "p"});
    const QRect belowTheCaret(m_canvas + tap + QPoint(2, 0), QSize(16 * zoom / 100, 8));
    QVERIFY2(m_pad->waitFor([&] { return belowTheCaret.contains(list().topLeft()); }),
             qPrintable(QDebug::toString(list())));
    type({"space", "y"});
    const QRect ink = support::inkBounds(expected);
    const int end = ink.left() + ink.width() - 2;
    QVERIFY(m_pad->waitFor([&] { return list().isEmpty() && support::inkBounds(text()).right() >= end; }));

    // A drag ends the text; then the keys are no longer the input method's.
    m_pad->server().moveTo(m_canvas + besideIt + QPoint(0, 10));
    m_pad->server().press();
    m_pad->server().moveTo(m_canvas + besideIt + QPoint(20, 10));
    m_pad->server().release();
    QVERIFY(m_pad->waitFor([&] { return text() == expected; }));
    type({"backslash", "a", "l", "p"});
    QTest::qWait(700);
    QVERIFY(list().isEmpty());
}

int main(int argc, char** argv)
{
    return support::run<tst_InputMethod>(argc, argv);
}

#include "tst_InputMethod.moc"
