#include "IMV_UI_PhotoDisplay.h"

#include "UTIL_GifParser.h"
#include "UTIL_Skin.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMovie>
#include <QPainter>
#include <QTimer>

namespace {

/// The greatest size with the picture's proportions within the frame, but no greater than the picture.
QSize fitted(QSize picture, QSize frame)
{
    if (picture.width() <= frame.width() && picture.height() <= frame.height())
        return picture;
    return picture.scaled(frame, Qt::KeepAspectRatio).expandedTo({1, 1});
}

/// The color that shows through a transparent picture, whatever the skin.
constexpr QRgb paper = 0xFFFFFFFF;

QPixmap emptyPixmap(QSize size, qreal ratio, const QColor& color)
{
    QPixmap pixmap(size);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    return pixmap;
}

/// The mark: a photo, struck out.
QPixmap unreadableMark(qreal ratio)
{
    using Size = UTIL_Skin::Size;
    constexpr QSize size(3 * Size::iconWidth, 3 * Size::iconHeight);
    QPixmap pixmap = emptyPixmap(size * ratio, ratio, UTIL_Skin::color(UTIL_Skin::Color::Ground));
    const auto inside = [](const QRectF& box, int edge) { return box.adjusted(edge, edge, -edge, -edge); };
    const QRectF strike = inside(QRectF({}, size), Size::focusWidth);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(UTIL_Skin::color(UTIL_Skin::Color::QuietInk), Size::focusWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawRoundedRect(inside(strike, Size::radius), Size::radius, Size::radius);
    painter.drawLine(strike.bottomLeft(), strike.topRight());
    return pixmap;
}

} // namespace

IMV_UI_PhotoDisplay::IMV_UI_PhotoDisplay(const QImage& image, QWidget* parent)
    : QLabel(parent), m_content(Content::Image)
{
    setAlignment(Qt::AlignCenter);
    setImage(image);
}

IMV_UI_PhotoDisplay::IMV_UI_PhotoDisplay(const QString& fileName, QWidget* parent)
    : QLabel(parent), m_content(Content::UnreadFile), m_fileName(fileName)
{
    setAlignment(Qt::AlignCenter);
}

IMV_UI_PhotoDisplay::~IMV_UI_PhotoDisplay() = default;

UTIL_ImageReader::Reduction IMV_UI_PhotoDisplay::reductionTo(QSize display)
{
    const QSize frame = display * qGuiApp->devicePixelRatio();
    return [frame](QSize picture) { return fitted(picture, frame); };
}

void IMV_UI_PhotoDisplay::setImage(const QImage& image)
{
    m_movie.reset();
    m_isOwn = false;
    m_content = Content::Image;
    m_image = image;
    render();
}

void IMV_UI_PhotoDisplay::setFile(const QString& fileName)
{
    setImage(QImage());
    m_fileName = fileName;
    m_isOwn = true;
    m_content = Content::UnreadFile;
    if (isVisible())
        readSoon();
}

void IMV_UI_PhotoDisplay::loadGifAnimation(const QString& fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    // From memory: the movie would open the file again for every round, and it may be gone by then.
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(file.readAll());
    auto movie = std::make_unique<QMovie>(buffer.get(), "gif");
    buffer.release()->setParent(movie.get());
    if (!movie->isValid())
        return;
    m_movie = std::move(movie);
    m_content = Content::Image;
    connect(m_movie.get(), &QMovie::frameChanged, this, [this] {
        m_image = m_movie->currentImage();
        render();
    });
    m_movie->start();
    setPlaying(isVisible());
}

void IMV_UI_PhotoDisplay::setPlaying(bool isPlaying)
{
    if (m_movie && m_movie->state() != QMovie::NotRunning) // an ended one would begin again
        m_movie->setPaused(!isPlaying);
}

void IMV_UI_PhotoDisplay::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    setPlaying(true);
    if (m_content == Content::UnreadFile)
        readSoon();
}

void IMV_UI_PhotoDisplay::hideEvent(QHideEvent* event)
{
    QLabel::hideEvent(event);
    setPlaying(false);
}

void IMV_UI_PhotoDisplay::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    const bool isLarger = width() > m_readFor.width() || height() > m_readFor.height();
    if (m_isOwn && m_content == Content::Image && !m_movie && isLarger) {
        m_content = Content::UnreadFile; // what is shown stays until then
        if (isVisible())
            readSoon();
    }
    render();
}

/// After the window is shown, or has its new size.
void IMV_UI_PhotoDisplay::readSoon()
{
    QTimer::singleShot(0, this, &IMV_UI_PhotoDisplay::readFile);
}

void IMV_UI_PhotoDisplay::readFile()
{
    if (m_content != Content::UnreadFile)
        return;
    m_readFor = size();
    UTIL_ImageReader reader(m_fileName);
    reader.setReduction(reductionTo(size()), paper);
    m_content = reader.read() ? Content::Image : Content::Unreadable;
    m_image = reader.image();
    render();
    if (!m_isOwn || m_content != Content::Image)
        return;
    UTIL_GifParser parser(m_fileName, UTIL_GifParser::WholeFile);
    if (parser.parse() == UTIL_GifParser::NoError && parser.isAnimated())
        loadGifAnimation(m_fileName);
}

void IMV_UI_PhotoDisplay::render()
{
    const qreal ratio = devicePixelRatioF();
    if (m_content == Content::Unreadable) {
        setPixmap(unreadableMark(ratio));
        return;
    }
    if (m_image.isNull()) {
        clear();
        return;
    }
    const QSize shown = fitted(m_image.size() * ratio, size() * ratio);
    QImage scaled = m_image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    QPixmap pixmap = emptyPixmap(shown, ratio, QColor(paper));
    QPainter(&pixmap).drawImage(0, 0, scaled);
    setPixmap(pixmap);
}
