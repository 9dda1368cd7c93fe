#pragma once

#include "KORVA_Export.h"
#include "KORVA_Features.h"
#include "KORVA_Manners.h"
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

/// The one widget that a host embeds to have a picture edited. It has tool, option, zoom and colour
/// controls above the canvas, and 240 × 225 pixels. In a larger editor the canvas's view takes the extra
/// room. The host wires its own commands to the operations and slots, and enables them from the signals.
/// GUI thread only.
///
/// Functions that ask or tell the user something run UTIL_Platform's boxes and dialogs, and return after
/// them. The editor may be deleted while one is open: the call then returns at once, as if refused. A slot
/// of any signal may call everything here, or delete the editor later.
///
/// An `action` or a `flag` is a KORVA_ACTIONTYPE.
///
/// The properties are for forms, which set them in this order. What is not possible is not taken in.
class KORVA_EXPORT KORVA_EditCanvas : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Offers offers READ offers WRITE setOffers)
    Q_PROPERTY(QStringList mannerWords READ mannerWords WRITE setMannerWords)
    Q_PROPERTY(int undoSteps READ undoSteps WRITE setUndoSteps)
    Q_PROPERTY(Tool tool READ formTool WRITE setTool NOTIFY toolChanged)
    Q_PROPERTY(int option READ option WRITE setOption NOTIFY optionChanged)
    Q_PROPERTY(ZoomRow zoomRow READ formZoom WRITE setZoomRow)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor outlineColor READ outlineColor WRITE setOutlineColor)
    Q_PROPERTY(bool bold READ isBold WRITE setBold)

