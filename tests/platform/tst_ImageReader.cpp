#include "UTIL_ImageReader.h"
#include "UTIL_Platform.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <QtEndian>

#include <sys/stat.h>

#include <unistd.h>

#include <ctime>

using support::contents;
using support::converted;
using support::Distance;
using support::write;

namespace {

/// The processor's time that reading takes, which other programs do not add to.
class Stopwatch
{
public:
    [[nodiscard]] bool isWithin(double seconds) const
    {
        return double(std::clock() - m_start) < seconds * CLOCKS_PER_SEC;
    }

private:
    std::clock_t m_start = std::clock();
};
constexpr double mostSeconds = 2;

struct SmallLimit : UTIL_Platform
{
    [[nodiscard]] qint64 pixelLimit() const override { return 100; }
};

QSize half(QSize size)
{
    return size / 2;
}

QSize small(QSize size)
{
    return size.scaled(352, 288, Qt::KeepAspectRatio);
}

/// The JPEG with its last pass sent again and again.
QByteArray withScans(const QByteArray& jpeg, int more)
{
    const qsizetype scan = jpeg.lastIndexOf("\xff\xda");
    const QByteArray last = jpeg.sliced(scan, jpeg.size() - 2 - scan);
    return jpeg.first(jpeg.size() - 2) + last.repeated(more) + jpeg.last(2);
}

} // namespace

class tst_ImageReader : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { UTIL_Platform::install(nullptr); }

    void namedFormatIsTheOnlyOne_data();
    void namedFormatIsTheOnlyOne();
    void contentDecidesNotTheExtension_data();
    void contentDecidesNotTheExtension();
    void badFilesFail_data();
    void badFilesFail();
    void unreadableFileFails();
    void everyPrefixOfAPictureFails_data();
    void everyPrefixOfAPictureFails();
    void limitIsFoundInTheHeader_data();
    void limitIsFoundInTheHeader();
    void limitHoldsForTheWidestWbmp();
    void colorsThatNoPixelCanHaveAreLeftOut_data();
    void colorsThatNoPixelCanHaveAreLeftOut();
    void limitIsInclusive();
    void allocationLimitOfTheProgramStays();
    void extraTextIsPassedOver_data();
    void extraTextIsPassedOver();
    void textAmongThePixelsIsPassedOver();
    void theWidestRowsOfNoiseAreRead();
    void whatMayStandBeforeMarkersIsPassedOver_data();
    void whatMayStandBeforeMarkersIsPassedOver();
    void orientationIsApplied_data();
    void orientationIsApplied();
    void reductionKeepsThePicture_data();
    void reductionKeepsThePicture();
    void readsFromMemory();
    void parametersAskForSixteenBits();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void tst_ImageReader::initTestCase()
{
    QVERIFY(support::convert(
        {"-size", "200x150", "-seed", "1", "plasma:red-blue", "-depth", "8", path("a.png")}));
    for (const char* name : {"a.jpg", "a.gif", "a.bmp", "a.wbmp"})
        QVERIFY(support::convert({path("a.png"), path(name)}));
    QVERIFY(support::convert({path("a.png"), "-interlace", "JPEG", path("progressive.jpg")}));
    QVERIFY(
        support::convert({path("a.png"), "-colors", "8", "-compress", "RLE", "BMP3:" + path("rle.bmp")}));
}

void tst_ImageReader::namedFormatIsTheOnlyOne_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("isRead");
    const std::pair<const char*, const char*> files[] = {
        {"a.png", "PNG"}, {"a.jpg", "JPEG"}, {"a.gif", "GIF"}, {"a.bmp", "BMP"}, {"a.wbmp", "WBMP"}};
    for (const auto& [file, own] : files)
        for (const auto& [other, format] : files)
            QTest::addRow("%s as %s", file, format)
                << QString(file) << QByteArray(format) << (file == other);
    QTest::addRow("lower case") << "a.png" << QByteArray("png") << true;
    QTest::addRow("jpg for JPEG") << "a.jpg" << QByteArray("jpg") << true;
}

