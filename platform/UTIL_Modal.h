#pragma once

#include <QDialog>
#include <QPointer>

/// Owns a dialog while it runs. The dialog is on the heap: while its event loop runs, anybody may delete
/// its parent, and the dialog with it.
template <typename Dialog>
class UTIL_Modal
{
public:
    /// Takes ownership of the dialog; null is allowed.
    explicit UTIL_Modal(Dialog* dialog) : m_dialog(dialog) {}
    ~UTIL_Modal() { delete m_dialog; }
    UTIL_Modal(const UTIL_Modal&) = delete;
    UTIL_Modal& operator=(const UTIL_Modal&) = delete;

    /// Returns what QDialog::exec() returns. If the dialog is gone afterwards, so is its parent, and often
    /// the caller of this function.
    int run() { return m_dialog->exec(); }
    /// Runs the dialog. Whether it was accepted and still exists.
    [[nodiscard]] bool isAccepted() { return run() == QDialog::Accepted && m_dialog; }

    /// Whether the dialog still exists.
    explicit operator bool() const { return !m_dialog.isNull(); }
    Dialog* operator->() const { return m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};
