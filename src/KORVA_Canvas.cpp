#include "KORVA_Canvas.h"

#include "KORVA_Assert.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Limit.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_PictureSave.h"
#include "KORVA_Pixel.h"
#include "KORVA_Repainter.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Text.h"
#include "UTIL_ImageReader.h"
#include "UTIL_Platform.h"
#include "UTIL_PopupMenu.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include <utility>

int KORVA_Canvas::inst = 0;

KORVA_Canvas::KORVA_Canvas(KORVA_EditCanvas* editor, int width, int height, QWidget* parent,
                           const char* name)
    : KORVA_Canvas(editor, classic::filled(QSize(width, height), Qt::white), false, parent, name)
{
}

KORVA_Canvas::KORVA_Canvas(KORVA_EditCanvas* editor, const QString& fileName, QWidget* parent,
                           const char* name)
    : KORVA_Canvas(editor, classic::opaque(UTIL_ImageReader::pixmap(fileName)), true, parent, name)
{
}

KORVA_Canvas::KORVA_Canvas(KORVA_EditCanvas* editor, const QPixmap& picture, bool takeItsSize,
                           QWidget* parent, const char* name)
    : QWidget(parent), m_picture(picture), m_repainter(std::make_unique<KORVA_Repainter>(this))
{
    setObjectName(name);
    UTIL_Platform::instance()->setMouseMode(this, 1);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, Qt::white);
    setPalette(colors);
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (takeItsSize)
        resize(m_picture.size());

    m_pasteLabel = new KORVA_PasteLabel(this);
    connect(m_pasteLabel, &KORVA_PasteLabel::signalCut, this, &KORVA_Canvas::slotCut);
    connect(m_pasteLabel, &KORVA_PasteLabel::signalCopy, this, &KORVA_Canvas::slotCopy);
    connect(m_pasteLabel, &KORVA_PasteLabel::signalPaste, this, &KORVA_Canvas::slotPaste);
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
}

KORVA_Canvas::~KORVA_Canvas() = default;

void KORVA_Canvas::createMenu()
{
    m_menu = new UTIL_PopupMenu(this);
    m_cutAction = m_menu->addAction(tr("Cut", "2.11.1;MENU"), this, &KORVA_Canvas::slotCut);
    m_copyAction = m_menu->addAction(tr("Copy", "2.11.1;MENU"), this, &KORVA_Canvas::slotCopy);
    m_pasteAction = m_menu->addAction(tr("Paste", "2.11.1;MENU"), this, &KORVA_Canvas::slotPaste);
    m_cutAction->setData(0);
    m_copyAction->setData(1);
    m_pasteAction->setData(2);
    slotSelection(false);
    slotClipBoard(false);
}

void KORVA_Canvas::connectSignals(KORVA_EditCanvas* editor)
{
    if (editor) {
        connect(this, &KORVA_Canvas::sizeChanged, editor, &KORVA_EditCanvas::sizeChanged);
        connect(this, &KORVA_Canvas::pixmapChanged, editor, &KORVA_EditCanvas::pixmapChanged);
        connect(this, &KORVA_Canvas::modified, editor, &KORVA_EditCanvas::modified);
        connect(this, qOverload<bool>(&KORVA_Canvas::selection), editor, &KORVA_EditCanvas::selection);
        connect(this, &KORVA_Canvas::canUndo, editor, &KORVA_EditCanvas::canUndo);
        connect(this, &KORVA_Canvas::canRedo, editor, &KORVA_EditCanvas::canRedo);
    }
    connect(this, &KORVA_Canvas::modified, this, &KORVA_Canvas::record);
    connect(this, qOverload<bool>(&KORVA_Canvas::selection), this, &KORVA_Canvas::slotSelection);
    connect(this, &KORVA_Canvas::clipboard, this, &KORVA_Canvas::slotClipBoard);
}

// --- Tools and events
// ------------------------------------------------------------------------------------------

void KORVA_Canvas::activate(KORVA_Tool* tool)
{
    KORVA_ASSERT(!isActive());
    m_toolActive = true;
    m_tool = tool;
}

