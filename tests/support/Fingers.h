#pragma once

#include <QtTest>
#include <QtWidgets>

namespace support {

/// Fingers on the touch screen over a widget that is on screen. Positions are the widget's own as it lies
/// when the finger comes down or moves; what is sent goes the toolkit's whole way from the window on.
class Fingers
{
public:
    explicit Fingers(QWidget& surface) : m_surface(surface) {}
    /// Lifts what is still down.
    ~Fingers();
    Fingers(const Fingers&) = delete;
    Fingers& operator=(const Fingers&) = delete;

    void press(int finger, QPoint at);
    void move(int finger, QPoint to);
    /// Several at the same moment.
    void move(const QMap<int, QPoint>& to);
    void release(int finger);
    /// The window system takes the touch away; all fingers count as lifted for the widget.
    void cancel();

    /// Press at the first point, move through the others, release at the last.
    void drag(const QList<QPoint>& path);
    void tap(QPoint at) { drag({at}); }

    /// Where the finger is on the screen.
    [[nodiscard]] QPoint onScreen(int finger) const { return m_down.value(finger); }

    [[nodiscard]] static QPointingDevice* device();

private:
    enum Change { Press, Move, Release };
    void send(Change change, const QMap<int, QPoint>& places);

    QWidget& m_surface;
    QMap<int, QPoint> m_down; ///< on the screen
};

} // namespace support