public:
    /// The tools that every editor has, as a form names them.
    enum Tool : int {
        Pencil = KORVA_TOOL_PENCIL,
        Select = KORVA_TOOL_SELECT,
        Line = KORVA_TOOL_LINE,
        Text = KORVA_TOOL_TEXT,
        Rectangle = KORVA_TOOL_RECTANGLE,
        Ellipse = KORVA_TOOL_ELLIPSE,
        Eraser = KORVA_TOOL_ERASER,
        Hand = KORVA_TOOL_HAND,
    };
    Q_ENUM(Tool)
    /// The rows of the zoom box, as a form names them.
    enum ZoomRow : int {
        Zoom50 = KORVA_ZOOM_50,
        Zoom100 = KORVA_ZOOM_100,
        Zoom150 = KORVA_ZOOM_150,
        Zoom200 = KORVA_ZOOM_200,
        FitToPage = KORVA_ZOOM_FIT,
    };
    Q_ENUM(ZoomRow)
    /// The switches of KORVA_Features, as a form names them.
    enum Offer : int {
        Controls = 1 << 0,
        Colors = 1 << 1,
        Dialogs = 1 << 2,
        Opening = 1 << 3,
        Saving = 1 << 4,
        Pasting = 1 << 5,
        Resizing = 1 << 6,
        Editing = 1 << 7,
    };
    Q_DECLARE_FLAGS(Offers, Offer)
    Q_FLAG(Offers)

    /// What a form that was compiled makes: an editor for 16 bits.
    explicit KORVA_EditCanvas(QWidget* parent = nullptr);
    /// Begins with a white canvas of 200 × 170 pixels at 100 %, not modified, and the pencil in red.
    /// `ownerWindow` is not used.
    explicit KORVA_EditCanvas(KORVA_COLORTYPE colorType, QWidget* parent = nullptr,
                              const char* name = nullptr, Qt::WindowFlags flags = {},
                              QWidget* ownerWindow = nullptr);
    /// Opens a picture at once, without canDelete(). A picture that cannot be opened is reported before the
    /// constructor returns, and leaves the white canvas, unnamed.
    KORVA_EditCanvas(const QString& fileName, KORVA_COLORTYPE colorType, QWidget* parent = nullptr,
                     const char* name = nullptr, Qt::WindowFlags flags = {},
                     QWidget* ownerWindow = nullptr);
    ~KORVA_EditCanvas() override;

    // --- The parts ---
    /// The frame around the canvas. The editor owns it.
    [[nodiscard]] KORVA_MainView* mainView() const { return m_mainView; }
    /// The canvas, the same one for the editor's life. The main view owns it.
    [[nodiscard]] KORVA_Canvas* canvas() const;
    /// The tools. The editor owns it.
    [[nodiscard]] KORVA_Manager* manager() const { return m_manager.get(); }
    /// The text tool while it is current; null otherwise.
    [[nodiscard]] KORVA_Text* currentText() const;

    // --- Facts about the drawing ---
    /// Whether there is anything to lose: isModified(), or a floating piece or open text that makes the
    /// drawing differ from the one that clearModified() found.
    [[nodiscard]] bool hasChanges() const;
    /// Whether markModified() came after the last clearModified(). A selection that is only moved does not
    /// count until it is merged; hasChanges() counts it.
    [[nodiscard]] bool isModified() const;
    /// The drawing as it is counts as saved. Undo is still possible.
    void clearModified();
    /// The drawing as a save would write it now, with a floating piece and open text in place. Merges,
    /// commits, emits and changes nothing.
    [[nodiscard]] QImage snapshot() const;
    /// The snapshot as the bytes of a picture file. `format` is "PNG", "JPEG" or "BMP"; null follows
    /// fileName()'s extension. With `mostBytes` above 0 the result is no longer than that: a JPEG gives up
    /// quality first, then size. Empty if this is impossible or does not fit.
    [[nodiscard]] QByteArray encoded(const char* format, qsizetype mostBytes = 0) const;
    /// The same for a snapshot() taken before, in any thread. Null is no format here.
    [[nodiscard]] static QByteArray encoded(const QImage& snapshot, const char* format,
                                            qsizetype mostBytes = 0);
    /// The size of the picture last opened, in pixels, upright, before it was fitted; empty for a new
    /// drawing.
    [[nodiscard]] QSize sourceSize() const;
    /// Whether opening took something away that a save under fileName() would lose for good: pixels,
    /// colours, transparency, further frames. False after a save() under that name, which lost it, and
    /// while the drawing has another name.
    [[nodiscard]] bool isReduced() const;

    // --- Choosing: what a person does in the controls, with the same effects ---
    /// Commits typed text, merges a floating piece and makes a tool current, in the option that was last
    /// chosen for it. `tool` is a KORVA_TOOLTYPE or from addTool(). Does nothing if there is no such tool.
    void selectTool(int tool);
    /// Chooses an option of the current tool, by its row in the pop-up. Does nothing if there is no such
    /// row.
    void selectOption(int option);
    /// Chooses a row of the zoom box, a KORVA_ZOOMTYPE. Does nothing if there is no such row.
    void selectZoom(int index);
    /// Chooses the next larger rate of the zoom box for 1, the next smaller one for -1. Does nothing if
    /// there is none.
    void stepZoom(int direction);
    /// Takes a drawing colour as if it had been picked. Emits colorChanged() if it is another one. An
    /// invalid colour is none.
    void setColor(const QColor& color);
    /// selectTool() for a form: a drawing without changes has none afterwards, either.
    void setTool(Tool tool);
    /// selectOption() for a form, in the same way.
    void setOption(int option);
    /// selectZoom() for a form.
    void setZoomRow(ZoomRow row);
    /// The current tool. The hand counts as a tool.
    [[nodiscard]] int tool() const;
    /// The row of the current tool's option; -1 for a tool without options.
    [[nodiscard]] int option() const;
    /// The row that the zoom box shows.
    [[nodiscard]] int zoomIndex() const;
    /// The drawing colour.
    [[nodiscard]] QColor color() const { return m_color; }
    /// Sets the colour of the outline that KORVA_Manners::outlinedShapes draws around filled shapes.
    /// Invalid, as at first, is the drawing colour. Nothing is painted again.
    void setOutlineColor(const QColor& color);
    /// See setOutlineColor().
    [[nodiscard]] QColor outlineColor() const { return m_outlineColor; }
    /// Makes the letters of the open text and of every later one bold, or plain again.
    void setBold(bool bold);
    /// See setBold(). Plain at first.
    [[nodiscard]] bool isBold() const;
    /// What the colour button's picker offers: from the constructor, then from chooseCanvas().
    [[nodiscard]] KORVA_COLORTYPE colorType() const { return m_colorType; }
    /// A colour as a person reads or hears it, in the language in force: "#ff0000, red".
    [[nodiscard]] static QString colorName(const QColor& color);
    /// The name of a tool for the user, in the language in force; empty if there is no such tool.
    [[nodiscard]] static QString toolName(int tool);
    /// The name of a tool in recordings, such as "pencil"; empty if there is no such tool.
    [[nodiscard]] static QString toolWord(int tool);
    /// Takes a tool of the host's own, which the editor owns until its end. It stands behind the others in
    /// the pop-up, with these options. Returns its identifier, from 8 on; -1 for null. `name` is for the
    /// user; recordings call the tool by its KORVA_Tool::name().
    int addTool(std::unique_ptr<KORVA_Tool> tool, const QIcon& icon, const QString& name,
                const QList<KORVA_ToolOption>& options = {});
    /// The name of a tool of this editor for the user, by its identifier; empty if there is no such tool.
    [[nodiscard]] QString nameOfTool(int tool) const;

    // --- What is offered, and how it behaves ---
    /// Takes away from what the editor offers, or puts the host's own in its place. A tool, an option or a
    /// zoom that is in force and no longer offered gives way to the first one that is. cancelDialogs()
    /// comes first.
    void setFeatures(const KORVA_Features& features);
    /// See setFeatures(). Everything at first.
    [[nodiscard]] const KORVA_Features& features() const;
    /// Chooses classic or modern ways, one by one. Classic at first.
    void setManners(const KORVA_Manners& manners);
    /// See setManners().
    [[nodiscard]] const KORVA_Manners& manners() const;
    /// setFeatures() for a form: its switches. The other features stay. Does nothing if all are as they
    /// were.
    void setOffers(Offers offers);
    /// The switches of features() that are on.
    [[nodiscard]] Offers offers() const;
    /// setManners() for a form, with KORVA_Manners::ofWords(). Does nothing if a word is unknown.
    void setMannerWords(const QStringList& words);
    /// The switches of manners() that are on: KORVA_Manners::words().
    [[nodiscard]] QStringList mannerWords() const;

    // --- Editing ---
    /// See KORVA_Canvas::cut().
    void cut();
    /// See KORVA_Canvas::copy().
    void copy();
    /// As KORVA_Canvas::paste(): the clipboard's picture as a floating piece.
    void paste();
    /// Copies the clipboard's picture into the picture at (x, y), in picture coordinates.
    void paste(int x, int y);
    /// See KORVA_Canvas::insertStamp().
    void insertStamp(QPixmap& stamp);
    /// See KORVA_Canvas::deleteSelection().
    void deleteSelection();
    /// Commits typed text, merges a floating piece, makes the selection tool current and selects the whole
    /// canvas.
    void selectAll();
    /// As KORVA_Canvas::clearCanvas(), always to white. The file name stays.
    void clearCanvas();
    /// Commits typed text that is still pending. While the text tool is current this is a modification,
    /// even if the text is empty. Does nothing while another tool is current.
    void commitText();

    // --- History ---
    /// See KORVA_Canvas::undo().
    void undo();
    /// See KORVA_Canvas::redo().
    void redo();
    /// Sets how many steps undo() walks back, and in how many bytes they are kept: see
    /// KORVA_Canvas::setUndoSteps(). Initially 1, which exchanges two pictures.
    void setUndoSteps(int steps, qint64 mostBytes = 4 << 20);
    /// See setUndoSteps().
    [[nodiscard]] int undoSteps() const;

    // --- The picture and its canvas ---
    /// As KORVA_Canvas::pixmap(), with typed text in it: while the text tool is current this is a
    /// modification.
    QPixmap* pixmap();
    /// Emits canUndo(false) and canRedo(false), then takes in a copy of the picture as
    /// KORVA_Canvas::setPixmap() does. File name and modified flag stay. If "Fit to page" is chosen the
    /// picture is fitted, too: if the rate changes, sizeChanged() is emitted once more. If the present zoom
    /// would make the new picture too large (see KORVA_Canvas::setZoom()), 100 % is chosen instead.
    void setPixmap(QPixmap* picture);
    /// See KORVA_Canvas::setPaper(): what eraser, clearing and holes bring back.
    void setPaper(const QImage& paper);
    /// Makes a new white canvas of `w` × `h` pixels, at the zoom chosen in the box, with nothing to undo.
    /// An unknown kind has 16 bits and keeps the colour type. Emits canvasChanged() and, last,
    /// canRedo(false) and canUndo(false). If the size changes or the text tool is current the canvas counts
    /// as modified. The file name stays: clearModified() and setFileName() make it a new drawing.
    void chooseCanvas(KORVA_CANVASTYPE type, int w, int h);
    /// Scales the picture to `w` × `h` pixels, as KORVA_Canvas::resizeImage() does, and centres the canvas.
    /// At 100 % sizeChanged() is not emitted.
    void setCanvasSize(int w, int h);
    /// As KORVA_Canvas::resizeImage(), in pixels.
    void resizeImage(int w, int h);
    /// As KORVA_Canvas::setZoom(), in percent. The zoom box keeps what it shows, or shows 100 % if the zoom
    /// fell back to that. Typed text is not committed.
    void setZoom(int rate);
    /// See KORVA_Canvas::getDepth().
    [[nodiscard]] int getDepth() const;
    /// As KORVA_Canvas::setDepth(). Aborts for a depth that does not exist.
    void setDepth(int depth);

    // --- Documents ---
    /// The picture file being edited; empty for a drawing that was never saved.
    [[nodiscard]] QString fileName() const;
    /// Sets the name of the drawing's file. An empty name, or that of the host's hand-over file
    /// "/tmp/korva.tmp", leaves the drawing unnamed and emits canDelete(false). Nothing is read or written.
    void setFileName(const QString& name);
    /// Merges a floating piece. Before 0, 1 and 4 it asks whether changes are to be saved. It saves them
    /// with savePic() and goes on: 0 and 3 let the user pick a picture. With 0, "No" opens a picture
    /// without saving; with 1 and 4 it ends the command. 2 saves without asking; 3 saves nothing. Without
    /// changes, 0 and 3 let the user pick at once; 2 saves only a picture of the host's hand-over file
    /// "/tmp/korva.tmp" that has no name yet.
    void saveChangePic(int action);
    /// Opens (0) or stamps (3) a picture, and returns whether it is there. A null name lets the user pick
    /// one. With any other number, only the file's name is taken. A picture with more pixels than 352 × 288
    /// is scaled to fit within; transparent parts come out white.
    ///
    /// After opening, the drawing is unmodified, has the file's name and offers no undo; canDelete(true)
    /// comes last. If it fails, the user is told and the picture stays. With 0 the name changes, though: if
    /// the file failed isPicSizeNotOver() the drawing gets the new name; if it failed later the name is
    /// empty, and canDelete(true) is emitted.
    ///
    /// Each call writes a line to standard error, and a second one if a name is given.
    bool openNewFilePrivate(int flag, const QString& openDocFile);
    /// Saves under fileName(), in the format of its extension, tells the user how it went and emits
    /// canDelete(true). After success the drawing is unmodified; a failure takes its name away. A GIF
    /// cannot be written: it fails and keeps the name. Without a name nothing is saved, and
    /// canDelete(false) is emitted.
    void saveFilePrivate();
    /// Lets the user name the drawing if it has no name, saves it as saveFilePrivate() does and, for 0,
    /// lets the user pick a picture. 3 saves nothing and lets the user pick a stamp.
    void savePic(int action);
    /// Writes the picture into the file `name`, and returns whether this worked. A floating piece is
    /// merged, typed text is not. `format` is "PNG", "JPEG" or "BMP", never null. Shows nothing; fileName()
    /// stays, and the modified flag is not cleared.
    ///
    /// The picture is encoded into "appwrite/korva.temp" under the folder in the environment variable
    /// KIV_LOCAL_DOWNLOAD_PATH, where "appwrite" must exist, and moved from there: until then a file of
    /// that name stays as it was. Its mode is kept, and a link stays one. Fails for a name with a single
    /// quote, for a folder, and if writing is not permitted.
    bool save(const QString& name, const char* format);
    /// Takes in an encoded picture from memory as setPixmap() does, scaled as an opened one. If it cannot
    /// be decoded the user is told, and nothing changes.
    void setBuffer(const QByteArray& encoded);
    /// As setBuffer(), but shows no box. Returns false, and changes nothing, if it cannot be decoded.
    bool setEncoded(const QByteArray& encoded);
    /// As KORVA_Canvas::load(), which takes nothing in while a tool is active. In an editor one always is,
    /// so this changes nothing and returns false. openNewFilePrivate() opens a file.
    bool load(const QString& fileName, const char* format);
    /// The format to read a file by, from its last extension in any case: "BMP", "JPEG" (jpg, jpe, jpeg),
    /// "GIF", "WBMP", "PNG" for any other.
    void getFileFormat(const QString& name, QString& format) const;
    /// Whether the picture can be read as `format` and has no more than UTIL_Platform::pixelLimit() pixels.
    /// If not, the user is told. With null the file's content decides the format.
    bool isPicSizeNotOver(const QString& name, const char* format);
    /// Reads a picture at its own size. Returns false, and leaves the image alone, if it cannot be read.
    /// Shows nothing.
    bool getImage(QImage* image, const QString& name);
    /// Converts an image in place to what the canvas works on, and gives it as a pixmap. If it has more
    /// pixels than 352 × 288 it is scaled to fit within; transparent parts become white. It gets 16 bits;
    /// an 8-bit image that keeps its size keeps its 8 bits. False if it is null.
    bool convertScaleImage(QImage* image, QPixmap* pixmap);
    /// The patterns that pick dialogs offer: "*.png" and the like, in the order of the dialogs.
    [[nodiscard]] static QStringList openPatterns();
    /// The patterns that save dialogs offer: only formats that can be written.
    [[nodiscard]] static QStringList savePatterns();

    // --- The controls ---
    /// Shows a colour on the colour button. The drawing colour stays.
    void fillColorButton(const QColor& color);
    /// Fills the option pop-up with the options of a tool, by its KORVA_Tool::id(); empty for tools without
    /// options. Chooses none of them.
    void loadToolOptions(int tool);
    /// Sets the eraser's cursor: a white square of `width` picture pixels at `rate` percent, in a black
    /// frame, with the hot spot at its top left. The editor sets it again with every change of eraser and
    /// zoom.
    void setRubberCursor(int width, int rate);

    // --- A kiosk between two people ---
    /// Returns to what the constructor made, without a question: an unnamed white drawing of 200 × 170
    /// pixels at 100 %, the pencil in red, all options as at first. Nothing floats, is kept for pasting or
    /// can be undone. It may be called at any moment, also while a dialog or pop-up of the editor is open:
    /// cancelDialogs() comes first. Paper, steps to undo, the host's own tools and the clipboard stay.
    void reset();
    /// Closes all boxes, dialogs and pop-ups whose parent is the editor, whoever opened them. The
    /// operations that wait for them do no more, and return as if refused.
    void cancelDialogs();

