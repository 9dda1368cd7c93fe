#include "UTIL_ScrollBar.h"

#include "UTIL_Skin.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace {

constexpr int gap = 3; // pixels between the slider and the edges of its groove

} // namespace

UTIL_ScrollBar::UTIL_ScrollBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent)
{
    setAccessibleName(orientation == Qt::Horizontal ? tr("Scroll sideways", "screen reader")
                                                    : tr("Scroll up and down", "screen reader"));
}

void UTIL_ScrollBar::paintEvent(QPaintEvent*)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto place = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_ScrollBar, &option, part, this);
    };
    const bool lies = orientation() == Qt::Horizontal;
    QPainter painter(this);
    painter.fillRect(rect(), UTIL_Skin::color(UTIL_Skin::Color::Ground));

    const bool isIdle = !isEnabled() || minimum() == maximum();
    const UTIL_Skin::State state = isIdle           ? UTIL_Skin::State::Disabled
                                   : isSliderDown() ? UTIL_Skin::State::Pressed
                                   : underMouse()   ? UTIL_Skin::State::Hovered
                                                    : UTIL_Skin::State::Resting;
    UTIL_Skin::Look look = UTIL_Skin::look(UTIL_Skin::Control::Key, state);
    for (const auto& [part, turn] : {std::pair(QStyle::SC_ScrollBarSubLine, lies ? 90 : 180),
                                     std::pair(QStyle::SC_ScrollBarAddLine, lies ? -90 : 0)}) {
        painter.save();
        painter.translate(QRectF(place(part)).center());
        painter.rotate(turn);
        UTIL_Skin::paintChevron(painter, QPoint(0, 0), look);
        painter.restore();
    }
    if (isIdle)
        return;

    const QRect slider = place(QStyle::SC_ScrollBarSlider);
    const QRect box = lies ? slider.adjusted(1, gap, -1, -gap) : slider.adjusted(gap, 1, -gap, -1);
    look.fill = look.border;
    UTIL_Skin::paintBox(painter, box, look);
}
