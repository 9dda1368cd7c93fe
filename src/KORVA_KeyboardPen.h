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

/// A pen without a pointer: what KORVA_Canvas::setKeyboardDrawing() promises.
///
/// It sends the canvas, or the piece that floats under it, what a mouse would, so that the tools know
/// nothing of it. It takes part in the canvas's events by handle() alone.
class KORVA_KeyboardPen : public QObject
{
    Q_OBJECT

public:
    /// Off, in the middle of what can be seen. The canvas owns the pen.
    explicit KORVA_KeyboardPen(KORVA_Canvas& canvas);

    /// Off, it lets go of the button and is not seen.
    void setEnabled(bool on);
    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    /// In picture coordinates; nothing while it is not seen.
    [[nodiscard]] std::optional<QPoint> place() const;
    [[nodiscard]] bool isDown() const { return m_state != Lifted; }
    /// See KORVA_Canvas::penKey().
    [[nodiscard]] KORVA_Canvas::PenKey use(const QKeyEvent& press) const;

    /// Sees an event of the canvas before the canvas does. True: it was a key of the pen's and is done.
    bool handle(QEvent& event);
    /// Of the whole program while the button is down: a pointer that is pressed in the window finds it up.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The pen's button.
    enum State {
        Lifted,
        Held,    ///< down for as long as the space bar is
        Latched, ///< down until the key comes once more
    };
    struct Key;

    [[nodiscard]] const Key* keyOf(const QKeyEvent& event) const;
    bool handleKey(QKeyEvent& event);
    void giveWay(const QMouseEvent& event);
    void leave(Qt::FocusReason reason);

    // Ways are in picture pixels.
    void move(QPoint way);
    void hold(QPoint);
    void latch(QPoint);
    void endText(QPoint);
    void movePiece(QPoint way);
    void stretchPiece(QPoint way);
    void turnPiece(QPoint way);
    void mergePiece(QPoint);

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
    QPoint m_at;    ///< canvas widget coordinates
    QPoint m_place; ///< the same in the picture, which stays when the zoom changes
    std::optional<QPoint> m_told; ///< of the place
    bool m_toldDown = false;
    bool m_isEnabled = false;
    bool m_isPlaced = false;
    bool m_isInUse = false;
    bool m_isSending = false;
    bool m_hasPanned = false; ///< the tool has scrolled the view since the press
};
