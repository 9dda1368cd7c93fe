#include "TextFixtures.h"

using fixtures::WritingDesk;
using support::sameImage;

/// Text that is composed before it is typed.
class tst_TextInputMethod : public support::TestCase
{
    Q_OBJECT

private slots:
    void compositionIsShown();
    void compositionIsCommittedAsTyped_data();
    void compositionIsCommittedAsTyped();
    void compositionCanBeCancelled();
    void compositionIsReplayed();
    void inputMethodIsOnlyForAnOpenText();
    void theTextIsTold_data();
    void theTextIsTold();
    void onlyAnOpenTextIsTold();
    void whatIsTypedIsReplaced_data();
    void whatIsTypedIsReplaced();
    void aKeyboardIsToldWhatItIsFor();
};

void tst_TextInputMethod::compositionIsShown()
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

void tst_TextInputMethod::compositionIsCommittedAsTyped_data()
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

void tst_TextInputMethod::compositionIsCommittedAsTyped()
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

void tst_TextInputMethod::compositionCanBeCancelled()
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

void tst_TextInputMethod::compositionIsReplayed()
{
    WritingDesk desk;
    desk.tap({20, 50});
    desk.compose("", u"\u4f60\u597d"_qs);
    desk.type("\b");
    desk.resize(5);
    QVERIFY(sameImage(desk.screen(), desk.previewed(u"\u4f60"_qs)));
}

void tst_TextInputMethod::inputMethodIsOnlyForAnOpenText()
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

void tst_TextInputMethod::theTextIsTold_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("line");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("letters") << "some words"
                             << "some words";
    QTest::newRow("deleted") << "ab\b"
                             << "a";
    QTest::newRow("lines") << "one\ntwo"
                           << "two";
    QTest::newRow("a new line") << "one\n"
                                << "";
    QTest::newRow("beyond the BMP") << u"a\U0001f600"_qs << u"a\U0001f600"_qs;
}

void tst_TextInputMethod::theTextIsTold()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, line);
    WritingDesk desk;
    desk.tap({20, 50});
    desk.compose("", QString(typed).remove("b\b"));
    if (typed.endsWith('\b'))
        desk.type("b\b");
    desk.compose("composed"); // is none of it yet
    const QString all = QString(typed).remove("b\b");
    const auto told = [&](Qt::InputMethodQuery query) { return desk.canvas.inputMethodQuery(query); };
    QCOMPARE(told(Qt::ImSurroundingText).toString(), line);
    QCOMPARE(told(Qt::ImCursorPosition).toInt(), int(line.size()));
    QCOMPARE(told(Qt::ImAnchorPosition).toInt(), int(line.size()));
    QCOMPARE(told(Qt::ImTextBeforeCursor).toString(), all);
    QCOMPARE(told(Qt::ImAbsolutePosition).toInt(), int(all.size()));
    for (const Qt::InputMethodQuery none : {Qt::ImTextAfterCursor, Qt::ImCurrentSelection}) {
        QVERIFY(told(none).isValid());
        QCOMPARE(told(none).toString(), QString());
    }
    QCOMPARE(told(Qt::ImAnchorRectangle).toRect(), told(Qt::ImCursorRectangle).toRect());
}

void tst_TextInputMethod::onlyAnOpenTextIsTold()
{
    WritingDesk desk;
    const auto isTold = [&] {
        return !desk.canvas.inputMethodQuery(Qt::ImSurroundingText).toString().isEmpty() ||
               !desk.canvas.inputMethodQuery(Qt::ImTextBeforeCursor).toString().isEmpty() ||
               desk.canvas.inputMethodQuery(Qt::ImCursorPosition).toInt() != 0;
    };
    desk.tap({20, 50});
    desk.type("ab");
    QVERIFY(isTold());
    desk.tool().paintProportionBuffer(); // what is in the picture can no longer be replaced
    QVERIFY(!isTold());
    desk.type("cd");
    desk.stylus.press({100, 90});
    QVERIFY(!isTold());
}

void tst_TextInputMethod::whatIsTypedIsReplaced_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("start"); // from the cursor
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("committed");
    QTest::addColumn<QString>("result");
    QTest::newRow("the last word") << "say helo" << -4 << 4 << "hello "
                                   << "say hello ";
    QTest::newRow("all") << "teh" << -3 << 3 << "the"
                         << "the";
    QTest::newRow("deleted only") << "abc" << -2 << 2 << ""
                                  << "a";
    QTest::newRow("a word before the last") << "teh cat" << -7 << 3 << "the"
                                            << "the cat";
    QTest::newRow("over a line break") << "one\ntwo" << -5 << 3 << "X"
                                       << "onXwo";
    QTest::newRow("more than there is") << "ab" << -9 << 20 << "c"
                                        << "c";
    QTest::newRow("before all") << "ab" << -9 << 3 << "c"
                                << "abc";
    QTest::newRow("behind the cursor") << "ab" << 0 << 5 << "c"
                                       << "abc";
    QTest::newRow("nothing") << "ab" << -1 << 0 << "c"
                             << "abc";
    QTest::newRow("an emoji") << u"a\U0001f600"_qs << -2 << 2 << "b"
                              << "ab";
    QTest::newRow("an accent") << u"xe\u0301"_qs << -1 << 1 << u"\u0300"_qs << u"xe\u0300"_qs;
}

void tst_TextInputMethod::whatIsTypedIsReplaced()
{
    QFETCH(const QString, typed);
    QFETCH(const int, start);
    QFETCH(const int, length);
    QFETCH(const QString, committed);
    QFETCH(const QString, result);
    WritingDesk desk(support::mosaic(QSize(160, 100)));
    desk.tap({20, 50});
    desk.compose("", typed);
    QInputMethodEvent event;
    event.setCommitString(committed, start, length);
    QCoreApplication::sendEvent(&desk.canvas, &event);
    QVERIFY(sameImage(desk.screen(), desk.previewed(result)));
    QCOMPARE(desk.canvas.inputMethodQuery(Qt::ImTextBeforeCursor).toString(), result);
    desk.resize(3);
    QVERIFY(sameImage(desk.screen(), desk.previewed(result)));
    const QImage written = desk.written(result);
    for (qsizetype left = result.size(); left > 0; --left)
        desk.type("\b");
    QVERIFY(desk.tool().isBufferEmpty());
    QCOMPARE(desk.cursor(), QPoint(20, 50));
    desk.compose("", result);
    desk.stylus.press({100, 90});
    QVERIFY(sameImage(desk.canvas.merged(), written));
}

void tst_TextInputMethod::aKeyboardIsToldWhatItIsFor()
{
    WritingDesk desk;
    desk.tap({20, 50});
    QCOMPARE(desk.canvas.inputMethodQuery(Qt::ImHints).toInt(), int(Qt::ImhMultiLine));
    desk.canvas.setInputMethodHints(Qt::ImhNoPredictiveText); // the host's
    QCOMPARE(desk.canvas.inputMethodQuery(Qt::ImHints).toInt(),
             int(Qt::ImhMultiLine | Qt::ImhNoPredictiveText));
    QCOMPARE(desk.canvas.inputMethodQuery(Qt::ImEnterKeyType).toInt(), int(Qt::EnterKeyReturn));
}

int main(int argc, char** argv)
{
    return support::run<tst_TextInputMethod>(argc, argv);
}

#include "tst_TextInputMethod.moc"
