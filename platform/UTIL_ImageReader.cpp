#include "UTIL_ImageReader.h"

#include "UTIL_Platform.h"

#include <QImageReader>

UTIL_ImageReader::UTIL_ImageReader(const QString& fileName, const char* format)
    : m_fileName(fileName), m_format(format)
{
}

QPixmap UTIL_ImageReader::pixmap(const QString& fileName, const char* format)
{
    UTIL_ImageReader reader(fileName, format);
    return reader.read() ? QPixmap::fromImage(reader.image()) : QPixmap();
}

bool UTIL_ImageReader::read()
{
    m_image = {};
    m_status = Failed;

    QImageReader reader(m_fileName, m_format);
    reader.setAutoDetectImageFormat(m_format.isEmpty());
    reader.setDecideFormatFromContent(m_format.isEmpty());
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > UTIL_Platform::instance()->pixelLimit()) {
        m_status = TooLarge;
        return false;
    }
    if (!reader.read(&m_image))
        return false;
    m_status = Ok;
    return true;
}
