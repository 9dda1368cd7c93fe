#pragma once

#include <QByteArray>
#include <QString>

/// A lock file, which says that a program is at work. The lock is held until the object goes or the process
/// dies, however that happens. Only programs that ask for the lock respect it. On a file system without
/// locks every program gets it.
class UTIL_FileLock
{
public:
    explicit UTIL_FileLock(const QString& fileName);
    /// Gives the lock back; the file stays.
    ~UTIL_FileLock();
    UTIL_FileLock(const UTIL_FileLock&) = delete;
    UTIL_FileLock& operator=(const UTIL_FileLock&) = delete;

    /// Takes the lock, making the file if there is none. Waits this long for another holder. False when the
    /// lock could not be taken.
    [[nodiscard]] bool lock(int milliseconds = 0);
    [[nodiscard]] bool isLocked() const { return m_handle >= 0; }
    /// Gives the lock back and removes the file. Does nothing if it is not locked.
    void remove();

private:
    enum class Attempt {
        Locked,
        Busy,  ///< somebody else has it
        Again, ///< the file was removed in the meantime
        Failed,
    };
    [[nodiscard]] Attempt attempt();
    void release();

    QByteArray m_fileName;
    int m_handle = -1;
};
