#pragma once

#include "KORVA_DrawingTool.h"

#include <QPoint>

class KORVA_ClassicPainter;

/// The gesture of the shapes that are spanned between the press and a second point. While the stylus is
/// down the shape is shown inverted in the zoomed picture only; the release of the same button removes it,
/// takes the undo snapshot and paints the shape into both pictures. Other buttons and second presses are
/// ignored meanwhile.
class KORVA_EXPORT KORVA_TwoPointTool : public KORVA_DrawingTool
{
    Q_OBJECT

public:
    /// A drag is kept over a change of tools; its preview comes back.
    void activating() override;
    /// Hides the preview; nothing is painted.
    void deactivating() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void zoomedRebuilt() override;

protected:
    using KORVA_DrawingTool::KORVA_DrawingTool;

    /// Paints the shape between two points in the coordinates of the painter's target, widget's or
    /// picture's: preview, its removal and commit alike. Pen and brush are set.
    virtual void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const = 0;
    /// Removes the preview that a move leaves behind; drawShape() unless overridden.
    virtual void drawLeftShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const;
    /// Where the shape ends for good, in widget coordinates as its arguments.
    [[nodiscard]] virtual QPoint commitPoint(QPoint lastMove, QPoint release) const = 0;

private:
    enum State {
        Idle,     ///< nothing is shown; a press begins a drag
        Dragging, ///< the shape from m_start to m_end is on screen, inverted
    };

    void togglePreview();
    void paintShape(QPixmap* target, const QPen& pen, QPoint from, QPoint to);

    State m_state = Idle;
    QPoint m_start;  ///< widget coordinates
    QPoint m_end;    ///< the last move, widget coordinates
    QPen m_shownPen; ///< what the preview was drawn with: the pen may change before it is removed
};
