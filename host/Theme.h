#pragma once

#include <QRect>

namespace pad::theme {

// The window at its smallest in logical pixels, from top to bottom. In a larger one the editor takes what
// is left of the others, which keep their heights, and the keys share the width.
inline constexpr QRect window(0, 0, 240, 320);
inline constexpr QRect editor(0, 0, 240, 225);
inline constexpr QRect status(0, 229, 240, 26);
inline constexpr QRect leftKey(8, 263, 108, 48);
inline constexpr QRect rightKey(124, 263, 108, 48);

inline constexpr int smallText = 11;

/// Gives the whole program the colours and the style of the editor's skin; once, after the application
/// object exists.
void apply();

} // namespace pad::theme
