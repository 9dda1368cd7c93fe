#pragma once

#include <QByteArrayView>
#include <QImage>

/// How a camera was held, as it noted it in its files.
namespace exif {

/// 1 to 8, as EXIF numbers them: 1 is upright, above 4 lies on its side. `tiff` is what follows the mark
/// "Exif" in a file; where it tells nothing, or is damaged, 1.
[[nodiscard]] int orientation(QByteArrayView tiff);
[[nodiscard]] constexpr bool isTurned(int orientation)
{
    return orientation > 4;
}
/// The picture the right way up.
[[nodiscard]] QImage upright(const QImage& image, int orientation);

} // namespace exif
