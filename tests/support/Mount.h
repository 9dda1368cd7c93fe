#pragma once

#include <QtCore>

namespace support {

/// A file system of its own, in memory, under a folder that is made for it, for as long as it lives. Only
/// this program and its children see it.
class Mount
{
public:
    /// Makes mounts possible, where that is permitted: before anything else happens in main().
    static void allow();

    /// `options` are the kernel's: "size=64k".
    Mount(const QString& folder, const char* options);
    /// Shows another folder a second time: the same file system by a mount of its own.
    Mount(const QString& folder, const QString& shown);
    ~Mount();
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;

    /// False where mounting is not permitted.
    [[nodiscard]] bool isThere() const { return m_isThere; }
    /// Whether nothing can be written there from now on, or something again.
    [[nodiscard]] bool setReadOnly(bool isReadOnly = true) const;

private:
    QByteArray m_folder;
    bool m_isThere;
};

} // namespace support
