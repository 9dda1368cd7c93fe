#pragma once

#include <QByteArray>
#include <QImage>
#include <QPageLayout>

class QPagedPaintDevice;

/// A picture on a sheet of paper. Pure functions, for any thread.
namespace pad::printpage {

/// Dots per inch of what is printed.
inline constexpr int resolution = 600;

/// The paper that is usual here.
[[nodiscard]] QPageSize usualPaper();
/// A sheet that stands or lies as the picture does, with margins that a printer leaves.
[[nodiscard]] QPageLayout layoutFor(QSize picture, const QPageSize& paper);
/// Where a picture lies in a room: in the middle, in its proportions, as large as it fits, but no pixel
/// larger than a millimetre. Enlarged pixels are so many whole dots, all the same, where that costs no more
/// than a fifth of the size; in a larger picture they may differ by a dot, which nobody sees. All in dots.
[[nodiscard]] QRect placeOf(QSize picture, QSize room);

/// The whole sheet as it will be printed, small.
[[nodiscard]] QImage seen(const QImage& picture, const QPageLayout& layout);
/// Prints one sheet. False if the device does not take it.
[[nodiscard]] bool print(const QImage& picture, const QPageLayout& layout, QPagedPaintDevice& device);
/// The sheet as a PDF file. Empty if there is no memory.
[[nodiscard]] QByteArray pdf(const QImage& picture, const QPageLayout& layout);

} // namespace pad::printpage
