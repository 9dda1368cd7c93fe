#pragma once

#include "KORVA_TwoPointTool.h"

/// The ellipse between the press and the release, both corner pixels in its box, outlined or filled as the
/// brush says; shown as an outline. Tiny ones are not drawn: the test is made in each picture's own
/// coordinates.
class KORVA_EXPORT KORVA_Ellipse : public KORVA_TwoPointTool
{
    Q_OBJECT

public:
    explicit KORVA_Ellipse(const QString& name);

protected:
    void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    void drawLeftShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint commitPoint(QPoint lastMove, QPoint release) const override;
};
