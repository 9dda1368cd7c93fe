#pragma once

#include "KORVA_Export.h"

#include <QListWidgetItem>

/// A row of a UTIL_ListBox. Its text() joins the texts of its fields; its check state is the radio mark,
/// which only UTIL_ListBox::checkItem() and the user move.
class KORVA_EXPORT UTIL_ListBoxItem : public QListWidgetItem
{
public:
    UTIL_ListBoxItem();

    /// Sets the text of a field of the list box's layout, 0 the first; nothing for a negative one.
    void setString(int field, const QString& text);
    /// Empty for a field that was never set.
    [[nodiscard]] QString string(int field) const;

    enum Role : int { StringsRole = Qt::UserRole };
};
