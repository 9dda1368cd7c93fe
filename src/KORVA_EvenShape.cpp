#include "KORVA_EvenShape.h"

#include <QtGlobal>
#include <QtMath>

QPoint even::square(QPoint from, QPoint to)
{
    const QPoint span = to - from;
    const int side = qMax(qAbs(span.x()), qAbs(span.y()));
    return from + QPoint(span.x() < 0 ? -side : side, span.y() < 0 ? -side : side);
}

QPoint even::direction(QPoint from, QPoint to)
{
    constexpr int unit = 15;    // degrees
    constexpr int diagonal = 3; // units; an odd number of them
    const QPoint span = to - from;
    const int units = qRound(qRadiansToDegrees(qAtan2(span.y(), span.x())) / unit);
    if (units % diagonal == 0 && units % (2 * diagonal) != 0) { // in whole pixels both ways
        const int side = (qAbs(span.x()) + qAbs(span.y()) + 1) / 2;
        return from + QPoint(span.x() < 0 ? -side : side, span.y() < 0 ? -side : side);
    }
    const double angle = qDegreesToRadians(double(units * unit));
    const double length = span.x() * qCos(angle) + span.y() * qSin(angle);
    return from + QPoint(qRound(length * qCos(angle)), qRound(length * qSin(angle)));
}
