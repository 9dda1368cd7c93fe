#include "TextFixtures.h"

#include <ctime>

using fixtures::painted;
using fixtures::solidPen;
using fixtures::text;
using fixtures::WritingDesk;
using support::sameImage;

namespace {

using Use = void (*)(WritingDesk&);
using Way = void (*)(WritingDesk&, const QString& text);

int compositionsEnded = 0;

} // namespace

// Stands before the toolkit's own, which says nothing without an input method.
void QInputMethod::reset()
{
    ++compositionsEnded;
}

/// When a text is open, and what is seen and told of it.
class tst_OpenText : public support::TestCase
{
    Q_OBJECT

private slots:
    void withoutATextKeysAreTheHosts_data();
    void withoutATextKeysAreTheHosts();
    void aTextCommittedByLeavingIsNoMore();
    void aLetterIsThereWhenModifiedIsTold();
    void newLinesBeginAtTheTapAfterACommit();
    void aTabAfterACommitCountsFromWhereTheLineGoesOn();
    void resetBufferTakesTheLettersOffTheScreen_data();
    void resetBufferTakesTheLettersOffTheScreen();
    void anotherButtonLeavesTheTextAlone();
    void lettersGoWithTheTextThatAHostEnds();
    void leavingTheToolEndsAComposition();
    void longTextsTakeNoLongerALetter_data();
    void longTextsTakeNoLongerALetter();
};

void tst_OpenText::withoutATextKeysAreTheHosts_data()
{
    QTest::addColumn<Use>("use");
    const auto row = [](const char* name, Use use) { QTest::newRow(name) << use; };
    row("before the first tap", [](WritingDesk&) {});
    row("after a drag", [](WritingDesk& desk) { desk.stylus.drag({{20, 20}, {60, 40}}); });
    row("after a text and a drag", [](WritingDesk& desk) {
        desk.tap({20, 50});
        desk.stylus.drag({{20, 20}, {60, 40}});
    });
    row("after coming back to the tool", [](WritingDesk& desk) {
        desk.tap({20, 50});
        desk.manager.setCurrentTool(fixtures::Pencil);
        desk.manager.setCurrentTool(fixtures::Text);
    });
}

void tst_OpenText::withoutATextKeysAreTheHosts()
{
    QFETCH(const Use, use);
    WritingDesk desk;
    use(desk);
    desk.canvas.clearModified();
    const QImage before = desk.canvas.shown();

    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
        QKeyEvent key(type, Qt::Key_A, Qt::NoModifier, "a");
        key.ignore();
        QCoreApplication::sendEvent(&desk.canvas, &key);
        QVERIFY(!key.isAccepted());
    }
    QKeyEvent again(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    desk.tool().keyPressEventSimu(&again);
    desk.compose("ab", "c");
    QVERIFY(!desk.canvas.inputMethodQuery(Qt::ImEnabled).toBool());
    QVERIFY(!desk.tool().getTextKey());
    QVERIFY(!desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.shown(), before));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.KORVA_Canvas::snapshot().toImage(), desk.base));
}

void tst_OpenText::aTextCommittedByLeavingIsNoMore()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("abc");
    desk.manager.setCurrentTool(fixtures::Pencil);
    desk.manager.setCurrentTool(fixtures::Text);
    desk.canvas.clearCanvas(Qt::white);
    QVERIFY(sameImage(desk.canvas.KORVA_Canvas::snapshot().toImage(), support::sheet(QSize(160, 100))));
    desk.tool().paintBuffer();
    QVERIFY(sameImage(desk.canvas.merged(), support::sheet(QSize(160, 100))));
}

void tst_OpenText::aLetterIsThereWhenModifiedIsTold()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("a");
    QImage seen;
    QImage picture;
    connect(&desk.canvas, &KORVA_Canvas::modified, this, [&] {
        seen = desk.screen();
        picture = desk.canvas.KORVA_Canvas::snapshot().toImage();
    });
    desk.type("b");
    QVERIFY(sameImage(seen, desk.previewed("ab")));
    QVERIFY(sameImage(picture, desk.written("ab")));
}

