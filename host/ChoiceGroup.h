#pragma once

#include <QWidget>

#include <vector>

class QGridLayout;
class UTIL_PushButton;

namespace pad {

/// Keys of which at most one is marked, in rows from the reading direction's beginning. Tab stops once, at
/// the marked one; arrow keys choose among them. A tap leaves the keyboard where it is.
class ChoiceGroup : public QWidget
{
    Q_OBJECT

public:
    ChoiceGroup(const QString& name, int columns, const QSize& cell, int gap, QWidget* parent);

    /// Shows so many keys; a new one is made by makeKey(). Then call mark().
    void setCount(int count);
    [[nodiscard]] int count() const { return m_count; }
    [[nodiscard]] UTIL_PushButton& key(int index) const { return *m_keys.at(size_t(index)); }
    /// Says what a key is for: its tool tip and its name for a screen reader.
    void describe(int index, const QString& name, const QString& shortcut = {});
    /// Marks one, or none for any other number.
    void mark(int index);
    /// After mark(): this one is no choice among the others, but on or off by itself, and a stop of Tab.
    void markApart(int index, bool isOn);

signals:
    /// A person chose this one.
    void chosen(int index);

protected:
    [[nodiscard]] virtual UTIL_PushButton* makeKey(int index);

private:
    void add();

    QGridLayout* m_grid;
    int m_columns;
    QSize m_cell;
    std::vector<UTIL_PushButton*> m_keys; ///< children; those beyond the count are hidden
    int m_count = 0;
};

} // namespace pad
