#pragma once

#include <QPoint>

/// Where a drag ends that is to be even.
namespace even {

/// The corner of the square from `from` to the farther side of `to`, in the same quarter.
[[nodiscard]] QPoint square(QPoint from, QPoint to);
/// The point nearest to `to` on a line through `from` at a multiple of 15 degrees.
[[nodiscard]] QPoint direction(QPoint from, QPoint to);

} // namespace even
