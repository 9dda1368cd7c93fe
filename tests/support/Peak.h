#pragma once

#include "PictureFiles.h"

#include <atomic>

#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
// The compiler's library has them, but no header for them.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void*, size_t),
                                                         void (*)(const volatile void*));
extern "C" size_t __sanitizer_get_allocated_size(const volatile void*);
#endif

namespace support {

#ifdef __SANITIZE_ADDRESS__

/// The sanitizer keeps freed memory for long, so what the process holds says nothing: its allocations are
/// counted.
inline std::atomic<qint64> held = 0;
inline std::atomic<qint64> most = 0;

inline void allocated(const volatile void*, size_t size)
{
    held += qint64(size);
    most = qMax<qint64>(most, held);
}

inline void released(const volatile void* memory)
{
    if (memory)
        held -= qint64(__sanitizer_get_allocated_size(memory));
}

/// The most memory that is held at a time since it was made.
class Peak
{
public:
    Peak()
    {
        static const int installed = __sanitizer_install_malloc_and_free_hooks(allocated, released);
        Q_UNUSED(installed)
        held = 0;
        most = 0;
    }
    [[nodiscard]] qint64 bytes() const { return most; }
};

#else

class Peak
{
public:
    Peak() : m_before(fromNow()) {}
    [[nodiscard]] qint64 bytes() const { return peak() - m_before; }

private:
    /// Lets the peak start from what is held now, without what was given back.
    static qint64 fromNow()
    {
        malloc_trim(0);
        support::write("/proc/self/clear_refs", "5");
        return peak();
    }
    static qint64 peak()
    {
        const QByteArray status = support::contents("/proc/self/status");
        const qsizetype start = status.indexOf("VmHWM:") + 6;
        return status.sliced(start, status.indexOf("kB", start) - start).trimmed().toLongLong() * 1024;
    }

    qint64 m_before;
};

#endif

} // namespace support
