#include "KORVA_Picture.h"

#include "KORVA_ClassicPainter.h"

#include <utility>

namespace {

QPixmap scaled(const QPixmap& picture, QSize size)
{
    QPixmap scaled = classic::filled(size, Qt::white);
    if (!picture.isNull()) {
        const float horizontal = static_cast<float>(size.width()) / static_cast<float>(picture.width());
        const float vertical = static_cast<float>(size.height()) / static_cast<float>(picture.height());
        KORVA_ClassicPainter painter(&scaled);
        painter.setWorldMatrix(
            QTransform::fromScale(static_cast<double>(horizontal), static_cast<double>(vertical)));
        painter.drawPixmap(0, 0, picture);
    }
    return scaled;
}

} // namespace

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
    const bool isEmpty = hasPaper() && m_picture.toImage() == paper().toImage();
    m_picture = scaled(*pixmap(), size);
    if (isEmpty && !m_picture.isNull())
        clear(); // not the paper scaled twice
}

QPixmap KORVA_Picture::piece(const QRect& rect) const
{
    QPixmap piece = classic::filled(rect.size(), Qt::white);
    classic::bitBlt(&piece, -rect.left(), -rect.top(), m_picture);
    return piece;
}

void KORVA_Picture::eraseRegion(const QRegion& region)
{
    if (hasPaper()) {
        for (const QRect& rect : region)
            erase(rect);
        return;
    }
    KORVA_ClassicPainter painter(pixmap());
    for (const QRect& rect : region)
        painter.fillRect(rect, Qt::white);
}

void KORVA_Picture::erase(const QRect& rect, const QTransform& toPicture)
{
    if (!hasPaper()) {
        KORVA_ClassicPainter painter(pixmap());
        painter.setWorldMatrix(toPicture);
        painter.fillRect(rect, Qt::white);
    } else if (toPicture.isIdentity()) {
        const QRect inside = rect & QRect(QPoint(), size()); // of what lies outside, copy() gives all
        if (!inside.isEmpty())
            classic::bitBlt(pixmap(), inside.x(), inside.y(), paper().copy(inside));
    } else {
        // The pixels that white would cover.
        QPixmap hole(size());
        hole.fill(Qt::transparent);
        {
            KORVA_ClassicPainter painter(&hole);
            painter.setWorldMatrix(toPicture);
            painter.fillRect(rect, Qt::white);
        }
        QPainter painter(&hole);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.drawPixmap(0, 0, paper());
        painter.end();
        classic::bitBlt(pixmap(), 0, 0, hole);
    }
}

QPixmap KORVA_Picture::paper() const
{
    return hasPaper() ? scaled(m_paper, size()) : classic::filled(size(), Qt::white);
}

void KORVA_Picture::clear()
{
    if (hasPaper())
        m_picture = paper();
    else
        fill(Qt::white);
}

void KORVA_Picture::reset(QSize size)
{
    m_picture = classic::filled(size, Qt::white);
    clear();
    m_snapshot = m_picture;
    m_history.clear();
    m_isModified = false;
}

bool KORVA_Picture::setPaper(const QPixmap& sheet)
{
    constexpr QImage::Format format = QImage::Format_RGB32;
    const QImage before = paper().toImage().convertToFormat(format);
    m_paper = sheet.isNull() ? QPixmap() : classic::opaque(sheet);
    m_paper.setDevicePixelRatio(1.0);
    const QImage after = paper().toImage().convertToFormat(format);
    QImage drawing = m_picture.toImage().convertToFormat(format);
    bool isOther = false;
    for (int y = 0; y < drawing.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(before.constScanLine(y));
        const auto* to = reinterpret_cast<const QRgb*>(after.constScanLine(y));
        auto* pixel = reinterpret_cast<QRgb*>(drawing.scanLine(y));
        for (int x = 0; x < drawing.width(); ++x) {
            if (pixel[x] == from[x] && from[x] != to[x]) {
                pixel[x] = to[x];
                isOther = true;
            }
        }
    }
    if (isOther)
        m_picture.convertFromImage(drawing);
    return isOther;
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
    if (hasHistory() && m_openSteps == 0)
        keepStep();
}

void KORVA_Picture::keepStep()
{
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
    if (m_openSteps > 0 && --m_openSteps == 0)
        settle();
}

void KORVA_Picture::walk(QImage (KORVA_History::*direction)(const QImage& now))
{
    if (!hasHistory()) {
        m_picture.swap(m_snapshot);
        return;
    }
    keepStep(); // of an open step, too: each step leads from the very picture that the one before led to
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
