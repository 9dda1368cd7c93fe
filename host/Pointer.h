#pragma once

#include <QEvent>
#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace pad {

/// A simulated pointer: it sends the events that the window system sends when a person works on a widget.
/// An event goes to the widget under the point, or to an open pop-up. From a press to its release, events
/// go to the widget that was pressed.
class Pointer
{
public:
    /// Points are coordinates of `surface`, which outlives the pointer.
    explicit Pointer(QWidget* surface) : m_surface(surface) {}

    void press(QPoint at, Qt::MouseButton button);
    /// Without a button held this is a hover, which only a widget that tracks the mouse receives.
    void move(QPoint to, Qt::KeyboardModifiers held = {});
    void release(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers held = {});

private:
    [[nodiscard]] QWidget* widgetUnder(QPoint at) const;
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys = {});

    QWidget* m_surface; // not owned
    QPointer<QWidget> m_pressed;
    Qt::MouseButtons m_held;
};

} // namespace pad
