#pragma once

#include "Screen.h"

#include <optional>

/// What the X server of the session tells before the application object exists. A program that was built
/// without xcb leaves all of it to Qt.
namespace pad::xscreen {

/// Whether the server answers. True without xcb: Qt will find out.
[[nodiscard]] bool answers();
/// The primary monitor of a server that answers. None without xcb.
[[nodiscard]] std::optional<Screen> ask();

} // namespace pad::xscreen
