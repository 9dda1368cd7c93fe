#include "UTIL_ListBox.h"

#include "KORVA_Pixel.h"
#include "UTIL_ListBoxDelegate.h"
#include "UTIL_ListBoxItem.h"
#include "UTIL_ScrollBar.h"
#include "UTIL_Skin.h"

#include <QMouseEvent>

UTIL_ListBox::UTIL_ListBox(const QString& layout, QWidget* parent, const char* name)
    : QListWidget(parent), m_delegate(new UTIL_ListBoxDelegate(UTIL_ItemLayout(layout), this))
{
    setObjectName(name);
    setItemDelegate(m_delegate);
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, this));
    setVerticalScrollMode(ScrollPerPixel);
    setAttribute(Qt::WA_Hover);
    viewport()->setAttribute(Qt::WA_Hover);
    viewport()->setAutoFillBackground(false);
}

void UTIL_ListBox::insertItem(UTIL_ListBoxItem* item, int position)
{
    QListWidget::insertItem(position < 0 ? count() : position, item);
}

void UTIL_ListBox::checkItem(int row, bool checked)
{
    if (row < 0 || row >= count())
        return;
    if (!checked) {
        item(row)->setCheckState(Qt::Unchecked);
        return;
    }
    for (int other = 0; other < count(); ++other)
        item(other)->setCheckState(other == row ? Qt::Checked : Qt::Unchecked);
    setCurrentRow(row);
}

void UTIL_ListBox::choose(QListWidgetItem* item, int button, const QPoint& position)
{
    checkItem(row(item), true);
    emit mouseButtonClicked(button, item, position);
}

void UTIL_ListBox::setPressed(const QModelIndex& index)
{
    m_pressed = index;
    m_delegate->setPressed(index);
    viewport()->update();
}

void UTIL_ListBox::mousePressEvent(QMouseEvent* event)
{
    setPressed(indexAt(pixel::under(*event, *viewport())));
}

void UTIL_ListBox::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed.isValid() && indexAt(pixel::under(*event, *viewport())) != m_pressed)
        setPressed({});
}

void UTIL_ListBox::mouseReleaseEvent(QMouseEvent* event)
{
    mouseMoveEvent(event);
    QListWidgetItem* const tapped = itemFromIndex(m_pressed);
    setPressed({});
    if (tapped)
        choose(tapped, int(event->button()), event->globalPosition().toPoint());
}

void UTIL_ListBox::keyPressEvent(QKeyEvent* event)
{
    const QListWidgetItem* const before = currentItem();
    const bool marks = event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (!marks)
        QListWidget::keyPressEvent(event);
    if (QListWidgetItem* const current = currentItem(); current && (marks || current != before))
        choose(current, Qt::NoButton, viewport()->mapToGlobal(visualItemRect(current).center()));
}
