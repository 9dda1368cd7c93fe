// A picture file of which the probe finds the facts. The input is the file.
#include "Fuzz.h"

#include "UTIL_PictureProbe.h"
#include "UTIL_PictureSource.h"

#include <KORVA_Assert.h>

#include <QBuffer>

void fuzz::feed(const QByteArray& input)
{
    QByteArray bytes = input;
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    UTIL_PictureProbe probe;
    swiftly("probe", [&] { probe = UTIL_PictureProbe::of(device); });

    static const QList<QByteArray> formats{"PNG", "JPEG", "GIF", "BMP", "WBMP"};
    KORVA_ASSERT(probe.format.isEmpty() || formats.contains(probe.format));
    KORVA_ASSERT(probe.orientation >= 1 && probe.orientation <= 8);
    KORVA_ASSERT(probe.passes >= 0 && (!probe.sound || probe.passes >= 1));
    KORVA_ASSERT(!probe.kept.isEmpty());
    qint64 end = 0;
    for (const UTIL_PictureProbe::Range& part : probe.kept) {
        KORVA_ASSERT(part.start >= end && part.length >= 0);
        end = part.start + part.length;
        KORVA_ASSERT(!probe.sound || end <= bytes.size());
    }

    if (!probe.sound) // then nobody reads it, and the parts may be longer than the file
        return;
    UTIL_PictureSource source(device, probe.kept);
    KORVA_ASSERT(source.readAll().size() == source.size());
}
