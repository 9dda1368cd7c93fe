#include "KORVA_Repainter.h"

#include <QWidget>

#include <utility>

namespace {

constexpr int interval = 8; // milliseconds: half a frame of most screens

} // namespace

void KORVA_Repainter::add(const QRect& changed)
{
    m_changed |= changed;
    if (!m_sinceLast.isValid() || m_sinceLast.elapsed() >= interval)
        repaint();
    else if (!m_timer.isActive())
        m_timer.start(interval, Qt::PreciseTimer, this); // in a steady stream, a change comes before it
}

void KORVA_Repainter::timerEvent(QTimerEvent*)
{
    repaint();
}

void KORVA_Repainter::repaint()
{
    m_timer.stop();
    m_widget->repaint(std::exchange(m_changed, {}));
    m_sinceLast.start();
}
