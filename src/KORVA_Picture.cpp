#include "KORVA_Picture.h"

#include "KORVA_ClassicPainter.h"

#include <utility>

KORVA_Picture::KORVA_Picture(const QPixmap& pixels)
    : m_picture(classic::opaque(pixels)), m_snapshot(m_picture)
{
}

QPixmap* KORVA_Picture::pixmap()
{
    m_picture = classic::opaque(m_picture);
    return &m_picture;
}

QImage KORVA_Picture::image() const
{
    return with({}, {}).toImage();
}

QPixmap KORVA_Picture::with(const QPixmap& piece, QPoint at) const
{
    KORVA_Picture picture(m_picture);
    if (!piece.isNull())
        picture.lay(piece, at);
    return picture.m_picture;
}

void KORVA_Picture::take(const QPixmap& pixels)
{
    m_picture = classic::opaque(pixels);
}

void KORVA_Picture::fill(const QColor& color)
{
    m_picture.fill(color);
}

void KORVA_Picture::scale(QSize size)
{
    QPixmap scaled = classic::filled(size, Qt::white);
    if (!m_picture.isNull()) {
        const float horizontal = static_cast<float>(size.width()) / static_cast<float>(m_picture.width());
        const float vertical = static_cast<float>(size.height()) / static_cast<float>(m_picture.height());
        KORVA_ClassicPainter painter(&scaled);
        painter.setWorldMatrix(
            QTransform::fromScale(static_cast<double>(horizontal), static_cast<double>(vertical)));
        painter.drawPixmap(0, 0, *pixmap());
    }
    m_picture = std::move(scaled);
}

QPixmap KORVA_Picture::piece(const QRect& rect) const
{
    QPixmap piece = classic::filled(rect.size(), Qt::white);
    classic::bitBlt(&piece, -rect.left(), -rect.top(), m_picture);
    return piece;
}

void KORVA_Picture::erase(const QRect& rect, const QTransform& toPicture)
{
    KORVA_ClassicPainter painter(pixmap());
    painter.setWorldMatrix(toPicture);
    painter.fillRect(rect, Qt::white);
}

void KORVA_Picture::lay(const QPixmap& piece, QPoint at)
{
    QPixmap pixelByPixel = piece;
    pixelByPixel.setDevicePixelRatio(1.0);
    classic::bitBlt(&m_picture, at.x(), at.y(), pixelByPixel);
}

void KORVA_Picture::takeSnapshot(const QPixmap& picture)
{
    m_snapshot = classic::opaque(picture);
}
