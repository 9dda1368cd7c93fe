#include "TextFixtures.h"

using fixtures::painted;
using fixtures::solidPen;
using fixtures::text;
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

    // Committing
    void nextPressCommits();
    void twoLinesAreOneFontHeightApart();
    void previewMarksThePixelsOfTheCommit();
    void zoomedTextLandsAtTheTapInItsOwnSize();
    void committedInTheLeftPensColor();
    void dragCommitsAndOpensNoText();
    void emptyTextCounts();
    void leavingTheToolCommits();
    void leavingTheToolWithoutTypingCounts();
    void leavingTheToolLeavesNoCursor();
    void textKeyHoldsUndoBack();
    void undoBringsThePictureBack();
    void floatingPieceIsMergedByTheCommit();

    // What the editor asks for
    void bufferIsEmptyOnlyAfterATap();
    void paintProportionBufferGoesOnAtTheCursor();
    void proportionStatusEndsWithTheNextLetter();
    void resetBufferForgetsTheText();
    void textGoesOnAtItsStartAfterAReset();
    void clearedCanvasForgetsTheText();
    void sizes_data();
    void sizes();
    void penChangedShowsTheTextInTheNewSize();
    void penChangedReplaysDeletions();
    void penChangedAfterACommitReplaysNothing();
    void simulatedKeysAreNotRecorded();

    // The input method
    void compositionIsShown();
    void compositionIsCommittedAsTyped_data();
    void compositionIsCommittedAsTyped();
    void compositionCanBeCancelled();
    void compositionIsReplayed();
    void inputMethodIsOnlyForAnOpenText();

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

// --- Committing

void tst_Text::nextPressCommits()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("abc");
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    desk.stylus.press({100, 90});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("abc")));
    QVERIFY(sameImage(desk.canvas.shown(), desk.written("abc")));
    QVERIFY(!desk.tool().getTextKey());
    QVERIFY(desk.canvas.isModified());
    desk.stylus.release({100, 90});
    QVERIFY(desk.tool().isBufferEmpty());
    QCOMPARE(desk.cursor(), QPoint(100, 90));
}

void tst_Text::twoLinesAreOneFontHeightApart()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab\nc");
    desk.stylus.press({100, 90});
    const QFont font = fixtures::textFont(1);
    QVERIFY(sameImage(desk.canvas.merged(),
                      painted(desk.base, QColor(Qt::blue), Qt::NoBrush, [&](auto& painter) {
                          painter.setFont(font);
                          painter.drawText(20, 50, "ab");
                          painter.drawText(20, 50 + QFontMetrics(font).height(), "c");
                      })));
}

void tst_Text::previewMarksThePixelsOfTheCommit()
{
    WritingDesk desk;
    desk.manager.setLMBColor(Qt::black);
    desk.tap({20, 50});
    desk.type("Wave f\u00e4fi\nj\u0301");
    const QImage preview = desk.screen();
    QVERIFY(support::inkCount(preview) > 50);
    desk.tool().paintBuffer();
    QVERIFY(sameImage(desk.canvas.merged(), preview)); // white inverted is the black of the pen
}

void tst_Text::zoomedTextLandsAtTheTapInItsOwnSize()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)), 200, 3);
    desk.tap({41, 101});
    desk.type("ab");
    QVERIFY(sameImage(desk.screen(), toggled(desk.start, 3, text({41, 101}, "ab", 3))));
    desk.stylus.press({200, 190});
    QVERIFY(sameImage(desk.canvas.merged(),
                      painted(desk.base, solidPen(Qt::blue, 3), Qt::NoBrush, text({20, 50}, "ab", 3))));
    QVERIFY(sameImage(desk.canvas.shown(), support::scaled(desk.canvas.merged(), 200)));
}

void tst_Text::committedInTheLeftPensColor()
{
    WritingDesk desk;
    fixtures::Stylus stylus(desk.tool());
    stylus.press({20, 50}, Qt::RightButton);
    stylus.release({20, 50}, Qt::RightButton);
    desk.tapped = QPoint(20, 50);
    desk.type("a");
    desk.tool().paintBuffer();
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("a"))); // blue
}

