#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

class QIODevice;

/// Facts about a picture file, found in its structure without decoding a pixel. They protect the decoders
/// from files that those would accept silently (one that is cut short) or choke on (text that unpacks to
/// gigabytes, a picture in thousands of passes).
struct UTIL_PictureProbe
{
    struct Range
    {
        qint64 start;
        qint64 length;
    };

    QByteArray format;           ///< "PNG", "JPEG", "GIF", "BMP" or "WBMP"; empty if it is none of them
    QSize size;                  ///< in pixels, as stored; invalid when it was not found
    bool sound = false;          ///< the file is long enough and harmless; see below
    int passes = 1;              ///< how often a JPEG goes over the picture
    bool hasRuns = false;        ///< a BMP's rows are packed
    bool hasSpareColors = false; ///< a BMP of two colours lists more
    int orientation = 1;         ///< how its camera was held, as EXIF numbers it
    QList<Range> kept;           ///< the parts of the file that hold the picture, in order

    // `sound` does not say whether all frames of a GIF, or all data of a JPEG, are there.

    /// Reads `device` from its start; the device's position afterwards is undefined.
    [[nodiscard]] static UTIL_PictureProbe of(QIODevice& device);
};
