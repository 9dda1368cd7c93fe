#pragma once

#include "Failure.h"

#include <QSize>

/// What is worded the same in several places.
namespace pad::wording {

/// "300 × 200" as the language writes it; nothing of it goes to another line.
[[nodiscard]] QString inPixels(QSize size);
/// A number that may stand among others: without separators of its thousands.
[[nodiscard]] QString plainNumber(int number);
/// A menu entry without the mark of its letter, which stands in it ("&Undo") or behind it ("元に戻す(&U)").
[[nodiscard]] QString withoutMnemonic(const QString& label);

// --- Of both programs' command lines

[[nodiscard]] Failure unknownOption(const QString& option);
/// `value` is its name in the help text.
[[nodiscard]] Failure noValue(const QString& option, const QString& value);
[[nodiscard]] Failure twoPictures(const QString& one, const QString& other);
[[nodiscard]] Failure emptyName();

} // namespace pad::wording
