#include "UTIL_ImageReader.h"

#include "support/PictureFiles.h"
#include "support/TestCase.h"

using support::pngChunk;
using support::pngStart;

namespace {

constexpr QSize box(352, 288);

/// Never greater in either direction.
QSize fitting(QSize size)
{
    return size.boundedTo(box);
}

UTIL_ImageReader reducing(const QByteArray& file)
{
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(file);
    reader.setReduction(fitting);
    return reader;
}

/// A GIF with one frame of a red pixel.
QByteArray gif(QSize screen, QPoint frame)
{
    QByteArray file("GIF89a");
    QDataStream stream(&file, QIODevice::Append);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(screen.width()) << quint16(screen.height()) << quint8(0x80) << quint16(0);
    stream.writeRawData("\0\0\xff\xff\0\0,", 7);
    stream << quint16(frame.x()) << quint16(frame.y());
    stream.writeRawData("\1\0\1\0\0\2\2\x4c\1\0;", 11);
    return file;
}

QByteArray pngHeader(QSize size)
{
    return pngStart(size.width(), size.height()).sliced(8);
}

QByteArray jpeg(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, "JPEG");
    return file;
}

QByteArray jpegFrame(QSize size)
{
    QByteArray segment;
    QDataStream(&segment, QIODevice::WriteOnly)
        << quint16(0xffc0) << quint16(11) << quint8(8) << quint16(size.height()) << quint16(size.width())
        << quint8(1) << quint8(1) << quint8(0x11) << quint8(0);
    return segment;
}

} // namespace

/// Files whose parts contradict each other: what is reckoned from one must not be used for the other.
class tst_HostilePictures : public support::TestCase
{
    Q_OBJECT

private slots:
    void frameBeyondTheScreen_data();
    void frameBeyondTheScreen();
    void firstHeaderCounts_data();
    void firstHeaderCounts();
    void failureIsNotWhole();
};

void tst_HostilePictures::frameBeyondTheScreen_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("of one pixel") << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("small") << QSize(300, 200) << QSize(300, 200);
    QTest::newRow("wide") << QSize(3520, 100) << QSize(352, 10);
    QTest::newRow("high") << QSize(2, 3000) << QSize(1, 288);
    QTest::newRow("great") << QSize(2000, 1000) << box;
}

void tst_HostilePictures::frameBeyondTheScreen()
{
    QFETCH(const QSize, screen);
    QFETCH(const QSize, expected);
    const QByteArray file = gif(screen, QPoint(2100, 3000));
    UTIL_ImageReader reader = reducing(file);
    QVERIFY(reader.read());
    QCOMPARE(reader.image().size(), expected);
    QCOMPARE(reader.sourceSize(), QSize(qMax(2101, screen.width()), 3001));
    QCOMPARE(reader.image().pixel(0, 0), qRgb(0, 0, 0xff)); // the screen's own colour: no frame is in it
    QVERIFY(!reader.isWhole());
}

void tst_HostilePictures::firstHeaderCounts_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("status");
    const QSize small(60, 40);
    const QSize great(2100, 2000);
    const QSize tooGreat(20'000, 20'000);
    const QByteArray pixels = support::deflated(QByteArray(small.height() * (3 * small.width() + 1), '\0'));
    const auto png = [&pixels](QSize first, QSize second) {
        return "\x89PNG\r\n\x1a\n" + pngHeader(first) + pngChunk("IDAT", pixels) + pngHeader(second) +
               pngChunk("IEND", {});
    };
    QTest::newRow("png: small, great") << png(small, great) << int(UTIL_ImageReader::Failed);
    QTest::newRow("png: too great, small") << png(tooGreat, small) << int(UTIL_ImageReader::TooLarge);

    const QByteArray whole = jpeg(small);
    const QByteArray end = whole.last(2);
    QTest::newRow("jpeg: small, great")
        << whole.chopped(2) + jpegFrame(great) + end << int(UTIL_ImageReader::Failed);
    QTest::newRow("jpeg: too great, small")
        << whole.first(2) + jpegFrame(tooGreat) + whole.sliced(2) << int(UTIL_ImageReader::TooLarge);
}

void tst_HostilePictures::firstHeaderCounts()
{
    QFETCH(const QByteArray, file);
    QFETCH(const int, status);
    UTIL_ImageReader reader = reducing(file);
    QVERIFY(!reader.read());
    QCOMPARE(reader.status(), status);
    QVERIFY(reader.image().isNull());
}

void tst_HostilePictures::failureIsNotWhole()
{
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(jpeg(QSize(60, 40)));
    bool isCancelled = false;
    reader.setIsCancelled([&isCancelled] { return isCancelled; });
    QVERIFY(reader.read());
    QVERIFY(reader.isWhole());
    isCancelled = true;
    QVERIFY(!reader.read());
    QVERIFY(!reader.isWhole());
}

int main(int argc, char** argv)
{
    return support::run<tst_HostilePictures>(argc, argv);
}

#include "tst_HostilePictures.moc"
