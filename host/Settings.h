#pragma once

#include <QString>

namespace pad {

/// The file that holds what the pad remembers, in the folder "korva" of the user's settings; it need not be
/// there. For QSettings, as QSettings::IniFormat. No application object is needed.
[[nodiscard]] QString settingsFile();

} // namespace pad
