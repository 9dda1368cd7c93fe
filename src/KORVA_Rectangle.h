#pragma once

#include "KORVA_TwoPointTool.h"

/// A rectangle, outlined or filled as the brush says, from the press to the release; shown as an outline.
class KORVA_EXPORT KORVA_Rectangle : public KORVA_TwoPointTool
{
    Q_OBJECT

public:
    explicit KORVA_Rectangle(const QString& name);

protected:
    void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint commitPoint(QPoint lastMove, QPoint release) const override;
};
