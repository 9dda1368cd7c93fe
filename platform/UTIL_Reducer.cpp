#include "UTIL_Reducer.h"

#include "KORVA_Assert.h"

#include <QPainter>

// In each direction, a source pixel weighs as many units as the target has pixels. So a target pixel holds
// as many units as the source has pixels. All of these are whole numbers, and no source pixel touches more
// than two target pixels.

namespace {

struct Sums
{
    quint64 red = 0;
    quint64 green = 0;
    quint64 blue = 0;

    /// Adds this many pixels, each with this weight.
    void add(const QRgb* pixel, int count, int weight)
    {
        constexpr int mostAtOnce = 256; // their sums of red and of blue fit sixteen bits each
        while (count > 0) {
            const QRgb* const end = pixel + qMin(count, mostAtOnce);
            count -= qMin(count, mostAtOnce);
            quint32 redAndBlue = 0;
            quint32 greens = 0;
            for (; pixel != end; ++pixel) {
                redAndBlue += *pixel & 0xff00ff;
                greens += *pixel >> 8 & 0xff;
            }
            red += quint64(redAndBlue >> 16) * quint64(weight);
            green += quint64(greens) * quint64(weight);
            blue += quint64(redAndBlue & 0xffff) * quint64(weight);
        }
    }
};

} // namespace

UTIL_Reducer::UTIL_Reducer(QSize from, QSize to)
    : m_from(from),
      m_image(to, QImage::Format_RGB32),
      m_row(size_t(to.width()) * 3),
      m_rows(m_row.size()),
      m_room(from.height())
{
    KORVA_ASSERT(!to.isEmpty() && to.boundedTo(from) == to);
}

void UTIL_Reducer::addRow(const QRgb* row)
{
    const int across = m_image.width();
    const QRgb* pixel = row;
    int rest = 0; // the weight of the source pixel that did not fit the previous target pixel
    for (quint64* sum = m_row.data(); sum != m_row.data() + m_row.size(); sum += 3) {
        Sums sums;
        int room = m_from.width();
        if (rest > 0) {
            sums.add(pixel++, 1, rest);
            room -= rest;
        }
        const int whole = room / across;
        sums.add(pixel, whole, across);
        pixel += whole;
        room -= whole * across;
        if (room > 0)
            sums.add(pixel, 1, room);
        rest = room > 0 ? across - room : 0;
        sum[0] = sums.red;
        sum[1] = sums.green;
        sum[2] = sums.blue;
    }

    const auto addSums = [this](int weight) {
        for (size_t i = 0; i < m_row.size(); ++i)
            m_rows[i] += m_row[i] * quint64(weight);
    };
    const int weight = qMin(m_image.height(), m_room);
    addSums(weight);
    m_room -= weight;
    if (m_room > 0)
        return;
    finishRow();
    const int below = m_image.height() - weight;
    m_room = m_from.height() - below;
    if (below > 0)
        addSums(below);
}

void UTIL_Reducer::finishRow()
{
    const quint64 units = quint64(m_from.width()) * quint64(m_from.height());
    const auto mean = [units](quint64 sum) { return int((sum + units / 2) / units); };
    auto* pixel = reinterpret_cast<QRgb*>(m_image.scanLine(m_y++));
    for (size_t i = 0; i < m_rows.size(); i += 3)
        *pixel++ = qRgb(mean(m_rows[i]), mean(m_rows[i + 1]), mean(m_rows[i + 2]));
    std::fill(m_rows.begin(), m_rows.end(), 0);
}

void UTIL_Reducer::addRows(const QImage& rows, QRgb background)
{
    QImage row(rows.width(), 1, QImage::Format_RGB32);
    for (int y = 0; y < rows.height(); ++y) {
        QImage source(rows.constScanLine(y), rows.width(), 1, rows.bytesPerLine(), rows.format());
        source.setColorTable(rows.colorTable());
        row.fill(background);
        QPainter(&row).drawImage(0, 0, source);
        addRow(reinterpret_cast<const QRgb*>(row.constScanLine(0)));
    }
}

QImage UTIL_Reducer::reduced(const QImage& image, QSize to, QRgb background)
{
    UTIL_Reducer reducer(image.size(), to);
    reducer.addRows(image, background);
    return reducer.image();
}
