#include "Palette.h"

#include <QHash>

#include <png.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace pad {

namespace {

struct Counted
{
    QRgb color;
    qint64 pixels;
};

using Channel = int (*)(QRgb);
constexpr Channel channels[] = {qRed, qGreen, qBlue};
// What a step of a channel counts for the eye.
constexpr int weights[] = {3, 6, 1};

QImage inTrueColor(const QImage& picture)
{
    return picture.convertToFormat(QImage::Format_RGB32);
}

bool isGivenUp(const palette::IsWanted& isWanted)
{
    return isWanted && !isWanted();
}

std::vector<Counted> histogram(const QImage& picture, const palette::IsWanted& isWanted)
{
    QHash<QRgb, qint64> counts;
    for (int y = 0; y < picture.height(); ++y) {
        if (isGivenUp(isWanted))
            return {};
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0, run = 1; x < picture.width(); x += run, run = 1) {
            while (x + run < picture.width() && row[x + run] == row[x])
                ++run;
            counts[row[x]] += run;
        }
    }
    std::vector<Counted> all;
    all.reserve(size_t(counts.size()));
    for (auto each = counts.cbegin(); each != counts.cend(); ++each)
        all.push_back({each.key(), each.value()});
    // The order of a hash differs from run to run.
    std::sort(all.begin(), all.end(),
              [](const Counted& left, const Counted& right) { return left.color < right.color; });
    return all;
}

/// Some of a picture's colours, for which one of the palette will stand.
class Box
{
public:
    using Place = std::vector<Counted>::iterator;

    Box(Place begin, Place end) : m_begin(begin), m_end(end)
    {
        for (Place each = begin; each != end; ++each)
            m_pixels += each->pixels;
        for (size_t i = 0; i < std::size(channels); ++i) {
            const auto [least, most] =
                std::minmax_element(begin, end, [i](const Counted& left, const Counted& right) {
                    return channels[i](left.color) < channels[i](right.color);
                });
            const double extent =
                (channels[i](most->color) - channels[i](least->color)) * std::sqrt(weights[i]);
            if (extent > m_extent) {
                m_extent = extent;
                m_longest = channels[i];
            }
        }
    }

    /// What splitting it is worth.
    [[nodiscard]] double urgency() const { return m_extent * std::sqrt(double(m_pixels)); }

    /// The two halves by pixels, along the longest side; neither is empty.
    [[nodiscard]] std::array<Box, 2> halves() const
    {
        std::stable_sort(m_begin, m_end, [this](const Counted& left, const Counted& right) {
            return m_longest(left.color) < m_longest(right.color);
        });
        Place middle = m_begin;
        qint64 before = 0;
        do
            before += middle++->pixels;
        while (before * 2 < m_pixels && middle + 1 != m_end);
        return {Box(m_begin, middle), Box(middle, m_end)};
    }

    [[nodiscard]] QRgb color() const
    {
        const Place most = std::max_element(m_begin, m_end, [](const Counted& left, const Counted& right) {
            return left.pixels < right.pixels;
        });
        if (most->pixels * 2 > m_pixels)
            return most->color;
        std::array<qint64, std::size(channels)> sums{};
        for (Place each = m_begin; each != m_end; ++each) {
            for (size_t i = 0; i < sums.size(); ++i)
                sums[i] += each->pixels * channels[i](each->color);
        }
        const auto mean = [&](size_t i) { return int((sums[i] + m_pixels / 2) / m_pixels); };
        return qRgb(mean(0), mean(1), mean(2));
    }

private:
    Place m_begin;
    Place m_end;
    qint64 m_pixels = 0;
    double m_extent = 0;
    Channel m_longest = qRed;
};

/// A colour in a space in which distances are what the eye makes of them, more or less.
struct Point
{
    explicit Point(QRgb color) : red(qRed(color)), green(qGreen(color)), blue(qBlue(color)) {}
    Point(int r, int g, int b) : red(r), green(g), blue(b) {}
    Point operator-(const Point& other) const
    {
        return {red - other.red, green - other.green, blue - other.blue};
    }
    [[nodiscard]] int times(const Point& other) const
    {
        return weights[0] * red * other.red + weights[1] * green * other.green +
               weights[2] * blue * other.blue;
    }
    [[nodiscard]] int squared() const { return times(*this); }

    int red;
    int green;
    int blue;
};

using Points = std::vector<Point>;

constexpr int levels = 16;
constexpr int matrixSide = 4;
constexpr int bayer[matrixSide][matrixSide] = {
    {0, 8, 2, 10},
    {12, 4, 14, 6},
    {3, 11, 1, 9},
    {15, 7, 13, 5},
};

/// How a colour is shown: by one of the palette and, in so many of 16 pixels, by another one.
struct Mix
{
    quint8 first;
    quint8 second;
    quint8 share;
};

