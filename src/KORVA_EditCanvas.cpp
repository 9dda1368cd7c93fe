#include "KORVA_EditCanvas.h"

#include "KORVA_AreaSelect.h"
#include "KORVA_Canvas.h"
#include "KORVA_CanvasNews.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Documents.h"
#include "KORVA_EditorLayout.h"
#include "KORVA_Formats.h"
#include "KORVA_MainView.h"
#include "KORVA_Manager.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_PictureFile.h"
#include "KORVA_PictureSave.h"
#include "KORVA_Text.h"
#include "KORVA_ToolBar.h"
#include "KORVA_ToolChoice.h"
#include "KORVA_ToolSet.h"
#include "KORVA_TouchInput.h"
#include "KORVA_ZoomChoice.h"
#include "UTIL_Skin.h"

#include <QEvent>
#include <QStyle>

#include <cstdio>
#include <string_view>
#include <utility>

namespace {

constexpr struct
{
    int depth;
    KORVA_COLORTYPE colors;
} canvasTypes[] = {
    // The row's number is the KORVA_CANVASTYPE.
    {16, KORVA_COLOR_16BIT}, {1, KORVA_COLOR_1BIT}, {4, KORVA_COLOR_4BIT},
    {8, KORVA_COLOR_8BIT},   {4, KORVA_COLOR_4BIT},
};
constexpr int otherCanvasDepth = 16;

} // namespace

KORVA_EditCanvas::KORVA_EditCanvas(QWidget* parent) : KORVA_EditCanvas(KORVA_COLOR_16BIT, parent) {}

KORVA_EditCanvas::KORVA_EditCanvas(KORVA_COLORTYPE colorType, QWidget* parent, const char* name,
                                   Qt::WindowFlags flags, QWidget* ownerWindow)
    : KORVA_EditCanvas(QString(), colorType, parent, name, flags, ownerWindow)
{
}

KORVA_EditCanvas::KORVA_EditCanvas(const QString& fileName, KORVA_COLORTYPE colorType, QWidget* parent,
                                   const char* name, Qt::WindowFlags flags, QWidget* ownerWindow)
    : QWidget(parent, flags),
      m_ownerWindow(ownerWindow),
      m_colorType(colorType),
      m_firstColorType(colorType)
{
    setObjectName(name);
    setPalette(UTIL_Skin::palette());
    m_tools = std::make_unique<KORVA_ToolSet>();
    m_toolBar = std::make_unique<KORVA_ToolBar>(*this, *m_tools);
    m_toolBar->showColor(m_color);
    m_toolChoice = std::make_unique<KORVA_ToolChoice>(*this, *m_toolBar, *m_tools);
    m_zoomChoice = std::make_unique<KORVA_ZoomChoice>(*this, m_toolBar->zoomBox());
    m_mainView = new KORVA_MainView(this);
    m_mainView->setFocusPolicy(Qt::StrongFocus);
    m_mainView->setFocus();
    m_mainView->setGeometry(layout::mainView);
    m_manager = std::make_unique<KORVA_Manager>(canvas());
    clearModified();
    connect(canvas(), &KORVA_Canvas::zoomFellBack, this, [this] { m_zoomChoice->fallBack(); });
    connect(canvas(), &KORVA_Canvas::zoomChanged, this, [this](int percent) {
        m_toolChoice->updateRubberCursor();
        emit zoomChanged(percent);
    });
    connect(canvas()->m_touch.get(), &KORVA_TouchInput::zoomWanted, this,
            [this](double percent) { m_zoomChoice->stepTowards(percent); });
    connect(canvas()->m_touch.get(), &KORVA_TouchInput::eraserWanted, this, [this](bool isWanted) {
        isWanted ? m_toolChoice->lendEraser() : m_toolChoice->takeEraserBack();
    });
    connect(canvas(), &KORVA_Canvas::zoomStepWanted, this, &KORVA_EditCanvas::stepZoom);
    new KORVA_CanvasNews(*this);
    resize(layout::editor);
    arrange();

    m_documents = std::make_unique<KORVA_Documents>(*this);
    if (!fileName.isEmpty())
        m_documents->openAtConstruction(fileName);
}

