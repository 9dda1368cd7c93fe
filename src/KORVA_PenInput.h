#pragma once

#include "KORVA_Stroke.h"

#include <QDeadlineTimer>
#include <QObject>

class KORVA_Canvas;
class QTabletEvent;

/// What a pen does to a canvas. Its tip draws as the left button, its other end erases; while it is near
/// nothing else that touches the screen counts. Qt makes mouse events of a pen that hovers, and of its
/// other buttons.
class KORVA_PenInput : public QObject
{
    Q_OBJECT

public:
    /// `canvas` is not owned.
    explicit KORVA_PenInput(KORVA_Canvas& canvas);

    /// Gets each tablet event of the canvas. True if there is nothing left to do.
    [[nodiscard]] bool takes(QTabletEvent& event);

    [[nodiscard]] bool isDown() const { return m_stroke.isDown(); }
    /// Whether an event is being handed on.
    [[nodiscard]] bool isHanding() const { return m_stroke.isHanding(); }
    /// From the window system's report that the pen comes until shortly after the one that it left. Without
    /// such reports, until shortly after its last event.
    [[nodiscard]] bool isNear() const { return isDown() || !m_near.hasExpired(); }

    /// Sees the window system's reports of pens that come and leave.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The pen is near. Emitted again and again.
    void came();
    /// The eraser end comes down (true), or was lifted (false).
    void eraserWanted(bool wanted);

private:
    void lift(const QPointF& at);

    KORVA_Stroke m_stroke;
    bool m_isErasing = false;
    QDeadlineTimer m_near{0};
    bool m_isAnnounced = false; ///< the window system reported that it came, and will report that it leaves
};
