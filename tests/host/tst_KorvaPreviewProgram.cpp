#include "support/Animation.h"
#include "support/Images.h"
#include "support/TestCase.h"
#include "support/XServer.h"

namespace {

constexpr int patience = 20'000; // ms
constexpr QSize dialogSize(220, 256);
constexpr QPoint confirmKey(55, 230);
constexpr QPoint cancelKey(160, 230);
constexpr QPoint okKey(110, 172); ///< the message's; behind it lies the picture
constexpr QPoint pictureMiddle(112, 95);

/// korva-preview as a shell starts it.
class Program
{
public:
    explicit Program(const QStringList& arguments, const QMap<QString, QString>& environment = {})
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (auto it = environment.begin(); it != environment.end(); ++it)
            variables.insert(it.key(), it.value());
        m_process.setProcessEnvironment(variables);
        m_process.start(KORVA_PREVIEW, arguments);
        m_process.waitForStarted(patience);
    }
    ~Program()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished(patience);
        }
    }

    /// How it ended: exit code and what it printed, as "1 902".
    [[nodiscard]] QString end()
    {
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience))
            return "still running";
        if (m_process.exitStatus() != QProcess::NormalExit)
            return "crashed";
        return QString::number(m_process.exitCode()) + ' ' + m_process.readAllStandardOutput().trimmed();
    }
    [[nodiscard]] QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    QProcess m_process;
};

} // namespace

class tst_KorvaPreviewProgram : public support::TestCase
{
    Q_OBJECT

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QMap<QString, QString> onScreen() const
    {
        return {{"QT_QPA_PLATFORM", "xcb"}, {"DISPLAY", m_screen.display()}};
    }
    /// Waits until the middle of the picture has the colour.
    [[nodiscard]] bool shows(const QRect& window, const QColor& color) const
    {
        return QTest::qWaitFor(
            [&] { return m_screen.screenshot().pixelColor(window.topLeft() + pictureMiddle) == color; },
            patience);
    }

    QTemporaryDir m_folder;
    support::XServer m_screen;

private slots:
    void initTestCase()
    {
        QVERIFY(m_screen.isReady());
        QVERIFY(support::sheet(QSize(80, 60), Qt::blue).save(path("photo.png")));
        QVERIFY(support::sheet(QSize(80, 60), Qt::blue).save(path("-photo.png")));
        QVERIFY(support::writeGif(path("LIVELY.GIF"), QSize(80, 60), {{Qt::red, 200}, {Qt::green, 200}}));
    }

