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

/// Draws the mark of the checked row at its end, whatever row the pointer is on.
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
        text.rect.adjust(Size::keyPadding, 0, 0, 0);
        QStyledItemDelegate::paint(painter, text, index);
        if (index.data(Qt::CheckStateRole).toInt() != Qt::Checked)
            return;
        const int width = Size::radioDiameter;
        UTIL_Skin::paintRadio(
            *painter,
            option.rect.adjusted(option.rect.width() - width - Size::keyPadding, 0, -Size::keyPadding, 0),
            true, true);
    }

    /// High enough for a finger.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, Size::menuRowHeight));
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
    }
    [[nodiscard]] bool editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                                   const QModelIndex&) override
    {
        return false; // a tap chooses the row
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

// The toolkit mistakes a tap right after the one that opened the list for the end of that one.
bool UTIL_ComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != view()->viewport())
        return QComboBox::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress) { // a double tap on the box is meant for no row
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
    const QRect text = inside.adjusted(0, 0, -2 * Size::chevron - Size::keyPadding, 0);
    painter.setPen(look.ink);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()));
    UTIL_Skin::paintChevron(painter, QPoint(inside.right() - Size::chevron, inside.center().y()), look);
}
