#pragma once

#include "KORVA_Export.h"
#include "KORVA_ToolOption.h"
#include "KORVA_Types.h"

#include <QColor>
#include <QList>
#include <QWidget>

#include <memory>

class KORVA_Canvas;
class KORVA_Documents;
class KORVA_MainView;
class KORVA_Manager;
class KORVA_Text;
class KORVA_Tool;
class KORVA_ToolBar;
class KORVA_ToolChoice;
class KORVA_ToolSet;
class KORVA_ZoomChoice;

/// The one widget that a host embeds to have a picture edited: tool, option, zoom and colour controls above
/// the canvas, 240 × 225 pixels; what it is given beyond that goes to the canvas's view. The host wires its
/// own commands to the operations and slots and enables them from the signals. GUI thread only.
///
/// What asks or tells the user something runs UTIL_Platform's boxes and dialogs and returns after them. The
/// editor may be deleted while one is open: the call then returns at once, as after a refusal. Who hears a
/// signal may call everything here, or delete the editor later.
/// `action` and `flag` are KORVA_ACTIONTYPE.
class KORVA_EXPORT KORVA_EditCanvas : public QWidget
{
    Q_OBJECT

public:
    /// A white canvas of 200 × 170 pixels at 100 %, not modified, with the pencil in red. `ownerWindow` is
    /// not used.
    explicit KORVA_EditCanvas(KORVA_COLORTYPE colorType, QWidget* parent = nullptr,
                              const char* name = nullptr, Qt::WindowFlags flags = {},
                              QWidget* ownerWindow = nullptr);
    /// Opens a picture at once, without canDelete(); one that cannot be opened is reported before the
    /// constructor returns and leaves the white canvas, unnamed.
    KORVA_EditCanvas(const QString& fileName, KORVA_COLORTYPE colorType, QWidget* parent = nullptr,
                     const char* name = nullptr, Qt::WindowFlags flags = {},
                     QWidget* ownerWindow = nullptr);
    ~KORVA_EditCanvas() override;

    /// The frame around the canvas. The editor owns it.
    [[nodiscard]] KORVA_MainView* mainView() const { return m_mainView; }
    /// The canvas, the same one for the editor's life. The main view owns it.
    [[nodiscard]] KORVA_Canvas* canvas() const;
    /// Back to what the constructor made, without a question: an unnamed white drawing of 200 × 170 pixels
    /// at 100 %, the pencil in red, all options as at first, nothing that floats or is kept for pasting,
    /// nothing to undo. At any moment, also while one of its dialogs or pop-ups is open: cancelDialogs()
    /// comes first. What a host has set stays: paper, steps to undo, its own tools. So does the clipboard.
    void reset();
    /// Closes the boxes, dialogs and pop-ups of the editor, whoever opened them with it as parent. What
    /// waits for them does no more than return, as after a refusal.
    void cancelDialogs();
    /// The tools. The editor owns it.
    [[nodiscard]] KORVA_Manager* manager() const { return m_manager.get(); }
    /// What the colour button's picker offers: from the constructor, then from chooseCanvas().
    [[nodiscard]] KORVA_COLORTYPE colorType() const { return m_colorType; }
    /// The drawing colour.
    [[nodiscard]] QColor color() const { return m_color; }
    /// Takes a drawing colour as if it had been picked. Emits colorChanged() for another one.
    void setColor(const QColor& color);
    /// The picture file being edited; empty for a drawing that was never saved.
    [[nodiscard]] QString fileName() const;