void KORVA_Canvas::deactivate()
{
    KORVA_ASSERT(isActive());
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

namespace {

QMouseEvent movedTo(const QPointF& position, const QMouseEvent& event)
{
    return {event.type(),   position,        event.scenePosition(), event.globalPosition(),
            event.button(), event.buttons(), event.modifiers(),     event.pointingDevice()};
}

} // namespace

template <typename Handler, typename LabelHandler>
void KORVA_Canvas::handOn(QMouseEvent* event, Handler toTool, LabelHandler toLabel)
{
    const QPointF pointer = pixel::pointer(*event, *this);
    if (ptInPasteLabel(pixel::at(pointer))) {
        QMouseEvent local = movedTo(pointer - m_pasteLabel->pos(), *event);
        (m_pasteLabel->*toLabel)(&local);
        return;
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        mergePastePixmap();
    if (m_tool) {
        QMouseEvent exact = movedTo(pointer, *event);
        exact.setTimestamp(event->timestamp());
        (m_tool.data()->*toTool)(&exact);
        event->setAccepted(exact.isAccepted());
    }
}

void KORVA_Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton) {
        m_menu->popup(mapToGlobal(pixel::under(*event, *this)), m_menu->actions().value(0));
    } else if (event->button() == Qt::LeftButton) {
        handOn(event, &KORVA_Tool::mousePressEvent, &KORVA_PasteLabel::mousePressEvent);
    }
}

void KORVA_Canvas::mouseMoveEvent(QMouseEvent* event)
{
    handOn(event, &KORVA_Tool::mouseMoveEvent, &KORVA_PasteLabel::mouseMoveEvent);
}

void KORVA_Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    handOn(event, &KORVA_Tool::mouseReleaseEvent, &KORVA_PasteLabel::mouseReleaseEvent);
}

void KORVA_Canvas::keyPressEvent(QKeyEvent* event)
{
    if (m_tool)
        m_tool->keyPressEvent(event);
    else
        event->ignore();
}

void KORVA_Canvas::keyReleaseEvent(QKeyEvent* event)
{
    if (m_tool)
        m_tool->keyReleaseEvent(event);
    else
        event->ignore();
}

