#pragma once

#include "KORVA_Export.h"
#include "KORVA_Manners.h"
#include "KORVA_Zoom.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class KORVA_EditCanvas;
class KORVA_KeyboardPen;
struct KORVA_BeforePiece;
class KORVA_PasteLabel;
class KORVA_Picture;
class KORVA_Repainter;
class KORVA_ScrollView;
class KORVA_Tool;
class KORVA_TouchInput;
class QAction;
class QMenu;

/// The widget that shows the drawing being edited.
///
/// It owns the drawing (a picture at real size and its undo snapshot), the zoomed copy that is on screen,
/// and the floating piece. It hands stylus and key events to the one active tool. "Widget coordinates" are
/// pixels of the zoomed picture, "picture coordinates" of the real one.
///
/// Every operation that changes the picture takes the snapshot before and calls markModified() after, which
/// makes undo possible. Exceptions are noted. undo(), redo() and a picture taken in leave the modified flag
/// as it is.
///
/// A slot of any signal may call everything here and change tools, or delete the canvas later.
class KORVA_EXPORT KORVA_Canvas : public QWidget
{
    Q_OBJECT

public:
    /// Begins with a white picture of `width` × `height` pixels at 100 %; empty if a side is not positive.
    /// It counts as modified and has nothing to undo.
    ///
    /// `editor` hands every signal but clipboard() on to the host; with null nobody does. It is not owned.
    KORVA_Canvas(KORVA_EditCanvas* editor, int width, int height, QWidget* parent = nullptr,
                 const char* name = nullptr);
    /// The same, in the size of the picture in the file; empty if it cannot be read. load() or setPixmap()
    /// brings in its contents.
    KORVA_Canvas(KORVA_EditCanvas* editor, const QString& fileName, QWidget* parent = nullptr,
                 const char* name = nullptr);
    ~KORVA_Canvas() override;

    /// What one finger on a touch screen does. Two fingers always move the view, and a pinch zooms it from
    /// one step of the zoom box to the next. A pen always draws.
    enum FingerUse {
        FingerDraws, ///< what the left button does
        FingerPans,  ///< moves the view; it still takes hold of a floating piece
    };

    /// How many canvases were ever made.
    static int inst;

    /// Whether markModified() came after the last clearModified().
    [[nodiscard]] bool isModified() const;
    /// Called after the picture has been saved. Undo is still possible. Emits nothing.
    void clearModified();

    /// The canvas's half of a tool change. KORVA_Manager calls it after the tool's own activate(). The tool
    /// is not owned. Aborts if a tool is active.
    void activate(KORVA_Tool* tool);
    /// Called before the tool's own deactivate(). Aborts if no tool is active.
    void deactivate();
    /// Whether a tool is active. In an editor one always is.
    [[nodiscard]] bool isActive() const { return m_toolActive; }
    /// The active tool; null when there is none.
    [[nodiscard]] KORVA_Tool* getCurrentTool() const;
    /// The active tool's KORVA_Tool::id(); -1 when there is none.
    [[nodiscard]] int getCurrentToolID() const;

