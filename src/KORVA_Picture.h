#pragma once

#include "KORVA_History.h"

#include <QImage>
#include <QPixmap>
#include <QTransform>

/// A drawing without its view: the picture at real size, what undo brings back, and whether anything was
/// changed since the last save.
///
/// The picture is opaque and of device pixel ratio 1, whatever comes in; places and sizes are its pixels.
/// Nothing here is a widget or emits a signal, takes the snapshot or marks the drawing modified unasked:
/// who changes it decides that, tells it and shows it. A copy shares the pixels until they are painted on.
class KORVA_Picture
{
public:
    /// Holds a copy of the pixels, which are the snapshot, too; unmodified. What is transparent comes out
    /// white.
    explicit KORVA_Picture(const QPixmap& pixels);

    /// To be painted on; the same object for the drawing's life. What a painter left transparent is white
    /// with the next call.
    [[nodiscard]] QPixmap* pixmap();
    [[nodiscard]] QSize size() const { return m_picture.size(); }
    /// In bits a pixel: the toolkit's, whatever came in.
    [[nodiscard]] int depth() const { return m_picture.depth(); }

    /// What a save writes.
    [[nodiscard]] QImage image() const;
    /// The picture as it would be with a piece laid on it; a null piece leaves it as it is.
    [[nodiscard]] QPixmap with(const QPixmap& piece, QPoint at) const;

    /// Takes other pixels in, in their size.
    void take(const QPixmap& pixels);
    void fill(const QColor& color);
    /// Scales the picture to a size; empty where a side is not positive.
    void scale(QSize size);
    /// A copy of a rectangle; what of it lies outside is white.
    [[nodiscard]] QPixmap piece(const QRect& rect) const;
    /// Leaves white behind. `toPicture` maps the rectangle to the picture's pixels.
    void erase(const QRect& rect, const QTransform& toPicture = {});
    /// Paints a piece, a pixel of it on one of the picture; what lies outside is cut off, what is
    /// transparent leaves the picture alone.
    void lay(const QPixmap& piece, QPoint at);

    /// Whether markModified() came after the last clearModified().
    [[nodiscard]] bool isModified() const { return m_isModified; }
    void markModified() { m_isModified = true; }
    void clearModified() { m_isModified = false; }

    /// The picture as it is now is what undo() brings back, in place of what was kept before.
    void takeSnapshot();
    /// The same with a picture that never was on the paper as a whole.
    void takeSnapshot(const QPixmap& picture);
    /// Back to the snapshot, and forward again. With one step, both exchange it with the picture. With
    /// more, they walk through what the snapshots were taken between; where there is nothing on their side
    /// they do nothing. The picture may get another size; the modified flag stays.
    void undo() { walk(&KORVA_History::undo); }
    void redo() { walk(&KORVA_History::redo); }

    /// How many steps are kept, and in how many bytes; 1 at first. Forgets those there are.
    void setUndoSteps(int steps, qint64 mostBytes);
    [[nodiscard]] int undoSteps() const { return m_history.mostSteps(); }

    // With one step, these do nothing and know nothing.
    /// What was changed since the last snapshot becomes a step of its own.
    void settle();
    /// What is changed between the two is one step, whatever snapshots are taken.
    void beginStep();
    void endStep();
    /// Whether undo() or redo() would change anything.
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;

private:
    void walk(QImage (KORVA_History::*direction)(const QImage& now));
    [[nodiscard]] bool hasHistory() const { return undoSteps() > 1; }
    [[nodiscard]] bool isUnsettled() const;

    QPixmap m_picture;
    QPixmap m_snapshot; ///< with more steps than one: what the newest of them led to
    KORVA_History m_history;
    int m_openSteps = 0;
    bool m_isModified = false;
};
