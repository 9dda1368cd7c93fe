#pragma once

#include <QColor>
#include <QRect>

class QApplication;

namespace pad::theme {

// Text on its ground has a contrast of at least 4.5 : 1 in every state.
inline constexpr QColor ground(0xF4, 0xF5, 0xF7);
inline constexpr QColor surface(0xFF, 0xFF, 0xFF);
inline constexpr QColor ink(0x2B, 0x34, 0x40);
inline constexpr QColor faintInk(0x62, 0x6C, 0x7A);
inline constexpr QColor line(0xC5, 0xCB, 0xD4);
inline constexpr QColor faintLine(0xE0, 0xE4, 0xE9);
inline constexpr QColor accent(0x1F, 0x6F, 0xEB);
inline constexpr QColor accentTint(0xE8, 0xF0, 0xFD);

// The window in logical pixels, from top to bottom.
inline constexpr QRect window(0, 0, 240, 320);
inline constexpr QRect editor(0, 0, 240, 225);
inline constexpr QRect status(0, 229, 240, 26);
inline constexpr QRect leftKey(8, 263, 108, 48);
inline constexpr QRect rightKey(124, 263, 108, 48);

inline constexpr int textHeight = 11;
inline constexpr int keyTextHeight = 13;

/// The style, colours and font of the whole program.
void apply(QApplication& app);

} // namespace pad::theme