void tst_ImageReader::namedFormatIsTheOnlyOne()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, format);
    QFETCH(bool, isRead);
    UTIL_ImageReader reader(path(file), format.constData());
    QCOMPARE(reader.read(), isRead);
    QCOMPARE(reader.status(), isRead ? 0 : int(UTIL_ImageReader::Failed));
    QCOMPARE(reader.image().size(), isRead ? QSize(200, 150) : QSize(0, 0));
}

void tst_ImageReader::contentDecidesNotTheExtension_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"a.png", "a.jpg", "a.gif", "a.bmp", "a.wbmp"})
        for (const char* extension : {"png", "jpg", "gif", "bmp", "wbmp", "txt"})
            QTest::addRow("%s named .%s", file, extension) << QString(file);
}

void tst_ImageReader::contentDecidesNotTheExtension()
{
    QFETCH(QString, file);
    const QString extension = QString(QTest::currentDataTag()).section('.', -1);
    const QString disguised = path("disguised." + extension);
    write(disguised, contents(path(file)));
    UTIL_ImageReader reader(disguised);
    QVERIFY(reader.read());
    static QHash<QString, QImage> expected;
    if (!expected.contains(file))
        expected[file] = converted(path(file));
    const Distance distance = support::distance(reader.image(), expected[file]);
    QVERIFY2(distance.greatest <= 1, qPrintable(QString::number(distance.greatest)));
}

void tst_ImageReader::badFilesFail_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray png = contents(path("a.png"));
    const QByteArray progressive = contents(path("progressive.jpg"));
    const auto damaged = [](QByteArray bytes) {
        const QByteArray nonsense = QByteArray("\xff\0", 2).repeated(40);
        return bytes.replace(bytes.size() / 2, nonsense.size(), nonsense);
    };
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("one byte") << QByteArray("\x89");
    QTest::addRow("text") << QByteArray("This is no picture at all.\n").repeated(100);
    QTest::addRow("only a signature") << png.first(8);
    QTest::addRow("png damaged within") << damaged(png);
    QTest::addRow("jpeg damaged within") << damaged(progressive);
    QTest::addRow("png without data") << support::pngStart(20, 20) + support::pngChunk("IEND", {});
    QTest::addRow("png with too little data")
        << support::pngStart(2000, 2000) +
               support::pngChunk("IDAT", support::deflated(QByteArray(50, '\0'))) +
               support::pngChunk("IEND", {});
    QTest::addRow("png whose chunk is longer than the file")
        << QByteArray(png).replace(33, 4, QByteArray("\x7f\xff\xff\xff", 4));
    QTest::addRow("jpeg in a thousand passes") << withScans(progressive, 1000);
    QTest::addRow("bmp of no depth")
        << QByteArray(contents(path("a.bmp"))).replace(28, 2, QByteArray(2, '\0'));
    QTest::addRow("bmp of negative width")
        << QByteArray(contents(path("a.bmp"))).replace(18, 4, QByteArray("\xff\xff\xff\xff", 4));
    QTest::addRow("wbmp of 60000 x 60000")
        << QByteArray("\0\0\x83\xd4\x60\x83\xd4\x60", 8) + QByteArray(1000, 'x');
    QTest::addRow("gif without a frame") << support::gifOfFrames(QSize(10, 10), 0);
}

void tst_ImageReader::badFilesFail()
{
    QFETCH(QByteArray, bytes);
    write(path("bad"), bytes);
    const Stopwatch watch;
    UTIL_ImageReader reader(path("bad"));
    QVERIFY(!reader.read());
    QCOMPARE(reader.status(), int(UTIL_ImageReader::Failed));
    QVERIFY(reader.image().isNull());
    QVERIFY(watch.isWithin(mostSeconds));
}

