#include "inside.h"

#include <UTIL_Platform.h>

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>

// What larger working limits cost: korva-bench-limits prints a table. Each row of numbers is from processes
// of its own, which are called with what they measure.

namespace {

struct Limits
{
    int width;
    int height;
    int depth;
};

constexpr Limits rows[] = {{352, 288, 16}, {1024, 768, 24}, {2048, 2048, 24}, {4096, 4096, 24}};

struct Services : UTIL_Platform
{
    explicit Services(Limits limits) : m_limits(limits) {}
    [[nodiscard]] QSize workingBox() const override { return {m_limits.width, m_limits.height}; }
    [[nodiscard]] int workingDepth() const override { return m_limits.depth; }
    [[nodiscard]] bool waitFor(QWidget*, const QString&, const QFuture<void>& work) override
    {
        QFuture<void>(work).waitForFinished();
        return true;
    }

    Limits m_limits;
};

double cpuMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// Until it can be seen, in all threads.
template <typename Work>
double milliseconds(const Work& work)
{
    const double before = cpuMilliseconds();
    work();
    QCoreApplication::processEvents();
    return cpuMilliseconds() - before;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// What the process alone uses, with its part of what it shares.
double proportionalMegabytes()
{
    QFile file("/proc/self/smaps_rollup");
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("Pss:"))
                return line.mid(4).simplified().split(' ').first().toDouble() / 1024;
        }
    }
    return 0;
}

void stroke(bench::Editor& editor, int number, std::vector<double>& moves, std::vector<double>& presses)
{
    const int y = 10 + number * 3;
    presses.push_back(milliseconds([&] { editor.press({10, y}); }));
    for (int x = 14; x < 150; x += 4)
        moves.push_back(milliseconds([&] { editor.move({x, y + x % 3}); }));
    editor.release({150, y});
    QCoreApplication::processEvents();
}

int measure(Limits limits, bool isOpened, int steps)
{
    const QSize size(limits.width, limits.height);
    UTIL_Platform::install(std::make_unique<Services>(limits));
    const QTemporaryDir folder;
    const QString name = folder.filePath("picture.jpg");
    if (isOpened && !bench::noise(size).save(name, "JPEG", 90))
        return 1;
    bench::Editor editor({200, 170});
    editor->setUndoSteps(steps, 64 << 20);
    std::vector<double> opens;
    if (isOpened) {
        for (int round = 0; round < 3; ++round)
            opens.push_back(milliseconds([&] { editor->openNewFilePrivate(KORVA_ACTION_OPEN, name); }));
    } else {
        opens.push_back(
            milliseconds([&] { editor->chooseCanvas(KORVA_CANVAS_16BIT, size.width(), size.height()); }));
    }
    editor->setUndoSteps(steps, 64 << 20); // what came before is not measured
    std::vector<double> moves;
    std::vector<double> presses;
    for (int number = 0; number < steps; ++number)
        stroke(editor, number, moves, presses);
    const double memory = proportionalMegabytes();
    std::vector<double> undos;
    for (int round = 0; round < 5; ++round) {
        undos.push_back(milliseconds([&] { editor->undo(); }));
        editor->redo();
        QCoreApplication::processEvents();
    }
    std::vector<double> zooms;
    for (int round = 0; round < 5; ++round) {
        zooms.push_back(milliseconds([&] { editor->selectZoom(KORVA_ZOOM_50); }));
        editor->selectZoom(KORVA_ZOOM_100);
        QCoreApplication::processEvents();
    }
    std::printf("%.1f %.1f %.2f %.2f %.3f %.2f\n", memory, median(opens), median(undos), median(zooms),
                median(moves), median(presses));
    return editor.canvas().pixmap()->size() == size ? 0 : 1;
}

QStringList measured(const Limits& limits, bool isOpened, int steps)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice()); // the editor writes a line for each open
    process.start(QCoreApplication::applicationFilePath(),
                  {QString::number(limits.width), QString::number(limits.height),
                   QString::number(limits.depth), QString::number(isOpened), QString::number(steps)});
    process.waitForFinished(-1);
    return QString::fromLatin1(process.readAllStandardOutput()).simplified().split(' ');
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 6)
        return measure({words[1].toInt(), words[2].toInt(), words[3].toInt()}, words[4].toInt(),
                       words[5].toInt());
    std::puts("limits | state | steps | PSS MB | open ms | undo ms | zoom ms | move ms | press ms");
    for (const Limits& limits : rows) {
        for (const bool isOpened : {false, true}) {
            for (const int steps : {1, 50})
                std::printf("%d x %d, %d | %s | %d | %s\n", limits.width, limits.height, limits.depth,
                            isOpened ? "opened" : "blank", steps,
                            qPrintable(measured(limits, isOpened, steps).join(" | ")));
        }
    }
    return 0;
}
