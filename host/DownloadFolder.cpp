#include "DownloadFolder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace pad {

DownloadFolder::DownloadFolder()
{
    constexpr auto variable = "KIV_LOCAL_DOWNLOAD_PATH";
    if (!qEnvironmentVariableIsEmpty(variable))
        return;
    for (const auto place : {QStandardPaths::CacheLocation, QStandardPaths::TempLocation}) {
        const QString above = QStandardPaths::writableLocation(place);
        QDir().mkpath(above);
        m_own = std::make_unique<QTemporaryDir>(above + QStringLiteral("/korva-XXXXXX"));
        if (m_own->isValid() && QDir(m_own->path()).mkdir(QStringLiteral("appwrite"))) {
            qputenv(variable, QFile::encodeName(m_own->path()));
            return;
        }
    }
}

} // namespace pad