    // --- Editing: handed on to the canvas or the manager ---
    /// See KORVA_Canvas::undo().
    void undo();
    /// See KORVA_Canvas::redo().
    void redo();
    /// How many steps undo() walks back, and in how many bytes they are kept: see
    /// KORVA_Canvas::setUndoSteps(). 1 at first, the exchange of two pictures.
    void setUndoSteps(int steps, qint64 mostBytes = 4 << 20);
    /// See setUndoSteps().
    [[nodiscard]] int undoSteps() const;
    /// See KORVA_Canvas::cut().
    void cut();
    /// See KORVA_Canvas::copy().
    void copy();
    /// As KORVA_Canvas::paste(): the clipboard's picture as a floating piece.
    void paste();
    /// The clipboard's picture into the picture at (x, y), in picture coordinates.
    void paste(int x, int y);
    /// See KORVA_Canvas::deleteSelection().
    void deleteSelection();
    /// As KORVA_Canvas::clearCanvas(), always to white. The file name stays.
    void clearCanvas();
    /// Commits typed text, merges a floating piece, makes the selection tool current and selects the whole
    /// canvas.
    void selectAll();
    /// As KORVA_Canvas::pixmap(), with typed text in it: while the text tool is current this is a
    /// modification.
    QPixmap* pixmap();
    /// Emits canUndo(false) and canRedo(false), then takes a copy of the picture in as
    /// KORVA_Canvas::setPixmap() does. File name and modified flag stay. Where "Fit to page" is chosen the
    /// picture is fitted, too: one of another size emits sizeChanged() once more. Where the zoom before
    /// would make the new picture too large, see KORVA_Canvas::setZoom(), 100 % is chosen instead.
    void setPixmap(QPixmap* picture);
    /// See KORVA_Canvas::getDepth().
    [[nodiscard]] int getDepth() const;
    /// As KORVA_Canvas::setDepth(); aborts for a depth that does not exist.
    void setDepth(int depth);
    /// As KORVA_Canvas::resizeImage(); pixels.
    void resizeImage(int w, int h);
    /// As KORVA_Canvas::load(), which takes nothing in while a tool is active, and here one always is:
    /// changes nothing and returns false. openNewFilePrivate() opens a file.
    bool load(const QString& fileName, const char* format);
    /// Whether markModified() came after the last clearModified(). A selection that is only moved does not
    /// count until it is merged: hasChanges() tells.
    [[nodiscard]] bool isModified() const;
    /// The drawing as it is counts as saved; undo is still possible.
    void clearModified();
    /// See KORVA_Canvas::insertStamp().
    void insertStamp(QPixmap& stamp);
    /// Scales the picture to `w` × `h` pixels, as KORVA_Canvas::resizeImage() does, and centres the canvas.
    /// At 100 % sizeChanged() is not emitted.
    void setCanvasSize(int w, int h);
    /// As KORVA_Canvas::setZoom(), in percent; the zoom box keeps what it shows, or shows 100 % where the
    /// zoom fell back to that. Typed text is not committed.
    void setZoom(int rate);
    /// See KORVA_Canvas::setPaper(): what eraser, clearing and holes bring back.
    void setPaper(const QImage& paper);
    /// A new white canvas of `w` × `h` pixels, at the zoom chosen in the box, with nothing to undo. An
    /// unknown kind has 16 bits and leaves the colour type. Emits canvasChanged() and, last,
    /// canRedo(false), canUndo(false). Where the size is another or the text tool is current it counts as
    /// modified, and the file name stays: clearModified() and setFileName() make it a new drawing.
    void chooseCanvas(KORVA_CANVASTYPE type, int w, int h);

    /// Typed text that is still pending goes into the picture. While the text tool is current this is a
    /// modification even of an empty text; nothing when another tool is current.
    void commitText();
    /// The text tool while it is current; null otherwise.
    [[nodiscard]] KORVA_Text* currentText() const;

    // --- Choosing, as a person does in the controls, with all that follows from it ---
    /// Commits typed text, merges a floating piece and makes a tool current, in the option that was last
    /// chosen for it. `tool` is a KORVA_TOOLTYPE; nothing for one that does not exist.
    void selectTool(int tool);
    /// An option of the current tool, by its row in the pop-up; nothing for one that does not exist.
    void selectOption(int option);
    /// A row of the zoom box: a KORVA_ZOOMTYPE; nothing for one that does not exist.
    void selectZoom(int index);
    /// The current tool; the hand is one, too.
    [[nodiscard]] int tool() const;
    /// The row of its option; -1 for a tool without.
    [[nodiscard]] int option() const;
    /// Takes a tool of the host's own: it stands behind the others in the pop-up, with these options. Gives
    /// its identifier, from 8 on; -1 for null. `name` is for the person; the tool's KORVA_Tool::name() is
    /// what a recording calls it. The editor owns it, until the end.
    int addTool(std::unique_ptr<KORVA_Tool> tool, const QIcon& icon, const QString& name,
                const QList<KORVA_ToolOption>& options = {});
    /// What a person calls a tool of this editor, by its identifier; empty for none.
    [[nodiscard]] QString nameOfTool(int tool) const;

    // --- The controls ---
    /// Shows a colour on the colour button; the drawing colour stays.
    void fillColorButton(const QColor& color);
    /// Fills the option pop-up with the options of a tool by its KORVA_Tool::id(); empty for tools without.
    /// Chooses none.
    void loadToolOptions(int tool);
    /// The eraser's cursor: a white square of `width` picture pixels at `rate` percent in a black frame,
    /// its top left the hot spot. The editor sets it anew with every change of eraser and zoom.
    void setRubberCursor(int width, int rate);

