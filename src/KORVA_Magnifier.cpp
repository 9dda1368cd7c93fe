#include "KORVA_Magnifier.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_ScrollView.h"
#include "UTIL_Skin.h"

#include <QPainter>

namespace {

constexpr int factor = 3;
constexpr int side = 81; // an odd number of magnified pixels, so that one is in the middle
constexpr int frame = 1;
constexpr int aside = 28;     // from the finger; what its tip covers
constexpr int mostZoom = 300; // in percent

QWidget* placeFor(const KORVA_Canvas& canvas)
{
    return canvas.scrollView() ? canvas.scrollView()->viewport() : canvas.parentWidget();
}

} // namespace

KORVA_Magnifier::KORVA_Magnifier(KORVA_Canvas& canvas) : QWidget(placeFor(canvas)), m_canvas(canvas)
{
    setObjectName("magnifier");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedSize(side + 2 * frame, side + 2 * frame);
    hide();
}

void KORVA_Magnifier::follow(QPointF at)
{
    if (m_canvas.zoom() > mostZoom || !parentWidget())
        return hide();
    m_at = at.toPoint();
    const QPoint finger = parentWidget()->mapFromGlobal(m_canvas.mapToGlobal(m_at));
    const QRect room = parentWidget()->rect();
    QRect place(QPoint(finger.x() - width() / 2, finger.y() - aside - height()), size());
    if (place.top() < room.top()) { // beside the finger, on the wider side
        const bool isLeft = finger.x() > room.center().x();
        place.moveTopLeft({isLeft ? finger.x() - aside - width() : finger.x() + aside, room.top()});
    }
    place.moveLeft(qBound(room.left(), place.left(), qMax(room.left(), room.right() + 1 - width())));
    setGeometry(place);
    raise();
    show();
    update();
}

void KORVA_Magnifier::paintEvent(QPaintEvent*)
{
    constexpr int seen = side / factor;
    const QPixmap& shown = m_canvas.zoomed();
    const QPoint corner = m_at - QPoint(seen / 2, seen / 2);
    const QRect spot = QRect(corner, QSize(seen, seen)) & shown.rect();
    QPainter painter(this);
    painter.fillRect(rect(), UTIL_Skin::color(UTIL_Skin::Color::Surface));
    painter.drawPixmap(
        QRect((spot.topLeft() - corner) * factor + QPoint(frame, frame), spot.size() * factor), shown,
        spot);
    painter.setPen(UTIL_Skin::color(UTIL_Skin::Color::Ink));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect middle(frame + (seen / 2) * factor, frame + (seen / 2) * factor, factor, factor);
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    painter.setPen(Qt::white);
    painter.drawRect(middle.adjusted(-1, -1, 0, 0));
}
