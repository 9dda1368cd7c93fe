#pragma once

#include "KORVA_TwoPointTool.h"

/// The ellipse tool. The ellipse lies in the box between press and release, both corner pixels included. It
/// is outlined or filled as the brush says; the preview is an outline. If width × height of the drag is 4
/// pixels or less, no ellipse is drawn, but the drag still counts as a modification. Each of the two
/// pictures is tested in its own coordinates.
class KORVA_EXPORT KORVA_Ellipse : public KORVA_TwoPointTool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Ellipse(const QString& name);

protected:
    void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    void drawLeftShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    [[nodiscard]] bool vanishes(QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint commitPoint(QPoint lastMove, QPoint release) const override;
};
