#pragma once

#include <QImage>

class UTIL_PictureSource;

/// A BMP of plain rows that is too large for the toolkit's own reader, which gets it in strips. Null when
/// it cannot be read or the source was cancelled.
namespace bmp {

/// The picture as it is, in the toolkit's format for it.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The same laid on `background` and scaled down to `target`, which is no greater than the picture in
/// either direction and not empty. No more than a strip is in memory.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target, QRgb background);

} // namespace bmp
