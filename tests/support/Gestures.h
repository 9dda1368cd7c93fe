#pragma once

#include <QtWidgets>

namespace support {

/// A pointer and a keyboard for one widget. Positions are the widget's own; each event goes to the child
/// under the pointer, while a button is down to the one that took the press, and keys to the child with the
/// focus. The widget need not be on screen.
class Gestures
{
public:
    explicit Gestures(QWidget& surface) : m_surface(surface) {}

    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    /// With the buttons that are down.
    void move(QPoint to);
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    /// A move with no button down.
    void hover(QPoint to);

    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    /// Press at the first point, move through the others, release at the last.
    void drag(std::initializer_list<QPoint> path, Qt::MouseButton button = Qt::LeftButton);

    /// What is held on the keyboard from now on.
    void hold(Qt::KeyboardModifiers modifiers) { m_held = modifiers; }
    /// Press and release of a key.
    void key(Qt::Key key, const QString& text = {});

private:
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button);

    QWidget& m_surface;
    QPointer<QWidget> m_grabber;
    Qt::MouseButtons m_buttons;
    Qt::KeyboardModifiers m_held;
};

} // namespace support
