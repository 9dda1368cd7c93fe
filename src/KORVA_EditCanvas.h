#pragma once

#include "KORVA_Export.h"
#include "KORVA_Types.h"

#include <QColor>
#include <QWidget>

#include <memory>

class KORVA_Canvas;
class KORVA_Documents;
class KORVA_MainView;
class KORVA_Manager;
class KORVA_Text;
class QComboBox;
class QMenu;
class QPushButton;

/// The one widget that a host embeds to have a picture edited: tool, option, zoom and colour controls above
/// the canvas, 240 × 225 pixels. The host wires its own commands to the operations and slots and enables
/// them from the signals. GUI thread only.
class KORVA_EXPORT KORVA_EditCanvas : public QWidget
{
    Q_OBJECT

public:
    /// An empty canvas. The owner window is kept for the host; the editor does not use it.
    explicit KORVA_EditCanvas(KORVA_COLORTYPE colorType, QWidget* parent = nullptr,
                              const char* name = nullptr, Qt::WindowFlags flags = {},
                              QWidget* ownerWindow = nullptr);
    /// Opens a picture at once; one that cannot be opened is reported and leaves an unnamed, empty canvas.
    KORVA_EditCanvas(const QString& fileName, KORVA_COLORTYPE colorType, QWidget* parent = nullptr,
                     const char* name = nullptr, Qt::WindowFlags flags = {},
                     QWidget* ownerWindow = nullptr);
    ~KORVA_EditCanvas() override;

    [[nodiscard]] KORVA_MainView* mainView() const { return m_mainView; }
    [[nodiscard]] KORVA_Canvas* canvas() const;
    [[nodiscard]] KORVA_Manager* manager() const { return m_manager.get(); }
    [[nodiscard]] KORVA_COLORTYPE colorType() const { return m_colorType; }
    /// The drawing colour.
    [[nodiscard]] QColor color() const { return m_color; }
    /// Takes a drawing colour as if it had been picked.
    void setColor(const QColor& color);
    /// The picture file being edited; empty for a drawing that was never saved.
    [[nodiscard]] QString fileName() const;

    // --- Editing: handed on to the canvas or the manager ---
    void undo();
    void redo();
    void cut();
    void copy();
    void paste();
    void paste(int x, int y);
    /// Always to white.
    void clearCanvas();
    /// Merges a floating piece, makes the selection tool current and selects the whole canvas.
    void selectAll();
    /// The picture, with typed text and a floating piece in it.
    QPixmap* pixmap();
    /// Takes a picture over; nothing can be undone or redone then.
    void setPixmap(QPixmap* picture);
    [[nodiscard]] int getDepth() const;
    void setDepth(int depth);
    void resizeImage(int w, int h);
    bool load(const QString& fileName, const char* format);
    [[nodiscard]] bool isModified() const;
    void clearModified();
    void insertStamp(QPixmap& stamp);
    /// Scales the picture to a new size.
    void setCanvasSize(int w, int h);
    /// Percent.
    void setZoom(int rate);
    /// A new white canvas of a kind and size, at the zoom now chosen. It counts as modified.
    void chooseCanvas(KORVA_CANVASTYPE type, int w, int h);

    /// Typed text that is still pending goes into the picture; nothing when another tool is current.
    void commitText();
    /// The text tool while it is current; null otherwise.
    [[nodiscard]] KORVA_Text* currentText() const;

    // --- The controls ---
    /// Fills the colour button.
    void fillColorButton(const QColor& color);
    /// Fills the option pop-up with a tool's options; empty for tools without.
    void loadToolOptions(int tool);
    /// The eraser's cursor: a white square in a black frame, its top left the hot spot.
    void setRubberCursor(int width, int rate);

    // --- Documents. `action`: 0 open, 1 choose canvas, 2 save, 3 insert stamp, 4 create ---
    /// Asks whether changes are to be saved before the action, saves them and goes on.
    void saveChangePic(int action);
    /// Opens (0) or stamps (3) a picture; a null name lets the user pick one. True when it is there.
    bool openNewFilePrivate(int flag, const QString& openDocFile);
    /// The format name to read a file by, from its extension.
    void getFileFormat(const QString& name, QString& format) const;
    /// Whether the picture can be read; tells the user when not.
    bool isPicSizeNotOver(const QString& name, const char* format);
    bool getImage(QImage* image, const QString& name);
    /// Brings an image to the working size and depth.
    bool convertScaleImage(QImage* image, QPixmap* pixmap);
    /// Takes an encoded picture in memory over as the drawing.
    void setBuffer(const QByteArray& encoded);
    /// Encodes and moves into place; shows nothing.
    bool save(const QString& name, const char* format);
    /// Saves under the drawing's name and tells how it went.
    void saveFilePrivate();
    /// Names the drawing if it has no name, saves it and goes on with the action.
    void savePic(int action);
    /// An empty name, or that of the host's hand-over file, leaves the drawing unnamed.
    void setFileName(const QString& name);

public slots:
    /// The pop-ups' and the zoom box's handlers. An unknown tool identifier means the line, an unknown
    /// option the last one of the tool, an unknown zoom index 100 %.
    void slotSelChangeTool(int menuId);
    void slotSelChangeToolOptions(int menuId);
    void slotSelZoomRate(int index);
    void slotColor();
    void slotOpen();
    void slotSave();
    /// Asks, wipes the drawing and removes the file behind it.
    void slotDelete();
    void slotInsertStamp();
    /// The save dialog was accepted with this name.
    void slotSaveDlgCloseBeforeOpen(const QString& name);

signals:
    /// The canvas's own signals of the same names.
    void sizeChanged();
    /// By chooseCanvas(), with the index in the zoom box.
    void canvasChanged(int zoomIndex);
    void pixmapChanged(QPixmap* picture);
    void modified();
    void selection(bool exists);
    void canUndo(bool possible);
    void canRedo(bool possible);
    /// Whether a file stands behind the drawing; true also after an open or a save that failed.
    void canDelete(bool possible);
    /// A tool was chosen: true for text.
    void signalTextTool(bool chosen);
    /// The text tool was tapped.
    void TextToolClicked();

private:
    struct Remembered
    {
        int selectionMode = 0; ///< 0 rectangle, 1 hand
        int size = 0;          ///< 0 small, 1 medium, 2 large
        int fill = 0;          ///< 0 outline, 1 filled
    };

    void createControls();
    void connectControls();
    void selectTool(int tool);
    [[nodiscard]] int& remembered(int tool);
    [[nodiscard]] int zoomRate(int index);
    void updateRubberCursor();

    QComboBox* m_zoomBox;
    QPushButton* m_toolButton;
    QPushButton* m_optionButton;
    QMenu* m_toolMenu;
    QMenu* m_optionMenu;
    QPushButton* m_colorButton;
    KORVA_MainView* m_mainView;
    std::unique_ptr<KORVA_Manager> m_manager;
    QWidget* m_ownerWindow;
    int m_tool = 0; ///< the identifier in the manager; 7 while select is in hand mode
    QColor m_color{255, 0, 0};
    KORVA_COLORTYPE m_colorType;
    Remembered m_remembered;
    std::unique_ptr<KORVA_Documents> m_documents;
};
