#include "Palette.h"

#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

using pad::palette::Mixing;

namespace {

const QList<QRgb> blackAndWhite{qRgb(0, 0, 0), qRgb(255, 255, 255)};

/// Thousands of colours.
QImage sunset(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(
                x, y,
                qRgb(255 * x / size.width(), 255 * y / size.height(), 127 + 64 * (x + y) / size.width()));
    }
    return picture;
}

QSet<QRgb> colorsOf(const QImage& picture)
{
    QSet<QRgb> found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            found.insert(picture.pixel(x, y) | 0xff000000U);
    }
    return found;
}

/// Its pixels alone: a file may say how its colours are meant.
QImage inRgb(const QImage& picture)
{
    QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    pixels.setColorSpace({});
    return pixels;
}

/// As it is seen from so far away that tiles of 4 × 4 pixels become one.
QImage fromAfar(const QImage& picture)
{
    QImage far(picture.size() / 4, QImage::Format_RGB32);
    for (int y = 0; y < far.height(); ++y) {
        for (int x = 0; x < far.width(); ++x) {
            int red = 0;
            int green = 0;
            int blue = 0;
            for (int i = 0; i < 16; ++i) {
                const QRgb pixel = picture.pixel(4 * x + i % 4, 4 * y + i / 4);
                red += qRed(pixel);
                green += qGreen(pixel);
                blue += qBlue(pixel);
            }
            far.setPixel(x, y, qRgb(red / 16, green / 16, blue / 16));
        }
    }
    return far;
}

} // namespace

/// A drawing in few colours: which ones, and what becomes of the others.
class tst_Palette : public support::TestCase
{
    Q_OBJECT

private slots:
    void fewColorsStayExact_data();
    void fewColorsStayExact();
    void twoAreBlackAndWhite();
    void manyColorsBecomeFew_data();
    void manyColorsBecomeFew();
    void isTheSameEveryTime();
    void paperStaysWhite_data();
    void paperStaysWhite();
    void everyPixelGetsTheNearest();
    void dotsKeepTheBrightness_data();
    void dotsKeepTheBrightness();
    void dotsAreNearerFromAfar();
    void isGivenUp();
    void fileHasPaletteAndDepth_data();
    void fileHasPaletteAndDepth();
};

void tst_Palette::fewColorsStayExact_data()
{
    QTest::addColumn<int>("colors");
    for (const int colors : {1, 2, 3, 16, 255, 256})
        QTest::addRow("%d", colors) << colors;
}

void tst_Palette::fewColorsStayExact()
{
    QFETCH(const int, colors);
    QImage drawn(32, 32, QImage::Format_RGB32);
    for (int i = 0; i < 32 * 32; ++i)
        drawn.setPixel(i % 32, i / 32, qRgb(i % colors, 255 - i % colors, 77));
    const QList<QRgb> palette = pad::palette::of(drawn, qMax(3, colors));
    QCOMPARE(palette.size(), colors);
    for (const Mixing mixing : {Mixing::None, Mixing::Dots})
        QVERIFY(support::sameImage(inRgb(pad::palette::applied(drawn, palette, mixing)), drawn));
}

void tst_Palette::twoAreBlackAndWhite()
{
    QImage drawn = support::sheet(QSize(9, 5), Qt::yellow); // light
    drawn.setPixelColor(3, 2, Qt::red);                     // dark
    const QList<QRgb> palette = pad::palette::of(drawn, 2);
    QCOMPARE(palette, blackAndWhite);
    const QImage shown = pad::palette::applied(drawn, palette, Mixing::None);
    QCOMPARE(shown.format(), QImage::Format_Mono);
    QImage wanted = support::sheet(QSize(9, 5), Qt::white);
    wanted.setPixelColor(3, 2, Qt::black);
    QVERIFY(support::sameImage(inRgb(shown), inRgb(wanted)));
}

