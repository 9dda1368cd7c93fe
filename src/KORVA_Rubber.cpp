#include "KORVA_Rubber.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Pixel.h"

#include <QMouseEvent>

KORVA_Rubber::KORVA_Rubber(const QString& name) : KORVA_DrawingTool(name) {}

void KORVA_Rubber::activating()
{
    canvas()->setCursor(Qt::CrossCursor);
}

void KORVA_Rubber::mousePressEvent(QMouseEvent* event)
{
    if (!canvas() || m_drawing)
        return;
    m_drawing = true;
    setButton(event->button());
    canvas()->saveOldPix();
}

void KORVA_Rubber::mouseMoveEvent(QMouseEvent* event)
{
    if (!canvas())
        return;
    const QPoint p = pixel::at(event->position());
    erase(zoom().toPicture(p), p);
}

void KORVA_Rubber::mouseReleaseEvent(QMouseEvent* event)
{
    if (!canvas() || event->button() != button())
        return;
    canvas()->markModified();
    if (!canvas())
        return;
    const QPoint p = zoom().toPicture(pixel::at(event->position()));
    erase(p, p); // kept: on the screen, too, the last square lies at its picture coordinates
}

void KORVA_Rubber::erase(QPoint inPicture, QPoint onScreen)
{
    QPixmap* const paper = picture();
    if (!paper)
        return;
    const int side = screenPen().width();
    const QSize square(side, side);
    KORVA_ClassicPainter(paper).fillRect(QRect(inPicture, square), Qt::white);
    KORVA_ClassicPainter(canvas()->zoomedPixmap()).fillRect(QRect(onScreen, square), Qt::white);
    m_drawing = false;
    canvas()->refresh(QRect(onScreen, square));
}

std::function<void()> KORVA_Rubber::keepState()
{
    return [this, drawing = m_drawing] { m_drawing = drawing; };
}
