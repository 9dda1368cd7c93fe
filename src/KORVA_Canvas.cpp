#include "KORVA_Canvas.h"

#include "KORVA_Accessible.h"
#include "KORVA_Assert.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_KeyboardPen.h"
#include "KORVA_Limit.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Picture.h"
#include "KORVA_PictureSave.h"
#include "KORVA_Repainter.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Text.h"
#include "KORVA_TouchInput.h"
#include "UTIL_ImageReader.h"
#include "UTIL_Platform.h"

#include <QPaintEvent>

#include <utility>

namespace {

constexpr int leastGridZoom = 400; // in percent

} // namespace

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

// --- The screen

void KORVA_Canvas::paintEvent(QPaintEvent* event)
{
    classic::bitBlt(this, 0, 0, zoomed(), event->rect());
    if (manners().pixelGrid && zoom() >= leastGridZoom)
        paintGrid(event->rect());
}

void KORVA_Canvas::paintGrid(const QRect& exposed)
{
    QPainter painter(this);
    painter.setPen(QColor(128, 128, 128, 112)); // seen on white, black and any colour
    const QPoint first = m_zoom.toPicture(exposed.topLeft());
    const QPoint last = m_zoom.toPicture(exposed.bottomRight()) + QPoint(1, 1);
    for (int x = first.x(); x <= last.x(); ++x)
        painter.drawLine(m_zoom.toWidget(x), exposed.top(), m_zoom.toWidget(x), exposed.bottom());
    for (int y = first.y(); y <= last.y(); ++y)
        painter.drawLine(exposed.left(), m_zoom.toWidget(y), exposed.right(), m_zoom.toWidget(y));
}

KORVA_ScrollView* KORVA_Canvas::scrollView() const
{
    QWidget* viewport = parentWidget();
    return qobject_cast<KORVA_ScrollView*>(viewport ? viewport->parentWidget() : nullptr);
}

void KORVA_Canvas::refresh()
{
    refresh(rect());
}

void KORVA_Canvas::refresh(const QRect& changed)
{
    m_repainter->add(changed & rect());
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

QPixmap* KORVA_Canvas::zoomedPixmap()
{
    m_isWatched = true;
    return shownPicture();
}

QPixmap* KORVA_Canvas::mergedPicture()
{
    mergePastePixmap();
    return drawing().pixmap();
}

QPixmap* KORVA_Canvas::shownPicture()
{
    paintNow();
    return &m_zoomed;
}

const QPixmap& KORVA_Canvas::zoomed() const
{
    return *const_cast<KORVA_Canvas*>(this)->shownPicture();
}

// What waits is part of the drawing.
KORVA_Picture& KORVA_Canvas::drawing() const
{
    const_cast<KORVA_Canvas*>(this)->paintNow();
    return *m_picture;
}

void KORVA_Canvas::showLater(const QRect& changed)
{
    m_isWaiting = true;
    if (m_isWatched)
        paintNow();
    refresh(changed);
}

void KORVA_Canvas::paintNow()
{
    if (std::exchange(m_isWaiting, false) && m_tool)
        m_tool->paintWaiting(m_picture->pixmap(), &m_zoomed);
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
    drawing().eraseRegion(inPicture);
    showPicture(inPicture.boundingRect());
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

// --- Zoom

void KORVA_Canvas::setZoom(int percent)
{
    if (percent < 1)
        return;
    paintNow();
    mergeUnlessSteady();
    const bool stays = isFloating();
    const QPoint place = piecePlace();
    m_zoom = KORVA_Zoom(percent);
    keepZoomWithinLimit(stays ? pictureSize().expandedTo(m_pasteLabel->getImage().size()) : pictureSize());
    m_pasteLabel->setZoom(zoom(), zoom());
    if (stays)
        placePiece(place);
    showAnew();
}

void KORVA_Canvas::showAnew()
{
    rebuildZoomed();
    fitToZoomed();
    refresh();
}

void KORVA_Canvas::keepZoomWithinLimit(QSize enlarged)
{
    constexpr int realSize = 100;
    if (zoom() <= realSize || m_zoom.zoomedPixels(enlarged) <= double(limit::shownPixels(*this)))
        return;
    m_zoom = KORVA_Zoom(realSize);
    m_pasteLabel->setZoom(realSize, realSize);
    m_hasFallenBack = true;
}

void KORVA_Canvas::updateZoomed()
{
    paintZoomed();
    refresh();
}

void KORVA_Canvas::showPicture(const QRect& changed)
{
    paintShown(changed);
    refresh(shownAround(changed));
}

QRect KORVA_Canvas::shownAround(const QRect& changed) const
{
    const QRect wide = changed.adjusted(-1, -1, 2, 2); // pixels that share one's edge
    return {m_zoom.toWidget(wide.topLeft()), m_zoom.toWidget(wide.bottomRight())};
}

void KORVA_Canvas::paintShown(const QRegion& changed)
{
    const QPixmap& picture = *drawing().pixmap();
    QRegion shown;
    for (const QRect& part : changed)
        shown += shownAround(part);
    KORVA_ClassicPainter painter(&m_zoomed);
    painter.setClip(shown);
    painter.setWorldMatrix(m_zoom.toWidgetMatrix());
    painter.drawPixmap(0, 0, picture);
}

void KORVA_Canvas::rebuildZoomed()
{
    paintNow();
    keepZoomWithinLimit(pictureSize());
    m_zoomed = QPixmap(); // the new one may take its place in memory
    m_zoomed = QPixmap(m_zoom.zoomed(pictureSize()));
    paintZoomed();
}

void KORVA_Canvas::showWith(const std::function<void(QPixmap* copy)>& paint)
{
    QPixmap copy = *drawing().pixmap();
    paint(&copy);
    paintZoomed(copy);
    refresh();
}

void KORVA_Canvas::paintZoomed()
{
    paintZoomed(*drawing().pixmap());
    if (m_tool)
        m_tool->zoomedRebuilt();
}

void KORVA_Canvas::paintZoomed(const QPixmap& picture)
{
    if (zoom() == 100) {
        m_zoomed = picture; // one picture in memory until either is painted on
    } else {                // the picture covers it and is opaque
        KORVA_ClassicPainter painter(&m_zoomed);
        painter.setWorldMatrix(m_zoom.toWidgetMatrix());
        painter.drawPixmap(0, 0, picture);
    }
}

void KORVA_Canvas::fitToZoomed()
{
    if (m_zoomed.size() != size()) {
        resize(m_zoomed.size());
        emit sizeChanged();
    }
    if (std::exchange(m_hasFallenBack, false))
        emit zoomFellBack();
    if (std::exchange(m_toldZoom, zoom()) != zoom())
        emit zoomChanged(zoom());
}

void KORVA_Canvas::updateZoomedClipboard()
{
    if (m_clipboard.width() == 0)
        return;
    const QPixmap unscaled = m_clipboard;
    m_clipboard = classic::filled(m_zoom.zoomed(unscaled.size()), Qt::white);
    KORVA_ClassicPainter painter(&m_clipboard);
    painter.setWorldMatrix(m_zoom.toWidgetMatrix());
    painter.drawPixmap(0, 0, unscaled);
}
