#pragma once

#include "KORVA_Tool.h"

/// The rules that every tool which paints has in common: which pen and brush a button takes, how wide the
/// pen is on screen and in the picture, how a change is announced. A stroke is painted twice, into the
/// zoomed picture in widget coordinates and into the picture in its own.
class KORVA_EXPORT KORVA_DrawingTool : public KORVA_Tool
{
    Q_OBJECT

protected:
    using KORVA_Tool::KORVA_Tool;

    /// The button of the press that began the gesture; it decides the pens until the next press.
    void setButton(Qt::MouseButton button) { m_button = button; }
    /// The button last set; Qt::NoButton before the first press.
    [[nodiscard]] Qt::MouseButton button() const { return m_button; }

    /// The left pen for the left button, the right one for any other; its width is in picture pixels.
    [[nodiscard]] QPen picturePen() const;
    /// The same pen with its width times the zoom, truncated; a width of 0 is the thin line. Only on an
    /// active tool.
    [[nodiscard]] QPen screenPen() const;
    /// The left brush for the left button, the right one for any other.
    [[nodiscard]] QBrush brush() const;

    /// Takes the undo snapshot and marks the picture modified: before the first pixel of a gesture, on an
    /// active tool. False when who heard of it took the tool away from its canvas.
    [[nodiscard]] bool beginChange();
    /// The picture to paint on, after merging a floating piece into it; null when the tool has no canvas,
    /// or none any more, because who heard of the merging took it away. In both pictures it is painted
    /// after this call: nobody hears anything in between.
    [[nodiscard]] QPixmap* picture() const;

private:
    Qt::MouseButton m_button = Qt::NoButton;
};
