#pragma once

#include <QByteArrayView>
#include <QImage>

/// How a camera was held, as it noted in its files.
namespace exif {

/// The orientation as EXIF numbers it, 1 to 8: 1 is upright, above 4 the picture lies on its side. `tiff`
/// is what follows the mark "Exif" in a file. 1 if it holds no orientation or is damaged.
[[nodiscard]] int orientation(QByteArrayView tiff);
[[nodiscard]] constexpr bool isTurned(int orientation)
{
    return orientation > 4;
}
/// The picture turned the right way up.
[[nodiscard]] QImage upright(const QImage& image, int orientation);

} // namespace exif
