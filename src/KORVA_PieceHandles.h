#pragma once

#include <QCursor>
#include <QPoint>
#include <QRect>

class QPainter;

/// The handles of a floating piece: round plates with pictures in its corners and its middle, and bars at
/// its edges. They lie inside it, so that the piece keeps its geometry, and take no more than a third of
/// each side; a small piece has none, and all of it moves. Only the piece's size counts, not what of it is
/// seen: a recording finds them where they were.
class KORVA_PieceHandles
{
public:
    /// `box` is where the piece lies on the canvas, in the piece's coordinates.
    explicit KORVA_PieceHandles(const QRect& box);

    [[nodiscard]] QRect box() const { return m_box; }
    /// Of a corner's square, in pixels; 0: there are no handles.
    [[nodiscard]] int side() const { return m_side; }
    /// The column and the row, 0 to 2, of the handle under a point; the middle (1, 1) moves the piece.
    [[nodiscard]] QPoint cellAt(QPoint p) const;

    /// Paints all of them, as sharp as the device is.
    void paint(QPainter& painter) const;
    /// The pointer over the handle that turns.
    [[nodiscard]] static QCursor turnCursor();

private:
    QRect m_box;
    int m_side = 0;
};
