#include "KORVA_ScrollView.h"

#include <QScrollBar>

KORVA_ScrollView::KORVA_ScrollView(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
    setViewportMargins(1, 1, 1, 1); // frame and margin make the two pixels that centring reckons with
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

void KORVA_ScrollView::placeChild()
{
    if (m_child)
        m_child->move(m_childPos - QPoint(contentsX(), contentsY()));
}

void KORVA_ScrollView::updateRanges()
{
    // Where the contents fit without scroll bars, a bar that is still shown must not keep the other one
    // alive.
    QSize visible = viewport()->size();
    if (const QSize most = maximumViewportSize();
        m_contents.width() <= most.width() && m_contents.height() <= most.height())
        visible = most;
    horizontalScrollBar()->setRange(0, m_contents.width() - visible.width());
    horizontalScrollBar()->setPageStep(visible.width());
    verticalScrollBar()->setRange(0, m_contents.height() - visible.height());
    verticalScrollBar()->setPageStep(visible.height());
}
