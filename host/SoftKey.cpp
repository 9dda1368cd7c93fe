#include "SoftKey.h"

#include "Theme.h"

#include <QPainter>

namespace pad {

namespace {

struct Look
{
    QColor ground;
    QColor frame;
    QColor text;
};

Look lookOf(const QAbstractButton& key)
{
    if (!key.isEnabled())
        return {theme::ground, theme::faintLine, theme::faintInk};
    if (key.isDown())
        return {theme::accent, theme::accent, theme::surface};
    if (key.underMouse())
        return {theme::accentTint, theme::line, theme::ink};
    return {theme::surface, theme::line, theme::ink};
}

} // namespace

SoftKey::SoftKey(const QString& text, QWidget* parent) : QAbstractButton(parent)
{
    setText(text);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    QFont keyFont = font();
    keyFont.setPixelSize(theme::keyTextHeight);
    keyFont.setWeight(QFont::DemiBold);
    setFont(keyFont);
}

QSize SoftKey::sizeHint() const
{
    return theme::leftKey.size();
}

void SoftKey::paintEvent(QPaintEvent*)
{
    constexpr qreal radius = 8;
    constexpr qreal half = 0.5; // a one-pixel frame lies on pixel centres
    const Look look = lookOf(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(look.ground);
    painter.setPen(hasFocus() ? QPen(theme::accent, 2) : QPen(look.frame, 1));
    const qreal inset = hasFocus() ? 1 : half;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.setPen(look.text);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace pad
