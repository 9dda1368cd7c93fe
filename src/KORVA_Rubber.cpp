#include "KORVA_Rubber.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Pixel.h"

#include <QMouseEvent>

namespace {

constexpr int mostWaiting = 64; // squares of a stroke that nobody sees

} // namespace

KORVA_Rubber::KORVA_Rubber(const QString& name) : KORVA_DrawingTool(name) {}

KORVA_Rubber::~KORVA_Rubber()
{
    if (canvas())
        canvas()->paintNow();
}

void KORVA_Rubber::activating()
{
    m_squares.clear(); // of a canvas that is gone
    m_way.clear();
    canvas()->setCursor(Qt::CrossCursor);
}

void KORVA_Rubber::mousePressEvent(QMouseEvent* event)
{
    if (!canvas())
        return;
    if (canvas()->manners().joinedEraser) {
        setButton(event->button());
        m_joined.reset();
        if (beginChange()) {
            m_joined = under(*event);
            eraseWay(*m_joined);
        }
        return;
    }
    if (m_drawing)
        return;
    m_drawing = true;
    setButton(event->button());
    canvas()->saveOldPix();
}

void KORVA_Rubber::mouseMoveEvent(QMouseEvent* event)
{
    if (!canvas())
        return;
    if (canvas()->manners().joinedEraser)
        return eraseWay(under(*event));
    const QPoint p = pixel::at(event->position());
    erase(zoom().toPicture(p), p);
}

void KORVA_Rubber::mouseReleaseEvent(QMouseEvent* event)
{
    if (!canvas() || event->button() != button())
        return;
    if (canvas()->manners().joinedEraser) {
        eraseWay(under(*event));
        m_joined.reset();
        if (canvas())
            canvas()->paintNow();
        return;
    }
    canvas()->markModified();
    if (!canvas())
        return;
    const QPoint p = zoom().toPicture(pixel::at(event->position()));
    erase(p, p); // kept: on the screen, too, the last square lies at its picture coordinates
    if (canvas())
        canvas()->paintNow();
}

void KORVA_Rubber::erase(QPoint inPicture, QPoint onScreen)
{
    if (!mergePiece())
        return;
    const int side = screenPenWidth();
    const QSize size(side, side);
    const Square square{QRect(inPicture, size), QRect(onScreen, size)};
    m_drawing = false;
    if (canvas()->hasPaper()) {
        canvas()->erase(square.inPicture, square.onScreen);
        return;
    }
    m_squares.append(square);
    canvas()->showLater(this, square.onScreen);
    if (m_squares.size() >= mostWaiting)
        canvas()->paintNow();
}

void KORVA_Rubber::paintWaiting(QPixmap* picture, QPixmap* shown)
{
    QRegion erased;
    QList<QRect> seen;
    for (qsizetype i = 1; i < m_way.size(); ++i) {
        const QRegion way = covered(m_way[i - 1], m_way[i]);
        erased += way;
        seen.append(way.boundingRect());
    }
    m_way.clear();
    if (!seen.isEmpty()) {
        canvas()->eraseUnseen(erased);
        canvas()->paintShown(seen);
    }
    if (m_squares.isEmpty())
        return;
    KORVA_ClassicPainter onPicture(picture);
    KORVA_ClassicPainter onScreen(shown);
    for (const Square& square : m_squares) {
        onPicture.fillRect(square.inPicture, Qt::white);
        onScreen.fillRect(square.onScreen, Qt::white);
    }
    m_squares.clear();
}

std::function<void()> KORVA_Rubber::keepState()
{
    return [this, drawing = m_drawing] {
        m_drawing = drawing;
        m_joined.reset();
    };
}

QPoint KORVA_Rubber::under(const QMouseEvent& event) const
{
    return zoom().toPicture(pixel::at(event.position()));
}

void KORVA_Rubber::eraseWay(QPoint to)
{
    if (!m_joined || !mergePiece() || !m_joined) // a slot that hears of the merge may end the stroke
        return;
    if (m_way.isEmpty())
        m_way.append(*m_joined);
    m_way.append(to);
    canvas()->showLater(this, canvas()->shownAround(covered(*m_joined, to).boundingRect()));
    m_joined = to;
    if (m_way.size() >= mostWaiting)
        canvas()->paintNow();
}

QRegion KORVA_Rubber::covered(QPoint from, QPoint to) const
{
    const int side = qMax(1, picturePen().width());
    const QPoint way = to - from;
    const int steps = qMax(1, qMax(qAbs(way.x()), qAbs(way.y())));
    QRegion squares;
    for (int step = 0; step <= steps; ++step)
        squares += QRect(from + way * (double(step) / steps), QSize(side, side));
    return squares;
}
