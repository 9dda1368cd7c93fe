#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

class QIODevice;

/// What the structure of a picture file says, found without decoding a pixel. It keeps from the decoders
/// what they would swallow without a word (a file that stops half way) or choke on (text that unpacks to
/// gigabytes, a picture sent in thousands of passes).
struct UTIL_PictureProbe
{
    struct Range
    {
        qint64 start;
        qint64 length;
    };

    QByteArray format;    ///< "PNG", "JPEG", "GIF", "BMP" or "WBMP"; empty when it is none of them
    QSize size;           ///< in pixels, as stored; invalid when it was not found
    bool sound = false;   ///< the file is long enough and no trap; see below
    int passes = 1;       ///< how often a JPEG goes over the picture
    bool hasRuns = false; ///< a BMP's rows are packed
    int orientation = 1;  ///< how its camera was held, as EXIF numbers it
    QList<Range> kept;    ///< the parts of the file that hold the picture, in order

    // What sound does not tell: whether a GIF's frames, or a JPEG's data, are all there.

    /// Reads `device` from its start; the device's position afterwards is undefined.
    [[nodiscard]] static UTIL_PictureProbe of(QIODevice& device);
};
