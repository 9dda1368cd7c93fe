#include "KORVA_Canvas.h"

#include "KORVA_Accessible.h"
#include "KORVA_Assert.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_KeyboardPen.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Picture.h"
#include "KORVA_PictureSave.h"
#include "KORVA_Repainter.h"
#include "KORVA_Text.h"
#include "KORVA_TouchInput.h"
#include "UTIL_ImageReader.h"
#include "UTIL_Platform.h"

int KORVA_Canvas::inst = 0;

KORVA_Canvas::KORVA_Canvas(KORVA_EditCanvas* editor, int width, int height, QWidget* parent,
                           const char* name)
    : KORVA_Canvas(editor, classic::filled(QSize(width, height), Qt::white), false, parent, name)
{
}

KORVA_Canvas::KORVA_Canvas(KORVA_EditCanvas* editor, const QString& fileName, QWidget* parent,
                           const char* name)
    : KORVA_Canvas(editor, UTIL_ImageReader::pixmap(fileName), true, parent, name)
{
}

KORVA_Canvas::KORVA_Canvas(KORVA_EditCanvas* editor, const QPixmap& picture, bool takeItsSize,
                           QWidget* parent, const char* name)
    : QWidget(parent),
      m_picture(std::make_unique<KORVA_Picture>(picture)),
      m_repainter(std::make_unique<KORVA_Repainter>(this))
{
    accessible::installEditor();
    setObjectName(name);
    UTIL_Platform::instance()->setMouseMode(this, 1);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, Qt::white);
    setPalette(colors);
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (takeItsSize)
        resize(pictureSize());

    m_pasteLabel = new KORVA_PasteLabel(this);
    connect(m_pasteLabel, &KORVA_PasteLabel::signalCut, this, &KORVA_Canvas::slotCut);
    connect(m_pasteLabel, &KORVA_PasteLabel::signalCopy, this, &KORVA_Canvas::slotCopy);
    connect(m_pasteLabel, &KORVA_PasteLabel::signalPaste, this, &KORVA_Canvas::slotPaste);
    connect(m_pasteLabel, &KORVA_PasteLabel::signalDelete, this, &KORVA_Canvas::deleteSelection);
    m_pasteLabel->setGeometry(10, 10, 100, 100);
    m_pasteLabel->hide();

    setZoom(100);
    createMenu();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    emit sizeChanged();
    ++inst;
    saveOldPix();
    // Before anything is connected: a new canvas is modified, but has nothing to undo.
    clearCanvas(Qt::white);
    connectSignals(editor);
    m_touch = std::make_unique<KORVA_TouchInput>(*this, editor);
}

KORVA_Canvas::~KORVA_Canvas() = default;

void KORVA_Canvas::connectSignals(KORVA_EditCanvas* editor)
{
    if (editor) {
        connect(this, &KORVA_Canvas::sizeChanged, editor, &KORVA_EditCanvas::sizeChanged);
        connect(this, &KORVA_Canvas::pixmapChanged, editor, &KORVA_EditCanvas::pixmapChanged);
        connect(this, &KORVA_Canvas::modified, editor, &KORVA_EditCanvas::modified);
        connect(this, qOverload<bool>(&KORVA_Canvas::selection), editor, &KORVA_EditCanvas::selection);
        connect(this, &KORVA_Canvas::strokeTakenBack, editor, &KORVA_EditCanvas::strokeTakenBack);
        connect(this, &KORVA_Canvas::canUndo, editor, &KORVA_EditCanvas::canUndo);
        connect(this, &KORVA_Canvas::canRedo, editor, &KORVA_EditCanvas::canRedo);
    }
    connect(this, &KORVA_Canvas::modified, this, &KORVA_Canvas::record);
    connect(this, &KORVA_Canvas::strokeTakenBack, this, [this] { setDragged({}); });
    connect(this, qOverload<bool>(&KORVA_Canvas::selection), this, &KORVA_Canvas::slotSelection);
    connect(this, &KORVA_Canvas::clipboard, this, &KORVA_Canvas::slotClipBoard);
}

// --- The tool

void KORVA_Canvas::activate(KORVA_Tool* tool)
{
    KORVA_ASSERT(!isActive());
    m_toolActive = true;
    m_tool = tool;
}

