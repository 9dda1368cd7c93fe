#include "KORVA_Pixel.h"

#include <QMouseEvent>
#include <QWidget>
#include <QtMath>

namespace {

constexpr double ratioError = 1e-6; // rounding error of a whole position that went through a ratio like 1.1

} // namespace

QPoint pixel::at(const QPointF& position)
{
    return {qFloor(position.x() + ratioError), qFloor(position.y() + ratioError)};
}

QPointF pixel::pointer(const QMouseEvent& event, const QWidget& widget)
{
    const QPointF inSurface = event.scenePosition();
    const QPointF rounded(inSurface.toPoint());
    if (inSurface == rounded)
        return event.position();
    const QWidget* surface =
        widget.testAttribute(Qt::WA_NativeWindow) ? &widget : widget.nativeParentWidget();
    if (!surface)
        return event.position();
    const bool isRounded = widget.mapFrom(surface, rounded) == event.position();
    return isRounded ? widget.mapFrom(surface, inSurface) : event.position();
}

QPoint pixel::under(const QMouseEvent& event, const QWidget& widget)
{
    return at(pointer(event, widget));
}
