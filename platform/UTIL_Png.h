#pragma once

#include <QImage>

class QIODevice;

/// PNG where the toolkit's own reader and writer are too costly: see the two functions.
namespace png {

/// The picture in `device`, laid on white and scaled down to `target`, which is no greater than the picture
/// in either direction; null when the file is damaged. Only an interlaced picture is in memory as a whole,
/// at four bytes a pixel.
[[nodiscard]] QImage readReduced(QIODevice& device, QSize target);

/// An opaque picture as a PNG file, bit for bit and as small as the format allows within reason: few
/// colours are packed into a palette of 1, 2, 4 or 8 bits.
[[nodiscard]] QByteArray encoded(const QImage& image);

} // namespace png
