#include "KORVA_EditCanvas.h"
#include "TextFixtures.h"

#include <QSignalSpy>

using fixtures::painted;
using fixtures::solidPen;
using fixtures::WritingDesk;
using support::sameImage;

namespace {

KORVA_Manners allForText()
{
    KORVA_Manners manners;
    manners.coloredText = manners.escapeDropsText = manners.undoTypes = manners.textInside =
        manners.pointSizes = true;
    return manners;
}

KORVA_Manners only(bool KORVA_Manners::*modern)
{
    KORVA_Manners manners;
    manners.*modern = true;
    return manners;
}

struct ModernDesk : WritingDesk
{
    explicit ModernDesk(const KORVA_Manners& manners,
                        const QImage& image = support::mosaic(QSize(160, 100)), int zoom = 100,
                        int width = 1)
        : WritingDesk(image, zoom, width)
    {
        canvas.setManners(manners);
        log.watch(&canvas, &KORVA_Canvas::canUndo);
        log.watch(&canvas, &KORVA_Canvas::canRedo);
        log.watch(&canvas, &KORVA_Canvas::pendingDropped);
    }

    void escape() { stylus.key(Qt::Key_Escape); }
    /// What a commit now would leave.
    [[nodiscard]] QImage pending() const { return canvas.KORVA_Canvas::snapshot().toImage(); }
    [[nodiscard]] bool isWithout(const QImage& picture, const QImage& screen)
    {
        return sameImage(canvas.merged(), picture) && sameImage(canvas.shown(), screen);
    }

    support::SignalRecorder log;
};

QString randomText(QRandomGenerator& random)
{
    const QStringList letters{"a", "W",          "f",          "i",  " ",  "g",
                              ".", u"\u00e9"_qs, u"\u0416"_qs, "\n", "\t", "\b"};
    QString text;
    for (int i = random.bounded(12); i >= 0; --i)
        text += letters[random.bounded(int(letters.size()))];
    return text;
}

/// The words of a text in lines that end before a place, the first of which begins at another.
QString wrappedWords(const QString& text, int room, const QFontMetrics& metrics)
{
    QStringList lines{QString()};
    for (const QString& word : text.split(' ')) {
        QString& line = lines.last();
        const QString longer = line.isEmpty() ? word : line + ' ' + word;
        if (metrics.horizontalAdvance(longer) <= room)
            line = longer;
        else {
            line += ' '; // it hangs over the edge
            lines << word;
        }
    }
    return lines.join('\n');
}

qsizetype inkOf(const QImage& image)
{
    qsizetype ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += image.pixelColor(x, y) == QColor(Qt::blue) ? 1 : 0;
    }
    return ink;
}

} // namespace

/// The text tool with the switches of KORVA_Manners that are its own.
class tst_TextManners : public support::TestCase
{
    Q_OBJECT

private slots:
    void previewIsTheCommit_data();
    void previewIsTheCommit();
    void previewFollowsTheColor();
    void caretStandsWhereLettersWillBe();
    void escapeLeavesNoTrace_data();
    void escapeLeavesNoTrace();
    void escapeKeepsEarlierSteps();
    void escapeKeepsOtherChanges();
    void noLettersNoTrace();
    void escapeIsTheHostsClassically();
    void undoTakesWordsBack_data();
    void undoTakesWordsBack();
    void typingEndsRedo();
    void undoneTextIsCommitted();
    void undoAfterTheText();
    void wordsStayInside_data();
    void wordsStayInside();
    void longWordsAreBroken();
    void tapsAtTheEdge();
    void lastLineIsWhole_data();
    void lastLineIsWhole();
    void firstLineStaysWhole();
    void linesBelowACommitStay();
    void sizesInPoints();
    void otherSizeOfOpenText();
    void redoOpensADroppedText_data();
    void redoOpensADroppedText();
    void droppedTextIsForgotten_data();
    void droppedTextIsForgotten();
    void boldLetters_data();
    void boldLetters();
    void boldRowInTheOptions();
};

