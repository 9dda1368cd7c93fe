#include <QtTest>
#include <QtWidgets>

#include "examples/tools/FillTool.h"
#include "support/TestCase.h"

#include <ctime>

namespace {

/// What this thread has used, so that a busy machine does not count.
double cpuMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

template <typename Work>
double cost(const Work& work)
{
    const double before = cpuMilliseconds();
    work();
    return cpuMilliseconds() - before;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace

/// This is compiled as for a release, without sanitizers, in every build.
class tst_FillSpeed : public support::TestCase
{
    Q_OBJECT

private slots:
    void isNearThatOfTheMemory();
};

void tst_FillSpeed::isNearThatOfTheMemory()
{
    constexpr int rounds = 9;
    QImage picture(4096, 4096, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QList<double> rows;
    QList<double> tool;
    QRgb color = 0xff000000;
    for (int round = 0; round < rounds; ++round) {
        ++color;
        rows << cost([&] {
            for (int y = 0; y < picture.height(); ++y) {
                auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
                std::fill(row, row + picture.width(), color);
            }
        });
        ++color;
        tool << cost([&] { FillTool::fill(picture, {2000, 1000}, color); });
        for (const QPoint at : {QPoint(0, 0), QPoint(4095, 0), QPoint(2000, 1000), QPoint(4095, 4095)})
            QCOMPARE(picture.pixel(at), color);
    }
    qInfo("row by row %.1f ms, the tool %.1f ms", median(rows), median(tool));
    QVERIFY(median(tool) < 2 * median(rows));
}

int main(int argc, char** argv)
{
    return support::run<tst_FillSpeed>(argc, argv);
}

#include "tst_FillSpeed.moc"
