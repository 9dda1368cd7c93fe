#pragma once

#include "Failure.h"

#include <QStringList>

namespace pad {

/// The words of one line of a recording, without its comment and with quotes and escapes resolved.
[[nodiscard]] Expected<QStringList> splitLine(const QString& line);
/// The word written so that splitLine() reads it back.
[[nodiscard]] QString quoted(const QString& word);

} // namespace pad
