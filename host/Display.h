#pragma once

#include "CommandLine.h"

#include <optional>

namespace pad {

/// Chooses where and how large the program shows itself; must run before the application object exists.
/// Without any display, what ends by itself works off screen.
std::optional<Failure> prepareDisplay(const CommandLine& line);

} // namespace pad
