#pragma once

#include <KORVA_Journal.h>
#include <UTIL_Dialog.h>

#include <QFutureWatcher>

class QListWidget;

namespace pad {

/// The dialog that shows the earlier drawings with their times, newest first. The person may choose one.
/// Large drawings are shown as they are read, in another thread; three dots stand for them until then.
class EarlierDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    EarlierDialog(QWidget* parent, const QList<KORVA_Journal::Entry>& entries);
    ~EarlierDialog() override;

    /// The entry that was chosen; only after the dialog was accepted.
    [[nodiscard]] KORVA_Journal::Entry chosen() const;

    /// A time as people say it: "today at 14:32".
    [[nodiscard]] static QString timeText(const QDateTime& time);

private:
    /// A row's drawing, small.
    struct Small
    {
        int row;
        QImage picture;
    };

    void read();
    void show(const Small& small);

    QList<KORVA_Journal::Entry> m_entries;
    QListWidget* m_list;
    QFutureWatcher<Small> m_reading;
};

} // namespace pad