KORVA_EditCanvas::~KORVA_EditCanvas() = default;

KORVA_Canvas* KORVA_EditCanvas::canvas() const
{
    return m_mainView->canvas();
}

void KORVA_EditCanvas::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange && m_mainView) {
        m_toolBar->arrange();
        arrange();
    }
}

void KORVA_EditCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
    // Another zoom would merge a floating piece, and a text being typed would lose its place.
    const KORVA_Tool* tool = canvas()->getCurrentTool();
    if ((canvas()->pasteLabel()->isHidden() || manners().steadyPiece) && !(tool && tool->takesText()))
        m_zoomChoice->fitAgain();
}

// --- Editing

void KORVA_EditCanvas::undo()
{
    if (mayEdit())
        canvas()->undo();
}

void KORVA_EditCanvas::redo()
{
    if (mayEdit())
        canvas()->redo();
}

void KORVA_EditCanvas::setUndoSteps(int steps, qint64 mostBytes)
{
    canvas()->setUndoSteps(steps, mostBytes);
}

int KORVA_EditCanvas::undoSteps() const
{
    return canvas()->undoSteps();
}

void KORVA_EditCanvas::cut()
{
    if (mayEdit())
        canvas()->cut();
}

void KORVA_EditCanvas::copy()
{
    if (mayEdit())
        canvas()->copy();
}

void KORVA_EditCanvas::paste()
{
    if (mayEdit() && features().pasting)
        canvas()->paste();
}

void KORVA_EditCanvas::paste(int x, int y)
{
    if (mayEdit() && features().pasting)
        canvas()->paste(x, y);
}

void KORVA_EditCanvas::deleteSelection()
{
    if (mayEdit())
        canvas()->deleteSelection();
}

void KORVA_EditCanvas::clearCanvas()
{
    if (mayEdit())
        canvas()->clearCanvas(Qt::white);
}

void KORVA_EditCanvas::selectAll()
{
    if (!m_tools->isOptionOffered(KORVA_TOOL_SELECT, KORVA_OPTION_AREA))
        return;
    canvas()->mergePastePixmap();
    m_toolChoice->selectAreaTool();
    if (auto* areaSelect = qobject_cast<KORVA_AreaSelect*>(m_manager->currentTool()))
        areaSelect->selectAll();
}

QPixmap* KORVA_EditCanvas::pixmap()
{
    commitText();
    return canvas()->pixmap();
}

void KORVA_EditCanvas::setPixmap(QPixmap* picture)
{
    emit canUndo(false);
    emit canRedo(false);
    if (picture) {
        QPixmap fitting = fitted(*picture);
        canvas()->setPixmap(&fitting);
    }
    m_zoomChoice->fitAgain();
}

int KORVA_EditCanvas::getDepth() const
{
    return canvas()->getDepth();
}

void KORVA_EditCanvas::setDepth(int depth)
{
    canvas()->setDepth(depth);
}

void KORVA_EditCanvas::resizeImage(int w, int h)
{
    if (mayEdit() && features().resizing)
        canvas()->resizeImage(w, h);
}

bool KORVA_EditCanvas::load(const QString& fileName, const char* format)
{
    return canvas()->load(fileName, format);
}

void KORVA_EditCanvas::setPaper(const QImage& paper)
{
    canvas()->setPaper(paper);
}

void KORVA_EditCanvas::insertStamp(QPixmap& stamp)
{
    if (mayEdit() && features().pasting)
        canvas()->insertStamp(stamp);
}

void KORVA_EditCanvas::setCanvasSize(int w, int h)
{
    if (!mayEdit() || !features().resizing)
        return;
    if (canvas()->pictureSize() != QSize(w, h))
        canvas()->resize(w, h);
    canvas()->resizeImage(w, h);
    m_mainView->updateLayout();
}

void KORVA_EditCanvas::setZoom(int rate)
{
    canvas()->setZoom(rate);
}

