#pragma once

#include <QTemporaryDir>

#include <memory>

namespace pad {

/// Where drawings are encoded before they are moved into place: KIV_LOCAL_DOWNLOAD_PATH, and where that is
/// unset a folder of this run's own under the user's cache, which goes with the object.
class DownloadFolder
{
public:
    DownloadFolder();

private:
    std::unique_ptr<QTemporaryDir> m_own;
};

} // namespace pad
