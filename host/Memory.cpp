#include "Memory.h"

#include <QPixmapCache>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace pad {

void memory::keepNoPictures()
{
#ifdef __GLIBC__
    // The C library raises this limit to the largest picture that was ever freed, takes the next ones from
    // the heap, and the holes that they leave there stay: twice the memory after a minute of drawing.
    constexpr int smallestPicture = 128 * 1024; // bytes
    mallopt(M_MMAP_THRESHOLD, smallestPicture);
#endif
}

void memory::limitIcons(int scale)
{
    constexpr int plain = 1024; // KiB
    QPixmapCache::setCacheLimit(plain * scale * scale);
}

} // namespace pad
