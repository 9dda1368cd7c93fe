#include "UTIL_GifParser.h"
#include "UTIL_Platform.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

using support::contents;
using support::write;

namespace {

struct SmallLimit : UTIL_Platform
{
    [[nodiscard]] qint64 pixelLimit() const override { return 100; }
};

/// The GIF with a colour of its palette made transparent.
QByteArray withTransparentColor(QByteArray gif, const char* color)
{
    constexpr qsizetype palette = 13;
    const qsizetype index = (gif.indexOf(QByteArray(color, 3), palette) - palette) / 3;
    return gif.insert(gif.indexOf(','), QByteArray("!\xf9\x04\x01\0\0", 6) + char(index) + '\0');
}

} // namespace

class tst_GifParser : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { UTIL_Platform::install(nullptr); }

    void tellsWhatAFileHolds_data();
    void tellsWhatAFileHolds();
    void framesHavePlaceDelayAndTransparency();
    void transparentIndexOutsideThePaletteIsWhite();
    void badFilesFail_data();
    void badFilesFail();
    void everyPrefixFails();
    void firstFrameScopeStopsThere();
    void frameOverThePixelLimitFails();
    void parsingAgainStartsAfresh();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] int parsed(const QByteArray& bytes, int scope = UTIL_GifParser::WholeFile) const;

    QTemporaryDir m_folder;
};

void tst_GifParser::initTestCase()
{
    const QStringList red{"-size", "40x30", "xc:red"};
    const QStringList square{"-fill", "blue", "-draw", "rectangle 5,5 20,15"};
    QVERIFY(support::convert(red + square + QStringList{path("still.gif")}));
    write(path("transparent.gif"), withTransparentColor(contents(path("still.gif")), "\0\0\xff"));
    const QStringList frames{"-delay", "7", "-size", "40x30", "xc:red", "xc:blue", "xc:lime"};
    QVERIFY(support::convert(frames + QStringList{"-loop", "0", path("forever.gif")}));
    QVERIFY(support::convert(frames + QStringList{"-loop", "3", path("thrice.gif")}));
    write(path("silent.gif"), support::gifOfFrames(QSize(40, 30), 3));
    QVERIFY(support::convert({"-size", "40x30", "plasma:", "-interlace", "GIF", path("interlaced.gif")}));
}

int tst_GifParser::parsed(const QByteArray& bytes, int scope) const
{
    write(path("parsed.gif"), bytes);
    return UTIL_GifParser(path("parsed.gif"), scope).parse();
}

void tst_GifParser::tellsWhatAFileHolds_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<bool>("isAnimated");
    QTest::addColumn<int>("loopCount");
    QTest::addColumn<QColor>("transparent"); // invalid: none
    QTest::addRow("still.gif") << 1 << false << -1 << QColor();
    QTest::addRow("interlaced.gif") << 1 << false << -1 << QColor();
    QTest::addRow("transparent.gif") << 1 << false << -1 << QColor(0, 0, 255);
    QTest::addRow("forever.gif") << 3 << true << 0 << QColor();
    QTest::addRow("thrice.gif") << 3 << true << 2 << QColor();
    QTest::addRow("silent.gif") << 3 << true << -1 << QColor();
}

void tst_GifParser::tellsWhatAFileHolds()
{
    QFETCH(int, frames);
    QFETCH(bool, isAnimated);
    QFETCH(int, loopCount);
    QFETCH(QColor, transparent);
    UTIL_GifParser parser(path(QTest::currentDataTag()), 1);
    QCOMPARE(parser.parse(), 0);
    QCOMPARE(parser.screenSize(), QSize(40, 30));
    QCOMPARE(parser.frameCount(), frames);
    QCOMPARE(parser.isAnimated(), isAnimated);
    QCOMPARE(parser.loopCount(), loopCount);
    QCOMPARE(parser.transparentIndex() >= 0, transparent.isValid());
    QCOMPARE(parser.transparentColor(), transparent.isValid() ? transparent : QColor(Qt::white));
}

void tst_GifParser::framesHavePlaceDelayAndTransparency()
{
    QVERIFY(support::convert({"-delay", "7", "-size", "40x30", "xc:red", "-page", "+5+6", "-delay", "20",
                              "-size", "10x8", "xc:blue", path("pages.gif")}));
    UTIL_GifParser parser(path("pages.gif"));
    QCOMPARE(parser.parse(), 0);
    QCOMPARE(parser.frameCount(), 2);
    QCOMPARE(parser.frames()[0].rect, QRect(0, 0, 40, 30));
    QCOMPARE(parser.frames()[0].delay, 70);
    QCOMPARE(parser.frames()[1].rect, QRect(5, 6, 10, 8));
    QCOMPARE(parser.frames()[1].delay, 200);
    QCOMPARE(parser.frames()[1].transparentIndex, -1);
}

