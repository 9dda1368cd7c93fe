#include "UTIL_ComboBox.h"

#include "UTIL_Accessible.h"
#include "UTIL_PopupMenu.h"
#include "UTIL_PopupStyle.h"
#include "UTIL_Skin.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <utility>

namespace {

using Size = UTIL_Skin::Size;

/// Draws the mark at the end of the checked row, even while the pointer is on another row.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem text = option;
        if (option.state & QStyle::State_Selected) { // the whole row, flat
            painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
            text.state.setFlag(QStyle::State_Selected, false);
            text.palette.setColor(QPalette::Text, option.palette.color(QPalette::HighlightedText));
        }
        text.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
        text.rect = visual(option, option.rect.adjusted(Size::keyPadding, 0, 0, 0));
        QStyledItemDelegate::paint(painter, text, index);
        if (index.data(Qt::CheckStateRole).toInt() != Qt::Checked)
            return;
        const int width = Size::radioDiameter;
        UTIL_Skin::paintRadio(
            *painter,
            visual(option, option.rect.adjusted(option.rect.width() - width - Size::keyPadding, 0,
                                                -Size::keyPadding, 0)),
            true, true);
    }

    /// High enough for a finger.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, Size::menuRowHeight));
    }

protected:
    /// Where a part of a row lies that is given for a row from left to right.
    [[nodiscard]] static QRect visual(const QStyleOptionViewItem& row, const QRect& place)
    {
        return QStyle::visualRect(row.direction, row.rect, place);
    }
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
    }
    [[nodiscard]] bool editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                                   const QModelIndex&) override
    {
        return false; // a tap chooses the row; it toggles no mark
    }
};

} // namespace

UTIL_ComboBox::UTIL_ComboBox(QWidget* parent) : QComboBox(parent)
{
    accessible::installControls();
    setStyle(new UTIL_PopupStyle(this));
    setPalette(UTIL_Skin::palette());
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
    setAttribute(Qt::WA_Hover);
    QPalette list = UTIL_Skin::palette();
    list.setColor(QPalette::Window, UTIL_Skin::color(UTIL_Skin::Color::Surface)); // as a menu's
    view()->setPalette(list);
    view()->setFont(font());
    setItemDelegate(new RowDelegate(this));
    view()->viewport()->installEventFilter(this);
}

// Qt mistakes a tap right after the one that opened the list for the end of that one.
bool UTIL_ComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != view()->viewport())
        return QComboBox::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress) { // a double tap on the box chooses no row
        m_pressedRow = view()->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const QModelIndex row = std::exchange(m_pressedRow, {});
        if (row.isValid() &&
            view()->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint()) == row) {
            view()->setCurrentIndex(row);
            QKeyEvent choose(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(view(), &choose);
            return true;
        }
    }
    return QComboBox::eventFilter(watched, event);
}

void UTIL_ComboBox::showPopup()
{
    emit aboutToShowPopup();
    QComboBox::showPopup();
    UTIL_PopupMenu::keepInWindow(*view()->window(), this);
}

void UTIL_ComboBox::markRow(int marked)
{
    for (int row = 0; row < count(); ++row)
        setItemData(row, row == marked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

void UTIL_ComboBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        showPopup();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void UTIL_ComboBox::paintEvent(QPaintEvent*)
{
    UTIL_Skin::State state = UTIL_Skin::State::Resting;
    if (!isEnabled()) {
        state = UTIL_Skin::State::Disabled;
    } else if (view()->isVisible()) {
        state = UTIL_Skin::State::Pressed;
    } else if (underMouse()) {
        state = UTIL_Skin::State::Hovered;
    }
    const UTIL_Skin::Look look = UTIL_Skin::look(UTIL_Skin::Control::Key, state);

    QPainter painter(this);
    UTIL_Skin::paintBox(painter, rect(), look);
    if (hasFocus())
        UTIL_Skin::paintFocus(painter, rect());

    const QRect inside = rect().adjusted(Size::keyPadding, 0, -Size::keyPadding, 0);
    const QRect text = QStyle::visualRect(layoutDirection(), rect(),
                                          inside.adjusted(0, 0, -2 * Size::chevron - Size::keyPadding, 0));
    const QPoint chevron = QStyle::visualPos(layoutDirection(), rect(),
                                             QPoint(inside.right() - Size::chevron, inside.center().y()));
    painter.setPen(look.ink);
    UTIL_Skin::paintText(painter, layoutDirection(), text, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()));
    UTIL_Skin::paintChevron(painter, chevron, look);
}
