#include "KORVA_Stroke.h"

#include "KORVA_Canvas.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Pixel.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>

void KORVA_Stroke::press(const QPointF& at, const QPointingDevice* device)
{
    m_shift = {};
    const bool isOnPiece = m_canvas.ptInPasteLabel(pixel::at(at));
    begin(isOnPiece ? static_cast<QWidget*>(m_canvas.pasteLabel()) : &m_canvas, at, device);
}

void KORVA_Stroke::pressPiece(const QPointF& at, QPoint grip, const QPointingDevice* device)
{
    m_shift = m_canvas.pasteLabel()->pos() + grip - at;
    begin(m_canvas.pasteLabel(), at, device);
}

void KORVA_Stroke::begin(QWidget* receiver, const QPointF& at, const QPointingDevice* device)
{
    m_receiver = receiver;
    m_device = device;
    m_at = at;
    m_keys = Qt::NoModifier;
    if (receiver != &m_canvas)
        send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
}

void KORVA_Stroke::move(const QPointF& to)
{
    if (!isDown() || to == m_at)
        return;
    m_at = to;
    send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
}

void KORVA_Stroke::toggleShift(const QPointF& to)
{
    if (!isDown())
        return;
    m_at = to;
    m_keys ^= Qt::ShiftModifier;
    send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
}

void KORVA_Stroke::release(const QPointF& at)
{
    if (!isDown())
        return;
    m_at = at;
    send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    forget();
}

void KORVA_Stroke::send(int type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    if (!m_receiver)
        return;
    const QScopedValueRollback isHanding(m_isHanding, true);
    const QWidget* surface = m_receiver->nativeParentWidget();
    const QPointF local = m_receiver->mapFrom(&m_canvas, m_at + m_shift);
    QMouseEvent event(
        QEvent::Type(type), local, m_receiver->mapTo(surface ? surface : m_receiver->window(), local),
        m_receiver->mapToGlobal(local), button, buttons, m_keys, Qt::MouseEventSynthesizedByApplication,
        m_device ? m_device.data() : QPointingDevice::primaryPointingDevice()); // unplugged
    QCoreApplication::sendEvent(m_receiver, &event);
}
