#pragma once

#include "KORVA_Export.h"

#include <QPoint>

class QMouseEvent;
class QWidget;

/// The rule that says which pixel a position means. It is the same at every device pixel ratio: the pixel
/// under the pointer.
///
/// A pixel here is a pixel of the widget, as large on the screen as the ratio makes it. Pixel n goes from n
/// up to, but not including, n + 1, so a whole position is in the pixel of that number.
namespace pixel {

/// The pixel that holds a position.
[[nodiscard]] KORVA_EXPORT QPoint at(const QPointF& position);

/// The pointer's exact position in the widget that got the event. Qt rounds an event's own position when it
/// passes the event from the window to a widget; this is the position before that.
[[nodiscard]] KORVA_EXPORT QPointF pointer(const QMouseEvent& event, const QWidget& widget);

/// The pixel of the widget that is under the pointer.
[[nodiscard]] KORVA_EXPORT QPoint under(const QMouseEvent& event, const QWidget& widget);

} // namespace pixel