void tst_Text::dragCommitsAndOpensNoText()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("a");
    desk.stylus.drag({{80, 20}, {120, 60}});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("a")));
    QVERIFY(sameImage(desk.canvas.shown(), desk.written("a")));
    QVERIFY(!desk.tool().takesText());
}

void tst_Text::emptyTextCounts()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.canvas.pixmap()->fill(Qt::yellow);
    desk.stylus.press({100, 90});
    QVERIFY(desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.snapshot(), support::sheet(QSize(160, 100), Qt::yellow)));
}

void tst_Text::leavingTheToolCommits()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)), 150);
    desk.tap({20, 50});
    desk.type("ab\nc");
    const QImage written = desk.written("ab\nc");
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(sameImage(desk.canvas.merged(), written));
    QVERIFY(sameImage(desk.canvas.shown(), support::scaled(written, 150)));
}

void tst_Text::leavingTheToolWithoutTypingCounts()
{
    WritingDesk desk;
    desk.canvas.pixmap()->fill(Qt::yellow);
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.snapshot(), support::sheet(QSize(160, 100), Qt::yellow)));
}

void tst_Text::leavingTheToolLeavesNoCursor()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(QAbstractEventDispatcher::instance()
                ->registeredTimers(desk.manager.tool(fixtures::Text))
                .isEmpty());
    desk.manager.setCurrentTool(fixtures::Text);
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    desk.tool().clearOldCursor();
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_Text::textKeyHoldsUndoBack()
{
    WritingDesk desk;
    desk.canvas.pixmap()->fill(Qt::yellow);
    desk.canvas.updateZoomed();
    desk.tap({20, 50});
    desk.type("a");
    QVERIFY(desk.tool().getTextKey());
    support::SignalRecorder recorder;
    recorder.watch(&desk.canvas, &KORVA_Canvas::canUndo);
    recorder.watch(&desk.canvas, &KORVA_Canvas::canRedo);
    desk.canvas.undo();
    QCOMPARE(recorder.taken(), QStringList({"canUndo(false)", "canRedo(true)"}));
    QVERIFY(sameImage(desk.canvas.merged(), support::sheet(QSize(160, 100), Qt::yellow)));
    desk.tool().paintBuffer();
    desk.canvas.undo();
    QVERIFY(sameImage(desk.canvas.merged(), support::sheet(QSize(160, 100), Qt::yellow)));
}

void tst_Text::undoBringsThePictureBack()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)), 92);
    desk.tap({20, 50});
    desk.type("abc");
    desk.stylus.press({100, 80});
    QVERIFY(desk.canvas.merged() != desk.base);
    desk.canvas.undo();
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_Text::floatingPieceIsMergedByTheCommit()
{
    WritingDesk desk;
    fixtures::setClipboard(support::sheet(QSize(40, 60), Qt::yellow));
    desk.tap({20, 50});
    desk.type("a");
    desk.canvas.paste();
    desk.tool().paintBuffer();
    QVERIFY(!desk.canvas.isFloating());
    QVERIFY(
        sameImage(desk.canvas.merged(), painted(support::filled(desk.base, QRect(0, 0, 40, 60), Qt::yellow),
                                                QColor(Qt::blue), Qt::NoBrush, text({20, 50}, "a", 1))));
    QVERIFY(sameImage(desk.canvas.shown(), desk.canvas.merged()));
}

// --- What the editor asks for

void tst_Text::bufferIsEmptyOnlyAfterATap()
{
    WritingDesk desk;
    QVERIFY(!desk.tool().isBufferEmpty());
    desk.tool().resetBuffer();
    QVERIFY(!desk.tool().isBufferEmpty()); // there is none yet
    desk.tap({20, 50});
    QVERIFY(desk.tool().isBufferEmpty());
    desk.type("a");
    QVERIFY(!desk.tool().isBufferEmpty());
    desk.type("\b");
    QVERIFY(desk.tool().isBufferEmpty());
}

