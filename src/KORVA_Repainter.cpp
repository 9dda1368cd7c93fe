#include "KORVA_Repainter.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

/// Of the screen that it is on, in milliseconds.
int frameOf(const QWidget& widget)
{
    constexpr int second = 1000;
    constexpr int shortest = 4;
    constexpr int longest = 16;
    return std::clamp(int(second / widget.screen()->refreshRate()), shortest, longest);
}

} // namespace

void KORVA_Repainter::add(const QRect& changed)
{
    m_changed |= changed;
    if (!m_sinceLast.isValid() || m_sinceLast.elapsed() >= m_frame)
        repaint();
    else if (!m_timer.isActive())
        m_timer.start(m_frame, Qt::PreciseTimer, this); // in a steady stream, a change comes before it
}

void KORVA_Repainter::timerEvent(QTimerEvent*)
{
    repaint();
}

void KORVA_Repainter::repaint()
{
    m_timer.stop();
    m_frame = frameOf(*m_widget);
    m_widget->repaint(std::exchange(m_changed, {}));
    m_sinceLast.start();
}
