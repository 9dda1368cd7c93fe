#include "UTIL_Bmp.h"
#include "UTIL_Gif.h"
#include "UTIL_ImageReader.h"
#include "UTIL_PictureSource.h"
#include "UTIL_Platform.h"
#include "UTIL_Png.h"
#include "UTIL_Reducer.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <new>
#include <random>

using support::contents;
using support::write;

namespace {

/// A reader of great pictures, which reads small ones as well.
using Read = QImage (*)(UTIL_PictureSource& source);

QImage decoded(Read read, const QByteArray& file, const std::function<bool()>& isCancelled = {})
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    UTIL_PictureSource source(buffer, {{0, file.size()}}, isCancelled);
    return read(source);
}

struct AlsoPortable : UTIL_Platform
{
    [[nodiscard]] QList<QByteArray> otherFormats() const override { return {"xpm", "ppm"}; }
};

constexpr QSize greatSize(6000, 6000);

void swallow(QtMsgType, const QMessageLogContext&, const QString&) {}

QSize small(QSize size)
{
    return size.scaled(352, 288, Qt::KeepAspectRatio);
}

QImage byTheToolkit(const QString& name, const char* format)
{
    return QImageReader(name, format).read();
}

/// A PNG of random samples.
QByteArray randomPng(int colorType, int depth, bool isClear)
{
    constexpr int width = 37;
    constexpr int height = 11;
    constexpr int samples[] = {1, 0, 3, 1, 2, 0, 4};
    std::mt19937 random(unsigned(colorType * 100 + depth));
    const auto bytes = [&random](int count) {
        QByteArray result(count, '\0');
        for (char& byte : result)
            byte = char(random());
        return result;
    };
    const int rowBytes = (width * samples[colorType] * depth + 7) / 8;
    QByteArray rows;
    for (int y = 0; y < height; ++y)
        rows += '\0' + bytes(rowBytes);
    QByteArray header;
    QDataStream(&header, QIODevice::WriteOnly)
        << width << height << quint8(depth) << quint8(colorType) << quint8(0) << quint8(0) << quint8(0);
    QByteArray file = "\x89PNG\r\n\x1a\n" + support::pngChunk("IHDR", header);
    constexpr int palette = 3;
    if (colorType == palette)
        file += support::pngChunk("PLTE", bytes(3 << depth));
    if (isClear) {
        const QByteArray grey("\0\1", 2);
        const QByteArray color("\0\1\0\2\0\3", 6);
        file += support::pngChunk("tRNS", colorType == palette ? bytes(1 << (depth - 1))
                                                               : (colorType == 0 ? grey : color));
    }
    return file + support::pngChunk("IDAT", support::deflated(rows)) + support::pngChunk("IEND", {});
}

/// A BMP of black rows that takes no room on the disk.
void writeBlackBmp(const QString& name, QSize size)
{
    QFile file(name);
    const qint64 bytes = (qint64(size.width()) * 24 + 31) / 32 * 4 * size.height();
    QByteArray header;
    QDataStream stream(&header, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("BM", 2);
    stream << quint32(54 + bytes) << quint32(0) << quint32(54) << quint32(40) << qint32(size.width())
           << qint32(size.height()) << quint16(1) << quint16(24) << quint32(0) << quint32(bytes)
           << qint32(0) << qint32(0) << quint32(0) << quint32(0);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(header) == header.size() &&
            file.resize(54 + bytes));
}

} // namespace

Q_DECLARE_METATYPE(Read)

/// What holds for pictures of every format.
class tst_PictureReading : public support::TestCase
{
    Q_OBJECT

public:
    /// In a process of its own, whose output tells.
    Q_INVOKABLE int damagedFiles();

private slots:
    void initTestCase();
    void cleanup() { UTIL_Platform::install(nullptr); }

    void nothingOfTheProgramIsTouched_data();
    void nothingOfTheProgramIsTouched();
    void damageIsNotTold();
    void allWithinThePixelLimitOpens_data();
    void allWithinThePixelLimitOpens();
    void pngIsWhatTheToolkitReads_data();
    void pngIsWhatTheToolkitReads();
    void greatPictureIsWhatTheToolkitReads_data();
    void greatPictureIsWhatTheToolkitReads();
    void damagedGreatPictureFails_data();
    void damagedGreatPictureFails();
    void damagedGreatGifIsShownAsFarAsItGoes();
    void unknownContentIsReadOnlyWhereAllowed_data();
    void unknownContentIsReadOnlyWhereAllowed();
    void exceptionsEndInAFailure_data();
    void exceptionsEndInAFailure();
    void cancellingEndsIt_data();
    void cancellingEndsIt();
    void cancellingEndsItAtOnce_data();
    void cancellingEndsItAtOnce();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] bool makeGreat(const QString& file) const;

    QTemporaryDir m_folder;
};

