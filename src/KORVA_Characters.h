#pragma once

#include <QStringList>

/// Text as a person counts it: a letter with its accents, an emoji of several code points are one
/// character.
namespace characters {

/// All of a text.
[[nodiscard]] QStringList all(const QString& text);
/// The first one; empty where the text is.
[[nodiscard]] QString first(const QString& text);
/// The last one; empty where the text is.
[[nodiscard]] QString last(const QString& text);

} // namespace characters
