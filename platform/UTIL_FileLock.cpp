#include "UTIL_FileLock.h"

#include "UTIL_Sync.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int pauseTime = 10; // milliseconds

/// Whether the name still refers to the open file.
bool isAt(const QByteArray& fileName, int handle)
{
    struct stat named = {};
    struct stat opened = {};
    return stat(fileName.constData(), &named) == 0 && fstat(handle, &opened) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

} // namespace

UTIL_FileLock::UTIL_FileLock(const QString& fileName) : m_fileName(QFile::encodeName(fileName)) {}

UTIL_FileLock::~UTIL_FileLock()
{
    release();
}

bool UTIL_FileLock::lock(int milliseconds)
{
    if (isLocked())
        return true;
    const QDeadlineTimer deadline(milliseconds);
    for (;;) {
        const Attempt result = attempt();
        if (result == Attempt::Locked || result == Attempt::Failed)
            return result == Attempt::Locked;
        if (deadline.hasExpired())
            return false;
        if (result == Attempt::Busy)
            QThread::msleep(pauseTime);
    }
}

UTIL_FileLock::Attempt UTIL_FileLock::attempt()
{
    constexpr mode_t everybodyMayTry = 0644;
    constexpr int waitForNobody = O_NONBLOCK; // opening a pipe would wait for its other end
    m_handle = util::repeated([this] {
        return open(m_fileName.constData(), O_RDONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | waitForNobody,
                    everybodyMayTry);
    });
    if (m_handle < 0)
        return Attempt::Failed;
    if (flock(m_handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        release();
        return Attempt::Busy;
    }
    // The last holder may have removed the file between the two steps; then this lock guards nothing.
    if (isAt(m_fileName, m_handle))
        return Attempt::Locked;
    release();
    return Attempt::Again;
}

void UTIL_FileLock::remove()
{
    if (!isLocked())
        return;
    unlink(m_fileName.constData());
    release();
}

void UTIL_FileLock::release()
{
    if (m_handle >= 0)
        close(m_handle);
    m_handle = -1;
}
