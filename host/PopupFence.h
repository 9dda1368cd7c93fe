#pragma once

#include <QObject>

class QWidget;

namespace pad {

/// Keeps every pop-up and dialog inside the area of one window: on the device there is nothing beside it.
/// The keyboard goes back to the window when the last of them goes, also where no window manager sees to
/// that.
class PopupFence : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole program; `window` outlives the fence.
    explicit PopupFence(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeKeyboard();

    QWidget& m_window;
};

} // namespace pad
