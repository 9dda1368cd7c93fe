#include "KORVA_PieceHandles.h"

#include "UTIL_Skin.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int largest = 16; // pixels: the side of a corner
constexpr int smallest = 8; // a smaller picture says nothing
constexpr int edge = 6;     // how deep the zone of an edge is
constexpr double barWidth = 3;
constexpr int roomForMore = 4; // corners in a side that has a bar or, in both directions, the cross

/// The pictures, drawn in a square of this side around the origin.
constexpr double grid = 16;

void addHead(QPainterPath& path, QPointF tip, QPointF back)
{
    const QPointF across(-back.y(), back.x());
    path.moveTo(tip + back + across);
    path.lineTo(tip);
    path.lineTo(tip + back - across);
}

QPainterPath doubleArrow(QPointF end)
{
    QPainterPath path(-end);
    path.lineTo(end);
    const QPointF back =
        end / -qMax(qAbs(end.x()), qAbs(end.y())) * (end.x() == 0 || end.y() == 0 ? 2 : 1.6);
    addHead(path, end, back);
    addHead(path, -end, -back);
    return path;
}

QPainterPath stretchArrow(bool falls)
{
    constexpr double reach = 3.2;
    return doubleArrow({reach, falls ? reach : -reach});
}

QPainterPath cross()
{
    constexpr double reach = 5;
    QPainterPath path = doubleArrow({reach, 0});
    path.addPath(doubleArrow({0, reach}));
    return path;
}

QPainterPath turnArrow()
{
    constexpr double radius = 3.8;
    constexpr double from = 200; // degrees
    constexpr double span = -250;
    const QRectF circle(-radius, -radius, 2 * radius, 2 * radius);
    QPainterPath path;
    path.arcMoveTo(circle, from);
    path.arcTo(circle, from, span);
    const QPointF tip = path.currentPosition();
    addHead(path, tip, {2.6, 0.2});
    return path;
}

void paintPicture(QPainter& painter, QPointF middle, double side, const QPainterPath& picture)
{
    constexpr double line = 1.4;
    constexpr double plate = 7.4; // its radius
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(middle);
    painter.scale(side / grid, side / grid);
    const QColor ink = UTIL_Skin::color(UTIL_Skin::Color::Ink);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(UTIL_Skin::color(UTIL_Skin::Color::Surface));
    painter.drawEllipse(QPointF(), plate, plate);
    painter.setPen(QPen(ink, line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(picture);
    painter.restore();
}

void paintBar(QPainter& painter, const QRectF& bar)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(UTIL_Skin::color(UTIL_Skin::Color::Ink), 1));
    painter.setBrush(UTIL_Skin::color(UTIL_Skin::Color::Surface));
    painter.drawRoundedRect(bar, barWidth / 2, barWidth / 2);
    painter.restore();
}

} // namespace

KORVA_PieceHandles::KORVA_PieceHandles(const QRect& box) : m_box(box)
{
    const int side = qMin(largest, qMin(box.width(), box.height()) / 3);
    m_side = side < smallest ? 0 : side;
}

QPoint KORVA_PieceHandles::cellAt(QPoint p) const
{
    if (m_side == 0)
        return {1, 1};
    const auto third = [](int at, int first, int last, int depth) {
        return at < first + depth ? 0 : at > last - depth ? 2 : 1;
    };
    const QPoint corner(third(p.x(), m_box.left(), m_box.right(), m_side),
                        third(p.y(), m_box.top(), m_box.bottom(), m_side));
    if (corner.x() != 1 && corner.y() != 1)
        return corner;
    const int depth = qMin(edge, m_side / 2);
    return {third(p.x(), m_box.left(), m_box.right(), depth),
            third(p.y(), m_box.top(), m_box.bottom(), depth)};
}

void KORVA_PieceHandles::paint(QPainter& painter) const
{
    if (m_side == 0)
        return;
    const QRectF box(m_box);
    const double half = m_side / 2.0;
    const QRectF middles = box.adjusted(half, half, -half, -half);
    paintPicture(painter, middles.topLeft(), m_side, stretchArrow(true));
    paintPicture(painter, middles.bottomRight(), m_side, stretchArrow(true));
    paintPicture(painter, middles.bottomLeft(), m_side, stretchArrow(false));
    paintPicture(painter, middles.topRight(), m_side, turnArrow());

    const bool isWide = m_box.width() >= roomForMore * m_side;
    const bool isHigh = m_box.height() >= roomForMore * m_side;
    constexpr double inset = 1.5; // so that the outline lies within
    if (isWide) {
        const QSizeF size(m_side, barWidth);
        const double left = box.center().x() - half;
        paintBar(painter, {QPointF(left, box.top() + inset), size});
        paintBar(painter, {QPointF(left, box.bottom() - inset - barWidth), size});
    }
    if (isHigh) {
        const QSizeF size(barWidth, m_side);
        const double top = box.center().y() - half;
        paintBar(painter, {QPointF(box.left() + inset, top), size});
        paintBar(painter, {QPointF(box.right() - inset - barWidth, top), size});
    }
    if (isWide && isHigh)
        paintPicture(painter, box.center(), m_side, cross());
}

QCursor KORVA_PieceHandles::turnCursor()
{
    constexpr int side = 20;
    const double ratio = qGuiApp->devicePixelRatio();
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintPicture(painter, QPointF(side, side) / 2, side, turnArrow());
    painter.end();
    return QCursor(picture, side / 2, side / 2);
}
