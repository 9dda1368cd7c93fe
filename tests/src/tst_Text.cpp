#include "TextFixtures.h"

using fixtures::toggled;
using fixtures::WritingDesk;
using support::sameImage;

class tst_Text : public support::TestCase
{
    Q_OBJECT

private slots:
    // The stylus and the cursor
    void pointerIsHidden();
    void tapOpensAText_data();
    void tapOpensAText();
    void cursorIsAnIBeam();
    void cursorBlinks();
    void pressHidesTheCursor();
    void zoomTakesTheCursorAway();
    void clearOldCursorHidesItOnce();

    // Keys
    void letterIsShownInvertedAndMovesTheCursor();
    void letterMarksThePictureModified();
    void hiddenCursorStaysHiddenOverALetter();
    void returnGoesToTheNextLine_data();
    void returnGoesToTheNextLine();
    void cursorStaysHiddenAfterReturnAndBackspace_data();
    void cursorStaysHiddenAfterReturnAndBackspace();
    void backspaceTakesTheLastLetter_data();
    void backspaceTakesTheLastLetter();
    void backspaceAfterReturnGoesToTheEndOfTheLineBefore();
    void backspaceOnAnEmptyText();
    void backspaceRemovesOneCharacterAsAPersonCounts_data();
    void backspaceRemovesOneCharacterAsAPersonCounts();
    void tabGoesToTheNextStop();
    void severalCharactersInOneKey();
    void controlsInsideAKeyCanBeDeleted_data();
    void controlsInsideAKeyCanBeDeleted();
    void keysWithoutTextTypeNothing_data();
    void keysWithoutTextTypeNothing();
    void inactiveToolDoesNothing();
};

// --- The stylus and the cursor

void tst_Text::pointerIsHidden()
{
    const WritingDesk desk;
    QCOMPARE(desk.canvas.cursor().shape(), Qt::BlankCursor);
}

void tst_Text::tapOpensAText_data()
{
    QTest::addColumn<QPoint>("release");
    QTest::addColumn<bool>("opens");
    QTest::newRow("same place") << QPoint(30, 40) << true;
    QTest::newRow("two pixels away") << QPoint(32, 38) << true;
    QTest::newRow("three to the right") << QPoint(33, 40) << false;
    QTest::newRow("three up") << QPoint(30, 37) << false;
}

void tst_Text::tapOpensAText()
{
    QFETCH(const QPoint, release);
    QFETCH(const bool, opens);
    WritingDesk desk;
    support::SignalRecorder recorder;
    recorder.watch(&desk.tool(), &KORVA_Tool::TextToolClicked);
    desk.stylus.press({30, 40});
    QCOMPARE(recorder.taken(), QStringList());
    desk.stylus.release(release);
    QCOMPARE(recorder.taken(), QStringList("TextToolClicked()"));
    QCOMPARE(desk.tool().takesText(), opens);
    QCOMPARE(desk.tool().isBufferEmpty(), opens);
    QCOMPARE(desk.canvas.shown() != desk.start, opens); // the cursor
    if (opens)
        QCOMPARE(desk.cursor(), release);
    QVERIFY(!desk.canvas.isModified());
}

void tst_Text::cursorIsAnIBeam()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    QFont font = desk.canvas.font();
    font.setPointSize(23); // the canvas's own font decides
    desk.canvas.setFont(font);
    desk.tap({60, 70});
    const int height = QFontMetrics(font).ascent() / 2 + 1;
    const int width = height / 2 + 1;
    const int left = 60 - width / 2;
    QVERIFY(sameImage(desk.canvas.shown(), toggled(desk.start, 1, [&](QPainter& painter) {
                          painter.fillRect(left, 70 - height, width, 1, Qt::white);
                          painter.fillRect(left, 70, width, 1, Qt::white);
                          painter.fillRect(60, 70 - height + 1, 1, height - 1, Qt::white);
                          // the stem crosses the bars and takes their inversion back
                          painter.fillRect(60, 70 - height, 1, 1, Qt::black);
                          painter.fillRect(60, 70, 1, 1, Qt::black);
                      })));
}

void tst_Text::cursorBlinks()
{
    WritingDesk desk;
    desk.tap({60, 70});
    const QImage beam = desk.canvas.shown();
    desk.blink();
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    desk.blink();
    QVERIFY(sameImage(desk.canvas.shown(), beam));

    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&desk.tool());
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, 500);
    QTRY_VERIFY_WITH_TIMEOUT(desk.canvas.shown() == desk.start, 2000);
}

void tst_Text::pressHidesTheCursor()
{
    WritingDesk desk;
    desk.tap({60, 70});
    desk.stylus.press({10, 20});
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(&desk.tool()).isEmpty());
}

