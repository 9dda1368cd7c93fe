#include "RES_ICON_Reader.h"

#include "UTIL_Platform.h"
#include "UTIL_Skin.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <cmath>

// A resource of a static library is linked only if somebody refers to it. The macro does not work in a
// namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

constexpr int sharpest = 3;

QPixmap sharpestOf(const QDir& folder, const QString& name)
{
    const QFileInfo plain(name);
    for (int scale = std::clamp(int(std::ceil(qGuiApp->devicePixelRatio())), 1, sharpest); scale > 0;
         --scale) {
        const QString mark = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
        const QString file =
            folder.filePath(plain.completeBaseName() + mark + QLatin1Char('.') + plain.suffix());
        QPixmap icon; // gets its device pixel ratio from the mark in the name
        if (QFileInfo(file).isFile() && icon.load(file))
            return icon;
    }
    return {};
}

/// Pictures of tools and options; all others keep their own colors.
bool isLineDrawing(const QString& name)
{
    return name.startsWith(QLatin1String("DaApV_")) &&
           !name.startsWith(QLatin1String("DaApV_Color_Picker_"));
}

} // namespace

QPixmap RES_ICON_Reader::getIcon(const QString& name)
{
    if (name.isEmpty() || name.contains(QLatin1Char('/')))
        return {};
    registerIcons();
    const QString replaced = UTIL_Platform::instance()->iconFolder();
    const QPixmap icon = replaced.isEmpty() ? QPixmap() : sharpestOf(QDir(replaced), name);
    if (!icon.isNull())
        return icon;
    const QPixmap builtIn = sharpestOf(QDir(QStringLiteral(":/korva/icons")), name);
    return isLineDrawing(name) ? UTIL_Skin::recolored(builtIn) : builtIn;
}
