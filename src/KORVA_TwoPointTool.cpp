#include "KORVA_TwoPointTool.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EvenShape.h"
#include "KORVA_Pixel.h"

#include <QMouseEvent>

#include <utility>

void KORVA_TwoPointTool::activating()
{
    canvas()->setCursor(Qt::CrossCursor);
    m_leaving.reset(); // of a canvas that is gone
    zoomedRebuilt();
    canvas()->refresh();
}

void KORVA_TwoPointTool::deactivating()
{
    if (m_state == Dragging)
        togglePreview();
    canvas()->refresh();
    canvas()->setDragged({});
}

void KORVA_TwoPointTool::mousePressEvent(QMouseEvent* event)
{
    if (!canvas() || m_state == Dragging)
        return;
    m_state = Dragging;
    m_start = m_end = pixel::at(event->position());
    m_isEven = false;
    m_previewed = QRect();
    setButton(event->button());
    m_shownPen = screenPen();
}

void KORVA_TwoPointTool::mouseMoveEvent(QMouseEvent* event)
{
    if (!canvas() || m_state == Idle)
        return;
    const QPoint to = pointOf(*event);
    m_isEven = isEven(*event);
    if (to == m_end)
        return;
    if (m_leaving && !vanishes(m_start, m_end))
        canvas()->paintNow();
    const QPoint left = std::exchange(m_end, to);
    m_leaving = m_leaving.value_or(left);
    m_previewed |= reach(to);
    canvas()->showLater(this, reach(left) | reach(to));
    canvas()->setDragged(shapeSize(zoom().toPicture(m_start), inPicture(to, m_isEven)));
}

void KORVA_TwoPointTool::mouseReleaseEvent(QMouseEvent* event)
{
    if (!canvas() || m_state == Idle || event->button() != button())
        return;
    QPixmap* const paper =
        beginChange() ? picture() : nullptr; // before the screen is painted: merging redraws it
    const bool isShown = std::exchange(m_state, Idle) == Dragging;
    if (!paper || !isShown)
        return;
    togglePreview();

    const QPoint to = commitPoint(m_end, pointOf(*event));
    const bool isEvenEnd = to == m_end ? m_isEven : isEven(*event);
    const QRect painted =
        paintShape(paper, picturePen(), zoom().toPicture(m_start), inPicture(to, isEvenEnd));
    if (canvas()->manners().truePixels) // previews may have left something
        canvas()->showPicture(painted | zoom().toPictureAround(m_previewed));
    if (!showsPixels())
        paintShape(shownPicture(), screenPen(), m_start, to);
    canvas()->refresh();
    canvas()->setDragged({});
}

// --- Even shapes

bool KORVA_TwoPointTool::isEven(const QMouseEvent& event) const
{
    return canvas()->manners().evenShapes && event.modifiers() & Qt::ShiftModifier;
}

QPoint KORVA_TwoPointTool::pointOf(const QMouseEvent& event) const
{
    const QPoint at = pixel::at(event.position());
    return isEven(event) ? zoom().toWidget(evenPoint(zoom().toPicture(m_start), zoom().toPicture(at))) : at;
}

// Below 100 % not every pixel of the picture has one on the screen.
QPoint KORVA_TwoPointTool::inPicture(QPoint to, bool isEven) const
{
    const QPoint there = zoom().toPicture(to);
    constexpr int realSize = 100;
    return isEven && zoom().percent() < realSize ? evenPoint(zoom().toPicture(m_start), there) : there;
}

QPoint KORVA_TwoPointTool::evenPoint(QPoint from, QPoint to) const
{
    return even::square(from, to);
}

QSize KORVA_TwoPointTool::shapeSize(QPoint from, QPoint to) const
{
    return {qAbs(to.x() - from.x()) + 1, qAbs(to.y() - from.y()) + 1};
}

void KORVA_TwoPointTool::zoomedRebuilt()
{
    if (m_state == Idle)
        return;
    m_shownPen = screenPen();
    togglePreview();
}

void KORVA_TwoPointTool::drawLeftShape(KORVA_ClassicPainter& painter, QPoint from, QPoint to) const
{
    drawShape(painter, from, to);
}

bool KORVA_TwoPointTool::vanishes(QPoint, QPoint) const
{
    return true;
}

QRect KORVA_TwoPointTool::reach(QPoint to) const
{
    const int side = m_shownPen.width() + 2;
    return classic::normalized(QRect(m_start, to)).adjusted(-side, -side, side, side);
}

void KORVA_TwoPointTool::paintWaiting(QPixmap*, QPixmap* shown)
{
    const QPoint left = *std::exchange(m_leaving, std::nullopt);
    KORVA_ClassicPainter painter(shown, KORVA_ClassicPainter::NotROP);
    painter.setPen(m_shownPen);
    drawLeftShape(painter, m_start, left);
    drawShape(painter, m_start, m_end);
}

// The first move removes a shape of size 0 that the press has not drawn, so every preview shows that shape
// as well.
void KORVA_TwoPointTool::togglePreview()
{
    KORVA_ClassicPainter painter(shownPicture(), KORVA_ClassicPainter::NotROP);
    painter.setPen(m_shownPen);
    drawShape(painter, m_start, m_end);
    drawShape(painter, m_start, m_start);
    m_previewed |= painter.touched();
}

QRect KORVA_TwoPointTool::paintShape(QPixmap* target, const QPen& pen, QPoint from, QPoint to)
{
    KORVA_ClassicPainter painter(target);
    painter.setPen(pen);
    painter.setBrush(brush());
    drawShape(painter, from, to);
    return painter.touched();
}

std::function<void()> KORVA_TwoPointTool::keepState()
{
    return [this, state = m_state, start = m_start, end = m_end, isEven = m_isEven, pen = m_shownPen] {
        m_state = state;
        m_isEven = isEven;
        m_start = start;
        m_end = end;
        m_shownPen = pen;
    };
}