    /// The picture, after merging a floating piece into it, so that painting reaches all of it. Call
    /// saveOldPix() before painting, markModified() and updateZoomed() after. The pixmap belongs to the
    /// canvas and lives as long; undo, redo, resize and load put another picture into it.
    QPixmap* pixmap();
    /// The picture as a save would write it now, with a floating piece where it lies and with what the tool
    /// still holds back, such as open text. Nothing is merged, committed, emitted or otherwise touched.
    [[nodiscard]] QPixmap snapshot() const;
    /// The picture on screen, for feedback, in widget coordinates; nothing is merged. refresh() shows what
    /// was painted on it. The pixmap belongs to the canvas and lives as long; its size follows the zoom and
    /// the picture's size.
    QPixmap* zoomedPixmap();
    /// The same to look at for the moment.
    [[nodiscard]] const QPixmap& zoomed() const;
    /// The size of the picture, in picture pixels.
    [[nodiscard]] QSize pictureSize() const;
    /// Copies a picture in; transparent pixels come out white. A floating piece is dropped. Not a
    /// modification, and no snapshot is taken. Emits pixmapChanged(), then sizeChanged() if the size on
    /// screen changes. Null is ignored.
    void setPixmap(QPixmap* picture);
    /// The depth of the picture in bits per pixel: Qt's own, whatever was set.
    [[nodiscard]] int getDepth() const;
    /// Asks for a depth of 1, 4, 8, 15, 16, 24 or 32 bits; aborts for others. The picture keeps its pixels
    /// and Qt's depth. A depth other than Qt's is a modification, emits pixmapChanged() and drops a
    /// floating piece.
    void setDepth(int d);
    /// Fills the picture; typed text and a floating piece are dropped, without selection(false).
    void clearCanvas(const QColor& color);
    /// Lays a picture under the drawing, scaled to its size. Erasing, clearCanvas() with white, lifting and
    /// cutting bring it back. Null, the initial value, is white paper. Parts that showed the previous paper
    /// show the new one; if that changes a pixel it is a modification. A saved picture includes the paper.
    void setPaper(const QImage& paper);
    /// Whether that is another paper than white.
    [[nodiscard]] bool hasPaper() const;
    /// Brings the paper back, for a tool that erases. `inPicture` is in picture coordinates, `onScreen` in
    /// widget coordinates. On white paper only `onScreen` is erased on the screen; any other paper is shown
    /// as it lies.
    void erase(const QRect& inPicture, const QRect& onScreen);
    /// The same in picture coordinates, and shows exactly that.
    void erase(const QRegion& inPicture);
    /// The same without showing it.
    void eraseUnseen(const QRegion& inPicture);
    /// Scales the picture to `w` × `h` pixels. Does nothing if that is its size; the picture becomes empty
    /// if a side is not positive. Emits sizeChanged() if the size on screen changes, pixmapChanged(),
    /// modified(). A floating piece is merged into the new picture; undo then does not bring the old one
    /// back.
    void resizeImage(int w, int h);
    /// Takes in the picture of a file as setPixmap() does, but only while no tool is active, and returns
    /// whether that was so. In an editor it never is. A file that cannot be read gives an empty picture.
    /// `format` names the format to accept ("PNG"); null recognises the file by its content.
    bool load(const QString& fileName, const char* format);
    /// Writes the picture with a floating piece merged into it, a JPEG in quality 96. False if it could not
    /// be written. `format` is "PNG", "JPEG" or "BMP"; null follows the name's extension. A file of that
    /// name is overwritten in place. The modified flag is not cleared.
    bool save(const QString& fileName, const char* format);

    /// Begins a new drawing, without asking: empty, of this size, unmodified, with nothing to undo. Nothing
    /// floats, and no earlier piece is kept. Tool, zoom, paper and steps to undo stay.
    void reset(QSize size);

    /// Takes the undo snapshot, which undo() brings back. It replaces the previous one. Undo becomes
    /// possible with markModified().
    void saveOldPix();
    /// For a tool whose KORVA_Tool::pendingSteps() have changed: tells the host what to offer.
    void offerPending();
    /// For a tool that begins something it may drop: what brings the modified flag and what is offered back
    /// to the present, and emits pendingDropped(). It lives no longer than the canvas.
    [[nodiscard]] std::function<void()> keepFlags();
    /// For a tool that can no longer bring back what it dropped: tells the host what to offer.
    void offerWithoutDropped();
    /// Tells dragging() if it is another size than before.
    void setDragged(QSize size);
    /// Tells the host what to offer: 0 for neither, 1 for redo, 2 for undo: the opposite numbers of
    /// undoFlag(). Emits canRedo(), then canUndo(); other numbers are kept and emit nothing.
    void setUndoFlag(int flag);
    /// 0 nothing to undo, 1 undo possible, 2 redo possible; or what setUndoFlag() was given.
    [[nodiscard]] int undoFlag() const { return m_undoFlag; }

    /// Sets how many steps undo() walks back, and in how many bytes they are kept. The present steps are
    /// forgotten. With 1, the initial value, undo() and redo() exchange the picture with the snapshot.
    ///
    /// With more, a step is the change between two calls of saveOldPix(); if no pixel changed there is
    /// none. If they need more bytes the oldest go first; the newest stays, however large it is. undo() and
    /// redo() mark the picture modified, without emitting modified(). canUndo() and canRedo() tell what is
    /// possible: at once after them, otherwise when control is back in the event loop.
    void setUndoSteps(int steps, qint64 mostBytes);
    /// See setUndoSteps().
    [[nodiscard]] int undoSteps() const;
    /// All changes up to endStep() are one step; undo() and redo() end it. Nothing if only one is kept.
    void beginStep();
    /// See beginStep().
    void endStep();

