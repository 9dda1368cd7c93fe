#pragma once

#include "KORVA_Export.h"

#include <QListWidgetItem>

/// A row of a UTIL_ListBox. Its text() joins the texts of its fields. Its check state is the radio mark,
/// which only UTIL_ListBox::checkItem() and the user move.
class KORVA_EXPORT UTIL_ListBoxItem : public QListWidgetItem
{
public:
    /// A row without texts or mark.
    UTIL_ListBoxItem();

    /// Sets the text of a field of the list box's layout, 0 for the first. Does nothing for a negative
    /// number.
    void setString(int field, const QString& text);
    /// The text of a field; empty for one that was never set.
    [[nodiscard]] QString string(int field) const;

    /// The item's data beside Qt's own.
    enum Role : int {
        StringsRole = Qt::UserRole, ///< the texts of the fields, a QStringList
    };
};
