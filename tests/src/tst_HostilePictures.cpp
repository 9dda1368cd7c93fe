#include "KORVA_Formats.h"
#include "KORVA_PictureFile.h"
#include "support/Peak.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <ctime>

#include <gif_lib.h>
#include <zlib.h>

namespace {

constexpr qint64 megabyte = 1'000'000;
constexpr QSize greatest(8000, 8000); ///< as many pixels as the platform allows
#ifdef __SANITIZE_ADDRESS__
constexpr bool isPlain = false;
#else
constexpr bool isPlain = true;
#endif
constexpr int promised = 2000; ///< milliseconds
constexpr int mostTime = isPlain ? promised : 15'000;

enum Fate : int { Opens, TooLarge, Fails };
constexpr const char* fateNames[] = {"opened", "too large", "refused"};

/// So many times the same bytes, packed a thousandfold: a packed piece can be repeated.
QByteArray packedRepeated(const QByteArray& bytes, qint64 times)
{
    constexpr int least = 1 << 20;
    const qint64 inPiece = qBound<qint64>(1, least / bytes.size(), times);
    QByteArray piece = bytes.repeated(inPiece);
    const auto packed = [&piece](z_stream& stream, qsizetype size, int flush) {
        QByteArray out(piece.size() + least, Qt::Uninitialized);
        stream.next_in = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_in = uInt(size);
        stream.next_out = reinterpret_cast<Bytef*>(out.data());
        stream.avail_out = uInt(out.size());
        deflate(&stream, flush);
        return out.first(out.size() - qsizetype(stream.avail_out));
    };
    z_stream stream{};
    constexpr int withoutFrame = -15;
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, withoutFrame, 9, Z_DEFAULT_STRATEGY);
    const QByteArray whole = packed(stream, piece.size(), Z_FULL_FLUSH);
    const qsizetype rest = times % inPiece * bytes.size();
    const QByteArray end = packed(stream, rest, Z_FINISH);
    deflateEnd(&stream);
    const auto sum = [&piece](qsizetype size) {
        return adler32(adler32(0, nullptr, 0), reinterpret_cast<const Bytef*>(piece.constData()),
                       uInt(size));
    };
    const uLong ofPiece = sum(piece.size());
    uLong total = sum(0);
    for (qint64 i = 0; i < times / inPiece; ++i)
        total = adler32_combine(total, ofPiece, z_off_t(piece.size()));
    QByteArray checksum(4, Qt::Uninitialized);
    qToBigEndian(quint32(adler32_combine(total, sum(rest), z_off_t(rest))), checksum.data());
    return QByteArray("\x78\xda") + whole.repeated(times / inPiece) + end + checksum;
}

QByteArray packedZeros(qint64 count)
{
    return packedRepeated(QByteArray(1, '\0'), count);
}

struct PngKind
{
    int depth;
    int colorType;
    int samples;
    bool isInterlaced = false;
};