void KORVA_Canvas::deactivate()
{
    KORVA_ASSERT(isActive());
    paintNow();
    m_tool = nullptr;
    m_toolActive = false;
}

KORVA_Tool* KORVA_Canvas::getCurrentTool() const
{
    return m_tool;
}

int KORVA_Canvas::getCurrentToolID() const
{
    return m_tool ? m_tool->id() : -1;
}

// --- The picture

bool KORVA_Canvas::isModified() const
{
    return m_picture->isModified();
}

void KORVA_Canvas::clearModified()
{
    m_isPieceAlone = false;
    m_picture->clearModified();
    m_touch->settle(); // a picture saved with half a stroke in it keeps that
}

void KORVA_Canvas::markModified()
{
    m_isPieceAlone = false;
    m_picture->markModified();
    emit modified();
}

QPixmap* KORVA_Canvas::pixmap()
{
    m_isWatched = true;
    return mergedPicture();
}

QPixmap* KORVA_Canvas::mergedPicture()
{
    mergePastePixmap();
    return drawing().pixmap();
}

QSize KORVA_Canvas::pictureSize() const
{
    return m_picture->size();
}

QPixmap KORVA_Canvas::snapshot() const
{
    QPixmap picture = withPiece();
    if (m_tool)
        m_tool->paintPending(&picture);
    return picture;
}

void KORVA_Canvas::setPixmap(QPixmap* picture)
{
    if (!picture)
        return;
    hidePiece();
    drawing().settle();
    drawing().take(*picture);
    offerSoon();
    emit pixmapChanged(drawing().pixmap());
    showAnew();
}

int KORVA_Canvas::getDepth() const
{
    return m_picture->depth();
}

void KORVA_Canvas::setDepth(int d)
{
    KORVA_ASSERT((d == 1) || (d == 4) || (d == 8) || (d == 15) || (d == 16) || (d == 24) || (d == 32));
    if (d == getDepth())
        return;
    saveOldPix();
    QPixmap unchanged = *drawing().pixmap(); // Qt keeps every picture at its own depth
    setPixmap(&unchanged);
    markModified();
}

void KORVA_Canvas::clearCanvas(const QColor& color)
{
    saveOldPix();
    if (color == QColor(Qt::white))
        drawing().clear();
    else
        drawing().fill(color);
    paintZoomed();
    markModified();
    refresh();
    if (auto* text = qobject_cast<KORVA_Text*>(m_tool.data()))
        text->resetBuffer();
    hidePiece();
}

void KORVA_Canvas::setPaper(const QImage& paper)
{
    if (paper.isNull() && !m_picture->hasPaper())
        return;
    saveOldPix();
    const bool isOther = drawing().setPaper(QPixmap::fromImage(paper));
    updateZoomed();
    if (isOther)
        markModified();
}

bool KORVA_Canvas::hasPaper() const
{
    return m_picture->hasPaper();
}

void KORVA_Canvas::erase(const QRect& inPicture, const QRect& onScreen)
{
    drawing().erase(inPicture);
    if (m_picture->hasPaper()) {
        updateZoomed();
    } else {
        KORVA_ClassicPainter(&m_zoomed).fillRect(onScreen, Qt::white);
        refresh(onScreen);
    }
}

void KORVA_Canvas::erase(const QRegion& inPicture)
{
    eraseUnseen(inPicture);
    showPicture(inPicture.boundingRect());
}

void KORVA_Canvas::eraseUnseen(const QRegion& inPicture)
{
    drawing().eraseRegion(inPicture);
}

void KORVA_Canvas::resizeImage(int w, int h)
{
    if (QSize(w, h) != pictureSize()) {
        saveOldPix();
        drawing().scale(QSize(w, h));
        mergePastePixmap();
        setZoom(zoom());
        emit pixmapChanged(drawing().pixmap());
        markModified();
    }
    refresh();
}

bool KORVA_Canvas::load(const QString& fileName, const char* format)
{
    const bool idle = !isActive();
    if (idle) {
        QPixmap picture =
            UTIL_ImageReader::pixmap(fileName, format); // an unreadable file is not an error here
        setPixmap(&picture);
    }
    refresh();
    return idle;
}

bool KORVA_Canvas::save(const QString& fileName, const char* format)
{
    mergePastePixmap();
    return picturesave::write(drawing().image(), fileName, format);
}
