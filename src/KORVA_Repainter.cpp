#include "KORVA_Repainter.h"

#include <QWidget>

#include <utility>

namespace {

constexpr int interval = 8; // milliseconds: half a frame of most screens

} // namespace

void KORVA_Repainter::add(const QRegion& changed)
{
    m_changed += changed;
    const qint64 elapsed = m_sinceLast.isValid() ? m_sinceLast.elapsed() : interval;
    if (elapsed >= interval)
        repaint();
    else if (!m_timer.isActive())
        m_timer.start(static_cast<int>(interval - elapsed), Qt::PreciseTimer, this);
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
