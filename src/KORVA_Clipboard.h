#pragma once

#include <QPixmap>

#include <optional>

class QWidget;

/// The picture on the system's clipboard.
namespace KORVA_Clipboard {

/// The picture that somebody has copied; null if there is none. While a large one of another program is
/// unpacked the user waits, as for opening a file; nothing if the user has cancelled. `canvas`, which
/// belongs to an editor, may be gone then.
[[nodiscard]] std::optional<QPixmap> picture(QWidget& canvas);

} // namespace KORVA_Clipboard