    /// Sets the zoom in percent; 100 is real size. Merges a floating piece first, which is a modification,
    /// unless KORVA_Manners::steadyPiece leaves it floating.
    /// Rates below 1 are ignored. Emits sizeChanged() if the size on screen changes.
    ///
    /// Enlarging makes at most 16 megapixels, or twice the screen's area if that is more. If a zoom would
    /// make more, or a picture or piece that comes in at the present zoom, the zoom becomes 100 % and
    /// zoomFellBack() is emitted, after sizeChanged().
    void setZoom(int percent);
    /// The zoom in percent.
    [[nodiscard]] int zoom() const { return m_zoom.percent(); }
    /// Draws the zoomed picture again from the picture, and shows it.
    void updateZoomed();
    /// The same for a part of the picture, in picture coordinates; a tool's preview in it goes.
    void showPicture(const QRect& changed);
    /// The same from a copy of the picture on which `paint` has painted, as feedback of a tool that shows
    /// what it will commit. updateZoomed() takes it off the screen.
    void showWith(const std::function<void(QPixmap* copy)>& paint);
    /// showPicture() for a tool that is painting what it has put off: the screen learns of it in another
    /// way. One change after the other, as if each had been shown at once.
    void paintShown(const QList<QRect>& changes);
    /// What showPicture() shows anew, in widget coordinates.
    [[nodiscard]] QRect shownAround(const QRect& changed) const;
    /// Whether the screen has the picture's very pixels in what showPicture() would show: at 100 %, and
    /// where no tool has left anything else. Not for a tool that has put off painting.
    [[nodiscard]] bool showsPixelsOf(const QRect& part) const;
    /// For a tool, `painter`, that puts off its painting (KORVA_Tool::paintWaiting()): shows `changed`, in
    /// widget coordinates, at the screen's pace. Whoever has ever been given pixmap() or zoomedPixmap() may
    /// look at any time; then nothing is put off.
    void showLater(KORVA_Tool* painter, const QRect& changed);
    /// Lets the tool paint what it has put off. Everything of the canvas that reads or changes the pictures
    /// does so first.
    void paintNow();
    /// Scales the picture kept for pasting by the zoom; two calls scale it twice. Does nothing if none is
    /// kept. paste() takes the system clipboard's.
    void updateZoomedClipboard();

    /// Lifts a rectangle (widget coordinates, corners in any order) out of the picture into a floating
    /// piece, and leaves white behind. Parts outside are cut off; a rectangle that is entirely outside
    /// lifts nothing. At 150 and 200 % the piece is 2 picture pixels wider and higher; with
    /// KORVA_Manners::steadyPiece it is made of all pixels that are seen in the rectangle, at any zoom. A
    /// piece that was floating is merged. No snapshot, no modification: the change counts when the piece is
    /// merged or cut. Emits selection(true).
    void setSelection(const QRect& rect);
    /// The rectangle last selected, in widget coordinates; null after clearSelection().
    [[nodiscard]] QRect selection() const { return m_selection; }
    /// Whether setSelection() came after the last clearSelection(). A merge does not end it.
    [[nodiscard]] bool hasSelection() const { return m_hasSelection; }
    /// Forgets the rectangle; a floating piece stays. Emits selection(false).
    void clearSelection();

