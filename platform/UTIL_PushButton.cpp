#include "UTIL_PushButton.h"

#include "RES_ICON_Reader.h"
#include "UTIL_Accessible.h"
#include "UTIL_Skin.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace {

using Size = UTIL_Skin::Size;

UTIL_Skin::State stateOf(const QPushButton& button)
{
    if (!button.isEnabled())
        return UTIL_Skin::State::Disabled;
    if (button.isDown())
        return UTIL_Skin::State::Pressed;
    if (button.isChecked())
        return UTIL_Skin::State::Checked;
    return button.underMouse() ? UTIL_Skin::State::Hovered : UTIL_Skin::State::Resting;
}

} // namespace

UTIL_PushButton::UTIL_PushButton(const QString& iconName, const QString& text, QWidget* parent,
                                 const char* name)
    : QPushButton(text, parent)
{
    accessible::installControls();
    setObjectName(name);
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Key));
    setAttribute(Qt::WA_Hover);
    if (const QPixmap icon = RES_ICON_Reader::getIcon(iconName); !icon.isNull()) {
        setIcon(icon);
        setIconSize(icon.deviceIndependentSize().toSize());
    }
}

void UTIL_PushButton::setFlags(int flags)
{
    m_flags = flags;
    setDefault(flags & FirstSoftKey);
    update();
}

QSize UTIL_PushButton::sizeHint() const
{
    int width = 2 * Size::keyPadding;
    if (!icon().isNull())
        width += iconSize().width() + (text().isEmpty() ? 0 : Size::spacing);
    if (!text().isEmpty())
        width += fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return {width, Size::keyHeight};
}

QSize UTIL_PushButton::minimumSizeHint() const
{
    return {Size::keyHeight, Size::keyHeight};
}

void UTIL_PushButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

void UTIL_PushButton::paintEvent(QPaintEvent*)
{
    const UTIL_Skin::State state = stateOf(*this);
    UTIL_Skin::Look look =
        UTIL_Skin::look(isDefault() ? UTIL_Skin::Control::PrimaryKey : UTIL_Skin::Control::Key, state);
    if (!(m_flags & Outlined) && state == UTIL_Skin::State::Resting)
        look.border = look.fill;

    QPainter painter(this);
    // A key with only an icon has no room for the ring.
    const int ring = hasFocus() && !text().isEmpty() ? Size::focusWidth + Size::focusGap : 0;
    UTIL_Skin::paintBox(painter, rect().adjusted(ring, ring, -ring, -ring), look);

    const int iconWidth = icon().isNull() ? 0 : iconSize().width();
    const int gap = iconWidth && !text().isEmpty() ? Size::spacing : 0;
    const QString shown = fontMetrics().elidedText(
        text(), Qt::ElideRight, width() - 2 * Size::keyPadding - iconWidth - gap, Qt::TextShowMnemonic);
    const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, shown).width();
    QRect line(0, 0, iconWidth + gap + textWidth, height());
    line.moveCenter(rect().center());

    const QRect iconPlace =
        QStyle::visualRect(layoutDirection(), line, QRect(line.left(), 0, iconWidth, height()));
    const QRect textPlace =
        QStyle::visualRect(layoutDirection(), line, line.adjusted(iconWidth + gap, 0, 0, 0));

    painter.setPen(look.ink);
    icon().paint(&painter, iconPlace, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    UTIL_Skin::paintText(painter, layoutDirection(), textPlace,
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, shown);
    if (hasFocus())
        UTIL_Skin::paintFocus(painter, rect()); // last: an icon may be as large as the key
}
