#include "StalledFile.h"

#include <QFile>
#include <QtTest>

#include <chrono>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace support {

StalledFile::StalledFile(const QString& fileName)
    : m_handle(open(QFile::encodeName(fileName).constData(), O_RDWR | O_CLOEXEC))
{
    std::signal(SIGIO, SIG_IGN); // tells the holder of a lease that somebody waits for it
    if (fcntl(m_handle, F_SETLEASE, F_WRLCK) != 0)
        QTest::qFail("the file cannot be stalled", __FILE__, __LINE__);
    m_watch = std::thread(&StalledFile::letGoInTheEnd, this);
}

bool StalledFile::isWaitedFor() const
{
    return fcntl(m_handle, F_GETLEASE) != F_WRLCK; // but what it is to become
}

bool StalledFile::letGo()
{
    if (m_watch.joinable()) {
        {
            const std::lock_guard lock(m_mutex);
            m_isLetGo = true;
        }
        m_isOver.notify_one();
        m_watch.join();
    }
    return !m_wentByItself;
}

void StalledFile::letGoInTheEnd()
{
    constexpr std::chrono::seconds longTime(20); // the kernel would take 45
    std::unique_lock lock(m_mutex);
    m_wentByItself = !m_isOver.wait_for(lock, longTime, [this] { return m_isLetGo; });
    fcntl(m_handle, F_SETLEASE, F_UNLCK);
    close(m_handle);
}

} // namespace support
