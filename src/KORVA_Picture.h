#pragma once

#include "KORVA_History.h"

#include <QImage>
#include <QPixmap>
#include <QRegion>
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
    /// Sets what lies under the drawing and comes back where it is erased, scaled to the picture's size.
    /// Null, the initial value, is white. The picture changes where it showed the previous paper: true if
    /// it did.
    bool setPaper(const QPixmap& paper);
    [[nodiscard]] bool hasPaper() const { return !m_paper.isNull(); }
    /// Leaves only the paper.
    void clear();
    /// Begins a new drawing: only the paper in this size, unmodified, with nothing to undo.
    void reset(QSize size);
    /// Scales the picture to a size; if it shows only the paper, that is scaled instead. If a side is not
    /// positive the picture becomes empty.
    void scale(QSize size);
    /// A copy of a rectangle; its parts outside the picture are white.
    [[nodiscard]] QPixmap piece(const QRect& rect) const;
    /// Leaves only the paper in a rectangle. `toPicture` maps it to the picture's pixels.
    void erase(const QRect& rect, const QTransform& toPicture = {});
    /// The same in a region of the picture's pixels.
    void eraseRegion(const QRegion& region);
    /// Paints a piece at real size. Parts outside the picture are cut off; transparent parts leave the
    /// picture alone.
    void lay(const QPixmap& piece, QPoint at);

    /// Whether markModified() came after the last clearModified().
    [[nodiscard]] bool isModified() const { return m_isModified; }
    void markModified() { m_isModified = true; }
    void clearModified() { m_isModified = false; }

    /// Keeps the picture as it is now, for undo() to bring back. It replaces the previous snapshot.
    void takeSnapshot();
    /// The same with another picture, which need never have been in the drawing.
    void takeSnapshot(const QPixmap& picture);
    /// Goes back, and forward again. With one step, both functions exchange picture and snapshot. With
    /// more, they walk through the changes between the snapshots, and do nothing at either end. The picture
    /// may get another size; the modified flag stays.
    void undo() { walk(&KORVA_History::undo); }
    void redo() { walk(&KORVA_History::redo); }

    /// How many steps are kept, and in how many bytes; 1 at first. Forgets the present steps.
    void setUndoSteps(int steps, qint64 mostBytes);
    [[nodiscard]] int undoSteps() const { return m_history.mostSteps(); }

    // With one step, the functions below do nothing, and canUndo() and canRedo() are false.
    /// Makes a step of the changes since the last snapshot.
    void settle();
    /// All changes between the two calls are one step, whatever snapshots are taken. undo() and redo() end
    /// a step in between; another one begins with the next change.
    void beginStep();
    void endStep();
    /// Whether undo() or redo() would change anything.
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;

private:
    void keepStep();
    void walk(QImage (KORVA_History::*direction)(const QImage& now));
    [[nodiscard]] bool hasHistory() const { return undoSteps() > 1; }
    [[nodiscard]] bool isUnsettled() const;
    [[nodiscard]] QPixmap paper() const;

    QPixmap m_picture;
    QPixmap m_snapshot; ///< with more steps than one: what the newest of them led to
    KORVA_History m_history;
    int m_openSteps = 0;
    QPixmap m_paper; ///< in its own size; null: white
    bool m_isModified = false;
};
