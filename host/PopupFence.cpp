#include "PopupFence.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace pad {

namespace {

int clamped(int position, int extent, int lowest, int room)
{
    return std::max(lowest, std::min(position, lowest + room - extent));
}

} // namespace

PopupFence::PopupFence(QWidget& window) : QObject(&window), m_window(window)
{
    qApp->installEventFilter(this);
}

bool PopupFence::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show || !watched->isWidgetType() || watched == &m_window)
        return false;
    auto& popup = static_cast<QWidget&>(*watched);
    if (popup.isWindow()) {
        const QRect area(m_window.mapToGlobal(QPoint(0, 0)), m_window.size());
        popup.resize(popup.size().boundedTo(area.size()));
        popup.move(clamped(popup.x(), popup.width(), area.x(), area.width()),
                   clamped(popup.y(), popup.height(), area.y(), area.height()));
    }
    return false;
}

} // namespace pad
