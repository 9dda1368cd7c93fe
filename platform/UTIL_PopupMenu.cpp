#include "UTIL_PopupMenu.h"

#include "UTIL_PopupStyle.h"
#include "UTIL_Skin.h"

UTIL_PopupMenu::UTIL_PopupMenu(QWidget* parent) : QMenu(parent)
{
    setStyle(new UTIL_PopupStyle(this));
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
