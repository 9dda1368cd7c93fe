#include "UTIL_Thumbnails.h"

#include "UTIL_ImageReader.h"
#include "UTIL_Platform.h"
#include "UTIL_Skin.h"

#include <QThread>

namespace {

constexpr qsizetype mostWanted = 40; ///< more than a screen shows
constexpr int mostMade = 600;
constexpr QSize box(UTIL_Skin::Size::thumbnailWidth, UTIL_Skin::Size::thumbnailHeight);

QSize thumbnailSize(QSize size)
{
    if (size.width() <= box.width() && size.height() <= box.height())
        return size;
    return size.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage made(const QString& fileName, qint64 pixelLimit)
{
    UTIL_ImageReader reader(fileName);
    reader.setPixelLimit(pixelLimit);
    reader.setReduction(thumbnailSize);
    reader.read();
    const QImage& image = reader.image();
    const QSize size = thumbnailSize(image.size());
    return size == image.size() ? image
                                : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

UTIL_Thumbnails::UTIL_Thumbnails(QObject* parent) : QObject(parent), m_made(mostMade)
{
    m_pool.setMaxThreadCount(1);
    m_pool.setThreadPriority(QThread::LowPriority);
}

UTIL_Thumbnails::~UTIL_Thumbnails()
{
    m_pool.waitForDone();
}

QPixmap UTIL_Thumbnails::wanted(const QString& fileName)
{
    if (const QPixmap* pixmap = m_made.object(fileName))
        return *pixmap;
    if (fileName == m_making)
        return {};
    m_wanted.removeOne(fileName);
    m_wanted.append(fileName);
    if (m_wanted.size() > mostWanted)
        m_wanted.removeFirst();
    makeNext();
    return {};
}

void UTIL_Thumbnails::makeNext()
{
    if (!m_making.isEmpty() || m_wanted.isEmpty())
        return;
    m_making = m_wanted.takeLast();
    m_pool.start([this, fileName = m_making, limit = UTIL_Platform::instance()->pixelLimit()] {
        const QImage image = made(fileName, limit);
        QMetaObject::invokeMethod(this, [this, fileName, image] { take(fileName, image); });
    });
}

void UTIL_Thumbnails::take(const QString& fileName, const QImage& image)
{
    m_making.clear();
    m_made.insert(fileName, new QPixmap(QPixmap::fromImage(image)));
    emit ready(fileName);
    makeNext();
}
