#include "ButtonsDialog.h"
#include "Commands.h"
#include "PadWindow.h"
#include "Platform.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_EditCanvas.h>

using support::PadOnScreen;

/// The card that says what the buttons are: at the first start, and behind F1.
class tst_FirstStart : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void showsFivePictures();
    void comesOnce_data();
    void comesOnce();
    void doesNotComeIn_data();
    void doesNotComeIn();
    void isBehindTheKeys();

private:
    /// Whether it does not come within a while.
    [[nodiscard]] bool staysAway() const
    {
        constexpr int longEnough = 1500; // ms
        QTest::qWait(longEnough);
        return m_pad->box().isEmpty();
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<PadOnScreen> m_pad;
};

void tst_FirstStart::init()
{
    support::TestCase::init();
    m_pad.reset();
    m_home = std::make_unique<QTemporaryDir>();
    m_pad = std::make_unique<PadOnScreen>(m_home->path(), QSize(240, 320));
    QVERIFY(m_pad->server().isReady());
    // As if never started; other tests' homes have seen it.
    QVERIFY(QDir(m_home->path()).mkpath("XDG_CONFIG_HOME/korva"));
    support::write(m_home->filePath("XDG_CONFIG_HOME/korva/pad.conf"), "[start]\nbuttons=false\n");
}

void tst_FirstStart::showsFivePictures()
{
    pad::PadWindow window(pad::Platform::install());
    window.editor().setColor(QColor(0, 128, 64));
    window.editor().selectZoom(3);
    const pad::ButtonsDialog card(&window, window.editor(), *window.commands().menu());
    QStringList texts;
    QList<QImage> pictures;
    for (const QLabel* label : card.findChildren<QLabel*>()) {
        if (!label->text().isEmpty())
            texts << label->text();
        else if (const QPixmap picture = label->pixmap(); !picture.isNull())
            pictures << picture.toImage();
    }
    QCOMPARE(texts.size(), 11);
    constexpr struct
    {
        const char* name;
        const char* contents; // at least
    } rows[] = {{"Tool", "Select, Eraser, Line, Pencil"},
                {"Tool option", "Small, Medium, Large"},
                {"Zoom", "50%, 100%, 150%, 200%"},
                {"Color", "#008040, green"},
                {"Menu", "New, Open, Save"}};
    QCOMPARE(texts.takeFirst(), "Buttons");
    for (const auto& row : rows) {
        QCOMPARE(texts.takeFirst(), row.name);
        const QString contents = texts.takeFirst();
        QVERIFY2(contents.startsWith(row.contents), qPrintable(contents));
    }
    QCOMPARE(pictures.size(), 5);
    for (int i = 0; i < 5; ++i)
        for (int k = 0; k < i; ++k)
            QVERIFY(pictures[i] != pictures[k]);
    QCOMPARE(pictures[3].pixelColor(32, 20), QColor(0, 128, 64));
    UTIL_Platform::install(nullptr);
}

void tst_FirstStart::comesOnce_data()
{
    QTest::addColumn<QByteArray>("close"); // a key, or a tap
    QTest::newRow("tap") << QByteArray();
    QTest::newRow("escape") << QByteArray("Escape");
    QTest::newRow("return") << QByteArray("Return");
}

void tst_FirstStart::comesOnce()
{
    QFETCH(const QByteArray, close);
    QVERIFY(m_pad->start({}));
    QVERIFY(m_pad->waitForBox("Buttons", "host_tst_FirstStart"));
    QVERIFY(QRect(0, 0, 240, 320).contains(m_pad->boxPlace()));
    if (close.isEmpty())
        m_pad->click({100, 100});
    else
        m_pad->key(close);
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(m_pad->waitForColor({100, 100}, Qt::white)); // the tap drew nothing

    QVERIFY(m_pad->start({}));
    QVERIFY(staysAway());
}

void tst_FirstStart::doesNotComeIn_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("replay") << "--replay";
    QTest::newRow("record") << "--record";
    QTest::newRow("no recovery") << "--no-recovery";
}

void tst_FirstStart::doesNotComeIn()
{
    QFETCH(const QString, option);
    const QString recording = m_home->filePath("a.rec");
    support::write(recording, "tool pencil\n");
    QVERIFY(m_pad->start(option == "--no-recovery" ? QStringList{option} : QStringList{option, recording}));
    QVERIFY(staysAway());
    QVERIFY(m_pad->start({}));
    QVERIFY(m_pad->waitForBox("Buttons")); // it still counts as not seen
}

void tst_FirstStart::isBehindTheKeys()
{
    QVERIFY(m_pad->start({}));
    QVERIFY(m_pad->waitForBox("Buttons"));
    m_pad->key("Escape");
    QVERIFY(m_pad->waitForNoBox());
    m_pad->key("F1");
    QVERIFY(m_pad->waitForBox("Keys"));
    m_pad->click({180, 295});
    QVERIFY(m_pad->waitForBox("Buttons"));
    m_pad->key("Return");
    QVERIFY(m_pad->waitForNoBox());
}

int main(int argc, char** argv)
{
    return support::run<tst_FirstStart>(argc, argv);
}

#include "tst_FirstStart.moc"