void tst_OpenText::newLinesBeginAtTheTapAfterACommit()
{
    WritingDesk desk;
    const QFontMetrics metrics = desk.metrics();
    desk.tap({20, 30});
    desk.type("ab");
    desk.tool().paintProportionBuffer();
    desk.type("c\nd");
    QCOMPARE(desk.cursor(), QPoint(20 + metrics.horizontalAdvance("d"), 30 + metrics.height()));
    desk.type("\b\b");
    QCOMPARE(desk.cursor(), QPoint(20 + metrics.horizontalAdvance("abc"), 30));
    desk.type("\nd\ne");
    QImage expected = desk.written("ab");
    const auto write = [&](QPoint at, const char* string) {
        expected = painted(expected, solidPen(Qt::blue, 1), Qt::NoBrush, text(at, string, 1));
    };
    write({20 + metrics.horizontalAdvance("ab"), 30}, "c");
    write({20, 30 + metrics.height()}, "d");
    write({20, 30 + 2 * metrics.height()}, "e");
    desk.stylus.press({150, 90});
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_OpenText::aTabAfterACommitCountsFromWhereTheLineGoesOn()
{
    WritingDesk desk;
    const QFontMetrics metrics = desk.metrics();
    desk.tap({20, 30});
    desk.type("ab");
    desk.tool().paintProportionBuffer();
    const int begin = desk.cursor().x();
    desk.type("\t");
    QCOMPARE(desk.cursor().x(), begin + 8 * metrics.horizontalAdvance("x"));
    desk.type("\n\t");
    QCOMPARE(desk.cursor().x(), 20 + 8 * metrics.horizontalAdvance("x"));
}

void tst_OpenText::resetBufferTakesTheLettersOffTheScreen_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("zoom");
    QTest::newRow("letters") << "abc" << 100;
    QTest::newRow("lines at 200 percent") << "abc\ndef\n\nghi" << 200;
}

void tst_OpenText::resetBufferTakesTheLettersOffTheScreen()
{
    QFETCH(QString, typed);
    QFETCH(int, zoom);
    WritingDesk desk(support::mosaic(QSize(160, 100)), zoom);
    desk.tap({20, 30});
    desk.type(typed);
    desk.tool().resetBuffer();
    QVERIFY(sameImage(desk.screen(), desk.start));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
}

void tst_OpenText::anotherButtonLeavesTheTextAlone()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("abc");
    for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::BackButton})
        desk.stylus.click(desk.cursor(), button); // where one pastes
    QVERIFY(sameImage(desk.screen(), desk.previewed("abc")));
    desk.stylus.press({150, 90});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("abc")));
}

void tst_OpenText::lettersGoWithTheTextThatAHostEnds()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    const auto leave = [&] {
        desk.manager.setCurrentTool(fixtures::Pencil);
        desk.manager.setCurrentTool(fixtures::Text);
    };
    connect(&desk.canvas, &KORVA_Canvas::modified, this, leave, Qt::SingleShotConnection);
    desk.compose("", "abc");
    QVERIFY(sameImage(desk.canvas.shown(), desk.canvas.merged()));
}

void tst_OpenText::leavingTheToolEndsAComposition()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 30});
    desk.compose("abc");
    const int before = compositionsEnded;
    desk.manager.setCurrentTool(fixtures::Pencil);
    QCOMPARE(compositionsEnded, before + 1);
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
}

void tst_OpenText::longTextsTakeNoLongerALetter_data()
{
    QTest::addColumn<Way>("way");
    const auto row = [](const char* name, Way way) { QTest::newRow(name) << way; };
    row("committed by an input method",
        [](WritingDesk& desk, const QString& text) { desk.compose("", text); });
    row("committed, and shown in another size", [](WritingDesk& desk, const QString& text) {
        desk.compose("", text);
        desk.resize(3);
    });
}

void tst_OpenText::longTextsTakeNoLongerALetter()
{
    QFETCH(const Way, way);
    // Of this thread's work, which is the same on a busy machine.
    const auto workSoFar = [] {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
    };
    const auto workOf = [&](int lines) {
        qint64 best = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 3; ++i) {
            WritingDesk desk;
            desk.tap({20, 30});
            const qint64 before = workSoFar();
            way(desk, QString("a line of words\n").repeated(lines));
            best = std::min<qint64>(best, workSoFar() - before);
        }
        return best;
    };
    const double few = double(workOf(25));
    const double many = double(workOf(100)); // four times as many; in the square it would be sixteen times
    QVERIFY2(many < 8 * few, qPrintable(QString("%1 ms, then %2 ms").arg(few / 1e6).arg(many / 1e6)));
}

int main(int argc, char** argv)
{
    return support::run<tst_OpenText>(argc, argv);
}

#include "tst_OpenText.moc"
