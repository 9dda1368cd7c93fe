#include "KORVA_PictureFile.h"

#include "KORVA_Formats.h"
#include "UTIL_GifParser.h"
#include "UTIL_PictureProbe.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace formats = KORVA_Formats;

namespace {

const formats::Row& kindOf(const QString& fileName)
{
    const QString extension = QFileInfo(fileName).suffix();
    const auto* const row = std::find_if(formats::rows.begin(), formats::rows.end(), [&](const auto& each) {
        return extension.compare(QLatin1String(each.extension), Qt::CaseInsensitive) == 0;
    });
    return row != formats::rows.end() ? *row : formats::anyOther;
}

/// Of the rows that are offered and for which a condition holds.
template <typename Condition>
QStringList patterns(const Condition& holds)
{
    QStringList found;
    for (const formats::Row& row : formats::rows) {
        if (row.isOffered && holds(row))
            found.append(QStringLiteral("*.%1").arg(QLatin1String(row.extension)));
    }
    return found;
}

constexpr QSize workingBox(352, 288);
constexpr int workingDepth = 16;
/// Up to here a picture is decoded before anybody could wonder, on a slow device, too.
constexpr qint64 smallFile = 64 * 1024;
constexpr qint64 smallPicture = 1'000'000;
constexpr QRgb white = 0xffffffff;

/// What is transparent shows `background`; a picture with a palette keeps having one.
QImage laidOn(const QImage& image, QRgb background)
{
    if (!image.hasAlphaChannel())
        return image;
    if (image.format() == QImage::Format_Indexed8) {
        QList<QRgb> colors = image.colorTable();
        const QImage swatch(reinterpret_cast<const uchar*>(colors.constData()), int(colors.size()), 1,
                            QImage::Format_ARGB32);
        const QImage opaque = laidOn(swatch, background);
        for (int index = 0; index < opaque.width(); ++index)
            colors[index] = opaque.pixel(index, 0);
        QImage result = image;
        result.setColorTable(colors);
        return result;
    }
    QImage paper(image.size(), QImage::Format_RGB32);
    paper.fill(background);
    QPainter(&paper).drawImage(0, 0, image);
    return paper;
}

/// Changes whenever the file does.
QString versionOf(const QString& fileName)
{
    const QFileInfo file(fileName);
    return QString("%1 %2").arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
}

picturefile::Origin originOf(const UTIL_ImageReader& reader)
{
    return {reader.sourceSize(), reader.isWhole()};
}

QImage inWorkingDepth(const QImage& image)
{
    return image.depth() > workingDepth || image.depth() == 1
               ? image.convertToFormat(QImage::Format_RGB16, Qt::AvoidDither)
               : image;
}

} // namespace

QStringList picturefile::openPatterns()
{
    return patterns([](const formats::Row&) { return true; });
}

QStringList picturefile::savePatterns()
{
    return patterns([](const formats::Row& row) { return qstrcmp(row.written, row.format) == 0; });
}

QByteArray picturefile::readFormat(const QString& fileName)
{
    return kindOf(fileName).format;
}

QByteArray picturefile::writeFormat(const QString& fileName)
{
    return kindOf(fileName).written;
}

QSize picturefile::workingSize(QSize size)
{
    const qint64 width = size.width();
    const qint64 height = size.height();
    const qint64 tallness = height * workingBox.width() - width * workingBox.height();
    if (width * height <= qint64(workingBox.width()) * workingBox.height())
        return size;
    if (tallness == 0)
        return workingBox;
    // However long a strip is, a pixel of its width remains.
    if (tallness > 0)
        return {qMax(1, int(width * workingBox.height() / height)), workingBox.height()};
    return {workingBox.width(), qMax(1, int(height * workingBox.width() / width))};
}

QImage picturefile::workingImage(const QImage& image)
{
    const QSize size = workingSize(image.size());
    const QImage shallow = inWorkingDepth(laidOn(image, white));
    return size == image.size()
               ? shallow
               : inWorkingDepth(shallow.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

bool picturefile::convert(const QImage& image, QPixmap* pixmap)
{
    const QImage working = workingImage(image);
    return !working.isNull() && pixmap->convertFromImage(working, Qt::AvoidDither);
}

QImage picturefile::decoded(const QByteArray& data, Origin* origin)
{
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(data);
    reader.setReduction(workingSize);
    reader.read();
    if (origin)
        *origin = originOf(reader);
    return reader.image();
}

KORVA_PictureFile::KORVA_PictureFile(const QString& name, Scale scale) : m_name(name), m_scale(scale) {}

bool KORVA_PictureFile::isSmall() const
{
    const QFileInfo info(m_name);
    QFile file(m_name);
    if (!info.isFile())
        return true;
    if (info.size() > smallFile)
        return false;
    if (!file.open(QIODevice::ReadOnly))
        return true;
    const QSize size = UTIL_PictureProbe::of(file).size;
    return qint64(size.width()) * size.height() <= smallPicture;
}

int KORVA_PictureFile::check(const char* format)
{
    examine();
    const formats::Row& kind = kindOf(m_name);
    const bool isWhatTakeReads =
        format ? QByteArrayView(format) == kind.format : kind.opening == formats::Opening::ByContent;
    UTIL_ImageReader reader = this->reader(format);
    reader.read();
    m_checked = isWhatTakeReads ? reader.image() : QImage();
    m_origin = originOf(reader);
    // How far a decoder gets with a damaged one depends on its size; take() refuses them all.
    const bool isLeftToTake = m_isDamaged && reader.status() == UTIL_ImageReader::Failed &&
                              reader.sourceSize().isValid() &&
                              (!format || kind.format == QByteArray(format));
    return isLeftToTake ? int(UTIL_ImageReader::Ok) : int(reader.status());
}

QImage KORVA_PictureFile::take()
{
    QImage image = std::exchange(m_checked, {});
    if (m_version != versionOf(m_name)) {
        examine();
        image = {};
    }
    if (m_isDamaged)
        return {};
    if (image.isNull()) {
        const formats::Row& kind = kindOf(m_name);
        UTIL_ImageReader reader =
            this->reader(kind.opening == formats::Opening::AsJpeg ? kind.format : nullptr);
        reader.read();
        image = reader.image();
        m_origin = originOf(reader);
    }
    const QImage opaque = m_transparentColor ? laidOn(image, *m_transparentColor) : image;
    m_origin.isWhole = m_origin.isWhole && UTIL_ImageReader::isSame(image, opaque);
    return opaque;
}

void KORVA_PictureFile::examine()
{
    m_version = versionOf(m_name);
    m_isDamaged = false;
    m_transparentColor.reset();
    if (kindOf(m_name).opening != formats::Opening::AsGif)
        return;
    UTIL_GifParser parser(m_name, UTIL_GifParser::WholeFile);
    if (m_allowance)
        parser.setPixelLimit(m_allowance->pixels);
    m_isDamaged = parser.parse() != UTIL_GifParser::NoError;
    if (parser.transparentIndex() >= 0)
        m_transparentColor = parser.transparentColor().rgb();
}

UTIL_ImageReader KORVA_PictureFile::reader(const char* format) const
{
    UTIL_ImageReader reader(m_name, format);
    reader.setIsCancelled(m_isCancelled);
    if (m_allowance)
        reader.setAllowance(*m_allowance);
    if (kindOf(m_name).opening == formats::Opening::AsJpeg)
        reader.setParameters("16");
    if (m_scale == Working)
        reader.setReduction(picturefile::workingSize, m_transparentColor.value_or(white));
    return reader;
}
