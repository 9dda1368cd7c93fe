#include "UTIL_Jpeg.h"

#include "UTIL_JpegBlocks.h"
#include "UTIL_PictureSource.h"
#include "UTIL_Reducer.h"

#include <csetjmp>

#include <jerror.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <vector>

namespace {

/// The least number of the decoder's pixels per side that go into one of the result when the decoder itself
/// reduces.
constexpr int leastPixelsMerged = 8;

constexpr J_COLOR_SPACE rgbSpace =
    QSysInfo::ByteOrder == QSysInfo::LittleEndian ? JCS_EXT_BGRA : JCS_EXT_ARGB; // the bytes of a QRgb

/// The library's structures, and its way of reporting errors: a jump back into attempt(). No C++ objects
/// are on the stack between the two.
class Decoder : private UTIL_JpegBlocks
{
public:
    explicit Decoder(UTIL_PictureSource& source) : m_source(source)
    {
        m_jpeg.err = jpeg_std_error(&m_errors);
        m_errors.error_exit = fail;
        m_errors.emit_message = hear;
        m_errors.output_message = [](j_common_ptr) {};
        m_jpeg.client_data = static_cast<UTIL_JpegBlocks*>(this);
        attempt([this] {
            jpeg_create_decompress(&m_jpeg);
            serve(m_jpeg);
        });
        m_bytes.init_source = [](j_decompress_ptr) {};
        m_bytes.fill_input_buffer = fill;
        m_bytes.skip_input_data = skip;
        m_bytes.resync_to_restart = jpeg_resync_to_restart;
        m_bytes.term_source = [](j_decompress_ptr) {};
        m_jpeg.src = &m_bytes;
        m_progress.progress_monitor = [](j_common_ptr jpeg) { of(jpeg).stopIfCancelled(); };
        m_jpeg.progress = &m_progress;
    }
    ~Decoder() { jpeg_destroy_decompress(&m_jpeg); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    /// Starts decoding, in the picture's own size or in a smaller one that still suffices for `target`.
    /// False when the file is damaged; so are the functions below.
    bool begin(QSize target = {})
    {
        return attempt([this, target] {
            jpeg_read_header(&m_jpeg, TRUE);
            const bool hasFourInks =
                m_jpeg.out_color_space == JCS_CMYK || m_jpeg.out_color_space == JCS_YCCK;
            const bool isGrey = m_jpeg.out_color_space == JCS_GRAYSCALE && target.isEmpty();
            if (!hasFourInks && !isGrey)
                m_jpeg.out_color_space = rgbSpace;
            m_jpeg.scale_denom = DCTSIZE;
            m_jpeg.scale_num = target.isEmpty() ? DCTSIZE : scaleFor(target);
            jpeg_start_decompress(&m_jpeg);
        });
    }

    [[nodiscard]] QSize size() const { return {int(m_jpeg.output_width), int(m_jpeg.output_height)}; }
    [[nodiscard]] bool isGrey() const { return m_jpeg.out_color_space == JCS_GRAYSCALE; }

    /// The next row, of size().width() pixels: grey or of type QRgb.
    bool readRow(uchar* row)
    {
        const bool hasFourInks = m_jpeg.out_color_space == JCS_CMYK;
        if (!attempt([this, row] {
                JSAMPROW rows = row;
                jpeg_read_scanlines(&m_jpeg, &rows, 1);
            }))
            return false;
        if (hasFourInks)
            mixInks(row);
        return true;
    }

    /// After the last row: whether the file held all of the picture.
    bool end()
    {
        const bool isComplete = hasAllComponents();
        const bool isExact = hasAllBits();
        return isComplete && attempt([this] { jpeg_finish_decompress(&m_jpeg); }) &&
               (!m_isEndMissing || isExact);
    }

private:
    static Decoder& of(j_common_ptr jpeg)
    {
        return *static_cast<Decoder*>(static_cast<UTIL_JpegBlocks*>(jpeg->client_data));
    }
    static Decoder& of(j_decompress_ptr jpeg) { return of(reinterpret_cast<j_common_ptr>(jpeg)); }

    /// `step` must have no variables that need a destructor.
    template <typename Step>
    bool attempt(const Step& step)
    {
        if (m_hasFailed || setjmp(m_failure) != 0) // NOLINT: the library knows no other way
            return false;
        step();
        return true;
    }

    [[noreturn]] static void fail(j_common_ptr jpeg)
    {
        of(jpeg).m_hasFailed = true;
        std::longjmp(of(jpeg).m_failure, 1);
    }

    /// Surplus bytes between the parts of a file are common and harmless. Warnings about lost data count.
    static void hear(j_common_ptr jpeg, int level)
    {
        constexpr std::array losses{JWRN_ARITH_BAD_CODE, JWRN_HIT_MARKER, JWRN_HUFF_BAD_CODE,
                                    JWRN_MUST_RESYNC};
        const bool isLoss = std::find(losses.begin(), losses.end(), jpeg->err->msg_code) != losses.end();
        if (level < 0 && isLoss)
            fail(jpeg);
    }

    void stopIfCancelled()
    {
        if (m_source.isCancelled())
            fail(reinterpret_cast<j_common_ptr>(&m_jpeg));
    }

    /// A negative number means an error, because no exception may pass through the library.
    qint64 refill() noexcept
    {
        try {
            return m_source.read(reinterpret_cast<char*>(m_buffer.data()), qint64(m_buffer.size()));
        } catch (...) {
            return -1;
        }
    }

    static boolean fill(j_decompress_ptr jpeg)
    {
        Decoder& decoder = of(jpeg);
        qint64 count = decoder.refill();
        if (count < 0)
            fail(reinterpret_cast<j_common_ptr>(jpeg));
        if (count == 0) {
            decoder.m_isEndMissing = true;
            decoder.m_buffer[0] = 0xff;
            decoder.m_buffer[1] = JPEG_EOI;
            count = 2;
        }
        decoder.m_bytes.next_input_byte = decoder.m_buffer.data();
        decoder.m_bytes.bytes_in_buffer = size_t(count);
        return TRUE;
    }

    static void skip(j_decompress_ptr jpeg, long count)
    {
        jpeg_source_mgr& bytes = of(jpeg).m_bytes;
        while (count > long(bytes.bytes_in_buffer)) {
            count -= long(bytes.bytes_in_buffer);
            fill(jpeg);
        }
        if (count > 0) {
            bytes.next_input_byte += count;
            bytes.bytes_in_buffer -= size_t(count);
        }
    }

    /// In eighths.
    [[nodiscard]] unsigned scaleFor(QSize target) const
    {
        const auto isEnough = [this, target](unsigned scale) {
            return qint64(m_jpeg.image_width) * scale >=
                       qint64(target.width()) * DCTSIZE * leastPixelsMerged &&
                   qint64(m_jpeg.image_height) * scale >=
                       qint64(target.height()) * DCTSIZE * leastPixelsMerged;
        };
        unsigned scale = DCTSIZE;
        while (scale > 1 && isEnough(scale / 2))
            scale /= 2;
        return scale;
    }

    /// Each ink is stored as the amount of paper that shows, in four bytes like a QRgb.
    void mixInks(uchar* row) const
    {
        for (uchar* pixel = row; pixel != row + qsizetype(m_jpeg.output_width) * 4; pixel += 4) {
            const int black = pixel[3];
            const QRgb color = qRgb(black * pixel[0] / 255, black * pixel[1] / 255, black * pixel[2] / 255);
            std::memcpy(pixel, &color, sizeof(color));
        }
    }

    [[nodiscard]] bool hasAllComponents() const
    {
        return std::all_of(m_jpeg.comp_info, m_jpeg.comp_info + m_jpeg.num_components,
                           [](const jpeg_component_info& component) { return component.quant_table; });
    }

    [[nodiscard]] bool hasAllBits() const
    {
        return !m_jpeg.coef_bits ||
               std::all_of(m_jpeg.coef_bits, m_jpeg.coef_bits + m_jpeg.num_components,
                           [](const auto& bits) {
                               return std::all_of(std::begin(bits), std::end(bits),
                                                  [](int missing) { return missing == 0; });
                           });
    }

    UTIL_PictureSource& m_source;
    jpeg_decompress_struct m_jpeg{};
    jpeg_error_mgr m_errors{};
    jpeg_source_mgr m_bytes{};
    jpeg_progress_mgr m_progress{};
    std::jmp_buf m_failure{};
    std::array<JOCTET, 1 << 16> m_buffer{};
    bool m_hasFailed = false;
    bool m_isEndMissing = false;
};

} // namespace

QImage jpeg::read(UTIL_PictureSource& source)
{
    const auto decoder = std::make_unique<Decoder>(source);
    if (!decoder->begin())
        return {};
    QImage image(decoder->size(), decoder->isGrey() ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
    if (image.isNull())
        return {};
    for (int y = 0; y < image.height(); ++y) {
        if (!decoder->readRow(image.scanLine(y)))
            return {};
    }
    return decoder->end() ? image : QImage();
}

QImage jpeg::readReduced(UTIL_PictureSource& source, QSize target)
{
    const auto decoder = std::make_unique<Decoder>(source);
    if (!decoder->begin(target))
        return {};
    std::vector<QRgb> row(size_t(decoder->size().width()));
    UTIL_Reducer reducer(decoder->size(), target);
    for (int y = 0; y < decoder->size().height(); ++y) {
        if (!decoder->readRow(reinterpret_cast<uchar*>(row.data())))
            return {};
        reducer.addRow(row.data());
    }
    return decoder->end() ? reducer.image() : QImage();
}
