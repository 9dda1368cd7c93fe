#include "KORVA_ClassicPainter.h"

#include "KORVA_Pixel.h"

#include <QHash>
#include <QPainterPath>
#include <QVarLengthArray>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

QPaintDevice* paintable(QPaintDevice* target, QPixmap& substitute)
{
    if (target->width() > 0 && target->height() > 0)
        return target;
    substitute = QPixmap(1, 1);
    substitute.fill(Qt::white);
    return &substitute;
}

// An odd pen is centred on the middle of a pixel, an even one and a thin one on its edge.
double penCentre(int width)
{
    return width > 1 && width % 2 == 1 ? 0.5 : 0.0;
}

// The rectangle that a shape covers with an outline of this width.
QRect withOutline(const QRect& box, int width)
{
    const int before = width / 2;
    const int after = qMax(0, width - 1) / 2;
    return box.adjusted(-before, -before, after, after);
}

/// From about a hundred runs of pixels on, Qt shares inverting among threads, and waking those takes many
/// times as long as the painting. So Qt gets fewer runs at a time.
constexpr int mostRuns = 90;

/// A thin line's run is one pixel long, even where the line lies flat.
QList<QRect> alongTheLongerSide(const QRect& box)
{
    const bool isFlat = box.width() > box.height();
    const QPoint step = isFlat ? QPoint(mostRuns, 0) : QPoint(0, mostRuns);
    const QSize size = isFlat ? QSize(mostRuns, box.height()) : QSize(box.width(), mostRuns);
    QList<QRect> parts;
    for (QRect part(box.topLeft(), size); part.intersects(box); part.translate(step))
        parts.append(part & box);
    return parts;
}

bool isWhole(double ratio)
{
    return qFuzzyCompare(ratio, std::round(ratio));
}

bool isEnlarged(const QPainter& painter)
{
    return painter.worldTransform().isIdentity() && painter.deviceTransform().isScaling();
}

// The screen's pixels whose top left corners lie in the rectangle. Two adjacent rectangles share none of
// them.
QRect onScreen(const QRect& rect, const QTransform& toScreen)
{
    const QRectF mapped = toScreen.mapRect(QRectF(rect));
    const QPoint first = -pixel::at(-mapped.topLeft());
    return {first, -pixel::at(-mapped.bottomRight()) - QPoint(1, 1)};
}

void mirrorAboutAnchor(int& origin, int& length)
{
    if (length < 0) {
        origin += length + 1;
        length = -length;
    }
}

} // namespace

KORVA_ClassicPainter::KORVA_ClassicPainter(QPaintDevice* target, RasterOp op)
    : m_painter(paintable(target, m_nothing))
{
    if (op != CopyROP)
        setRasterOp(op);
}

void KORVA_ClassicPainter::setPen(const QPen& pen)
{
    QPen fixedWidth = pen;
    fixedWidth.setCosmetic(true);
    if (fixedWidth.joinStyle() == Qt::BevelJoin)
        fixedWidth.setJoinStyle(Qt::MiterJoin); // Qt's default join would cut the corners of a rectangle
    m_painter.setPen(fixedWidth);
}

void KORVA_ClassicPainter::setBrush(const QBrush& brush)
{
    m_painter.setBrush(brush);
}

void KORVA_ClassicPainter::setFont(const QFont& font)
{
    m_painter.setFont(font);
}

void KORVA_ClassicPainter::setRasterOp(RasterOp op)
{
    m_op = op;
    m_painter.setCompositionMode(op == NotROP ? QPainter::RasterOp_NotDestination
                                              : QPainter::CompositionMode_SourceOver);
}

void KORVA_ClassicPainter::setWorldMatrix(const QTransform& matrix)
{
    m_painter.setWorldTransform(matrix);
}

QRect KORVA_ClassicPainter::targetRect() const
{
    const QRectF target(0, 0, m_painter.device()->width(), m_painter.device()->height());
    return m_painter.worldTransform().inverted().mapRect(target).toAlignedRect();
}

int KORVA_ClassicPainter::outlineWidth() const
{
    return m_painter.pen().style() == Qt::NoPen ? 0 : qMax(1, m_painter.pen().width());
}

void KORVA_ClassicPainter::drawPoint(int x, int y)
{
    const int side = outlineWidth();
    touch(QRect(x, y, 1, 1), side);
    const QTransform matrix = m_painter.worldTransform();
    const QPointF place = matrix.map(QPointF(x, y));
    m_painter.setWorldTransform({});
    const QRect square(qFloor(place.x()) - side / 2, qFloor(place.y()) - side / 2, side, side);
    if (m_painter.pen().capStyle() == Qt::RoundCap) {
        QPainterPath disc;
        disc.addEllipse(square);
        m_painter.fillPath(disc, m_painter.pen().brush());
    } else {
        m_painter.fillRect(square, m_painter.pen().brush());
    }
    m_painter.setWorldTransform(matrix);
}

