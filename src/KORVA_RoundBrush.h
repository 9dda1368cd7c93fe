#pragma once

#include <QList>
#include <QRect>

/// The pen of KORVA_Manners::roundPencil.
namespace roundbrush {

/// The pixels of a disc `width` pixels wide, 1 or more, that is drawn straight from one pixel to another:
/// one run for each row. A disc of even width lies half a pixel to the left of its pixel and above it.
[[nodiscard]] QList<QRect> swept(QPoint from, QPoint to, int width);

} // namespace roundbrush
