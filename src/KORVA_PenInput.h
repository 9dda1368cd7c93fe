#pragma once

#include "KORVA_Stroke.h"

#include <QDeadlineTimer>
#include <QObject>

class KORVA_Canvas;
class QTabletEvent;

/// What a pen does to a canvas: its tip draws as the left button, its other end erases, and while it is
/// near nothing else that touches the screen counts. What only hovers, and its other buttons, the toolkit
/// makes a mouse's.
class KORVA_PenInput : public QObject
{
    Q_OBJECT

public:
    /// `canvas` is not owned.
    explicit KORVA_PenInput(KORVA_Canvas& canvas);

    /// Of each tablet event that reaches the canvas; true when there is nothing left to do.
    [[nodiscard]] bool takes(QTabletEvent& event);

    [[nodiscard]] bool isDown() const { return m_stroke.isDown(); }
    /// While an event is being handed on.
    [[nodiscard]] bool isHanding() const { return m_stroke.isHanding(); }
    /// From the window system's word that it comes until shortly after that it left; where there is no such
    /// word, until shortly after it was last heard of.
    [[nodiscard]] bool isNear() const { return isDown() || !m_near.hasExpired(); }

    /// Hears what the window system tells of pens that come and leave.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// It is near. Comes again and again.
    void came();
    /// The eraser end comes down, and is lifted.
    void eraserWanted(bool wanted);

private:
    void lift(const QPointF& at);

    KORVA_Stroke m_stroke;
    bool m_isErasing = false;
    QDeadlineTimer m_near{0};
    bool m_isAnnounced = false; ///< the window system told that it came, and will tell that it leaves
};