void tst_TextManners::previewIsTheCommit_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("all");
    for (const int zoom : {37, 50, 92, 100, 150, 200, 333}) {
        for (const int width : {1, 2, 3, 4, 5}) {
            QTest::addRow("%d %%, width %d, colour only", zoom, width) << zoom << width << false;
            QTest::addRow("%d %%, width %d, all", zoom, width) << zoom << width << true;
        }
    }
}

void tst_TextManners::previewIsTheCommit()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    QFETCH(const bool, all);
    constexpr QSize screenSize(120, 90);
    ModernDesk desk(all ? allForText() : only(&KORVA_Manners::coloredText),
                    support::mosaic(screenSize * 100 / zoom), zoom, width);
    QRandomGenerator random(quint32(zoom * 10 + width));
    for (int i = 0; i < 12; ++i) {
        desk.tap({random.bounded(screenSize.width()), random.bounded(screenSize.height())});
        for (int part = 0; part < 3; ++part) {
            desk.type(randomText(random));
            QVERIFY(sameImage(desk.canvas.merged(), desk.base));
            QVERIFY(sameImage(desk.screen(), support::scaled(desk.pending(), zoom)));
            desk.blink();
        }
        const QImage pending = desk.pending();
        desk.stylus.press({10, 10});
        QVERIFY(sameImage(desk.canvas.merged(), pending));
        QVERIFY(sameImage(desk.canvas.shown(), support::scaled(pending, zoom)));
        desk.stylus.release({90, 90}); // no tap: no text
        if (pending != desk.base)
            desk.canvas.undo();
        QVERIFY(sameImage(desk.canvas.merged(), desk.base));
        QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    }
    // And what is committed is what has always been.
    desk.canvas.setManners(only(&KORVA_Manners::coloredText));
    desk.tap({5, 40});
    desk.type("Wg");
    QVERIFY(sameImage(desk.screen(), support::scaled(desk.written("Wg"), zoom)));
}

void tst_TextManners::previewFollowsTheColor()
{
    ModernDesk desk(only(&KORVA_Manners::coloredText));
    desk.tap({20, 40});
    desk.type("Wg");
    desk.manager.setLMBColor(Qt::magenta);
    desk.tool().colorChanged();
    QVERIFY(sameImage(desk.screen(), painted(desk.base, solidPen(Qt::magenta, 1), Qt::NoBrush,
                                             fixtures::text({20, 40}, "Wg", 1))));
}

void tst_TextManners::caretStandsWhereLettersWillBe()
{
    for (const int zoom : {50, 100, 200}) {
        ModernDesk desk(only(&KORVA_Manners::coloredText), support::sheet(QSize(160, 100)), zoom, 3);
        desk.tap(QPoint(20, 40) * zoom / 100);
        desk.type("ab\ncde");
        const int x = 20 + desk.metrics().horizontalAdvance("cde");
        QCOMPARE(desk.cursor(), QPoint(x, 40 + desk.metrics().lineSpacing()) * zoom / 100);
        desk.type("\b\b\b\b");
        QCOMPARE(desk.cursor(), QPoint(20 + desk.metrics().horizontalAdvance("ab"), 40) * zoom / 100);
    }
}

void tst_TextManners::escapeLeavesNoTrace_data()
{
    QTest::addColumn<KORVA_Manners>("manners");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("zoom");
    for (const int steps : {1, 10}) {
        for (const int zoom : {50, 100, 200}) {
            QTest::addRow("alone, %d steps, %d %%", steps, zoom)
                << only(&KORVA_Manners::escapeDropsText) << steps << zoom;
            QTest::addRow("with the others, %d steps, %d %%", steps, zoom) << allForText() << steps << zoom;
        }
    }
}