    // --- What a host must know ---
    /// Whether there is anything to lose: isModified(), or a floating piece or open text that makes the
    /// drawing another one than clearModified() found.
    [[nodiscard]] bool hasChanges() const;
    /// The drawing as a save would write it now, with a floating piece and open text in place. Merges,
    /// commits, emits and changes nothing.
    [[nodiscard]] QImage snapshot() const;
    /// The snapshot as the bytes of a picture file. `format` is "PNG", "JPEG" or "BMP"; null follows
    /// fileName()'s extension. With `mostBytes` above 0 it is no longer than that: a JPEG gives up quality
    /// first, then size. Empty when it can't be done or does not fit.
    [[nodiscard]] QByteArray encoded(const char* format, qsizetype mostBytes = 0) const;
    /// The same of a snapshot() taken before, for any thread; null is no format here.
    [[nodiscard]] static QByteArray encoded(const QImage& snapshot, const char* format,
                                            qsizetype mostBytes = 0);
    /// The size of the picture last opened, in pixels, upright, before it was fitted; empty for a new
    /// drawing.
    [[nodiscard]] QSize sourceSize() const;
    /// Whether opening took something away that a save under fileName() would lose for good: pixels,
    /// colours, transparency, further frames. False after a save() under that name, which lost it, and
    /// while the drawing has another name.
    [[nodiscard]] bool isReduced() const;
    /// What pick dialogs offer for opening: "*.png" and the like, in the order of the dialogs.
    [[nodiscard]] static QStringList openPatterns();
    /// What save dialogs offer; only formats that can be written.
    [[nodiscard]] static QStringList savePatterns();
    /// What a person calls a tool, by its identifier and in the language in force; empty for none.
    [[nodiscard]] static QString toolName(int tool);
    /// What a recording calls it, such as "pencil"; empty for none.
    [[nodiscard]] static QString toolWord(int tool);

