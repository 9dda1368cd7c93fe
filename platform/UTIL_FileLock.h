#pragma once

#include <QByteArray>
#include <QString>

/// A file whose lock says that a program is at work: held until the object goes or the process dies,
/// however that happens. Only programs that ask for the lock respect it. Where the file system knows no
/// locks, all get it.
class UTIL_FileLock
{
public:
    explicit UTIL_FileLock(const QString& fileName);
    /// Gives the lock back; the file stays.
    ~UTIL_FileLock();
    UTIL_FileLock(const UTIL_FileLock&) = delete;
    UTIL_FileLock& operator=(const UTIL_FileLock&) = delete;

    /// Takes the lock, making the file where there is none; waits for another holder as long as told. False
    /// when it could not be had.
    [[nodiscard]] bool lock(int milliseconds = 0);
    [[nodiscard]] bool isLocked() const { return m_handle >= 0; }
    /// Gives the lock back and removes the file; nothing where it is not locked.
    void remove();

private:
    enum class Attempt {
        Locked,
        Busy,  ///< another one has it
        Again, ///< the file was removed under our hands
        Failed,
    };
    [[nodiscard]] Attempt attempt();
    void release();

    QByteArray m_fileName;
    int m_handle = -1;
};
