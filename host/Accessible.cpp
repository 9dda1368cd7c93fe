#include "Accessible.h"

#include "ChoiceGroup.h"
#include "Commands.h"
#include "PadWindow.h"
#include "SidePanel.h"
#include "StatusLine.h"

#include <QAccessibleWidget>
#include <QMenu>

namespace pad {

namespace {

class Window : public QAccessibleWidget
{
public:
    explicit Window(PadWindow& window) : QAccessibleWidget(&window, QAccessible::Window), m_window(window)
    {
    }

    [[nodiscard]] int childCount() const override { return QAccessibleWidget::childCount() + 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return index == QAccessibleWidget::childCount()
                   ? QAccessible::queryAccessibleInterface(m_window.commands().menu())
                   : QAccessibleWidget::child(index);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child && child->object() == m_window.commands().menu()
                   ? QAccessibleWidget::childCount()
                   : QAccessibleWidget::indexOfChild(child);
    }

private:
    PadWindow& m_window;
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String(PadWindow::staticMetaObject.className()))
        return new Window(static_cast<PadWindow&>(*object));
    if (className == QLatin1String(StatusLine::staticMetaObject.className()))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::StatusBar);
    if (className == QLatin1String(ChoiceGroup::staticMetaObject.className()) ||
        className == QLatin1String(SidePanel::staticMetaObject.className()))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace pad
