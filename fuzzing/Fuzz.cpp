#include "Fuzz.h"

#include "KORVA_Assert.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace fuzz {

namespace {

std::optional<QTemporaryDir> ownFolder;

constexpr double noticed = 0.1; // seconds: what a person feels as a wait

struct Tally
{
    int count = 0;
    int slow = 0; ///< longer than what is noticed
    double longest = 0;
};

std::map<std::string, Tally> tallies; // by name

void tellTallies()
{
    qint64 count = 0;
    for (const auto& [name, tally] : tallies) {
        count += tally.count;
        if (tally.slow > 0)
            std::fprintf(stderr, "%s: %d of %d took more than 100 ms, the longest %.0f ms\n", name.data(),
                         tally.slow, tally.count, tally.longest * 1000);
    }
    std::fprintf(stderr, "things done: %lld\n", count);
}

double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

void hear(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    // What the off-screen platform has to say of every pop-up is none of ours.
    if (type == QtDebugMsg || type == QtInfoMsg || text.startsWith("This plugin does not support "))
        return;
    std::fprintf(stderr, "Qt says: %s\n", qPrintable(text));
    std::abort();
}

/// The editor tells standard error of each picture that it opens: two lines for every input.
ssize_t writeOthers(void*, const char* text, size_t length)
{
    const std::string_view line(text, length);
    if (!line.starts_with("{1} ") && line != "\n")
        std::fwrite(text, 1, length, stdout);
    return ssize_t(length);
}

void leaveOutOpenings()
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    FILE* others = fopencookie(nullptr, "w",
                               {.read = nullptr, .write = writeOthers, .seek = nullptr, .close = nullptr});
    std::setvbuf(others, nullptr, _IOLBF, 0);
    stderr = others;
}

void start()
{
    ownFolder.emplace();
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME",
                                 "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "KIV_LOCAL_DOWNLOAD_PATH"})
        qputenv(variable, ownFolder->path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    leaveOutOpenings();
    qInstallMessageHandler(hear);
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments); // never deleted: the program ends in the middle of it
    std::atexit(tellTallies);
}

} // namespace

QString folder()
{
    return ownFolder->path();
}

QString write(const QString& name, const QByteArray& bytes)
{
    const QString path = folder() + '/' + name;
    QFile file(path);
    KORVA_ASSERT(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
}

void swiftly(const char* name, const std::function<void()>& work, double mostSeconds)
{
    static const bool isStoryTold = qEnvironmentVariableIsSet("KORVA_FUZZ_STORY");
    if (isStoryTold)
        std::fprintf(stderr, "%s\n", name);
    const double before = processorSeconds();
    work();
    const double seconds = processorSeconds() - before;
    Tally& tally = tallies[name];
    ++tally.count;
    tally.slow += seconds > noticed;
    tally.longest = std::max(tally.longest, seconds);
    if (seconds > mostSeconds) {
        std::fprintf(stderr, "\"%s\" took %.1f s\n", name, seconds);
        std::abort();
    }
}

bool isOpaque(const QImage& image)
{
    if (image.isNull())
        return false;
    if (!image.hasAlphaChannel())
        return true;
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            if (qAlpha(row[x]) != 0xff)
                return false;
        }
    }
    return true;
}

} // namespace fuzz

extern "C" int LLVMFuzzerInitialize(int*, char***);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t*, std::size_t);

int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::start();
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::feed(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    return 0;
}