    void helpAndVersionArePrinted_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("start");
        for (const char* option : {"--help", "-h"})
            QTest::newRow(option) << option << "0 Usage: korva-preview [options] PICTURE\n";
        for (const char* option : {"--version", "-v"})
            QTest::newRow(option) << option << "0 korva-preview 1.";
    }

    void helpAndVersionArePrinted()
    {
        QFETCH(QString, option);
        QFETCH(QString, start);
        Program program({option});
        const QString end = program.end();
        QVERIFY2(end.startsWith(start), qPrintable(end));
        QCOMPARE(program.errors(), QString());
    }

    void wrongUsageGivesOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("line");
        QTest::newRow("nothing") << QStringList() << "which picture? korva-preview PICTURE";
        QTest::newRow("no language") << QStringList("--language")
                                     << "--language needs a value: --language CODE";
        QTest::newRow("an empty name") << QStringList("") << "the picture's name is empty";
        QTest::newRow("two pictures")
            << QStringList({"a.png", "b.png"}) << "one picture at a time: 'a.png' and 'b.png'";
        QTest::newRow("unknown option")
            << QStringList({"--loud", "a.png"}) << "unknown option '--loud' (--help lists them)";
    }

    void wrongUsageGivesOneLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, line);
        Program program(arguments);
        QCOMPARE(program.end(), "1 ");
        QCOMPARE(program.errors(), "korva-preview: " + line + '\n');
    }

    void withoutADisplayItSaysSo_data()
    {
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("line");
        QTest::newRow("none") << ""
                              << "there is no display";
        QTest::newRow("a wrong one") << "nowhere:77"
                                     << "cannot open display 'nowhere:77'";
    }

    void withoutADisplayItSaysSo()
    {
        QFETCH(QString, display);
        QFETCH(QString, line);
        Program program({path("photo.png")},
                        {{"QT_QPA_PLATFORM", ""}, {"WAYLAND_DISPLAY", ""}, {"DISPLAY", display}});
        QCOMPARE(program.end(), "1 ");
        QCOMPARE(program.errors(), "korva-preview: " + line + '\n');
    }

    void theChoiceIsPrinted_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QPoint>("click"); // null: the key instead
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("end");
        const QStringList photo(path("photo.png"));
        QTest::newRow("Confirm clicked") << photo << confirmKey << ""
                                         << "0 900";
        QTest::newRow("Cancel clicked") << photo << cancelKey << ""
                                        << "1 902";
        QTest::newRow("Return") << photo << QPoint() << "Return"
                                << "0 900";
        QTest::newRow("Escape") << photo << QPoint() << "Escape"
                                << "1 902";
        QTest::newRow("after --") << QStringList({"--", path("photo.png")}) << confirmKey << ""
                                  << "0 900";
    }

    void theChoiceIsPrinted()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QPoint, click);
        QFETCH(QString, key);
        Program program(arguments, onScreen());
        const QRect window = m_screen.waitForWindow(dialogSize);
        QVERIFY(shows(window, Qt::blue));
        if (click.isNull())
            m_screen.key(key.toLatin1().constData());
        else
            m_screen.click(window.topLeft() + click);
        QTEST(program.end(), "end");
    }

    void aNameThatLooksLikeAnOptionIsAPictureAfterTwoDashes()
    {
        Program refused({"-photo.png"});
        QCOMPARE(refused.end(), "1 ");
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder.path()));
        Program program({"--", "-photo.png"}, onScreen());
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(shows(m_screen.waitForWindow(dialogSize), Qt::blue));
        m_screen.key("Escape");
        QCOMPARE(program.end(), "1 902");
    }

    void anUnreadablePictureCanOnlyBeCancelled()
    {
        Program program({path("missing.png")}, onScreen());
        const QRect window = m_screen.waitForWindow(dialogSize);
        QVERIFY(!window.isEmpty());
        const auto isVeiled = [&] {
            const QColor ground = m_screen.screenshot().pixelColor(window.topLeft() + QPoint(5, 5));
            return ground.lightness() > 100 && ground.lightness() < 200; // it is black before all
        };
        QVERIFY(QTest::qWaitFor(isVeiled, patience));
        const auto isUnveiled = [&] { return !isVeiled(); };
        for (int i = 0; i < 20 && isVeiled(); ++i) { // the message comes a little after the veil
            m_screen.click(window.topLeft() + okKey);
            (void)QTest::qWaitFor(isUnveiled, 500);
        }
        QVERIFY(isUnveiled());
        m_screen.click(window.topLeft() + confirmKey);
        QTest::qWait(200);
        QCOMPARE(m_screen.waitForWindow(dialogSize), window); // still there
        m_screen.click(window.topLeft() + cancelKey);
        QCOMPARE(program.end(), "1 902");
    }

    void anAnimationIsSeenToPlay()
    {
        Program program({path("LIVELY.GIF")}, onScreen());
        const QRect window = m_screen.waitForWindow(dialogSize);
        for (int round = 0; round < 2; ++round) {
            QVERIFY(shows(window, Qt::red));
            QVERIFY(shows(window, Qt::green));
        }
        m_screen.click(window.topLeft() + confirmKey);
        QCOMPARE(program.end(), "0 900");
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_KorvaPreviewProgram>(argc, argv);
}

#include "tst_KorvaPreviewProgram.moc"