void tst_Palette::manyColorsBecomeFew_data()
{
    QTest::addColumn<int>("colors");
    for (const int colors : {3, 16, 256})
        QTest::addRow("%d", colors) << colors;
}

void tst_Palette::manyColorsBecomeFew()
{
    QFETCH(const int, colors);
    const QImage picture = sunset({120, 96});
    QVERIFY(colorsOf(picture).size() > 2000);
    const QList<QRgb> palette = pad::palette::of(picture, colors);
    QCOMPARE(palette.size(), colors);
    for (const Mixing mixing : {Mixing::None, Mixing::Dots}) {
        const QImage shown = pad::palette::applied(picture, palette, mixing);
        QCOMPARE(shown.format(), QImage::Format_Indexed8);
        QCOMPARE(shown.colorTable(), palette);
        QVERIFY(colorsOf(shown).size() > colors * 3 / 4);
    }
}

void tst_Palette::isTheSameEveryTime()
{
    QImage picture(32, 32, QImage::Format_RGB32); // of colours that are the same in two channels
    for (int i = 0; i < 32 * 32; ++i)
        picture.setPixel(i % 32, i / 32, qRgb(i % 7 * 36, i / 7 % 7 * 36, i / 49 * 12));
    QHashSeed::resetRandomGlobalSeed(); // as in another run
    const QList<QRgb> palette = pad::palette::of(picture, 19);
    QHashSeed::setDeterministicGlobalSeed();
    QCOMPARE(pad::palette::of(picture, 19), palette);
    QCOMPARE(pad::palette::of(picture.convertToFormat(QImage::Format_ARGB32), 19), palette);
}

void tst_Palette::paperStaysWhite_data()
{
    QTest::addColumn<int>("colors");
    for (const int colors : {3, 4, 16})
        QTest::addRow("%d", colors) << colors;
}

void tst_Palette::paperStaysWhite()
{
    QFETCH(const int, colors);
    QImage drawing = support::sheet(QSize(120, 160), Qt::white);
    QPainter(&drawing).drawImage(0, 64, sunset({120, 96}));
    for (int x = 0; x < 120; x += 8) { // nearly white
        for (int y = 0; y < 64; ++y)
            drawing.setPixel(x, y, qRgb(255 - y / 8, 255, 255 - y % 8));
    }
    const QList<QRgb> palette = pad::palette::of(drawing, colors);
    QVERIFY(palette.contains(qRgb(255, 255, 255)));
    const QRect paper(1, 0, 7, 64); // between two lines
    for (const Mixing mixing : {Mixing::None, Mixing::Dots})
        QVERIFY(support::sameImage(inRgb(pad::palette::applied(drawing, palette, mixing).copy(paper)),
                                   inRgb(drawing.copy(paper))));
}

void tst_Palette::everyPixelGetsTheNearest()
{
    // Along one channel there is no doubt which colour is nearest.
    const QList<QRgb> palette{qRgb(0, 0, 0), qRgb(100, 0, 0), qRgb(200, 0, 0)};
    QImage ramp(256, 1, QImage::Format_RGB32);
    for (int x = 0; x < 256; ++x)
        ramp.setPixel(x, 0, qRgb(x, 0, 0));
    const QImage shown = pad::palette::applied(ramp, palette, Mixing::None);
    for (int x = 0; x < 256; ++x) {
        const int wanted = x < 50 ? 0 : x < 150 ? 1 : 2;
        if (x != 50 && x != 150)
            QCOMPARE(shown.pixelIndex(x, 0), wanted);
    }
}

void tst_Palette::dotsKeepTheBrightness_data()
{
    QTest::addColumn<int>("grey");
    QTest::addColumn<int>("white"); // of 16
    QTest::newRow("black") << 0 << 0;
    QTest::newRow("dark") << 64 << 4;
    QTest::newRow("half") << 127 << 8;
    QTest::newRow("light") << 191 << 12;
    QTest::newRow("white") << 255 << 16;
}

