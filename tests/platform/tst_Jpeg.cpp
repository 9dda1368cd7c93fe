#include "UTIL_ImageReader.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <cmath>
#include <functional>

using support::contents;
using support::write;

namespace {

/// How far a picture is from another, in decibels; equal ones are at infinity.
double decibels(const QImage& picture, const QImage& reference)
{
    double sum = 0;
    for (int y = 0; y < reference.height(); ++y)
        for (int x = 0; x < reference.width(); ++x) {
            const QRgb a = picture.pixel(x, y);
            const QRgb b = reference.pixel(x, y);
            for (const int difference : {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b)})
                sum += double(difference) * difference;
        }
    return 10 * std::log10(255.0 * 255.0 * 3 * reference.width() * reference.height() / sum);
}

QImage drawn(QSize size, const std::function<QRgb(int, int)>& colorAt)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, colorAt(x, y));
    return image;
}

// Fine detail of several kinds.

QRgb lines(int x, int y)
{
    const int grey = x % 7 < 2 || (x + y) % 11 == 0 ? 20 : 235;
    return qRgb(grey, y % 5 < 2 ? 30 : grey, grey);
}

QRgb rings(int x, int y)
{
    const int grey = int(127 + 127 * std::cos((double(x) * x + double(y) * y) / 3000));
    return qRgb(grey, grey, grey);
}

QRgb checks(int x, int y)
{
    return (x / 3 + y / 3) % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
}

QSize small(QSize size)
{
    return size.scaled(352, 288, Qt::KeepAspectRatio);
}

QImage byTheToolkit(const QString& name)
{
    QImageReader reader(name, "JPEG");
    reader.setAutoTransform(true);
    return reader.read();
}

} // namespace

class tst_Jpeg : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void isWhatTheToolkitReads_data();
    void isWhatTheToolkitReads();
    void isTurnedAsTheToolkitTurnsIt_data();
    void isTurnedAsTheToolkitTurnsIt();
    void reducedIsAsSharpAsScaled_data();
    void reducedIsAsSharpAsScaled();
    void reducedGreyAndInksAreAsScaled_data();
    void reducedGreyAndInksAreAsScaled();
    void endMarkMayBeMissing_data();
    void endMarkMayBeMissing();
    void missingPassesFail();
    void bytesTooManyDoNoHarm();
    void damageIsFoundWhenLoggingIsOff();
    void passesAreBounded();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void tst_Jpeg::initTestCase()
{
    QVERIFY(support::mosaic(QSize(203, 149)).save(path("source.png")));
    QVERIFY(support::convert({path("source.png"), "-quality", "85", path("a.jpg")}));
    QVERIFY(support::convert({path("source.png"), "-interlace", "JPEG", path("progressive.jpg")}));
}

void tst_Jpeg::isWhatTheToolkitReads_data()
{
    QTest::addColumn<QStringList>("making");
    const std::pair<const char*, QStringList> rows[] = {
        {"4:4:4", {"-sampling-factor", "1x1"}},
        {"4:2:2", {"-sampling-factor", "2x1"}},
        {"4:2:0", {"-sampling-factor", "2x2"}},
        {"4:1:1", {"-sampling-factor", "4x1"}},
        {"poor", {"-quality", "8"}},
        {"best", {"-quality", "100"}},
        {"grey", {"-colorspace", "Gray"}},
        {"four inks", {"-colorspace", "CMYK"}},
        {"progressive", {"-interlace", "JPEG"}},
        {"progressive grey", {"-interlace", "JPEG", "-colorspace", "Gray"}},
        {"progressive of four inks", {"-interlace", "JPEG", "-colorspace", "CMYK"}},
        {"progressive 4:4:4, best", {"-interlace", "JPEG", "-sampling-factor", "1x1", "-quality", "100"}},
        {"progressive 4:2:2, poor", {"-interlace", "JPEG", "-sampling-factor", "2x1", "-quality", "8"}},
        {"one pixel", {"-crop", "1x1+0+0", "+repage"}},
        {"progressive row", {"-interlace", "JPEG", "-crop", "203x1+0+0", "+repage"}},
        {"column", {"-crop", "1x149+0+0", "+repage"}},
        {"whole blocks", {"-crop", "64x32+0+0", "+repage"}},
    };
    for (const auto& [name, making] : rows)
        QTest::addRow("%s", name) << making;
}

