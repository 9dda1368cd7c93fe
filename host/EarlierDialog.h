#pragma once

#include <KORVA_Journal.h>
#include <UTIL_Dialog.h>

class QListWidget;

namespace pad {

/// The dialog that shows the earlier drawings with their times, newest first. The person may choose one.
class EarlierDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    EarlierDialog(QWidget* parent, const QList<KORVA_Journal::Entry>& entries);

    /// The entry that was chosen; only after the dialog was accepted.
    [[nodiscard]] KORVA_Journal::Entry chosen() const;

    /// A time as people say it: "today at 14:32".
    [[nodiscard]] static QString timeText(const QDateTime& time);

private:
    [[nodiscard]] static QPixmap thumbnail(const KORVA_Journal::Entry& entry);

    QList<KORVA_Journal::Entry> m_entries;
    QListWidget* m_list;
};

} // namespace pad
