#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

#include <functional>

/// A drawing in few colours. Pure functions, for any thread.
namespace pad::palette {

/// How colours that the palette lacks are shown.
enum class Mixing {
    None, ///< by the nearest colour of the palette
    Dots, ///< by dots of two colours of the palette
};

/// Asked now and then by what takes long. When it says no, the work ends with an empty result.
using IsWanted = std::function<bool()>;

/// At most so many colours for a picture, 2 to 256. Two are black and white, in this order. A picture with
/// no more colours gets exactly its own. For any other the colours are found by the median cut (P.
/// Heckbert, "Color image quantization for frame buffer display", 1982). A colour that is most of what it
/// stands for is taken as it is, so that paper stays white.
[[nodiscard]] QList<QRgb> of(const QImage& picture, int colors, const IsWanted& isWanted = {});

/// The picture in the colours of a palette: in QImage::Format_Mono with two, in Format_Indexed8 with more.
/// A colour of the palette stays as it is. Dots follow the 4 × 4 matrix of B. E. Bayer, "An optimum method
/// for two-level rendition of continuous-tone pictures", 1973.
[[nodiscard]] QImage applied(const QImage& picture, const QList<QRgb>& palette, Mixing mixing,
                             const IsWanted& isWanted = {});

/// A picture from applied() as a PNG file with its palette, in 1, 2, 4 or 8 bits a pixel, as few as the
/// number of the colours needs. Empty if there is no memory.
[[nodiscard]] QByteArray png(const QImage& picture);

} // namespace pad::palette
