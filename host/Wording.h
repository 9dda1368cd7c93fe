#pragma once

#include "Failure.h"

#include <QSize>

/// What is worded the same in several places.
namespace pad::wording {

/// "300 × 200" as the language writes it; nothing of it goes to another line.
[[nodiscard]] QString inPixels(QSize size);
/// "29.6 kB" for so many bytes; there is no smaller unit.
[[nodiscard]] QString fileSize(qint64 bytes);
/// "30 kB".
[[nodiscard]] QString inKilobytes(int count);
/// The bytes of a kB.
inline constexpr int kilobyte = 1000;
/// "16 colors", or "Black and white" for two.
[[nodiscard]] QString inColors(int count, bool areBlackAndWhite);
/// What percent() is of.
[[nodiscard]] QString zoom();
/// "150 %".
[[nodiscard]] QString percent(int number);
/// The name of a file without its folder, shortened to fit into a sentence.
[[nodiscard]] QString shortName(const QString& path);
/// A number that may stand among others: without separators of its thousands.
[[nodiscard]] QString plainNumber(int number);
/// A menu entry without the mark of its letter, which stands in it ("&Undo") or behind it ("元に戻す(&U)").
[[nodiscard]] QString withoutMnemonic(const QString& label);
/// The same, and without the sign that a dialog follows ("Open ...").
[[nodiscard]] QString plainLabel(const QString& label);
/// "Undo (Ctrl+Z)", or only the name without a key.
[[nodiscard]] QString withKey(const QString& name, const QString& key);

// --- Of both programs' command lines

[[nodiscard]] Failure unknownOption(const QString& option);
/// `value` is its name in the help text.
[[nodiscard]] Failure noValue(const QString& option, const QString& value);
[[nodiscard]] Failure twoPictures(const QString& one, const QString& other);
[[nodiscard]] Failure emptyName();

} // namespace pad::wording
