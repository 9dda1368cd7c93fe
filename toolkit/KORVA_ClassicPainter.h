#pragma once

#include <QPainter>
#include <QPixmap>

/// A painter with the classic meaning of a shape's size: a shape of w × h covers w × h pixels, outline
/// included.
///
/// It is open on a picture or a widget for as long as it lives; on a null picture it paints nothing. Only
/// one may be open on a picture at a time. Nothing is antialiased. Coordinates are pixels of the target,
/// unless a matrix maps them. A pen's width is always in pixels of the target, whatever the matrix. On a
/// widget, a pixel is that of pixel::at(), however large the device pixel ratio makes it.
class KORVA_ClassicPainter
{
public:
    enum RasterOp {
        CopyROP, ///< paints the pen's and the brush's colours
        NotROP,  ///< inverts each touched pixel once, so that painting the same again restores it
    };

    explicit KORVA_ClassicPainter(QPaintDevice* target, RasterOp op = CopyROP);

    void setPen(const QPen& pen);
    void setBrush(const QBrush& brush);
    void setFont(const QFont& font);
    void setRasterOp(RasterOp op);
    void setWorldMatrix(const QTransform& matrix);
    /// Lets drawPixmap() change nothing outside this region, in the coordinates in force.
    void setClip(const QRegion& clip) { m_painter.setClipRegion(clip); }

    /// Paints a square of the pen's width around the pixel, or a disc if the pen's cap is round.
    void drawPoint(int x, int y);
    /// Both end pixels are included; a line of no length is a point.
    void drawLine(int x1, int y1, int x2, int y2);
    /// A negative size mirrors the rectangle about its anchor pixel, which always belongs to it; a size of
    /// 0 paints nothing. Corners are mitred, or round if the pen's join is.
    void drawRect(int x, int y, int w, int h);
    /// The ellipse inscribed in w × h pixels (both positive). It never leaves its box; a pen wider than one
    /// pixel enlarges that box on all sides.
    void drawEllipse(int x, int y, int w, int h);
    void fillRect(const QRect& rect, const QColor& color);
    /// Paints the whole picture with its top left at (x, y); transparent pixels leave the target alone. On
    /// a widget only `exposed` must be painted.
    void drawPixmap(int x, int y, const QPixmap& pixmap, const QRect& exposed = {});
    /// `flags` are Qt's text flags. Returns the box actually used, in target coordinates.
    QRect drawText(const QRect& box, int flags, const QString& text);

    /// A rectangle around everything painted so far, in the coordinates in which it was given.
    [[nodiscard]] QRect touched() const { return m_touched; }

private:
    void touch(const QRect& rect, int margin = 0);
    [[nodiscard]] QRect targetRect() const; ///< in the coordinates that shapes are given in
    [[nodiscard]] int outlineWidth() const;
    /// Paints a shape that lies within `area`. A painter that inverts paints one part of that after the
    /// other.
    template <typename Area, typename Draw> // a rectangle or a region
    void drawInParts(const Area& area, const Draw& drawAll);
    void fillRoundFrame(const QRect& outer, const QRect& hole);
    void drawPixelByPixel(QPoint at, const QImage& image, const QRect& onScreen);
    void invertDotted(const QRect& box, const QRegion& bars, const QRectF& outline);
    void invertText(const QRect& area, const QRect& box, int flags, const QString& text);

    QPixmap m_nothing; ///< stands in for a null target, on which Qt refuses to open a painter
    QPainter m_painter;
    RasterOp m_op = CopyROP;
    QRect m_touched;
};

namespace classic {

/// The rectangle with the same two corner pixels, swapped where they are the wrong way round.
[[nodiscard]] QRect normalized(const QRect& rect);

/// The picture without transparency: transparent parts become white.
[[nodiscard]] QPixmap opaque(const QPixmap& pixmap);

/// A picture of this size filled with one colour; null when a side is not positive.
[[nodiscard]] QPixmap filled(const QSize& size, const QColor& color);

/// A number that is the same for equal pictures of the same format, and almost never for others.
[[nodiscard]] size_t hash(const QImage& image);

/// Copies a whole picture into another or onto a widget at (x, y). Parts outside the target are left out;
/// masks are respected. On a widget only `exposed` must be painted.
void bitBlt(QPaintDevice* target, int x, int y, const QPixmap& source, const QRect& exposed = {});

} // namespace classic
