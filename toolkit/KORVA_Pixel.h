#pragma once

#include "KORVA_Export.h"

#include <QPoint>

class QMouseEvent;
class QWidget;

/// Which pixel a position means, the same at every device pixel ratio: the one under the pointer.
///
/// A pixel is a widget's own, as large on the screen as the ratio makes it. It begins at its whole number
/// and ends where the next one begins, so that a whole position is its own pixel.
namespace pixel {

/// The pixel that holds a position.
[[nodiscard]] KORVA_EXPORT QPoint at(const QPointF& position);

/// Where the pointer is in the widget that got the event. Between two pixels an event's own position is
/// rounded when the toolkit hands it on from the window to a widget; this is the one before that.
[[nodiscard]] KORVA_EXPORT QPointF pointer(const QMouseEvent& event, const QWidget& widget);

/// The pixel of the widget that is under the pointer.
[[nodiscard]] KORVA_EXPORT QPoint under(const QMouseEvent& event, const QWidget& widget);

} // namespace pixel
