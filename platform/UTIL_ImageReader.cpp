#include "UTIL_ImageReader.h"

#include "UTIL_Bmp.h"
#include "UTIL_Exif.h"
#include "UTIL_Gif.h"
#include "UTIL_Jpeg.h"
#include "UTIL_PictureProbe.h"
#include "UTIL_PictureSource.h"
#include "UTIL_Platform.h"
#include "UTIL_Png.h"
#include "UTIL_Reducer.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <limits>
#include <utility>

namespace {

/// Pictures up to this many pixels, other than JPEGs, are decoded at full size: 16 MB at four bytes per
/// pixel.
constexpr qint64 mostPixelsAtOnce = 4'000'000;

qint64 area(QSize size)
{
    return size.isValid() ? qint64(size.width()) * size.height() : 0;
}

/// Qt refuses what takes more than the program's limit at four bytes a pixel, and logs it.
bool isBeyondToolkit(QSize size)
{
    constexpr qint64 megabyte = 1 << 20;
    const qint64 limit = QImageReader::allocationLimit() * megabyte;
    return limit > 0 && area(size) * 4 > limit;
}

QByteArray normalized(const char* format)
{
    const QByteArray name = QByteArray(format).toUpper();
    return name == "JPG" ? QByteArray("JPEG") : name;
}

} // namespace

UTIL_ImageReader::Allowance UTIL_ImageReader::Allowance::ofPlatform()
{
    const UTIL_Platform* platform = UTIL_Platform::instance();
    return {platform->pixelLimit(), platform->otherFormats()};
}

UTIL_ImageReader::UTIL_ImageReader(const QString& fileName, const char* format)
    : m_fileName(fileName), m_format(normalized(format))
{
}

UTIL_ImageReader UTIL_ImageReader::fromData(const QByteArray& data, const char* format)
{
    UTIL_ImageReader reader(QString(), format);
    reader.m_data = data;
    reader.m_isInMemory = true;
    return reader;
}

QPixmap UTIL_ImageReader::pixmap(const QString& fileName, const char* format)
{
    UTIL_ImageReader reader(fileName, format);
    return reader.read() ? QPixmap::fromImage(reader.image()) : QPixmap();
}

bool UTIL_ImageReader::isSame(const QImage& left, const QImage& right)
{
    if (left.size() != right.size())
        return false;
    // Row by row: whole copies in a format that holds every colour would be large.
    const auto row = [](const QImage& image, int y) {
        return image.copy(0, y, image.width(), 1).convertToFormat(QImage::Format_RGBA64);
    };
    for (int y = 0; y < left.height(); ++y) {
        if (row(left, y) != row(right, y))
            return false;
    }
    return true;
}

void UTIL_ImageReader::setReduction(const Reduction& reduction, QRgb background)
{
    m_reduction = reduction;
    m_background = background;
}

bool UTIL_ImageReader::read()
{
    m_image = {};
    m_sourceSize = {};
    m_isWhole = false;
    m_status = Failed;
    if (m_isInMemory) {
        QBuffer buffer(&m_data);
        buffer.open(QIODevice::ReadOnly);
        m_status = readFrom(buffer);
    } else if (QFileInfo(m_fileName).isFile()) { // a pipe would never end
        QFile file(m_fileName);
        if (file.open(QIODevice::ReadOnly))
            m_status = readFrom(file);
    }
    if (m_status != Ok) {
        m_image = {};
        m_isWhole = false;
    } else if (m_parameters == "16") {
        const QImage full =
            std::exchange(m_image, m_image.convertToFormat(QImage::Format_RGB16, Qt::AvoidDither));
        m_isWhole = m_isWhole && isSame(full, m_image);
    }
    return m_status == Ok;
}

UTIL_ImageReader::Status UTIL_ImageReader::readFrom(QIODevice& device)
{
    const Allowance allowance = m_allowance ? *m_allowance : Allowance::ofPlatform();
    const UTIL_PictureProbe probe = UTIL_PictureProbe::of(device);
    if (probe.format.isEmpty())
        return readOther(device, allowance);
    const bool isAllowed = !m_ownFormats || m_ownFormats->contains(probe.format);
    if (!isAllowed || (!m_format.isEmpty() && m_format != probe.format))
        return Failed;
    if (area(probe.size) > allowance.pixels)
        return TooLarge;
    if (!probe.sound)
        return Failed;

    const bool isTurned = exif::isTurned(probe.orientation);
    m_sourceSize = isTurned ? probe.size.transposed() : probe.size;
    const QSize wanted = m_reduction && !m_sourceSize.isEmpty() ? m_reduction(m_sourceSize) : m_sourceSize;
    std::optional<QSize> target; // as the picture lies in the file
    if (wanted != m_sourceSize)
        target = isTurned ? wanted.transposed() : wanted;
    const bool isCheap = probe.format == "JPEG" && probe.passes == 1 && target;
    if (!isCheap && area(probe.size) * probe.passes > m_workLimit)
        return TooLarge;
    const bool isToolkits = probe.hasRuns || probe.format == "WBMP";
    if (isToolkits && isBeyondToolkit(probe.size))
        return TooLarge;

    UTIL_PictureSource source(device, probe.kept, m_isCancelled);
    m_image = exif::upright(decoded(source, probe, target), probe.orientation);
    if (m_image.isNull() || source.isCancelled())
        return Failed;
    m_isWhole = m_image.size() == m_sourceSize && m_isWhole;
    return Ok;
}

QImage UTIL_ImageReader::decoded(UTIL_PictureSource& source, const UTIL_PictureProbe& probe,
                                 const std::optional<QSize>& target)
{
    m_isWhole = true;
    if (probe.format == "JPEG")
        return target ? jpeg::readReduced(source, *target) : jpeg::read(source);
    const bool isGreat = area(probe.size) > mostPixelsAtOnce;
    const bool isReduced = isGreat && target;
    if (probe.format == "PNG")
        return isReduced ? png::readReduced(source, *target) : png::read(source);
    if (probe.format == "BMP" && (isGreat || probe.hasSpareColors) && !probe.hasRuns)
        return isReduced ? bmp::readReduced(source, *target, m_background) : bmp::read(source);

    QImageReader reader(&source, probe.format);
    reader.setAutoDetectImageFormat(false);
    m_isWhole = reader.imageCount() <= 1;
    if (probe.format == "GIF" && isGreat) {
        source.seek(0);
        return isReduced ? gif::readReduced(source, *target, m_background) : gif::read(source);
    }
    const QImage image = reader.read();
    return isReduced && !image.isNull() ? UTIL_Reducer::reduced(image, *target, m_background) : image;
}

UTIL_ImageReader::Status UTIL_ImageReader::readOther(QIODevice& device, const Allowance& allowance)
{
    for (const QByteArray& name : allowance.otherFormats) {
        const QByteArray format = normalized(name.constData());
        if (!m_format.isEmpty() && m_format != format)
            continue;
        UTIL_PictureSource source(device, {{0, device.size()}}, m_isCancelled);
        QImageReader reader(&source, format);
        reader.setAutoDetectImageFormat(false);
        reader.setAutoTransform(true);
        if (!reader.canRead())
            continue;
        const qint64 pixels = area(reader.size());
        if (pixels > allowance.pixels || pixels > m_workLimit)
            return TooLarge;
        if (!reader.read(&m_image) || source.isCancelled())
            return Failed;
        if (area(m_image.size()) > allowance.pixels)
            return TooLarge;
        m_sourceSize = m_image.size();
        m_isWhole = reader.imageCount() <= 1;
        return Ok;
    }
    return Failed;
}
