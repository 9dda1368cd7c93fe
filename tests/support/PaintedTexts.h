#pragma once

#include <QtWidgets>

namespace support {

/// A piece of text as a widget paints it: of one font and one direction.
struct PaintedText
{
    QString text;
    QRectF place; ///< from its beginning to its end, in the window
    QRectF seen;  ///< what may be painted on there
};

/// What a window paints of texts, its children's included, in their order.
[[nodiscard]] QList<PaintedText> paintedTexts(QWidget& window);

/// What of these cannot be read whole: shortened, past the edge of what may be painted on, or over another
/// one. Rows that are scrolled away are none of it.
[[nodiscard]] QStringList unreadable(const QList<PaintedText>& texts);

} // namespace support
