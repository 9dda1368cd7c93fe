#pragma once

#include <QRect>

/// Where what the editor shows lies in it, in pixels.
namespace layout {

constexpr QRect toolButton(2, 2, 33, 24);
constexpr QRect optionButton(38, 2, 33, 24);
constexpr QRect zoomBox(74, 2, 126, 24);
constexpr QRect colorButton(203, 2, 25, 24);
constexpr QRect mainView(2, 33, 228, 192);
constexpr QSize editor(240, 225);

/// What an editor of this size has beyond the one that all is laid out for; nothing where it is smaller.
[[nodiscard]] inline QSize beyond(QSize size)
{
    return (size - editor).expandedTo(QSize(0, 0));
}

} // namespace layout