void tst_PictureReading::initTestCase()
{
    QVERIFY(support::convert(
        {"-size", "200x150", "-seed", "1", "plasma:red-blue", "-depth", "8", path("a.png")}));
    for (const char* name : {"a.jpg", "a.gif", "a.bmp", "a.wbmp", "a.ppm", "a.xpm", "a.tif"})
        QVERIFY(support::convert({path("a.png"), path(name)}));
    QVERIFY(support::convert({path("a.png"), "-interlace", "JPEG", path("progressive.jpg")}));
    QVERIFY(support::convert({path("a.png"), "-interlace", "PNG", path("interlaced.png")}));
    QVERIFY(support::convert({path("a.png"), "-interlace", "GIF", path("interlaced.gif")}));
}

void tst_PictureReading::nothingOfTheProgramIsTouched_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"a.png", "a.jpg", "progressive.jpg", "a.gif", "a.bmp", "a.wbmp"})
        QTest::addRow("%s", file) << QString(file);
}

void tst_PictureReading::nothingOfTheProgramIsTouched()
{
    QFETCH(QString, file);
    constexpr int limit = 33;
    const int limitBefore = QImageReader::allocationLimit();
    const QtMessageHandler before = qInstallMessageHandler(swallow);
    QImageReader::setAllocationLimit(limit);
    int asked = 0;
    int touched = 0;
    UTIL_ImageReader reader(path(file));
    reader.setIsCancelled([&] {
        ++asked;
        touched += qInstallMessageHandler(swallow) != swallow || QImageReader::allocationLimit() != limit;
        return false;
    });
    const bool isRead = reader.read();
    const bool isKept = qInstallMessageHandler(before) == swallow;
    QImageReader::setAllocationLimit(limitBefore);
    QVERIFY(isRead);
    QVERIFY(isKept);
    QVERIFY(asked > 0);
    QCOMPARE(touched, 0);
}

int tst_PictureReading::damagedFiles()
{
    initTestCase();
    int read = 0;
    for (const char* name : {"a.png", "a.jpg", "progressive.jpg", "a.gif", "a.bmp", "a.wbmp"}) {
        const QByteArray whole = contents(path(name));
        for (int i = 1; i < 20; ++i) {
            read += UTIL_ImageReader::fromData(whole.first(whole.size() * i / 20)).read();
            const QByteArray noise = QByteArray("\xff\0\x55", 3).repeated(10);
            read += UTIL_ImageReader::fromData(
                        QByteArray(whole).replace(whole.size() * i / 20, noise.size(), noise))
                        .read();
        }
    }
    return read > 0 && read < 228 ? 0 : 1;
}

void tst_PictureReading::damageIsNotTold()
{
    const support::ChildProcess child = support::ChildProcess::run("damagedFiles");
    QCOMPARE(child.signal, 0);
    QCOMPARE(child.exitCode, 0);
    QCOMPARE(child.errors, QString());
    QCOMPARE(child.output, QString());
}

bool tst_PictureReading::makeGreat(const QString& file) const
{
    if (QFile::exists(path(file)))
        return true;
    if (file.endsWith(".png"))
        return support::convert({"-size", "6000x6000", "xc:#123456", "PNG24:" + path(file)});
    if (file.endsWith(".bmp"))
        writeBlackBmp(path(file), greatSize);
    else
        write(path(file), support::gifOfFrames(greatSize, 1));
    return true;
}

void tst_PictureReading::allWithinThePixelLimitOpens_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isReduced");
    for (const char* file : {"great.png", "great.bmp", "great.gif"})
        for (const bool isReduced : {false, true})
            QTest::addRow("%s%s", file, isReduced ? ", reduced" : "") << QString(file) << isReduced;
}

/// Decoded they take more than the toolkit lets one picture take.
void tst_PictureReading::allWithinThePixelLimitOpens()
{
    QFETCH(QString, file);
    QFETCH(bool, isReduced);
    constexpr QSize size = greatSize;
    QVERIFY(makeGreat(file));
    UTIL_ImageReader reader(path(file));
    if (isReduced)
        reader.setReduction(small);
    QVERIFY(reader.read());
    QCOMPARE(reader.sourceSize(), size);
    QCOMPARE(reader.image().size(), isReduced ? QSize(288, 288) : size);
    if (!file.endsWith(".gif")) {
        const QRgb color = file.endsWith(".png") ? qRgb(0x12, 0x34, 0x56) : qRgb(0, 0, 0);
        QCOMPARE(reader.image().pixel(287, 287), color);
    }
}

