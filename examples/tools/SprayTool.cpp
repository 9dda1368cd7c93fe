#include "SprayTool.h"
#include <KORVA_Canvas.h>
#include <KORVA_Pixel.h>
#include <QMouseEvent>
#include <QPainter>

void SprayTool::activating()
{
    canvas()->setCursor(Qt::CrossCursor);
}

void SprayTool::mousePressEvent(QMouseEvent* event)
{
    setButton(event->button());
    const QPoint at = pixel::at(event->position());
    m_random.seed(quint32(at.x() * 65537 + at.y()));
    if (beginChange())
        spray(event->position());
}

void SprayTool::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        spray(event->position());
}

void SprayTool::spray(QPointF at)
{
    QPixmap* const paper = picture();
    if (!paper)
        return;
    const double radius = 4.0 * picturePen().width() + 2;
    const QPointF middle = at / (canvas()->zoom() / 100.0);
    QPainter painter(paper);
    painter.setPen(picturePen().color());
    for (int i = 0; i < 12; ++i) {
        const QPointF way(m_random.generateDouble() - 0.5, m_random.generateDouble() - 0.5);
        painter.drawPoint((middle + 2 * radius * way).toPoint());
    }
    painter.end();
    canvas()->updateZoomed();
}