void KORVA_ClassicPainter::drawLine(int x1, int y1, int x2, int y2)
{
    if (x1 == x2 && y1 == y2) {
        drawPoint(x1, y1);
        return;
    }
    const int width = outlineWidth();
    const QRect box = classic::normalized(QRect(QPoint(x1, y1), QPoint(x2, y2)));
    touch(box, width);
    drawInParts(box, [&] { m_painter.drawLine(x1, y1, x2, y2); });
}

void KORVA_ClassicPainter::drawRect(int x, int y, int w, int h)
{
    if (w == 0 || h == 0)
        return;
    mirrorAboutAnchor(x, w);
    mirrorAboutAnchor(y, h);
    const int width = outlineWidth();
    touch(QRect(x, y, w, h), width);
    const QRect outer = withOutline(QRect(x, y, w, h), width);
    const QRect hole = outer.adjusted(width, width, -width, -width);
    const QRegion bars = (QRegion(outer) - hole) & targetRect();
    if (m_painter.pen().style() == Qt::SolidLine && m_painter.pen().joinStyle() == Qt::RoundJoin &&
        width > 1) {
        fillRoundFrame(outer, hole);
        return;
    }
    if (m_painter.pen().style() > Qt::SolidLine) {
        const double centre = penCentre(width);
        const QRectF outline(x + centre, y + centre, w - 1, h - 1);
        if (m_op == NotROP && isEnlarged(m_painter))
            invertDotted(outer, bars, outline);
        else
            drawInParts(bars, [&] { m_painter.drawRect(outline); });
        return;
    }
    // These bars share no pixel. Qt's own outline would invert some pixels of a narrow frame twice, and add
    // spikes to the corners of a wide one.
    for (const QRect& bar : bars) {
        for (const QRect& part : alongTheLongerSide(bar))
            m_painter.fillRect(part, m_painter.pen().brush());
    }
    if (!hole.isEmpty())
        m_painter.fillRect(hole, m_painter.brush());
}

// A path paints each pixel once.
void KORVA_ClassicPainter::fillRoundFrame(const QRect& outer, const QRect& hole)
{
    const double radius = outlineWidth() / 2.0;
    QPainterPath frame;
    frame.addRoundedRect(outer, radius, radius);
    if (!hole.isEmpty())
        frame.addRect(hole); // left out: the path's inside alternates
    m_painter.fillPath(frame, m_painter.pen().brush());
    if (!hole.isEmpty())
        m_painter.fillRect(hole, m_painter.brush());
}

void KORVA_ClassicPainter::drawEllipse(int x, int y, int w, int h)
{
    if (w == 1 || h == 1) {
        drawRect(x, y, w, h); // only a line; Qt's ellipse would invert each of its pixels twice
        return;
    }
    const int width = outlineWidth();
    touch(QRect(x, y, w, h), width);
    const double centre = penCentre(width);
    const QRectF path(x + centre, y + centre, w - 1, h - 1);
    const QRect box = withOutline(QRect(x, y, w, h), width) & targetRect();
    // Two runs a row; a thin one is painted point by point anyway.
    const int rows = m_op == NotROP && width > 1 ? mostRuns / 2 : qMax(1, box.height());
    for (int top = box.top(); top <= box.bottom(); top += rows) {
        m_painter.setClipRect(QRect(box.left(), top, box.width(), rows) & box);
        m_painter.drawEllipse(path);
    }
    m_painter.setClipping(false);
}

template <typename Area, typename Draw>
void KORVA_ClassicPainter::drawInParts(const Area& area, const Draw& drawAll)
{
    // A clip would change a wide line at its edges.
    if (m_op == CopyROP || outlineWidth() > 1) {
        drawAll();
        return;
    }
    const QRect target(0, 0, m_painter.device()->width(), m_painter.device()->height());
    for (const QRect& box : QRegion(area) & target) {
        for (const QRect& part : alongTheLongerSide(box)) {
            m_painter.setClipRect(part);
            drawAll();
        }
    }
    m_painter.setClipping(false);
}

void KORVA_ClassicPainter::fillRect(const QRect& rect, const QColor& color)
{
    m_painter.fillRect(rect, color);
    touch(rect);
}

void KORVA_ClassicPainter::drawPixmap(int x, int y, const QPixmap& pixmap, const QRect& exposed)
{
    const QRect place(QPoint(x, y), pixmap.size());
    touch(place);
    const QTransform toScreen = m_painter.deviceTransform();
    if (isEnlarged(m_painter) && !isWhole(toScreen.m11())) {
        const QRect shown = exposed.isNull() ? place : exposed & place;
        drawPixelByPixel(place.topLeft(), pixmap.toImage(),
                         toScreen.mapRect(QRectF(shown)).toAlignedRect());
    } else {
        m_painter.drawPixmap(x, y, pixmap);
    }
}

