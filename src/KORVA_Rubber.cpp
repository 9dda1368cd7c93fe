#include "KORVA_Rubber.h"

#include "KORVA_Canvas.h"
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
    if (!picture())
        return;
    const int side = screenPen().width();
    const QSize square(side, side);
    canvas()->erase(QRect(inPicture, square), QRect(onScreen, square));
    m_drawing = false;
}

std::function<void()> KORVA_Rubber::keepState()
{
    return [this, drawing = m_drawing] { m_drawing = drawing; };
}
