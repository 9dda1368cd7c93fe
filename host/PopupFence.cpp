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
    if (watched == &m_window && event->type() == QEvent::Resize) {
        while (QWidget* popup = QApplication::activePopupWidget()) // else it stays at the old place
            if (!popup->close())
                break;
    }
    const bool isShown = event->type() == QEvent::Show;
    const bool isHidden = event->type() == QEvent::Hide;
    if ((!isShown && !isHidden) || !watched->isWidgetType() || watched == &m_window)
        return false;
    auto& popup = static_cast<QWidget&>(*watched);
    if (isHidden && popup.isWindow() && QGuiApplication::applicationState() == Qt::ApplicationActive)
        QMetaObject::invokeMethod(this, &PopupFence::takeKeyboard, Qt::QueuedConnection);
    if (isShown && popup.isWindow()) {
        const QRect area(m_window.mapToGlobal(QPoint(0, 0)), m_window.size());
        popup.resize(popup.size().boundedTo(area.size()));
        popup.move(clamped(popup.x(), popup.width(), area.x(), area.width()),
                   clamped(popup.y(), popup.height(), area.y(), area.height()));
    }
    return false;
}

void PopupFence::takeKeyboard()
{
    if (!QApplication::activeModalWidget() && !QApplication::activePopupWidget() && m_window.isVisible())
        m_window.activateWindow();
}

} // namespace pad
