#pragma once

#include <QRect>

namespace pad::theme {

// The smallest window in logical pixels, from top to bottom. In a larger one the editor takes the extra
// height and width, the other parts keep their heights, and the keys share the width.
inline constexpr QRect window(0, 0, 240, 320);
inline constexpr QRect editor(0, 0, 240, 225);
inline constexpr QRect status(0, 229, 240, 26);
inline constexpr QRect firstKey(8, 263, 108, 48);
inline constexpr QRect secondKey(124, 263, 108, 48);

inline constexpr int smallText = 11;

/// Gives the whole program the colours and the style of the editor's skin. Call it once, after the
/// application object exists.
void apply();

} // namespace pad::theme
