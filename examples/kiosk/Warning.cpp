#include "Warning.h"

#include "Words.h"

#include <UTIL_Skin.h>

#include <QPainter>

namespace {

constexpr Word askWord{"Are you still there?", "Bist du noch da?"};
constexpr Word touchWord{"Touch the screen to draw on.", "Tippe auf den Bildschirm, um weiterzumalen."};
constexpr QSize card(480, 220);

} // namespace

Warning::Warning(QWidget* kiosk) : QWidget(kiosk, Qt::Dialog | Qt::FramelessWindowHint)
{
    setWindowModality(Qt::ApplicationModal);
    setPalette(UTIL_Skin::palette());
}

void Warning::count(int secondsLeft)
{
    m_secondsLeft = secondsLeft;
    if (isHidden()) {
        m_behind = parentWidget()->grab();
        setGeometry(parentWidget()->geometry());
        show();
    }
    update();
}

void Warning::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_behind);
    painter.fillRect(rect(), QColor(0, 0, 0, 160));
    QRect place(QPoint(), card);
    place.moveCenter(rect().center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().window());
    painter.drawRoundedRect(place, 12, 12);

    painter.setPen(palette().windowText().color());
    const auto write = [&](int y, int height, int pixels, const QString& text) {
        QFont large = font();
        large.setPixelSize(pixels);
        painter.setFont(large);
        painter.drawText(QRect(place.left(), place.top() + y, place.width(), height), Qt::AlignCenter,
                         text);
    };
    write(16, 44, 28, askWord.text());
    write(60, 100, 72, QString::number(m_secondsLeft));
    write(164, 40, 18, touchWord.text());
}
