#pragma once

#include <QKeyCombination>
#include <QString>

#include <optional>

namespace pad {

/// Keys by the names of Qt::Key without "Key_", in any case, after their modifiers: "Return", "Shift+Left".
[[nodiscard]] std::optional<QKeyCombination> keyFromName(const QString& name);
[[nodiscard]] QString keyName(QKeyCombination key);

} // namespace pad