public slots:
    /// Chooses an entry of the tool button's menu, by its QAction::data(); an unknown one means the line.
    /// Commits typed text, merges a floating piece, brings back the option that was last chosen, and emits
    /// signalTextTool().
    void slotSelChangeTool(int menuId);
    /// Chooses an entry of the option button's menu, by its QAction::data(); an unknown one means the last
    /// option of the tool.
    void slotSelChangeToolOptions(int menuId);
    /// Commits typed text and zooms. 0 to 3 are 50, 100, 150 and 200 %; 4 fits the picture into 222 × 186
    /// pixels and what the editor has beyond 240 × 225. Other numbers mean 100 %; so do 2 and 3 if the
    /// picture is not below 640 × 480.
    void slotSelZoomRate(int index);
    /// Lets the user pick the drawing colour.
    void slotColor();
    /// Calls saveChangePic(0). Does nothing while a picture is being picked.
    void slotOpen();
    /// Commits typed text, then calls saveChangePic(2).
    void slotSave();
    /// Asks, clears the canvas and the modified flag, removes the file and forgets its name. A file that
    /// cannot be removed is not reported, and canDelete() is not emitted.
    void slotDelete();
    /// Does nothing. saveChangePic(3) inserts a stamp.
    void slotInsertStamp();
    /// The save dialog was accepted with this name: saves as saveFilePrivate() does, and goes on with the
    /// action last given to saveChangePic().
    void slotSaveDlgCloseBeforeOpen(const QString& name);

