#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>

/// The size and depth in which a drawing is worked on. Converts pictures to them.
///
/// It is a value, for any thread. Null pictures stay null.
struct KORVA_WorkingLimits
{
    QSize box{352, 288}; ///< a picture with more pixels is scaled down to fit this
    int depth = 16;      ///< bits per pixel: 16 or 24

    /// The limits that the platform's services give, within those that a canvas allows. GUI thread only.
    [[nodiscard]] static KORVA_WorkingLimits ofPlatform();

    /// A picture's own size or, if it has more pixels than the box, the greatest size with its proportions
    /// within the box.
    [[nodiscard]] QSize sizeOf(QSize size) const;
    /// The picture in that size and the working depth. A picture of 8 bits that keeps its size keeps its
    /// depth. Transparent parts become white.
    [[nodiscard]] QImage fitted(const QImage& image) const;
    /// The same as a pixmap; false when the picture is null or cannot be converted.
    [[nodiscard]] bool convert(const QImage& image, QPixmap* pixmap) const;

    /// The picture on paper of one colour, which shows through its transparent parts. A picture with a
    /// palette keeps one.
    [[nodiscard]] static QImage laidOn(const QImage& image, QRgb paper);
};
