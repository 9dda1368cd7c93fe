#include "FillTool.h"
#include <KORVA_Canvas.h>
#include <KORVA_Pixel.h>
#include <QMouseEvent>
#include <algorithm>

void FillTool::activating()
{
    canvas()->setCursor(Qt::CrossCursor);
}

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
    for (QList<QPoint> seeds{seed}; !seeds.isEmpty();) {
        const QPoint at = seeds.takeLast();
        auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(at.y()));
        int left = at.x(), right = at.x();
        for (; left > 0 && row[left - 1] == old; --left) {
        }
        for (; right < picture.width() && row[right] == old; ++right) {
        }
        std::fill(row + left, row + right, color);
        for (int y = qMax(0, at.y() - 1); y < qMin(at.y() + 2, picture.height()); ++y) {
            const auto* const next = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            for (int x = left; x < right; ++x)
                if (next[x] == old && (x == left || next[x - 1] != old))
                    seeds.append({x, y});
        }
    }
}
