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

    QByteArray format;  ///< "PNG", "JPEG", "GIF" or "BMP"; empty when the first bytes are of none of them
    QSize size;         ///< in pixels, as stored; invalid when it was not found
    bool sound = false; ///< the file reaches its end mark and is no trap; a GIF's frames are not looked at
    QList<Range> kept;  ///< the parts of the file that hold the picture, in order

    /// Whether files of the format are told by their first bytes.
    [[nodiscard]] static bool knows(const QByteArray& format);
    /// Reads `device` from its start; the device's position afterwards is undefined.
    [[nodiscard]] static UTIL_PictureProbe of(QIODevice& device);
};
