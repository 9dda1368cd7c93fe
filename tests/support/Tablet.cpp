#include "Tablet.h"

namespace support {

namespace {

const QPointingDevice* deviceOf(Tablet::End end)
{
    using Device = QPointingDevice;
    // Never deleted: the toolkit's list of devices may be gone before.
    static const auto* const tip = new Device("tip", 1, Device::DeviceType::Stylus,
                                              Device::PointerType::Pen, Device::Capability::Position, 1, 3);
    static const auto* const eraser =
        new Device("eraser", 2, Device::DeviceType::Stylus, Device::PointerType::Eraser,
                   Device::Capability::Position, 1, 3);
    return end == Tablet::Tip ? tip : eraser;
}

QTabletEvent make(QEvent::Type type, Tablet::End end, QPointF at, QPointF global, Qt::MouseButton button,
                  Qt::MouseButtons buttons)
{
    return {type, deviceOf(end), at, global, 0.5, 0, 0, 0, 0, 0, Qt::NoModifier, button, buttons};
}

} // namespace

void Tablet::enter(End end)
{
    QTabletEvent event = make(QEvent::TabletEnterProximity, end, {}, {}, Qt::NoButton, Qt::NoButton);
    QCoreApplication::sendEvent(qApp, &event);
}

void Tablet::leave(End end)
{
    QTabletEvent event = make(QEvent::TabletLeaveProximity, end, {}, {}, Qt::NoButton, Qt::NoButton);
    QCoreApplication::sendEvent(qApp, &event);
}

bool Tablet::press(QPointF at, End end, Qt::MouseButton button)
{
    m_buttons |= button;
    return send(QEvent::TabletPress, at, end, button);
}

bool Tablet::move(QPointF to, End end)
{
    return send(QEvent::TabletMove, to, end, Qt::NoButton);
}

bool Tablet::hover(QPointF to, End end)
{
    Q_ASSERT(!m_buttons);
    return move(to, end);
}

bool Tablet::release(QPointF at, End end, Qt::MouseButton button)
{
    m_buttons &= ~Qt::MouseButtons(button);
    return send(QEvent::TabletRelease, at, end, button);
}

void Tablet::drag(const QList<QPointF>& path, End end)
{
    press(path.first(), end);
    for (const QPointF& point : path.mid(1))
        move(point, end);
    release(path.last(), end);
}

bool Tablet::send(QEvent::Type type, QPointF at, End end, Qt::MouseButton button)
{
    QWidget* window = m_surface.window();
    const QPointF inWindow = m_surface.mapTo(window, at);
    QTabletEvent event = make(type, end, inWindow, window->mapToGlobal(inWindow), button, m_buttons);
    event.setAccepted(false);
    QCoreApplication::sendEvent(window->windowHandle(), &event);
    return event.isAccepted();
}

} // namespace support
