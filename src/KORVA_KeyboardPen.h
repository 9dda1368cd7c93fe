#pragma once

#include "KORVA_Canvas.h"

#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>

#include <optional>

class KORVA_PenMark;
class QKeyEvent;
class QMouseEvent;
class QRect;

/// A pen without a pointer, as KORVA_Canvas::setKeyboardDrawing() describes it.
///
/// It sends the canvas, or the floating piece under it, what a mouse would send, so that the tools know
/// nothing of it. It sees the canvas's events only through handle().
class KORVA_KeyboardPen : public QObject
{
    Q_OBJECT

public:
    /// Begins switched off, in the middle of the visible part. The canvas owns the pen.
    explicit KORVA_KeyboardPen(KORVA_Canvas& canvas);

    /// Switched off, it releases the button and is hidden.
    void setEnabled(bool on);
    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    /// In picture coordinates; nothing while it is not shown.
    [[nodiscard]] std::optional<QPoint> place() const;
    [[nodiscard]] bool isDown() const { return m_state != Lifted; }
    /// See KORVA_Canvas::penKey().
    [[nodiscard]] KORVA_Canvas::PenKey use(const QKeyEvent& press) const;

    /// Sees an event of the canvas before the canvas does. True if it was one of the pen's keys and is
    /// done.
    bool handle(QEvent& event);
    /// Watches the whole program while the button is down: a pointer's press in the window first releases
    /// the button.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The pen's button.
    enum State {
        Lifted,
        Held,    ///< down for as long as the space bar is
        Latched, ///< down until the key is pressed again
    };
    struct Key;

    [[nodiscard]] const Key* keyOf(const QKeyEvent& event) const;
    bool handleKey(QKeyEvent& event);
    void giveWay(const QMouseEvent& event);
    void leave(Qt::FocusReason reason);

    // A `way` is in picture pixels.
    void move(QPoint way);
    void hold(QPoint);
    void latch(QPoint);
    void endText(QPoint);
    void movePiece(QPoint way);
    void stretchPiece(QPoint way);
    void turnPiece(QPoint way);
    void mergePiece(QPoint);
    void dropPiece(QPoint);

    void lower(State state);
    void lift();
    void send(QEvent::Type type, QPoint at, Qt::MouseButtons held);
    void moveTo(QPoint at);
    [[nodiscard]] QPoint limited(QPoint at) const;
    [[nodiscard]] QPoint stepped(QPoint from, QPoint way) const;
    [[nodiscard]] QRect visible() const;
    void reveal(const QRect& part) const;
    void setInUse(bool inUse);
    void update();
    [[nodiscard]] bool takesText() const;

    KORVA_Canvas& m_canvas;
    KORVA_PenMark* m_mark; // owned by the canvas
    QPointer<QWidget> m_pressed;
    State m_state = Lifted;
    QPoint m_at;                  ///< canvas widget coordinates
    QPoint m_place;               ///< the same in the picture, which stays when the zoom changes
    std::optional<QPoint> m_told; ///< of the place
    bool m_toldDown = false;
    bool m_isEnabled = false;
    bool m_isPlaced = false;
    bool m_isInUse = false;
    bool m_isSending = false;
    bool m_hasPanned = false; ///< the tool has scrolled the view since the press
};
