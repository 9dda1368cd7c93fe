#include "PickerTool.h"
#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Pixel.h>
#include <QMouseEvent>

void PickerTool::activating()
{
    canvas()->setCursor(Qt::CrossCursor);
}

void PickerTool::mousePressEvent(QMouseEvent* event)
{
    const QImage picture = canvas()->snapshot().toImage();
    const QPoint at = zoom().toPicture(pixel::at(event->position()));
    if (picture.valid(at))
        m_editor.setColor(picture.pixelColor(at));
}
