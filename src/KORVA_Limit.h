#pragma once

#include <QScreen>
#include <QWidget>

/// The largest size that zooming and stretching may give something on a widget's screen.
namespace limit {

/// In pixels: 16 megapixels, or twice the screen's area where that is more.
[[nodiscard]] inline qint64 shownPixels(const QWidget& widget)
{
    constexpr qint64 always = 16'000'000;
    const QSize screen = widget.screen() ? widget.screen()->size() : QSize();
    return qMax(always, 2 * qint64(screen.width()) * screen.height());
}

} // namespace limit