void tst_Text::zoomTakesTheCursorAway()
{
    WritingDesk desk;
    desk.tap({60, 70});
    desk.canvas.setZoom(200);
    desk.canvas.setZoom(100);
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    desk.tool().clearOldCursor();
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    desk.blink();
    QVERIFY(desk.canvas.shown() != desk.start);
}

void tst_Text::clearOldCursorHidesItOnce()
{
    WritingDesk desk;
    desk.tap({60, 70});
    for (int i = 0; i < 2; ++i) {
        desk.tool().clearOldCursor();
        QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    }
}

// --- Keys

void tst_Text::letterIsShownInvertedAndMovesTheCursor()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    const QImage beam = desk.canvas.shown();
    desk.type("a");
    QCOMPARE(desk.cursor(), QPoint(20 + desk.metrics().horizontalAdvance('a'), 50));
    QVERIFY(desk.canvas.shown() != beam);
    QVERIFY(desk.canvas.shown() != desk.previewed("a")); // the cursor is shown, too
    QVERIFY(sameImage(desk.screen(), desk.previewed("a")));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
}

void tst_Text::letterMarksThePictureModified()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("\n\b\b");
    QVERIFY(!desk.canvas.isModified());
    QVERIFY(desk.tool().getTextKey());
    desk.type("a");
    QVERIFY(desk.canvas.isModified());
}

void tst_Text::hiddenCursorStaysHiddenOverALetter()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.blink();
    desk.type("a");
    QVERIFY(sameImage(desk.canvas.shown(), desk.previewed("a")));
}

void tst_Text::returnGoesToTheNextLine_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_Text::returnGoesToTheNextLine()
{
    QFETCH(const Qt::Key, key);
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab");
    desk.stylus.key(key, "\r");
    QCOMPARE(desk.cursor(), QPoint(20, 50 + desk.metrics().height()));
    desk.type("c");
    QVERIFY(sameImage(desk.screen(), desk.previewed("ab\nc")));
}

void tst_Text::cursorStaysHiddenAfterReturnAndBackspace_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("left");
    QTest::newRow("Return") << "a\n"
                            << "a";
    QTest::newRow("BackSpace") << "ab\b"
                               << "a";
}

void tst_Text::cursorStaysHiddenAfterReturnAndBackspace()
{
    QFETCH(const QString, keys);
    QFETCH(const QString, left);
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type(keys);
    QVERIFY(sameImage(desk.canvas.shown(), desk.previewed(left)));
    desk.blink();
    QVERIFY(desk.canvas.shown() != desk.previewed(left));
}

void tst_Text::backspaceTakesTheLastLetter_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("BackSpace") << Qt::Key_Backspace;
    QTest::newRow("Delete") << Qt::Key_Delete;
}

void tst_Text::backspaceTakesTheLastLetter()
{
    QFETCH(const Qt::Key, key);
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("ab");
    desk.stylus.key(key, "\b");
    QCOMPARE(desk.cursor(), QPoint(20 + desk.metrics().horizontalAdvance('a'), 50));
    QVERIFY(sameImage(desk.screen(), desk.previewed("a")));
    desk.stylus.key(key, "\b");
    QVERIFY(sameImage(desk.screen(), desk.start));
    QVERIFY(desk.tool().isBufferEmpty());
}

void tst_Text::backspaceAfterReturnGoesToTheEndOfTheLineBefore()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab");
    const QPoint end = desk.cursor();
    desk.type("\n\nc\b");
    desk.type("\b");
    QCOMPARE(desk.cursor(), QPoint(20, 50 + desk.metrics().height()));
    desk.type("\b");
    QCOMPARE(desk.cursor(), end);
    desk.type("\b");
    QVERIFY(sameImage(desk.screen(), desk.previewed("a")));
}

void tst_Text::backspaceOnAnEmptyText()
{
    WritingDesk desk;
    desk.tap({20, 50});
    const QImage beam = desk.canvas.shown();
    desk.type("\b\b");
    QVERIFY(sameImage(desk.canvas.shown(), beam));
    QCOMPARE(desk.cursor(), QPoint(20, 50));
    desk.type("a");
    desk.resize(5); // replays the two as well
    QVERIFY(sameImage(desk.screen(), desk.previewed("a")));
}

void tst_Text::backspaceRemovesOneCharacterAsAPersonCounts_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("CJK") << QStringList{u"\u6f22"_qs};
    QTest::newRow("beyond the BMP") << QStringList{u"\U0001f600"_qs};
    QTest::newRow("accent in one key") << QStringList{u"e\u0301"_qs};
    QTest::newRow("accent in a key of its own") << QStringList{u"e"_qs, u"\u0301"_qs};
    QTest::newRow("two accents") << QStringList{u"o"_qs, u"\u0302"_qs, u"\u0323"_qs};
    QTest::newRow("family") << QStringList{u"\U0001f468\u200d\U0001f469\u200d\U0001f467"_qs};
    QTest::newRow("flag") << QStringList{u"\U0001f1e9\U0001f1ea"_qs};
}

