#pragma once

#include "KORVA_Export.h"

#include <QMenu>

/// A pop-up menu in the skin, with icons at their full size, that stays inside the window it belongs to.
class KORVA_EXPORT UTIL_PopupMenu : public QMenu
{
    Q_OBJECT

public:
    /// An empty menu; its window is that of `parent`.
    explicit UTIL_PopupMenu(QWidget* parent);

    /// Moves a pop-up that is shown into the window that its owner belongs to; nothing where `owner` is
    /// null. One that is larger keeps its top left inside.
    static void keepInWindow(QWidget& popup, const QWidget* owner);

protected:
    void showEvent(QShowEvent* event) override;
};
