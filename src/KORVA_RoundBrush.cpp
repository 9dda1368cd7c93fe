#include "KORVA_RoundBrush.h"

#include <cmath>

namespace {

/// How far each row of the disc reaches to the left and to the right of its pixel.
struct Reach
{
    int left;
    int right;
};

QList<Reach> disc(int width)
{
    const double middle = (width - 1) / 2.0;
    const double radius = width / 2.0;
    QList<Reach> rows;
    for (int row = 0; row < width; ++row) {
        const double half = std::sqrt(radius * radius - (row - middle) * (row - middle));
        const double shift = middle - width / 2; // of the disc's middle from its pixel
        rows.append({int(std::ceil(shift - half)), int(std::floor(shift + half))});
    }
    return rows;
}

} // namespace

QList<QRect> roundbrush::swept(QPoint from, QPoint to, int width)
{
    const QList<Reach> rows = disc(width);
    const int top = qMin(from.y(), to.y()) - width / 2;
    QList<QRect> runs(qAbs(to.y() - from.y()) + width);
    const QPoint way = to - from;
    const int steps = qMax(1, qMax(qAbs(way.x()), qAbs(way.y())));
    for (int step = 0; step <= steps; ++step) {
        const QPoint at = from + way * (double(step) / steps);
        for (int row = 0; row < width; ++row) {
            const int y = at.y() - width / 2 + row;
            runs[y - top] |= QRect(QPoint(at.x() + rows[row].left, y), QPoint(at.x() + rows[row].right, y));
        }
    }
    return runs;
}
