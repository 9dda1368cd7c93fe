#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

/// Time as the event loop sees it: what is judged by it does not depend on how slow or busy a machine is.
namespace support {

/// Lets the event loop run until a clock in it strikes. What was to happen earlier has happened by then:
/// the loop keeps the order in which things are due, however late all of them are.
void strike(int milliseconds);

/// Waits for what another thread does, while this one handles no event: what comes was begun before. False
/// when it does not come at all.
[[nodiscard]] bool comesWithoutEvents(const std::function<bool()>& condition);

/// Tells when the event loop first runs, of this object's life.
class FirstTurn
{
public:
    FirstTurn();

    /// True when it has not run at all, too.
    [[nodiscard]] bool isNotBefore(int milliseconds) const;

private:
    QElapsedTimer m_since;
    QTimer m_timer;
    qint64 m_after = -1;
};

} // namespace support
