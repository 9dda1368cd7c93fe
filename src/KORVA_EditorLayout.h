#pragma once

#include <QRect>

/// The places of the editor's parts, in pixels.
namespace layout {

constexpr QRect toolButton(2, 2, 33, 24);
constexpr QRect optionButton(38, 2, 33, 24);
constexpr QRect zoomBox(74, 2, 126, 24);
constexpr QRect colorButton(203, 2, 25, 24);
constexpr QRect mainView(2, 33, 228, 192);
constexpr QSize editor(240, 225);
constexpr QSize firstCanvas(200, 170);

/// By how much an editor of this size exceeds the size that the parts are laid out for; 0 where it is
/// smaller.
[[nodiscard]] inline QSize beyond(QSize size)
{
    return (size - editor).expandedTo(QSize(0, 0));
}

/// Where the main view lies in an editor of this size, from left to right. Without the controls it has
/// their room, too.
[[nodiscard]] inline QRect mainViewIn(QSize size, bool hasControls)
{
    const QRect place(mainView.topLeft(), mainView.size() + beyond(size));
    return hasControls ? place : place.adjusted(0, toolButton.top() - mainView.top(), 0, 0);
}

} // namespace layout
