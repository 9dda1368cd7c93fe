#include "UTIL_Png.h"

#include "UTIL_PngSession.h"

#include <QHash>

#include <zlib.h>

#include <optional>
#include <vector>

namespace {

void appendBytes(png_structp png, png_bytep data, size_t count)
{
    auto* file = static_cast<QByteArray*>(png_get_io_ptr(png));
    bool isAppended = false;
    try { // no exception may pass through the library
        file->append(reinterpret_cast<const char*>(data), qsizetype(count));
        isAppended = true;
    } catch (...) {
    }
    if (!isAppended)
        png_error(png, "no memory left");
}

/// Samples for the file, not yet packed: one byte each.
struct Pixels
{
    int colorType;
    int depth;           ///< bits of a sample
    int samples;         ///< of a pixel
    QList<QRgb> palette; ///< empty for true colour and grey
    std::vector<quint8> bytes;
};

int bitsFor(qsizetype colors)
{
    int bits = 1;
    while (1 << bits < colors)
        bits *= 2;
    return bits;
}

Pixels trueColor(const QImage& image)
{
    Pixels pixels{PNG_COLOR_TYPE_RGB, 8, 3, {}, {}};
    pixels.bytes.reserve(size_t(image.width()) * size_t(image.height()) * 3);
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            for (const int channel : {qRed(row[x]), qGreen(row[x]), qBlue(row[x])})
                pixels.bytes.push_back(quint8(channel));
        }
    }
    return pixels;
}

/// Nothing when there are more than 256 colours.
std::optional<Pixels> paletted(const QImage& image)
{
    Pixels pixels{PNG_COLOR_TYPE_PALETTE, 8, 1, {}, {}};
    pixels.bytes.reserve(size_t(image.width()) * size_t(image.height()));
    QHash<QRgb, quint8> indices;
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            auto index = indices.constFind(row[x]);
            if (index == indices.constEnd()) {
                if (pixels.palette.size() == PNG_MAX_PALETTE_LENGTH)
                    return std::nullopt;
                index = indices.insert(row[x], quint8(pixels.palette.size()));
                pixels.palette.append(row[x]);
            }
            pixels.bytes.push_back(*index);
        }
    }
    pixels.depth = bitsFor(pixels.palette.size());
    return pixels;
}

/// The palette's colours as levels of grey, in as few bits as possible; nothing if one of them is not grey.
std::optional<Pixels> grey(const Pixels& paletted)
{
    const auto isExact = [&paletted](int depth) {
        const int step = 255 / ((1 << depth) - 1);
        return std::all_of(paletted.palette.cbegin(), paletted.palette.cend(),
                           [step](QRgb color) { return qIsGray(color) && qRed(color) % step == 0; });
    };
    Pixels pixels{PNG_COLOR_TYPE_GRAY, 1, 1, {}, {}};
    while (!isExact(pixels.depth)) {
        if (pixels.depth == 8)
            return std::nullopt;
        pixels.depth *= 2;
    }
    const int step = 255 / ((1 << pixels.depth) - 1);
    pixels.bytes.reserve(paletted.bytes.size());
    for (const quint8 index : paletted.bytes)
        pixels.bytes.push_back(quint8(qRed(paletted.palette[index]) / step));
    return pixels;
}

/// Settings of the compressor. Only trying shows which one suits a picture best.
struct Packing
{
    int filters;
    int strategy;
};
constexpr Packing packings[] = {
    {PNG_FILTER_NONE, Z_DEFAULT_STRATEGY},
    {PNG_ALL_FILTERS, Z_DEFAULT_STRATEGY},
    {PNG_ALL_FILTERS, Z_FILTERED},
};

QByteArray written(const QSize& size, Pixels& pixels, const Packing& packing, int effort)
{
    QByteArray file;
    std::vector<png_color> palette;
    for (const QRgb color : std::as_const(pixels.palette))
        palette.push_back({png_byte(qRed(color)), png_byte(qGreen(color)), png_byte(qBlue(color))});

    UTIL_PngSession session(UTIL_PngSession::Writing);
    png_structp png = session.png();
    const bool complete = session.attempt([&] {
        png_set_write_fn(png, &file, appendBytes, nullptr);
        png_set_IHDR(png, session.info(), png_uint_32(size.width()), png_uint_32(size.height()),
                     pixels.depth, pixels.colorType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                     PNG_FILTER_TYPE_DEFAULT);
        if (!palette.empty())
            png_set_PLTE(png, session.info(), palette.data(), int(palette.size()));
        png_set_filter(png, PNG_FILTER_TYPE_BASE, packing.filters);
        png_set_compression_level(png, effort);
        png_set_compression_mem_level(png, MAX_MEM_LEVEL);
        png_set_compression_strategy(png, packing.strategy);
        png_write_info(png, session.info());
        png_set_packing(png);
        for (int y = 0; y < size.height(); ++y)
            png_write_row(png, pixels.bytes.data() + qsizetype(y) * size.width() * pixels.samples);
        png_write_end(png, session.info());
    });
    return complete ? file : QByteArray();
}

/// The shortest of all that are tried, at the compressor's greatest effort.
QByteArray shortest(const QSize& size, QList<Pixels>& candidates)
{
    QByteArray best;
    for (Pixels& pixels : candidates) {
        for (const Packing& packing : packings) {
            const QByteArray file = written(size, pixels, packing, Z_BEST_COMPRESSION);
            if (best.isEmpty() || (!file.isEmpty() && file.size() < best.size()))
                best = file;
        }
    }
    return best;
}

/// A large picture in true colour: nobody waits three times twelve megapixels for a file that is one
/// percent shorter. It is written once, in the packing that suits some of its rows best.
QByteArray writtenOnce(const QSize& size, Pixels& pixels)
{
    constexpr int tried = 1 << 18;
    const int rows = qMin(size.height(), qMax(1, tried / size.width()));
    const qsizetype rowBytes = qsizetype(size.width()) * pixels.samples;
    const auto from = pixels.bytes.begin() + (size.height() - rows) / 2 * rowBytes;
    Pixels sample = {pixels.colorType, pixels.depth, pixels.samples, {}, {from, from + rows * rowBytes}};
    const Packing* best = nullptr;
    qsizetype least = 0;
    for (const Packing& packing : packings) {
        const qsizetype length =
            written({size.width(), rows}, sample, packing, Z_DEFAULT_COMPRESSION).size();
        if (!best || length < least) {
            best = &packing;
            least = length;
        }
    }
    return written(size, pixels, *best, Z_DEFAULT_COMPRESSION);
}

} // namespace

QByteArray png::encoded(const QImage& image)
{
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    QList<Pixels> candidates;
    if (std::optional<Pixels> few = paletted(opaque)) {
        if (std::optional<Pixels> levels = grey(*few))
            candidates.append(std::move(*levels));
        if (few->depth < 8) {
            candidates.append(*few);
            few->depth = 8; // whole bytes sometimes compress better
        }
        candidates.append(std::move(*few));
    } else {
        candidates.append(trueColor(opaque));
        constexpr qint64 large = 1'000'000;
        if (qint64(opaque.width()) * opaque.height() > large)
            return writtenOnce(opaque.size(), candidates.first());
    }
    return shortest(opaque.size(), candidates);
}
