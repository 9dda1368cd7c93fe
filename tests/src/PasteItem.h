#pragma once

#include "Fixtures.h"

namespace fixtures {

inline constexpr QSize itemSize(100, 80);
inline constexpr QPoint itemPlace(50, 60);
inline constexpr QSize parentSize(300, 250);

/// An item of 100 x 80 pixels at (50, 60) in a parent of 300 x 250.
struct PasteItem
{
    explicit PasteItem(int zoom = 100)
        : picture(support::mosaic(QSize(itemSize.width() * 100 / zoom, itemSize.height() * 100 / zoom)))
    {
        parent.resize(parentSize);
        label.setZoom(zoom, zoom);
        label.setImage(QPixmap::fromImage(picture));
        label.move(itemPlace);
    }

    /// Hovers at a place, presses there, moves by a distance and releases.
    void drag(QPoint from, QPoint distance)
    {
        pointer.hover(from);
        pointer.drag({from, from + distance});
    }

    QImage picture;
    QWidget parent;
    KORVA_PasteLabel label{&parent};
    support::Gestures pointer{label};
};

/// What the toolkit makes of a picture, without smoothing.
inline QImage transformed(const QImage& image, const QTransform& transform)
{
    return image.transformed(transform);
}

} // namespace fixtures
