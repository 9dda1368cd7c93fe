#include "KORVA_Rubber.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Pixel.h"

#include <QMouseEvent>
#include <QVarLengthArray>

#include <limits>

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
    const QSize square(squareSide(), squareSide());
    canvas()->showLater(this, canvas()->shownAround(QRect(*m_joined, square) | QRect(to, square)));
    m_joined = to;
    if (m_way.size() >= mostWaiting)
        canvas()->paintNow();
}

// In each row of pixels that is one run, since neither side of the way turns back.
QRegion KORVA_Rubber::covered(QPoint from, QPoint to) const
{
    struct Run
    {
        int left = std::numeric_limits<int>::max();
        int right = std::numeric_limits<int>::min();
        bool operator==(const Run&) const = default;
    };
    const int side = squareSide();
    const QPoint way = to - from;
    const int steps = qMax(1, qMax(qAbs(way.x()), qAbs(way.y())));
    const int top = qMin(from.y(), to.y());
    QVarLengthArray<Run, 128> runs(qAbs(way.y()) + side);
    for (int step = 0; step <= steps; ++step) {
        const QPoint at = from + way * (double(step) / steps);
        for (int y = at.y(); y < at.y() + side; ++y) {
            Run& run = runs[y - top];
            run = {qMin(run.left, at.x()), qMax(run.right, at.x() + side)};
        }
    }
    QVarLengthArray<QRect, 128> rects;
    for (qsizetype row = 0; row < runs.size(); ++row) {
        if (row > 0 && runs[row] == runs[row - 1])
            rects.last().setHeight(rects.last().height() + 1);
        else
            rects.append(QRect(runs[row].left, top + int(row), runs[row].right - runs[row].left, 1));
    }
    QRegion squares;
    squares.setRects(rects.data(), int(rects.size()));
    return squares;
}

int KORVA_Rubber::squareSide() const
{
    return qMax(1, picturePen().width());
}