/// How many bytes the rows of a PNG have, each with its filter.
qint64 unpackedBytes(QSize size, const PngKind& kind)
{
    struct Pass
    {
        int x, y, dx, dy;
    };
    static const QList<Pass> seven{{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                   {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    qint64 bytes = 0;
    for (const Pass& pass : kind.isInterlaced ? seven : QList<Pass>{{0, 0, 1, 1}}) {
        const qint64 width = (size.width() - pass.x + pass.dx - 1) / pass.dx;
        const qint64 height = (size.height() - pass.y + pass.dy - 1) / pass.dy;
        bytes += width > 0 ? height * (1 + (width * kind.depth * kind.samples + 7) / 8) : 0;
    }
    return bytes;
}

QByteArray pngOf(QSize size, const PngKind& kind, const QByteArray& before, const QByteArray& packed)
{
    QByteArray header;
    QDataStream(&header, QIODevice::WriteOnly)
        << qint32(size.width()) << qint32(size.height()) << qint8(kind.depth) << qint8(kind.colorType)
        << qint8(0) << qint8(0) << qint8(kind.isInterlaced);
    return "\x89PNG\r\n\x1a\n" + support::pngChunk("IHDR", header) + before +
           support::pngChunk("IDAT", packed) + support::pngChunk("IEND", {});
}

QByteArray png(QSize size, const PngKind& kind, const QByteArray& before = {})
{
    return pngOf(size, kind, before, packedZeros(unpackedBytes(size, kind)));
}

/// Each row is told by its difference to what is around it, which takes the most time.
QByteArray filteredPng(QSize size, const PngKind& kind)
{
    constexpr char byNeighbours = 4;
    const qint64 inRow = unpackedBytes({size.width(), 1}, kind) - 1;
    return pngOf(size, kind, {}, packedRepeated(byNeighbours + QByteArray(inRow, '\0'), size.height()));
}

constexpr PngKind grey{8, 0, 1};
constexpr PngKind color{8, 2, 3};
constexpr PngKind deep{16, 6, 4};
constexpr PngKind interlaced{8, 2, 3, true};

/// A chunk that says it is longer than it is.
QByteArray overlong(const QByteArray& name, quint32 length)
{
    QByteArray chunk(4, Qt::Uninitialized);
    qToBigEndian(length, chunk.data());
    return chunk + name + QByteArray(100, 'x');
}

/// A progressive picture of one colour, its last pass sent so often that there are so many.
QByteArray jpegOfPasses(const QString& size, int passes, const QStringList& more = {"-interlace", "JPEG"})
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("a.jpg");
    if (!support::convert(QStringList{"-size", size, "xc:orange"} + more + QStringList{name}))
        return {};
    QByteArray jpeg = support::contents(name);
    const qsizetype scan = jpeg.lastIndexOf("\xff\xda");
    const QByteArray last = jpeg.sliced(scan, jpeg.size() - 2 - scan);
    const int own = int(jpeg.count("\xff\xda"));
    return jpeg.first(jpeg.size() - 2) + last.repeated(qMax(0, passes - own)) + jpeg.last(2);
}

QByteArray jpegThatSays(quint16 width, quint16 height)
{
    QByteArray jpeg = jpegOfPasses("16x16", 1, {});
    const qsizetype frame = jpeg.indexOf("\xff\xc0");
    qToBigEndian(height, jpeg.data() + frame + 5);
    qToBigEndian(width, jpeg.data() + frame + 7);
    return jpeg;
}

int appendBytes(GifFileType* gif, const GifByteType* bytes, int count)
{
    static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), count);
    return count;
}

/// One frame of one colour.
QByteArray gif(QSize size, bool isInterlaced = false)
{
    QByteArray bytes;
    GifFileType* file = EGifOpen(&bytes, appendBytes, nullptr);
    ColorMapObject* colors = GifMakeMapObject(2, nullptr);
    std::vector<GifPixelType> row(size_t(size.width()), 0);
    EGifPutScreenDesc(file, size.width(), size.height(), 8, 0, colors);
    EGifPutImageDesc(file, 0, 0, size.width(), size.height(), isInterlaced, nullptr);
    for (int y = 0; y < size.height(); ++y)
        EGifPutLine(file, row.data(), size.width());
    GifFreeMapObject(colors);
    return EGifCloseFile(file, nullptr) == GIF_OK ? bytes : QByteArray();
}

QByteArray bmp(qint32 width, qint32 height, quint16 depth, quint32 compression, const QByteArray& pixels,
               quint32 offset = 14 + 40 + 1024, quint32 headerSize = 40, quint32 colors = 256)
{
    QByteArray file("BM");
    QDataStream stream(&file, QIODevice::Append);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint32(0) << quint32(0) << offset << headerSize << width << height << quint16(1) << depth
           << compression << quint32(pixels.size()) << quint32(0) << quint32(0) << colors << quint32(0);
    return file + QByteArray(1024, '\x7f') + pixels;
}

constexpr quint32 plain = 0;
constexpr quint32 runs8 = 1;
constexpr quint32 runs4 = 2;

QByteArray wbmp(const QByteArray& size, qsizetype bytes)
{
    return QByteArray(2, '\0') + size + QByteArray(bytes, '\0');
}

using Make = QByteArray (*)();

struct Row
{
    const char* name;
    const char* extension;
    Fate fate;
    int megabytes; ///< the most that opening may take
    Make make;
};

