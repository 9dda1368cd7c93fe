#pragma once

#include <KORVA_Journal.h>
#include <UTIL_Dialog.h>

class QListWidget;

namespace pad {

/// The drawings that were kept, the newest first, with the time of each; one may be chosen.
class EarlierDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    EarlierDialog(QWidget* parent, const QList<KORVA_Journal::Entry>& entries);

    /// After it was accepted.
    [[nodiscard]] KORVA_Journal::Entry chosen() const;

    /// A time as people say it: "today at 14:32".
    [[nodiscard]] static QString timeText(const QDateTime& time);

private:
    [[nodiscard]] static QPixmap thumbnail(const KORVA_Journal::Entry& entry);

    QList<KORVA_Journal::Entry> m_entries;
    QListWidget* m_list;
};

} // namespace pad
