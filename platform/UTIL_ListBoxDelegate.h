#pragma once

#include "UTIL_ItemLayout.h"

#include <QStyledItemDelegate>

/// Paints the rows of a list box: their fields, the radio mark, and the highlight of the row that is under
/// the finger or has the keyboard.
class UTIL_ListBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    UTIL_ListBoxDelegate(const UTIL_ItemLayout& layout, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

    /// The row under the finger; an invalid index for none.
    void setPressed(const QModelIndex& index) { m_pressed = index; }

private:
    UTIL_ItemLayout m_layout;
    QPersistentModelIndex m_pressed;
};
