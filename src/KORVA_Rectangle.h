#pragma once

#include "KORVA_TwoPointTool.h"

/// A rectangle, outlined or filled as the brush says, from the press to the release; shown as an outline.
/// Its size is the difference of the two points: the pixel of the press belongs to it, the row and the
/// column of the release do not. A size of 0 draws nothing, but counts as a modification all the same.
class KORVA_EXPORT KORVA_Rectangle : public KORVA_TwoPointTool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Rectangle(const QString& name);

protected:
    void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint commitPoint(QPoint lastMove, QPoint release) const override;
};