void tst_TextManners::escapeLeavesNoTrace()
{
    QFETCH(const KORVA_Manners, manners);
    QFETCH(const int, steps);
    QFETCH(const int, zoom);
    ModernDesk desk(manners, support::mosaic(QSize(160, 100)), zoom);
    desk.canvas.setUndoSteps(steps, 1 << 20);
    QCoreApplication::processEvents();
    (void)desk.log.taken();
    const int flag = desk.canvas.undoFlag();
    desk.tap({20, 40});
    desk.type("Some words\nand more");
    desk.blink();
    desk.escape();
    QVERIFY(desk.isWithout(desk.base, desk.start));
    QVERIFY(!desk.canvas.isModified());
    QVERIFY(!desk.tool().takesText());
    QVERIFY(!desk.tool().getTextKey());
    QCOMPARE(desk.canvas.undoFlag(), flag);
    const QStringList told = desk.log.taken();
    QCOMPARE(told.last(), "pendingDropped()");
    QCOMPARE(told.filter("canUndo").last(), "canUndo(false)");
    QCOMPARE(told.filter("canRedo").last(), "canRedo(false)");
    QCoreApplication::processEvents();
    QVERIFY(!desk.log.taken().contains("canUndo(true)"));

    desk.stylus.key(Qt::Key_A, "a"); // nothing is open any more
    desk.stylus.press({100, 80});
    desk.stylus.release({150, 90});
    QVERIFY(desk.isWithout(desk.base, desk.start));
    QVERIFY(!desk.canvas.isModified());
}

void tst_TextManners::escapeKeepsEarlierSteps()
{
    for (const int steps : {1, 10}) {
        ModernDesk desk(allForText());
        desk.canvas.setUndoSteps(steps, 1 << 20);
        desk.canvas.clearCanvas(Qt::yellow);
        QCoreApplication::processEvents();
        desk.tap({20, 40});
        desk.type("word");
        desk.escape();
        QVERIFY(desk.canvas.isModified());
        QCOMPARE(desk.log.taken().filter("canUndo").last(), "canUndo(true)");
        desk.canvas.undo();
        QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    }
}

void tst_TextManners::escapeKeepsOtherChanges()
{
    ModernDesk desk(only(&KORVA_Manners::escapeDropsText));
    desk.tap({20, 40});
    desk.type("word");
    desk.canvas.clearCanvas(Qt::yellow); // while the text is open
    desk.type("other");
    desk.escape();
    QVERIFY(desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.merged(), support::sheet(QSize(160, 100), Qt::yellow)));
    desk.tap({20, 40});
    desk.type("committed");
    desk.tool().paintProportionBuffer();
    const QImage committed = desk.canvas.merged();
    desk.type("dropped");
    desk.escape();
    QVERIFY(desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.merged(), committed));
}

void tst_TextManners::noLettersNoTrace()
{
    ModernDesk desk(only(&KORVA_Manners::escapeDropsText));
    desk.tap({20, 40});
    desk.type("a\b");
    desk.stylus.press({10, 10});
    desk.stylus.release({90, 90});
    desk.tap({30, 40});
    desk.manager.setCurrentTool(fixtures::Pencil);
    desk.manager.setCurrentTool(fixtures::Text);
    QVERIFY(desk.isWithout(desk.base, desk.start));
    QVERIFY(!desk.canvas.isModified());
    QCOMPARE(desk.canvas.undoFlag(), 0);
}

void tst_TextManners::escapeIsTheHostsClassically()
{
    ModernDesk desk({});
    desk.tap({20, 40});
    desk.type("Wg");
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    desk.tool().keyPressEvent(&event);
    QVERIFY(!event.isAccepted());
    QVERIFY(desk.tool().takesText());
    QVERIFY(sameImage(desk.screen(), desk.previewed("Wg")));
}

void tst_TextManners::undoTakesWordsBack_data()
{
    QTest::addColumn<KORVA_Manners>("manners");
    QTest::addColumn<int>("steps");
    for (const int steps : {1, 10}) {
        QTest::addRow("alone, %d steps", steps) << only(&KORVA_Manners::undoTypes) << steps;
        QTest::addRow("with the others, %d steps", steps) << allForText() << steps;
    }
}

