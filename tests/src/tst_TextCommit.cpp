#include "TextFixtures.h"

using fixtures::painted;
using fixtures::solidPen;
using fixtures::text;
using fixtures::toggled;
using fixtures::WritingDesk;
using support::sameImage;

/// How typed text gets into the picture, and what the editor asks of the tool.
class tst_TextCommit : public support::TestCase
{
    Q_OBJECT

private slots:
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
};

// --- Committing

void tst_TextCommit::nextPressCommits()
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

void tst_TextCommit::twoLinesAreOneFontHeightApart()
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

void tst_TextCommit::previewMarksThePixelsOfTheCommit()
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

void tst_TextCommit::zoomedTextLandsAtTheTapInItsOwnSize()
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

void tst_TextCommit::committedInTheLeftPensColor()
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

void tst_TextCommit::dragCommitsAndOpensNoText()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.type("a");
    desk.stylus.drag({{80, 20}, {120, 60}});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("a")));
    QVERIFY(sameImage(desk.canvas.shown(), desk.written("a")));
    QVERIFY(!desk.tool().takesText());
}

void tst_TextCommit::emptyTextCounts()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.canvas.pixmap()->fill(Qt::yellow);
    desk.stylus.press({100, 90});
    QVERIFY(desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.snapshot(), support::sheet(QSize(160, 100), Qt::yellow)));
}

void tst_TextCommit::leavingTheToolCommits()
{
    WritingDesk desk(support::mosaic(QSize(160, 100)), 150);
    desk.tap({20, 50});
    desk.type("ab\nc");
    const QImage written = desk.written("ab\nc");
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(sameImage(desk.canvas.merged(), written));
    QVERIFY(sameImage(desk.canvas.shown(), support::scaled(written, 150)));
}

void tst_TextCommit::leavingTheToolWithoutTypingCounts()
{
    WritingDesk desk;
    desk.canvas.pixmap()->fill(Qt::yellow);
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.snapshot(), support::sheet(QSize(160, 100), Qt::yellow)));
}

void tst_TextCommit::leavingTheToolLeavesNoCursor()
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

void tst_TextCommit::textKeyHoldsUndoBack()
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

void tst_TextCommit::undoBringsThePictureBack()
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

void tst_TextCommit::floatingPieceIsMergedByTheCommit()
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

void tst_TextCommit::bufferIsEmptyOnlyAfterATap()
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

void tst_TextCommit::paintProportionBufferGoesOnAtTheCursor()
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

void tst_TextCommit::proportionStatusEndsWithTheNextLetter()
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

void tst_TextCommit::resetBufferForgetsTheText()
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

void tst_TextCommit::textGoesOnAtItsStartAfterAReset()
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

void tst_TextCommit::clearedCanvasForgetsTheText()
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

void tst_TextCommit::sizes_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("7 pt") << 1;
    QTest::newRow("9 pt") << 3;
    QTest::newRow("11 pt") << 5;
    QTest::newRow("none of the three") << 2;
}

void tst_TextCommit::sizes()
{
    QFETCH(const int, width);
    WritingDesk desk(support::mosaic(QSize(160, 100)), 100, width);
    desk.tap({20, 50});
    desk.type("Ag");
    QVERIFY(sameImage(desk.screen(), desk.previewed("Ag")));
    desk.tool().paintBuffer();
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("Ag")));
}

void tst_TextCommit::penChangedShowsTheTextInTheNewSize()
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

void tst_TextCommit::penChangedReplaysDeletions()
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

void tst_TextCommit::penChangedAfterACommitReplaysNothing()
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

void tst_TextCommit::simulatedKeysAreNotRecorded()
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

int main(int argc, char** argv)
{
    return support::run<tst_TextCommit>(argc, argv);
}

#include "tst_TextCommit.moc"