signals:
    /// See KORVA_Canvas::sizeChanged().
    void sizeChanged();
    /// From chooseCanvas(), with the index in the zoom box.
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
    /// Whether the drawing has a file. True also after an open or a save that failed. Not emitted at
    /// construction nor by slotDelete().
    void canDelete(bool possible);
    /// A tool was chosen: true for text.
    void signalTextTool(bool chosen);
    /// Another tool is current, with its option in force; optionChanged() follows.
    void toolChanged(int tool);
    /// Another option is in force, or that of another tool: its row in the pop-up, or -1.
    void optionChanged(int option);
    /// The picture is shown at another zoom, whatever caused it.
    void zoomChanged(int percent);
    /// Another drawing colour is in force.
    void colorChanged(const QColor& color);
    /// Something was chosen in the controls or by selectTool(), selectOption() or selectZoom(), even if it
    /// was in force before. Comes after everything that it caused, for a host that records what is done.
    void chosen(KORVA_CHOICETYPE what, int which);
    /// The stylus was lifted from the canvas while the text tool is current. A host may show its keyboard.
    void TextToolClicked();

protected:
    /// Gives the main view what the editor has beyond 240 × 225 pixels. If "Fit to page" is chosen, fits
    /// the picture again, unless a piece floats or a text is typed.
    void resizeEvent(QResizeEvent* event) override;
    /// Mirrors the controls when the layout direction changes.
    void changeEvent(QEvent* event) override;

private:
    friend class KORVA_Documents; // for fitted()

    void arrange();
    [[nodiscard]] QPixmap fitted(const QPixmap& picture) const;
    [[nodiscard]] bool mayEdit() const { return features().editing; }
    [[nodiscard]] Tool formTool() const { return Tool(tool()); }
    [[nodiscard]] ZoomRow formZoom() const { return ZoomRow(zoomIndex()); }

    std::unique_ptr<KORVA_ToolSet> m_tools;
    std::unique_ptr<KORVA_ToolBar> m_toolBar;
    std::unique_ptr<KORVA_ToolChoice> m_toolChoice;
    std::unique_ptr<KORVA_ZoomChoice> m_zoomChoice;
    KORVA_MainView* m_mainView = nullptr;
    std::unique_ptr<KORVA_Manager> m_manager;
    QWidget* m_ownerWindow;
    QColor m_color{255, 0, 0};
    QColor m_outlineColor;
    size_t m_saved = 0; ///< a hash of the drawing that counts as saved
    KORVA_COLORTYPE m_colorType;
    KORVA_COLORTYPE m_firstColorType;
    int m_cancellations = 0; ///< how many there were
    std::unique_ptr<KORVA_Documents> m_documents;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(KORVA_EditCanvas::Offers)
