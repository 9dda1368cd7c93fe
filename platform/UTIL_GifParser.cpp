#include "UTIL_GifParser.h"

#include "UTIL_Platform.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <gif_lib.h>

#include <memory>
#include <vector>

namespace {

constexpr qsizetype mostFrames = 8192;
constexpr int millisecondsPerTick = 10;

int readBytes(GifFileType* gif, GifByteType* data, int count)
{
    return int(static_cast<QFile*>(gif->UserData)->read(reinterpret_cast<char*>(data), count));
}

struct Closer
{
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

} // namespace

/// One walk through the file, record by record.
class UTIL_GifParser::Reading
{
public:
    Reading(UTIL_GifParser& parser, GifFileType* gif) : m_parser(parser), m_gif(gif) {}

    int run()
    {
        for (;;) {
            GifRecordType type = UNDEFINED_RECORD_TYPE;
            if (DGifGetRecordType(m_gif, &type) == GIF_ERROR)
                return m_gif->Error;
            if (type == TERMINATE_RECORD_TYPE)
                return m_parser.m_frames.isEmpty() ? NoFrame : NoError;
            const int error = type == IMAGE_DESC_RECORD_TYPE  ? readFrame()
                              : type == EXTENSION_RECORD_TYPE ? readExtension()
                                                              : NoError;
            if (error != NoError || (m_parser.m_scope == FirstFrame && !m_parser.m_frames.isEmpty()))
                return error;
        }
    }

private:
    int readFrame()
    {
        if (m_parser.m_frames.size() == mostFrames)
            return TooManyFrames;
        if (DGifGetImageDesc(m_gif) == GIF_ERROR)
            return m_gif->Error;
        const GifImageDesc& image = m_gif->Image;
        m_next.rect = QRect(image.Left, image.Top, image.Width, image.Height);
        const bool isFirst = m_parser.m_frames.isEmpty();
        if (isFirst) {
            if (qint64(image.Width) * image.Height > m_parser.pixelLimit())
                return TooLarge;
            const ColorMapObject* colors = image.ColorMap ? image.ColorMap : m_gif->SColorMap;
            const int index = m_next.transparentIndex;
            if (colors && index >= 0 && index < colors->ColorCount) {
                const GifColorType& color = colors->Colors[index];
                m_parser.m_transparentColor = QColor(color.Red, color.Green, color.Blue);
            }
        }
        m_parser.m_frames.append(std::exchange(m_next, {}));
        return isFirst ? decodePixels(image) : skipPixels();
    }

    int decodePixels(const GifImageDesc& image)
    {
        std::vector<GifPixelType> row(size_t(image.Width));
        for (int y = 0; y < image.Height; ++y) {
            if (DGifGetLine(m_gif, row.data(), image.Width) == GIF_ERROR)
                return m_gif->Error;
        }
        return NoError;
    }

    int skipPixels()
    {
        int codeSize = 0;
        GifByteType* block = nullptr;
        if (DGifGetCode(m_gif, &codeSize, &block) == GIF_ERROR)
            return m_gif->Error;
        while (block) {
            if (DGifGetCodeNext(m_gif, &block) == GIF_ERROR)
                return m_gif->Error;
        }
        return NoError;
    }

    int readExtension()
    {
        int code = 0;
        GifByteType* block = nullptr; // its length first
        if (DGifGetExtension(m_gif, &code, &block) == GIF_ERROR)
            return m_gif->Error;
        bool isLoop = false;
        for (bool isFirst = true; block; isFirst = false) {
            const QByteArrayView data(block + 1, block[0]);
            if (code == GRAPHICS_EXT_FUNC_CODE && isFirst)
                readControl(data);
            if (code == APPLICATION_EXT_FUNC_CODE && isFirst) {
                isLoop = data == "NETSCAPE2.0" || data == "ANIMEXTS1.0";
            } else if (isLoop && data.size() == 3 && data[0] == 1) {
                m_parser.m_loopCount = qFromLittleEndian<quint16>(data.data() + 1);
            }
            if (DGifGetExtensionNext(m_gif, &block) == GIF_ERROR)
                return m_gif->Error;
        }
        return NoError;
    }

    void readControl(QByteArrayView data)
    {
        GraphicsControlBlock control{};
        if (DGifExtensionToGCB(size_t(data.size()), reinterpret_cast<const GifByteType*>(data.data()),
                               &control) == GIF_ERROR)
            return;
        m_next.delay = control.DelayTime * millisecondsPerTick;
        m_next.transparentIndex = control.TransparentColor;
    }

    UTIL_GifParser& m_parser;
    GifFileType* m_gif;
    Frame m_next; ///< what is known about the next frame
};

UTIL_GifParser::UTIL_GifParser(const QString& fileName, int scope) : m_fileName(fileName), m_scope(scope) {}

qint64 UTIL_GifParser::pixelLimit() const
{
    return m_pixelLimit ? *m_pixelLimit : UTIL_Platform::instance()->pixelLimit();
}

int UTIL_GifParser::transparentIndex() const
{
    return m_frames.isEmpty() ? -1 : m_frames.constFirst().transparentIndex;
}

int UTIL_GifParser::parse()
{
    const std::optional<qint64> limit = m_pixelLimit;
    *this = UTIL_GifParser(m_fileName, m_scope);
    m_pixelLimit = limit;
    QFile file(m_fileName);
    if (!QFileInfo(m_fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return NotReadable;
    int error = NoError;
    const std::unique_ptr<GifFileType, Closer> gif(DGifOpen(&file, readBytes, &error));
    if (!gif)
        return NotReadable;
    m_screenSize = QSize(gif->SWidth, gif->SHeight);
    return Reading(*this, gif.get()).run();
}
