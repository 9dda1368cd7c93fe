#pragma once

#include <QTemporaryDir>

#include <memory>

namespace pad {

/// The folder in which drawings are encoded before they are moved into place: KIV_LOCAL_DOWNLOAD_PATH. If
/// that is unset, it is a folder for this run under the user's cache, which is removed with the object.
class DownloadFolder
{
public:
    DownloadFolder();

private:
    std::unique_ptr<QTemporaryDir> m_own;
};

} // namespace pad