    // --- Documents ---
    /// Merges a floating piece, asks before 0, 1 and 4 whether changes are to be saved, saves them with
    /// savePic() and goes on: 0 and 3 let the user pick a picture. "No" opens without saving, and ends 1
    /// and 4. 2 saves unasked, 3 saves nothing. Without changes 0 and 3 pick at once; 2 saves only a
    /// picture of the host's hand-over file "/tmp/korva.tmp" that has no name yet.
    void saveChangePic(int action);
    /// Opens (0) or stamps (3) a picture and tells whether it is there; a null name lets the user pick one.
    /// With another number the file's name is all that is taken. What has more pixels than 352 × 288 comes
    /// scaled to fit within; what is transparent comes out white.
    ///
    /// Opened, it is unmodified, has the file's name and offers no undo; canDelete(true) comes last. A
    /// failure is told to the user and leaves the picture, but with 0 not the name: it is the new one where
    /// the file failed isPicSizeNotOver(), empty, with canDelete(true), where it failed later.
    ///
    /// Each call writes a line to standard error, a second one where a name is given.
    bool openNewFilePrivate(int flag, const QString& openDocFile);
    /// The format to read a file by, from its last extension in any case: "BMP", "JPEG" (jpg, jpe, jpeg),
    /// "GIF", "WBMP", "PNG" for any other.
    void getFileFormat(const QString& name, QString& format) const;
    /// Whether the picture can be read as `format`, or as what it is where that is null, and has no more
    /// than UTIL_Platform::pixelLimit() pixels; tells the user when not.
    bool isPicSizeNotOver(const QString& name, const char* format);
    /// Reads a picture at its own size; false, and a null image, when it cannot be read. Shows nothing.
    bool getImage(QImage* image, const QString& name);
    /// Brings an image in place to what the canvas works on, and gives it as a pixmap: fitting within 352 ×
    /// 288 where it had more pixels than that, white where it was transparent, in 16 bits; an 8-bit image
    /// that keeps its size stays one. False when it is null.
    bool convertScaleImage(QImage* image, QPixmap* pixmap);
    /// Takes an encoded picture in memory over as setPixmap() does, scaled as an opened one. One that
    /// cannot be decoded is reported and changes nothing.
    void setBuffer(const QByteArray& encoded);
    /// As setBuffer(), but shows no box: false, and nothing is changed, when it cannot be decoded.
    bool setEncoded(const QByteArray& encoded);
    /// Encodes the picture into "appwrite/korva.temp" under the folder in the environment variable
    /// KIV_LOCAL_DOWNLOAD_PATH, where "appwrite" must exist, moves that to `name` and tells whether both
    /// went well; until then a file of that name stays as it was. Its mode is kept, and a link stays one. A
    /// floating piece is merged, typed text is not. `format` is "PNG", "JPEG" or "BMP", never null. Fails
    /// for a name with a single quote, for a folder and where writing is not permitted. Shows nothing;
    /// fileName() stays, and the modified flag is not cleared.
    bool save(const QString& name, const char* format);
    /// Saves under fileName(), in the format of its extension, tells how it went and emits canDelete(true).
    /// Saved, the drawing is unmodified; a failure takes its name away. A GIF cannot be written: it fails
    /// and keeps the name. Without a name nothing is saved, and canDelete(false) is emitted.
    void saveFilePrivate();
    /// Lets the user name the drawing if it has no name, saves it as saveFilePrivate() does and, for 0,
    /// lets a picture be picked. 3 saves nothing and lets a stamp be picked.
    void savePic(int action);
    /// An empty name, or that of the host's hand-over file "/tmp/korva.tmp", leaves the drawing unnamed and
    /// emits canDelete(false). Nothing is read or written.
    void setFileName(const QString& name);

public slots:
    /// An entry of the tool button's menu, by its QAction::data(); an unknown one means the line. Commits
    /// typed text, merges a floating piece, brings the option back that was last chosen, and emits
    /// signalTextTool().
    void slotSelChangeTool(int menuId);
    /// An entry of the option button's menu, by its QAction::data(); an unknown one means the last option
    /// of the tool.
    void slotSelChangeToolOptions(int menuId);
    /// Commits typed text and zooms: 0 50 %, 1 100 %, 2 150 %, 3 200 %, 4 what fits the picture into 222 ×
    /// 186 pixels and what the editor has beyond 240 × 225; 100 % for other numbers, and for 2 and 3 where
    /// the picture is not below 640 × 480.
    void slotSelZoomRate(int index);
    /// Lets the user pick the drawing colour.
    void slotColor();
    /// saveChangePic(0); nothing while a picture is being picked.
    void slotOpen();
    /// Commits typed text, then saveChangePic(2).
    void slotSave();
    /// Asks, clears the canvas and the modified flag, removes the file and forgets its name. A file that
    /// cannot be removed is not reported, and canDelete() is not emitted.
    void slotDelete();
    /// Does nothing: a stamp comes in by saveChangePic(3).
    void slotInsertStamp();
    /// The save dialog was accepted with this name: saves as saveFilePrivate() does and goes on with the
    /// action last given to saveChangePic().
    void slotSaveDlgCloseBeforeOpen(const QString& name);

signals:
    /// See KORVA_Canvas::sizeChanged().
    void sizeChanged();
    /// By chooseCanvas(), with the index in the zoom box.
    void canvasChanged(int zoomIndex);
    /// See KORVA_Canvas::pixmapChanged().
    void pixmapChanged(QPixmap* picture);
    /// See KORVA_Canvas::modified(). Followed by canUndo(true), canRedo(false).
    void modified();
    /// As KORVA_Canvas::selection(): whether cut and copy are to be offered.
    void selection(bool exists);
    /// See KORVA_Canvas::strokeTakenBack(): isModified() may be false again.
    void strokeTakenBack();
    /// Whether undo is to be offered: KORVA_Canvas::canUndo(), and false from setPixmap().
    void canUndo(bool possible);
    /// Whether redo is to be offered: KORVA_Canvas::canRedo(), and false from setPixmap().
    void canRedo(bool possible);
    /// Whether a file stands behind the drawing; true also after an open or a save that failed. Not emitted
    /// at construction nor by slotDelete().
    void canDelete(bool possible);
    /// A tool was chosen: true for text.
    void signalTextTool(bool chosen);
    /// Another tool is current, in its option, which optionChanged() tells next.
    void toolChanged(int tool);
    /// Another option is in force, or that of another tool: its row in the pop-up, or -1.
    void optionChanged(int option);
    /// The picture is shown at another zoom, by whatever caused it.
    void zoomChanged(int percent);
    /// Another drawing colour is in force.
    void colorChanged(const QColor& color);
    /// Something was chosen in the controls or by selectTool(), selectOption() or selectZoom(), even if it
    /// was in force before. After everything that it caused: for who writes down what is done.
    void chosen(KORVA_CHOICETYPE what, int which);
    /// The stylus was lifted from the canvas while the text tool is current: a host may show its keyboard.
    void TextToolClicked();

protected:
    /// Gives the main view what the editor has beyond 240 × 225 pixels and fits the picture again where
    /// "Fit to page" is chosen, unless a piece floats or a text is typed.
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void arrange();

    std::unique_ptr<KORVA_ToolSet> m_tools;
    std::unique_ptr<KORVA_ToolBar> m_toolBar;
    std::unique_ptr<KORVA_ToolChoice> m_toolChoice;
    std::unique_ptr<KORVA_ZoomChoice> m_zoomChoice;
    KORVA_MainView* m_mainView = nullptr;
    std::unique_ptr<KORVA_Manager> m_manager;
    QWidget* m_ownerWindow;
    QColor m_color{255, 0, 0};
    size_t m_saved = 0; ///< a hash of the drawing that counts as saved
    KORVA_COLORTYPE m_colorType;
    KORVA_COLORTYPE m_firstColorType;
    int m_cancellations = 0; ///< counted
    std::unique_ptr<KORVA_Documents> m_documents;
};
