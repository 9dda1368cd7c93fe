#pragma once

#include "KORVA_Export.h"

#include <QListWidget>

class UTIL_ListBoxDelegate;
class UTIL_ListBoxItem;

/// A list in which one row has the radio mark: its check state is Qt::Checked, that of all others
/// Qt::Unchecked. A tap on a row marks it. The arrow keys mark the row that they go to; Space marks the
/// current row.
class KORVA_EXPORT UTIL_ListBox : public QListWidget
{
    Q_OBJECT

public:
    /// `layout` divides the rows into fields from left to right, each with a letter and its width in
    /// pixels: `%T5` is a text, `%R20` the mark, as in `%T5%R20%T5%T189`. Reading ends at the first thing
    /// that is not such a field.
    explicit UTIL_ListBox(const QString& layout, QWidget* parent = nullptr, const char* name = nullptr);

    /// Takes ownership of the item. A negative position, or one past the end, appends it.
    void insertItem(UTIL_ListBoxItem* item, int position = -1);
    /// Gives the mark to a row and makes it the current one, or takes the mark away from it. Does nothing
    /// for a row that does not exist. Does not emit mouseButtonClicked().
    void checkItem(int row, bool checked);
    /// The current row, which the keyboard works on; -1 for none.
    [[nodiscard]] int currentItemIndex() const { return currentRow(); }

signals:
    /// A row was chosen, with a Qt::MouseButton or from the keyboard (0). It is the current row and has the
    /// mark. `position` is global.
    void mouseButtonClicked(int button, QListWidgetItem* item, const QPoint& position);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void choose(QListWidgetItem* item, int button, const QPoint& position);

    void setPressed(const QModelIndex& index);

    UTIL_ListBoxDelegate* m_delegate;
    QPersistentModelIndex m_pressed; // the row that a press has not left
};
