#include "Screen.h"

#include "Theme.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace pad {

namespace {

constexpr int pixelsAScale = 450; // of height
constexpr int tallScreen = 2 * pixelsAScale;
constexpr int smallestKey = 24;      // pixels: a key of the tool bar
constexpr double fingertip = 7;      // mm
constexpr double inch = 25.4;        // mm
constexpr int assumed[] = {96, 100}; // pixels per inch, told by displays that don't know

} // namespace

void Screen::setMillimetres(const QSize& size)
{
    const QSizeF counted = QSizeF(pixels) / toolkitsOwnRatio * inch;
    const auto isCounted = [&](int density) {
        const QSizeF difference = counted / density - QSizeF(size);
        return std::abs(difference.width()) <= 1 && std::abs(difference.height()) <= 1;
    };
    const bool isKnown = !size.isEmpty() && std::none_of(std::begin(assumed), std::end(assumed), isCounted);
    dotsPerMillimetre = isKnown ? double(pixels.height()) / size.height() : 0;
}

int Screen::suitableScale() const
{
    const int byHeight = std::max(1, pixels.height() / pixelsAScale);
    const int byFinger = int(std::ceil(fingertip * dotsPerMillimetre / smallestKey));
    return std::min(std::max(byHeight, byFinger), largestScale());
}

int Screen::largestScale() const
{
    const int across = pixels.width() / theme::window.width();
    const int down = pixels.height() / theme::window.height();
    return std::max(1, std::min(across, down));
}

int Screen::plainScale() const
{
    return pixels.height() >= tallScreen ? 2 : 1;
}

} // namespace pad