    /// Puts the floating piece on the clipboard and drops it; the selection becomes white. Emits
    /// clipboard(true), selection(false), modified(), clipboard(true). If nothing floats, the last piece
    /// and the last selection are taken: selection(bool) tells a host when to offer it.
    void cut();
    /// Drops the floating piece for good; the place that it was lifted from stays white. The snapshot is
    /// the picture with the piece in it, so that undo brings it back, merged where it lay. Emits
    /// selection(false), modified(). Does nothing if nothing floats.
    void deleteSelection();
    /// Puts the floating piece, or the last one, on the clipboard. The picture is not touched. Emits
    /// clipboard(true).
    void copy();
    /// Lays the clipboard's picture over the canvas as a floating piece at (0, 0), scrolls there and marks
    /// the picture modified. A piece that was floating is merged first. An empty clipboard lays nothing.
    void paste();
    /// Copies the clipboard's picture into the picture at (x, y) in picture coordinates. Nothing floats;
    /// parts outside are cut off. Does nothing if the clipboard holds no picture.
    void paste(int x, int y);
    /// Lays a copy of a picture over the canvas as a floating piece at (0, 0), scrolls there and marks the
    /// picture modified. A piece that was floating is merged first; otherwise no snapshot is taken.
    void insertStamp(QPixmap& stamp);
    /// Paints a floating piece into the picture where it lies. The snapshot is taken afterwards, so that
    /// undo brings back the state just before the next change, not the one before the piece. Emits
    /// selection(false) at the end. Does nothing if nothing floats.
    void mergePastePixmap();
    /// The same, unless KORVA_Manners::steadyPiece lets it float on.
    void mergeUnlessSteady();
    /// Drops the floating piece: what was lifted is back where it was, what was pasted is gone. Picture,
    /// snapshot, history and modified flag are as before it floated; if the drawing was changed meanwhile,
    /// that stays, and is a modification. Emits selection(false), canUndo() and canRedo() if they had told
    /// otherwise, pieceDropped(). Does nothing if nothing floats, or floats since before
    /// KORVA_Manners::pieceKeys was on.
    void dropPiece();
    /// The place of the floating piece's top left, in picture coordinates.
    [[nodiscard]] QPoint piecePlace() const;
    /// Moves the floating piece there. It is that very place at any zoom, also where not every pixel is
    /// shown.
    void placePiece(QPoint inPicture);
    /// Whether a point (widget coordinates) lies on the floating piece.
    [[nodiscard]] bool ptInPasteLabel(const QPoint& p) const;

    /// The floating piece; hidden while there is none. The canvas owns it.
    [[nodiscard]] KORVA_PasteLabel* pasteLabel() const { return m_pasteLabel; }
    /// The menu of the right button, with the actions Cut, Copy and Paste, whose QAction::data() is 0, 1
    /// and 2. A host may add its own entries and remove any. The canvas owns it.
    [[nodiscard]] QMenu* contextMenu() const { return m_menu; }
    /// Opens the menu at a place on the screen; not if the host has left nothing in it.
    void openMenu(QPoint at);

    /// Chooses what one finger does from its next touch on: see FingerUse. FingerDraws at first.
    void setFingerUse(FingerUse use);
    /// See setFingerUse().
    [[nodiscard]] FingerUse fingerUse() const;

    /// How the canvas, its piece and its tools behave: see KORVA_EditCanvas::setManners().
    void setManners(const KORVA_Manners& manners);
    /// See setManners().
    [[nodiscard]] const KORVA_Manners& manners() const { return m_manners; }

    /// The scroll view that holds the canvas; null when there is none.
    [[nodiscard]] KORVA_ScrollView* scrollView() const;

    /// Shows the zoomed picture as it now is. Every change of it ends with this call. It is on the screen
    /// at once or with the screen's next picture.
    void refresh();
    /// The same if only this rectangle changed; widget coordinates.
    void refresh(const QRect& changed);

