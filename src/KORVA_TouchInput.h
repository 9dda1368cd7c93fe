#pragma once

#include "KORVA_BeforeStroke.h"
#include "KORVA_Canvas.h"
#include "KORVA_PenInput.h"
#include "KORVA_Stroke.h"
#include "KORVA_ZoomAnchor.h"

#include <QBasicTimer>
#include <QDeadlineTimer>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QPointer>

#include <optional>

class KORVA_Magnifier;
class QMouseEvent;
class QTouchEvent;

/// What fingers and pens do to a canvas. One finger's stroke becomes one of the left button; a second
/// finger takes it back, or with KORVA_Manners::evenShapes keeps a shape even by a tap. Two fingers pan and
/// pinch, and a long press opens the menu. A pen draws; while it is near, new fingers count as a palm. A
/// mouse passes untouched.
class KORVA_TouchInput : public QObject
{
    Q_OBJECT

public:
    /// What the host was last asked to offer.
    struct Offers
    {
        bool undo = false;
        bool redo = false;
        bool selection = false;
    };
    /// Watches the canvas, which owns it, and listens to the editor's signals or, without one, the
    /// canvas's.
    KORVA_TouchInput(KORVA_Canvas& canvas, KORVA_EditCanvas* editor);

    /// Gets each event of the canvas before the canvas does. True if there is nothing left to do.
    [[nodiscard]] bool takes(QEvent* event);
    /// From now on the stroke that is under way cannot be taken back.
    void settle();

    void setFingerUse(KORVA_Canvas::FingerUse use) { m_use = use; }
    [[nodiscard]] KORVA_Canvas::FingerUse fingerUse() const { return m_use; }

    /// Keeps from the floating piece the mouse events that takes() keeps from the canvas.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// What the host was last asked to offer.
    [[nodiscard]] const Offers& offers() const { return m_offers; }

signals:
    /// A pinch asks for the zoom, in percent, that keeps the picture between the fingers.
    void zoomWanted(double percent);
    /// See KORVA_PenInput::eraserWanted().
    void eraserWanted(bool wanted);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// The state of the fingers. A pen has none: it is down or not.
    enum State {
        Idle,     ///< no finger is down
        Waiting,  ///< one is down; nothing is handed on yet, because a second one may follow
        Drawing,  ///< one finger's stroke is under way
        Doubting, ///< and a second finger is down, which may be a tap that keeps the shape even
        Panning,  ///< fingers move the view
        Ignoring, ///< nothing counts until all fingers are lifted
    };
    enum Input {
        Touched,   ///< the first finger came down
        Palm,      ///< the same, but it counts for nothing
        Slid,      ///< the waiting finger moved and is to draw
        Dragged,   ///< the waiting finger, or one of two doubtful ones, moved and is to move the view
        Stayed,    ///< the waiting finger stayed, and stayed alone; or the doubtful one did
        Moved,     ///< fingers moved
        Joined,    ///< one more finger came down
        Doubted,   ///< the same, beside one that drags what can be kept even
        Tapped,    ///< the doubtful one was lifted
        Left,      ///< one was lifted, another is still down
        Lifted,    ///< the last one was lifted
        Held,      ///< the one finger stayed long enough for the menu
        Cancelled, ///< by the window system
        PenCame,   ///< a pen is near
    };
    struct Transition;
    struct Finger
    {
        int id;
        QPointF at; ///< on the canvas
        QPointF onScreen;
    };
    /// What a waiting finger will do.
    enum Task {
        Draw,
        Tap, ///< all of it when the finger is lifted, so that open text is not committed before
        Pan,
    };

    void enter(Input input);

    [[nodiscard]] bool takesTouch(QTouchEvent& event);
    void follow(const QTouchEvent& event);
    [[nodiscard]] bool counts() const;
    [[nodiscard]] Input comingDown() const;
    void fingerMoved();
    [[nodiscard]] bool holdsText() const;
    [[nodiscard]] bool isEcho(const QEvent& event) const;
    void noteOtherChange();

    // What the transitions do.
    void wait();
    void draw();
    void drawOn();
    void magnify();
    void endMagnifying();
    void tap();
    void release();
    void takeBack();
    void openMenu();
    void takeBackForMenu();
    void hold();
    void pan();
    void takeBackAndHold();
    void takeBackAndPan();
    void doubt();
    void toggleEven();

    [[nodiscard]] std::optional<QPoint> grip() const;
    [[nodiscard]] QPointF middle() const;
    [[nodiscard]] double spread() const;

    KORVA_Canvas& m_canvas;
    KORVA_Canvas::FingerUse m_use = KORVA_Canvas::FingerDraws;
    State m_state = Idle;
    QList<Finger> m_fingers;
    QDeadlineTimer m_echoes; ///< until then, mouse events that are made of touches do not count

    // Of a finger's stroke.
    Task m_task = Draw;
    QList<QPointF> m_path;        ///< while it waits
    std::optional<QPoint> m_grip; ///< on the floating piece
    QPointF m_pressedAt;          ///< on the screen
    QPointer<const QPointingDevice> m_device;
    KORVA_Stroke m_stroke;
    std::optional<KORVA_BeforeStroke> m_before;
    Offers m_offers;
    Offers m_offersBefore;
    QList<QPointF> m_doubtedAt; ///< while in doubt: where the fingers were on the screen
    QBasicTimer m_staying;
    QBasicTimer m_holding;

    // Of panning.
    std::optional<KORVA_ZoomAnchor> m_anchor; ///< the point between the fingers
    QPointer<KORVA_Magnifier> m_magnifier;    ///< the view's; null until it is needed
    double m_spread = 0;
    int m_zoom = 100; ///< at that spread

    KORVA_PenInput m_pen;
};
