#pragma once

#include <QKeyCombination>
#include <QString>

#include <optional>

namespace pad {

/// Keys by the names of Qt::Key without "Key_", in any case, after their modifiers: "Return", "Shift+Left".
[[nodiscard]] std::optional<QKeyCombination> keyFromName(const QString& name);
[[nodiscard]] QString keyName(QKeyCombination key);
/// A pressed modifier tells that it is held as well; this takes that away.
[[nodiscard]] QKeyCombination withoutItself(QKeyCombination key);

} // namespace pad
