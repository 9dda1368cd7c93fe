#pragma once

#include "Fixtures.h"
#include "KORVA_Manager.h"

#include "KORVA_AreaSelect.h"
#include "KORVA_Text.h"

/// What the tests of the tools need: a canvas with a manager, a stylus, and shapes drawn by other means.
namespace fixtures {

/// The tools by their identifiers.
enum ToolID { Pencil, AreaSelect, Line, Text, Rectangle, Ellipse, Rubber, Drag };

/// A canvas on which one of the manager's tools is in use. The left button draws blue, the right one green;
/// nothing is modified.
struct Desk
{
    explicit Desk(ToolID id, const QImage& image = support::sheet(QSize(80, 60)), int zoom = 100)
        : canvas(image), base(image)
    {
        canvas.setZoom(zoom);
        manager.setLMBColor(Qt::blue);
        manager.setRMBColor(Qt::darkGreen);
        manager.setCurrentTool(id);
        canvas.saveOldPix();
        canvas.clearModified();
        canvas.setUndoFlag(0);
        start = canvas.shown();
    }

    [[nodiscard]] KORVA_Tool& tool() const { return *manager.currentTool(); }
    template <typename Tool>
    [[nodiscard]] Tool& as() const
    {
        return *qobject_cast<Tool*>(&tool());
    }
    [[nodiscard]] bool isUntouched()
    {
        return support::sameImage(canvas.merged(), base) && support::sameImage(canvas.shown(), start) &&
               !canvas.isModified();
    }

    PictureCanvas canvas;
    KORVA_Manager manager{&canvas};
    support::Gestures stylus{canvas};
    const QImage base; ///< the picture at first
    QImage start;      ///< and the zoomed one
};

/// A stylus held to a tool itself, for the right button: the canvas keeps that for its menu.
class Stylus
{
public:
    explicit Stylus(KORVA_Tool& tool) : m_tool(tool) {}

    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event = make(QEvent::MouseButtonPress, at, button);
        m_tool.mousePressEvent(&event);
    }
    void move(QPoint to)
    {
        QMouseEvent event = make(QEvent::MouseMove, to, Qt::NoButton);
        m_tool.mouseMoveEvent(&event);
    }
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event = make(QEvent::MouseButtonRelease, at, button);
        m_tool.mouseReleaseEvent(&event);
    }

private:
    static QMouseEvent make(QEvent::Type type, QPoint at, Qt::MouseButton button)
    {
        return {type, QPointF(at), QPointF(at), button, button, Qt::NoModifier};
    }

    KORVA_Tool& m_tool;
};

inline QPen solidPen(const QColor& color, int width)
{
    QPen pen(color, width);
    pen.setCosmetic(true);
    return pen;
}

using Shape = std::function<void(QPainter&)>;

/// The picture with a shape in pen and brush on it.
inline QImage painted(QImage image, const QPen& pen, const QBrush& brush, const Shape& shape)
{
    QPainter painter(&image);
    painter.setPen(pen);
    painter.setBrush(brush);
    shape(painter);
    painter.end();
    return image;
}

/// The picture with the outline of a shape inverted; `width` is the pen's.
inline QImage toggled(QImage image, int width, const Shape& shape)
{
    const QImage mask =
        painted(support::sheet(image.size(), Qt::black), solidPen(Qt::white, width), Qt::NoBrush, shape);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    painter.drawImage(0, 0, mask);
    painter.end();
    return image;
}

/// A straight line; without a length it is a square of the pen's width.
inline Shape line(QPoint from, QPoint to)
{
    return [=](QPainter& painter) {
        const int side = qMax(1, painter.pen().width());
        if (from == to)
            painter.fillRect(from.x() - side / 2, from.y() - side / 2, side, side, painter.pen().color());
        else
            painter.drawLine(from, to);
    };
}

/// The pixels that a pen leaves around a box: half of it outside, on the lower right one less for even
/// pens.
inline QRect grown(const QRect& box, int penWidth)
{
    const int side = qMax(1, penWidth);
    return box.adjusted(-(side / 2), -(side / 2), (side - 1) / 2, (side - 1) / 2);
}

/// The rectangle of the plain difference, which holds the anchor pixel and leaves the far one out; nothing
/// without width or height.
inline Shape rectangle(QPoint anchor, QPoint far)
{
    return [=](QPainter& painter) {
        const QPoint span = far - anchor;
        if (span.x() == 0 || span.y() == 0)
            return;
        const QRect box(QPoint(qMin(anchor.x(), far.x() + 1), qMin(anchor.y(), far.y() + 1)),
                        QSize(qAbs(span.x()), qAbs(span.y())));
        const int side = qMax(1, painter.pen().width());
        const QRect outside = grown(box, side);
        const QRect inside = outside.adjusted(side, side, -side, -side);
        QRegion frame(outside);
        if (inside.isValid()) {
            frame -= inside;
            if (painter.brush().style() != Qt::NoBrush)
                painter.fillRect(inside, painter.brush());
        }
        for (const QRect& bar : frame)
            painter.fillRect(bar, painter.pen().color());
    };
}

inline int area(QPoint a, QPoint b)
{
    return qAbs(a.x() - b.x()) * qAbs(a.y() - b.y());
}

/// The ellipse with both corner pixels in its box, nothing up to an area; it stays inside its box.
inline Shape ellipse(QPoint a, QPoint b, int largestNotDrawn = 4)
{
    return [=](QPainter& painter) {
        if (area(a, b) <= largestNotDrawn)
            return;
        const QRect box(QPoint(qMin(a.x(), b.x()), qMin(a.y(), b.y())),
                        QPoint(qMax(a.x(), b.x()), qMax(a.y(), b.y())));
        const int width = painter.pen().width();
        const double middle = width > 1 && width % 2 == 1 ? 0.5 : 0;
        painter.setClipRect(grown(box, width));
        painter.drawEllipse(QRectF(box.x() + middle, box.y() + middle, box.width() - 1, box.height() - 1));
        painter.setClipping(false);
    };
}

/// What a tool draws between two points.
inline Shape shape(ToolID id, QPoint from, QPoint to)
{
    return id == Line ? line(from, to) : id == Rectangle ? rectangle(from, to) : ellipse(from, to);
}

} // namespace fixtures

Q_DECLARE_METATYPE(fixtures::ToolID)
