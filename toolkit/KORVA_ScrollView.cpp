#include "KORVA_ScrollView.h"

#include "KORVA_Pixel.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

KORVA_ScrollView::KORVA_ScrollView(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
    setLayoutDirection(Qt::LeftToRight);       // a picture begins at its left in any language
    viewport()->ungrabGesture(Qt::PanGesture); // two fingers are the child's
    setViewportMargins(1, 1, 1, 1);            // frame and margin are the two pixels that centring counts
}

int KORVA_ScrollView::contentsX() const
{
    return horizontalScrollBar()->value();
}

int KORVA_ScrollView::contentsY() const
{
    return verticalScrollBar()->value();
}

void KORVA_ScrollView::setContentsPos(int x, int y)
{
    horizontalScrollBar()->setValue(x);
    verticalScrollBar()->setValue(y);
}

void KORVA_ScrollView::setLift(int pixels)
{
    m_lift = pixels;
    placeChild();
}

void KORVA_ScrollView::resizeContents(int w, int h)
{
    m_contents = QSize(w, h);
    updateRanges();
    placeChild();
}

void KORVA_ScrollView::addChild(QWidget* child, int x, int y)
{
    child->setParent(viewport());
    moveChild(child, x, y);
}

void KORVA_ScrollView::moveChild(QWidget* child, int x, int y)
{
    m_child = child;
    m_childPos = QPoint(x, y);
    placeChild();
}

void KORVA_ScrollView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateRanges();
}

void KORVA_ScrollView::scrollContentsBy(int, int)
{
    placeChild();
}

bool KORVA_ScrollView::viewportEvent(QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!m_isHanding && (isPress || type == QEvent::MouseMove || type == QEvent::MouseButtonRelease)) {
        const auto& mouse = *static_cast<QMouseEvent*>(event);
        if (isPress && mouse.buttons() == mouse.button())
            m_childHasPress = isRoundedAway(mouse);
        if (m_childHasPress) {
            handToChild(mouse);
            m_childHasPress = mouse.buttons() != Qt::NoButton;
            return true;
        }
    }
    return QAbstractScrollArea::viewportEvent(event);
}

bool KORVA_ScrollView::isRoundedAway(const QMouseEvent& press) const
{
    return m_child && !m_child->isHidden() && !m_child->geometry().contains(press.position().toPoint()) &&
           m_child->geometry().contains(pixel::under(press, *viewport()));
}

void KORVA_ScrollView::handToChild(const QMouseEvent& event)
{
    const QScopedValueRollback handing(m_isHanding, true);
    if (event.type() == QEvent::MouseButtonPress && (m_child->focusPolicy() & Qt::ClickFocus))
        m_child->setFocus(Qt::MouseFocusReason);
    QMouseEvent own(event.type(), pixel::pointer(event, *viewport()) - m_child->pos(),
                    event.scenePosition(), event.globalPosition(), event.button(), event.buttons(),
                    event.modifiers(), event.pointingDevice());
    QCoreApplication::sendEvent(m_child, &own);
}

void KORVA_ScrollView::placeChild()
{
    if (m_child)
        m_child->move(m_childPos - QPoint(contentsX(), contentsY() + m_lift));
}

void KORVA_ScrollView::updateRanges()
{
    // If the contents fit without scroll bars, a bar that is still shown must not keep the other one in
    // place.
    QSize visible = viewport()->size();
    if (const QSize most = maximumViewportSize();
        m_contents.width() <= most.width() && m_contents.height() <= most.height())
        visible = most;
    horizontalScrollBar()->setRange(0, m_contents.width() - visible.width());
    horizontalScrollBar()->setPageStep(visible.width());
    verticalScrollBar()->setRange(0, m_contents.height() - visible.height());
    verticalScrollBar()->setPageStep(visible.height());
}
