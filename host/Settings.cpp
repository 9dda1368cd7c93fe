#include "Settings.h"

#include <QStandardPaths>

namespace pad {

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/korva/pad.conf");
}

} // namespace pad
