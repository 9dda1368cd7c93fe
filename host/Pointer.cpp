#include "Pointer.h"

#include <QApplication>
#include <QMouseEvent>

namespace pad {

void Pointer::press(QPoint at, Qt::MouseButton button)
{
    if (!m_held || !m_pressed)
        m_pressed = widgetUnder(at);
    m_held |= button;
    if (m_pressed->focusPolicy() & Qt::ClickFocus)
        m_pressed->setFocus(Qt::MouseFocusReason);
    send(QEvent::MouseButtonPress, at, button);
}

void Pointer::move(QPoint to, Qt::KeyboardModifiers held)
{
    if (!m_held)
        m_pressed = widgetUnder(to);
    send(QEvent::MouseMove, to, Qt::NoButton, held);
}

void Pointer::release(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers held)
{
    if (!m_held)
        m_pressed = widgetUnder(at);
    m_held &= ~Qt::MouseButtons(button);
    send(QEvent::MouseButtonRelease, at, button, held);
}

QWidget* Pointer::widgetUnder(QPoint at) const
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* top = popup ? popup : m_surface;
    QWidget* child = top->childAt(top->mapFromGlobal(m_surface->mapToGlobal(at)));
    return child ? child : top;
}

void Pointer::send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    // A pop-up that opened during the press gets the following events. A widget that was hidden gets none.
    const QPointer<QWidget> receiver =
        QApplication::activePopupWidget() ? widgetUnder(at) : m_pressed.data();
    if (!receiver || !receiver->isVisible())
        return;
    const QPointF global = m_surface->mapToGlobal(QPointF(at));
    QMouseEvent event(type, receiver->mapFromGlobal(global), global, button, m_held, keys);
    QCoreApplication::sendEvent(receiver, &event);
}

} // namespace pad
