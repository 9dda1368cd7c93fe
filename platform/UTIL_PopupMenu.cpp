#include "UTIL_PopupMenu.h"

#include "UTIL_Skin.h"

#include <QProxyStyle>
#include <QStyleFactory>

namespace {

using Size = UTIL_Skin::Size;

class PopupStyle : public QProxyStyle
{
public:
    PopupStyle() : QProxyStyle(QStyleFactory::create("fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        return metric == PM_SmallIconSize ? int(Size::iconWidth)
                                          : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

UTIL_PopupMenu::UTIL_PopupMenu(QWidget* parent) : QMenu(parent)
{
    auto* style = new PopupStyle;
    style->setParent(this);
    setStyle(style);
    setPalette(UTIL_Skin::palette());
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
}

void UTIL_PopupMenu::showEvent(QShowEvent* event)
{
    QMenu::showEvent(event);
    keepInWindow(*this, parentWidget());
}

void UTIL_PopupMenu::keepInWindow(QWidget& popup, const QWidget* owner)
{
    while (owner && owner->windowType() == Qt::Popup)
        owner = owner->parentWidget();
    if (!owner)
        return;
    const QRect room = owner->window()->geometry();
    const int x = qMax(room.left(), qMin(popup.x(), room.right() + 1 - popup.width()));
    const int y = qMax(room.top(), qMin(popup.y(), room.bottom() + 1 - popup.height()));
    popup.move(x, y);
}