void tst_TextManners::undoTakesWordsBack()
{
    QFETCH(const KORVA_Manners, manners);
    QFETCH(const int, steps);
    ModernDesk desk(manners);
    desk.canvas.setUndoSteps(steps, 1 << 20);
    desk.tap({20, 40});
    desk.type("one two\nthr\b\b\tx");
    const QStringList texts{"",           "one ",         "one two\n",    "one two\nthr",
                            "one two\nt", "one two\nt\t", "one two\nt\tx"};
    const auto shows = [&](const QString& text) { return sameImage(desk.pending(), desk.written(text)); };
    QVERIFY(shows(texts.last()));
    for (qsizetype i = texts.size() - 2; i >= 0; --i) {
        (void)desk.log.taken();
        desk.canvas.undo();
        QVERIFY2(shows(texts[i]), qPrintable(texts[i]));
        const QStringList told = desk.log.taken();
        QCOMPARE(told.mid(told.size() - 2), QStringList({"canUndo(true)", "canRedo(true)"}));
        QCoreApplication::processEvents();
    }
    QVERIFY(sameImage(desk.screen(), desk.start));
    for (const QString& text : texts.mid(1)) {
        desk.canvas.redo();
        QVERIFY2(shows(text), qPrintable(text));
        const QImage screen = desk.screen();
        QVERIFY(sameImage(screen, manners.coloredText ? desk.pending() : desk.previewed(text)));
    }
    QCOMPARE(desk.log.taken().filter("canRedo").last(), "canRedo(false)");
    desk.canvas.redo(); // no more
    QVERIFY(shows(texts.last()));

    for (qsizetype i = texts.size(); i > 0; --i)
        desk.canvas.undo(); // the last one drops the text
    QVERIFY(!desk.tool().takesText());
    QVERIFY(!desk.canvas.isModified());
    QVERIFY(desk.isWithout(desk.base, desk.start));
    QCOMPARE(desk.log.taken().last(), "pendingDropped()");
}

void tst_TextManners::typingEndsRedo()
{
    ModernDesk desk(only(&KORVA_Manners::undoTypes));
    desk.tap({20, 40});
    desk.type("one two");
    desk.canvas.undo();
    QCOMPARE(desk.log.taken().last(), "canRedo(true)");
    desk.type("\b");
    QCOMPARE(desk.log.taken().last(), "canRedo(false)");
    desk.canvas.redo();
    QVERIFY(sameImage(desk.pending(), desk.written("one")));
    desk.canvas.undo();
    QVERIFY(sameImage(desk.pending(), desk.written("one ")));
    desk.type("\b\b\b\b\b"); // back over what undo has brought
    QVERIFY(sameImage(desk.screen(), desk.start));
}

void tst_TextManners::undoneTextIsCommitted()
{
    ModernDesk desk(only(&KORVA_Manners::undoTypes));
    desk.tap({20, 40});
    desk.type("one two");
    desk.canvas.undo();
    desk.stylus.press({5, 5});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("one ")));
}

void tst_TextManners::undoAfterTheText()
{
    ModernDesk desk(only(&KORVA_Manners::undoTypes));
    desk.canvas.setUndoSteps(10, 1 << 20);
    desk.tap({20, 40});
    desk.type("one two");
    desk.stylus.press({5, 5});
    desk.stylus.release({90, 90});
    QCoreApplication::processEvents();
    QCOMPARE(desk.log.taken().last(), "canRedo(false)");
    desk.canvas.undo();
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    desk.canvas.redo();
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("one two")));
}

void tst_TextManners::wordsStayInside_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    QTest::addColumn<KORVA_Manners>("manners");
    for (const int zoom : {37, 50, 100, 200, 333}) {
        for (const int width : {1, 3, 5}) {
            QTest::addRow("%d %%, width %d", zoom, width)
                << zoom << width << only(&KORVA_Manners::textInside);
            QTest::addRow("%d %%, width %d, with the others", zoom, width) << zoom << width << allForText();
        }
    }
}

