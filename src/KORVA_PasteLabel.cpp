#include "KORVA_PasteLabel.h"

#include "KORVA_ClassicPainter.h"
#include "KORVA_Limit.h"
#include "KORVA_PieceHandles.h"
#include "KORVA_Pixel.h"
#include "UTIL_ImageReader.h"
#include "UTIL_Platform.h"
#include "UTIL_PopupMenu.h"

#include <QImage>
#include <QMenu>
#include <QMouseEvent>

#include <cmath>
#include <utility>

namespace {

constexpr int handleSize = 6; ///< pixels: the side of a handle and the width of the edge zones

} // namespace

/// How dragging a zone changes the item: the signs with which dx changes its width and dy its height, and
/// whether its top left follows.
struct KORVA_PasteLabel::Stretch
{
    Zone zone;
    int widthSign;
    int heightSign;
    bool movesX;
    bool movesY;
    static const Stretch table[];
};

const KORVA_PasteLabel::Stretch KORVA_PasteLabel::Stretch::table[] = {
    {LeftEdge, -1, 0, true, false},    {RightEdge, 1, 0, false, false}, {TopEdge, 0, -1, false, true},
    {BottomEdge, 0, 1, false, false},  {TopLeft, -1, -1, true, true},   {BottomLeft, -1, 1, true, false},
    {BottomRight, 1, 1, false, false},
};

KORVA_PasteLabel::KORVA_PasteLabel(QWidget* parent, const char* name, Qt::WindowFlags flags)
    : QLabel(parent, flags), m_menu(new UTIL_PopupMenu(this))
{
    setObjectName(name);
    UTIL_Platform::instance()->setMouseMode(this, 1);
    m_menu->addAction(tr("Copy", "2.11.1;MENU"), this, &KORVA_PasteLabel::slotCopy)->setData(0);
    m_menu->addAction(tr("Cut", "2.11.1;MENU"), this, &KORVA_PasteLabel::slotCut)->setData(1);
    m_pasteAction = m_menu->addAction(tr("Paste", "2.11.1;MENU"), this, &KORVA_PasteLabel::slotPaste);
    m_pasteAction->setData(2);
    m_menu->setAccessibleName(tr("Floating piece", "menu of the piece"));
    setPasteItem(false);
    setMouseTracking(true);
    QPalette paper; // the added area of a growing piece is white, whatever the skin
    paper.setColor(QPalette::Base, Qt::white);
    setPalette(paper);
}

void KORVA_PasteLabel::setImage(const char* fileName)
{
    setImage(UTIL_ImageReader::pixmap(QString::fromUtf8(fileName)));
}

void KORVA_PasteLabel::setImage(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    m_pixmap.setDevicePixelRatio(1);
    setWhiteClear(false);
    m_unseenZoom = QSize(m_zoom, m_zoom);
    catchUp();
}

void KORVA_PasteLabel::setZoom(int horizontal, int vertical)
{
    m_zoom = horizontal;
    m_unseenZoom = QSize(horizontal, vertical);
    const bool wasHidden = isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (!wasHidden)
        catchUp();
}

void KORVA_PasteLabel::catchUp()
{
    if (const QSize percent = std::exchange(m_unseenZoom, {}); percent.isValid())
        display(
            m_pixmap.transformed(QTransform::fromScale(percent.width() / 100.0, percent.height() / 100.0)));
}

void KORVA_PasteLabel::setVisible(bool visible)
{
    if (visible)
        catchUp();
    QLabel::setVisible(visible);
}

void KORVA_PasteLabel::setResizeZoom(int horizontal, int vertical)
{
    apply(QTransform::fromScale(horizontal / 100.0, vertical / 100.0));
}

void KORVA_PasteLabel::rotate(int degrees)
{
    const QRect before = geometry();
    apply(QTransform().rotate(degrees));
    if (m_manners.pieceHandles)
        keepMiddle(before);
}

void KORVA_PasteLabel::moveBy(QPoint way)
{
    if (m_pressed)
        return;
    dragTo(m_pressPos + way);
    foldBack();
}

void KORVA_PasteLabel::stretchBy(QPoint way)
{
    const auto pull = [](int side, int wish) {
        constexpr int hundredths = 100;
        const int least = (side + hundredths - 1) / hundredths;
        return wish < 0 ? qMax(wish, 1 - side) : wish > 0 ? qMax(wish, least) : 0;
    };
    if (m_pressed)
        return;
    catchUp();
    m_pressPos = QPoint();
    m_lastPos = QPoint(pull(width(), way.x()), pull(height(), way.y()));
    stretch({BottomRight, m_lastPos.x() ? 1 : 0, m_lastPos.y() ? 1 : 0, false, false});
    foldBack();
}

