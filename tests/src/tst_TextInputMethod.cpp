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

int main(int argc, char** argv)
{
    return support::run<tst_TextInputMethod>(argc, argv);
}

#include "tst_TextInputMethod.moc"