void tst_TextManners::wordsStayInside()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    QFETCH(const KORVA_Manners, manners);
    const QString text = "Happy birthday to you and all of us";
    ModernDesk desk(manners, support::sheet(QSize(180, 240)), zoom, width);
    desk.tap(QPoint(60, 30) * zoom / 100);
    desk.type(text);
    const QPoint start(desk.tapped.x() * 100 / zoom, desk.tapped.y() * 100 / zoom);
    const QString lines = wrappedWords(text, 180 - 1 - start.x(), desk.metrics());
    QVERIFY(lines.contains('\n'));
    desk.stylus.press({5, 5});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written(lines)));
    const QImage all = painted(support::sheet(QSize(900, 60)), solidPen(Qt::blue, width), Qt::NoBrush,
                               fixtures::text({5, 30}, text, width));
    QCOMPARE(inkOf(desk.canvas.merged()), inkOf(all)); // nothing is cut off
}

void tst_TextManners::longWordsAreBroken()
{
    ModernDesk desk(allForText(), support::sheet(QSize(100, 100)));
    desk.tap({60, 30});
    desk.type("WWWWWWWW");
    const int each = desk.metrics().horizontalAdvance("W");
    const int count = (100 - 1 - 60) / each;
    QVERIFY(count > 1 && count < 8);
    QStringList lines;
    for (QString rest = "WWWWWWWW"; !rest.isEmpty(); rest = rest.mid(count))
        lines << rest.left(count);
    QVERIFY(sameImage(desk.screen(), desk.written(lines.join('\n'))));
    desk.type("\b\b\b\b\b\b\b\b");
    QVERIFY(sameImage(desk.screen(), desk.start));
    QCOMPARE(desk.cursor(), QPoint(60, 30));
}

void tst_TextManners::tapsAtTheEdge()
{
    for (const QPoint at : {QPoint(98, 98), QPoint(99, 0), QPoint(0, 0), QPoint(0, 99)}) {
        ModernDesk desk(only(&KORVA_Manners::textInside), support::sheet(QSize(100, 100)));
        desk.tap(at);
        desk.type("W");
        desk.stylus.press({50, 50});
        const QImage whole = painted(support::sheet(QSize(100, 100)), solidPen(Qt::blue, 1), Qt::NoBrush,
                                     fixtures::text({40, 50}, "W", 1));
        QCOMPARE(inkOf(desk.canvas.merged()), inkOf(whole));
    }
}

void tst_TextManners::sizesInPoints()
{
    const auto written = [](const KORVA_Manners& manners, int width) {
        ModernDesk desk(manners, support::sheet(QSize(160, 100)), 100, width);
        desk.tap({20, 60});
        desk.type("Wg");
        desk.stylus.press({5, 5});
        return desk.canvas.merged();
    };
    const auto inPoints = [](int points) {
        QFont font = fixtures::textFont(1);
        font.setPointSize(points);
        return painted(support::sheet(QSize(160, 100)), solidPen(Qt::blue, 1), Qt::NoBrush,
                       [font](QPainter& painter) {
                           painter.setFont(font);
                           painter.drawText(QRect(20, 60 - QFontMetrics(font).ascent(), 10, 10),
                                            Qt::TextDontClip, "Wg");
                       });
    };
    const KORVA_Manners modern = only(&KORVA_Manners::pointSizes);
    for (const auto& [width, points] :
         {std::pair(1, 12), {2, 12}, {3, 16}, {4, 12}, {5, 20}, {6, 6}, {12, 12}, {28, 28}, {48, 48}})
        QVERIFY(sameImage(written(modern, width), inPoints(points)));
    QVERIFY(sameImage(written({}, 28), inPoints(12)));
}

