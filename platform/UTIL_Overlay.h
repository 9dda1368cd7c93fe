#pragma once

#include <QObject>
#include <QPointer>

class QDialog;
class QWidget;

/// Shows a dialog as a part of the window that it belongs to, for displays that let no program say where
/// its windows go. Until the overlay ends, the dialog is a child of that window and modal to the whole
/// program: other widgets get neither pointer nor keys, shortcuts rest and the window does not close.
/// Pop-ups and dialogs that open over the dialog work as ever.
class UTIL_Overlay : public QObject
{
    Q_OBJECT

public:
    /// Whether the display is of that kind and the dialog fits into the window.
    [[nodiscard]] static bool suits(const QDialog& dialog, const QWidget* window);

    /// Moves the dialog, which is hidden and outlives the overlay, into the middle of the window and gives
    /// it the keyboard.
    UTIL_Overlay(QDialog& dialog, QWidget& window);
    /// Gives the keyboard back to who had it.
    ~UTIL_Overlay() override;

    /// Gives the dialog, hidden again, its own parent back; not in the dialog's destructor.
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
    QPointer<QWidget> m_focus;  ///< in the window, before
};
