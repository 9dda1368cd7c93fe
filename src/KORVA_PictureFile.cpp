#include "KORVA_PictureFile.h"

#include "KORVA_Formats.h"
#include "UTIL_GifParser.h"
#include "UTIL_PictureProbe.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace formats = KORVA_Formats;

namespace {

/// Pictures up to these limits are decoded without a noticeable delay, even on a slow device.
constexpr qint64 smallFile = 64 * 1024;
constexpr qint64 smallPicture = 1'000'000;
constexpr QRgb white = 0xffffffff;

/// Changes whenever the file does.
QString versionOf(const QString& fileName)
{
    const QFileInfo file(fileName);
    return QString("%1 %2").arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
}

KORVA_PictureFile::Origin originOf(const UTIL_ImageReader& reader)
{
    return {reader.sourceSize(), reader.isWhole()};
}

} // namespace

QImage KORVA_PictureFile::decoded(const QByteArray& data, const KORVA_WorkingLimits& limits,
                                  const std::optional<QList<QByteArray>>& formats, Origin* origin)
{
    UTIL_ImageReader reader = UTIL_ImageReader::fromData(data);
    reader.setOwnFormats(formats);
    reader.setReduction([limits](QSize size) { return limits.sizeOf(size); });
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
    return isSmall(UTIL_PictureProbe::of(file).size);
}

bool KORVA_PictureFile::isSmall(QSize size)
{
    return qint64(size.width()) * size.height() <= smallPicture;
}

int KORVA_PictureFile::check(const char* format)
{
    examine();
    const formats::Row& kind = formats::rowOf(m_name);
    const bool isWhatTakeReads =
        format ? QByteArrayView(format) == kind.format : kind.opening == formats::Opening::ByContent;
    UTIL_ImageReader reader = this->reader(format);
    reader.read();
    m_checked = isWhatTakeReads ? reader.image() : QImage();
    m_origin = originOf(reader);
    // How far a decoder gets with a damaged GIF depends on its size; take() refuses all of them.
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
        const formats::Row& kind = formats::rowOf(m_name);
        UTIL_ImageReader reader =
            this->reader(kind.opening == formats::Opening::AsJpeg ? kind.format : nullptr);
        reader.read();
        image = reader.image();
        m_origin = originOf(reader);
    }
    if (!m_transparentColor)
        return image;
    const QImage opaque = KORVA_WorkingLimits::laidOn(image, *m_transparentColor);
    m_origin.isWhole = m_origin.isWhole && UTIL_ImageReader::isSame(image, opaque);
    return opaque;
}

void KORVA_PictureFile::examine()
{
    m_version = versionOf(m_name);
    m_isDamaged = false;
    m_transparentColor.reset();
    if (formats::rowOf(m_name).opening != formats::Opening::AsGif)
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
    reader.setOwnFormats(m_formats);
    const bool isShallow = m_limits.depth == KORVA_WorkingLimits().depth;
    if (formats::rowOf(m_name).opening == formats::Opening::AsJpeg && isShallow)
        reader.setParameters("16");
    if (m_scale == Working)
        reader.setReduction([limits = m_limits](QSize size) { return limits.sizeOf(size); },
                            m_transparentColor.value_or(white));
    return reader;
}
