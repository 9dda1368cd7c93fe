#pragma once

#include <QImage>

#include <vector>

/// Scales a picture down row by row, each pixel of the result being the mean of the area it covers, so that
/// the full picture need never be in memory.
class UTIL_Reducer
{
public:
    /// No side of `to` is 0 or greater than the same side of `from`; `from` has at most 2^31 pixels.
    UTIL_Reducer(QSize from, QSize to);

    /// The next row, from the top: opaque pixels, as many as `from` is wide.
    void addRow(const QRgb* row);
    /// The next rows, in any format, laid on `background`.
    void addRows(const QImage& rows, QRgb background);
    /// The result (QImage::Format_RGB32), complete when every row was added.
    [[nodiscard]] const QImage& image() const { return m_image; }

    /// A whole picture at once, laid on `background`.
    [[nodiscard]] static QImage reduced(const QImage& image, QSize to, QRgb background);

private:
    void finishRow();

    QSize m_from;
    QImage m_image;
    std::vector<quint64> m_row;  ///< the sums of the row at hand, red, green and blue of each target pixel
    std::vector<quint64> m_rows; ///< the same over the rows that the target row covers so far
    int m_y = 0;                 ///< the target row
    int m_room;                  ///< what of its weight is still to come
};
