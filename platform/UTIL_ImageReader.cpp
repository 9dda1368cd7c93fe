#include "UTIL_ImageReader.h"

#include "UTIL_PictureProbe.h"
#include "UTIL_PictureSource.h"
#include "UTIL_Platform.h"
#include "UTIL_Png.h"
#include "UTIL_Reducer.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>

#include <atomic>
#include <utility>

namespace {

/// Up to here a picture is decoded as it is: 16 MB at four bytes a pixel.
constexpr qint64 mostPixelsAtOnce = 4'000'000;

qint64 area(QSize size)
{
    return size.isValid() ? qint64(size.width()) * size.height() : 0;
}

/// What is changed for the whole program while any thread reads: a decoder may allocate what the pixel
/// limit calls for (the toolkit's own 128 MB would refuse pictures well within it), and what it warns of is
/// kept from the log.
class Reading
{
public:
    explicit Reading(qint64 pixels)
    {
        const QMutexLocker locker(&mutex);
        if (readers++ == 0) {
            limitBefore = QImageReader::allocationLimit();
            previous = qInstallMessageHandler(handle);
        }
        current = this;
        constexpr qint64 bytesPerPixel = 8; // sixteen bits for each of four channels
        constexpr qint64 megabyte = 1 << 20;
        const qint64 wanted = qMin<qint64>((pixels / megabyte + 1) * bytesPerPixel, INT_MAX);
        const int limit = QImageReader::allocationLimit();
        if (limit > 0 && limit < wanted)
            QImageReader::setAllocationLimit(int(wanted));
    }
    ~Reading()
    {
        const QMutexLocker locker(&mutex);
        current = nullptr;
        if (--readers == 0) {
            QImageReader::setAllocationLimit(limitBefore);
            qInstallMessageHandler(previous);
        }
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    /// Whether this reader's decoder warned of lost picture data, which is all that a JPEG with a hole in
    /// it gives away.
    [[nodiscard]] bool hasLostData() const { return m_hasLostData; }

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (!current || type == QtCriticalMsg || type == QtFatalMsg) {
            if (const QtMessageHandler handler = previous)
                handler(type, context, text);
            return;
        }
        // Bytes too many between the parts of a file are common and do no harm.
        if (text.contains(QLatin1String("Corrupt JPEG data")) &&
            !text.contains(QLatin1String("extraneous")))
            current->m_hasLostData = true;
    }

    static inline QMutex mutex;
    static inline int readers = 0;
    static inline int limitBefore = 0;
    static inline std::atomic<QtMessageHandler> previous = nullptr;
    static thread_local Reading* current; ///< this thread's
    bool m_hasLostData = false;
};

thread_local Reading* Reading::current = nullptr;

QByteArray normalized(const char* format)
{
    const QByteArray name = QByteArray(format).toUpper();
    return name == "JPG" ? QByteArray("JPEG") : name;
}

} // namespace

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
    // Row by row: whole copies in a format that holds every colour would be great.
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
    } else if (m_parameters == "16") {
        const QImage full =
            std::exchange(m_image, m_image.convertToFormat(QImage::Format_RGB16, Qt::AvoidDither));
        m_isWhole = m_isWhole && isSame(full, m_image);
    }
    return m_status == Ok;
}

UTIL_ImageReader::Status UTIL_ImageReader::readFrom(QIODevice& device)
{
    const qint64 limit = m_pixelLimit ? *m_pixelLimit : UTIL_Platform::instance()->pixelLimit();
    const UTIL_PictureProbe probe = UTIL_PictureProbe::of(device);
    const bool isTold = !probe.format.isEmpty() || UTIL_PictureProbe::knows(m_format);
    if (isTold && !m_format.isEmpty() && m_format != probe.format)
        return Failed;
    if (area(probe.size) > limit)
        return TooLarge;
    if (!probe.format.isEmpty() && !probe.sound)
        return Failed;

    const Reading reading(limit);
    UTIL_PictureSource source(device, probe.kept, m_isCancelled);
    QImageReader reader(&source, probe.format.isEmpty() ? m_format : probe.format);
    const bool isUnknown = probe.format.isEmpty() && m_format.isEmpty();
    reader.setAutoDetectImageFormat(isUnknown);
    reader.setDecideFormatFromContent(isUnknown);
    reader.setAutoTransform(true);
    const QSize stored = reader.size().expandedTo(probe.size);
    if (area(stored) > limit)
        return TooLarge;

    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize upright = isTurned ? stored.transposed() : stored;
    const QSize wanted = m_reduction && upright.isValid() ? m_reduction(upright) : upright;
    m_sourceSize = upright;
    const bool isReduced = wanted != upright;
    if (isReduced && probe.format == "JPEG")
        reader.setScaledSize(isTurned ? wanted.transposed() : wanted);
    if (isReduced && probe.format == "PNG" && area(stored) > mostPixelsAtOnce) {
        source.seek(0);
        m_image = png::readReduced(source, wanted);
        return m_image.isNull() ? Failed : Ok;
    }
    if (!reader.read(&m_image) || reading.hasLostData() || (m_isCancelled && m_isCancelled()))
        return Failed;
    if (area(m_image.size()) > limit)
        return TooLarge;
    if (isReduced && m_image.size() == upright && area(upright) > mostPixelsAtOnce)
        m_image = UTIL_Reducer::reduced(m_image, wanted, m_background);
    if (!m_sourceSize.isValid()) // some formats tell it only with the pixels
        m_sourceSize = m_image.size();
    m_isWhole = m_image.size() == m_sourceSize && reader.imageCount() <= 1;
    return Ok;
}
