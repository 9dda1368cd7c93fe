#pragma once

#include <KORVA_DrawingTool.h>
#include <QRandomGenerator>

/// A spray can. The dots of a stroke depend on where it began, so that a recording repeats them.
struct SprayTool : KORVA_DrawingTool
{
    SprayTool() : KORVA_DrawingTool("spray") {}
    void activating() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void spray(QPointF at);
    QRandomGenerator m_random;
};
