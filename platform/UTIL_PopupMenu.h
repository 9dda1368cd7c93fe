#pragma once

#include "KORVA_Export.h"

#include <QMenu>

/// A pop-up menu in the skin, with icons at their full size, that stays inside the window it belongs to.
class KORVA_EXPORT UTIL_PopupMenu : public QMenu
{
    Q_OBJECT

public:
    explicit UTIL_PopupMenu(QWidget* parent);

    /// Moves a pop-up into the window that its owner belongs to.
    static void keepInWindow(QWidget& popup, const QWidget* owner);

protected:
    void showEvent(QShowEvent* event) override;
};
