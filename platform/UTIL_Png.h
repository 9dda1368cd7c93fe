#pragma once

#include <QImage>

class UTIL_PictureSource;

/// PNG as its own library reads and writes it.
namespace png {

/// The picture as it is, in the toolkit's format for its samples: grey of 1, 8 or 16 bits, a palette, or
/// true colour of 32 or 64 bits, with transparency where the file has it. Null when the file is damaged or
/// the source was cancelled.
[[nodiscard]] QImage read(UTIL_PictureSource& source);

/// The same picture, laid on white and scaled down to `target`, which is no greater than the picture in
/// either direction and not empty. Only an interlaced picture is in memory as a whole, at four bytes a
/// pixel.
[[nodiscard]] QImage readReduced(UTIL_PictureSource& source, QSize target);

/// An opaque picture as a PNG file, bit for bit and as small as the format allows within reason: few
/// colours are packed into a palette of 1, 2, 4 or 8 bits.
[[nodiscard]] QByteArray encoded(const QImage& image);

} // namespace png
