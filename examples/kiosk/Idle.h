#pragma once

#include <QObject>
#include <QPointF>
#include <QTimer>

/// Notices that the visitor has gone: no key, tap or move in the whole program for a while. It waits for
/// the first one before it begins to count.
class Idle : public QObject
{
    Q_OBJECT

public:
    struct Times
    {
        int seconds = 60; ///< until the visitor counts as gone
        int warning = 10; ///< the last of them, in which the visitor is warned
    };

    explicit Idle(Times times, QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Once a second.
    void warned(int secondsLeft);
    /// After a warning.
    void returned();
    void gone();

private:
    [[nodiscard]] bool isFromAPerson(const QEvent& event);
    void tick();

    Times m_times;
    QTimer m_second;
    int m_left = 0;
    QPointF m_pointer;
};
