#pragma once

#include <QStringList>

/// Text in characters as a person counts them: a letter with its accents is one, and so is an emoji of
/// several code points.
namespace characters {

/// All characters of a text.
[[nodiscard]] QStringList all(const QString& text);
/// The first character; empty if the text is empty.
[[nodiscard]] QString first(const QString& text);
/// The last character; empty if the text is empty.
[[nodiscard]] QString last(const QString& text);

} // namespace characters
