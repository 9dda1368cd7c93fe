#include "KORVA_Tool.h"

#include "KORVA_Assert.h"
#include "KORVA_Canvas.h"

#include <QKeyEvent>

KORVA_Tool::KORVA_Tool() = default;

KORVA_Tool::KORVA_Tool(const QString& name) : m_name(name) {}

KORVA_Tool::~KORVA_Tool() = default;

KORVA_Canvas* KORVA_Tool::canvas() const
{
    return m_canvas;
}

KORVA_Zoom KORVA_Tool::zoom() const
{
    return KORVA_Zoom(m_canvas->zoom());
}

void KORVA_Tool::activate(KORVA_Canvas* c)
{
    KORVA_ASSERT(!c->isActive());
    m_active = true;
    m_canvas = c;
    activating();
}

void KORVA_Tool::deactivate()
{
    const bool active = m_active;
    KORVA_ASSERT(active);
    paintNow();
    if (m_canvas)
        deactivating();
    m_canvas = nullptr;
    m_active = false;
}

void KORVA_Tool::paintNow()
{
    if (m_canvas)
        m_canvas->paintNow();
}

QPixmap* KORVA_Tool::mergedPicture() const
{
    QPixmap* const merged = m_canvas ? m_canvas->mergedPicture() : nullptr;
    return m_canvas ? merged : nullptr;
}

QPixmap* KORVA_Tool::shownPicture() const
{
    return m_canvas->shownPicture();
}

void KORVA_Tool::setLeftPen(const QPen& pen)
{
    paintNow();
    m_leftPen = pen;
}

void KORVA_Tool::setLeftBrush(const QBrush& brush)
{
    paintNow();
    m_leftBrush = brush;
}

void KORVA_Tool::setRightPen(const QPen& pen)
{
    paintNow();
    m_rightPen = pen;
}

void KORVA_Tool::setRightBrush(const QBrush& brush)
{
    paintNow();
    m_rightBrush = brush;
}

void KORVA_Tool::mousePressEvent(QMouseEvent*) {}
void KORVA_Tool::mouseReleaseEvent(QMouseEvent*) {}
void KORVA_Tool::mouseDoubleClickEvent(QMouseEvent*) {}
void KORVA_Tool::mouseMoveEvent(QMouseEvent*) {}

void KORVA_Tool::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

void KORVA_Tool::keyReleaseEvent(QKeyEvent* event)
{
    event->ignore();
}

void KORVA_Tool::enterEvent(QEvent*) {}
void KORVA_Tool::leaveEvent(QEvent*) {}
void KORVA_Tool::activating() {}
void KORVA_Tool::deactivating() {}
void KORVA_Tool::zoomedRebuilt() {}
std::function<void()> KORVA_Tool::keepState()
{
    return nullptr;
}

std::optional<KORVA_Tool::PendingSteps> KORVA_Tool::pendingSteps() const
{
    return {};
}

void KORVA_Tool::stepPending(bool) {}

bool KORVA_Tool::canBringBack() const
{
    return false;
}

void KORVA_Tool::bringBack() {}

void KORVA_Tool::paintWaiting(QPixmap*, QPixmap*) {}
void KORVA_Tool::paintPending(QPixmap*) const {}

void KORVA_Tool::inputMethodEvent(QInputMethodEvent* event)
{
    event->ignore();
}

QVariant KORVA_Tool::inputMethodQuery(Qt::InputMethodQuery) const
{
    return {};
}
