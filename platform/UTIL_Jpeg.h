#pragma once

#include <QImage>

class UTIL_PictureSource;

/// JPEG as its own library reads it: what the toolkit's reader loses of a damaged file it tells only the
/// log. A picture comes as it lies in the file, and null when any of its data is missing or the source was
/// cancelled; an end mark may be missing.
namespace jpeg {

/// The whole picture: QImage::Format_Grayscale8 or Format_RGB32.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The picture scaled down to `target`, which is no greater than the picture in either direction and not
/// empty; each pixel is the mean of what it covers. Only rows of the picture are in memory, and of a
/// progressive one what its file holds.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target);

} // namespace jpeg
