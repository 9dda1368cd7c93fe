#include "inside.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir temporary;
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fputs("usage: korva-bench-inside [--benchmark_...] PICTURES\n"
                   "PICTURES is a folder of pictures to open.\n",
                   stderr);
        return 2;
    }
    bench::addStrokes();
    bench::addPictures();
    bench::addFiles(QString::fromLocal8Bit(argv[1]));
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
