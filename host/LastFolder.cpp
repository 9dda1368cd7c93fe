#include "LastFolder.h"

#include "Settings.h"

#include <UTIL_PictureDialog.h>
#include <UTIL_Platform.h>

#include <QFileInfo>
#include <QSettings>

namespace pad {

namespace {

const QString folderKey = QStringLiteral("folders/last");
const QString orderKey = QStringLiteral("folders/order");

} // namespace

void LastFolder::remember()
{
    m_isRemembered = true;
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    m_path = settings.value(folderKey).toString();
    const int order = settings.value(orderKey).toInt();
    UTIL_PictureDialog::setOrder(order == UTIL_PictureDialog::NewestFirst ? UTIL_PictureDialog::NewestFirst
                                                                          : UTIL_PictureDialog::ByName);
}

QString LastFolder::path(const UTIL_Platform& platform) const
{
    return !m_path.isEmpty() && QFileInfo(m_path).isDir() ? m_path : platform.photoFolder();
}

void LastFolder::note(const QString& fileName)
{
    m_path = QFileInfo(fileName).absolutePath();
    if (!m_isRemembered)
        return;
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(folderKey, m_path);
    settings.setValue(orderKey, int(UTIL_PictureDialog::order()));
}

} // namespace pad
