#include "Example.h"
#include "support/Images.h"

namespace {

constexpr QSize screen(800, 480);
constexpr QPoint undoKey(720, 44);
constexpr QPoint redoKey(720, 124);
constexpr QPoint clearKey(720, 204);
constexpr QPoint doneKey(720, 364);
constexpr QPoint sendKey(400, 235); // of the kiosk's own box
constexpr QPoint drawOnKey(400, 325);
constexpr QPoint onCanvas(60, 80);
constexpr QPoint colorButton(212, 14);
constexpr QPoint toolButton(18, 14);
constexpr QRect drawingPlace(0, 100, 600, 300); // below what a banner covers

/// Every drawing that the kiosk has handed out, in turn.
class Slot
{
public:
    explicit Slot(Example& kiosk) : m_kiosk(kiosk) {}

    /// Null when nothing more is handed out in time, or what comes is no JPEG of at most 30,000 bytes.
    [[nodiscard]] QImage next()
    {
        const auto isWhole = [this] {
            m_bytes += m_kiosk.output();
            return m_bytes.size() >= end();
        };
        if (!QTest::qWaitFor(isWhole, Example::patience))
            return {};
        const qsizetype line = m_bytes.indexOf('\n') + 1;
        const QByteArray picture = m_bytes.mid(line, end() - line);
        m_bytes.remove(0, end());
        return picture.size() <= 30'000 ? QImage::fromData(picture, "JPEG") : QImage();
    }
    [[nodiscard]] bool isEmpty()
    {
        m_bytes += m_kiosk.output();
        return m_bytes.isEmpty();
    }

private:
    [[nodiscard]] qsizetype end() const
    {
        const qsizetype line = m_bytes.indexOf('\n') + 1;
        return line == 0 ? std::numeric_limits<qsizetype>::max()
                         : line + m_bytes.left(line - 1).toLongLong();
    }

    Example& m_kiosk;
    QByteArray m_bytes;
};

QByteArray png(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

} // namespace

/// The example of a full screen without files, as one visitor after the other uses it.
class tst_Kiosk : public support::TestCase
{
    Q_OBJECT

private slots:
    void fillsTheScreen();
    void itsKeysWork();
    void handsTheDrawingOutAndBeginsAnew();
    void typesOnTheScreen_data();
    void typesOnTheScreen();
    void speaksGerman();
    void beginsAnewWhenTheVisitorHasGone_data();
    void beginsAnewWhenTheVisitorHasGone();
    void nothingDrawnIsNotHandedOut();
    void aTouchTakesTheWarningAway_data();
    void aTouchTakesTheWarningAway();
    void aPageLiesUnderTheDrawing_data();
    void aPageLiesUnderTheDrawing();
    void aPageThatCannotBeRead();

private:
    static void draw(Example& kiosk) { kiosk.drag(onCanvas - QPoint(20, 0), onCanvas + QPoint(20, 0)); }
    /// Waits until the window looks so.
    [[nodiscard]] static bool looksLike(Example& kiosk, const QImage& expected)
    {
        return QTest::qWaitFor([&] { return support::sameImage(kiosk.shot(), expected); },
                               Example::patience);
    }
};

void tst_Kiosk::fillsTheScreen()
{
    Example kiosk(screen, {}, {}, screen);
    QCOMPARE(kiosk.place(), QRect(QPoint(), screen));
}

void tst_Kiosk::itsKeysWork()
{
    Example kiosk(screen, {}, {}, screen);
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

void tst_Kiosk::handsTheDrawingOutAndBeginsAnew()
{
    Example kiosk(screen, {}, {}, screen);
    Slot slot(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    const QImage empty = kiosk.shot();
    kiosk.click(doneKey); // there is nothing yet
    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    const QImage drawn = kiosk.shot().copy(drawingPlace);
    kiosk.click(doneKey);
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(drawingPlace) != drawn, Example::patience);
    kiosk.click(drawOnKey);
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(drawingPlace) == drawn, Example::patience);
    QVERIFY(slot.isEmpty());

    kiosk.click(doneKey);
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(drawingPlace) != drawn, Example::patience);
    kiosk.click(sendKey);
    const QImage sent = slot.next();
    QCOMPARE(sent.size(), QSize(600, 420));
    QVERIFY(support::inkCount(sent) >= 40);
    kiosk.screen().moveTo({799, 479});
    QVERIFY(looksLike(kiosk, empty)); // when the banner has gone
    kiosk.click(undoKey);             // which leads nowhere
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    QVERIFY(slot.isEmpty());
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
    constexpr QPoint textRow(60, 163); // of the tool pop-up
    constexpr QPoint firstLetters(0, 280);
    Example kiosk(screen, {}, {}, screen);
    Slot slot(kiosk);
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
    const QImage typed = kiosk.shot().copy(160, 120, 480, 240);
    kiosk.click(doneKey);
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(160, 120, 480, 240) != typed, Example::patience);
    kiosk.click(sendKey);
    const QRect ink = support::inkBounds(slot.next());
    QVERIFY(ink.width() > 12 && ink.height() > 6);
    QTRY_VERIFY_WITH_TIMEOUT(
        support::sameImage(kiosk.shot().copy(0, 290, 600, 100), before.copy(0, 290, 600, 100)),
        Example::patience); // the keyboard is gone
}

void tst_Kiosk::speaksGerman()
{
    Example english(screen, {}, {}, screen);
    Example german(screen, {}, {{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "de"}}, screen);
    QVERIFY(english.shows(onCanvas, Qt::white));
    QVERIFY(german.shows(onCanvas, Qt::white));
    const QRect keys(648, 8, 144, 392);
    QVERIFY(english.shot().copy(keys) != german.shot().copy(keys));
}

