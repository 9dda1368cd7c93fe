#include "UTIL_FocusRing.h"

#include "UTIL_Skin.h"

#include <QPainter>

UTIL_FocusRing::UTIL_FocusRing(QWidget* around) : QWidget(around->parentWidget())
{
    constexpr int reach = UTIL_Skin::Size::focusWidth + UTIL_Skin::Size::focusGap;
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(around->geometry().adjusted(-reach, -reach, reach, reach));
    show();
}

void UTIL_FocusRing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    UTIL_Skin::paintFocus(painter, rect());
}
