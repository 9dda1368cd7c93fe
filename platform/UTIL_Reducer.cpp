#include "UTIL_Reducer.h"

#include <QPainter>

// A source pixel weighs as many units as the target has pixels in that direction, so a target pixel holds
// as many units as the source has: whole numbers, and no source pixel touches more than two target pixels.

UTIL_Reducer::UTIL_Reducer(QSize from, QSize to)
    : m_from(from),
      m_image(to, QImage::Format_RGB32),
      m_row(size_t(to.width()) * 3),
      m_rows(m_row.size()),
      m_room(from.height())
{
}

void UTIL_Reducer::addRow(const QRgb* row)
{
    std::fill(m_row.begin(), m_row.end(), 0);
    quint32* sum = m_row.data();
    int room = m_from.width();
    const auto add = [&sum](QRgb color, int weight) {
        sum[0] += quint32(qRed(color) * weight);
        sum[1] += quint32(qGreen(color) * weight);
        sum[2] += quint32(qBlue(color) * weight);
    };
    for (const QRgb* pixel = row; pixel != row + m_from.width(); ++pixel) {
        const int weight = qMin(m_image.width(), room);
        add(*pixel, weight);
        room -= weight;
        if (room > 0)
            continue;
        sum += 3;
        const int rest = m_image.width() - weight;
        room = m_from.width() - rest;
        if (rest > 0)
            add(*pixel, rest);
    }

    const auto addSums = [this](int weight) {
        for (size_t i = 0; i < m_row.size(); ++i)
            m_rows[i] += quint64(m_row[i]) * quint64(weight);
    };
    const int weight = qMin(m_image.height(), m_room);
    addSums(weight);
    m_room -= weight;
    if (m_room > 0)
        return;
    finishRow();
    const int rest = m_image.height() - weight;
    m_room = m_from.height() - rest;
    if (rest > 0)
        addSums(rest);
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

QImage UTIL_Reducer::reduced(const QImage& image, QSize to, QRgb background)
{
    UTIL_Reducer reducer(image.size(), to);
    QImage row(image.width(), 1, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        QImage source(image.constScanLine(y), image.width(), 1, image.bytesPerLine(), image.format());
        source.setColorTable(image.colorTable());
        row.fill(background);
        QPainter(&row).drawImage(0, 0, source);
        reducer.addRow(reinterpret_cast<const QRgb*>(row.constScanLine(0)));
    }
    return reducer.image();
}
