#pragma once

class QImage;
class QPixmap;

namespace classic {

/// Writes `picture` into `enlarged` with each of its pixels as a square of `factor` × `factor`, 1 or more:
/// what a painter scaled by this factor would paint, at a quarter of its cost. False, and nothing is
/// written, unless both have the same format of 32 bits and `enlarged` has exactly the size.
[[nodiscard]] bool enlarge(const QImage& picture, int factor, QImage& enlarged);

/// The same for pixmaps. `enlarged` keeps its memory if nobody shares it.
[[nodiscard]] bool enlarge(const QPixmap& picture, int factor, QPixmap& enlarged);

} // namespace classic
