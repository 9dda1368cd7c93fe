#pragma once

#include <QImage>
#include <QPixmap>
#include <QTransform>

/// A drawing without its view: the picture at real size, the undo snapshot, and the modified flag.
///
/// The picture is always opaque and of device pixel ratio 1. Positions and sizes are in its pixels. This
/// class is no widget and emits no signals. It does not take the snapshot or mark the drawing modified by
/// itself: the code that changes the drawing does so, and informs others. A copy shares the pixels until
/// one of the two is painted on.
class KORVA_Picture
{
public:
    /// Holds a copy of the pixels, which is also the snapshot; unmodified. Transparent parts become white.
    explicit KORVA_Picture(const QPixmap& pixels);

    /// The pixmap to paint on, the same object for the drawing's life. Parts that a painter left
    /// transparent become white with the next call.
    [[nodiscard]] QPixmap* pixmap();
    [[nodiscard]] QSize size() const { return m_picture.size(); }
    /// In bits per pixel; always Qt's own depth, whatever came in.
    [[nodiscard]] int depth() const { return m_picture.depth(); }

    /// The image that a save writes.
    [[nodiscard]] QImage image() const;
    /// A copy of the picture with a piece laid on it; an unchanged copy if the piece is null.
    [[nodiscard]] QPixmap with(const QPixmap& piece, QPoint at) const;

    /// Replaces the pixels, and with them the size.
    void take(const QPixmap& pixels);
    void fill(const QColor& color);
    /// Scales the picture to a size. If a side is not positive the picture becomes empty.
    void scale(QSize size);
    /// A copy of a rectangle; its parts outside the picture are white.
    [[nodiscard]] QPixmap piece(const QRect& rect) const;
    /// Fills a rectangle with white. `toPicture` maps it to the picture's pixels.
    void erase(const QRect& rect, const QTransform& toPicture = {});
    /// Paints a piece at real size. Parts outside the picture are cut off; transparent parts leave the
    /// picture alone.
    void lay(const QPixmap& piece, QPoint at);

    /// Whether markModified() came after the last clearModified().
    [[nodiscard]] bool isModified() const { return m_isModified; }
    void markModified() { m_isModified = true; }
    void clearModified() { m_isModified = false; }

    /// Keeps the picture as it is now, for undo() to bring back. It replaces the previous snapshot.
    void takeSnapshot() { m_snapshot = m_picture; }
    /// The same with another picture, which need never have been in the drawing.
    void takeSnapshot(const QPixmap& picture);
    /// Goes back to the snapshot, and forward again. As there is only one step, both functions exchange
    /// picture and snapshot. The picture may get another size; the modified flag stays.
    void undo() { m_picture.swap(m_snapshot); }
    void redo() { m_picture.swap(m_snapshot); }

private:
    QPixmap m_picture;
    QPixmap m_snapshot;
    bool m_isModified = false;
};
