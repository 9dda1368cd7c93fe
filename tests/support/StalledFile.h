#pragma once

#include <QString>

namespace support {

/// A file on a device that does not answer: whoever opens it waits until it is let go.
class StalledFile
{
public:
    /// The file is there, is the user's own, and nobody has it open.
    explicit StalledFile(const QString& fileName);
    ~StalledFile() { letGo(); }
    StalledFile(const StalledFile&) = delete;
    StalledFile& operator=(const StalledFile&) = delete;

    void letGo();

private:
    int m_handle;
};

} // namespace support