void tst_ImageReader::unreadableFileFails()
{
    QVERIFY(!UTIL_ImageReader(path("missing.png")).read());
    QVERIFY(!UTIL_ImageReader(m_folder.path()).read());
    QVERIFY(!UTIL_ImageReader(QString()).read());

    // Nobody writes into it, so reading it would wait for ever.
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);
    QVERIFY(!UTIL_ImageReader(path("pipe.png")).read());

    const QString locked = path("locked.png");
    QVERIFY(QFile::copy(path("a.png"), locked) && QFile::setPermissions(locked, QFile::Permissions()));
    const uid_t user = geteuid();
    constexpr uid_t nobody = 65534;
    if (user == 0)
        QCOMPARE(seteuid(nobody), 0);
    UTIL_ImageReader reader(locked);
    const bool isRead = reader.read();
    if (user == 0)
        QCOMPARE(seteuid(user), 0);
    QVERIFY(!isRead);
    QCOMPARE(reader.status(), int(UTIL_ImageReader::Failed));
}

void tst_ImageReader::everyPrefixOfAPictureFails_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"a.png", "a.jpg", "progressive.jpg", "a.bmp", "rle.bmp", "a.wbmp"})
        QTest::addRow("%s", file) << QString(file);
}

void tst_ImageReader::everyPrefixOfAPictureFails()
{
    QFETCH(QString, file);
    const QByteArray whole = contents(path(file));
    QVERIFY(UTIL_ImageReader::fromData(whole).read());
    constexpr int cuts = 60;
    for (int i = 0; i < cuts; ++i) {
        const qsizetype length = whole.size() * i / cuts;
        QVERIFY2(!UTIL_ImageReader::fromData(whole.first(length)).read(),
                 qPrintable(QString::number(length)));
    }
    // Without its end mark of two bytes a JPEG still has all of its data.
    const qsizetype needless = file.endsWith(".jpg") ? 2 : 0;
    QVERIFY(UTIL_ImageReader::fromData(whole.chopped(needless)).read());
    QVERIFY(!UTIL_ImageReader::fromData(whole.chopped(needless + 1)).read());
}

void tst_ImageReader::limitIsFoundInTheHeader_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray most("\x60\xea", 2); // 60,000, the low byte first
    QByteArray gif = support::gifOfFrames(QSize(10, 10), 1);
    QTest::addRow("png") << support::pngStart(60000, 60000) +
                                support::pngChunk("IDAT", support::deflated(QByteArray(100, '\0'))) +
                                support::pngChunk("IEND", {});
    QTest::addRow("png that ends behind its header") << support::pngStart(60000, 60000);
    QTest::addRow("gif screen") << support::gifOfFrames(QSize(60000, 60000), 1);
    QTest::addRow("gif frame") << gif.replace(gif.indexOf(',') + 5, 4, most + most);
    QTest::addRow("bmp") << QByteArray(contents(path("a.bmp")))
                                .replace(18, 8, most + QByteArray(2, '\0') + most + QByteArray(2, '\0'));
    const QByteArray greatest("\xff\xff\xff\x7f", 4);
    QTest::addRow("bmp of more bytes than a number holds") << QByteArray(contents(path("a.bmp")))
                                                                  .replace(18, 8, greatest + greatest)
                                                                  .replace(28, 2, QByteArray("\x20\0", 2));
    const QByteArray jpeg = contents(path("a.jpg"));
    QTest::addRow("jpeg") << QByteArray(jpeg).replace(jpeg.indexOf("\xff\xc0") + 5, 4, "\xea\x60\xea\x60");
}

void tst_ImageReader::limitIsFoundInTheHeader()
{
    QFETCH(QByteArray, bytes);
    const QByteArray format = QByteArray(QTest::currentDataTag()).split(' ').first();
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(bytes, format.constData());
    const Stopwatch watch;
    QVERIFY(!reader.read());
    QCOMPARE(reader.status(), -100);
    QVERIFY(watch.isWithin(mostSeconds / 10));
}

