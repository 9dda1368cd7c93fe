#include "Theme.h"

#include <UTIL_Skin.h>

#include <QApplication>

namespace pad::theme {

void apply()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setPalette(UTIL_Skin::palette());
    QFont font = QApplication::font();
    font.setPixelSize(smallText);
    QApplication::setFont(font);
}

} // namespace pad::theme
