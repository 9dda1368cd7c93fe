#include "KORVA_Drag.h"

#include "KORVA_Canvas.h"
#include "KORVA_Pixel.h"
#include "KORVA_ScrollView.h"

#include <QMouseEvent>

KORVA_Drag::KORVA_Drag(const QString& name) : KORVA_Tool(name) {}

void KORVA_Drag::activating()
{
    canvas()->setCursor(Qt::PointingHandCursor);
}

void KORVA_Drag::mousePressEvent(QMouseEvent* event)
{
    m_press = m_last = pixel::at(event->position());
}

void KORVA_Drag::mouseMoveEvent(QMouseEvent* event)
{
    constexpr int slowness = 10;
    const QPoint p = pixel::at(event->position());
    if (!canvas() || p == m_last)
        return;
    if (KORVA_ScrollView* view = canvas()->scrollView()) {
        view->setContentsPos(view->contentsX() - (p.x() - m_press.x()) / slowness,
                             view->contentsY() - (p.y() - m_press.y()) / slowness);
    }
    m_last = p;
    canvas()->refresh();
}

std::function<void()> KORVA_Drag::keepState()
{
    return [this, press = m_press, last = m_last] {
        m_press = press;
        m_last = last;
    };
}
