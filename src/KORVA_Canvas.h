#pragma once

#include "KORVA_Export.h"
#include "KORVA_Zoom.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

class KORVA_EditCanvas;
class KORVA_PasteLabel;
class KORVA_Repainter;
class KORVA_ScrollView;
class KORVA_Tool;
class QMenu;

/// The picture being edited and the widget that shows it.
///
/// It owns the picture at real size, its zoomed copy, which is what is on screen, one undo snapshot and the
/// floating piece, and hands stylus and key events to the one active tool. "Widget coordinates" are pixels
/// of the zoomed picture, "picture coordinates" of the real one.
///
/// Every operation that changes the picture calls markModified(), which makes undo possible; what does not
/// says so.
class KORVA_EXPORT KORVA_Canvas : public QWidget
{
    Q_OBJECT

public:
    /// A white picture. `editor` may be null: then nothing is forwarded to it.
    KORVA_Canvas(KORVA_EditCanvas* editor, int width, int height, QWidget* parent = nullptr,
                 const char* name = nullptr);
    /// A white picture of the size of the one in the file; bring its contents in with load() or
    /// setPixmap().
    KORVA_Canvas(KORVA_EditCanvas* editor, const QString& fileName, QWidget* parent = nullptr,
                 const char* name = nullptr);
    ~KORVA_Canvas() override;

    /// How many canvases were ever made.
    static int inst;

    [[nodiscard]] bool isModified() const { return m_modified; }
    void clearModified() { m_modified = false; }

    /// The canvas's half of a tool change; the tool's own activate() comes before. Aborts when a tool is
    /// active.
    void activate(KORVA_Tool* tool);
    /// Comes before the tool's own deactivate(). Aborts when no tool is active.
    void deactivate();
    [[nodiscard]] bool isActive() const { return m_toolActive; }
    [[nodiscard]] KORVA_Tool* getCurrentTool() const { return m_tool; }
    /// -1 when there is no tool.
    [[nodiscard]] int getCurrentToolID() const;

    /// The picture, after merging a floating piece into it: who paints on it paints on all of it.
    /// Valid until the next undo, redo, resize or load.
    QPixmap* pixmap();
    /// The picture on screen, for feedback; nothing is merged.
    QPixmap* zoomedPixmap() { return m_zoomed.get(); }
    /// Copies a picture in; transparent pixels come out white. A floating piece is dropped. Not a
    /// modification, and no snapshot is taken. Null is ignored.
    void setPixmap(QPixmap* picture);
    [[nodiscard]] int getDepth() const;
    /// 1, 4, 8, 15, 16, 24 or 32 bits; aborts for others. The picture keeps its pixels and the toolkit's
    /// depth.
    void setDepth(int d);
    /// Fills the picture; typed text and a floating piece are dropped.
    void clearCanvas(const QColor& color);
    /// Scales the picture to a new size in pixels.
    void resizeImage(int w, int h);
    /// Takes the picture of a file in while no tool is active, and tells whether that was so. What cannot
    /// be read gives an empty picture. A null format recognises the file by its content.
    bool load(const QString& fileName, const char* format);
    /// Writes the picture with a floating piece merged into it; false when it could not be written.
    /// A null format follows the name's extension. The modified flag stays as it is.
    bool save(const QString& fileName, const char* format);

    /// Takes the undo snapshot: what undo() brings back.
    void saveOldPix() { m_previous = *m_picture; }
    /// 0 nothing to undo, 1 and 2 as the editor reads them: 1 offers redo, 2 offers undo.
    void setUndoFlag(int flag);
    /// 0 nothing to undo, 1 undo possible, 2 redo possible.
    [[nodiscard]] int undoFlag() const { return m_undoFlag; }

    /// Percent, 100 is real size; merges a floating piece first. Rates below 1 are ignored.
    void setZoom(int percent);
    [[nodiscard]] int zoom() const { return m_zoom.percent(); }
    /// Draws the zoomed picture anew from the picture and shows it.
    void updateZoomed();
    /// Scales the picture kept for pasting by the zoom; two calls scale it twice.
    void updateZoomedClipboard();

    /// Lifts a rectangle (widget coordinates) out of the picture into a floating piece and leaves white
    /// behind. No snapshot, no modification: the change counts when the piece is merged or cut.
    void setSelection(const QRect& rect);
    [[nodiscard]] QRect selection() const { return m_selection; }
    [[nodiscard]] bool hasSelection() const { return m_hasSelection; }
    void clearSelection();

    /// Puts the floating piece on the clipboard and drops it; the selection becomes white.
    void cut();
    /// Puts the floating piece on the clipboard. The picture is not touched.
    void copy();
    /// Lays the clipboard's picture over the canvas as a floating piece at (0, 0) and scrolls there.
    void paste();
    /// Copies the clipboard's picture into the picture at (x, y) in picture coordinates.
    void paste(int x, int y);
    /// Lays a picture over the canvas as a floating piece at (0, 0) and scrolls there. No snapshot is
    /// taken.
    void insertStamp(QPixmap& stamp);
    /// Paints a floating piece into the picture where it lies. The snapshot is taken afterwards, so that
    /// undo brings back the state just before the next change and not the time before the piece.
    void mergePastePixmap();
    /// Whether a point (widget coordinates) lies on the floating piece.
    [[nodiscard]] bool ptInPasteLabel(const QPoint& p) const;

    [[nodiscard]] KORVA_PasteLabel* pasteLabel() const { return m_pasteLabel; }
    /// Cut (0), Copy (1), Paste (2).
    [[nodiscard]] QMenu* contextMenu() const { return m_menu; }

    /// The scroll view that holds the canvas; null when there is none.
    [[nodiscard]] KORVA_ScrollView* scrollView() const;

    /// Shows the zoomed picture as it now is: how every change of it ends. It is on the screen at once or
    /// with the screen's next picture.
    void refresh();
    /// The same where only a rectangle changed; widget coordinates.
    void refresh(const QRect& changed);

    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

public slots:
    void markModified();
    void redo();
    void undo();
    void record();
    void slotCut();
    void slotCopy();
    void slotPaste();
    void slotSelection(bool exists);
    void slotClipBoard(bool filled);

signals:
    void sizeChanged();
    void pixmapChanged(QPixmap* picture);
    void modified();
    void selection(bool exists);
    void clipboard(bool filled);
    void canUndo(bool possible);
    void canRedo(bool possible);

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    KORVA_Canvas(KORVA_EditCanvas* editor, const QPixmap& picture, bool takeItsSize, QWidget* parent,
                 const char* name);
    void createMenu();
    void connectSignals(KORVA_EditCanvas* editor);

    void paintZoomed();
    void rebuildZoomed();
    void tellZoomedRebuilt();
    void fitToZoomed();
    void exchangeWithSnapshot();
    void fillSelection();
    void floatPiece(const QPoint& at, const QPixmap& piece);
    void floatAtOrigin(const QPixmap& piece);
    [[nodiscard]] bool isFloating() const;

    KORVA_Zoom m_zoom;
    KORVA_Tool* m_tool = nullptr; // not owned
    std::unique_ptr<QPixmap> m_zoomed;
    std::unique_ptr<QPixmap> m_picture;
    QPixmap m_previous;
    int m_undoFlag = 0;
    QPixmap m_clipboard;
    bool m_modified = false;
    bool m_toolActive = false;
    QRect m_selection;
    bool m_hasSelection = false;
    KORVA_PasteLabel* m_pasteLabel;
    QMenu* m_menu;
    std::unique_ptr<KORVA_Repainter> m_repainter;
};
