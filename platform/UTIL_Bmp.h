#pragma once

#include <QImage>

class UTIL_PictureSource;

/// Reads a BMP without run lengths that is too large for Qt's own reader to take at once: that gets it in
/// strips. Null when the picture cannot be read or the source was cancelled.
namespace bmp {

/// The whole picture, in Qt's format for it.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The same laid on `background` and scaled down to `target`, which is not empty and no greater than the
/// picture in either direction. Only one strip is in memory.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target, QRgb background);

} // namespace bmp