void tst_TextManners::otherSizeOfOpenText()
{
    ModernDesk desk(allForText());
    desk.tap({20, 60});
    desk.type("one two");
    desk.resize(5);
    QVERIFY(sameImage(desk.screen(), desk.written("one two")));
    desk.canvas.undo();
    QVERIFY(sameImage(desk.screen(), desk.written("one ")));
    desk.escape();
    QVERIFY(desk.isWithout(desk.base, desk.start));
    QVERIFY(!desk.canvas.isModified());
}

void tst_TextManners::lastLineIsWhole_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    QTest::addColumn<KORVA_Manners>("manners");
    for (const int zoom : {37, 50, 100, 200, 333}) {
        for (const int width : {1, 3, 5}) {
            QTest::addRow("%d %%, width %d", zoom, width)
                << zoom << width << only(&KORVA_Manners::textInside);
            QTest::addRow("%d %%, width %d, with the others", zoom, width) << zoom << width << allForText();
        }
    }
}

void tst_TextManners::lastLineIsWhole()
{
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    QFETCH(const KORVA_Manners, manners);
    ModernDesk desk(manners, support::sheet(QSize(180, 140)), zoom, width);
    const auto linesFit = [&](const QString& text) {
        const QImage all = painted(support::sheet(QSize(180, 400)), solidPen(Qt::blue, desk.width()),
                                   Qt::NoBrush, fixtures::text({20, 90}, text, desk.width()));
        return inkOf(desk.pending()) == inkOf(all);
    };
    // A small zoom cannot show every place, and a large one has several for each.
    const auto lowest = [&](int lines) {
        const int others =
            desk.metrics().size(0, "a\nb\nc").height() - desk.metrics().size(0, "a").height();
        return 140 - desk.metrics().descent() - (lines - 1) * others / 2;
    };
    desk.tap(QPoint(20, 135) * zoom / 100);
    desk.type("Wg");
    QVERIFY(linesFit("Wg"));
    desk.type("\nfg");
    QVERIFY(linesFit("Wg\nfg"));
    desk.type("\njj");
    QVERIFY(linesFit("Wg\nfg\njj"));
    if (zoom == 100) {
        QCOMPARE(desk.cursor().y(), lowest(1));
        desk.tapped.setY(lowest(3));
        QVERIFY(sameImage(desk.pending(), desk.written("Wg\nfg\njj")));
    }
    desk.type("\b\b\b"); // down again
    QVERIFY(linesFit("Wg\nfg"));
    if (zoom == 100) {
        desk.tapped.setY(lowest(2));
        QVERIFY(sameImage(desk.pending(), desk.written("Wg\nfg")));
    }
    desk.resize(width == 5 ? 1 : 5);
    QVERIFY(linesFit("Wg\nfg"));
    const QImage pending = desk.pending();
    desk.stylus.press({1, 1});
    QVERIFY(sameImage(desk.canvas.merged(), pending));
}

void tst_TextManners::firstLineStaysWhole()
{
    ModernDesk desk(allForText(), support::sheet(QSize(160, 60)));
    desk.tap({20, 30});
    desk.type("a\nb\nc\nd\ne\nf");
    desk.tapped.setY(desk.metrics().ascent());
    QVERIFY(sameImage(desk.pending(), desk.written("a\nb\nc\nd\ne\nf")));
}

/// Else the rest of a line would leave its beginning.
void tst_TextManners::linesBelowACommitStay()
{
    ModernDesk desk(allForText(), support::sheet(QSize(160, 60)));
    desk.tap({20, 50});
    desk.type("ab");
    desk.tool().paintProportionBuffer();
    const QPoint rest = desk.cursor();
    desk.type("c\nd");
    QVERIFY(sameImage(desk.pending(),
                      painted(painted(desk.canvas.merged(), solidPen(Qt::blue, 1), Qt::NoBrush,
                                      fixtures::text(rest, "c", 1)),
                              solidPen(Qt::blue, 1), Qt::NoBrush,
                              fixtures::text({20, rest.y() + desk.metrics().lineSpacing()}, "d", 1))));
}