void tst_Text::backspaceRemovesOneCharacterAsAPersonCounts()
{
    QFETCH(const QStringList, keys);
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("x");
    const QPoint before = desk.cursor();
    for (const QString& key : keys)
        desk.stylus.key(Qt::Key_unknown, key);
    QVERIFY(sameImage(desk.screen(), desk.previewed("x" + keys.join(""))));
    desk.type("\b");
    QVERIFY(sameImage(desk.screen(), desk.previewed("x")));
    QCOMPARE(desk.cursor(), before);
}

void tst_Text::tabGoesToTheNextStop()
{
    WritingDesk desk(support::mosaic(QSize(320, 100)));
    desk.tap({20, 50});
    const int stop = 8 * desk.metrics().horizontalAdvance('x');
    desk.type("a");
    const QPoint before = desk.cursor();
    desk.type("\t");
    QCOMPARE(desk.cursor(), QPoint(20 + stop, 50));
    desk.type("\tb");
    QVERIFY(sameImage(desk.screen(), desk.previewed("a\t\tb")));
    desk.type("\b");
    QCOMPARE(desk.cursor(), QPoint(20 + 2 * stop, 50));
    desk.type("\b\b");
    QCOMPARE(desk.cursor(), before);
    QVERIFY(sameImage(desk.screen(), desk.previewed("a")));
}

void tst_Text::severalCharactersInOneKey()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.stylus.key(Qt::Key_unknown, "wii");
    QCOMPARE(desk.cursor(), QPoint(20 + desk.metrics().horizontalAdvance('w'), 50)); // by the first one's
    QVERIFY(sameImage(desk.screen(), desk.previewed("wii")));
    desk.type("\b");
    QVERIFY(sameImage(desk.screen(), desk.previewed("wi")));
}

void tst_Text::controlsInsideAKeyCanBeDeleted_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("tab") << "a\t";
    QTest::newRow("line break") << "a\n";
    QTest::newRow("two tabs") << "\t\t";
}

void tst_Text::controlsInsideAKeyCanBeDeleted()
{
    QFETCH(const QString, key);
    WritingDesk desk;
    desk.tap({20, 50});
    desk.stylus.key(Qt::Key_unknown, key);
    desk.type("\b\b\b");
    QVERIFY(desk.tool().isBufferEmpty());
    QVERIFY(sameImage(desk.screen(), desk.start));
}

void tst_Text::keysWithoutTextTypeNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("keyText");
    QTest::newRow("Shift") << Qt::Key_Shift << "";
    QTest::newRow("Left") << Qt::Key_Left << "";
    QTest::newRow("F1") << Qt::Key_F1 << "";
    QTest::newRow("Escape") << Qt::Key_Escape << "\x1b";
    QTest::newRow("Ctrl+C") << Qt::Key_C << "\x03";
    QTest::newRow("Ctrl+H") << Qt::Key_H << "\b";
}

void tst_Text::keysWithoutTextTypeNothing()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, keyText);
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("a");
    desk.tool().paintBuffer();
    desk.canvas.clearModified();
    const QImage screen = desk.canvas.shown();
    const QPoint cursor = desk.cursor();
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, keyText);
    desk.tool().keyPressEvent(&event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!desk.tool().getTextKey());
    QVERIFY(!desk.canvas.isModified());
    QCOMPARE(desk.cursor(), cursor);
    QVERIFY(sameImage(desk.canvas.shown(), screen));
}

void tst_Text::inactiveToolDoesNothing()
{
    fixtures::Desk desk(fixtures::Pencil);
    auto* tool = qobject_cast<KORVA_Text*>(desk.manager.tool(fixtures::Text));
    fixtures::Stylus stylus(*tool);
    stylus.press({20, 50});
    stylus.release({20, 50});
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    tool->keyPressEvent(&letter);
    tool->keyPressEventSimu(&letter);
    tool->paintBuffer();
    tool->clearOldCursor();
    QInputMethodEvent composed("a", {});
    tool->inputMethodEvent(&composed);
    QTimerEvent tick(1);
    QCoreApplication::sendEvent(tool, &tick);
    QVERIFY(desk.isUntouched());
    QVERIFY(!tool->getTextKey());
}

int main(int argc, char** argv)
{
    return support::run<tst_Text>(argc, argv);
}

#include "tst_Text.moc"