void tst_Palette::dotsKeepTheBrightness()
{
    QFETCH(const int, grey);
    QFETCH(const int, white);
    const QImage plain = support::sheet(QSize(12, 12), QColor(grey, grey, grey));
    const QImage shown = pad::palette::applied(plain, blackAndWhite, Mixing::Dots);
    for (const QPoint tile : {QPoint(0, 0), QPoint(4, 8), QPoint(8, 0)}) {
        int found = 0;
        for (int i = 0; i < 16; ++i)
            found += shown.pixelIndex(tile.x() + i % 4, tile.y() + i / 4);
        QCOMPARE(found, white);
    }
    if (white == 8) { // as far apart as possible
        for (int i = 0; i < 144; ++i)
            QVERIFY(shown.pixelIndex(i % 12, i / 12) != shown.pixelIndex((i + 1) % 12, i / 12));
    }
}

void tst_Palette::dotsAreNearerFromAfar()
{
    const QImage picture = sunset({120, 96});
    const QList<QRgb> palette = pad::palette::of(picture, 16);
    const auto error = [&](Mixing mixing) {
        return support::distance(fromAfar(inRgb(pad::palette::applied(picture, palette, mixing))),
                                 fromAfar(picture))
            .mean;
    };
    const double plain = error(Mixing::None);
    const double dotted = error(Mixing::Dots);
    QVERIFY2(dotted < plain / 2, qPrintable(QString("%1 instead of %2").arg(dotted).arg(plain)));
}

void tst_Palette::isGivenUp()
{
    const QImage picture = sunset({120, 96});
    int asked = 0;
    const auto isWanted = [&asked] { return ++asked < 10; };
    QCOMPARE(pad::palette::of(picture, 16, isWanted), QList<QRgb>());
    QCOMPARE(asked, 10);
    asked = 0;
    QVERIFY(pad::palette::applied(picture, blackAndWhite, Mixing::None, isWanted).isNull());
    QCOMPARE(asked, 10);
}

void tst_Palette::fileHasPaletteAndDepth_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("colors");
    QTest::addColumn<int>("depth");
    QTest::newRow("black and white") << QSize(61, 40) << 2 << 1;
    QTest::newRow("4") << QSize(61, 40) << 4 << 2;
    QTest::newRow("16") << QSize(61, 40) << 16 << 4;
    QTest::newRow("256") << QSize(120, 96) << 256 << 8;
    QTest::newRow("one pixel") << QSize(1, 1) << 16 << 1;
}

void tst_Palette::fileHasPaletteAndDepth()
{
    QFETCH(const QSize, size);
    QFETCH(const int, colors);
    QFETCH(const int, depth);
    const QImage picture = sunset(size);
    const QImage shown = pad::palette::applied(picture, pad::palette::of(picture, colors), Mixing::Dots);
    const QByteArray file = pad::palette::png(shown);
    QVERIFY(file.startsWith("\x89PNG\r\n\x1a\n"));
    constexpr qsizetype header = 16; // signature, length and name of the first chunk
    QCOMPARE(int(file[header + 8]), depth);
    QCOMPARE(int(file[header + 9]), 3); // with a palette
    const qsizetype palette = file.indexOf("PLTE");
    QCOMPARE(int(uchar(file[palette - 2])) * 256 + uchar(file[palette - 1]), shown.colorCount() * 3);
    QVERIFY(support::sameImage(inRgb(QImage::fromData(file, "PNG")), inRgb(shown)));
    const QTemporaryDir folder;
    support::write(folder.filePath("few.png"), file);
    QVERIFY(support::sameImage(inRgb(support::converted(folder.filePath("few.png"))), inRgb(shown)));
}

int main(int argc, char** argv)
{
    return support::run<tst_Palette>(argc, argv);
}

#include "tst_Palette.moc"
