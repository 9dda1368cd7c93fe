#include "Folders.h"

#include <QDir>

namespace pad {

QString recoveryFolder()
{
    const QString state = qEnvironmentVariable("XDG_STATE_HOME"); // must be absolute, or does not count
    return (QDir::isAbsolutePath(state) ? state : QDir::homePath() + "/.local/state") + "/korva";
}

} // namespace pad
