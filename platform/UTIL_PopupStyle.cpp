#include "UTIL_PopupStyle.h"

#include "UTIL_Skin.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

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

/// Qt's frame is darker than its content, and cannot be seen on a dark ground.
void UTIL_PopupStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                    const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QColor ground = UTIL_Skin::color(UTIL_Skin::Color::Ground);
    if (element != PE_PanelMenu ||
        ground.lightness() >= UTIL_Skin::color(UTIL_Skin::Color::Ink).lightness())
        return;
    painter->setPen(UTIL_Skin::color(UTIL_Skin::Color::Edge));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -Size::hairline, -Size::hairline));
}

int UTIL_PopupStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                               QStyleHintReturn* data) const
{
    // Otherwise long menus get columns, which leave the screen.
    return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, data);
}

QSize UTIL_PopupStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                        const QSize& contents, const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_MenuItem ? size.expandedTo(QSize(0, Size::menuRowHeight)) : size;
}