void KORVA_PasteLabel::turn(bool clockwise)
{
    if (m_pressed)
        return;
    rotate(clockwise ? 90 : -90);
    foldBack();
}

void KORVA_PasteLabel::setPasteItem(bool enabled)
{
    if (m_pasteAction)
        m_pasteAction->setEnabled(enabled);
}

void KORVA_PasteLabel::slotCut()
{
    emit signalCut();
}

void KORVA_PasteLabel::slotCopy()
{
    emit signalCopy();
}

void KORVA_PasteLabel::slotPaste()
{
    emit signalPaste();
}

void KORVA_PasteLabel::mousePressEvent(QMouseEvent* event)
{
    const QPoint p = pixel::under(*event, *this);
    if (rect().contains(event->position().toPoint()) && !rect().contains(p)) {
        event->ignore(); // rounded, and really beside the piece: this press is the canvas's
    } else if (event->button() == Qt::LeftButton) {
        if (m_manners.pieceHandles) { // the piece may have changed below the pointer
            hover(p);
            update();
        }
        m_pressed = true;
        m_pressPos = m_lastPos = p;
    } else if (event->button() == Qt::RightButton) {
        m_menu->popup(event->globalPosition().toPoint());
    }
}

void KORVA_PasteLabel::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint p = pixel::under(*event, *this);
    m_lastPos = p;
    if (!m_pressed)
        hover(p);
    else if (m_zone == Inside)
        dragTo(p);
}

void KORVA_PasteLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_pressed)
        return;
    m_pressed = false;
    setCursor(Qt::CrossCursor);
    if (m_manners.pieceHandles)
        update();

    if (m_zone == TopRight)
        rotate(pixel::under(*event, *this).y() > m_pressPos.y() ? 90 : -90);
    for (const Stretch& rule : Stretch::table) {
        if (rule.zone == m_zone)
            stretch(rule);
    }
    foldBack();
}

KORVA_PasteLabel::Zone KORVA_PasteLabel::zoneAt(QPoint p) const
{
    if (p.x() < 0 || p.x() > width() || p.y() < 0 || p.y() > height())
        return Outside;
    if (m_manners.pieceHandles) {
        static constexpr Zone zones[3][3] = {{TopLeft, TopEdge, TopRight},
                                             {LeftEdge, Inside, RightEdge},
                                             {BottomLeft, BottomEdge, BottomRight}};
        const QPoint cell = handles().cellAt(p);
        return zones[cell.y()][cell.x()];
    }

    // Strict on both sides: a point exactly one handle away from an edge moves the item.
    const bool left = p.x() < handleSize;
    const bool right = p.x() > width() - handleSize;
    const bool top = p.y() < handleSize;
    const bool bottom = p.y() > height() - handleSize;
    const bool betweenX = handleSize < p.x() && p.x() < width() - handleSize;
    const bool betweenY = handleSize < p.y() && p.y() < height() - handleSize;
    const struct
    {
        bool holds;
        Zone zone;
    } rules[] = {
        {right && top, TopRight},       {left && top, TopLeft},           {left && bottom, BottomLeft},
        {right && bottom, BottomRight}, {left && betweenY, LeftEdge},     {right && betweenY, RightEdge},
        {betweenX && top, TopEdge},     {betweenX && bottom, BottomEdge},
    };
    for (const auto& rule : rules) {
        if (rule.holds)
            return rule.zone;
    }
    return Inside;
}

std::optional<QPoint> KORVA_PasteLabel::gripFor(QPoint finger, int reach) const
{
    if (!rect().adjusted(-reach, -reach, reach, reach).contains(finger))
        return {};
    // The middle of the edge or the corner that is meant: a mouse finds its zone there, too.
    const auto handle = [reach](int p, int size) -> std::optional<int> {
        const int inwards = qMin(reach, size / 4);
        if (p < inwards)
            return 0;
        return p >= size - inwards ? std::optional(size - 1) : std::nullopt;
    };
    if (m_manners.pieceHandles && handles().side() == 0)
        return rect().center();
    const QRect box = m_manners.pieceHandles ? handles().box() : rect();
    std::optional<int> x = handle(finger.x() - box.x(), box.width());
    std::optional<int> y = handle(finger.y() - box.y(), box.height());
    if (x)
        *x += box.x();
    if (y)
        *y += box.y();
    if (x || y)
        return QPoint(x.value_or(box.x() + box.width() / 2), y.value_or(box.y() + box.height() / 2));
    for (const QPoint& p : {finger, QPoint(handleSize, height() / 2), QPoint(width() / 2, handleSize)}) {
        if (zoneAt(p) == Inside)
            return p;
    }
    return finger;
}

