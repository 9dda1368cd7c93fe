#pragma once

#include <QSize>

namespace pad {

/// The screen that the program opens on.
struct Screen
{
    QSize pixels;                ///< of the glass
    double dotsPerMillimetre{};  ///< 0: nobody knows
    double toolkitsOwnRatio = 1; ///< by which the toolkit enlarges everything there anyway

    /// Of the size in millimetres that the display tells; empty sizes, and those that are only counted from
    /// an assumed density, tell nothing.
    void setMillimetres(const QSize& size);

    /// What shows the pad at the size of a hand, by the screen's height; its keys are no smaller than 7 mm
    /// where the density is known and the window still fits.
    [[nodiscard]] int suitableScale() const;
    /// The largest at which the whole pad fits.
    [[nodiscard]] int largestScale() const;
    /// 2 from a height of 900 pixels on: what a run that nobody looks at has.
    [[nodiscard]] int plainScale() const;
};

} // namespace pad
