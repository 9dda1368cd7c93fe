#pragma once

#include <QObject>
#include <QPointer>

class QDialog;
class QWidget;

/// Shows a dialog as a part of the window that it belongs to, for displays that let no program place its
/// windows. Until the overlay ends, the dialog is a child of that window and modal to the whole program:
/// other widgets get neither pointer nor keys, shortcuts do nothing, and the window does not close. Pop-ups
/// and dialogs that open over the dialog work as usual.
class UTIL_Overlay : public QObject
{
    Q_OBJECT

public:
    /// Whether the display is of that kind and the dialog fits into the window.
    [[nodiscard]] static bool suits(const QDialog& dialog, const QWidget* window);

    /// Moves the dialog into the middle of the window and gives it the keyboard. The dialog is hidden at
    /// this time, and outlives the overlay.
    UTIL_Overlay(QDialog& dialog, QWidget& window);
    /// Gives the keyboard back to the widget that had it.
    ~UTIL_Overlay() override;

    /// Gives the dialog its own parent back, once it is hidden again. Not for the dialog's destructor.
    void giveBack();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void endWithParent();
    void centre();
    void takeKeyboard();
    [[nodiscard]] bool isAbove(const QWidget& widget) const;

    QDialog& m_dialog;
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_parent; ///< the dialog's own
    Qt::WindowFlags m_flags;    ///< the dialog's own
    QPointer<QWidget> m_focus;  ///< had the keyboard in the window before
};
