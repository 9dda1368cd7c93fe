#pragma once

#include "KORVA_Tool.h"

/// The common base of the tools that paint. It decides which pen and brush a button uses, how wide the pen
/// is on screen and in the picture, and how a change is announced. A stroke is painted twice: into the
/// zoomed picture in widget coordinates, and into the picture in picture coordinates.
class KORVA_EXPORT KORVA_DrawingTool : public KORVA_Tool
{
    Q_OBJECT

protected:
    using KORVA_Tool::KORVA_Tool;

    /// Sets the button of the press that began the gesture. It decides the pens until the next press.
    void setButton(Qt::MouseButton button) { m_button = button; }
    /// The button last set; Qt::NoButton before the first press.
    [[nodiscard]] Qt::MouseButton button() const { return m_button; }

    /// The left pen for the left button, the right pen for any other. Its width is in picture pixels.
    [[nodiscard]] QPen picturePen() const;
    /// The same pen with its width times the zoom, truncated; a width of 0 is the thin line. Only for an
    /// active tool.
    [[nodiscard]] QPen screenPen() const;
    /// The width of that, at least 0.
    [[nodiscard]] int screenPenWidth() const;
    /// The left brush for the left button, the right one for any other.
    [[nodiscard]] QBrush brush() const;

    /// Whether what is painted is shown by KORVA_Canvas::showPicture(), and not painted on the screen, too:
    /// see KORVA_Manners::truePixels.
    [[nodiscard]] bool showsPixels() const;

    /// Takes the undo snapshot and marks the picture modified. An active tool calls this before the first
    /// pixel of a gesture. False when a slot that heard of the change has deactivated the tool.
    [[nodiscard]] bool beginChange();
    /// Merges a floating piece. False when the tool has no canvas, or lost it because a slot that heard of
    /// the merge deactivated the tool.
    [[nodiscard]] bool mergePiece() const;
    /// The same, and returns the picture to paint on; null instead of false. Paint on both pictures after
    /// this call; no signal is emitted in between.
    [[nodiscard]] QPixmap* picture() const { return mergedPicture(); }

private:
    Qt::MouseButton m_button = Qt::NoButton;
};
