#pragma once

#include <QWidget>

class KORVA_Canvas;

/// Shows the spot under a finger that draws, three times as large, beside the finger. The canvas's touch
/// input shows, moves and hides it; it lies over the view and takes no events. Where the canvas is zoomed
/// so far that a finger covers few pixels, it stays hidden.
class KORVA_Magnifier : public QWidget
{
    Q_OBJECT

public:
    /// A hidden magnifier over the canvas's view, which owns it.
    explicit KORVA_Magnifier(KORVA_Canvas& canvas);

    /// Shows the canvas around this point, in widget coordinates of the canvas.
    void follow(QPointF at);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    KORVA_Canvas& m_canvas;
    QPoint m_at;
};