void tst_Text::paintProportionBufferGoesOnAtTheCursor()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab");
    const QPoint end = desk.cursor();
    desk.tool().paintProportionBuffer();
    const QImage first = desk.written("ab");
    QVERIFY(sameImage(desk.canvas.merged(), first));
    QVERIFY(sameImage(desk.canvas.shown(), first));
    QVERIFY(desk.tool().isBufferEmpty());
    QVERIFY(!desk.tool().getTextKey());
    QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(&desk.tool()).isEmpty());
    QCOMPARE(desk.cursor(), end);

    desk.type("c");
    QVERIFY(sameImage(desk.screen(), toggled(first, 1, text(end, "c", 1))));
    desk.stylus.press({100, 90});
    QVERIFY(
        sameImage(desk.canvas.merged(), painted(first, QColor(Qt::blue), Qt::NoBrush, text(end, "c", 1))));
}

void tst_Text::proportionStatusEndsWithTheNextLetter()
{
    WritingDesk desk;
    desk.tap({20, 50});
    QVERIFY(!desk.tool().getPaintPropotionStatus());
    desk.tool().paintProportionBuffer();
    QVERIFY(desk.tool().getPaintPropotionStatus());
    desk.type("\n\b");
    QVERIFY(desk.tool().getPaintPropotionStatus());
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    desk.tool().keyPressEventSimu(&letter);
    QVERIFY(desk.tool().getPaintPropotionStatus());
    desk.type("a");
    QVERIFY(!desk.tool().getPaintPropotionStatus());
}

void tst_Text::resetBufferForgetsTheText()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab");
    desk.tool().resetBuffer();
    QVERIFY(desk.tool().isBufferEmpty());
    QVERIFY(!desk.tool().getTextKey());
    desk.stylus.press({100, 90});
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_Text::textGoesOnAtItsStartAfterAReset()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab\nc");
    desk.tool().resetBuffer();
    QCOMPARE(desk.cursor(), QPoint(20, 50));
    desk.type("d");
    QVERIFY(sameImage(desk.screen(), desk.previewed("d")));
    desk.resize(5);
    QVERIFY(sameImage(desk.screen(), desk.previewed("d")));
}

void tst_Text::clearedCanvasForgetsTheText()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab");
    desk.canvas.clearCanvas(Qt::yellow);
    QVERIFY(desk.tool().isBufferEmpty());
    const QImage yellow = support::sheet(QSize(160, 100), Qt::yellow);
    QVERIFY(sameImage(desk.screen(), yellow));
    desk.stylus.press({100, 90});
    QVERIFY(sameImage(desk.canvas.merged(), yellow));
    QVERIFY(sameImage(desk.canvas.shown(), yellow));
}

void tst_Text::sizes_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("7 pt") << 1;
    QTest::newRow("9 pt") << 3;
    QTest::newRow("11 pt") << 5;
    QTest::newRow("none of the three") << 2;
}

void tst_Text::sizes()
{
    QFETCH(const int, width);
    WritingDesk desk(support::mosaic(QSize(160, 100)), 100, width);
    desk.tap({20, 50});
    desk.type("Ag");
    QVERIFY(sameImage(desk.screen(), desk.previewed("Ag")));
    desk.tool().paintBuffer();
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("Ag")));
}

void tst_Text::penChangedShowsTheTextInTheNewSize()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("ab\nc");
    const QImage small = desk.screen();
    desk.resize(5);
    QVERIFY(desk.screen() != small);
    QVERIFY(sameImage(desk.screen(), desk.previewed("ab\nc")));
    QCOMPARE(desk.cursor(),
             QPoint(20 + desk.metrics().horizontalAdvance('c'), 50 + desk.metrics().height()));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(desk.tool().getTextKey());
    desk.stylus.press({100, 90});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("ab\nc")));
}

void tst_Text::penChangedReplaysDeletions()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("abc\b\n\b\b\nd");
    for (const int width : {3, 5, 1}) {
        desk.resize(width);
        QVERIFY(sameImage(desk.screen(), desk.previewed("a\nd")));
    }
    desk.type("\b\b");
    QVERIFY(sameImage(desk.screen(), desk.previewed("a")));
    QCOMPARE(desk.cursor(), QPoint(20 + desk.metrics().horizontalAdvance('a'), 50));
}

