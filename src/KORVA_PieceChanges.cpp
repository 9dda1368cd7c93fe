#include "KORVA_PasteLabel.h"
#include "KORVA_PieceHandles.h"

#include <QAction>
#include <QImage>
#include <QMenu>

#include <algorithm>
#include <utility>

// The modern ways of a floating piece: rows of its menu, exact changes, and white that is clear.

namespace {

QPixmap whiteless(const QPixmap& picture)
{
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::replace(line, line + image.width(), qRgb(255, 255, 255), qRgba(255, 255, 255, 0));
    }
    return QPixmap::fromImage(image);
}

} // namespace

// --- The menu

void KORVA_PasteLabel::setManners(const KORVA_Manners& manners)
{
    const KORVA_Manners before = std::exchange(m_manners, manners);
    if (before.pieceHandles != manners.pieceHandles || before.clearWhite != manners.clearWhite)
        addRows();
    update();
}

void KORVA_PasteLabel::addRows()
{
    for (const QPointer<QAction>& row : std::exchange(m_rows, {}))
        delete row.data();
    const auto add = [this](const QString& text, Change what) {
        m_rows.append(m_menu->addAction(text, this, [this, what] { chooseChange(what); }));
    };
    if (m_manners.pieceHandles) {
        add(tr("Turn left", "menu of the piece"), TurnLeft);
        add(tr("Turn right", "menu of the piece"), TurnRight);
        add(tr("Flip", "menu of the piece: left and right change places"), Flip);
        add(tr("Double", "menu of the piece: twice as wide and high"), Double);
        add(tr("Halve", "menu of the piece: half as wide and high"), Halve);
    }
    if (m_manners.clearWhite) {
        add(QString(), ClearWhite);
        m_whiteAction = m_rows.last();
        m_whiteAction->setCheckable(true);
        tickWhite();
    }
    if (m_manners.pieceHandles)
        m_rows.append(
            m_menu->addAction(tr("Delete", "menu of the piece"), this, [this] { emit signalDelete(); }));
}

void KORVA_PasteLabel::chooseChange(Change what)
{
    change(what);
    emit changeChosen(what);
}

void KORVA_PasteLabel::tickWhite()
{
    if (!m_whiteAction)
        return;
    const QString plain = tr("White is clear", "menu of the piece: a switch");
    m_whiteAction->setChecked(m_isWhiteClear);
    m_whiteAction->setText(m_isWhiteClear ? QStringLiteral("\u2713 ") + plain
                                          : plain); // menus draw no marks
}

// --- What it does

void KORVA_PasteLabel::change(Change what)
{
    if (m_pressed || isHidden())
        return;
    constexpr int quarter = 90;
    constexpr double growth = 4; // of the area, when both sides double
    const QRect before = geometry();
    switch (what) {
    case TurnLeft:
    case TurnRight:
        adopt(m_pixmap.transformed(QTransform().rotate(what == TurnLeft ? -quarter : quarter)));
        return keepMiddle(before);
    case Flip:
        return adopt(QPixmap::fromImage(m_pixmap.toImage().mirrored(true, false)));
    case Double:
        if (growth <= mostGrowth())
            adopt(m_pixmap.scaled(m_pixmap.size() * 2));
        return;
    case Halve:
        return adopt(m_pixmap.scaled((m_pixmap.size() / 2.0).expandedTo(QSize(1, 1))));
    case ClearWhite:
        return setWhiteClear(!m_isWhiteClear && m_manners.clearWhite);
    }
}

/// After a turn: so that it is found again where it was.
void KORVA_PasteLabel::keepMiddle(const QRect& before)
{
    move(before.x() + (before.width() - width()) / 2, before.y() + (before.height() - height()) / 2);
}

void KORVA_PasteLabel::drop()
{
    m_pressed = false;
    hide();
}

void KORVA_PasteLabel::apply(const QTransform& how)
{
    if (m_manners.steadyPiece)
        return adopt(m_pixmap.transformed(how));
    catchUp();
    display(m_zoomPixmap.transformed(how));
}

/// Takes the picture at real size, and shows it at the zoom.
void KORVA_PasteLabel::adopt(const QPixmap& changed)
{
    if (changed.isNull())
        return;
    m_pixmap = changed;
    m_unseenZoom = QSize(m_zoom, m_zoom);
    catchUp();
}

// --- White

void KORVA_PasteLabel::setWhiteClear(bool clear)
{
    m_isWhiteClear = clear;
    m_clearShown = QPixmap();
    m_clearOf = 0;
    tickWhite();
    update();
}

QPixmap KORVA_PasteLabel::imprint() const
{
    return m_isWhiteClear ? whiteless(m_pixmap) : m_pixmap;
}

QPixmap KORVA_PasteLabel::shown()
{
    if (!m_isWhiteClear)
        return m_zoomPixmap;
    if (std::exchange(m_clearOf, m_zoomPixmap.cacheKey()) != m_zoomPixmap.cacheKey())
        m_clearShown = whiteless(m_zoomPixmap);
    return m_clearShown;
}

KORVA_PieceHandles KORVA_PasteLabel::handles() const
{
    const QWidget* const canvas = parentWidget();
    const QRect box = canvas ? rect() & canvas->rect().translated(-pos()) : rect();
    return KORVA_PieceHandles(box);
}
