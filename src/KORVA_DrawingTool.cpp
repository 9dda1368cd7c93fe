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

QPixmap* KORVA_DrawingTool::picture() const
{
    QPixmap* const merged = canvas() ? canvas()->pixmap() : nullptr;
    return canvas() ? merged : nullptr;
}
