#include "UTIL_Gif.h"

#include "UTIL_PictureSource.h"
#include "UTIL_Reducer.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace {

/// No exception may pass through the library.
int readBytes(GifFileType* gif, GifByteType* data, int count)
{
    try {
        return int(
            static_cast<UTIL_PictureSource*>(gif->UserData)->read(reinterpret_cast<char*>(data), count));
    } catch (...) {
        return 0;
    }
}

struct Closer
{
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

/// The rows of an interlaced frame come in four passes.
struct Pass
{
    int first;
    int step;
};
constexpr Pass passes[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};

class FirstFrame
{
public:
    explicit FirstFrame(UTIL_PictureSource& source)
        : m_source(source), m_gif(DGifOpen(&source, readBytes, nullptr))
    {
    }

    /// Reads up to the frame's pixels; false when there is no frame.
    bool begin()
    {
        GifRecordType type = UNDEFINED_RECORD_TYPE;
        while (m_gif && DGifGetRecordType(m_gif.get(), &type) != GIF_ERROR) {
            if (type == IMAGE_DESC_RECORD_TYPE)
                return DGifGetImageDesc(m_gif.get()) != GIF_ERROR && prepare();
            if (type != EXTENSION_RECORD_TYPE || !readExtension())
                return false;
        }
        return false;
    }

    [[nodiscard]] QSize screen() const { return m_screen; }
    [[nodiscard]] bool isClear() const { return m_transparentIndex >= 0; }

    /// Hands each row of the screen to `take`, from the top. Pixels beside the frame and missing ones have
    /// the background colour, or are transparent if the picture has transparent pixels. False when it was
    /// cancelled.
    template <typename Take>
    bool eachRow(const Take& take)
    {
        const bool isInterlaced = m_gif->Image.Interlace;
        if (isInterlaced && !readAll())
            return false;
        std::vector<QRgb> row(size_t(m_screen.width()));
        std::vector<GifPixelType> line(size_t(m_frame.width()));
        for (int y = 0; y < m_screen.height(); ++y) {
            if (m_source.isCancelled())
                return false;
            std::fill(row.begin(), row.end(), m_ground);
            const bool isInFrame =
                y >= m_frame.top() && y <= m_frame.bottom() && m_frame.left() < m_screen.width();
            const int frameY = y - m_frame.top();
            if (isInFrame && (isInterlaced ? bool(m_isRead[size_t(frameY)]) : readLine(line.data()))) {
                const GifPixelType* from = isInterlaced ? lineAt(frameY) : line.data();
                const int shown = qMin(m_frame.width(), m_screen.width() - m_frame.left());
                std::transform(from, from + shown, row.begin() + m_frame.left(),
                               [this](GifPixelType index) { return m_colors[index]; });
            }
            take(y, row.data());
        }
        return true;
    }

private:
    bool readExtension()
    {
        int code = 0;
        GifByteType* block = nullptr; // its length first
        if (DGifGetExtension(m_gif.get(), &code, &block) == GIF_ERROR)
            return false;
        for (bool isFirst = true; block; isFirst = false) {
            GraphicsControlBlock control{};
            if (isFirst && code == GRAPHICS_EXT_FUNC_CODE &&
                DGifExtensionToGCB(block[0], block + 1, &control) != GIF_ERROR)
                m_transparentIndex = control.TransparentColor;
            if (DGifGetExtensionNext(m_gif.get(), &block) == GIF_ERROR)
                return false;
        }
        return true;
    }

    bool prepare()
    {
        const GifImageDesc& image = m_gif->Image;
        m_screen = QSize(m_gif->SWidth, m_gif->SHeight);
        m_frame = QRect(image.Left, image.Top, image.Width, image.Height);
        const ColorMapObject* colors = image.ColorMap ? image.ColorMap : m_gif->SColorMap;
        for (int i = 0; colors && i < colors->ColorCount; ++i) {
            if (i != m_transparentIndex)
                m_colors[size_t(i)] = colorOf(colors->Colors[i]);
        }
        const ColorMapObject* common = m_gif->SColorMap;
        if (!isClear() && common && m_gif->SBackGroundColor < common->ColorCount)
            m_ground = colorOf(common->Colors[m_gif->SBackGroundColor]);
        return !m_frame.isEmpty() && !m_screen.isEmpty();
    }

    static QRgb colorOf(const GifColorType& color) { return qRgb(color.Red, color.Green, color.Blue); }

    bool readLine(GifPixelType* line)
    {
        m_isDamaged = m_isDamaged || DGifGetLine(m_gif.get(), line, m_frame.width()) == GIF_ERROR;
        return !m_isDamaged;
    }

    bool readAll()
    {
        m_lines.resize(size_t(m_frame.width()) * size_t(m_frame.height()));
        m_isRead.resize(size_t(m_frame.height()));
        for (const Pass& pass : passes) {
            for (int y = pass.first; y < m_frame.height(); y += pass.step) {
                if (m_source.isCancelled())
                    return false;
                m_isRead[size_t(y)] = readLine(lineAt(y));
            }
        }
        return true;
    }

    GifPixelType* lineAt(int y) { return &m_lines[size_t(y) * size_t(m_frame.width())]; }

    UTIL_PictureSource& m_source;
    QSize m_screen;
    std::unique_ptr<GifFileType, Closer> m_gif;
    QRect m_frame;
    QRgb m_ground = 0;
    int m_transparentIndex = NO_TRANSPARENT_COLOR;
    std::array<QRgb, 256> m_colors{};  ///< transparent where the palette has none
    std::vector<GifPixelType> m_lines; ///< all lines of an interlaced frame; m_isRead says which were read
    std::vector<bool> m_isRead;
    bool m_isDamaged = false;
};

/// The target itself, unless it was reckoned from a frame that goes beyond the screen.
QSize within(QSize screen, QSize target)
{
    if (target.boundedTo(screen) == target)
        return target;
    return screen.scaled(target, Qt::KeepAspectRatio).boundedTo(screen).expandedTo(QSize(1, 1));
}

} // namespace

QImage gif::read(UTIL_PictureSource& source)
{
    FirstFrame frame(source);
    if (!frame.begin())
        return {};
    QImage image(frame.screen(), frame.isClear() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (image.isNull())
        return {};
    const bool isRead = frame.eachRow([&image](int y, const QRgb* row) {
        std::copy(row, row + image.width(), reinterpret_cast<QRgb*>(image.scanLine(y)));
    });
    return isRead ? image : QImage();
}

QImage gif::readReduced(UTIL_PictureSource& source, QSize target, QRgb background)
{
    FirstFrame frame(source);
    if (!frame.begin())
        return {};
    UTIL_Reducer reducer(frame.screen(), within(frame.screen(), target));
    const bool isRead = frame.eachRow([&](int, QRgb* row) {
        std::replace(row, row + frame.screen().width(), QRgb(0), background);
        reducer.addRow(row);
    });
    return isRead ? reducer.image() : QImage();
}
