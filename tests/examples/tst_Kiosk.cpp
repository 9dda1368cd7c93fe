#include "Example.h"
#include "support/Images.h"

namespace {

constexpr QSize screen(800, 480);
constexpr QPoint undoKey(720, 44);
constexpr QPoint redoKey(720, 124);
constexpr QPoint clearKey(720, 204);
constexpr QPoint doneKey(720, 364);
constexpr QPoint onCanvas(60, 80);

} // namespace

/// The example of a full screen with soft keys of its own, as a person uses it.
class tst_Kiosk : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void fillsTheScreen();
    void itsKeysWork();
    void handsTheDrawingOverAndBeginsAnew();
    void typesOnTheScreen_data();
    void typesOnTheScreen();
    void speaksGerman();

private:
    static void draw(Example& kiosk) { kiosk.drag(onCanvas - QPoint(20, 0), onCanvas + QPoint(20, 0)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_Kiosk::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_Kiosk::fillsTheScreen()
{
    Example kiosk(screen, {m_folder->path()}, {}, screen);
    QCOMPARE(kiosk.place(), QRect(QPoint(), screen));
}

void tst_Kiosk::itsKeysWork()
{
    Example kiosk(screen, {m_folder->path()}, {}, screen);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    kiosk.click(undoKey);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    kiosk.click(redoKey);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    kiosk.click(clearKey);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    QVERIFY(kiosk.isRunning());
}

void tst_Kiosk::handsTheDrawingOverAndBeginsAnew()
{
    Example kiosk(screen, {m_folder->path()}, {}, screen);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    const QImage empty = kiosk.shot();
    kiosk.click(doneKey); // there is nothing yet
    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    kiosk.click(doneKey);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    kiosk.screen().moveTo(QPoint());
    QTRY_VERIFY_WITH_TIMEOUT(support::sameImage(kiosk.shot(), empty), Example::patience);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("visitor-1.png"));
    const QImage drawing(m_folder->filePath("visitor-1.png"));
    QCOMPARE(drawing.size(), QSize(600, 420));
    QVERIFY(support::inkCount(drawing) >= 40);

    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    kiosk.click(doneKey);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    QVERIFY(QFile::exists(m_folder->filePath("visitor-2.png")));
}

void tst_Kiosk::typesOnTheScreen_data()
{
    QTest::addColumn<QPoint>("tap");
    QTest::newRow("above the keyboard") << QPoint(60, 120);
    QTest::newRow("where the keyboard comes") << QPoint(60, 220); // the view shows less than the page then
}

void tst_Kiosk::typesOnTheScreen()
{
    QFETCH(const QPoint, tap);
    constexpr QPoint toolButton(18, 14);
    constexpr QPoint textRow(60, 163); // of the tool pop-up
    constexpr QPoint firstLetters(0, 280);
    Example kiosk(screen, {m_folder->path()}, {}, screen);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    const QImage before = kiosk.shot();
    kiosk.click(toolButton);
    QTest::qWait(QApplication::doubleClickInterval()); // a double tap would choose nothing
    kiosk.click(textRow);
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(0, 280, 640, 200) != before.copy(0, 280, 640, 200),
                             Example::patience);
    kiosk.click(tap);
    for (const int column : {0, 1, 2}) // q w e
        kiosk.click(firstLetters + QPoint(column * 58 + 29, 60));
    kiosk.click(doneKey);
    const QString saved = m_folder->filePath("visitor-1.png");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(saved), Example::patience);
    const QRect ink = support::inkBounds(QImage(saved));
    QVERIFY(ink.width() > 12 && ink.height() > 6);
    QTRY_VERIFY_WITH_TIMEOUT(
        support::sameImage(kiosk.shot().copy(0, 290, 600, 100), before.copy(0, 290, 600, 100)),
        Example::patience); // the keyboard is gone
}

void tst_Kiosk::speaksGerman()
{
    Example english(screen, {m_folder->path()}, {}, screen);
    Example german(screen, {m_folder->path()}, {{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "de"}}, screen);
    QVERIFY(english.shows(onCanvas, Qt::white));
    QVERIFY(german.shows(onCanvas, Qt::white));
    const QRect keys(648, 8, 144, 392);
    QVERIFY(english.shot().copy(keys) != german.shot().copy(keys));
}

int main(int argc, char** argv)
{
    return support::run<tst_Kiosk>(argc, argv);
}

#include "tst_Kiosk.moc"