void KORVA_PasteLabel::hover(QPoint p)
{
    static constexpr Qt::CursorShape cursors[] = {
        Qt::CrossCursor,     Qt::PointingHandCursor, Qt::SizeHorCursor,   Qt::SizeHorCursor,
        Qt::SizeVerCursor,   Qt::SizeVerCursor,      Qt::SizeFDiagCursor, Qt::ArrowCursor,
        Qt::SizeBDiagCursor, Qt::SizeFDiagCursor,    Qt::UpArrowCursor,
    };
    m_zone = zoneAt(p);
    if (m_manners.pieceHandles && m_zone == TopRight)
        setCursor(KORVA_PieceHandles::turnCursor());
    else if (m_manners.pieceHandles && m_zone == Inside)
        setCursor(Qt::SizeAllCursor);
    else
        setCursor(cursors[m_zone]);
}

void KORVA_PasteLabel::dragTo(QPoint p)
{
    // Only the right and lower edges limit it: a piece may be pushed out to the left and the top.
    const QPoint to = pos() + p - m_pressPos;
    const QSize limit = parentWidget() ? parentWidget()->size() : QSize(to.x(), to.y());
    move(qMin(to.x(), limit.width()), qMin(to.y(), limit.height()));
}

void KORVA_PasteLabel::stretch(const Stretch& rule)
{
    QPoint d = m_lastPos - m_pressPos;
    const auto percentage = [](qint64 size, qint64 change) {
        return size > 0 ? qMax<qint64>(0, size + change) * 100 / size : 0;
    };
    qint64 horizontal = rule.widthSign ? percentage(width(), rule.widthSign * d.x()) : 100;
    qint64 vertical = rule.heightSign ? percentage(height(), rule.heightSign * d.y()) : 100;
    const double growth = double(horizontal) * double(vertical) / 1e4;
    const bool isTooLarge = growth > mostGrowth();
    if (isTooLarge) { // a growing side grows less
        const bool both = horizontal > 100 && vertical > 100;
        const double part = both ? std::sqrt(mostGrowth() / growth) : mostGrowth() / growth;
        for (qint64* percent : {&horizontal, &vertical}) {
            if (*percent > 100)
                *percent = qMax<qint64>(100, qint64(double(*percent) * part));
        }
    }
    const QSize before = size();
    setResizeZoom(int(horizontal), int(vertical));
    if (isTooLarge) // the opposite edges stay where they are
        d = QPoint(before.width() - width(), before.height() - height());
    move(pos() + QPoint(rule.movesX ? d.x() : 0, rule.movesY ? d.y() : 0));
}

/// The factor by which the item's area may grow, on screen and at real size.
double KORVA_PasteLabel::mostGrowth() const
{
    const double smallest = qMin(1.0, m_zoom / 100.0);
    const double area = qMax(1.0, double(width()) * height());
    return qMax(1.0, double(limit::shownPixels(*this)) * smallest * smallest / area);
}

void KORVA_PasteLabel::display(const QPixmap& zoomed)
{
    m_zoomPixmap = zoomed;
    resize(m_zoomPixmap.size());
    update();
}

void KORVA_PasteLabel::foldBack()
{
    if (!m_manners.steadyPiece)
        m_pixmap = m_zoomPixmap.transformed(QTransform::fromScale(100.0 / m_zoom, 100.0 / m_zoom));
}

void KORVA_PasteLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    paintFrame(event->rect());
    if (m_manners.pieceHandles && !m_pressed) {
        QPainter painter(this);
        handles().paint(painter);
    }
}

void KORVA_PasteLabel::paintFrame(const QRect& exposed)
{
    KORVA_ClassicPainter painter(this);
    painter.drawPixmap(0, 0, shown(), exposed);

    painter.setRasterOp(KORVA_ClassicPainter::NotROP);
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    painter.drawRect(0, 0, width(), height());

    if (m_manners.pieceHandles)
        return;
    painter.setRasterOp(KORVA_ClassicPainter::CopyROP);
    const int right = width() - handleSize;
    const int bottom = height() - handleSize;
    for (const QPoint& corner :
         {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom), QPoint(right / 2, 0),
          QPoint(right / 2, bottom), QPoint(0, bottom / 2), QPoint(right, bottom / 2)})
        painter.fillRect(QRect(corner, QSize(handleSize, handleSize)), Qt::black);
}

void KORVA_PasteLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    if (const QSize grown = size().expandedTo(m_zoomPixmap.size()); grown != m_zoomPixmap.size()) {
        QPixmap larger = classic::filled(grown, palette().color(QPalette::Base));
        classic::bitBlt(&larger, 0, 0, m_zoomPixmap);
        m_zoomPixmap = larger;
    }
}
