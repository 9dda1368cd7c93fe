#include "UTIL_ListBoxItem.h"

UTIL_ListBoxItem::UTIL_ListBoxItem()
{
    setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    setCheckState(Qt::Unchecked);
}

void UTIL_ListBoxItem::setString(int field, const QString& text)
{
    if (field < 0)
        return;
    QStringList strings = data(StringsRole).toStringList();
    while (strings.size() <= field)
        strings.append(QString());
    strings[field] = text;
    setData(StringsRole, strings);
    strings.removeAll(QString());
    setText(strings.join(QLatin1Char(' ')));
}

QString UTIL_ListBoxItem::string(int field) const
{
    return data(StringsRole).toStringList().value(field);
}
