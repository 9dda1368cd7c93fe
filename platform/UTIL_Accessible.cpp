#include "UTIL_Accessible.h"

#include "UTIL_AccessibleContainer.h"
#include "UTIL_ComboBox.h"
#include "UTIL_MessageBox.h"
#include "UTIL_PushButton.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>

namespace {

/// A key; the menu that it opens is its child, whether it is open or not.
class Button : public QAccessibleWidget
{
public:
    explicit Button(UTIL_PushButton& button) : QAccessibleWidget(&button), m_button(button) {}

    [[nodiscard]] QAccessible::Role role() const override
    {
        if (m_button.isCheckable())
            return m_button.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
        return m_button.menu() ? QAccessible::ButtonMenu : QAccessible::Button;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = m_button.isDown();
        state.checkable = m_button.isCheckable();
        state.checked = m_button.isChecked();
        state.defaultButton = m_button.isDefault();
        state.hasPopup = m_button.menu() != nullptr;
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        switch (what) {
        case QAccessible::Name:
            return m_button.accessibleName().isEmpty() ? m_button.text().remove(QLatin1Char('&'))
                                                       : m_button.accessibleName();
        case QAccessible::Value:
            return m_button.accessibleDescription();
        case QAccessible::Accelerator:
            return m_button.shortcut().toString(QKeySequence::NativeText);
        default:
            return QAccessibleWidget::text(what);
        }
    }
    [[nodiscard]] int childCount() const override { return m_button.menu() ? 1 : 0; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_button.menu()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child && m_button.menu() && child->object() == m_button.menu() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return {m_button.menu() ? showMenuAction() : pressAction(), setFocusAction()};
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction() || name == showMenuAction())
            m_button.animateClick(); // what opens runs its own event loop
        else
            QAccessibleWidget::doAction(name);
    }

private:
    UTIL_PushButton& m_button;
};

/// Keeps its name beside its value, where the toolkit's own gives the value for the name.
class ComboBox : public QAccessibleWidget
{
public:
    explicit ComboBox(UTIL_ComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), m_box(box) {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = m_box.view()->isVisible();
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        const bool isValue = what == QAccessible::Value || what == QAccessible::Description;
        return isValue ? m_box.currentText() : QAccessibleWidget::text(what);
    }
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_box.view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child && child->object() == m_box.view() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(const QString& name) override
    {
        if (name == showMenuAction())
            m_box.showPopup();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    UTIL_ComboBox& m_box;
};

/// A dialog or message: what can be seen in it, without what only holds or adorns the rest.
class Dialog : public accessible::Container
{
public:
    using Container::Container;

protected:
    [[nodiscard]] QList<QWidget*> children() const override { return tellingIn(*widget()); }

private:
    static QList<QWidget*> tellingIn(const QWidget& holder)
    {
        QList<QWidget*> found;
        for (QWidget* each : holder.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (each->isWindow() || each->isHidden())
                continue;
            if (isTelling(*each))
                found.append(each);
            else
                found.append(tellingIn(*each));
        }
        return found;
    }
    static bool isTelling(QWidget& widget)
    {
        const QAccessibleInterface* own = QAccessible::queryAccessibleInterface(&widget);
        switch (own ? own->role() : QAccessible::NoRole) {
        case QAccessible::NoRole:
        case QAccessible::Client:
        case QAccessible::Pane:
        case QAccessible::Border:
        case QAccessible::LayeredPane:
        case QAccessible::StaticText:
        case QAccessible::Graphic:
            return own && !own->text(QAccessible::Name).isEmpty();
        default:
            return true;
        }
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String("UTIL_PushButton"))
        return new Button(static_cast<UTIL_PushButton&>(*object));
    if (className == QLatin1String("UTIL_ComboBox"))
        return new ComboBox(static_cast<UTIL_ComboBox&>(*object));
    if (className == QLatin1String("UTIL_MessageBox") || className == QLatin1String("UTIL_WaitBox"))
        return new Dialog(static_cast<QWidget*>(object), QAccessible::AlertMessage);
    if (className == QLatin1String("UTIL_Dialog"))
        return new Dialog(static_cast<QWidget*>(object), QAccessible::Dialog);
    return nullptr;
}

} // namespace

void accessible::installControls()
{
    QAccessible::installFactory(makeInterface);
}

void accessible::announce(QWidget& message)
{
    using Event = QAccessible::Event;
    for (const Event event : {QAccessible::ObjectShow, QAccessible::Alert, QAccessible::Focus}) {
        QAccessibleEvent news(&message, event);
        QAccessible::updateAccessibility(&news);
    }
}

void accessible::endAnnouncement()
{
    if (QWidget* focused = QApplication::focusWidget()) {
        QAccessibleEvent news(focused, QAccessible::Focus);
        QAccessible::updateAccessibility(&news);
    }
}
