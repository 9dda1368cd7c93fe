#pragma once

#include "KORVA_TwoPointTool.h"

/// The line tool: a straight line, both end pixels included. It ends where it was last shown, not where the
/// stylus is lifted.
class KORVA_EXPORT KORVA_Line : public KORVA_TwoPointTool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Line(const QString& name);

protected:
    void drawShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint evenPoint(QPoint from, QPoint to) const override;
    [[nodiscard]] QPoint commitPoint(QPoint lastMove, QPoint release) const override;
};
