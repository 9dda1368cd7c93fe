#pragma once

#include <QAccessibleWidget>
#include <QList>
#include <QWidget>

namespace accessible {

/// A widget for screen readers whose children are told, and not found by the toolkit.
class Container : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] int childCount() const override { return int(children().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        QWidget* found = children().value(index);
        return found ? QAccessible::queryAccessibleInterface(found) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child ? int(children().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
    }

protected:
    [[nodiscard]] virtual QList<QWidget*> children() const = 0;
};

} // namespace accessible
