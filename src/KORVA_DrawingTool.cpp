#include "KORVA_DrawingTool.h"

#include "KORVA_Canvas.h"

QPen KORVA_DrawingTool::picturePen() const
{
    return m_button == Qt::LeftButton ? leftPen() : rightPen();
}

QPen KORVA_DrawingTool::screenPen() const
{
    QPen pen = picturePen();
    pen.setWidth(zoom().penWidth(pen.width()));
    return pen;
}

int KORVA_DrawingTool::screenPenWidth() const
{
    return zoom().penWidth((m_button == Qt::LeftButton ? leftPen() : rightPen()).width());
}

QBrush KORVA_DrawingTool::brush() const
{
    return m_button == Qt::LeftButton ? leftBrush() : rightBrush();
}

bool KORVA_DrawingTool::showsPixels() const
{
    constexpr int realSize = 100; // below it a thin line would be shown in parts
    return canvas()->manners().truePixels && zoom().percent() > realSize;
}

bool KORVA_DrawingTool::beginChange()
{
    canvas()->saveOldPix();
    canvas()->markModified();
    return canvas();
}

bool KORVA_DrawingTool::mergePiece() const
{
    if (canvas())
        canvas()->mergePastePixmap();
    return canvas();
}
