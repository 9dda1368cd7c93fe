#include "Gestures.h"

namespace support {

void Gestures::press(QPoint at, Qt::MouseButton button)
{
    if (!m_buttons) {
        QWidget* child = m_surface.childAt(at);
        m_grabber = child ? child : &m_surface;
    }
    m_buttons |= button;
    send(QEvent::MouseButtonPress, at, button);
}

void Gestures::move(QPoint to)
{
    send(QEvent::MouseMove, to, Qt::NoButton);
}

void Gestures::release(QPoint at, Qt::MouseButton button)
{
    m_buttons &= ~Qt::MouseButtons(button);
    send(QEvent::MouseButtonRelease, at, button);
    if (!m_buttons)
        m_grabber = nullptr;
}

void Gestures::hover(QPoint to)
{
    Q_ASSERT(!m_buttons);
    move(to);
}

void Gestures::click(QPoint at, Qt::MouseButton button)
{
    press(at, button);
    release(at, button);
}

void Gestures::drag(std::initializer_list<QPoint> path, Qt::MouseButton button)
{
    press(*path.begin(), button);
    for (const QPoint* point = path.begin() + 1; point != path.end(); ++point)
        move(*point);
    release(*(path.end() - 1), button);
}

void Gestures::key(Qt::Key key, const QString& text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWidget* focused = m_surface.focusWidget();
        QKeyEvent event(type, key, m_held, text);
        QCoreApplication::sendEvent(focused ? focused : &m_surface, &event);
    }
}

void Gestures::send(QEvent::Type type, QPoint at, Qt::MouseButton button)
{
    QWidget* under = m_surface.childAt(at);
    QWidget* receiver = m_grabber ? m_grabber.data() : under ? under : &m_surface;
    QMouseEvent event(type, receiver->mapFrom(&m_surface, QPointF(at)), m_surface.mapToGlobal(QPointF(at)),
                      button, m_buttons, m_held);
    QCoreApplication::sendEvent(receiver, &event);
}

} // namespace support
