#include "KORVA_AreaSelect.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EvenShape.h"
#include "KORVA_Pixel.h"

#include <QAbstractEventDispatcher>
#include <QMouseEvent>

#include <utility>

KORVA_AreaSelect::KORVA_AreaSelect(const QString& name) : KORVA_Tool(name) {}

void KORVA_AreaSelect::activating()
{
    m_leaving.reset(); // of a canvas that is gone
    canvas()->setCursor(Qt::CrossCursor);
}

void KORVA_AreaSelect::deactivating()
{
    if (m_state == Dragging)
        anchor(); // a drag that a change of tools ends must leave no frame behind
    canvas()->setDragged({});
    if (!canvas())
        return;
    disableSelection();
    canvas()->clearSelection();
}

void KORVA_AreaSelect::timerEvent(QTimerEvent*)
{
    drawFrame();
}

void KORVA_AreaSelect::selection(bool exists)
{
    if (!exists)
        disableSelection();
}

void KORVA_AreaSelect::disableSelection()
{
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        dispatcher->unregisterTimers(this);
    if (m_frameShown)
        drawFrame();
}

void KORVA_AreaSelect::mousePressEvent(QMouseEvent* event)
{
    if (!canvas() || event->button() != Qt::LeftButton)
        return;
    if (m_state == Idle) {
        disableSelection();
        m_start = m_end = pixel::at(event->position());
    }
    m_state = Dragging;
}

void KORVA_AreaSelect::mouseMoveEvent(QMouseEvent* event)
{
    if (!canvas() || m_state != Dragging)
        return;
    const QPoint to = pointOf(*event);
    if (to == m_end)
        return;
    const QPoint left = std::exchange(m_end, to);
    m_leaving = m_leaving.value_or(left);
    canvas()->showLater(this, reach(left) | reach(to));
    const QPoint span = limited(to) - m_start;
    canvas()->setDragged(QSize(zoom().toPicture(qAbs(span.x())), zoom().toPicture(qAbs(span.y()))));
}

void KORVA_AreaSelect::mouseReleaseEvent(QMouseEvent* event)
{
    if (!canvas() || m_state != Dragging || event->button() != Qt::LeftButton)
        return;
    const QPoint corner = limited(pointOf(*event));
    canvas()->setDragged({});
    if (!canvas() || m_state != Dragging)
        return;
    if (corner == m_start) {
        anchor();
        return;
    }
    toggleFrame(m_end);
    select(corner);
}

QPoint KORVA_AreaSelect::pointOf(const QMouseEvent& event) const
{
    const QPoint at = pixel::at(event.position());
    if (!canvas()->manners().evenShapes || !(event.modifiers() & Qt::ShiftModifier))
        return at;
    const QPoint span = even::square(m_start, at) - m_start;
    const QPoint room = limited(m_start + span) - m_start;
    const QPoint way(span.x() < 0 ? -1 : 1, span.y() < 0 ? -1 : 1);
    return m_start + way * qMax(0, qMin(room.x() * way.x(), room.y() * way.y()));
}

void KORVA_AreaSelect::anchor()
{
    canvas()->refresh(toggleFrame(m_end));
    m_end = m_start;
    m_state = Anchored;
}

void KORVA_AreaSelect::selectAll()
{
    if (!canvas() || m_state == Dragging)
        return;
    disableSelection();
    m_start = m_end = QPoint(0, 0);
    if (canvas()->size() != QSize(0, 0))
        select(QPoint(canvas()->width(), canvas()->height()));
}

// The corner is the first pixel that no longer belongs to the selection.
void KORVA_AreaSelect::select(QPoint corner)
{
    m_state = Idle;
    m_frameShown = false;
    canvas()->mergePastePixmap();
    if (canvas())
        canvas()->setSelection(QRect(m_start, corner - QPoint(1, 1)));
}

// From 1 to the size itself, because the selection ends one pixel before the corner.
QPoint KORVA_AreaSelect::limited(QPoint p) const
{
    return {qBound(1, p.x(), qMax(1, canvas()->width())), qBound(1, p.y(), qMax(1, canvas()->height()))};
}

void KORVA_AreaSelect::zoomedRebuilt()
{
    m_frameShown = false;
    if (m_state == Dragging)
        toggleFrame(m_end);
}

void KORVA_AreaSelect::drawFrame()
{
    if (!canvas())
        return;
    toggleFrame(m_end);
    canvas()->refresh();
    m_frameShown = !m_frameShown;
}

QRect KORVA_AreaSelect::reach(QPoint to) const
{
    return classic::normalized(QRect(m_start, to)).adjusted(-1, -1, 1, 1);
}

void KORVA_AreaSelect::paintWaiting(QPixmap*, QPixmap* shown)
{
    const QPoint left = *std::exchange(m_leaving, std::nullopt);
    toggleFrame(left, shown);
    toggleFrame(m_end, shown);
}

QRect KORVA_AreaSelect::toggleFrame(QPoint to)
{
    return toggleFrame(to, shownPicture());
}

QRect KORVA_AreaSelect::toggleFrame(QPoint to, QPixmap* shown)
{
    KORVA_ClassicPainter painter(shown, KORVA_ClassicPainter::NotROP);
    painter.setPen(QPen(Qt::green, 0, Qt::DashLine));
    painter.drawRect(m_start.x(), m_start.y(), to.x() - m_start.x(), to.y() - m_start.y());
    return painter.touched();
}

std::function<void()> KORVA_AreaSelect::keepState()
{
    return [this, start = m_start, end = m_end, state = m_state, shown = m_frameShown] {
        m_start = start;
        m_end = end;
        m_state = state;
        m_frameShown = shown;
    };
}
