#include "KORVA_Enlarge.h"

#include <QImage>
#include <QPixmap>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

bool fits(const QImage& picture, int factor, const QImage& enlarged)
{
    constexpr int bits = 32;
    return picture.depth() == bits && picture.format() == enlarged.format() && factor > 0 &&
           enlarged.size() == picture.size() * factor;
}

void writeTwice(const QRgb* from, int count, QRgb* to)
{
    for (int i = 0; i < count; ++i) {
        to[2 * i] = from[i];
        to[2 * i + 1] = from[i];
    }
}

void write(const QRgb* from, int count, int factor, QRgb* to)
{
    for (int i = 0; i < count; ++i)
        to = std::fill_n(to, factor, from[i]);
}

} // namespace

bool classic::enlarge(const QImage& picture, int factor, QImage& enlarged)
{
    if (!fits(picture, factor, enlarged))
        return false;
    uchar* const bits = enlarged.bits();
    const qsizetype stride = enlarged.bytesPerLine();
    for (int y = 0; y < picture.height(); ++y) {
        uchar* const first = bits + y * factor * stride;
        const auto* const from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        auto* const to = reinterpret_cast<QRgb*>(first);
        if (factor == 2)
            writeTwice(from, picture.width(), to);
        else
            write(from, picture.width(), factor, to);
        for (int copy = 1; copy < factor; ++copy)
            std::memcpy(first + copy * stride, first, size_t(stride));
    }
    return true;
}

bool classic::enlarge(const QPixmap& picture, int factor, QPixmap& enlarged)
{
    QImage pixels = enlarged.toImage();
    if (!fits(picture.toImage(), factor, pixels))
        return false;
    enlarged = {}; // the only one that still holds them is the image
    const bool isDone = enlarge(picture.toImage(), factor, pixels);
    enlarged = QPixmap::fromImage(std::move(pixels));
    return isDone;
}