// Its width takes five bytes. Where the rows should be the file has only holes.
void tst_ImageReader::colorsThatNoPixelCanHaveAreLeftOut_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<bool>("isReduced");
    QTest::newRow("small") << "200x150" << false;
    QTest::newRow("great") << "2101x2003" << false;
    QTest::newRow("great, reduced") << "2101x2003" << true;
}

void tst_ImageReader::colorsThatNoPixelCanHaveAreLeftOut()
{
    QFETCH(QString, size);
    QFETCH(bool, isReduced);
    QVERIFY(
        support::convert({path("a.png"), "-sample", size + '!', "-monochrome", "BMP3:" + path("two.bmp")}));
    QByteArray file = contents(path("two.bmp"));
    constexpr int spare = 42;
    constexpr int paletteEnd = 54 + 2 * 4;
    QCOMPARE(qFromLittleEndian<quint32>(file.constData() + 10), quint32(paletteEnd));
    file.insert(paletteEnd, QByteArray(spare * 4, '\x55'));
    qToLittleEndian(quint32(paletteEnd + spare * 4), file.data() + 10);
    qToLittleEndian(quint32(2 + spare), file.data() + 46);

    UTIL_ImageReader plain(path("two.bmp"));
    UTIL_ImageReader spared = UTIL_ImageReader::fromData(file);
    if (isReduced) {
        for (UTIL_ImageReader* reader : {&plain, &spared})
            reader->setReduction([](QSize whole) { return whole / 7; }, qRgb(255, 255, 255));
    }
    QVERIFY(plain.read());
    QVERIFY(spared.read());
    QCOMPARE(spared.isWhole(), plain.isWhole());
    QCOMPARE(spared.image().colorTable(), plain.image().colorTable());
    QVERIFY(spared.image() == plain.image());
}

void tst_ImageReader::limitHoldsForTheWidestWbmp()
{
    const QByteArray header("\0\0\x81\x80\x80\x80\0\1", 8);
    constexpr qint64 width = 1 << 28;
    write(path("widest.wbmp"), header);
    QVERIFY(QFile::resize(path("widest.wbmp"), header.size() + width / 8));
    UTIL_ImageReader reader(path("widest.wbmp"));
    QVERIFY(!reader.read());
    QCOMPARE(reader.status(), -100);
}

void tst_ImageReader::limitIsInclusive()
{
    UTIL_Platform::install(std::make_unique<SmallLimit>());
    const auto statusOf = [this](const QString& size) {
        if (!support::convert({"-size", size, "xc:red", path("limit.png")}))
            return -1;
        UTIL_ImageReader reader(path("limit.png"));
        reader.read();
        return reader.status();
    };
    QCOMPARE(statusOf("10x10"), 0);
    QCOMPARE(statusOf("101x1"), -100);
}

void tst_ImageReader::allocationLimitOfTheProgramStays()
{
    const int before = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(77);
    QVERIFY(UTIL_ImageReader(path("a.png")).read());
    QCOMPARE(QImageReader::allocationLimit(), 77);
    QImageReader::setAllocationLimit(before);
}

void tst_ImageReader::extraTextIsPassedOver_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<bool>("isLast");
    for (const bool isLast : {false, true}) {
        const char* where = isLast ? "behind" : "before";
        QTest::addRow("zTXt %s", where) << QByteArray("zTXt") << QByteArray("k\0\0", 3) << isLast;
        QTest::addRow("iTXt %s", where) << QByteArray("iTXt") << QByteArray("k\0\1\0\0\0", 6) << isLast;
    }
}

/// A file of 7 MB whose texts would unpack to 7 GB.
void tst_ImageReader::extraTextIsPassedOver()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, start);
    QFETCH(bool, isLast);
    static const QByteArray packed = support::deflated(QByteArray(7'900'000, 'a'));
    static const QByteArray pixels = support::pngChunk("IDAT", support::deflated(QByteArray(31, '\0')));
    const QByteArray text = support::pngChunk(name, start + packed).repeated(900);
    UTIL_ImageReader reader =
        UTIL_ImageReader::fromData(support::pngStart(10, 1) + (isLast ? pixels + text : text + pixels) +
                                   support::pngChunk("IEND", {}));
    const Stopwatch watch;
    QVERIFY(reader.read());
    QCOMPARE(reader.image().size(), QSize(10, 1));
    QVERIFY(watch.isWithin(mostSeconds));
}

