#pragma once

#include <QSize>

namespace pad {

/// The screen on which the program opens.
struct Screen
{
    QSize pixels;                ///< physical pixels
    double dotsPerMillimetre{};  ///< 0 if unknown
    double toolkitsOwnRatio = 1; ///< the ratio by which Qt enlarges everything there anyway

    /// Sets the density from the size in millimetres that the display tells. An empty size, or one that is
    /// only calculated from an assumed density, makes it unknown.
    void setMillimetres(const QSize& size);

    /// The scale that shows the pad at a good size, by the screen's height. If the density is known and the
    /// window still fits, keys are at least 7 mm.
    [[nodiscard]] int suitableScale() const;
    /// The largest scale at which the whole pad fits.
    [[nodiscard]] int largestScale() const;
    /// The scale of a run that nobody looks at: 2 from a height of 900 pixels on, else 1.
    [[nodiscard]] int plainScale() const;
};

} // namespace pad
