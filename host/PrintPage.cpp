#include "PrintPage.h"

#include <QBuffer>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace pad {

namespace {

constexpr int seenResolution = 96;
constexpr int margin = 10; // mm

/// The painter's origin is where its margins end, its unit a dot.
void paint(QPainter& painter, const QImage& picture, QSize room)
{
    const QRect place = printpage::placeOf(picture.size(), room);
    const bool isSmaller = place.width() < picture.width();
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          isSmaller || painter.testRenderHint(QPainter::SmoothPixmapTransform));
    painter.drawImage(place, picture);
}

} // namespace

QPageSize printpage::usualPaper()
{
    const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4);
}

QPageLayout printpage::layoutFor(QSize picture, const QPageSize& paper)
{
    const bool isWide = picture.width() > picture.height();
    return QPageLayout(paper, isWide ? QPageLayout::Landscape : QPageLayout::Portrait,
                       QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
}

QRect printpage::placeOf(QSize picture, QSize room)
{
    constexpr int millimetre = resolution * 10 / 254;
    constexpr int unseen = 4; // from this factor on a whole one costs no more than a fifth
    const QSize largest = picture.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const int factor =
        std::min({millimetre, room.width() / picture.width(), room.height() / picture.height()});
    const QSize size = factor < unseen ? largest : picture * factor;
    return QRect(QPoint((room.width() - size.width()) / 2, (room.height() - size.height()) / 2), size);
}

QImage printpage::seen(const QImage& picture, const QPageLayout& layout)
{
    QImage sheet(layout.fullRectPixels(seenResolution).size(), QImage::Format_RGB32);
    if (sheet.isNull())
        return sheet;
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform); // as pixels that small are seen
    painter.translate(layout.paintRectPixels(seenResolution).topLeft());
    constexpr double scale = double(seenResolution) / resolution;
    painter.scale(scale, scale);
    paint(painter, picture, layout.paintRectPixels(resolution).size());
    return sheet;
}

bool printpage::print(const QImage& picture, const QPageLayout& layout, QPagedPaintDevice& device)
{
    QPainter painter;
    if (!device.setPageLayout(layout) || !painter.begin(&device))
        return false;
    const double scale = double(device.logicalDpiX()) / resolution;
    painter.scale(scale, scale);
    paint(painter, picture, device.pageLayout().paintRectPixels(resolution).size());
    return painter.end();
}

QByteArray printpage::pdf(const QImage& picture, const QPageLayout& layout)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setResolution(resolution);
    writer.setCreator(QStringLiteral("korva-pad"));
    return print(picture, layout, writer) ? file.data() : QByteArray();
}

} // namespace pad
