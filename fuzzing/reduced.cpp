// A picture that is scaled down while it is read. Byte 0: bit 0 reads through UTIL_ImageReader, where only
// pictures of millions of pixels (and JPEGs) are reduced; without it the decoder of the format is called,
// whatever the size. Bits 1 to 3: the reader asks after so many reads, from 1, whether it is cancelled, and
// then it is; 0: never. Bytes 1 and 2: the wanted width and height, as a fraction of the picture's. The
// rest is the file.
#include "Bytes.h"
#include "Fuzz.h"

#include "UTIL_Bmp.h"
#include "UTIL_Gif.h"
#include "UTIL_ImageReader.h"
#include "UTIL_Jpeg.h"
#include "UTIL_PictureProbe.h"
#include "UTIL_PictureSource.h"
#include "UTIL_Png.h"

#include <KORVA_Assert.h>

#include <QBuffer>

namespace {

constexpr qint64 mostPixels = 6'000'000; // beyond what is decoded as a whole
constexpr double forMegapixels = 5;      // seconds
constexpr qint64 mostPixelsDirectly = 300'000;
constexpr QRgb background = 0xffffffff;

QImage decoded(const UTIL_PictureProbe& probe, UTIL_PictureSource& source, QSize target)
{
    if (probe.format == "PNG")
        return png::readReduced(source, target);
    if (probe.format == "JPEG")
        return jpeg::readReduced(source, target);
    if (probe.format == "GIF")
        return gif::readReduced(source, target, background);
    if (probe.format == "BMP" && !probe.hasRuns)
        return bmp::readReduced(source, target, background);
    return {};
}

} // namespace

void fuzz::feed(const QByteArray& input)
{
    Bytes bytes(input);
    const int how = bytes.next();
    const int across = bytes.next() + 1;
    const int down = bytes.next() + 1;
    QByteArray file = bytes.rest();
    int reads = how >> 1 & 7;
    const bool mayCancel = reads > 0;
    const auto isCancelled = [&reads, mayCancel] { return mayCancel && --reads <= 0; };
    const auto wanted = [across, down](QSize size) {
        return QSize(qMax(1, int(qint64(size.width()) * across / 0x100)),
                     qMax(1, int(qint64(size.height()) * down / 0x100)));
    };

    if (how & 1) {
        UTIL_ImageReader reader = UTIL_ImageReader::fromData(file);
        reader.setAllowance({mostPixels, {}});
        reader.setIsCancelled(isCancelled);
        reader.setReduction(wanted);
        bool isRead = false;
        swiftly(
            "reader", [&] { isRead = reader.read(); }, forMegapixels);
        KORVA_ASSERT(isRead == !reader.image().isNull());
        KORVA_ASSERT(reader.image().width() <= reader.sourceSize().width() || !isRead);
        KORVA_ASSERT(!reader.isWhole() || reader.image().size() == reader.sourceSize());
        return;
    }

    QBuffer device(&file);
    device.open(QIODevice::ReadOnly);
    const UTIL_PictureProbe probe = UTIL_PictureProbe::of(device);
    if (!probe.sound || qint64(probe.size.width()) * probe.size.height() > mostPixelsDirectly ||
        probe.passes > 20)
        return;
    UTIL_PictureSource source(device, probe.kept, isCancelled);
    const QSize target = wanted(probe.size);
    QImage image;
    swiftly(probe.format.constData(), [&] { image = decoded(probe, source, target); });
    // The frame of a GIF may go beyond its screen, which is then less than was reckoned with.
    const bool isFitting =
        probe.format == "GIF" ? image.size().boundedTo(target) == image.size() : image.size() == target;
    KORVA_ASSERT(image.isNull() || (isFitting && isOpaque(image)));
}
