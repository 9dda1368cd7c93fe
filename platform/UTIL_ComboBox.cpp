#include "UTIL_ComboBox.h"

#include "UTIL_PopupMenu.h"
#include "UTIL_PopupStyle.h"
#include "UTIL_Skin.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>

namespace {

using Size = UTIL_Skin::Size;

} // namespace

UTIL_ComboBox::UTIL_ComboBox(QWidget* parent) : QComboBox(parent)
{
    setStyle(new UTIL_PopupStyle(this));
    setPalette(UTIL_Skin::palette());
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
    setAttribute(Qt::WA_Hover);
    QPalette list = UTIL_Skin::palette();
    list.setColor(QPalette::Window, UTIL_Skin::color(UTIL_Skin::Color::Surface)); // as a menu's
    view()->setPalette(list);
    view()->setFont(font());
}

void UTIL_ComboBox::showPopup()
{
    QComboBox::showPopup();
    UTIL_PopupMenu::keepInWindow(*view()->window(), this);
}

void UTIL_ComboBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        showPopup();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void UTIL_ComboBox::paintEvent(QPaintEvent*)
{
    UTIL_Skin::State state = UTIL_Skin::State::Resting;
    if (!isEnabled()) {
        state = UTIL_Skin::State::Disabled;
    } else if (view()->isVisible()) {
        state = UTIL_Skin::State::Pressed;
    } else if (underMouse()) {
        state = UTIL_Skin::State::Hovered;
    }
    const UTIL_Skin::Look look = UTIL_Skin::look(UTIL_Skin::Control::Key, state);

    QPainter painter(this);
    UTIL_Skin::paintBox(painter, rect(), look);
    if (hasFocus())
        UTIL_Skin::paintFocus(painter, rect());

    const QRect inside = rect().adjusted(Size::keyPadding, 0, -Size::keyPadding, 0);
    const QRect text = inside.adjusted(0, 0, -2 * Size::chevron - Size::keyPadding, 0);
    painter.setPen(look.ink);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()));
    UTIL_Skin::paintChevron(painter, QPoint(inside.right() - Size::chevron, inside.center().y()), look);
}
