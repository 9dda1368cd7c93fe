#pragma once

#include <QtGui>

namespace support {

struct GifFrame
{
    QColor color;
    int delay = 100; ///< ms, in steps of 10
};

/// Writes a GIF whose frames have one colour each. `loops` is how often it is to be shown again: 0 for
/// ever, -1 for a file that does not say. False when it could not be written.
[[nodiscard]] bool writeGif(const QString& fileName, QSize size, const QList<GifFrame>& frames,
                            int loops = 0);

} // namespace support
