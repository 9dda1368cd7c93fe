#pragma once

#include "KORVA_TwoPointTool.h"

/// The rectangle tool: a rectangle from the press to the release, outlined or filled as the brush says. The
/// preview is an outline. Its size is the difference of the two points: the pixel of the press belongs to
/// it, the row and column of the release do not. A size of 0 draws nothing, but still counts as a
/// modification.
class KORVA_EXPORT KORVA_Rectangle : public KORVA_TwoPointTool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Rectangle(const QString& name);

protected:
    void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    [[nodiscard]] QSize shapeSize(QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint commitPoint(QPoint lastMove, QPoint release) const override;
};
