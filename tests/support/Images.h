#pragma once

#include <QtGui>

#include <functional>

namespace support {

/// Whether two pictures agree in size and in every pixel. Where they don't, it says how far they differ and
/// leaves "name-actual.png", "name-expected.png" and "name-difference.png" in the folder for test output.
/// Without a name the running test function and data row give it.
[[nodiscard]] bool sameImage(const QImage& actual, const QImage& expected, QString name = {});
[[nodiscard]] inline bool sameImage(const QPixmap& actual, const QImage& expected, const QString& name = {})
{
    return sameImage(actual.toImage(), expected, name);
}

/// A picture of one colour, painted on by `paint` if there is any.
[[nodiscard]] QImage sheet(QSize size, const QColor& color = Qt::white,
                           const std::function<void(QPainter&)>& paint = {});
/// A picture in which every pixel differs from its neighbours and none is white or black.
[[nodiscard]] QImage mosaic(QSize size);

[[nodiscard]] QImage inverted(const QImage& image);
/// The picture with another one on it, its top left at the given point.
[[nodiscard]] QImage overlaid(QImage below, QPoint at, const QImage& above);
/// The picture with a rectangle of one colour on it.
[[nodiscard]] QImage filled(QImage image, const QRect& rect, const QColor& color);
/// What a painter without smoothing makes of the picture at this zoom, sides truncated.
[[nodiscard]] QImage scaled(const QImage& image, int percent);

/// The smallest rectangle around all pixels that are not white.
[[nodiscard]] QRect inkBounds(const QImage& image);
[[nodiscard]] int inkCount(const QImage& image);

} // namespace support
