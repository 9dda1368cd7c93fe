#pragma once

#include "UTIL_Dialog.h"

#include <QBasicTimer>
#include <QFuture>

/// Shows that work goes on in another thread, and lets the user cancel it.
class UTIL_WaitBox : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// Returns when the work is done (true), or when the user has cancelled it (false), which the work is
    /// told by its future. For the first 300 ms nothing is shown and no event is handled. When the parent
    /// is deleted meanwhile, that is a cancel, too.
    [[nodiscard]] static bool run(QWidget* parent, const QString& text, QFuture<void> work);

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    UTIL_WaitBox(QWidget* parent, const QString& text);
    [[nodiscard]] QRect track() const;

    QBasicTimer m_beat;
    int m_step = 0;
};
