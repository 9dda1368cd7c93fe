#pragma once

#include <QImage>

class UTIL_PictureSource;

/// Reads and writes PNG with libpng.
namespace png {

/// The whole picture, in Qt's format for its samples: grey of 1, 8 or 16 bits, a palette, or true colour of
/// 32 or 64 bits, with transparency if the file has it. Null when the file is damaged or the source was
/// cancelled.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The same picture laid on white and scaled down to `target`, which is not empty and no greater than the
/// picture in either direction. Only an interlaced picture is in memory as a whole, at four bytes per
/// pixel.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target);

/// An opaque picture as a PNG file, bit for bit. The file is made as small as is practical: few colours are
/// packed into a palette of 1, 2, 4 or 8 bits. More than a million pixels in true colour are compressed at
/// the codec's usual effort.
[[nodiscard]] QByteArray encoded(const QImage& image);

} // namespace png
