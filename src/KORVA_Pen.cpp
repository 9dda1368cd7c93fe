#include "KORVA_Pen.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Pixel.h"
#include "KORVA_RoundBrush.h"

#include <QMouseEvent>
#include <QPolygon>

namespace {

constexpr int mostWaiting = 64; // points of a stroke that nobody sees

QRect around(QPoint from, QPoint to)
{
    return QRect(from, QSize(1, 1)) | QRect(to, QSize(1, 1));
}

} // namespace

KORVA_Pen::KORVA_Pen(const QString& name) : KORVA_DrawingTool(name) {}

KORVA_Pen::~KORVA_Pen()
{
    if (canvas())
        canvas()->paintNow();
}

void KORVA_Pen::activating()
{
    m_drawing = false;
    m_way.clear(); // of a canvas that is gone
    canvas()->setCursor(Qt::CrossCursor);
}

void KORVA_Pen::mousePressEvent(QMouseEvent* event)
{
    if (!canvas() || !beginChange())
        return;
    setButton(event->button());
    m_last = pixel::at(event->position());
    drawTo(m_last);
    m_drawing = true;
}

void KORVA_Pen::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint to = pixel::at(event->position());
    if (canvas() && m_drawing && to != m_last)
        drawTo(to);
}

void KORVA_Pen::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isActive() || event->button() != button())
        return;
    m_drawing = false;
    if (canvas())
        canvas()->paintNow();
}

void KORVA_Pen::drawTo(QPoint to)
{
    if (!mergePiece())
        return;
    if (m_way.isEmpty())
        m_way.append(m_last);
    m_way.append(to);
    const QRect way = around(m_last, to);
    m_last = to;
    if (showsPixels()) {
        canvas()->showLater(this, canvas()->shownAround(inPicture(way)));
    } else {
        const int side = qMax(1, screenPenWidth());
        canvas()->showLater(this, way.adjusted(-side, -side, side, side));
    }
    if (m_way.size() >= mostWaiting)
        canvas()->paintNow();
}

QRect KORVA_Pen::inPicture(const QRect& way) const
{
    const int side = picturePen().width();
    return zoom().toPictureAround(way).adjusted(-side, -side, side, side);
}

void KORVA_Pen::paintWaiting(QPixmap* picture, QPixmap* shown)
{
    const QRect whole = inPicture(QPolygon(m_way).boundingRect());
    const bool isCopied = isCheaper(whole.size()) && canvas()->showsPixelsOf(whole);
    drawWay(picture, InPicture);
    if (isCopied) {
        canvas()->paintShown({whole});
    } else if (showsPixels()) {
        QList<QRect> way;
        for (qsizetype i = 1; i < m_way.size(); ++i)
            way.append(inPicture(around(m_way[i - 1], m_way[i])));
        canvas()->paintShown(way);
    } else {
        drawWay(shown, OnScreen);
    }
    m_way.clear();
}

bool KORVA_Pen::isCheaper(QSize copy) const
{
    constexpr int pixelsALine = 2000; // are copied as quickly as a line is drawn
    return qint64(copy.width()) * copy.height() < pixelsALine * m_way.size();
}

void KORVA_Pen::drawWay(QPixmap* target, Where where) const
{
    const bool isPicture = where == InPicture;
    const QPen pen = isPicture ? picturePen() : screenPen();
    const bool isRound = canvas()->manners().roundPencil && pen.width() > 1;
    const auto at = [&](QPoint p) { return isPicture ? zoom().toPicture(p) : p; };
    KORVA_ClassicPainter painter(target);
    painter.setPen(pen);
    if (isPicture && !isRound)
        painter.setWorldMatrix(zoom().toPictureMatrix());
    for (qsizetype i = 1; i < m_way.size(); ++i) {
        const QPoint from = m_way[i - 1];
        const QPoint to = m_way[i];
        if (isRound) {
            for (const QRect& run : roundbrush::swept(at(from), at(to), pen.width()))
                painter.fillRect(run, pen.color());
        } else {
            painter.drawLine(from.x(), from.y(), to.x(), to.y());
        }
    }
}

std::function<void()> KORVA_Pen::keepState()
{
    return [this, last = m_last, drawing = m_drawing] {
        m_last = last;
        m_drawing = drawing;
    };
}
