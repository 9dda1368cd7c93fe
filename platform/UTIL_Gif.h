#pragma once

#include <QImage>

class UTIL_PictureSource;

/// The first frame of a GIF, for pictures that are too large for the toolkit's own reader. As there, what a
/// damaged file has of it is the picture, which is null when there is no frame at all or the source was
/// cancelled. It has the size of the screen that the header gives.
namespace gif {

/// The picture as it is: QImage::Format_ARGB32 where something is transparent, else Format_RGB32.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The same laid on `background` and scaled down to `target`, which is no greater than the screen in either
/// direction and not empty. Only an interlaced frame is in memory as a whole, at a byte a pixel.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target, QRgb background);

} // namespace gif
