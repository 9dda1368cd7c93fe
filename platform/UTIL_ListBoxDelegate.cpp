#include "UTIL_ListBoxDelegate.h"

#include "UTIL_ListBoxItem.h"
#include "UTIL_Skin.h"

#include <QPainter>

namespace {

using Size = UTIL_Skin::Size;
using State = UTIL_Skin::State;

State stateOf(const QStyleOptionViewItem& option, bool pressed, bool marked)
{
    if (!(option.state & QStyle::State_Enabled))
        return State::Disabled;
    if (pressed)
        return State::Pressed;
    if (marked)
        return State::Checked;
    return option.state & QStyle::State_MouseOver ? State::Hovered : State::Resting;
}

} // namespace

UTIL_ListBoxDelegate::UTIL_ListBoxDelegate(const UTIL_ItemLayout& layout, QObject* parent)
    : QStyledItemDelegate(parent), m_layout(layout)
{
}

void UTIL_ListBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const
{
    const bool marked = index.data(Qt::CheckStateRole) == Qt::Checked;
    const State state = stateOf(option, m_pressed == index, marked);
    const UTIL_Skin::Look look = UTIL_Skin::look(UTIL_Skin::Control::Row, state);
    const QRect box =
        option.rect.adjusted(Size::rowInset, Size::hairline, -Size::rowInset, -Size::hairline);
    UTIL_Skin::paintBox(*painter, box, look);
    if (option.state & QStyle::State_HasFocus)
        UTIL_Skin::paintFocus(*painter, box);

    const QStringList strings = index.data(UTIL_ListBoxItem::StringsRole).toStringList();
    painter->setFont(option.font);
    painter->setPen(look.ink);
    int number = 0;
    for (const UTIL_ItemLayout::Field& field : m_layout.fields()) {
        const QRect area = QStyle::visualRect(
            option.direction, option.rect,
            QRect(option.rect.left() + field.left, option.rect.top(), field.width, option.rect.height()));
        if (field.kind == UTIL_ItemLayout::Kind::Radio) {
            UTIL_Skin::paintRadio(*painter, area, marked, state != State::Disabled);
        } else {
            const QString text = strings.value(number);
            UTIL_Skin::paintText(*painter, option.direction, area, Qt::AlignLeft | Qt::AlignVCenter,
                                 option.fontMetrics.elidedText(text, Qt::ElideRight, field.width));
        }
        ++number;
    }
}

QSize UTIL_ListBoxDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    const auto& fields = m_layout.fields();
    return {fields.empty() ? 0 : fields.back().left + fields.back().width, Size::rowHeight};
}