void tst_PictureReading::pngIsWhatTheToolkitReads_data()
{
    QTest::addColumn<QByteArray>("file");
    const std::pair<int, QList<int>> kinds[] = {
        {0, {1, 2, 4, 8, 16}}, {2, {8, 16}}, {3, {1, 2, 4, 8}}, {4, {8, 16}}, {6, {8, 16}}};
    for (const auto& [colorType, depths] : kinds) {
        for (const int depth : depths) {
            QTest::addRow("type %d of %d bits", colorType, depth) << randomPng(colorType, depth, false);
            // Of sixteen bits with one transparent colour the toolkit makes noise.
            if (colorType < 4 && !(colorType == 2 && depth == 16))
                QTest::addRow("type %d of %d bits, transparent", colorType, depth)
                    << randomPng(colorType, depth, true);
        }
    }
    for (const int colorType : {0, 2, 3, 6}) {
        const QString name = QDir::temp().filePath("korva-interlaced.png");
        write(name, randomPng(colorType, 8, false));
        if (support::convert(
                {name, "-strip", "-interlace", "PNG", "-define", "png:exclude-chunks=all", name}))
            QTest::addRow("type %d, interlaced", colorType) << contents(name);
        QFile::remove(name);
    }
}

void tst_PictureReading::pngIsWhatTheToolkitReads()
{
    QFETCH(QByteArray, file);
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(file);
    QVERIFY(reader.read());
    QVERIFY(reader.isWhole());
    const QImage expected = QImage::fromData(file, "PNG");
    QCOMPARE(reader.image().format(), expected.format());
    QCOMPARE(reader.image().colorTable(), expected.colorTable());
    QVERIFY(support::sameImage(reader.image(), expected));
}

void tst_PictureReading::greatPictureIsWhatTheToolkitReads_data()
{
    QTest::addColumn<QStringList>("making");
    QTest::addColumn<QString>("file");
    const QStringList few{"+dither", "-colors", "13"};
    const QStringList two{"-monochrome"};
    QTest::addRow("bmp of 24 bits") << QStringList() << "BMP3:great.bmp";
    QTest::addRow("bmp of 8 bits") << QStringList{"+dither", "-colors", "200", "-compress", "None"}
                                   << "BMP3:great.bmp";
    QTest::addRow("bmp of 4 bits") << few << "BMP3:great.bmp";
    QTest::addRow("bmp of 1 bit") << two << "BMP3:great.bmp";
    QTest::addRow("old bmp") << QStringList() << "BMP2:great.bmp";
    QTest::addRow("bmp of 16 bits") << QStringList{"-define", "bmp:subtype=RGB565", "-type", "TrueColor"}
                                    << "BMP:great.bmp";
    QTest::addRow("bmp of 32 bits") << QStringList{"-alpha",    "set", "-channel", "A",
                                                   "-evaluate", "set", "40%",      "+channel"}
                                    << "BMP:great.bmp";
    QTest::addRow("packed bmp") << (few + QStringList{"-compress", "RLE"}) << "BMP3:great.bmp";
    QTest::addRow("gif") << few << "great.gif";
    QTest::addRow("interlaced gif") << (few + QStringList{"-interlace", "GIF"}) << "great.gif";
    QTest::addRow("transparent gif") << (few + QStringList{"-fuzz", "20%", "-transparent", "red"})
                                     << "great.gif";
    QTest::addRow("gif of a frame within its screen")
        << (few + QStringList{"-crop", "1500x1400+90+70"}) << "great.gif";
    QTest::addRow("interlaced gif of a frame within its screen")
        << (few + QStringList{"-crop", "1500x1400+90+70", "-interlace", "GIF"}) << "great.gif";
    QTest::addRow("wbmp") << two << "great.wbmp";
}