void tst_TextManners::redoOpensADroppedText_data()
{
    QTest::addColumn<KORVA_Manners>("manners");
    QTest::addColumn<int>("steps");
    for (const int steps : {1, 10}) {
        QTest::addRow("alone, %d steps", steps) << only(&KORVA_Manners::undoTypes) << steps;
        QTest::addRow("with the others, %d steps", steps) << allForText() << steps;
    }
}

void tst_TextManners::redoOpensADroppedText()
{
    QFETCH(const KORVA_Manners, manners);
    QFETCH(const int, steps);
    ModernDesk desk(manners);
    desk.canvas.setUndoSteps(steps, 1 << 20);
    desk.tap({20, 40});
    desk.type("one two");
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 3; ++i)
            desk.canvas.undo();
        QVERIFY(!desk.tool().takesText());
        QVERIFY(desk.isWithout(desk.base, desk.start));
        QVERIFY(!desk.canvas.isModified());
        QCoreApplication::processEvents();
        QCOMPARE(desk.log.taken().filter("canRedo").last(), "canRedo(true)");
        desk.canvas.redo();
        QVERIFY(desk.tool().takesText());
        QVERIFY(sameImage(desk.screen(), desk.start));
        QCOMPARE(desk.cursor(), QPoint(20, 40));
        desk.canvas.redo();
        QVERIFY(sameImage(desk.pending(), desk.written("one ")));
        desk.canvas.redo();
        QVERIFY(sameImage(desk.pending(), desk.written("one two")));
        QCOMPARE(desk.log.taken().filter("canRedo").last(), "canRedo(false)");
    }
    desk.stylus.press({5, 5});
    QVERIFY(sameImage(desk.canvas.merged(), desk.written("one two")));
}

void tst_TextManners::droppedTextIsForgotten_data()
{
    using Step = std::function<void(ModernDesk&)>;
    QTest::addColumn<Step>("step");
    QTest::addColumn<int>("steps");
    const std::pair<const char*, Step> cases[] = {
        {"another change", [](ModernDesk& desk) { desk.canvas.clearCanvas(Qt::green); }},
        {"another tool", [](ModernDesk& desk) { desk.manager.setCurrentTool(fixtures::Pencil); }},
        {"another text",
         [](ModernDesk& desk) {
             desk.tap({60, 60});
             desk.escape();
         }},
    };
    for (const auto& [name, step] : cases) {
        for (const int steps : {1, 10})
            QTest::addRow("%s, %d steps", name, steps) << step << steps;
    }
}

void tst_TextManners::droppedTextIsForgotten()
{
    QFETCH(const std::function<void(ModernDesk&)>, step);
    QFETCH(const int, steps);
    ModernDesk desk(allForText());
    desk.canvas.setUndoSteps(steps, 1 << 20);
    desk.canvas.clearCanvas(Qt::yellow);
    QCoreApplication::processEvents();
    desk.tap({20, 40});
    desk.type("one");
    desk.canvas.undo();
    desk.canvas.undo();
    QCoreApplication::processEvents();
    QCOMPARE(desk.log.taken().filter("can").last(2), QStringList({"canUndo(true)", "canRedo(true)"}));
    step(desk);
    QCoreApplication::processEvents();
    QCOMPARE(desk.log.taken().filter("canRedo").last(), "canRedo(false)");
    QVERIFY(!desk.canvas.getCurrentTool()->takesText());
    desk.canvas.undo();
    QVERIFY(!desk.canvas.getCurrentTool()->takesText());
}

void tst_TextManners::boldLetters_data()
{
    QTest::addColumn<KORVA_Manners>("manners");
    QTest::newRow("classic") << KORVA_Manners();
    QTest::newRow("modern") << allForText();
}

