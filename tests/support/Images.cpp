#include "Images.h"

#include <QtTest>

namespace support {

namespace {

QString runningTest()
{
    QString name = QTest::currentTestFunction();
    if (const char* row = QTest::currentDataTag())
        name += '-' + QString::fromUtf8(row);
    return name.replace(QRegularExpression("[^A-Za-z0-9-]+"), "_");
}

template <typename Visit>
void forEachPixel(const QImage& image, const Visit& visit)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            visit(x, y, image.pixel(x, y));
}

// White where the pictures agree; elsewhere, and outside either of them, red.
QImage difference(const QImage& actual, const QImage& expected)
{
    QImage marks = sheet(actual.size().expandedTo(expected.size()), Qt::red);
    const QRect both = actual.rect() & expected.rect();
    forEachPixel(actual.copy(both), [&](int x, int y, QRgb pixel) {
        if (expected.pixel(x, y) == pixel)
            marks.setPixel(x, y, qRgb(255, 255, 255));
    });
    return marks;
}

} // namespace

bool sameImage(const QImage& actual, const QImage& expected, QString name)
{
    const auto format = QImage::Format_ARGB32;
    if (actual.convertToFormat(format) == expected.convertToFormat(format))
        return true;

    if (name.isEmpty())
        name = runningTest();
    const QImage marks = difference(actual, expected);
    const QString stem = QString(KORVA_TEST_OUTPUT "/") +
                         QFileInfo(QCoreApplication::applicationFilePath()).fileName() + '-' + name;
    actual.save(stem + "-actual.png");
    expected.save(stem + "-expected.png");
    marks.save(stem + "-difference.png");
    qInfo().noquote() << "pictures differ: actual" << actual.size() << "expected" << expected.size() << "in"
                      << inkCount(marks) << "pixels within" << inkBounds(marks) << "- see"
                      << stem + "-*.png";
    return false;
}

QImage sheet(QSize size, const QColor& color, const std::function<void(QPainter&)>& paint)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    if (paint && !image.isNull()) {
        QPainter painter(&image);
        paint(painter);
    }
    return image;
}

QImage mosaic(QSize size)
{
    QImage image = sheet(size);
    forEachPixel(image, [&](int x, int y, QRgb) {
        image.setPixel(x, y, qRgb(x * 37 % 251, y * 53 % 251, (x * 11 + y * 7) % 251 + 2));
    });
    return image;
}

QImage inverted(const QImage& image)
{
    QImage result = image;
    result.invertPixels();
    return result;
}

QImage overlaid(QImage below, QPoint at, const QImage& above)
{
    forEachPixel(above, [&](int x, int y, QRgb pixel) {
        if (below.rect().contains(at + QPoint(x, y)))
            below.setPixel(at + QPoint(x, y), pixel);
    });
    return below;
}

QImage filled(QImage image, const QRect& rect, const QColor& color)
{
    return overlaid(std::move(image), rect.topLeft(), sheet(rect.size(), color));
}

QImage scaled(const QImage& image, int percent)
{
    const auto factor = static_cast<float>(percent / 100.0);
    const QSize size(static_cast<int>(static_cast<float>(image.width()) * factor),
                     static_cast<int>(static_cast<float>(image.height()) * factor));
    return sheet(size, Qt::white, [&](QPainter& painter) {
        painter.scale(static_cast<double>(factor), static_cast<double>(factor));
        painter.drawImage(0, 0, image);
    });
}

QRect inkBounds(const QImage& image)
{
    QRect bounds;
    forEachPixel(image, [&](int x, int y, QRgb pixel) {
        if (pixel != qRgb(255, 255, 255))
            bounds |= QRect(x, y, 1, 1);
    });
    return bounds;
}

int inkCount(const QImage& image)
{
    int count = 0;
    forEachPixel(image, [&](int, int, QRgb pixel) { count += pixel != qRgb(255, 255, 255); });
    return count;
}

} // namespace support