void tst_PictureReading::greatPictureIsWhatTheToolkitReads()
{
    QFETCH(QStringList, making);
    QFETCH(QString, file);
    if (!QFile::exists(path("great-source.png")))
        QVERIFY(support::convert({"-size", "2101x2003", "-seed", "1", "plasma:red-blue", "-depth", "8",
                                  "-define", "png:compression-level=1", path("great-source.png")}));
    const QString name = path(file.section(':', -1));
    const QString variety = file.contains(':') ? file.section(':', 0, 0) + ':' : QString();
    QVERIFY(support::convert(QStringList(path("great-source.png")) + making + QStringList(variety + name)));
    const QImage expected = byTheToolkit(name, qPrintable(QFileInfo(name).suffix()));
    QVERIFY(expected.size() == QSize(2101, 2003));

    UTIL_ImageReader reader(name);
    QVERIFY(reader.read());
    QCOMPARE(reader.sourceSize(), expected.size());
    QVERIFY(reader.isWhole());
    QCOMPARE(reader.image().format(), expected.format());
    QVERIFY(reader.image() == expected);

    reader.setReduction(small, qRgb(0, 200, 0));
    QVERIFY(reader.read());
    QVERIFY(!reader.isWhole());
    QVERIFY(support::sameImage(reader.image(),
                               UTIL_Reducer::reduced(expected, small(expected.size()), qRgb(0, 200, 0))));
}

void tst_PictureReading::damagedGreatPictureFails_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Read>("read");
    const Read pngReduced = [](UTIL_PictureSource& source) { return png::readReduced(source, {20, 15}); };
    const Read bmpReduced = [](UTIL_PictureSource& source) {
        return bmp::readReduced(source, {20, 15}, qRgb(255, 255, 255));
    };
    QTest::newRow("png") << "a.png" << Read(png::read);
    QTest::newRow("reduced png") << "a.png" << pngReduced;
    QTest::newRow("interlaced png") << "interlaced.png" << Read(png::read);
    QTest::newRow("reduced interlaced png") << "interlaced.png" << pngReduced;
    QTest::newRow("bmp") << "a.bmp" << Read(bmp::read);
    QTest::newRow("reduced bmp") << "a.bmp" << bmpReduced;
}

/// Wherever it is cut, or one of its bytes is another one that tells. Nothing tells of a BMP's pixels.
void tst_PictureReading::damagedGreatPictureFails()
{
    QFETCH(const QString, file);
    QFETCH(const Read, read);
    const QByteArray whole = contents(path(file));
    const bool isPng = file.endsWith(".png");
    QVERIFY(!decoded(read, whole).isNull());
    constexpr int cuts = 40;
    const qsizetype end = isPng ? whole.size() : qFromLittleEndian<quint32>(whole.constData() + 10);
    for (int i = 0; i < cuts; ++i) {
        const qsizetype length = end * i / cuts;
        QVERIFY2(decoded(read, whole.first(length)).isNull(), qPrintable(QString::number(length)));
    }
    QVERIFY(!isPng || decoded(read, whole.chopped(5)).isNull()); // all pixels are there
    int asked = 0;
    QVERIFY(decoded(read, whole, [&asked] { return ++asked > 2; }).isNull());
    for (int i = 8; isPng && i < cuts; ++i) { // behind the header, every byte is within a check sum
        QByteArray damaged = whole;
        char& byte = damaged[whole.size() * i / cuts];
        byte = char(byte ^ 0x10);
        QVERIFY2(decoded(read, damaged).isNull(), qPrintable(QString::number(i)));
    }
    for (const quint32 offset : {0U, 53U, 0x7fffffffU}) { // where the pixels of a BMP begin
        QByteArray damaged = whole;
        qToLittleEndian(offset, damaged.data() + 10);
        QVERIFY2(decoded(read, damaged).isNull(), qPrintable(QString::number(offset)));
    }
}

void tst_PictureReading::damagedGreatGifIsShownAsFarAsItGoes()
{
    const Read read = gif::read;
    const Read reduced = [](UTIL_PictureSource& source) {
        return gif::readReduced(source, {20, 15}, qRgb(255, 255, 255));
    };
    for (const char* file : {"a.gif", "interlaced.gif"}) {
        const QByteArray whole = contents(path(file));
        const QImage shown = decoded(read, whole);
        const qsizetype frame = whole.indexOf(QByteArray(",\0\0\0\0\xc8\0\x96\0", 9));
        const qsizetype pixels = frame + 10;
        QCOMPARE(shown.size(), QSize(200, 150));
        const QImage part = decoded(read, whole.first((pixels + whole.size()) / 2));
        QCOMPARE(part.size(), shown.size());
        QVERIFY(part != shown);
        QVERIFY(support::sameImage(part.copy(0, 0, 200, 1), shown.copy(0, 0, 200, 1)));
        QVERIFY(!decoded(reduced, whole.first((pixels + whole.size()) / 2)).isNull());
        for (const Read each : {read, reduced}) {
            int asked = 0;
            QVERIFY(decoded(each, whole, [&asked] { return ++asked > 20; }).isNull());
            for (qsizetype length = 0; length < pixels; length += 3)
                QVERIFY2(decoded(each, whole.first(length)).isNull(), qPrintable(QString::number(length)));
            QVERIFY(decoded(each, support::gifOfFrames(QSize(10, 10), 0)).isNull());
            QByteArray empty = whole;
            empty.replace(frame + 5, 2, QByteArray(2, '\0')); // a frame of no width
            QVERIFY(decoded(each, empty).isNull());
            QByteArray extended = whole;
            extended.insert(frame, QByteArray("!\xfe\x05"
                                              "ab",
                                              5)); // it ends too early
            QVERIFY(decoded(each, extended.first(frame + 5)).isNull());
        }
    }
}

