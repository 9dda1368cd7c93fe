#include "UTIL_PictureSource.h"
#include "UTIL_Png.h"
#include "UTIL_PngSession.h"
#include "UTIL_Reducer.h"

#include <optional>
#include <vector>

namespace {

constexpr int palettedDepth = 8;
constexpr int deepDepth = 16;
constexpr QRgb white = 0xffffffff;
constexpr bool isLittle = QSysInfo::ByteOrder == QSysInfo::LittleEndian;

void readBytes(png_structp png, png_bytep data, size_t count)
{
    auto* source = static_cast<UTIL_PictureSource*>(png_get_io_ptr(png));
    bool isRead = false;
    try { // no exception may pass through the library
        isRead = source->read(reinterpret_cast<char*>(data), qint64(count)) == qint64(count);
    } catch (...) {
    }
    if (!isRead)
        png_error(png, "the file ends too early");
}

/// Lays pixels with straight alpha on white, in place.
void layOnWhite(QRgb* row, int width)
{
    for (QRgb* pixel = row; pixel != row + width; ++pixel) {
        const int alpha = qAlpha(*pixel);
        if (alpha == 255)
            continue;
        if (alpha == 0) {
            *pixel = white;
            continue;
        }
        const auto mix = [alpha](int channel) {
            return (channel * alpha + 255 * (255 - alpha) + 127) / 255;
        };
        *pixel = qRgb(mix(qRed(*pixel)), mix(qGreen(*pixel)), mix(qBlue(*pixel)));
    }
}

/// The header, and the chunks before the pixels.
struct Header
{
    QSize size;
    int depth = 0; ///< bits of a sample
    int colorType = 0;
    QList<QRgb> palette;
    bool isClear = false; ///< some colours of the palette, or one colour, are transparent
    int clearGrey = 0;    ///< the transparent level of a grey picture
};

Header headerOf(const UTIL_PngSession& session)
{
    png_structp png = session.png();
    png_infop info = session.info();
    Header header;
    header.size = QSize(int(png_get_image_width(png, info)), int(png_get_image_height(png, info)));
    header.depth = png_get_bit_depth(png, info);
    header.colorType = png_get_color_type(png, info);
    png_colorp colors = nullptr;
    int count = 0;
    if (png_get_PLTE(png, info, &colors, &count) != 0) {
        for (const png_color* color = colors; color != colors + count; ++color)
            header.palette.append(qRgb(color->red, color->green, color->blue));
    }
    png_bytep alphas = nullptr;
    png_color_16p clear = nullptr;
    header.isClear = png_get_tRNS(png, info, &alphas, &count, &clear) != 0;
    if (header.isClear && clear)
        header.clearGrey = clear->gray;
    if (header.isClear && header.colorType == PNG_COLOR_TYPE_PALETTE) {
        for (int i = 0; i < qMin<int>(count, int(header.palette.size())); ++i)
            header.palette[i] = (header.palette[i] & RGB_MASK) | QRgb(alphas[i]) << 24;
    }
    return header;
}

/// Eight bits a channel in the order of QRgb, but with red and blue exchanged where that saves time.
void askForSwappedQRgb(png_structp png, bool hasAlpha)
{
    if (!hasAlpha)
        png_set_add_alpha(png, 0xff, isLittle ? PNG_FILLER_AFTER : PNG_FILLER_BEFORE);
    else if (!isLittle)
        png_set_swap_alpha(png);
}

void askForQRgb(png_structp png, bool hasAlpha)
{
    askForSwappedQRgb(png, hasAlpha);
    if (isLittle)
        png_set_bgr(png);
}

/// How libpng puts a picture's samples into a QImage.
struct Layout
{
    QImage::Format format;
    QList<QRgb> colors;
};

Layout greyLayout(png_structp png, const Header& header)
{
    if (header.depth == 1) {
        png_set_invert_mono(png); // the palette below begins with white
        Layout layout{QImage::Format_Mono, {qRgb(255, 255, 255), qRgb(0, 0, 0)}};
        if (header.isClear && header.clearGrey <= 1)
            layout.colors[1 - header.clearGrey] &= RGB_MASK;
        return layout;
    }
    if (header.depth == deepDepth) {
        if (isLittle)
            png_set_swap(png);
        if (!header.isClear)
            return {QImage::Format_Grayscale16, {}};
        png_set_expand(png);
        png_set_gray_to_rgb(png);
        return {QImage::Format_RGBA64, {}};
    }
    if (header.depth == palettedDepth && !header.isClear)
        return {QImage::Format_Grayscale8, {}};
    png_set_packing(png);
    const int levels = 1 << header.depth;
    Layout layout{QImage::Format_Indexed8, {}};
    for (int i = 0; i < levels; ++i) {
        const int level = i * 255 / (levels - 1);
        layout.colors.append(header.isClear && header.clearGrey == i ? 0 : qRgb(level, level, level));
    }
    return layout;
}

Layout layoutFor(png_structp png, const Header& header)
{
    if (header.colorType == PNG_COLOR_TYPE_GRAY)
        return greyLayout(png, header);
    if (header.colorType == PNG_COLOR_TYPE_PALETTE) {
        if (header.depth > 1)
            png_set_packing(png);
        return {header.depth == 1 ? QImage::Format_Mono : QImage::Format_Indexed8, header.palette};
    }
    const bool hasAlpha = (header.colorType & PNG_COLOR_MASK_ALPHA) || header.isClear;
    png_set_expand(png);
    png_set_gray_to_rgb(png);
    if (header.depth == deepDepth) {
        if (isLittle)
            png_set_swap(png);
        if (!hasAlpha)
            png_set_filler(png, 0xffff, PNG_FILLER_AFTER);
        return {hasAlpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64, {}};
    }
    askForQRgb(png, hasAlpha);
    return {hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32, {}};
}

/// Each chunk has a checksum, and all pixels together another one.
void skipSecondChecksum([[maybe_unused]] png_structp png)
{
#ifdef PNG_IGNORE_ADLER32 // Debian 13's libpng is built without
    png_set_option(png, PNG_IGNORE_ADLER32, PNG_OPTION_ON);
#endif
}

/// Reads one file from its start to its end. Every function returns false when the file is damaged.
class Reader
{
public:
    explicit Reader(UTIL_PictureSource& source) : m_source(source), m_session(UTIL_PngSession::Reading) {}

