#include "KORVA_Repainter.h"

#include <QWidget>

#include <cmath>
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
        m_timer.start(interval, Qt::PreciseTimer, this); // a steady stream of changes comes before it
}

void KORVA_Repainter::timerEvent(QTimerEvent*)
{
    repaint();
}

void KORVA_Repainter::repaint()
{
    m_timer.stop();
    QRect changed = std::exchange(m_changed, {});
    // Between whole ratios a pixel reaches a little over the edge that the toolkit rounds it to.
    if (const double ratio = m_widget->devicePixelRatio(); ratio != std::floor(ratio))
        changed.adjust(-1, -1, 1, 1);
    m_widget->repaint(changed);
    m_sinceLast.start();
}
