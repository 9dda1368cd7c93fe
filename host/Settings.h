#pragma once

#include <QString>

namespace pad {

/// The name of the file with the pad's settings, in the folder "korva" of the user's settings. The file
/// need not exist. It is for QSettings, in QSettings::IniFormat. No application object is needed.
[[nodiscard]] QString settingsFile();

} // namespace pad
