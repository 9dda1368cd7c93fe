#pragma once

#include <QImage>

class UTIL_PictureSource;

/// Reads the first frame of a GIF that is too large for Qt's own reader. As there, a damaged file gives the
/// part of the frame that it holds. The picture is null when there is no frame at all or the source was
/// cancelled. Its size is that of the screen that the header gives.
namespace gif {

/// The whole picture: QImage::Format_ARGB32 if something is transparent, else Format_RGB32.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The same laid on `background` and scaled down to `target`, which is not empty. If the target is greater
/// than the screen in a direction, as it may be for a frame that goes beyond the screen, the picture fits
/// within both. Only an interlaced frame is in memory as a whole, at one byte per pixel.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target, QRgb background);

} // namespace gif