// Each part of the pixels takes more bytes than are asked for at once.
void tst_ImageReader::textAmongThePixelsIsPassedOver()
{
    constexpr QSize size(200, 100);
    QByteArray rows;
    QRandomGenerator random(1);
    for (int y = 0; y < size.height(); ++y) {
        rows += '\0'; // no filter
        for (int i = 0; i < 3 * size.width(); ++i)
            rows += char(random.bounded(256));
    }
    const QByteArray pixels = support::deflated(rows);
    const QByteArray start = support::pngStart(size.width(), size.height());
    const QByteArray first = support::pngChunk("IDAT", pixels.first(30'000));
    const QByteArray text = support::pngChunk("tEXt", QByteArray("k\0", 2) + QByteArray(1000, 'a'));
    const QByteArray rest =
        support::pngChunk("IDAT", pixels.sliced(30'000)) + support::pngChunk("IEND", {});
    UTIL_ImageReader plain = UTIL_ImageReader::fromData(start + first + rest);
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(start + first + text + rest);
    QVERIFY(plain.read());
    QVERIFY(reader.read());
    QVERIFY(UTIL_ImageReader::isSame(reader.image(), plain.image()));
}

// Eight bytes a pixel that cannot be packed are the most that a row takes of a file.
void tst_ImageReader::theWidestRowsOfNoiseAreRead()
{
    QImage noise(300'000, 2, QImage::Format_RGBA64);
    QRandomGenerator random(1);
    random.fillRange(reinterpret_cast<quint32*>(noise.bits()), noise.sizeInBytes() / sizeof(quint32));
    QBuffer file;
    QVERIFY(noise.save(&file, "PNG"));
    QVERIFY(file.size() > noise.sizeInBytes());
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(file.data());
    QVERIFY(reader.read());
    QCOMPARE(reader.image().size(), noise.size());
}

void tst_ImageReader::whatMayStandBeforeMarkersIsPassedOver_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("one fill byte") << QByteArray("\xff");
    QTest::newRow("many fill bytes") << QByteArray("\xff\xff\xff\xff\xff");
    QTest::newRow("a marker of nothing") << QByteArray("\xff\x01");
}

void tst_ImageReader::whatMayStandBeforeMarkersIsPassedOver()
{
    QFETCH(const QByteArray, bytes);
    QByteArray file = contents(path("a.jpg"));
    UTIL_ImageReader plain = UTIL_ImageReader::fromData(file);
    QVERIFY(plain.read());
    const qsizetype tables = file.indexOf(QByteArray("\xff\xdb"));
    QVERIFY(tables > 0);
    file.insert(tables, bytes);
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(file);
    QVERIFY(reader.read());
    QVERIFY(UTIL_ImageReader::isSame(reader.image(), plain.image()));
}

void tst_ImageReader::orientationIsApplied_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("isReduced");
    for (int orientation = 1; orientation <= 8; ++orientation)
        QTest::addRow("%d", orientation) << orientation << false;

    QTest::addRow("6, reduced") << 6 << true;
    QTest::addRow("7, reduced") << 7 << true;
}

void tst_ImageReader::orientationIsApplied()
{
    QFETCH(int, orientation);
    QFETCH(bool, isReduced);
    write(path("turned.jpg"), support::withOrientation(contents(path("a.jpg")), orientation));
    UTIL_ImageReader reader(path("turned.jpg"));
    if (isReduced)
        reader.setReduction(half);
    QVERIFY(reader.read());
    const bool isUpright = orientation <= 4;
    const QSize size = isUpright ? QSize(200, 150) : QSize(150, 200);
    QCOMPARE(reader.image().size(), isReduced ? size / 2 : size);
    const QStringList halved{"-filter", "box", "-resize", "50%"};
    const QImage expected = converted(path("turned.jpg"), isReduced ? halved : QStringList());
    const Distance distance = support::distance(reader.image(), expected);
    QVERIFY2(distance.greatest <= (isReduced ? 12 : 1), qPrintable(QString::number(distance.greatest)));
}

void tst_ImageReader::reductionKeepsThePicture_data()
{
    QTest::addColumn<QStringList>("making");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    const QSize great(352, 264);
    const QStringList few{"+dither", "-posterize", "3"};
    QTest::addRow("jpeg") << QStringList() << "great.jpg" << great;
    QTest::addRow("png") << QStringList() << "great.png" << great;
    QTest::addRow("interlaced png of 48 bits")
        << QStringList{"-interlace", "PNG", "-depth", "16"} << "great.png" << great;
    QTest::addRow("transparent png") << QStringList{"-alpha",    "set", "-channel", "A",
                                                    "-evaluate", "set", "40%",      "+channel"}
                                     << "great.png" << great;
    QTest::addRow("grey png") << QStringList{"-colorspace", "Gray"} << "great.png" << great;
    QTest::addRow("palette png") << few << "great.png" << great;
    QTest::addRow("bmp") << QStringList() << "great.bmp" << great;
    QTest::addRow("gif") << few << "great.gif" << great;
    QTest::addRow("a small png comes as it is")
        << QStringList{"-resize", "400x300"} << "small.png" << QSize(400, 300);
}

void tst_ImageReader::reductionKeepsThePicture()
{
    QFETCH(QStringList, making);
    QFETCH(QString, file);
    QFETCH(QSize, size);
    const QString source = path("great-source.png");
    if (!QFile::exists(source))
        QVERIFY(support::convert({"-size", "704x528", "-seed", "1", "plasma:red-blue", "-depth", "8",
                                  "-sample", "350%", "-define", "png:compression-level=1", source}));
    QVERIFY(support::convert(QStringList{source, "-depth", "8", "-define", "png:compression-level=1"} +
                             making + QStringList{path(file)}));
    UTIL_ImageReader reader(path(file));
    reader.setReduction(small);
    QVERIFY(reader.read());
    QCOMPARE(reader.image().size(), size);
    const QImage expected = converted(
        path(file), {"-filter", "box", "-resize", QString("%1x%2!").arg(size.width()).arg(size.height())});
    const Distance distance = support::distance(reader.image(), expected);
    QVERIFY2(distance.greatest <= (file.endsWith(".jpg") ? 12 : 1),
             qPrintable(QString("%1 %2").arg(distance.greatest).arg(distance.mean)));
}

void tst_ImageReader::readsFromMemory()
{
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(contents(path("a.gif")));
    QVERIFY(reader.read());
    QVERIFY(support::distance(reader.image(), converted(path("a.gif"))).greatest == 0);
    QVERIFY(!UTIL_ImageReader::fromData(contents(path("a.gif")), "PNG").read());
    QVERIFY(!UTIL_ImageReader::fromData({}).read());
}

void tst_ImageReader::parametersAskForSixteenBits()
{
    UTIL_ImageReader reader(path("a.jpg"), "JPEG");
    reader.setParameters("16");
    QVERIFY(reader.read());
    QCOMPARE(reader.image().format(), QImage::Format_RGB16);
    QVERIFY(!reader.isWhole()); // which has fewer colours than the file

    QVERIFY(support::convert({"-size", "20x10", "xc:red", path("red.png")}));
    UTIL_ImageReader red(path("red.png"));
    red.setParameters("16");
    QVERIFY(red.read());
    QVERIFY(red.isWhole());
}

int main(int argc, char** argv)
{
    return support::run<tst_ImageReader>(argc, argv);
}

#include "tst_ImageReader.moc"
