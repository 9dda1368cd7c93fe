#include "KORVA_PictureFile.h"

#include "UTIL_ImageReader.h"

#include <QFile>

#include <cstdlib>

namespace KORVA_PictureFile {

namespace {

constexpr int workingWidth = 352;
constexpr int workingHeight = 288;
constexpr int jpegQuality = 96;

QString extension(const QString& name)
{
    return name.contains('.') ? name.mid(name.lastIndexOf('.') + 1).toUpper() : QString();
}

constexpr struct
{
    const char* extension;
    const char* readFormat;
    const char* writeFormat;
} formats[] = {
    {"BMP", "BMP", "BMP"},    {"JPG", "JPEG", "JPEG"}, {"JPE", "JPEG", "JPEG"},
    {"JPEG", "JPEG", "JPEG"}, {"GIF", "GIF", nullptr}, {"WBMP", "WBMP", "PNG"},
};
constexpr auto otherFormat = "PNG";

} // namespace

QStringList openPatterns()
{
    return {"*.png", "*.gif", "*.jpeg", "*.jpg", "*.bmp", "*.wbmp"};
}

QStringList savePatterns()
{
    return {"*.png", "*.jpeg", "*.jpg", "*.bmp"};
}

const char* readFormat(const QString& name)
{
    for (const auto& row : formats) {
        if (extension(name) == QLatin1String(row.extension))
            return row.readFormat;
    }
    return otherFormat;
}

const char* writeFormat(const QString& name)
{
    for (const auto& row : formats) {
        if (extension(name) == QLatin1String(row.extension))
            return row.writeFormat;
    }
    return otherFormat;
}

int check(const QString& name, const char* format)
{
    UTIL_ImageReader reader(name, format);
    reader.read();
    return reader.status();
}

QImage read(const QString& name)
{
    UTIL_ImageReader reader(name);
    return reader.read() ? reader.image() : QImage();
}

QImage decode(const QByteArray& data)
{
    return QImage::fromData(data);
}

bool fit(QImage* image, QPixmap* pixmap)
{
    if (image->isNull())
        return false;
    if (image->width() * image->height() > workingWidth * workingHeight)
        *image = image->scaled(workingWidth, workingHeight, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    *image = image->convertToFormat(QImage::Format_RGB16);
    return pixmap->convertFromImage(*image, Qt::AvoidDither);
}

QString temporaryPath()
{
    const QString folder = qEnvironmentVariable("KIV_LOCAL_DOWNLOAD_PATH").trimmed();
    return folder + (folder.endsWith('/') ? "appwrite/korva.temp" : "/appwrite/korva.temp");
}

bool save(const QPixmap& picture, const QString& name, const char* format)
{
    const QString temporary = temporaryPath();
    const bool done = !name.contains('\'') &&
                      picture.save(temporary, format, qstrcmp(format, "JPEG") == 0 ? jpegQuality : -1) &&
                      std::system(("mv  '" + temporary + "' '" + name + "'").toUtf8().constData()) == 0;
    QFile::remove(temporary);
    return done;
}

} // namespace KORVA_PictureFile
