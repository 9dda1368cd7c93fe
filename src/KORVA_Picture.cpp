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

// --- The way back

void KORVA_Picture::takeSnapshot()
{
    if (hasHistory())
        settle();
    else
        m_snapshot = m_picture;
}

void KORVA_Picture::takeSnapshot(const QPixmap& picture)
{
    const QPixmap kept = classic::opaque(picture);
    if (hasHistory())
        m_history.add(m_snapshot.toImage(), kept.toImage());
    m_snapshot = kept;
}

void KORVA_Picture::setUndoSteps(int steps, qint64 mostBytes)
{
    m_history.clear();
    m_history.setLimits(steps, mostBytes);
    m_snapshot = m_picture;
}

void KORVA_Picture::settle()
{
    if (!hasHistory() || m_openSteps > 0)
        return;
    m_history.add(m_snapshot.toImage(), m_picture.toImage());
    m_snapshot = m_picture;
}

void KORVA_Picture::beginStep()
{
    settle();
    ++m_openSteps;
}

void KORVA_Picture::endStep()
{
    if (--m_openSteps == 0)
        settle();
}

void KORVA_Picture::walk(QImage (KORVA_History::*direction)(const QImage& now))
{
    if (!hasHistory()) {
        m_picture.swap(m_snapshot);
        return;
    }
    settle();
    m_picture.convertFromImage((m_history.*direction)(m_picture.toImage()));
    m_snapshot = m_picture;
}

bool KORVA_Picture::isUnsettled() const
{
    return hasHistory() && KORVA_History::isChange(m_snapshot.toImage(), m_picture.toImage());
}

bool KORVA_Picture::canUndo() const
{
    return m_history.canUndo() || isUnsettled();
}

bool KORVA_Picture::canRedo() const
{
    return m_history.canRedo() && !isUnsettled();
}
