// korva-bench-marks, preloaded into a program that starts: stands between it and the functions below, and
// adds up how long each kind of them takes by itself, without what it calls of the others. The sums are in
// the file that KORVA_BENCH_MARKS names, at any moment.

#include <cstdlib>
#include <ctime>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#define OVER extern "C" __attribute__((visibility("default"), used))

namespace {

enum Part {
    Linking,
    Application,
    Plugins,
    Server,
    Fonts,
    Glyphs,
    Icons,
    Translations,
    Settings,
    Showing,
    parts
};

/// Seconds, in the order of Part.
double ownFile[parts];
double* sums = ownFile;
int current = parts; // none
double since = 0;

double now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

pid_t mainThread = 0;

/// While it lives, time belongs to its part.
class Within
{
public:
    explicit Within(Part part) : m_isMain(gettid() == mainThread), m_before(current)
    {
        if (m_isMain)
            change(part);
    }
    ~Within()
    {
        if (m_isMain)
            change(m_before);
    }

private:
    static void change(int part)
    {
        const double time = now();
        if (current != parts)
            sums[current] += time - since;
        current = part;
        since = time;
    }

    const bool m_isMain;
    const int m_before;
};

__attribute__((constructor)) void begin()
{
    const char* const file = std::getenv("KORVA_BENCH_MARKS");
    const char* const start = std::getenv("KORVA_BENCH_BEGIN");
    const int descriptor = file && start ? open(file, O_RDWR | O_CREAT, 0600) : -1;
    if (descriptor < 0 || ftruncate(descriptor, sizeof ownFile) != 0)
        return;
    void* const memory = mmap(nullptr, sizeof ownFile, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    close(descriptor);
    if (memory == MAP_FAILED)
        return;
    sums = static_cast<double*>(memory);
    sums[Linking] = now() - std::strtod(start, nullptr);
    mainThread = gettid();
    unsetenv("KORVA_BENCH_MARKS"); // a program that is started from here is not meant
}

template <typename Function>
Function* next(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

using Any = long(long, long, long, long, long, long);

} // namespace

/// A function with up to six whole or pointing arguments, under its own name.
#define MARK(part, symbol)                                                                                 \
    OVER long mark_##symbol(long a, long b, long c, long d, long e, long f) __asm__(#symbol);              \
    OVER long mark_##symbol(long a, long b, long c, long d, long e, long f)                                \
    {                                                                                                      \
        static Any* const real = next<Any>(#symbol);                                                       \
        const Within within(part);                                                                         \
        return real(a, b, c, d, e, f);                                                                     \
    }

MARK(Application, _ZN12QApplicationC1ERiPPci)
MARK(Plugins, dlopen)
MARK(Server, poll)
MARK(Fonts, FcInit)
MARK(Fonts, FcConfigGetCurrent)
MARK(Fonts, FcFontList)
MARK(Fonts, FcFontSort)
MARK(Fonts, FcFontMatch)
MARK(Fonts, FcConfigSubstitute)
MARK(Fonts, FT_New_Face)
MARK(Fonts, FT_New_Memory_Face)
MARK(Glyphs, FT_Load_Glyph)
MARK(Glyphs, FT_Render_Glyph)
MARK(Glyphs, hb_shape_full)
MARK(Icons, DGifOpen)
MARK(Icons, DGifGetLine)
MARK(Icons, DGifGetRecordType)
MARK(Icons, DGifCloseFile)
MARK(Icons, _ZN6QImage8fromDataE14QByteArrayViewPKc)
MARK(Icons, _ZNK5QIcon6pixmapERK5QSizeNS_4ModeENS_5StateE)
MARK(Translations, _ZN11QTranslator4loadERK7QStringS2_S2_S2_)
MARK(Settings, _ZN9QSettingsC1ERK7QStringNS_6FormatEP7QObject)
MARK(Settings, _ZNK9QSettings5valueE14QAnyStringView)
MARK(Settings, _ZNK9QSettings8containsE14QAnyStringView)
MARK(Settings, _ZN9QSettingsD1Ev)
MARK(Showing, _ZN7QWidget4showEv)
MARK(Showing, _ZN12QApplication4execEv)
