#pragma once

#include <QKeyCombination>
#include <QString>

#include <optional>

namespace pad {

/// Names of keys: those of Qt::Key without "Key_", in upper or lower case, after their modifiers: "Return",
/// "Shift+Left".
[[nodiscard]] std::optional<QKeyCombination> keyFromName(const QString& name);
[[nodiscard]] QString keyName(QKeyCombination key);
/// The event of a modifier key also says that this modifier is held; this removes it.
[[nodiscard]] QKeyCombination withoutItself(QKeyCombination key);

} // namespace pad
