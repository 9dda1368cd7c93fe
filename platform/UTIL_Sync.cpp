#include "UTIL_Sync.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

bool util::sync(int handle)
{
    return repeated([handle] { return fsync(handle); }) == 0;
}

void util::syncFolder(const QString& folder)
{
    const QByteArray path = QFile::encodeName(folder);
    const int handle =
        repeated([&path] { return open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (handle < 0)
        return;
    [[maybe_unused]] const bool mayFail = sync(handle);
    close(handle);
}
