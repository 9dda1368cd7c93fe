#include "EventLoop.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QThread>

namespace support {

void strike(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

bool comesWithoutEvents(const std::function<bool()>& condition)
{
    constexpr int patience = 30'000;
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(10);
    }
    return true;
}

FirstTurn::FirstTurn()
{
    m_since.start();
    m_timer.callOnTimeout([this] {
        if (m_after < 0)
            m_after = m_since.elapsed();
    });
    m_timer.start(0);
}

bool FirstTurn::isNotBefore(int milliseconds) const
{
    return m_after < 0 || m_after >= milliseconds;
}

} // namespace support
