#include "UTIL_PopupStyle.h"

#include "UTIL_Skin.h"

#include <QStyleFactory>

namespace {

using Size = UTIL_Skin::Size;

} // namespace

UTIL_PopupStyle::UTIL_PopupStyle(QObject* owner)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
{
    setParent(owner);
}

int UTIL_PopupStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                 const QWidget* widget) const
{
    switch (metric) {
    case PM_SmallIconSize:
        return Size::iconWidth;
    case PM_MenuVMargin:
        return Size::rowInset;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize UTIL_PopupStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                        const QSize& contents, const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_MenuItem ? size.expandedTo(QSize(0, Size::menuRowHeight)) : size;
}
