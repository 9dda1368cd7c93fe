#pragma once

#include <QString>

namespace pad {

/// Where drawings are kept that were not saved: in the user's folder for what programs remember.
[[nodiscard]] QString recoveryFolder();

} // namespace pad