void tst_PictureReading::unknownContentIsReadOnlyWhereAllowed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isAllowed");
    QTest::addRow("ppm") << "a.ppm" << true;
    QTest::addRow("xpm") << "a.xpm" << true;
    QTest::addRow("tiff") << "a.tif" << false;
}

void tst_PictureReading::unknownContentIsReadOnlyWhereAllowed()
{
    QFETCH(QString, file);
    QFETCH(bool, isAllowed);
    const QByteArray format = QTest::currentDataTag();
    QVERIFY(QImageReader::supportedImageFormats().contains(format));
    write(path("disguised.png"), contents(path(file)));
    const auto isRead = [this](const char* asked) {
        return UTIL_ImageReader(path("disguised.png"), asked).read();
    };
    QVERIFY(!isRead(nullptr));
    QVERIFY(!isRead(format.constData()));
    UTIL_Platform::install(std::make_unique<AlsoPortable>());
    QCOMPARE(isRead(nullptr), isAllowed);
    QCOMPARE(isRead(format.constData()), isAllowed);
    QVERIFY(!isRead("PNG"));
    QVERIFY(UTIL_ImageReader(path("a.png")).read());
    if (!isAllowed)
        return;
    UTIL_ImageReader reader(path("disguised.png"));
    QVERIFY(reader.read());
    QCOMPARE(reader.sourceSize(), QSize(200, 150));
    QVERIFY(reader.isWhole());
    QVERIFY(UTIL_ImageReader::isSame(reader.image(), byTheToolkit(path(file), format.constData())));
    reader.setAllowance({100, {"ppm", "xpm"}});
    QVERIFY(!reader.read());
    QCOMPARE(reader.status(), -100);
}

void tst_PictureReading::exceptionsEndInAFailure_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"a.png", "a.jpg", "progressive.jpg"})
        QTest::addRow("%s", file) << QString(file);
}

/// Thrown where the codec asks for the first bytes.
void tst_PictureReading::exceptionsEndInAFailure()
{
    QFETCH(QString, file);
    bool isThrown = false;
    UTIL_ImageReader reader(path(file));
    reader.setIsCancelled([&isThrown] {
        if (!std::exchange(isThrown, true))
            throw std::bad_alloc();
        return false;
    });
    QVERIFY(!reader.read());
    QVERIFY(isThrown);
}

void tst_PictureReading::cancellingEndsIt_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"a.png", "a.jpg", "progressive.jpg", "a.gif", "a.bmp", "a.wbmp"})
        QTest::addRow("%s", file) << QString(file);
}

void tst_PictureReading::cancellingEndsIt()
{
    QFETCH(QString, file);
    for (const int patience : {0, 1, 3}) {
        int asked = 0;
        UTIL_ImageReader reader(path(file));
        reader.setIsCancelled([&] { return asked++ >= patience; });
        QVERIFY2(!reader.read() || asked <= patience, qPrintable(QString::number(patience)));
    }
}

void tst_PictureReading::cancellingEndsItAtOnce_data()
{
    allWithinThePixelLimitOpens_data();
}

/// However long such a picture takes, who reads it is asked for every row or strip, and no more after that.
void tst_PictureReading::cancellingEndsItAtOnce()
{
    QFETCH(QString, file);
    QFETCH(bool, isReduced);
    QVERIFY(makeGreat(file));
    constexpr int patience = 40;
    int asked = 0;
    UTIL_ImageReader reader(path(file));
    reader.setIsCancelled([&asked] { return asked++ >= patience; });
    if (isReduced)
        reader.setReduction(small);
    QVERIFY(!reader.read());
    QVERIFY2(asked > patience && asked <= patience + 3, qPrintable(QString::number(asked)));
}

int main(int argc, char** argv)
{
    return support::run<tst_PictureReading>(argc, argv);
}

#include "tst_PictureReading.moc"
