#pragma once

#include <QObject>

class QWidget;

namespace pad {

/// Keeps every pop-up and dialog inside the area of one window, because on the device there is nothing
/// beside it. When the last of them closes, the keyboard goes back to the window, even without a window
/// manager.
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
