#pragma once

#include <QString>

namespace pad {

/// The folder for unsaved drawings, inside the user's folder for the state of programs.
[[nodiscard]] QString recoveryFolder();

} // namespace pad