    /// Reads up to the first row of pixels. `layOut` sets how the pixels are wanted.
    template <typename LayOut>
    bool begin(const LayOut& layOut)
    {
        if (!m_session.attempt([this] {
                skipSecondChecksum(m_session.png());
                png_set_read_fn(m_session.png(), &m_source, readBytes);
                png_read_info(m_session.png(), m_session.info());
            }))
            return false;
        m_header = headerOf(m_session);
        layOut(m_session.png(), m_header);
        return m_session.attempt([this] {
            m_passes = png_set_interlace_handling(m_session.png());
            png_read_update_info(m_session.png(), m_session.info());
        });
    }

    [[nodiscard]] QSize size() const { return m_header.size; }
    [[nodiscard]] int passes() const { return m_passes; }

    /// Reads all rows once per pass, each time with more of their pixels.
    bool readRow(uchar* row)
    {
        allowOneRow();
        return !m_source.isCancelled() &&
               m_session.attempt([this, row] { png_read_row(m_session.png(), row, nullptr); });
    }

    bool end()
    {
        allowOneRow();
        return m_session.attempt([this] { png_read_end(m_session.png(), nullptr); });
    }

private:
    /// No row takes more of the file, and what is behind the last one is short. The library unpacks all of
    /// that, though nothing of it is seen: a megabyte could hold a gigabyte.
    void allowOneRow()
    {
        constexpr qint64 mostBeside = 1 << 17;
        constexpr qint64 mostBytes = 8; // of a pixel
        m_source.allowMore(mostBeside + mostBytes * m_header.size.width());
    }

    UTIL_PictureSource& m_source;
    UTIL_PngSession m_session;
    Header m_header;
    int m_passes = 1;
};

} // namespace

QImage png::read(UTIL_PictureSource& source)
{
    Reader reader(source);
    Layout layout{};
    if (!reader.begin(
            [&layout](png_structp png, const Header& header) { layout = layoutFor(png, header); }))
        return {};
    QImage image(reader.size(), layout.format);
    if (image.isNull())
        return {};
    if (!layout.colors.isEmpty())
        image.setColorTable(layout.colors);
    for (int pass = 0; pass < reader.passes(); ++pass) {
        for (int y = 0; y < image.height(); ++y) {
            if (!reader.readRow(image.scanLine(y)))
                return {};
        }
    }
    return reader.end() ? image : QImage();
}

QImage png::readReduced(UTIL_PictureSource& source, QSize target)
{
    Reader reader(source);
    if (!reader.begin([](png_structp png, const Header& header) {
            png_set_expand(png);
            png_set_scale_16(png);
            png_set_gray_to_rgb(png);
            askForSwappedQRgb(png, (header.colorType & PNG_COLOR_MASK_ALPHA) || header.isClear);
        }))
        return {};
    const QSize size = reader.size();
    const bool isInterlaced = reader.passes() > 1;
    QImage rows(size.width(), isInterlaced ? size.height() : 1, QImage::Format_ARGB32);
    if (rows.isNull())
        return {};
    for (int pass = 1; pass < reader.passes(); ++pass) {
        for (int y = 0; y < size.height(); ++y) {
            if (!reader.readRow(rows.scanLine(y)))
                return {};
        }
    }
    UTIL_Reducer reducer(size, target);
    for (int y = 0; y < size.height(); ++y) {
        uchar* row = rows.scanLine(isInterlaced ? y : 0);
        if (!reader.readRow(row))
            return {};
        auto* pixels = reinterpret_cast<QRgb*>(row);
        layOnWhite(pixels, size.width());
        reducer.addRow(pixels);
    }
    if (!reader.end())
        return {};
    return isLittle ? reducer.image().rgbSwapped() : reducer.image();
}
