#pragma once

#include "KORVA_Export.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class UTIL_Overlay;
class UTIL_PushButton;
class UTIL_Veil;

/// The base of every dialog: a flat card with a title, its content and the soft keys, which opens in the
/// middle of its parent's window and never leaves the screen: on a low one it is lower, its content scrolls
/// and the soft keys stay. While a modal dialog is open its parent's window is veiled. Where the display
/// lets no program place its windows, as Wayland does, the dialog is a part of its parent's window while it
/// is open, if it fits in there, and modal all the same.
///
/// Return presses the default key, which is the first soft key unless another was made the default or has
/// the focus; Escape and closing reject.
class KORVA_EXPORT UTIL_Dialog : public QDialog
{
    Q_OBJECT

public:
    /// How a dialog gets its size.
    enum Type : int {
        StandardDialog = 0, ///< UTIL_Skin::Size::dialogWidth × UTIL_Skin::Size::dialogHeight
        FreeDialog = 1,     ///< sized by the derived class
    };

    /// `type` is a Type. Of `flags` the kind of window is not taken: it is a frameless dialog.
    UTIL_Dialog(int type, bool modal, QWidget* parent = nullptr, const char* name = nullptr,
                Qt::WindowFlags flags = {});
    ~UTIL_Dialog() override;

    /// Sets the title in the card and the window's; an empty one is not shown.
    void setDlgTitle(const QString& title);
    /// The title.
    [[nodiscard]] QString dlgTitle() const;

    /// A rectangle of the screen in this dialog's coordinates.
    [[nodiscard]] QRect fromGlobal(const QRect& global) const;

    /// Puts the dialog in its place, and the veil over the window, before it is shown.
    void setVisible(bool visible) override;
    /// Keeps the dialog in the middle of its parent's window while that changes its size.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// What the derived class puts its parts on, in the dialog's coordinates: the dialog itself, or what
    /// scrolls above the soft keys of a standard dialog where the screen is too low for it.
    [[nodiscard]] QWidget* content() const { return m_content; }
    /// The area of the screen on which the dialog opens.
    [[nodiscard]] QRect screenArea() const;

    /// A soft key in the lower left corner, or the right one: the first or second by its
    /// UTIL_PushButton::Flag. For standard dialogs. The dialog owns it.
    UTIL_PushButton* createSoftKey(const QString& text, int flags);

    void paintEvent(QPaintEvent* event) override;
    /// Gives the dialog the size that suits its window, whose size has changed; the base leaves it alone.
    virtual void fit() {}
    /// Whether the parent's window is veiled while the dialog is open: when the dialog is modal.
    [[nodiscard]] virtual bool isVeiling() const;

private:
    [[nodiscard]] QWidget* owner() const;
    /// The window over which the dialog opens; null: there is none.
    [[nodiscard]] QWidget* anchor() const;
    void place();
    void makeLower();

    QWidget* m_content;
    QLabel* m_title;
    QPointer<UTIL_Veil> m_veil; // a child of the veiled window
    QPointer<UTIL_Overlay> m_overlay;
};
