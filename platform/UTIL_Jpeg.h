#pragma once

#include <QImage>

class UTIL_PictureSource;

/// Reads JPEG with libjpeg. Qt's reader would report lost data of a damaged file only in the log. A picture
/// is not turned. It is null when any of its data is missing or the source was cancelled; only the end mark
/// may be missing.
namespace jpeg {

/// The whole picture: QImage::Format_Grayscale8 or Format_RGB32.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The picture scaled down to `target`, which is not empty and no greater than the picture in either
/// direction. Each pixel is the mean of those that it covers. Only some rows of the picture are in memory;
/// of a progressive one, also the data of its file.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target);

} // namespace jpeg
