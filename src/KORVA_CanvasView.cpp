#include "KORVA_Canvas.h"

#include "KORVA_ClassicPainter.h"
#include "KORVA_Enlarge.h"
#include "KORVA_Limit.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Picture.h"
#include "KORVA_Repainter.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Tool.h"

#include <QPaintEvent>

#include <cstring>
#include <utility>

// What is on the screen: the zoomed picture, what waits to be painted, and the zoom.

namespace {

constexpr int leastGridZoom = 400; // in percent

} // namespace

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

// --- What waits

QPixmap* KORVA_Canvas::zoomedPixmap()
{
    m_isWatched = true;
    return shownPicture();
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

void KORVA_Canvas::showLater(KORVA_Tool* painter, const QRect& changed)
{
    m_waiting = painter;
    if (m_isWatched)
        paintNow();
    refresh(changed);
}

void KORVA_Canvas::paintNow()
{
    if (const QPointer<KORVA_Tool> painter = std::exchange(m_waiting, nullptr))
        painter->paintWaiting(m_picture->pixmap(), &m_zoomed);
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
    paintShown({changed});
    refresh(shownAround(changed));
}

QRect KORVA_Canvas::shownAround(const QRect& changed) const
{
    const QRect wide = changed.adjusted(-1, -1, 2, 2); // pixels that share one's edge
    return {m_zoom.toWidget(wide.topLeft()), m_zoom.toWidget(wide.bottomRight())};
}

bool KORVA_Canvas::showsPixelsOf(const QRect& part) const
{
    constexpr int realSize = 100;
    if (zoom() != realSize)
        return false;
    const QImage picture = drawing().pixmap()->toImage();
    const QImage shown = m_zoomed.toImage();
    constexpr int bytes = 4; // of a pixel
    const QRect there = shownAround(part) & shown.rect() & picture.rect();
    if (picture.format() != shown.format() || picture.depth() != 8 * bytes)
        return false;
    for (int y = there.top(); y <= there.bottom(); ++y) {
        const qsizetype left = qsizetype(there.left()) * bytes;
        if (std::memcmp(picture.constScanLine(y) + left, shown.constScanLine(y) + left,
                        size_t(there.width()) * bytes) != 0)
            return false;
    }
    return true;
}

// At a fractional rate Qt's pixels depend on the rectangle that is painted.
void KORVA_Canvas::paintShown(const QList<QRect>& changes)
{
    const QPixmap& picture = *drawing().pixmap();
    KORVA_ClassicPainter painter(&m_zoomed);
    for (const QRect& change : changes) {
        painter.setClip(shownAround(change));
        painter.setWorldMatrix(m_zoom.toWidgetMatrix());
        painter.drawPixmap(0, 0, picture);
        painter.setWorldMatrix({});
    }
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
    constexpr int realSize = 100;
    if (zoom() == realSize) {
        m_zoomed = picture; // one picture in memory until either is painted on
    } else if (zoom() % realSize != 0 || !classic::enlarge(picture, zoom() / realSize, m_zoomed)) {
        // The picture covers it and is opaque.
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
