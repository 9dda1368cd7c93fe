#include "Idle.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <utility>

Idle::Idle(Times times, QObject* parent) : QObject(parent), m_times(times)
{
    m_second.setInterval(1000);
    connect(&m_second, &QTimer::timeout, this, &Idle::tick);
    QCoreApplication::instance()->installEventFilter(this);
}

bool Idle::eventFilter(QObject*, QEvent* event)
{
    if (isFromAPerson(*event)) {
        const bool wasWarned = m_second.isActive() && m_left <= m_times.warning;
        m_left = m_times.seconds;
        m_second.start();
        if (wasWarned)
            emit returned();
    }
    return false;
}

bool Idle::isFromAPerson(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseMove: { // a window that comes up under the pointer gets one, too
        const QPointF before =
            std::exchange(m_pointer, static_cast<const QMouseEvent&>(event).globalPosition());
        return event.spontaneous() && m_pointer != before;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        return event.spontaneous();
    default:
        return false;
    }
}

void Idle::tick()
{
    --m_left;
    if (m_left > m_times.warning)
        return;
    if (m_left > 0) {
        emit warned(m_left);
    } else {
        m_second.stop();
        emit gone();
    }
}
