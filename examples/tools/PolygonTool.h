#pragma once

#include <KORVA_DrawingTool.h>
#include <QPoint>
#include <optional>

/// A polygon, tap by tap: each draws a side to the last corner, and one at the first corner closes it.
struct PolygonTool : KORVA_DrawingTool
{
    PolygonTool() : KORVA_DrawingTool("polygon") {}
    void activating() override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::optional<QPoint> m_first; ///< corner of the polygon that is open, in picture coordinates
    QPoint m_last;
};