Mix nearest(const Point& color, const Points& palette)
{
    const auto found =
        std::min_element(palette.cbegin(), palette.cend(), [&color](const Point& left, const Point& right) {
            return (left - color).squared() < (right - color).squared();
        });
    const auto index = quint8(found - palette.cbegin());
    return {index, index, 0};
}

Mix mixed(const Point& color, const Points& palette)
{
    constexpr double coarseness = 0.05; // how much a difference between the dots counts against a mix
    Mix best = nearest(color, palette);
    const Point first = palette[best.first];
    const Point aim = color - first;
    double least = aim.squared();
    for (size_t i = 0; i < palette.size() && least > 0; ++i) {
        const Point way = palette[i] - first;
        const int length = way.squared();
        const int along = aim.times(way);
        if (along <= 0)
            continue; // it leads away
        const int share = std::min(int(std::lround(double(along) / length * levels)), levels);
        const double part = double(share) / levels;
        // The squared distance to the point on the line between the two.
        const double miss = aim.squared() - 2 * part * along + part * part * length;
        const double cost = miss + coarseness * part * (1 - part) * length;
        if (cost < least) {
            least = cost;
            best = {best.first, quint8(i), quint8(share)};
        }
    }
    return best;
}

} // namespace

QList<QRgb> palette::of(const QImage& picture, int colors, const IsWanted& isWanted)
{
    if (colors == 2)
        return {qRgb(0, 0, 0), qRgb(255, 255, 255)};
    std::vector<Counted> counted = histogram(inTrueColor(picture), isWanted);
    QList<QRgb> found;
    if (counted.size() <= size_t(colors)) {
        for (const Counted& each : counted)
            found.append(each.color);
        return found;
    }
    std::vector<Box> boxes{Box(counted.begin(), counted.end())};
    while (boxes.size() < size_t(colors)) {
        const auto next =
            std::max_element(boxes.begin(), boxes.end(), [](const Box& left, const Box& right) {
                return left.urgency() < right.urgency();
            });
        const auto [low, high] = next->halves();
        *next = low;
        boxes.push_back(high);
    }
    for (const Box& box : boxes)
        found.append(box.color());
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

QImage palette::applied(const QImage& picture, const QList<QRgb>& palette, Mixing mixing,
                        const IsWanted& isWanted)
{
    const QImage source = inTrueColor(picture);
    QImage result(source.size(), QImage::Format_Indexed8);
    result.setColorTable(palette);
    const Points points(palette.cbegin(), palette.cend());
    const auto find = mixing == Mixing::Dots ? mixed : nearest;
    QHash<QRgb, Mix> mixes;
    for (int y = 0; y < source.height(); ++y) {
        if (palette.isEmpty() || isGivenUp(isWanted))
            return {};
        const auto* from = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        uchar* to = result.scanLine(y);
        Mix mix{};
        for (int x = 0; x < source.width(); ++x) {
            if (x == 0 || from[x] != from[x - 1]) {
                auto known = mixes.constFind(from[x]);
                if (known == mixes.constEnd())
                    known = mixes.insert(from[x], find(Point(from[x]), points));
                mix = *known;
            }
            to[x] = mix.share > bayer[y % matrixSide][x % matrixSide] ? mix.second : mix.first;
        }
    }
    if (palette.size() != 2)
        return result;
    QImage mono(result.size(), QImage::Format_Mono);
    mono.setColorTable(palette);
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x)
            mono.setPixel(x, y, uint(result.pixelIndex(x, y)));
    }
    return mono;
}

QByteArray palette::png(const QImage& picture)
{
    const QImage indexed = picture.convertToFormat(QImage::Format_Indexed8);
    std::vector<png_byte> colors;
    for (const QRgb color : indexed.colorTable()) {
        for (const Channel channel : channels)
            colors.push_back(png_byte(channel(color)));
    }
    png_image header = {};
    header.version = PNG_IMAGE_VERSION;
    header.format = PNG_FORMAT_RGB_COLORMAP;
    header.width = png_uint_32(indexed.width());
    header.height = png_uint_32(indexed.height());
    header.colormap_entries = png_uint_32(indexed.colorCount());
    const auto stride = png_int_32(indexed.bytesPerLine());
    const auto write = [&](void* memory, png_alloc_size_t& size) {
        return png_image_write_to_memory(&header, memory, &size, 0, indexed.constBits(), stride,
                                         colors.data()) != 0;
    };
    QByteArray bytes(qsizetype(PNG_IMAGE_PNG_SIZE_MAX(header)), Qt::Uninitialized);
    auto size = png_alloc_size_t(bytes.size());
    if (!write(bytes.data(), size))
        return {};
    bytes.truncate(qsizetype(size));
    return bytes;
}

} // namespace pad
