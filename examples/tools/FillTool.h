#pragma once

#include <KORVA_Canvas.h>
#include <KORVA_DrawingTool.h>

/// The bucket: gives an area of one colour, connected by its sides, another one.
struct FillTool : KORVA_DrawingTool
{
    FillTool() : KORVA_DrawingTool("fill") {}
    void activating() override { canvas()->setCursor(Qt::CrossCursor); }
    void mousePressEvent(QMouseEvent* event) override;
    /// Fills a picture of 32 bits from a pixel of it, a row at a time.
    static void fill(QImage& picture, QPoint seed, QRgb color);
};