// Making it large makes it slow, so each is made when its turn comes.
const Row rows[] = {
    {"PNG, 64 megapixels", "png", Opens, 20, [] { return png(greatest, color); }},
    {"PNG, 64 megapixels of 64 bits", "png", Opens, 20, [] { return png(greatest, deep); }},
    {"PNG, 64 megapixels of 64 bits, filtered", "png", Opens, 20,
     [] { return filteredPng(greatest, deep); }},
    {"PNG, 64 megapixels, interlaced", "png", Opens, 300, [] { return png(greatest, interlaced); }},
    {"PNG, a column more", "png", TooLarge, 5,
     [] {
         return png({8001, 8000}, grey);
     }},
    {"PNG, as large as a header can say", "png", TooLarge, 5,
     [] { return support::pngStart(0x7fffffff, 0x7fffffff); }},
    {"PNG, a profile of a gigabyte", "png", Opens, 20,
     [] {
         return png({100, 100}, color,
                    support::pngChunk("iCCP", QByteArray("a\0\0", 3) + packedZeros(1'000 * megabyte)));
     }},
    {"PNG, texts of nine gigabytes", "png", Opens, 20,
     [] {
         return png(
             {100, 100}, color,
             support::pngChunk("zTXt", QByteArray("a\0\0", 3) + packedZeros(10 * megabyte)).repeated(900));
     }},
    {"PNG, a chunk longer than the file", "png", Fails, 5,
     [] { return support::pngStart(100, 100) + overlong("IDAT", 0x7fffffff); }},
    {"PNG, a chunk longer than may be", "png", Fails, 5,
     [] { return support::pngStart(100, 100) + overlong("tEXt", 0xffffffff); }},
    {"PNG, fewer rows than it says", "png", Fails, 20,
     [] {
         return support::pngStart(8000, 8000) + support::pngChunk("IDAT", packedZeros(megabyte)) +
                support::pngChunk("IEND", {});
     }},
    {"PNG, a thousand times more rows", "png", Fails, 20,
     [] {
         return support::pngStart(100, 100) + support::pngChunk("IDAT", packedZeros(1'000 * megabyte)) +
                support::pngChunk("IEND", {});
     }},
    {"JPEG, 64 megapixels", "jpg", Opens, 20, [] { return jpegOfPasses("8000x8000", 1, {}); }},
    {"JPEG, 64 passes", "jpg", Opens, 40, [] { return jpegOfPasses("3900x4000", 64); }},
    {"JPEG, 65 passes", "jpg", Fails, 5, [] { return jpegOfPasses("300x400", 65); }},
    {"JPEG, 64 megapixels in 64 passes", "jpg", Fails, 5, [] { return jpegOfPasses("8000x8000", 64); }},
    {"JPEG, 64 megapixels, progressive", "jpg", Opens, 80, [] { return jpegOfPasses("8000x8000", 1); }},
    {"JPEG, as large as a header can say", "jpg", TooLarge, 5, [] { return jpegThatSays(65500, 65500); }},
    {"JPEG, nearly nothing of 64 megapixels", "jpg", Fails, 20, [] { return jpegThatSays(8000, 8000); }},
    {"GIF, 64 megapixels", "gif", Opens, 20, [] { return gif(greatest); }},
    {"GIF, 64 megapixels, interlaced", "gif", Opens, 90, [] { return gif(greatest, true); }},
    {"GIF, a thousand frames", "gif", Opens, 20, [] { return support::gifOfFrames(greatest, 1000); }},
    {"GIF, 65535 frames", "gif", Fails, 20,
     [] {
         return support::gifOfFrames({100, 100}, 65535);
     }},
    {"GIF, as large as a header can say", "gif", TooLarge, 5,
     [] {
         return support::gifOfFrames({65535, 65535}, 1);
     }},
    {"BMP, runs of 32 megapixels", "bmp", Opens, 80,
     [] { return bmp(8000, 4000, 8, runs8, QByteArray("\xff\x01", 2).repeated(32 * 4000)); }},
    {"BMP, runs of 64 megapixels", "bmp", TooLarge, 5,
     [] { return bmp(8000, 8000, 8, runs8, QByteArray("\xff\x01", 2).repeated(32 * 8000)); }},
    {"BMP, runs that end at once", "bmp", Opens, 80,
     [] { return bmp(8000, 4000, 8, runs8, QByteArray("\0\1", 2)); }},
    {"BMP, runs that lead out of it", "bmp", Opens, 80,
     [] {
         return bmp(8000, 4000, 4, runs4, QByteArray("\0\2\xff\xff", 4).repeated(100'000), 14 + 40 + 1024,
                    40, 16);
     }},
    {"BMP, as large as a header can say", "bmp", TooLarge, 5,
     [] { return bmp(0x7fffffff, -0x7fffffff, 32, plain, {}); }},
    {"BMP, the lowest height", "bmp", Fails, 5,
     [] { return bmp(1, std::numeric_limits<qint32>::min(), 1, plain, {}); }},
    {"BMP, pixels behind the end", "bmp", Fails, 5,
     [] { return bmp(100, 100, 24, plain, QByteArray(30'000, 'x'), 0xffffffff); }},
    {"BMP, a header without an end", "bmp", Fails, 5,
     [] { return bmp(100, 100, 24, plain, QByteArray(30'000, 'x'), 1078, 0xffffffff); }},
    {"BMP, too many colors", "bmp", Fails, 5,
     [] { return bmp(100, 100, 8, plain, QByteArray(10'000, 'x'), 1078, 40, 0xffffffff); }},
    {"WBMP, 32 megapixels", "wbmp", Opens, 80, [] { return wbmp("\xbe\x40\x9f\x20", 4'000'000); }},
    {"WBMP, 64 megapixels", "wbmp", TooLarge, 5, [] { return wbmp("\xbe\x40\xbe\x40", 8'000'000); }},
    {"WBMP, as large as a header can say", "wbmp", Fails, 5,
     [] { return wbmp("\x87\xff\xff\xff\x7f\x87\xff\xff\xff\x7f", 1000); }},
    {"WBMP, a number without an end", "wbmp", Fails, 5,
     [] { return wbmp(QByteArray(1000, '\xff'), 1000); }},
};

} // namespace

/// Files that were made to exhaust who opens them: refused or opened soon, in the memory that is
/// documented.
class tst_HostilePictures : public support::TestCase
{
    Q_OBJECT

private slots:
    void isSoonOver_data();
    void isSoonOver();
    void thePageTellsAll();

private:
    QStringList m_measured; ///< rows of the page's table
};

void tst_HostilePictures::isSoonOver_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(std::size(rows)); ++i)
        QTest::newRow(rows[i].name) << i;
}

void tst_HostilePictures::isSoonOver()
{
    QFETCH(const int, row);
    const Row& hostile = rows[row];
    const QTemporaryDir folder;
    const QString name = folder.filePath(QString("it.") + hostile.extension);
    {
        const QByteArray bytes = hostile.make();
        QVERIFY(!bytes.isEmpty());
        support::write(name, bytes);
    }
    const support::Peak peak;
    const std::clock_t start = std::clock();
    KORVA_PictureFile picture(name);
    const int status = picture.check(KORVA_Formats::readFormat(name));
    QPixmap opened;
    const bool isOpened =
        status == UTIL_ImageReader::Ok && KORVA_WorkingLimits().convert(picture.take(), &opened);
    const qint64 time =
        qint64(std::clock() - start) * 1000 / CLOCKS_PER_SEC; // of the processor: it is busy
    const qint64 bytes = peak.bytes();
    qInfo("%lld ms, %.1f MB, %lld bytes of file", static_cast<long long>(time), double(bytes) / megabyte,
          static_cast<long long>(QFileInfo(name).size()));
    QCOMPARE(isOpened, hostile.fate == Opens);
    QCOMPARE(status == UTIL_ImageReader::TooLarge, hostile.fate == TooLarge);
    QVERIFY(opened.width() <= 352 && opened.height() <= 352);
    QVERIFY2(time < mostTime, qPrintable(QString::number(time)));
    QVERIFY2(bytes < hostile.megabytes * megabyte, qPrintable(QString::number(bytes)));
    const double kilobytes = double(QFileInfo(name).size()) / 1000;
    m_measured.append(QString("| %1 | %2 kB | %3 | %4 ms | %5 MB |")
                          .arg(hostile.name)
                          .arg(kilobytes, 0, 'f', 1)
                          .arg(fateNames[hostile.fate])
                          .arg(time)
                          .arg(double(bytes) / megabyte, 0, 'f', 1));
}

/// What was measured without the sanitizers; the numbers are another machine's, but must keep the promise.
void tst_HostilePictures::thePageTellsAll()
{
    const QString page = KORVA_SOURCE_DIR "/docs/security.md";
    const QString start = "<!-- measured: hostile pictures -->\n";
    const QString heads = "| picture | file | what follows | time | memory |\n|---|---|---|---|---|\n";
    QString text = QString::fromUtf8(support::contents(page));
    const qsizetype from = text.indexOf(start) + start.size();
    if (isPlain && qEnvironmentVariableIsSet("KORVA_WRITE_HOSTILE")) {
        text.replace(from, text.indexOf("<!-- end -->", from) - from, heads + m_measured.join('\n') + '\n');
        support::write(page, text.toUtf8());
    }
    const QString table = text.mid(from, text.indexOf("<!-- end -->", from) - from);
    QVERIFY(table.startsWith(heads));
    const QStringList lines = table.sliced(heads.size()).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), qsizetype(std::size(rows)));
    for (int i = 0; i < int(std::size(rows)); ++i) {
        const QStringList cells = lines[i].split(" | ");
        QCOMPARE(cells.size(), 5);
        QCOMPARE(cells[0], QString("| ") + rows[i].name);
        QCOMPARE(cells[2], fateNames[rows[i].fate]);
        QVERIFY2(cells[3].section(' ', 0, 0).toInt() < promised, qPrintable(lines[i]));
        QVERIFY2(cells[4].section(' ', 0, 0).toDouble() < rows[i].megabytes, qPrintable(lines[i]));
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_HostilePictures>(argc, argv);
}

#include "tst_HostilePictures.moc"
