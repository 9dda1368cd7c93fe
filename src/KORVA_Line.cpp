#include "KORVA_Line.h"

#include "KORVA_ClassicPainter.h"
#include "KORVA_EvenShape.h"

KORVA_Line::KORVA_Line(const QString& name) : KORVA_TwoPointTool(name) {}

void KORVA_Line::drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const
{
    painter.drawLine(from.x(), from.y(), to.x(), to.y());
}

QPoint KORVA_Line::commitPoint(QPoint lastMove, QPoint) const
{
    return lastMove;
}

QPoint KORVA_Line::evenPoint(QPoint from, QPoint to) const
{
    return even::direction(from, to);
}
