#pragma once

#include "KORVA_TwoPointTool.h"

/// The ellipse between the press and the release, both corner pixels in its box, outlined or filled as the
/// brush says; shown as an outline. Not drawn where width × height of the drag is 4 pixels or less, tested
/// in each picture's own coordinates; it counts as a modification all the same.
class KORVA_EXPORT KORVA_Ellipse : public KORVA_TwoPointTool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Ellipse(const QString& name);

protected:
    void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    void drawLeftShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint commitPoint(QPoint lastMove, QPoint release) const override;
};
