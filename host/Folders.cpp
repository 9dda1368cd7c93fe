#include "Folders.h"

#include <QDir>

namespace pad {

QString recoveryFolder()
{
    const QString state = qEnvironmentVariable("XDG_STATE_HOME"); // counts only if it is absolute
    return (QDir::isAbsolutePath(state) ? state : QDir::homePath() + "/.local/state") + "/korva";
}

} // namespace pad
