#pragma once

#include <QtWidgets>

namespace support {

/// A pen on a tablet over a widget that is on screen. Positions are the widget's own, to the fraction; what
/// is sent goes the toolkit's whole way from the window on.
class Tablet
{
public:
    enum End { Tip, Eraser };

    explicit Tablet(QWidget& surface) : m_surface(surface) {}

    /// The window system tells that the pen comes near, and leaves.
    void enter(End end = Tip);
    void leave(End end = Tip);

    /// Whether it was taken; what is not, the toolkit makes a mouse's.
    bool press(QPointF at, End end = Tip, Qt::MouseButton button = Qt::LeftButton);
    bool move(QPointF to, End end = Tip);
    bool hover(QPointF to, End end = Tip);
    bool release(QPointF at, End end = Tip, Qt::MouseButton button = Qt::LeftButton);

    /// Press at the first point, move through the others, release at the last.
    void drag(const QList<QPointF>& path, End end = Tip);

private:
    bool send(QEvent::Type type, QPointF at, End end, Qt::MouseButton button);

    QWidget& m_surface;
    Qt::MouseButtons m_buttons;
};

} // namespace support
