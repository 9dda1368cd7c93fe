#include "StalledFile.h"

#include <QFile>
#include <QtTest>

#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace support {

StalledFile::StalledFile(const QString& fileName)
    : m_handle(open(QFile::encodeName(fileName).constData(), O_RDWR | O_CLOEXEC))
{
    std::signal(SIGIO, SIG_IGN); // tells the holder of a lease that somebody waits for it
    if (fcntl(m_handle, F_SETLEASE, F_WRLCK) != 0)
        QTest::qFail("the file cannot be stalled", __FILE__, __LINE__);
}

void StalledFile::letGo()
{
    if (m_handle < 0)
        return;
    fcntl(m_handle, F_SETLEASE, F_UNLCK);
    close(std::exchange(m_handle, -1));
}

} // namespace support