void tst_GifParser::transparentIndexOutsideThePaletteIsWhite()
{
    QByteArray gif = support::gifOfFrames(QSize(1, 1), 1);
    gif.insert(gif.indexOf(','), QByteArray("!\xf9\x04\x01\0\0\x63\0", 8));
    write(path("outside.gif"), gif);
    UTIL_GifParser parser(path("outside.gif"));
    QCOMPARE(parser.parse(), 0);
    QCOMPARE(parser.transparentIndex(), 0x63);
    QCOMPARE(parser.transparentColor(), QColor(Qt::white));
}

void tst_GifParser::badFilesFail_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("error"); // -1: any code of the library's
    const QByteArray still = contents(path("still.gif"));
    const QByteArray animated = contents(path("forever.gif"));
    const qsizetype frame = still.indexOf(',');
    QTest::addRow("empty") << QByteArray() << int(UTIL_GifParser::NotReadable);
    QTest::addRow("text") << QByteArray("GIF? No.") << int(UTIL_GifParser::NotReadable);
    QTest::addRow("no frame") << support::gifOfFrames(QSize(9, 9), 0) << int(UTIL_GifParser::NoFrame);
    QTest::addRow("65535 frames") << support::gifOfFrames(QSize(9, 9), 65535)
                                  << int(UTIL_GifParser::TooManyFrames);
    QTest::addRow("65535 frames on a great screen")
        << support::gifOfFrames(QSize(8000, 8000), 65535) << int(UTIL_GifParser::TooManyFrames);
    QTest::addRow("a frame of 60000 x 60000")
        << QByteArray(still).replace(frame + 5, 4, "\x60\xea\x60\xea") << int(UTIL_GifParser::TooLarge);
    QTest::addRow("a frame higher than its data")
        << QByteArray(still).replace(frame + 7, 2, QByteArray("\0\x03", 2)) << -1;
    QTest::addRow("nonsense for a code size") << QByteArray(still).replace(frame + 10, 1, "\x63") << -1;
    QTest::addRow("nonsense between blocks") << QByteArray(still).insert(frame, "nonsense") << -1;
    QTest::addRow("cut in a later frame") << animated.first(animated.lastIndexOf(',') + 12) << -1;
}

void tst_GifParser::badFilesFail()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, error);
    const int found = parsed(bytes);
    if (error >= 0)
        QCOMPARE(found, error);
    else
        QVERIFY2(found > 100, qPrintable(QString::number(found)));
    QCOMPARE(UTIL_GifParser(path("missing.gif")).parse(), int(UTIL_GifParser::NotReadable));
    QCOMPARE(UTIL_GifParser(m_folder.path()).parse(), int(UTIL_GifParser::NotReadable));
}

void tst_GifParser::everyPrefixFails()
{
    const QByteArray whole = contents(path("forever.gif"));
    QCOMPARE(parsed(whole), 0);
    for (qsizetype length = 0; length < whole.size(); length += 3)
        QVERIFY2(parsed(whole.first(length)) != 0, qPrintable(QString::number(length)));
}

void tst_GifParser::firstFrameScopeStopsThere()
{
    const QByteArray whole = contents(path("forever.gif"));
    const QByteArray cut = whole.first(whole.lastIndexOf(',') + 12);
    QVERIFY(parsed(cut, UTIL_GifParser::WholeFile) != 0);
    QCOMPARE(parsed(cut, UTIL_GifParser::FirstFrame), 0);
}

void tst_GifParser::frameOverThePixelLimitFails()
{
    UTIL_Platform::install(std::make_unique<SmallLimit>());
    QCOMPARE(UTIL_GifParser(path("still.gif")).parse(), int(UTIL_GifParser::TooLarge));
}

void tst_GifParser::parsingAgainStartsAfresh()
{
    UTIL_GifParser parser(path("thrice.gif"));
    QCOMPARE(parser.parse(), 0);
    QCOMPARE(parser.parse(), 0);
    QCOMPARE(parser.frameCount(), 3);
}

int main(int argc, char** argv)
{
    return support::run<tst_GifParser>(argc, argv);
}

#include "tst_GifParser.moc"
