#include "KORVA_PenMark.h"

#include <QPainter>

namespace {

constexpr int reach = 9;                  // pixels from the middle to the end of an arm
constexpr int gap = 3;                    // and to where it begins
constexpr int frame = 5;                  // and to the frame
constexpr int side = 2 * (reach + 1) + 1; // with the light edge

} // namespace

KORVA_PenMark::KORVA_PenMark(QWidget* surface) : QWidget(surface)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(side, side);
    hide();
}

void KORVA_PenMark::showAt(QPoint at, bool isPressed)
{
    if (isPressed != m_isPressed) {
        m_isPressed = isPressed;
        update();
    }
    move(at - rect().center());
    raise();
    show();
}

void KORVA_PenMark::paintEvent(QPaintEvent*)
{
    const QPoint middle = rect().center();
    QList<QRect> bars;
    for (const int begin : {-reach, gap}) {
        bars.append(QRect(middle.x() + begin, middle.y(), reach - gap + 1, 1));
        bars.append(QRect(middle.x(), middle.y() + begin, 1, reach - gap + 1));
    }
    if (m_isPressed) {
        constexpr int length = 2 * frame + 1;
        for (const int edge : {-frame, frame}) {
            bars.append(QRect(middle.x() + edge, middle.y() - frame, 1, length));
            bars.append(QRect(middle.x() - frame, middle.y() + edge, length, 1));
        }
    }
    QPainter painter(this);
    for (const QRect& bar : bars)
        painter.fillRect(bar.adjusted(-1, -1, 1, 1), Qt::white);
    for (const QRect& bar : bars)
        painter.fillRect(bar, Qt::black);
}
