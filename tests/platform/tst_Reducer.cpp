#include "UTIL_Reducer.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

namespace {

/// The mean of the area that a target pixel covers, by floating point.
QRgb mean(const QImage& image, QSize to, int targetX, int targetY)
{
    const double width = double(image.width()) / to.width();
    const double height = double(image.height()) / to.height();
    double sums[3] = {};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const double across = qMin(x + 1.0, (targetX + 1) * width) - qMax(double(x), targetX * width);
            const double down = qMin(y + 1.0, (targetY + 1) * height) - qMax(double(y), targetY * height);
            if (across <= 0 || down <= 0)
                continue;
            const QRgb color = image.pixel(x, y);
            const int channels[] = {qRed(color), qGreen(color), qBlue(color)};
            for (int i = 0; i < 3; ++i)
                sums[i] += across * down * channels[i];
        }
    const double area = width * height;
    return qRgb(qRound(sums[0] / area), qRound(sums[1] / area), qRound(sums[2] / area));
}

} // namespace

class tst_Reducer : public support::TestCase
{
    Q_OBJECT

private slots:
    void everyPixelIsTheMeanOfItsArea_data();
    void everyPixelIsTheMeanOfItsArea();
    void transparencyShowsTheBackground();
    void longRowsAreSummedUp();
};

void tst_Reducer::everyPixelIsTheMeanOfItsArea_data()
{
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("to");
    const std::pair<QSize, QSize> rows[] = {
        {{37, 23}, {10, 7}}, {{37, 23}, {37, 23}}, {{37, 23}, {36, 22}}, {{37, 23}, {1, 1}},
        {{37, 23}, {37, 1}}, {{40, 24}, {10, 8}},  {{101, 3}, {2, 2}},
    };
    for (const auto& [from, to] : rows)
        QTest::addRow("%dx%d to %dx%d", from.width(), from.height(), to.width(), to.height()) << from << to;
}

void tst_Reducer::everyPixelIsTheMeanOfItsArea()
{
    QFETCH(QSize, from);
    QFETCH(QSize, to);
    const QImage image = support::mosaic(from);
    QImage expected(to, QImage::Format_RGB32);
    for (int y = 0; y < to.height(); ++y)
        for (int x = 0; x < to.width(); ++x)
            expected.setPixel(x, y, mean(image, to, x, y));
    const QImage reduced = UTIL_Reducer::reduced(image, to, 0xffffffff);
    QVERIFY(support::distance(reduced, expected).greatest <= 1); // a half may round either way
}

void tst_Reducer::transparencyShowsTheBackground()
{
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const QImage reduced = UTIL_Reducer::reduced(image, QSize(2, 2), qRgb(10, 200, 30));
    QCOMPARE(reduced,
             support::sheet(QSize(2, 2), QColor(10, 200, 30)).convertToFormat(QImage::Format_RGB32));
}

/// Their sums pass 32 bits.
void tst_Reducer::longRowsAreSummedUp()
{
    constexpr int width = 20'000'000;
    const std::vector<QRgb> row(width, qRgb(250, 130, 10));
    UTIL_Reducer reducer(QSize(width, 2), QSize(1, 1));
    reducer.addRow(row.data());
    reducer.addRow(row.data());
    QCOMPARE(reducer.image().pixel(0, 0), row.front());
}

int main(int argc, char** argv)
{
    return support::run<tst_Reducer>(argc, argv);
}

#include "tst_Reducer.moc"
