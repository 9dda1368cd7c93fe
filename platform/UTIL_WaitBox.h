#pragma once

#include "UTIL_Dialog.h"

#include <QBasicTimer>
#include <QFuture>

/// The box that shows that work goes on in another thread, and lets the user cancel it: by pointer, by
/// Escape, or after Tab or an arrow key by Return. It comes unasked, so Return alone, which was meant for
/// what was there before, does nothing.
class UTIL_WaitBox : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// Returns true when the work is done, or false when the user has cancelled it; then the future `work`
    /// has been cancelled, too. Deleting the parent meanwhile also cancels. For the first 100 ms nothing is
    /// shown and no event is handled.
    [[nodiscard]] static bool run(QWidget* parent, const QString& text, QFuture<void> work);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    UTIL_WaitBox(QWidget* parent, const QString& text);
    [[nodiscard]] QRect track() const;

    QBasicTimer m_beat;
    int m_step = 0;
};
