#pragma once

#include <chrono>

/// Counts what the whole process does, Qt's own work included, by standing between it and its libraries.
/// Each is exact, under sanitizers too.
namespace bench::counters {

/// Calls that take memory from the heap.
[[nodiscard]] long allocations();
/// Those of them within QWidget::repaint().
[[nodiscard]] long allocationsOfRepaints();
/// QPainters opened; those that QtGui opens for itself do not count.
[[nodiscard]] long painters();

/// From the first call on the process's monotonic clock stands still at a full hour, but for these calls:
/// what happens then does not depend on the machine's speed.
void advanceClock(std::chrono::milliseconds by);

} // namespace bench::counters
