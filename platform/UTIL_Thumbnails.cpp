#include "UTIL_Thumbnails.h"

#include "UTIL_ImageReader.h"
#include "UTIL_Skin.h"

#include <QCoreApplication>
#include <QPointer>
#include <QPromise>
#include <QThread>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <utility>

namespace {

constexpr qsizetype mostWanted = 40; ///< requests: more than a screen shows
constexpr int mostMade = 600;
/// Nobody has asked for most pictures of a folder, so reading one must not cost much.
constexpr qint64 mostPixels = 16'000'000;
constexpr QSize box(UTIL_Skin::Size::thumbnailWidth, UTIL_Skin::Size::thumbnailHeight);

QSize thumbnailSize(QSize size)
{
    if (size.width() <= box.width() && size.height() <= box.height())
        return size;
    return size.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

/// One thread for all objects. It outlives each of them and ends with the application.
QThreadPool& pool()
{
    static QPointer<QThreadPool> pool;
    if (!pool) {
        pool = new QThreadPool(QCoreApplication::instance());
        pool->setMaxThreadCount(1);
        pool->setThreadPriority(QThread::LowPriority);
    }
    return *pool;
}

QImage made(const QString& fileName, const UTIL_ImageReader::Allowance& allowance,
            const std::function<bool()>& isCancelled)
{
    UTIL_ImageReader reader(fileName);
    reader.setIsCancelled(isCancelled);
    reader.setAllowance(allowance);
    reader.setWorkLimit(mostPixels);
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
    connect(&m_maker, &QFutureWatcher<QImage>::finished, this, &UTIL_Thumbnails::take);
}

UTIL_Thumbnails::~UTIL_Thumbnails()
{
    m_maker.cancel();
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
    const auto promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    m_maker.setFuture(promise->future());
    pool().start([promise, fileName = m_making, allowance = UTIL_ImageReader::Allowance::ofPlatform()] {
        if (!promise->isCanceled())
            promise->addResult(made(fileName, allowance, [&promise] { return promise->isCanceled(); }));
        promise->finish();
    });
}

void UTIL_Thumbnails::take()
{
    const QString fileName = std::exchange(m_making, {});
    m_made.insert(fileName, new QPixmap(QPixmap::fromImage(m_maker.result())));
    emit ready(fileName);
    makeNext();
}
