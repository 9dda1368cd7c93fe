#include "UTIL_Bmp.h"

#include "UTIL_PictureSource.h"
#include "UTIL_Reducer.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <cstring>

namespace {

constexpr qint64 stripPixels = 500'000;
/// The header, at most 256 colours, and perhaps a gap come before the pixels.
constexpr quint32 mostBefore = 1 << 20;
constexpr quint32 oldHeader = 12;

class Strips
{
public:
    /// False when the header makes no sense.
    bool begin(UTIL_PictureSource& source)
    {
        constexpr quint32 fileHeader = 14;
        constexpr quint32 leastHeader = 40;
        m_source = &source;
        source.seek(0);
        m_before = source.read(fileHeader + leastHeader);
        if (m_before.size() < qsizetype(fileHeader + leastHeader))
            return false;
        const auto offset = number<quint32>(10);
        m_isOld = number<quint32>(14) == oldHeader;
        if (offset < fileHeader + (m_isOld ? oldHeader : leastHeader) || offset > mostBefore)
            return false;
        const qint64 height = m_isOld ? number<qint16>(20) : number<qint32>(22);
        const qint64 width = m_isOld ? number<quint16>(18) : number<qint32>(18);
        m_isTopDown = height < 0;
        m_size = QSize(int(width), int(qAbs(height)));
        m_stride = (width * number<quint16>(m_isOld ? 24 : 28) + 31) / 32 * 4;
        const bool isBiLevel = !m_isOld && number<quint16>(28) == 1;
        source.seek(0);
        m_before = source.read(offset);
        if (isBiLevel)
            leaveOutSpareColors();
        return m_before.size() == qsizetype(offset) && width > 0 && height != 0;
    }

    [[nodiscard]] QSize size() const { return m_size; }
    [[nodiscard]] int y() const { return m_y; } ///< the row below the strips so far

    /// The next strip, from the top; null after the last one and on failure.
    QImage next()
    {
        const int rows =
            int(qBound(qint64(1), stripPixels / m_size.width(), qint64(m_size.height() - m_y)));
        const qint64 first = m_isTopDown ? m_y : m_size.height() - m_y - rows;
        if (m_y == m_size.height() || m_source->isCancelled() ||
            !m_source->seek(m_before.size() + first * m_stride))
            return {};
        QByteArray file = m_before + m_source->read(rows * m_stride);
        if (m_isOld) {
            qToLittleEndian<qint16>(qint16(rows), file.data() + 20);
        } else {
            qToLittleEndian<qint32>(m_isTopDown ? -rows : rows, file.data() + 22);
        }
        m_y += rows;
        QBuffer buffer(&file);
        buffer.open(QIODevice::ReadOnly);
        return QImageReader(&buffer, "BMP").read();
    }

private:
    /// Qt warns of each colour that no pixel can have.
    void leaveOutSpareColors()
    {
        constexpr quint32 most = 256; // of more, Qt takes the file for damaged
        constexpr int colorsUsed = 46;
        if (const auto colors = number<quint32>(colorsUsed); colors > 2 && colors <= most)
            qToLittleEndian<quint32>(2, m_before.data() + colorsUsed);
    }

    template <typename Number>
    [[nodiscard]] Number number(int at) const
    {
        return qFromLittleEndian<Number>(m_before.constData() + at);
    }

    UTIL_PictureSource* m_source = nullptr;
    QByteArray m_before; ///< everything before the pixels
    bool m_isOld = false;
    bool m_isTopDown = false;
    QSize m_size;
    qint64 m_stride = 0; ///< bytes of a row
    int m_y = 0;
};

} // namespace

QImage bmp::read(UTIL_PictureSource& source)
{
    Strips strips;
    QImage image;
    if (!strips.begin(source))
        return {};
    while (strips.y() < strips.size().height()) {
        const int top = strips.y();
        const QImage strip = strips.next();
        if (strip.isNull())
            return {};
        if (image.isNull()) {
            image = QImage(strips.size(), strip.format());
            image.setColorTable(strip.colorTable());
        }
        if (image.isNull() || strip.format() != image.format())
            return {};
        for (int y = 0; y < strip.height(); ++y)
            std::memcpy(image.scanLine(top + y), strip.constScanLine(y), size_t(strip.bytesPerLine()));
    }
    return image;
}

QImage bmp::readReduced(UTIL_PictureSource& source, QSize target, QRgb background)
{
    Strips strips;
    if (!strips.begin(source))
        return {};
    UTIL_Reducer reducer(strips.size(), target);
    while (strips.y() < strips.size().height()) {
        const QImage strip = strips.next();
        if (strip.isNull())
            return {};
        reducer.addRows(strip, background);
    }
    return reducer.image();
}
