#pragma once

#include "KORVA_Export.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class UTIL_PushButton;
class UTIL_Veil;

/// The base of every dialog: a flat card with a title, its content and the soft keys, which opens in the
/// middle of its parent's window and never leaves the screen. While a modal dialog is open its parent's
/// window is veiled.
///
/// Return presses the default key, which is the first soft key unless another was made the default or has
/// the focus; Escape and closing reject.
class KORVA_EXPORT UTIL_Dialog : public QDialog
{
    Q_OBJECT

public:
    enum Type : int {
        StandardDialog = 0, ///< the size and places of UTIL_Geometry
        FreeDialog = 1,     ///< sized by the derived class
    };

    UTIL_Dialog(int type, bool modal, QWidget* parent = nullptr, const char* name = nullptr,
                Qt::WindowFlags flags = {});
    ~UTIL_Dialog() override;

    /// An empty title takes no room on the screen.
    void setDlgTitle(const QString& title);
    [[nodiscard]] QString dlgTitle() const;

    /// A rectangle of the geometry service in this dialog's coordinates.
    [[nodiscard]] QRect fromGlobal(const QRect& global) const;

    void setVisible(bool visible) override;

protected:
    /// A soft key in the rectangle that its UTIL_PushButton flags name. The dialog owns it.
    UTIL_PushButton* createSoftKey(const QString& text, int flags);

    void paintEvent(QPaintEvent* event) override;
    /// Whether the parent's window is veiled while the dialog is open.
    [[nodiscard]] virtual bool isVeiling() const;

private:
    [[nodiscard]] QWidget* owner() const;
    void place();

    QLabel* m_title;
    QPointer<UTIL_Veil> m_veil; // a child of the veiled window
};