void tst_Jpeg::isWhatTheToolkitReads()
{
    QFETCH(QStringList, making);
    QVERIFY(support::convert(QStringList(path("source.png")) + making + QStringList(path("made.jpg"))));
    UTIL_ImageReader reader(path("made.jpg"));
    QVERIFY(reader.read());
    QVERIFY(reader.isWhole());
    const QImage expected = byTheToolkit(path("made.jpg"));
    QCOMPARE(reader.image().format(), expected.format());
    QVERIFY(support::sameImage(reader.image(), expected));
}

void tst_Jpeg::isTurnedAsTheToolkitTurnsIt_data()
{
    QTest::addColumn<bool>("isGrey");
    QTest::addColumn<int>("orientation");
    for (const bool isGrey : {false, true})
        for (int orientation = 0; orientation <= 9; ++orientation) // 0 and 9 mean nothing
            QTest::addRow("%s %d", isGrey ? "grey" : "colour", orientation) << isGrey << orientation;
}

void tst_Jpeg::isTurnedAsTheToolkitTurnsIt()
{
    QFETCH(bool, isGrey);
    QFETCH(int, orientation);
    QVERIFY(support::convert(
        {path("source.png"), "-colorspace", isGrey ? "Gray" : "sRGB", path("turned.jpg")}));
    write(path("turned.jpg"), support::withOrientation(contents(path("turned.jpg")), orientation));
    UTIL_ImageReader reader(path("turned.jpg"));
    QVERIFY(reader.read());
    const QImage expected = byTheToolkit(path("turned.jpg"));
    QCOMPARE(reader.sourceSize(), expected.size());
    QVERIFY(support::sameImage(reader.image(), expected));
}

void tst_Jpeg::reducedIsAsSharpAsScaled_data()
{
    QTest::addColumn<int>("pattern");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isProgressive");
    const char* const patterns[] = {"lines", "rings", "checks"};
    for (int i = 0; i < 3; ++i) {
        for (const QSize size : {QSize(500, 400), QSize(900, 1200), QSize(3000, 2000)})
            QTest::addRow("%s %dx%d", patterns[i], size.width(), size.height()) << i << size << false;
    }
    QTest::addRow("lines 3000x4000") << 0 << QSize(3000, 4000) << false;
    QTest::addRow("lines 6000x4000") << 0 << QSize(6000, 4000) << false;
    QTest::addRow("progressive lines") << 0 << QSize(3000, 2000) << true;
}

