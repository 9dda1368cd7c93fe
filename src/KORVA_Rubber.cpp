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
    if (!canvas())
        return;
    if (canvas()->manners().joinedEraser) {
        setButton(event->button());
        m_joined = beginChange() ? std::optional(under(*event)) : std::nullopt;
        eraseWay(under(*event));
        return;
    }
    if (m_drawing)
        return;
    m_drawing = true;
    setButton(event->button());
    canvas()->saveOldPix();
}

void KORVA_Rubber::mouseMoveEvent(QMouseEvent* event)
{
    if (!canvas())
        return;
    if (canvas()->manners().joinedEraser)
        return eraseWay(under(*event));
    const QPoint p = pixel::at(event->position());
    erase(zoom().toPicture(p), p);
}

void KORVA_Rubber::mouseReleaseEvent(QMouseEvent* event)
{
    if (!canvas() || event->button() != button())
        return;
    if (canvas()->manners().joinedEraser) {
        eraseWay(under(*event));
        m_joined.reset();
        return;
    }
    canvas()->markModified();
    if (!canvas())
        return;
    const QPoint p = zoom().toPicture(pixel::at(event->position()));
    erase(p, p); // kept: on the screen, too, the last square lies at its picture coordinates
}

void KORVA_Rubber::erase(QPoint inPicture, QPoint onScreen)
{
    if (!mergePiece())
        return;
    const int side = screenPen().width();
    const QSize square(side, side);
    canvas()->erase(QRect(inPicture, square), QRect(onScreen, square));
    m_drawing = false;
}

std::function<void()> KORVA_Rubber::keepState()
{
    return [this, drawing = m_drawing] {
        m_drawing = drawing;
        m_joined.reset();
    };
}

QPoint KORVA_Rubber::under(const QMouseEvent& event) const
{
    return zoom().toPicture(pixel::at(event.position()));
}

void KORVA_Rubber::eraseWay(QPoint to)
{
    if (!m_joined || !mergePiece())
        return;
    const int side = qMax(1, picturePen().width());
    const QPoint way = to - *m_joined;
    const int steps = qMax(1, qMax(qAbs(way.x()), qAbs(way.y())));
    QRegion squares;
    for (int i = 0; i <= steps; ++i)
        squares += QRect(*m_joined + way * (double(i) / steps), QSize(side, side));
    m_joined = to;
    canvas()->erase(squares);
}
