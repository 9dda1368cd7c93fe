#pragma once

#include <QDialog>
#include <QPointer>

/// A dialog for as long as somebody runs it. It is on the heap: while its event loop runs, anybody may
/// delete its parent, and the dialog goes with it.
template <typename Dialog>
class UTIL_Modal
{
public:
    /// Takes the dialog over; null is none.
    explicit UTIL_Modal(Dialog* dialog) : m_dialog(dialog) {}
    ~UTIL_Modal() { delete m_dialog; }
    UTIL_Modal(const UTIL_Modal&) = delete;
    UTIL_Modal& operator=(const UTIL_Modal&) = delete;

    /// What QDialog::exec() tells. Where the dialog has gone afterwards, its parent has, too, and often who
    /// has called this.
    int run() { return m_dialog->exec(); }
    /// Runs the dialog: whether it was accepted and is still there.
    [[nodiscard]] bool isAccepted() { return run() == QDialog::Accepted && m_dialog; }

    /// Whether it is still there.
    explicit operator bool() const { return !m_dialog.isNull(); }
    Dialog* operator->() const { return m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};