void tst_Jpeg::reducedIsAsSharpAsScaled()
{
    QFETCH(int, pattern);
    QFETCH(QSize, size);
    QFETCH(bool, isProgressive);
    using Pattern = QRgb (*)(int, int);
    const Pattern patterns[] = {lines, rings, checks};
    QImageWriter writer(path("fine.jpg"), "JPEG");
    writer.setQuality(92);
    writer.setProgressiveScanWrite(isProgressive);
    QVERIFY(writer.write(drawn(size, patterns[pattern])));

    UTIL_ImageReader reader(path("fine.jpg"));
    reader.setReduction(small);
    QVERIFY(reader.read());
    QCOMPARE(reader.sourceSize(), size);
    const QImage expected =
        byTheToolkit(path("fine.jpg")).scaled(small(size), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QCOMPARE(reader.image().size(), expected.size());
    constexpr double leastDecibels = 35;
    const double reached = decibels(reader.image(), expected);
    QVERIFY2(reached >= leastDecibels, qPrintable(QString("%1 dB").arg(reached)));
}

void tst_Jpeg::reducedGreyAndInksAreAsScaled_data()
{
    QTest::addColumn<QString>("colors");
    QTest::addRow("grey") << "Gray";
    QTest::addRow("four inks") << "CMYK";
}

void tst_Jpeg::reducedGreyAndInksAreAsScaled()
{
    QFETCH(QString, colors);
    QVERIFY(support::convert(
        {"-size", "700x500", "-seed", "1", "plasma:red-blue", "-colorspace", colors, path("wide.jpg")}));
    UTIL_ImageReader reader(path("wide.jpg"));
    reader.setReduction(small);
    QVERIFY(reader.read());
    const QImage expected =
        byTheToolkit(path("wide.jpg"))
            .scaled(reader.image().size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double reached = decibels(reader.image(), expected);
    QVERIFY2(reached > 40, qPrintable(QString::number(reached)));
}

void tst_Jpeg::endMarkMayBeMissing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isReduced");
    for (const char* file : {"a.jpg", "progressive.jpg"})
        for (const bool isReduced : {false, true})
            QTest::addRow("%s%s", file, isReduced ? ", reduced" : "") << QString(file) << isReduced;
}

void tst_Jpeg::endMarkMayBeMissing()
{
    QFETCH(QString, file);
    QFETCH(bool, isReduced);
    const QByteArray whole = contents(path(file));
    QVERIFY(whole.endsWith("\xff\xd9"));
    const auto read = [isReduced](const QByteArray& data) {
        UTIL_ImageReader reader = UTIL_ImageReader::fromData(data);
        if (isReduced)
            reader.setReduction([](QSize size) { return size / 2; });
        return reader.read() ? reader.image() : QImage();
    };
    const QImage expected = read(whole);
    QVERIFY(!expected.isNull());
    QCOMPARE(read(whole.chopped(1)), expected);
    QCOMPARE(read(whole.chopped(2)), expected);
    QVERIFY(read(whole.chopped(3)).isNull());
}

/// Such a file ends between two passes, so nothing that was begun breaks off.
void tst_Jpeg::missingPassesFail()
{
    const QByteArray whole = contents(path("progressive.jpg"));
    QList<qsizetype> passes;
    for (qsizetype at = whole.indexOf("\xff\xda"); at >= 0; at = whole.indexOf("\xff\xda", at + 1))
        passes.append(at);
    QVERIFY(passes.size() > 5);
    for (const qsizetype end : passes.sliced(1))
        QVERIFY2(!UTIL_ImageReader::fromData(whole.first(end)).read(), qPrintable(QString::number(end)));
    // With an end mark such a file says that there is no more; but a first pass there must be.
    QVERIFY(UTIL_ImageReader::fromData(whole.first(passes[3]) + whole.last(2)).read());
    QVERIFY(!UTIL_ImageReader::fromData(whole.first(passes[0]) + whole.last(2)).read());
}

void tst_Jpeg::bytesTooManyDoNoHarm()
{
    const QByteArray whole = contents(path("a.jpg"));
    const QImage expected = byTheToolkit(path("a.jpg"));
    const auto with = [&whole](qsizetype at) {
        return UTIL_ImageReader::fromData(QByteArray(whole).insert(at, QByteArray(50, 'x')));
    };
    for (const qsizetype at : {whole.indexOf("\xff\xdb"), whole.indexOf("\xff\xda"), whole.size() - 2}) {
        UTIL_ImageReader reader = with(at);
        QVERIFY2(reader.read(), qPrintable(QString::number(at)));
        QCOMPARE(reader.image(), expected);
    }
}

void tst_Jpeg::damageIsFoundWhenLoggingIsOff()
{
    QByteArray damaged = contents(path("progressive.jpg"));
    damaged.replace(damaged.size() / 2, 80, QByteArray("\xff\0", 2).repeated(40));
    QLoggingCategory::setFilterRules("*=false");
    const bool isRead = UTIL_ImageReader::fromData(damaged).read();
    QLoggingCategory::setFilterRules({});
    QVERIFY(!isRead);
}

void tst_Jpeg::passesAreBounded()
{
    QVERIFY(support::convert(
        {"-size", "8000x8000", "xc:#808080", "-interlace", "JPEG", "-quality", "50", path("flat.jpg")}));
    const QByteArray flat = contents(path("flat.jpg"));
    const qsizetype scan = flat.lastIndexOf("\xff\xda");
    const QByteArray last = flat.sliced(scan, flat.size() - 2 - scan);
    const QByteArray many = flat.chopped(2) + last.repeated(50) + flat.last(2);
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(many);
    reader.setReduction(small);
    const std::clock_t start = std::clock();
    QVERIFY(!reader.read());
    QVERIFY(double(std::clock() - start) < 0.5 * CLOCKS_PER_SEC);
    UTIL_ImageReader honest(path("flat.jpg"));
    honest.setReduction(small);
    QVERIFY(honest.read());
}

int main(int argc, char** argv)
{
    return support::run<tst_Jpeg>(argc, argv);
}

#include "tst_Jpeg.moc"
