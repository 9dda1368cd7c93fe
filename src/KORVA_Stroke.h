#pragma once

#include <QPointF>
#include <QPointer>
#include <QPointingDevice>
#include <QWidget>

class KORVA_Canvas;

/// A stroke of a finger or a pen, handed on as one of the left button: to the floating piece if it began
/// there, else to the canvas. An event filter on either sees what a mouse would have sent.
///
/// Positions are canvas coordinates, with their fractions.
class KORVA_Stroke
{
public:
    /// `canvas` is not owned.
    explicit KORVA_Stroke(KORVA_Canvas& canvas) : m_canvas(canvas) {}

    /// The left button goes down. Over the floating piece, a hover comes before.
    void press(const QPointF& at, const QPointingDevice* device);
    /// The same on the floating piece. It is taken hold of at its own point `grip`, wherever the pointer
    /// is; the whole stroke is moved over there.
    void pressPiece(const QPointF& at, QPoint grip, const QPointingDevice* device);
    void move(const QPointF& to);
    /// Moves there with Shift held from now on or, if it was, no longer.
    void toggleShift(const QPointF& to);
    /// Ends the stroke. Without a press before, it does nothing, as move() does.
    void release(const QPointF& at);
    /// Ends the stroke without a release.
    void forget() { m_receiver = nullptr; }

    [[nodiscard]] bool isDown() const { return m_receiver; }
    /// The last position.
    [[nodiscard]] QPointF at() const { return m_at; }
    /// Whether an event is being handed on.
    [[nodiscard]] bool isHanding() const { return m_isHanding; }

private:
    void begin(QWidget* receiver, const QPointF& at, const QPointingDevice* device);
    void send(int type, Qt::MouseButton button, Qt::MouseButtons buttons);

    KORVA_Canvas& m_canvas;
    QPointer<QWidget> m_receiver;
    QPointer<const QPointingDevice> m_device;
    QPointF m_at;
    QPointF m_shift;
    Qt::KeyboardModifiers m_keys;
    bool m_isHanding = false;
};
