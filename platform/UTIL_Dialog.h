#pragma once

#include "KORVA_Export.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class UTIL_Overlay;
class UTIL_PushButton;
class UTIL_Veil;

/// The base of every dialog: a flat card with a title, content and soft keys.
///
/// It opens in the middle of its parent's window and never leaves the screen. On a screen that is too low
/// the dialog is lower, too; its content scrolls and the soft keys stay. While a modal dialog is open its
/// parent's window is veiled. On a display that lets no program place its windows, such as Wayland, an open
/// dialog is a part of its parent's window if it fits there. It is modal all the same.
///
/// Return presses the default key. That is the first soft key, unless another one was made the default or
/// has the focus. Escape and closing reject.
class KORVA_EXPORT UTIL_Dialog : public QDialog
{
    Q_OBJECT

public:
    /// How a dialog gets its size.
    enum Type : int {
        StandardDialog = 0, ///< UTIL_Skin::Size::dialogWidth × UTIL_Skin::Size::dialogHeight
        FreeDialog = 1,     ///< sized by the derived class
    };

    /// `type` is a Type. The kind of window in `flags` is ignored: it is always a frameless dialog.
    UTIL_Dialog(int type, bool modal, QWidget* parent = nullptr, const char* name = nullptr,
                Qt::WindowFlags flags = {});
    ~UTIL_Dialog() override;

    /// Sets the title of the card and of the window. An empty title is not shown.
    void setDlgTitle(const QString& title);
    /// The title.
    [[nodiscard]] QString dlgTitle() const;

    /// Converts a rectangle in global coordinates to this dialog's coordinates.
    [[nodiscard]] QRect fromGlobal(const QRect& global) const;

    /// Puts the dialog in its place, and the veil over the window, before it is shown.
    void setVisible(bool visible) override;
    /// Keeps the dialog in the middle of its parent's window while that changes its size.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// The widget on which the derived class puts its parts, in the dialog's coordinates. It is the dialog
    /// itself; in a standard dialog on a screen that is too low for it, it is the area that scrolls above
    /// the soft keys.
    [[nodiscard]] QWidget* content() const { return m_content; }
    /// The area of the screen on which the dialog opens.
    [[nodiscard]] QRect screenArea() const;

    /// Makes a soft key, in the lower left corner for UTIL_PushButton::FirstSoftKey, in the lower right for
    /// SecondSoftKey. For standard dialogs. The dialog owns it.
    UTIL_PushButton* createSoftKey(const QString& text, int flags);

    void paintEvent(QPaintEvent* event) override;
    /// Adapts the dialog's size to that of its window, which has changed. The base class does nothing.
    virtual void fit() {}
    /// Whether the parent's window is veiled while the dialog is open. The base class: if the dialog is
    /// modal.
    [[nodiscard]] virtual bool isVeiling() const;

private:
    [[nodiscard]] QWidget* owner() const;
    /// The window over which the dialog opens; null if there is none.
    [[nodiscard]] QWidget* anchor() const;
    void place();
    void makeLower();

    QWidget* m_content;
    QLabel* m_title;
    QPointer<UTIL_Veil> m_veil; // a child of the veiled window
    QPointer<UTIL_Overlay> m_overlay;
};