void KORVA_EditCanvas::chooseCanvas(KORVA_CANVASTYPE type, int w, int h)
{
    if (!mayEdit())
        return;
    int depth = otherCanvasDepth;
    if (type >= 0 && type < int(std::size(canvasTypes))) {
        depth = canvasTypes[type].depth;
        m_colorType = canvasTypes[type].colors;
    }
    m_documents->forgetOpened();
    canvas()->beginStep();
    clearCanvas();
    setDepth(depth);
    clearModified();
    setCanvasSize(w, h);
    canvas()->endStep();
    emit canvasChanged(m_zoomChoice->shown());
    canvas()->setUndoFlag(false);
}

KORVA_Text* KORVA_EditCanvas::currentText() const
{
    return qobject_cast<KORVA_Text*>(m_manager->currentTool());
}

void KORVA_EditCanvas::commitText()
{
    if (KORVA_Text* text = currentText())
        text->paintProportionBuffer();
}

// --- Documents

QString KORVA_EditCanvas::fileName() const
{
    return m_documents->fileName();
}

void KORVA_EditCanvas::saveChangePic(int action)
{
    m_documents->saveChanges(action);
}

bool KORVA_EditCanvas::openNewFilePrivate(int flag, const QString& openDocFile)
{
    const std::string_view path = __FILE__;
    const char* source = &__FILE__[path.rfind('/') + 1];
    const QByteArray name = openDocFile.toLatin1();
    std::fprintf(stderr,
                 "{%d} %s:%d\tKORVA_EditCanvas::openNewFilePrivate calling, flag=%d, openDocFile=%s\n\n", 1,
                 source, __LINE__, flag, name.constData());
    if (openDocFile.isNull())
        return m_documents->pickAndOpen(flag);
    std::fprintf(
        stderr,
        "{%d} %s:%d\tKORVA_EditCanvas::openNewFilePrivate, openResult is set to true, openDocFile=%s\n\n",
        1, source, __LINE__, name.constData());
    return m_documents->open(flag, openDocFile);
}

void KORVA_EditCanvas::getFileFormat(const QString& name, QString& format) const
{
    format = QString::fromLatin1(KORVA_Formats::readFormat(name));
}

bool KORVA_EditCanvas::isPicSizeNotOver(const QString& name, const char* format)
{
    return m_documents->isPicSizeNotOver(name, format);
}

bool KORVA_EditCanvas::getImage(QImage* image, const QString& name)
{
    KORVA_PictureFile file(name, KORVA_PictureFile::Full);
    file.setLimits(KORVA_WorkingLimits::ofPlatform());
    const QImage read = file.take();
    if (read.isNull())
        return false;
    *image = read;
    return true;
}

bool KORVA_EditCanvas::convertScaleImage(QImage* image, QPixmap* pixmap)
{
    const KORVA_WorkingLimits limits = KORVA_WorkingLimits::ofPlatform();
    *image = limits.fitted(*image);
    return limits.convert(*image, pixmap);
}

void KORVA_EditCanvas::setBuffer(const QByteArray& encoded)
{
    m_documents->setBuffer(encoded);
}

bool KORVA_EditCanvas::setEncoded(const QByteArray& encoded)
{
    return m_documents->setEncoded(encoded);
}

bool KORVA_EditCanvas::save(const QString& name, const char* format)
{
    if (!features().saving)
        return false;
    const bool isSaved = picturesave::replace(
        name, [&] { return picturesave::encoded(canvas()->mergedPicture()->toImage(), format); });
    if (isSaved)
        m_documents->noteSaved(name);
    return isSaved;
}

void KORVA_EditCanvas::saveFilePrivate()
{
    m_documents->saveAndTell();
}

void KORVA_EditCanvas::savePic(int action)
{
    m_documents->nameAndSave(action);
}

void KORVA_EditCanvas::setFileName(const QString& name)
{
    m_documents->setFileName(name);
}

void KORVA_EditCanvas::slotOpen()
{
    m_documents->startOpen();
}

void KORVA_EditCanvas::slotSave()
{
    commitText();
    saveChangePic(2);
}

void KORVA_EditCanvas::slotDelete()
{
    m_documents->askAndDelete();
}

void KORVA_EditCanvas::slotInsertStamp() {}

void KORVA_EditCanvas::slotSaveDlgCloseBeforeOpen(const QString& name)
{
    m_documents->saveUnder(name);
}