void tst_Kiosk::beginsAnewWhenTheVisitorHasGone_data()
{
    QTest::addColumn<QPoint>("tap");
    QTest::newRow("nothing open") << QPoint();
    QTest::newRow("the colour picker open") << colorButton;
    QTest::newRow("a pop-up open") << toolButton;
    QTest::newRow("the kiosk's own box open") << doneKey;
}

void tst_Kiosk::beginsAnewWhenTheVisitorHasGone()
{
    QFETCH(const QPoint, tap);
    Example kiosk(screen, {"--idle", "4", "--warning", "1"}, {}, screen);
    Slot slot(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    const QImage empty = kiosk.shot();
    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    const QImage drawn = kiosk.shot();
    if (!tap.isNull()) {
        kiosk.click(tap);
        QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(0, 30, 640, 450) != drawn.copy(0, 30, 640, 450),
                                 Example::patience);
    }
    const QImage sent = slot.next();
    QCOMPARE(sent.size(), QSize(600, 420));
    QVERIFY(support::inkCount(sent) >= 40);
    kiosk.screen().moveTo({799, 479});
    QVERIFY(looksLike(kiosk, empty));
    draw(kiosk); // nothing is in the way
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    QVERIFY(kiosk.isRunning());
}

void tst_Kiosk::nothingDrawnIsNotHandedOut()
{
    Example kiosk(screen, {"--idle", "2", "--warning", "1"}, {}, screen);
    Slot slot(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    const QImage empty = kiosk.shot();
    kiosk.click(colorButton);
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot() != empty, Example::patience);
    kiosk.screen().moveTo({799, 479});
    QVERIFY(looksLike(kiosk, empty));
    QVERIFY(slot.isEmpty());
}

void tst_Kiosk::aTouchTakesTheWarningAway_data()
{
    QTest::addColumn<QPoint>("tap");
    QTest::newRow("nothing open") << QPoint();
    QTest::newRow("the colour picker open") << colorButton;
}

void tst_Kiosk::aTouchTakesTheWarningAway()
{
    QFETCH(const QPoint, tap);
    constexpr QPoint onCard(200, 160); // beside its words
    constexpr QRect seconds(380, 190, 40, 100);
    Example kiosk(screen, {"--idle", "124", "--warning", "120"}, {}, screen);
    Slot slot(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    if (!tap.isNull()) {
        kiosk.click(tap);
        QVERIFY(QTest::qWaitFor([&] { return kiosk.shot().pixelColor(onCanvas) != QColor(Qt::red); },
                                Example::patience)); // behind the dialog's veil
    }
    kiosk.screen().moveTo(onCard);
    const QImage before = kiosk.shot();
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().pixelColor(onCard) != before.pixelColor(onCard),
                             Example::patience);
    const QImage first = kiosk.shot();
    first.save(QString(KORVA_TEST_OUTPUT "/examples_tst_Kiosk-warning-%1.png").arg(!tap.isNull()));
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(seconds) != first.copy(seconds), Example::patience);
    kiosk.screen().press();
    kiosk.screen().release();
    QVERIFY(looksLike(kiosk, before)); // nothing behind it was touched
    QVERIFY(slot.isEmpty());
    QVERIFY(kiosk.isRunning());
}

void tst_Kiosk::aPageLiesUnderTheDrawing_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QColor>("paper");
    QTest::newRow("its own") << "house" << QSize(600, 420) << QColor(Qt::white);
    QTest::newRow("from outside") << "-" << QSize(560, 420) << QColor(0xe0, 0xe8, 0xff); // fitted
}

void tst_Kiosk::aPageLiesUnderTheDrawing()
{
    QFETCH(const QString, page);
    QFETCH(const QSize, size);
    QFETCH(const QColor, paper);
    const QImage sheet = support::sheet({1600, 1200}, paper, [](QPainter& painter) {
        painter.fillRect(100, 800, 600, 300, QColor(0x20, 0x80, 0x40));
    });
    Example kiosk(screen, {page}, {}, screen, page == "-" ? png(sheet) : QByteArray());
    Slot slot(kiosk);
    QVERIFY(kiosk.shows(onCanvas, paper));
    const QImage empty = kiosk.shot();
    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    kiosk.click(clearKey);
    QVERIFY(kiosk.shows(onCanvas, paper));
    kiosk.screen().moveTo({799, 479});
    QTRY_COMPARE(kiosk.shot().copy(drawingPlace), empty.copy(drawingPlace));

    draw(kiosk);
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    const QImage drawn = kiosk.shot().copy(drawingPlace);
    kiosk.click(doneKey);
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(drawingPlace) != drawn, Example::patience);
    kiosk.click(sendKey);
    const QImage sent = slot.next();
    QCOMPARE(sent.size(), size);
    QVERIFY(support::inkCount(sent) > 2000); // the page is in it
    QTRY_COMPARE_WITH_TIMEOUT(kiosk.shot().copy(drawingPlace), empty.copy(drawingPlace), Example::patience);
}

void tst_Kiosk::aPageThatCannotBeRead()
{
    Example kiosk(screen, {"-"}, {}, screen, "no picture");
    constexpr QPoint inBanner(5, 40);
    QVERIFY(kiosk.shows(inBanner, QColor(0x2b, 0x34, 0x40)));
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    draw(kiosk); // which goes on below it
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
}

int main(int argc, char** argv)
{
    return support::run<tst_Kiosk>(argc, argv);
}

#include "tst_Kiosk.moc"