void tst_Text::penChangedAfterACommitReplaysNothing()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("ab");
    desk.tap({100, 80});
    const QImage committed = desk.canvas.merged();
    desk.resize(5);
    QVERIFY(sameImage(desk.screen(), committed));
    QVERIFY(desk.tool().isBufferEmpty());
}

void tst_Text::simulatedKeysAreNotRecorded()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("a");
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, "b");
    desk.tool().keyPressEventSimu(&letter);
    QVERIFY(sameImage(desk.screen(), desk.previewed("ab")));
    desk.resize(5);
    QVERIFY(sameImage(desk.screen(), desk.previewed("a")));
}

// --- The input method

void tst_Text::compositionIsShown()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.type("x");
    desk.compose("n");
    desk.compose("ni");
    QVERIFY(sameImage(desk.screen(), desk.previewed("xni")));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    desk.compose("", u"\u4f60"_qs);
    QVERIFY(sameImage(desk.screen(), desk.previewed(u"x\u4f60"_qs)));
    QCOMPARE(desk.cursor().x(),
             20 + desk.metrics().horizontalAdvance("x") + desk.metrics().horizontalAdvance(u"\u4f60"_qs));
    QVERIFY(desk.tool().getTextKey());
}

void tst_Text::compositionIsCommittedAsTyped_data()
{
    QTest::addColumn<QString>("committed");
    QTest::addColumn<int>("characters");
    QTest::newRow("letters") << "word" << 4;
    QTest::newRow("Chinese") << u"\u4f60\u597d"_qs << 2;
    QTest::newRow("Japanese") << u"\u65e5\u672c\u8a9e"_qs << 3;
    QTest::newRow("Hangul") << u"\ud55c\uae00"_qs << 2;
    QTest::newRow("emoji beyond the BMP") << u"\U0001f600a\U0001f601"_qs << 3;
    QTest::newRow("combining accents") << u"e\u0301o\u0308"_qs << 2;
    QTest::newRow("two lines and a tab") << "a\nb\tc" << 5;
}

void tst_Text::compositionIsCommittedAsTyped()
{
    QFETCH(const QString, committed);
    QFETCH(const int, characters);
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.compose("...");
    desk.compose("", committed);
    QVERIFY(sameImage(desk.screen(), desk.previewed(committed)));
    for (int i = 0; i < characters; ++i) {
        QVERIFY(!desk.tool().isBufferEmpty());
        desk.type("\b");
    }
    QVERIFY(desk.tool().isBufferEmpty());
    QCOMPARE(desk.cursor(), QPoint(20, 50));
    QVERIFY(sameImage(desk.screen(), desk.start));

    desk.compose("", committed);
    desk.stylus.press({100, 90});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written(committed)));
    QVERIFY(sameImage(desk.canvas.shown(), desk.written(committed)));
}

void tst_Text::compositionCanBeCancelled()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("x");
    desk.compose("abc");
    desk.compose("");
    QVERIFY(sameImage(desk.screen(), desk.previewed("x")));
    desk.compose("abc");
    desk.stylus.press({100, 90});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("x")));
    QVERIFY(sameImage(desk.canvas.shown(), desk.written("x")));
}

void tst_Text::compositionIsReplayed()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.compose("", u"\u4f60\u597d"_qs);
    desk.type("\b");
    desk.resize(5);
    QVERIFY(sameImage(desk.screen(), desk.previewed(u"\u4f60"_qs)));
}

void tst_Text::inputMethodIsOnlyForAnOpenText()
{
    WritingDesk desk;
    QVERIFY(!desk.canvas.inputMethodQuery(Qt::ImEnabled).toBool());
    desk.compose("ab", "c");
    QVERIFY(desk.isUntouched());
    desk.tap({20, 50});
    QVERIFY(desk.canvas.inputMethodQuery(Qt::ImEnabled).toBool());
    QCOMPARE(desk.canvas.inputMethodQuery(Qt::ImFont).value<QFont>(), fixtures::textFont(1));
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(!desk.canvas.inputMethodQuery(Qt::ImEnabled).toBool());
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
