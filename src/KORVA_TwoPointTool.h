#pragma once

#include "KORVA_DrawingTool.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

class KORVA_ClassicPainter;

/// The base of tools that draw a shape between the press and a second point. While the stylus is down, the
/// shape is shown inverted, in the zoomed picture only. The release of the same button removes it, takes
/// the undo snapshot and paints the shape into both pictures. Meanwhile other buttons and further presses
/// are ignored.
///
/// With KORVA_Manners::evenShapes a move or release with Shift means the evenPoint() of where it is.
class KORVA_EXPORT KORVA_TwoPointTool : public KORVA_DrawingTool
{
    Q_OBJECT

public:
    /// Shows the preview of a drag again; a drag survives a change of tools.
    void activating() override;
    /// Hides the preview. Nothing is painted.
    void deactivating() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void zoomedRebuilt() override;
    [[nodiscard]] std::function<void()> keepState() override;
    void paintWaiting(QPixmap* picture, QPixmap* shown) override;

protected:
    using KORVA_DrawingTool::KORVA_DrawingTool;

    /// Paints the shape between two points, for preview, its removal and commit. The points are in
    /// coordinates of the painter's target, the widget or the picture. Pen and brush are already set.
    virtual void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const = 0;
    /// Removes the preview that a move leaves behind. The base class calls drawShape().
    virtual void drawLeftShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const;
    /// Whether drawLeftShape() takes away all that drawShape() shows, and no more: such a shape need not be
    /// painted if nobody sees it. The base class says so.
    [[nodiscard]] virtual bool vanishes(QPoint from, QPoint to) const;
    /// The second point of the even shape next to this one, in picture coordinates. The base class makes a
    /// square.
    [[nodiscard]] virtual QPoint evenPoint(QPoint from, QPoint to) const;
    /// The size of a shape for the user. The base class counts both points.
    [[nodiscard]] virtual QSize shapeSize(QPoint from, QPoint to) const;
    /// The final second point of the shape. It and both arguments are in widget coordinates.
    [[nodiscard]] virtual QPoint commitPoint(QPoint lastMove, QPoint release) const = 0;

private:
    enum State {
        Idle,     ///< nothing is shown; a press begins a drag
        Dragging, ///< the shape from m_start to m_end is on screen, inverted, or waits to be
    };

    [[nodiscard]] QRect reach(QPoint to) const;
    [[nodiscard]] bool isEven(const QMouseEvent& event) const;
    [[nodiscard]] QPoint pointOf(const QMouseEvent& event) const;
    [[nodiscard]] QPoint inPicture(QPoint to, bool isEven) const;
    void togglePreview();
    QRect paintShape(QPixmap* target, const QPen& pen, QPoint from, QPoint to);

    State m_state = Idle;
    QPoint m_start;                  ///< widget coordinates
    QPoint m_end;                    ///< the last move, widget coordinates
    std::optional<QPoint> m_leaving; ///< while it waits: the end of the shape on screen
    bool m_isEven = false;           ///< that move was with Shift
    QRect m_previewed;               ///< where previews have been, widget coordinates
    QPen m_shownPen; ///< the preview's pen: the tool's may change before the preview is removed
};