// At a fractional ratio Qt places pixels by a rule of its own, which depends on the rectangle that is
// painted.
void KORVA_ClassicPainter::drawPixelByPixel(QPoint at, const QImage& image, const QRect& onScreen)
{
    if (image.isNull() || onScreen.isEmpty())
        return;
    const QTransform fromScreen = m_painter.deviceTransform().inverted();
    const QImage source =
        image.depth() == 32 ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const auto pixelOf = [&](int x, int y) {
        const QPoint p = pixel::at(fromScreen.map(QPointF(x, y))) - at;
        return QPoint(qBound(0, p.x(), source.width() - 1), qBound(0, p.y(), source.height() - 1));
    };
    QVarLengthArray<int, 2048> columns(onScreen.width());
    for (int x = 0; x < onScreen.width(); ++x)
        columns[x] = pixelOf(onScreen.left() + x, onScreen.top()).x();

    QImage shown(onScreen.size(), source.format());
    for (int y = 0; y < onScreen.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(
            source.constScanLine(pixelOf(onScreen.left(), onScreen.top() + y).y()));
        auto* to = reinterpret_cast<QRgb*>(shown.scanLine(y));
        for (const int column : columns)
            *to++ = from[column];
    }
    m_painter.setWorldTransform(fromScreen);
    m_painter.drawImage(onScreen.topLeft(), shown);
    m_painter.setWorldTransform({});
}

// The dots are counted in pixels of ratio 1. So their number is the same at every ratio, and none is cut in
// half.
void KORVA_ClassicPainter::invertDotted(const QRect& box, const QRegion& bars, const QRectF& outline)
{
    QImage mask(box.size(), QImage::Format_RGB32);
    mask.fill(Qt::black);
    {
        QPainter dots(&mask);
        dots.translate(-box.topLeft());
        QPen pen = m_painter.pen();
        pen.setColor(Qt::white);
        dots.setPen(pen);
        dots.drawRect(outline);
    }
    m_painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    for (const QRect& bar : bars)
        drawPixelByPixel(box.topLeft(), mask, onScreen(bar, m_painter.deviceTransform()));
    setRasterOp(NotROP);
}

QRect KORVA_ClassicPainter::drawText(const QRect& box, int flags, const QString& text)
{
    const int margin = m_painter.fontMetrics().height(); // letters may reach out of their box
    QRect used;
    if (m_op == NotROP) {
        used = m_painter.boundingRect(box, flags, text);
        invertText(used.adjusted(-margin, -margin, margin, margin), box, flags, text);
    } else {
        m_painter.drawText(box, flags, text, &used);
    }
    touch(used, margin);
    return used;
}

// The text goes through a mask, so that a pixel that two letters share is inverted only once.
void KORVA_ClassicPainter::invertText(const QRect& area, const QRect& box, int flags, const QString& text)
{
    const QRect visible = area & targetRect();
    if (visible.isEmpty())
        return;
    QImage mask(visible.size(), QImage::Format_RGB32);
    mask.fill(Qt::black);
    {
        QPainter letters(&mask);
        letters.translate(-visible.topLeft());
        letters.setPen(Qt::white);
        letters.setFont(m_painter.font());
        letters.drawText(box, flags, text);
    }
    m_painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    m_painter.drawImage(visible.topLeft(), mask);
    setRasterOp(NotROP);
}

void KORVA_ClassicPainter::touch(const QRect& rect, int margin)
{
    m_touched |= rect.adjusted(-margin, -margin, margin, margin);
}

namespace classic {

QRect normalized(const QRect& rect)
{
    const auto [left, right] = std::minmax({rect.left(), rect.right()});
    const auto [top, bottom] = std::minmax({rect.top(), rect.bottom()});
    return {QPoint(left, top), QPoint(right, bottom)};
}

QPixmap opaque(const QPixmap& pixmap)
{
    if (pixmap.isNull() ||
        (!pixmap.hasAlphaChannel() && pixmap.depth() > 1 && pixmap.devicePixelRatio() == 1.0))
        return pixmap;
    QPixmap source = pixmap;
    source.setDevicePixelRatio(1.0);
    QPixmap paper = filled(source.size(), Qt::white);
    bitBlt(&paper, 0, 0, source);
    return paper;
}

QPixmap filled(const QSize& size, const QColor& color)
{
    QPixmap pixmap(size.expandedTo(QSize(0, 0)));
    pixmap.fill(color);
    return pixmap;
}

size_t hash(const QImage& image)
{
    return qHashBits(image.constBits(), size_t(image.sizeInBytes()),
                     qHashMulti(0, image.width(), image.height()));
}

void bitBlt(QPaintDevice* target, int x, int y, const QPixmap& source, const QRect& exposed)
{
    KORVA_ClassicPainter(target).drawPixmap(x, y, source, exposed);
}

} // namespace classic
