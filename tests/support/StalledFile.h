#pragma once

#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace support {

/// A file on a device that does not answer: whoever opens it waits until it is let go. After twenty seconds
/// it goes by itself, so that a test that waits for it goes on, and fails.
class StalledFile
{
public:
    /// The file is there, is the user's own, and nobody has it open.
    explicit StalledFile(const QString& fileName);
    ~StalledFile() { letGo(); }
    StalledFile(const StalledFile&) = delete;
    StalledFile& operator=(const StalledFile&) = delete;

    /// Whether somebody waits for it.
    [[nodiscard]] bool isWaitedFor() const;
    /// False when it went by itself.
    bool letGo();

private:
    void letGoInTheEnd();

    int m_handle;
    std::mutex m_mutex;
    std::condition_variable m_isOver;
    bool m_isLetGo = false;
    bool m_wentByItself = false;
    std::thread m_watch;
};

} // namespace support
