#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>

/// The size and the depth in which a drawing is worked on, and how a picture becomes fit for them.
///
/// A value, for any thread. Null pictures stay null.
struct KORVA_WorkingLimits
{
    QSize box{352, 288}; ///< a picture of more pixels is fitted within
    int depth = 16;      ///< in bits a pixel: 16 or 24

    /// What the platform's services say, within what a canvas can bear; GUI thread only.
    [[nodiscard]] static KORVA_WorkingLimits ofPlatform();

    /// A picture's own size, or the greatest of its shape within the box when it has more pixels than that.
    [[nodiscard]] QSize sizeOf(QSize size) const;
    /// The picture in that size and the working depth; one of 8 bits that keeps its size stays one. What is
    /// transparent comes out white.
    [[nodiscard]] QImage fitted(const QImage& image) const;
    /// The same as a pixmap; false when the picture is null or cannot be converted.
    [[nodiscard]] bool convert(const QImage& image, QPixmap* pixmap) const;

    /// The picture on paper of one colour, which shows where it is transparent; one with a palette keeps
    /// having one.
    [[nodiscard]] static QImage laidOn(const QImage& image, QRgb paper);
};
