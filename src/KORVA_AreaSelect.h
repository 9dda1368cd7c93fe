#pragma once

#include "KORVA_Tool.h"

#include <QPoint>
#include <QRect>

#include <optional>

/// The area select tool: marks a rectangle with a dashed frame and hands it to the canvas, which lifts it
/// into a floating piece. It reacts to the left button only and works in widget coordinates. The pixel of
/// the release does not belong to the rectangle. After a tap, the next drag starts from the tapped point.
/// Leaving the tool drops the selection. With KORVA_Manners::evenShapes, Shift makes the frame a square
/// that lies on the canvas.
class KORVA_EXPORT KORVA_AreaSelect : public KORVA_Tool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_AreaSelect(const QString& name);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void activating() override;
    void deactivating() override;
    void zoomedRebuilt() override;
    [[nodiscard]] std::function<void()> keepState() override;
    void paintWaiting(QPixmap* picture, QPixmap* shown) override;

public slots:
    /// The canvas tells whether it has a selection; when it has none the frame goes.
    void selection(bool exists);
    /// Takes the tool's frame off the screen; the canvas's selection stays.
    void disableSelection();
    /// Selects the whole canvas and merges a floating piece. Does nothing while the tool is inactive or a
    /// drag is going on.
    void selectAll();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    enum State {
        Idle,     ///< the next press sets the anchor
        Anchored, ///< after a tap: the next press leaves the anchor where it is
        Dragging, ///< from the press of the left button to its release; the frame follows the pointer
    };

    void drawFrame();
    void anchor();
    QRect toggleFrame(QPoint to);
    QRect toggleFrame(QPoint to, QPixmap* shown);
    [[nodiscard]] QRect reach(QPoint to) const;
    void select(QPoint corner);
    [[nodiscard]] QPoint limited(QPoint p) const;
    [[nodiscard]] QPoint pointOf(const QMouseEvent& event) const;

    QPoint m_start; ///< the anchor; widget coordinates
    QPoint m_end;   ///< the opposite corner of the frame on screen, or of the one that waits to be there
    std::optional<QPoint> m_leaving; ///< while it waits: the corner of the frame on screen
    State m_state = Idle;
    bool m_frameShown = false; ///< drawFrame() has painted the frame, not a drag
};
