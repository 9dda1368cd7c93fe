#include "UTIL_PopupMenu.h"

#include "UTIL_PopupStyle.h"
#include "UTIL_Skin.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include <algorithm>
#include <utility>

namespace {

using Size = UTIL_Skin::Size;

constexpr int arrowHeight = 16;

/// The part of the window that lies on its screen.
QRect roomOf(const QWidget* owner)
{
    while (owner && owner->windowType() == Qt::Popup)
        owner = owner->parentWidget();
    if (!owner)
        return {};
    const QRect window = owner->window()->geometry();
    const QRect seen = window & owner->screen()->availableGeometry();
    return seen.isEmpty() ? window : seen;
}

} // namespace

UTIL_PopupMenu::UTIL_PopupMenu(QWidget* parent) : QMenu(parent)
{
    setStyle(new UTIL_PopupStyle(this));
    setPalette(UTIL_Skin::palette());
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
    connect(this, &QMenu::hovered, this, &UTIL_PopupMenu::reveal);
}

void UTIL_PopupMenu::keepInWindow(QWidget& popup, const QWidget* owner)
{
    const QRect room = roomOf(owner);
    if (!room.isValid())
        return;
    const int x = qMax(room.left(), qMin(popup.x(), room.right() + 1 - popup.width()));
    const int y = qMax(room.top(), qMin(popup.y(), room.bottom() + 1 - popup.height()));
    popup.move(x, y);
}

void UTIL_PopupMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const
{
    QMenu::initStyleOption(option, action);
    option->checkType = QStyleOptionMenuItem::NotCheckable;
    option->checked = false;
    option->menuHasCheckableItems = false;
}

void UTIL_PopupMenu::showEvent(QShowEvent* event)
{
    QMenu::showEvent(event);
    m_sinceOpened.start();
    const QRect room = roomOf(parentWidget());
    const int whole = sizeHint().height();
    // Qt itself scrolls a menu that is higher than the screen.
    m_room = room.isValid() && whole > room.height() && whole <= screen()->size().height() ? room : QRect();
    if (scrolls())
        resize(width(), whole);
    keepInWindow(*this, parentWidget());
    if (scrolls())
        scrollTo(0);
}

// The second tap of a double tap on the key that opened the menu must choose no row.
void UTIL_PopupMenu::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_isUnmeant = m_sinceOpened.elapsed() < QApplication::doubleClickInterval();
    if (!m_isUnmeant)
        QMenu::mouseDoubleClickEvent(event);
}

void UTIL_PopupMenu::hideEvent(QHideEvent* event)
{
    m_room = {};
    m_press.reset();
    clearMask();
    QMenu::hideEvent(event);
}

QRect UTIL_PopupMenu::visiblePart() const
{
    return {0, m_scroll, width(), m_room.height()};
}

QRect UTIL_PopupMenu::arrowAbove() const
{
    return m_scroll > 0 ? QRect(0, m_scroll, width(), arrowHeight) : QRect();
}

QRect UTIL_PopupMenu::arrowBelow() const
{
    const int end = m_scroll + m_room.height();
    return end < height() ? QRect(0, end - arrowHeight, width(), arrowHeight) : QRect();
}

/// The menu is as high as all its rows. It moves, and its mask shows only the part inside the room.
void UTIL_PopupMenu::scrollTo(int y)
{
    m_scroll = std::clamp(y, 0, height() - m_room.height());
    move(x(), m_room.top() - m_scroll);
    setMask(visiblePart());
    update();
}

void UTIL_PopupMenu::reveal(QAction* row)
{
    if (!scrolls() || m_press)
        return;
    const QRect place = actionGeometry(row);
    if (place.top() < m_scroll + arrowHeight)
        scrollTo(place.top() - arrowHeight);
    else if (place.bottom() >= m_scroll + m_room.height() - arrowHeight)
        scrollTo(place.bottom() + 1 + arrowHeight - m_room.height());
}

void UTIL_PopupMenu::paintEvent(QPaintEvent* event)
{
    QMenu::paintEvent(event);
    if (!scrolls())
        return;
    QPainter painter(this);
    const UTIL_Skin::Look look = UTIL_Skin::look(UTIL_Skin::Control::Row, UTIL_Skin::State::Resting);
    for (const QRect& band : {arrowAbove(), arrowBelow()}) {
        if (band.isNull())
            continue;
        painter.fillRect(band, palette().color(QPalette::Window));
        painter.save();
        painter.translate(band.center());
        if (band.top() == m_scroll)
            painter.rotate(180);
        UTIL_Skin::paintChevron(painter, QPoint(), look);
        painter.restore();
    }
    painter.setPen(UTIL_Skin::color(UTIL_Skin::Color::Border));
    painter.drawRect(visiblePart().adjusted(0, 0, -1, -1));
}

void UTIL_PopupMenu::wheelEvent(QWheelEvent* event)
{
    if (!scrolls()) {
        QMenu::wheelEvent(event);
        return;
    }
    constexpr int notch = 120;
    scrollTo(m_scroll - event->angleDelta().y() * Size::menuRowHeight / notch);
    event->accept();
}

void UTIL_PopupMenu::mousePressEvent(QMouseEvent* event)
{
    if (scrolls() && visiblePart().contains(event->position().toPoint())) {
        m_press = Press{int(event->globalPosition().y()), m_scroll};
        if (arrowAbove().contains(event->position().toPoint()) ||
            arrowBelow().contains(event->position().toPoint()))
            return;
    }
    QMenu::mousePressEvent(event);
}

void UTIL_PopupMenu::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_press) {
        QMenu::mouseMoveEvent(event);
        return;
    }
    const int moved = m_press->y - int(event->globalPosition().y());
    m_press->isDrag = m_press->isDrag || qAbs(moved) >= QApplication::startDragDistance();
    if (m_press->isDrag)
        scrollTo(m_press->scroll + moved);
}

void UTIL_PopupMenu::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(m_isUnmeant, false))
        return;
    const std::optional<Press> press = std::exchange(m_press, {});
    if (press && press->isDrag) {
        setActiveAction(nullptr);
        return;
    }
    const QPoint at = event->position().toPoint();
    if (press && (arrowAbove().contains(at) || arrowBelow().contains(at))) {
        const int page = m_room.height() - 2 * arrowHeight - Size::menuRowHeight;
        scrollTo(m_scroll + (arrowAbove().contains(at) ? -page : page));
        return;
    }
    QMenu::mouseReleaseEvent(event);
}
