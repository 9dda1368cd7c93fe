#include "KORVA_Rectangle.h"

#include "KORVA_ClassicPainter.h"

KORVA_Rectangle::KORVA_Rectangle(const QString& name) : KORVA_TwoPointTool(name) {}

void KORVA_Rectangle::drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const
{
    // The plain difference, negative up and to the left. Unlike an ellipse's, the far corner lies outside.
    painter.drawRect(from.x(), from.y(), to.x() - from.x(), to.y() - from.y());
}

QPoint KORVA_Rectangle::commitPoint(QPoint, QPoint release) const
{
    return release;
}

QSize KORVA_Rectangle::shapeSize(QPoint from, QPoint to) const
{
    return {qAbs(to.x() - from.x()), qAbs(to.y() - from.y())};
}
