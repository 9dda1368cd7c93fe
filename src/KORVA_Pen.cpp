#include "KORVA_Pen.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Pixel.h"
#include "KORVA_RoundBrush.h"

#include <QMouseEvent>

KORVA_Pen::KORVA_Pen(const QString& name) : KORVA_DrawingTool(name) {}

void KORVA_Pen::activating()
{
    m_drawing = false;
    canvas()->setCursor(Qt::CrossCursor);
}

void KORVA_Pen::mousePressEvent(QMouseEvent* event)
{
    if (!canvas() || !beginChange())
        return;
    setButton(event->button());
    m_last = pixel::at(event->position());
    drawTo(m_last);
    m_drawing = true;
}

void KORVA_Pen::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint to = pixel::at(event->position());
    if (canvas() && m_drawing && to != m_last)
        drawTo(to);
}

void KORVA_Pen::mouseReleaseEvent(QMouseEvent* event)
{
    if (isActive() && event->button() == button())
        m_drawing = false;
}

void KORVA_Pen::drawTo(QPoint to)
{
    QPixmap* const paper = picture();
    if (!paper)
        return;
    drawSegment(paper, InPicture, to);
    if (showsPixels()) {
        const QRect way = zoom().toPictureAround(QRect(m_last, QSize(1, 1)) | QRect(to, QSize(1, 1)));
        const int side = picturePen().width();
        canvas()->showPicture(way.adjusted(-side, -side, side, side));
    } else {
        canvas()->refresh(drawSegment(canvas()->zoomedPixmap(), OnScreen, to));
    }
    m_last = to;
}

QRect KORVA_Pen::drawSegment(QPixmap* target, Where where, QPoint to) const
{
    const bool isPicture = where == InPicture;
    const QPen pen = isPicture ? picturePen() : screenPen();
    KORVA_ClassicPainter painter(target);
    if (canvas()->manners().roundPencil && pen.width() > 1) {
        const auto at = [&](QPoint p) { return isPicture ? zoom().toPicture(p) : p; };
        for (const QRect& run : roundbrush::swept(at(m_last), at(to), pen.width()))
            painter.fillRect(run, pen.color());
    } else {
        painter.setPen(pen);
        painter.setWorldMatrix(isPicture ? zoom().toPictureMatrix() : QTransform());
        painter.drawLine(m_last.x(), m_last.y(), to.x(), to.y());
    }
    return painter.touched();
}

std::function<void()> KORVA_Pen::keepState()
{
    return [this, last = m_last, drawing = m_drawing] {
        m_last = last;
        m_drawing = drawing;
    };
}
