#pragma once

#include <QtCore>

namespace support {

/// A file system of its own on a folder, for as long as it lives: a tmpfs that only this program and those
/// that it starts can see.
class Mount
{
public:
    /// In main(), before there is a second thread: makes mounts possible. Where that is not permitted they
    /// are not there.
    static void enterOwnSpace();

    /// `options` as tmpfs has them ("size=64k"). Makes the folder.
    Mount(const QString& folder, const char* options);
    ~Mount();
    Mount(const Mount&) = delete;
    Mount& operator=(const Mount&) = delete;

    [[nodiscard]] bool isThere() const { return m_isThere; }
    [[nodiscard]] bool setReadOnly() const;

private:
    QByteArray m_folder;
    bool m_isThere;
};

} // namespace support
