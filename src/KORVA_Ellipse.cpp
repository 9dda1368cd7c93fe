#include "KORVA_Ellipse.h"

#include "KORVA_ClassicPainter.h"

namespace {

// A drag of 2 × 2 is never drawn, but a move away from it removes it. This difference is kept.
constexpr int largestNotDrawn = 4;
constexpr int largestNotRemoved = 3;

void drawAbove(int area, KORVA_ClassicPainter& painter, QPoint from, QPoint to)
{
    const QPoint span = to - from;
    if (qAbs(span.x() * span.y()) <= area)
        return;
    const QRect box = classic::normalized(QRect(from, to));
    painter.drawEllipse(box.x(), box.y(), box.width(), box.height());
}

} // namespace

KORVA_Ellipse::KORVA_Ellipse(const QString& name) : KORVA_TwoPointTool(name) {}

void KORVA_Ellipse::drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const
{
    drawAbove(largestNotDrawn, painter, from, to);
}

void KORVA_Ellipse::drawLeftShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const
{
    drawAbove(largestNotRemoved, painter, from, to);
}

bool KORVA_Ellipse::vanishes(QPoint from, QPoint to) const
{
    const QPoint span = to - from;
    return qAbs(span.x() * span.y()) != largestNotDrawn;
}

QPoint KORVA_Ellipse::commitPoint(QPoint, QPoint release) const
{
    return release;
}
