#include "PictureFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace pad {

namespace {

struct Format
{
    const char* extension;
    const char* name; ///< null: can be read, but not written
    int quality;
};

constexpr Format formats[] = {
    {"bmp", "BMP", -1},   {"jpg", "JPEG", 96},  {"jpe", "JPEG", 96},
    {"jpeg", "JPEG", 96}, {"gif", nullptr, -1},
};
constexpr Format png{"png", "PNG", -1};

Format formatOf(const QString& fileName)
{
    const QString extension = QFileInfo(fileName).suffix().toLower();
    for (const Format& format : formats) {
        if (extension == QLatin1String(format.extension))
            return format;
    }
    return png;
}

std::optional<Failure> write(const QImage& picture, const QString& fileName, const Format& format)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || !picture.save(&file, format.name, format.quality) ||
        !file.commit())
        return Failure{QStringLiteral("cannot write '%1': %2").arg(fileName, file.errorString())};
    return {};
}

} // namespace

std::optional<Failure> writePicture(const QImage& picture, const QString& fileName)
{
    const Format format = formatOf(fileName);
    if (!format.name)
        return Failure{QStringLiteral("cannot write '%1': GIF pictures are only read").arg(fileName)};
    return write(picture, fileName, format);
}

std::optional<Failure> writePng(const QImage& picture, const QString& fileName)
{
    return write(picture, fileName, png);
}

} // namespace pad
