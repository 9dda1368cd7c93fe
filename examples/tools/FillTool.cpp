#include "FillTool.h"
#include <KORVA_Pixel.h>
#include <QMouseEvent>
#include <cstring>

void FillTool::mousePressEvent(QMouseEvent* event)
{
    setButton(event->button());
    const QPoint seed = zoom().toPicture(pixel::at(event->position()));
    QImage image = canvas()->snapshot().toImage().convertToFormat(QImage::Format_RGB32);
    const QRgb color = picturePen().color().rgb();
    if (!image.valid(seed) || image.pixel(seed) == color)
        return;
    fill(image, seed, color);
    if (QPixmap* const drawing = beginChange() ? picture() : nullptr) {
        drawing->convertFromImage(image);
        canvas()->updateZoomed();
    }
}

void FillTool::fill(QImage& picture, QPoint seed, QRgb color)
{
    const QRgb old = picture.pixel(seed);
    const QList<QRgb> paint(picture.width(), color);
    const auto isOther = [old](QRgb pixel) { return pixel != old; };
    for (QList<QLine> runs{{seed, seed + QPoint(1, 0)}}; !runs.isEmpty();) { // each from x1 to before x2
        const QLine run = runs.takeLast();
        auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(run.y1()));
        if (isOther(row[run.x1()]))
            continue; // filled from elsewhere
        int left = run.x1();
        for (; left > 0 && row[left - 1] == old; --left) {
        }
        const int right = int(std::find_if(row + run.x2(), row + picture.width(), isOther) - row);
        std::memcpy(row + left, paint.constData(), sizeof(QRgb) * size_t(right - left));
        for (int y = qMax(0, run.y1() - 1); y < qMin(run.y1() + 2, picture.height()); ++y) {
            const auto* const next = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            for (int x = left, end = left; x < right; x = end) { // memcmp() is as fast as the memory
                const bool isPlain =
                    !std::memcmp(next + x, next + x + 1, sizeof(QRgb) * size_t(right - x - 1));
                for (end = isPlain ? right : x + 1; end < right && isOther(next[end]) == isOther(next[x]);
                     ++end) {
                }
                if (next[x] == old)
                    runs.append({x, y, end, y});
            }
        }
    }
}