void tst_TextManners::boldLetters()
{
    QFETCH(const KORVA_Manners, manners);
    const auto inWeight = [](const QImage& paper, QFont::Weight weight, const QString& text) {
        QFont font = fixtures::textFont(3);
        font.setWeight(weight);
        return painted(paper, solidPen(Qt::blue, 3), Qt::NoBrush, [&](QPainter& painter) {
            painter.setFont(font);
            painter.drawText(QRect(20, 60 - QFontMetrics(font).ascent(), 10, 10), Qt::TextDontClip, text);
        });
    };
    ModernDesk desk(manners, support::sheet(QSize(160, 100)), 100, 3);
    desk.tap({20, 60});
    desk.type("Wg");
    QVERIFY(!desk.tool().isBold());
    desk.tool().setBold(true);
    QVERIFY(desk.tool().isBold());
    QVERIFY(sameImage(desk.pending(), inWeight(desk.base, QFont::Bold, "Wg")));
    QVERIFY(desk.pending() != inWeight(desk.base, QFont::Normal, "Wg"));
    desk.type("a"); // behind the wider letters
    QVERIFY(sameImage(desk.pending(), inWeight(desk.base, QFont::Bold, "Wga")));
    desk.tool().setBold(false);
    QVERIFY(sameImage(desk.pending(), inWeight(desk.base, QFont::Normal, "Wga")));
    desk.tool().setBold(true);
    desk.stylus.press({5, 5});
    QVERIFY(sameImage(desk.canvas.merged(), inWeight(desk.base, QFont::Bold, "Wga")));
    desk.stylus.release({90, 90});
    desk.canvas.clearCanvas(Qt::white);
    desk.tap({20, 60}); // later texts, too
    desk.type("b");
    QVERIFY(sameImage(desk.pending(), inWeight(support::sheet(desk.base.size()), QFont::Bold, "b")));
}

void tst_TextManners::boldRowInTheOptions()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    const auto rows = [&editor] {
        return editor.findChild<QPushButton*>("optionButton")->menu()->actions();
    };
    editor.selectTool(KORVA_TOOL_TEXT);
    editor.selectOption(KORVA_OPTION_MEDIUM);
    QCOMPARE(rows().size(), 3);
    editor.setManners(only(&KORVA_Manners::boldText));
    QCOMPARE(rows().size(), 4);
    QCOMPARE(editor.option(), int(KORVA_OPTION_MEDIUM));
    QSignalSpy chosen(&editor, &KORVA_EditCanvas::chosen);
    for (const bool on : {true, false}) {
        rows().last()->trigger();
        QCOMPARE(editor.isBold(), on);
        QCOMPARE(rows().last()->isChecked(), on);
        QCOMPARE(rows().last()->text(), on ? u"\u2713 Bold"_qs : u"Bold"_qs);
        QVERIFY(rows().at(KORVA_OPTION_MEDIUM)->isChecked());
        QCOMPARE(editor.option(), int(KORVA_OPTION_MEDIUM));
        const QList<QVariant> told = chosen.takeFirst();
        QCOMPARE(told[0].value<KORVA_CHOICETYPE>(), KORVA_CHOICE_BOLD);
        QCOMPARE(told[1].toInt(), on ? 1 : 0);
        QVERIFY(chosen.isEmpty());
    }
    editor.setBold(true);
    QVERIFY(rows().last()->isChecked());
    editor.selectOption(KORVA_OPTION_LARGE);
    QVERIFY(rows().last()->isChecked());
    editor.selectTool(KORVA_TOOL_LINE);
    QCOMPARE(rows().size(), 3);
    editor.selectTool(KORVA_TOOL_TEXT);
    QVERIFY(rows().last()->isChecked());
    editor.reset();
    QVERIFY(!editor.isBold());
    editor.selectTool(KORVA_TOOL_TEXT);
    QVERIFY(!rows().last()->isChecked());
    editor.setManners({});
    QCOMPARE(rows().size(), 3);
}

int main(int argc, char** argv)
{
    return support::run<tst_TextManners>(argc, argv);
}

#include "tst_TextManners.moc"
