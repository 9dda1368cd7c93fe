#pragma once

#include <QImage>

#include <vector>

/// Scales a picture down row by row, so that the full picture need never be in memory. Each pixel of the
/// result is the mean of the area that it covers.
class UTIL_Reducer
{
public:
    /// No side of `to` is 0 or greater than the same side of `from`, or it aborts; `from` has at most 2^31
    /// pixels.
    UTIL_Reducer(QSize from, QSize to);

    /// Adds the next row, from the top: opaque pixels, as many as `from` is wide.
    void addRow(const QRgb* row);
    /// Adds the next rows, in any format, laid on `background`.
    void addRows(const QImage& rows, QRgb background);
    /// The result (QImage::Format_RGB32), complete once all rows are added.
    [[nodiscard]] const QImage& image() const { return m_image; }

    /// Reduces a whole picture at once, laid on `background`.
    [[nodiscard]] static QImage reduced(const QImage& image, QSize to, QRgb background);

private:
    void finishRow();

    QSize m_from;
    QImage m_image;
    std::vector<quint64> m_row;  ///< sums of the current row: red, green and blue of each target pixel
    std::vector<quint64> m_rows; ///< the same over the rows that the target row covers so far
    int m_y = 0;                 ///< the target row
    int m_room;                  ///< the part of its weight that is still to come
};
