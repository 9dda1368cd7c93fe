#pragma once

#include "KORVA_Export.h"

#include <QPushButton>

/// A flat key with an icon, a text or both. Space and Return press the key that has the focus. If no key
/// has it, Return presses the filled one.
class KORVA_EXPORT UTIL_PushButton : public QPushButton
{
    Q_OBJECT

public:
    /// The role of a soft key. The values 1, 2, 9 and 10 are in use: second or first key, without or with
    /// an outline.
    enum Flag : int {
        SecondSoftKey = 1, ///< the right key; quiet
        FirstSoftKey = 2,  ///< the left key; the dialog's default, which Return presses
        Outlined = 8,      ///< has an outline when at rest
    };

    /// `iconName` is a file name for RES_ICON_Reader::getIcon(); empty or unknown for no icon.
    UTIL_PushButton(const QString& iconName, const QString& text, QWidget* parent = nullptr,
                    const char* name = nullptr);

    /// Any combination of Flag; other bits are kept and mean nothing. The key is the dialog's default with
    /// FirstSoftKey, and is not without it.
    void setFlags(int flags);
    /// What setFlags() was given; Outlined at first.
    [[nodiscard]] int flags() const { return m_flags; }

    /// The size that icon and text need, with the height of all keys.
    [[nodiscard]] QSize sizeHint() const override;
    /// A square; a text that does not fit is shortened.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int m_flags = Outlined;
};
