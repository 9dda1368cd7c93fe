#include "KORVA_PenInput.h"

#include <QCoreApplication>
#include <QPointingDevice>
#include <QTabletEvent>

#include <utility>

namespace {

constexpr int leaving = 500;   // milliseconds after which the hand that held it is gone, too
constexpr int silent = 10'000; // the same, for a pen that was announced and has fallen silent

} // namespace

KORVA_PenInput::KORVA_PenInput(KORVA_Canvas& canvas) : m_stroke(canvas)
{
    QCoreApplication::instance()->installEventFilter(this); // only it is told of pens that come
}

bool KORVA_PenInput::eventFilter(QObject* watched, QEvent* event)
{
    const bool comes = event->type() == QEvent::TabletEnterProximity;
    if ((!comes && event->type() != QEvent::TabletLeaveProximity) ||
        watched != QCoreApplication::instance())
        return false;
    m_isAnnounced = comes;
    m_near.setRemainingTime(comes ? silent : leaving);
    if (comes)
        emit came();
    else
        lift(m_stroke.at());
    return false;
}

bool KORVA_PenInput::takes(QTabletEvent& event)
{
    const bool isPress = event.type() == QEvent::TabletPress && event.button() == Qt::LeftButton;
    m_near.setRemainingTime(m_isAnnounced ? silent : leaving);
    emit came();
    if (!isPress && !isDown())
        return false;
    event.accept();
    if (isPress) {
        lift(m_stroke.at());
        m_isErasing = event.pointerType() == QPointingDevice::PointerType::Eraser;
        if (m_isErasing)
            emit eraserWanted(true);
        m_stroke.press(event.position(), event.pointingDevice());
    } else if (event.type() == QEvent::TabletMove) {
        m_stroke.move(event.position());
    } else if (event.button() == Qt::LeftButton) {
        lift(event.position());
    }
    return true;
}

void KORVA_PenInput::lift(const QPointF& at)
{
    if (!isDown())
        return;
    m_stroke.release(at);
    if (std::exchange(m_isErasing, false))
        emit eraserWanted(false);
}
