#include "KORVA_WorkingLimits.h"

#include "UTIL_Platform.h"

#include <QPainter>

namespace {

constexpr int mostDepth = 24;
constexpr QSize mostBox(4096, 4096);
constexpr QRgb white = 0xffffffff;

QImage inDepth(const QImage& image, int depth)
{
    const QImage::Format format = depth == mostDepth ? QImage::Format_RGB32 : QImage::Format_RGB16;
    const int deepest = depth == mostDepth ? 32 : depth;
    return image.depth() > deepest || image.depth() == 1 ? image.convertToFormat(format, Qt::AvoidDither)
                                                         : image;
}

} // namespace

KORVA_WorkingLimits KORVA_WorkingLimits::ofPlatform()
{
    const UTIL_Platform* const platform = UTIL_Platform::instance();
    KORVA_WorkingLimits limits;
    if (const QSize box = platform->workingBox(); !box.isEmpty())
        limits.box = box.boundedTo(mostBox);
    if (platform->workingDepth() >= mostDepth)
        limits.depth = mostDepth;
    return limits;
}

QSize KORVA_WorkingLimits::sizeOf(QSize size) const
{
    const qint64 width = size.width();
    const qint64 height = size.height();
    const qint64 tallness = height * box.width() - width * box.height();
    if (width * height <= qint64(box.width()) * box.height())
        return size;
    if (tallness == 0)
        return box;
    // However narrow the result is, one pixel of its width remains.
    if (tallness > 0)
        return {qMax(1, int(width * box.height() / height)), box.height()};
    return {box.width(), qMax(1, int(height * box.width() / width))};
}

QImage KORVA_WorkingLimits::fitted(const QImage& image) const
{
    const QSize size = sizeOf(image.size());
    const QImage shallow = inDepth(laidOn(image, white), depth);
    return size == image.size()
               ? shallow
               : inDepth(shallow.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), depth);
}

bool KORVA_WorkingLimits::convert(const QImage& image, QPixmap* pixmap) const
{
    const QImage working = fitted(image);
    return !working.isNull() && pixmap->convertFromImage(working, Qt::AvoidDither);
}

QImage KORVA_WorkingLimits::laidOn(const QImage& image, QRgb paper)
{
    if (!image.hasAlphaChannel())
        return image;
    if (image.format() == QImage::Format_Indexed8) {
        QList<QRgb> colors = image.colorTable();
        const QImage swatch(reinterpret_cast<const uchar*>(colors.constData()), int(colors.size()), 1,
                            QImage::Format_ARGB32);
        const QImage opaque = laidOn(swatch, paper);
        for (int index = 0; index < opaque.width(); ++index)
            colors[index] = opaque.pixel(index, 0);
        QImage result = image;
        result.setColorTable(colors);
        return result;
    }
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(paper);
    QPainter(&result).drawImage(0, 0, image);
    return result;
}
