#include "Animation.h"

#include <gif_lib.h>

namespace support {

namespace {

int writeBytes(GifFileType* gif, const GifByteType* data, int count)
{
    return int(static_cast<QFile*>(gif->UserData)->write(reinterpret_cast<const char*>(data), count));
}

bool writeLoops(GifFileType* gif, int loops)
{
    const GifByteType block[] = {1, GifByteType(loops & 0xff), GifByteType(loops >> 8)};
    return EGifPutExtensionLeader(gif, APPLICATION_EXT_FUNC_CODE) == GIF_OK &&
           EGifPutExtensionBlock(gif, 11, "NETSCAPE2.0") == GIF_OK &&
           EGifPutExtensionBlock(gif, sizeof block, block) == GIF_OK &&
           EGifPutExtensionTrailer(gif) == GIF_OK;
}

bool writeFrame(GifFileType* gif, QSize size, int delay, GifPixelType color)
{
    const GraphicsControlBlock control{DISPOSE_DO_NOT, false, delay / 10, NO_TRANSPARENT_COLOR};
    GifByteType bytes[4];
    EGifGCBToExtension(&control, bytes);
    if (EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, sizeof bytes, bytes) != GIF_OK ||
        EGifPutImageDesc(gif, 0, 0, size.width(), size.height(), false, nullptr) != GIF_OK)
        return false;
    std::vector<GifPixelType> row(size_t(size.width()), color);
    for (int y = 0; y < size.height(); ++y)
        if (EGifPutLine(gif, row.data(), size.width()) != GIF_OK)
            return false;
    return true;
}

} // namespace

bool writeGif(const QString& fileName, QSize size, const QList<GifFrame>& frames, int loops)
{
    constexpr int most = 8;
    GifColorType palette[most] = {};
    for (int i = 0; i < frames.size(); ++i) {
        const QColor& color = frames[i].color;
        palette[i] = {GifByteType(color.red()), GifByteType(color.green()), GifByteType(color.blue())};
    }
    QFile file(fileName);
    if (frames.size() > most || !file.open(QIODevice::WriteOnly))
        return false;
    GifFileType* gif = EGifOpen(&file, writeBytes, nullptr);
    ColorMapObject* colors = GifMakeMapObject(most, palette);
    EGifSetGifVersion(gif, true);
    bool ok = EGifPutScreenDesc(gif, size.width(), size.height(), 8, 0, colors) == GIF_OK &&
              (loops < 0 || writeLoops(gif, loops));
    for (int i = 0; ok && i < frames.size(); ++i)
        ok = writeFrame(gif, size, frames[i].delay, GifPixelType(i));
    GifFreeMapObject(colors);
    return EGifCloseFile(gif, nullptr) == GIF_OK && ok;
}

} // namespace support