    /// Switches drawing by keyboard on or off. Arrow keys move a pen that is shown over the drawing and is
    /// never part of it; the space bar is its button. Initially off: the keys are the host's then.
    ///
    /// While it is on and no text is open, the canvas takes these keys. A step is one picture pixel, or ten
    /// with Shift or Ctrl, and never less than a pixel of the screen.
    ///
    /// - Arrows: move the pen; the view scrolls along. While a piece floats, they move the piece.
    /// - Space: acts as the left button for as long as it is held.
    /// - Return, Enter: press the button; the next one releases it. While a piece floats, they merge it.
    /// - Alt+arrows: make the floating piece wider, narrower, higher or lower.
    /// - `]`, Alt+PageDown: turn the floating piece clockwise; `[`, Alt+PageUp: the other way.
    /// - Escape drops the floating piece, with KORVA_Manners::pieceKeys. With that, all keys that change a
    ///   piece work without drawing by keyboard, too.
    ///
    /// While a text is open all keys go to the text, except Escape, which commits it as a press beside it
    /// does, unless KORVA_Manners::escapeDropsText is on. The tools get the events that a mouse would send.
    /// A press of the pointer moves the pen there.
    void setKeyboardDrawing(bool on);
    /// See setKeyboardDrawing().
    [[nodiscard]] bool isKeyboardDrawing() const;
    /// The position of the keyboard's pen, in picture coordinates; nothing while it is not shown.
    [[nodiscard]] std::optional<QPoint> keyboardPen() const;
    /// Whether the pen's button is down, by Space or Return.
    [[nodiscard]] bool isKeyboardPenDown() const;
    /// What the keyboard's pen does with a key, for a host that records what a person does.
    enum PenKey {
        NotThePens, ///< it goes to the tool
        AsPointer,  ///< the canvas or the floating piece gets what a pointer would send, if anything
        OnPiece,    ///< changes the floating piece, or merges it, without a pointer
    };
    /// What a press of this key would be at the moment.
    [[nodiscard]] PenKey penKey(const QKeyEvent& press) const;

    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

public slots:
    /// To be called after the picture was changed. Sets the modified flag and emits modified(); record()
    /// follows.
    void markModified();
    /// As undo(), but emits canUndo(true), canRedo(false).
    void redo();
    /// Merges a floating piece and exchanges picture and snapshot: a second call brings the change back.
    /// While typed text is pending the picture stays. Emits canUndo(false), canRedo(true) in any case;
    /// sizeChanged() comes before them if the sizes differ. setUndoSteps() describes more steps than one.
    void undo();
    /// Makes undo possible: emits canUndo(true), canRedo(false). Follows every modified().
    void record();
    /// Calls cut().
    void slotCut();
    /// Calls copy().
    void slotCopy();
    /// Calls paste().
    void slotPaste();
    /// Enables or disables Cut and Copy in the context menu, and no other entry. Follows every
    /// selection(bool).
    void slotSelection(bool exists);
    /// Enables or disables Paste in the context menu and in the floating piece's. Follows every
    /// clipboard(bool).
    void slotClipBoard(bool filled);

signals:
    /// The zoom or the picture's size gave the widget another size.
    void sizeChanged();
    /// Another zoom is in force. Comes after sizeChanged() if that is emitted, too.
    void zoomChanged(int percent);
    /// The zoom became 100 % because the zoomed picture would have been too large: see setZoom().
    void zoomFellBack();
    /// Another picture was taken in, or the picture was scaled. Painting, undo and redo do not emit it.
    /// `picture` belongs to the canvas.
    void pixmapChanged(QPixmap* picture);
    /// From markModified(). The editor's listeners hear it before canUndo(true) and canRedo(false),
    /// listeners to the canvas itself after them, because record() is connected first.
    void modified();
    /// True when a rectangle was lifted; false when it was forgotten and whenever a piece was merged. See
    /// also KORVA_Manners::offeredPiece.
    void selection(bool exists);
    /// From dropPiece(): isModified() may be false again.
    void pieceDropped();
    /// A piece was put on the clipboard. Always true.
    void clipboard(bool filled);
    /// A finger's stroke was taken back: a second finger or a pen came, the menu opens, or the touch was
    /// cancelled. Picture, snapshot, modified flag, piece, selection and tool are as before its press. If
    /// selection(), canUndo() or canRedo() had told otherwise since, they were emitted again before this.
    void strokeTakenBack();
    /// A tool dropped what it had not yet committed: isModified() may be false again. canUndo() and
    /// canRedo() came before.
    void pendingDropped();
    /// A shape or a selection is being dragged: its size in picture pixels. Invalid when the drag has
    /// ended.
    void dragging(QSize size);
    /// Whether undo is to be offered.
    void canUndo(bool possible);
    /// Whether redo is to be offered.
    void canRedo(bool possible);
    /// The wheel asks for the next zoom: 1 larger, -1 smaller. The editor follows.
    void zoomStepWanted(int direction);
    /// The value of keyboardPen() or isKeyboardPenDown() has changed.
    void keyboardPenChanged();

protected:
    /// Claims the keys that type while the text tool takes them, and those of the keyboard's pen, before
    /// they become a host's shortcuts. Strokes of a finger or a pen become events of the left button, for
    /// the canvas or the floating piece under them; their device is the touch screen or the pen.
    bool event(QEvent* event) override;
    /// Tab stays here while the text tool takes it.
    bool focusNextPrevChild(bool next) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    /// The left button goes to the floating piece under it, in the piece's own coordinates; elsewhere it
    /// merges the piece and goes to the tool. The right button opens the context menu. Other buttons do
    /// nothing.
    void mousePressEvent(QMouseEvent* event) override;
    /// To the floating piece under it, else to the tool.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// To the floating piece under it, else to the tool.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// To the tool; ignored when there is none.
    void keyPressEvent(QKeyEvent* event) override;
    /// To the tool; ignored when there is none.
    void keyReleaseEvent(QKeyEvent* event) override;
    /// The menu key opens the floating piece's menu or, if nothing floats, the canvas's own.
    void contextMenuEvent(QContextMenuEvent* event) override;
    /// Zooms, if KORVA_Manners::wheelZooms says so; otherwise the view scrolls.
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class KORVA_BeforeStroke;
    friend class KORVA_EditCanvas; // for what fingers and pens choose in its controls
    friend class KORVA_Tool;       // which does not keep the pictures that it is given