bool KORVA_Canvas::event(QEvent* event)
{
    // Shortcuts of the host wait while a text is typed; what is no text is still theirs.
    if (event->type() == QEvent::ShortcutOverride && m_tool && m_tool->takesText() &&
        KORVA_Text::isTyping(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool KORVA_Canvas::focusNextPrevChild(bool next)
{
    return !(m_tool && m_tool->takesText()) && QWidget::focusNextPrevChild(next);
}

void KORVA_Canvas::inputMethodEvent(QInputMethodEvent* event)
{
    if (m_tool)
        m_tool->inputMethodEvent(event);
    else
        event->ignore();
}

QVariant KORVA_Canvas::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (query == Qt::ImEnabled)
        return m_tool && m_tool->takesText();
    const QVariant answer = m_tool ? m_tool->inputMethodQuery(query) : QVariant();
    return answer.isValid() ? answer : QWidget::inputMethodQuery(query);
}

void KORVA_Canvas::contextMenuEvent(QContextMenuEvent* event)
{
    // The right button has opened its menu on the press; what is left is the menu key.
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    if (isFloating())
        m_pasteLabel->menu()->popup(m_pasteLabel->mapToGlobal(m_pasteLabel->rect().center()));
    else
        m_menu->popup(mapToGlobal(visibleRegion().boundingRect().center()));
}

void KORVA_Canvas::paintEvent(QPaintEvent* event)
{
    classic::bitBlt(this, 0, 0, m_zoomed, event->rect());
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

void KORVA_Canvas::markModified()
{
    m_modified = true;
    emit modified();
}

// --- The picture
// -----------------------------------------------------------------------------------------------

QPixmap* KORVA_Canvas::pixmap()
{
    mergePastePixmap();
    keepOpaque();
    return &m_picture;
}

QPixmap KORVA_Canvas::snapshot() const
{
    QPixmap picture = classic::opaque(m_picture);
    if (isFloating())
        paintPiece(&picture);
    if (m_tool)
        m_tool->paintPending(&picture);
    return picture;
}

// What was painted on it from outside may have left it otherwise.
void KORVA_Canvas::keepOpaque()
{
    m_picture = classic::opaque(m_picture);
}

void KORVA_Canvas::setPixmap(QPixmap* picture)
{
    if (!picture)
        return;
    m_pasteLabel->hide();
    m_picture = classic::opaque(*picture);
    emit pixmapChanged(&m_picture);
    showAnew();
}

int KORVA_Canvas::getDepth() const
{
    return m_picture.depth();
}

void KORVA_Canvas::setDepth(int d)
{
    KORVA_ASSERT((d == 1) || (d == 4) || (d == 8) || (d == 15) || (d == 16) || (d == 24) || (d == 32));
    if (d == getDepth())
        return;
    saveOldPix();
    QPixmap unchanged = m_picture; // the toolkit keeps every picture at its own depth
    setPixmap(&unchanged);
    markModified();
}

void KORVA_Canvas::clearCanvas(const QColor& color)
{
    saveOldPix();
    m_picture.fill(color);
    paintZoomed();
    markModified();
    refresh();
    if (auto* text = qobject_cast<KORVA_Text*>(m_tool.data()))
        text->resetBuffer();
    m_pasteLabel->hide();
}

void KORVA_Canvas::resizeImage(int w, int h)
{
    if (QSize(w, h) != m_picture.size()) {
        saveOldPix();
        QPixmap resized = classic::filled(QSize(w, h), Qt::white);
        if (!m_picture.isNull()) {
            const float horizontal = static_cast<float>(w) / static_cast<float>(m_picture.width());
            const float vertical = static_cast<float>(h) / static_cast<float>(m_picture.height());
            KORVA_ClassicPainter painter(&resized);
            painter.setWorldMatrix(
                QTransform::fromScale(static_cast<double>(horizontal), static_cast<double>(vertical)));
            painter.drawPixmap(0, 0, m_picture);
        }
        m_picture = std::move(resized);
        setZoom(zoom());
        emit pixmapChanged(&m_picture);
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
    return picturesave::write(pixmap()->toImage(), fileName, format);
}

// --- Undo
// ------------------------------------------------------------------------------------------------------

void KORVA_Canvas::record()
{
    m_undoFlag = 1;
    emit canUndo(true);
    emit canRedo(false);
}

void KORVA_Canvas::undo()
{
    exchangeWithSnapshot();
    m_undoFlag = 2;
    emit canUndo(false);
    emit canRedo(true);
}

void KORVA_Canvas::redo()
{
    exchangeWithSnapshot();
    m_undoFlag = 1;
    emit canUndo(true);
    emit canRedo(false);
}

void KORVA_Canvas::exchangeWithSnapshot()
{
    mergePastePixmap();
    m_pasteLabel->hide();
    if (m_tool && m_tool->getTextKey())
        return;
    m_picture.swap(m_previous);
    if (m_picture.size() == m_previous.size()) {
        updateZoomed();
    } else { // back over a resize: the screen follows
        showAnew();
    }
}

void KORVA_Canvas::setUndoFlag(int flag)
{
    // Offered the other way round than record(), undo() and redo() do for the same flags: the editor relies
    // on it.
    static constexpr struct
    {
        bool redo;
        bool undo;
    } offered[] = {{false, false}, {true, false}, {false, true}};

    m_undoFlag = flag;
    if (flag < 0 || flag >= int(std::size(offered)))
        return;
    emit canRedo(offered[flag].redo);
    emit canUndo(offered[flag].undo);
}

// --- Zoom
// ------------------------------------------------------------------------------------------------------

void KORVA_Canvas::setZoom(int percent)
{
    if (percent < 1)
        return;
    mergePastePixmap();
    m_zoom = KORVA_Zoom(percent);
    keepZoomWithinLimit(m_picture.size());
    m_pasteLabel->setZoom(zoom(), zoom());
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

void KORVA_Canvas::rebuildZoomed()
{
    keepZoomWithinLimit(m_picture.size());
    m_zoomed = QPixmap(); // the new one may take its place in memory
    m_zoomed = QPixmap(m_zoom.zoomed(m_picture.size()));
    paintZoomed();
}

void KORVA_Canvas::paintZoomed()
{
    keepOpaque();
    if (zoom() == 100) {
        m_zoomed = m_picture; // one picture in memory until either is painted on
    } else {                  // the picture covers it and is opaque
        KORVA_ClassicPainter painter(&m_zoomed);
        painter.setWorldMatrix(m_zoom.toWidgetMatrix());
        painter.drawPixmap(0, 0, m_picture);
    }
    tellZoomedRebuilt();
}

void KORVA_Canvas::tellZoomedRebuilt()
{
    if (m_tool)
        m_tool->zoomedRebuilt();
}

void KORVA_Canvas::fitToZoomed()
{
    if (m_zoomed.size() != size()) {
        resize(m_zoomed.size());
        emit sizeChanged();
    }
    if (std::exchange(m_hasFallenBack, false))
        emit zoomFellBack();
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

// --- Selection and clipboard
// -----------------------------------------------------------------------------------

void KORVA_Canvas::setSelection(const QRect& rect)
{
    constexpr int margin = 2; // at 150 and 200 % the piece takes a little more along than was marked
    const QRect marked = classic::normalized(rect) & this->rect();
    if (marked.isEmpty())
        return;
    m_selection = marked;
    m_hasSelection = true;

    QRect lifted = m_zoom.toPicture(m_selection);
    if (zoom() == 150 || zoom() == 200)
        lifted.setSize(lifted.size() + QSize(margin, margin));
    QPixmap piece = classic::filled(lifted.size(), Qt::white);
    classic::bitBlt(&piece, -lifted.left(), -lifted.top(), m_picture);

    fillSelection();
    floatPiece(m_selection.topLeft(), piece, Lifted);
    updateZoomed();
    emit selection(true);
}

void KORVA_Canvas::fillSelection()
{
    KORVA_ClassicPainter painter(pixmap());
    painter.setWorldMatrix(m_zoom.toPictureMatrix());
    painter.fillRect(m_selection, Qt::white);
}

void KORVA_Canvas::clearSelection()
{
    m_hasSelection = false;
    m_selection = QRect();
    emit selection(false);
}

void KORVA_Canvas::copy()
{
    QGuiApplication::clipboard()->setPixmap(m_pasteLabel->getImage());
    emit clipboard(true);
}

void KORVA_Canvas::cut()
{
    saveOldPix();
    copy();
    QGuiApplication::clipboard()->setPixmap(
        m_pasteLabel->getImage()); // kept: a cut has always announced itself twice
    m_pasteLabel->hide();
    if (m_origin == Lifted)
        fillSelection();
    clearSelection();
    markModified();
    updateZoomed();
    emit clipboard(true);
}

void KORVA_Canvas::deleteSelection()
{
    if (!isFloating())
        return;
    saveOldPix();
    paintPiece(&m_previous);
    m_pasteLabel->hide();
    clearSelection();
    markModified();
    updateZoomed();
}

void KORVA_Canvas::paste()
{
    saveOldPix();
    if (isFloating()) {
        mergePastePixmap();
        markModified();
        updateZoomed();
    }
    const QPixmap piece = QGuiApplication::clipboard()->pixmap();
    if (piece.width() != 0)
        floatAtOrigin(piece);
}

void KORVA_Canvas::paste(int x, int y)
{
    QPixmap piece = QGuiApplication::clipboard()->pixmap();
    if (piece.width() == 0)
        return;
    piece.setDevicePixelRatio(1);
    saveOldPix();
    classic::bitBlt(&m_picture, x, y, piece);
    markModified();
    updateZoomed();
}

void KORVA_Canvas::insertStamp(QPixmap& stamp)
{
    mergePastePixmap();
    floatAtOrigin(stamp);
}

void KORVA_Canvas::floatAtOrigin(const QPixmap& piece)
{
    keepZoomWithinLimit(piece.size());
    if (m_hasFallenBack)
        showAnew();
    floatPiece(QPoint(0, 0), piece, Pasted);
    if (KORVA_ScrollView* view = scrollView())
        view->setContentsPos(0, 0);
    markModified();
    updateZoomed();
}

void KORVA_Canvas::floatPiece(const QPoint& at, const QPixmap& piece, Origin origin)
{
    m_origin = origin;
    m_pasteLabel->setImage(piece);
    m_pasteLabel->move(at);
    m_pasteLabel->show();
}

bool KORVA_Canvas::isFloating() const
{
    return !m_pasteLabel->isHidden();
}

void KORVA_Canvas::mergePastePixmap()
{
    if (!isFloating())
        return;
    m_pasteLabel->hide();
    paintPiece(&m_picture);
    saveOldPix();
    markModified();
    updateZoomed();
    emit selection(false);
}

void KORVA_Canvas::paintPiece(QPixmap* picture) const
{
    const QPoint place = m_zoom.toPicture(m_pasteLabel->pos());
    classic::bitBlt(picture, place.x(), place.y(), m_pasteLabel->getImage());
}

bool KORVA_Canvas::ptInPasteLabel(const QPoint& p) const
{
    return isFloating() && m_pasteLabel->geometry().contains(p);
}

void KORVA_Canvas::slotCut()
{
    cut();
}

void KORVA_Canvas::slotCopy()
{
    copy();
}

void KORVA_Canvas::slotPaste()
{
    paste();
}

void KORVA_Canvas::slotSelection(bool exists)
{
    for (QAction* action : {m_cutAction.data(), m_copyAction.data()}) {
        if (action)
            action->setEnabled(exists);
    }
}

void KORVA_Canvas::slotClipBoard(bool filled)
{
    if (m_pasteAction)
        m_pasteAction->setEnabled(filled);
    m_pasteLabel->setPasteItem(filled);
}
