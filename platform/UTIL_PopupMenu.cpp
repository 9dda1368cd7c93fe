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
    const QRect room = this->room();
    const int x = qMax(room.left(), qMin(this->x(), room.right() + 1 - width()));
    const int y = qMax(room.top(), qMin(this->y(), room.bottom() + 1 - height()));
    move(x, y);
}

QRect UTIL_PopupMenu::room() const
{
    const QWidget* owner = parentWidget();
    while (owner && owner->windowType() == Qt::Popup)
        owner = owner->parentWidget();
    return owner ? owner->window()->geometry() : geometry();
}
