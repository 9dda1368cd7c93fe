#include "Counters.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <ctime>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

// The functions of other libraries that are defined here under their own names come before those libraries'
// own.

#define OVER __attribute__((visibility("default"), used))

namespace {

std::atomic<long> allocated;
std::atomic<long> allocatedByRepaints;
std::atomic<long> opened;
std::atomic<long long> stoppedAt; // nanoseconds; 0 while the clock runs

template <typename Function>
Function* next(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

/// Counts what is allocated while it lives; not within another one.
class Repaint
{
public:
    ~Repaint()
    {
        if (--s_depth == 0)
            allocatedByRepaints += allocated - m_before;
    }

private:
    const long m_before = (++s_depth, allocated.load());
    static inline int s_depth = 0;
};

} // namespace

namespace bench::counters {

long allocations()
{
    return allocated;
}

long painters()
{
    return opened;
}

long allocationsOfRepaints()
{
    return allocatedByRepaints;
}

void advanceClock(std::chrono::milliseconds by)
{
    constexpr std::chrono::nanoseconds hour = std::chrono::hours(1);
    if (stoppedAt == 0) {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        // Not in the past: waiting threads would find that their time is up.
        stoppedAt = (std::chrono::seconds(now.tv_sec) / hour + 1) * hour.count();
    }
    stoppedAt += std::chrono::nanoseconds(by).count();
}

} // namespace bench::counters

// --- Memory

#if defined(__SANITIZE_ADDRESS__)

// Of <sanitizer/allocator_interface.h>, which GCC 12 does not install.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, size_t),
                                                         void (*onFree)(const volatile void*));

namespace {

const int hooks = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void*, size_t) { ++allocated; }, [](const volatile void*) {});

} // namespace

#else

extern "C" {

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t number, size_t size);
void* __libc_realloc(void* block, size_t size);
void* __libc_memalign(size_t alignment, size_t size);

OVER void* malloc(size_t size)
{
    ++allocated;
    return __libc_malloc(size);
}

OVER void* calloc(size_t number, size_t size)
{
    ++allocated;
    return __libc_calloc(number, size);
}

OVER void* realloc(void* block, size_t size)
{
    ++allocated;
    return __libc_realloc(block, size);
}

OVER void* memalign(size_t alignment, size_t size)
{
    ++allocated;
    return __libc_memalign(alignment, size);
}

OVER void* aligned_alloc(size_t alignment, size_t size)
{
    return memalign(alignment, size);
}

OVER int posix_memalign(void** block, size_t alignment, size_t size)
{
    *block = memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}

} // extern "C"

#endif

// --- Qt

// The constructors open a painter without asking begin(); QtGui does not look outside for its own
// functions.
extern "C" {

OVER void _ZN8QPainterC1EP12QPaintDevice(void* painter, void* device)
{
    ++opened;
    static auto* const real = next<void(void*, void*)>("_ZN8QPainterC1EP12QPaintDevice");
    real(painter, device);
}

OVER void _ZN8QPainterC2EP12QPaintDevice(void* painter, void* device)
{
    ++opened;
    static auto* const real = next<void(void*, void*)>("_ZN8QPainterC2EP12QPaintDevice");
    real(painter, device);
}

OVER bool _ZN8QPainter5beginEP12QPaintDevice(void* painter, void* device)
{
    ++opened;
    static auto* const real = next<bool(void*, void*)>("_ZN8QPainter5beginEP12QPaintDevice");
    return real(painter, device);
}

OVER void _ZN7QWidget7repaintERK5QRect(void* widget, const void* rectangle)
{
    static auto* const real = next<void(void*, const void*)>("_ZN7QWidget7repaintERK5QRect");
    const Repaint repaint;
    real(widget, rectangle);
}

OVER void _ZN7QWidget7repaintERK7QRegion(void* widget, const void* region)
{
    static auto* const real = next<void(void*, const void*)>("_ZN7QWidget7repaintERK7QRegion");
    const Repaint repaint;
    real(widget, region);
}

// --- Time

OVER int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    const long long stopped = stoppedAt;
    if (clock != CLOCK_MONOTONIC || stopped == 0)
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    *time = {stopped / 1'000'000'000, stopped % 1'000'000'000};
    return 0;
}

} // extern "C"