    KORVA_Canvas(KORVA_EditCanvas* editor, const QPixmap& picture, bool takeItsSize, QWidget* parent,
                 const char* name);
    void createMenu();
    void paintGrid(const QRect& exposed);
    void offerEditing(bool cutting, bool pasting);
    template <typename Handler, typename LabelHandler>
    void handOn(QMouseEvent* event, Handler toTool, LabelHandler toLabel);
    void connectSignals(KORVA_EditCanvas* editor);

    [[nodiscard]] KORVA_Picture& drawing() const;
    QPixmap* mergedPicture();
    QPixmap* shownPicture();
    void paintZoomed();
    void paintZoomed(const QPixmap& picture);
    bool stepPending(bool back);
    void rebuildZoomed();
    void fitToZoomed();
    void showAnew();
    void keepZoomWithinLimit(QSize enlarged);
    void step(void (KORVA_Picture::*direction)());
    [[nodiscard]] bool hasHistory() const { return undoSteps() > 1; }
    [[nodiscard]] bool canBringBack() const;
    void offer();
    void offerSoon();
    void eraseSelection();
    /// Where a floating piece comes from.
    enum Origin {
        Pasted, ///< from outside: the picture below it is whole
        Lifted, ///< from the picture, which has a hole there
    };
    using BeforePiece = std::shared_ptr<const KORVA_BeforePiece>;
    [[nodiscard]] BeforePiece keptDrawing(const QRect& hole = {}) const;
    void floatPiece(const QPoint& at, const QPixmap& piece, Origin origin, const BeforePiece& before);
    void floatPasted(const QPixmap& piece, const BeforePiece& before);
    void hidePiece();
    [[nodiscard]] QPoint middlePlace() const;
    [[nodiscard]] QPixmap withPiece() const;
    [[nodiscard]] bool isFloating() const;

    KORVA_Zoom m_zoom;
    KORVA_Manners m_manners;
    QPointer<KORVA_Tool> m_tool;
    std::unique_ptr<KORVA_Picture> m_picture;
    QPixmap m_zoomed;
    QPointer<KORVA_Tool> m_waiting; ///< the tool that has put off some painting
    bool m_isWatched = false;       ///< somebody outside has been given one of the pictures
    int m_undoFlag = 0;             ///< what the host was last asked to offer
    bool m_isOfferDue = false;
    QSize m_dragged;    ///< as last told
    int m_wheelWay = 0; ///< in eighths of a degree, since the last zoom
    QPixmap m_clipboard;
    int m_toldZoom = 100;         ///< the zoom last announced by a signal
    bool m_hasFallenBack = false; ///< and no signal has announced it yet
    bool m_toolActive = false;
    QRect m_selection;
    bool m_hasSelection = false;
    Origin m_origin = Pasted; ///< of the piece that floats or floated last
    KORVA_PasteLabel* m_pasteLabel;
    struct Placed
    {
        QPoint inPicture;
        QPoint onScreen;
    };
    std::optional<Placed> m_placed; ///< of a piece that was not moved on the screen since
    BeforePiece m_beforePiece;
    bool m_isPieceAlone = false; ///< nothing but the piece has changed since then
    QImage m_clearCopy;          ///< the piece last copied, if its white was clear
    QMenu* m_menu;
    QPointer<QAction> m_cutAction;
    QPointer<QAction> m_copyAction;
    QPointer<QAction> m_pasteAction;
    std::unique_ptr<KORVA_Repainter> m_repainter;
    std::unique_ptr<KORVA_KeyboardPen> m_keyboardPen; ///< null until it is asked for
    std::unique_ptr<KORVA_TouchInput> m_touch;
};
