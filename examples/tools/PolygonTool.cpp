#include "PolygonTool.h"
#include <KORVA_Canvas.h>
#include <KORVA_Pixel.h>
#include <QMouseEvent>
#include <QPainter>

void PolygonTool::activating()
{
    m_first.reset();
    canvas()->setCursor(Qt::CrossCursor);
}

void PolygonTool::mousePressEvent(QMouseEvent* event)
{
    constexpr int reach = 6; // pixels around the first corner
    setButton(event->button());
    const QPoint tap = zoom().toPicture(pixel::at(event->position()));
    const bool closes = m_first && m_last != *m_first && (tap - *m_first).manhattanLength() <= reach;
    const QPoint to = closes ? *m_first : tap;
    QPixmap* const paper = beginChange() ? picture() : nullptr;
    if (!paper)
        return;
    QPainter painter(paper);
    painter.setPen(picturePen());
    painter.drawLine(m_first ? m_last : to, to);
    painter.end();
    canvas()->updateZoomed();
    m_last = to;
    m_first = closes ? std::nullopt : std::optional(m_first.value_or(to));
}
