#include "UTIL_Overlay.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>

#include <algorithm>

namespace {

/// All open overlays, the topmost last.
QList<const UTIL_Overlay*>& overlays()
{
    static QList<const UTIL_Overlay*> list;
    return list;
}

} // namespace

bool UTIL_Overlay::suits(const QDialog& dialog, const QWidget* window)
{
    return window && window->isVisible() && dialog.size().boundedTo(window->size()) == dialog.size() &&
           QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

UTIL_Overlay::UTIL_Overlay(QDialog& dialog, QWidget& window)
    : m_dialog(dialog),
      m_window(&window),
      m_parent(dialog.parentWidget()),
      m_flags(dialog.windowFlags()),
      m_focus(window.focusWidget())
{
    QWidget* first = dialog.focusWidget();
    dialog.setParent(&window, Qt::SubWindow | Qt::FramelessWindowHint); // keeps Tab inside
    takeKeyboard();
    if (first)
        first->setFocus();
    centre();
    dialog.raise();
    overlays().append(this);
    qApp->installEventFilter(this);
    if (m_parent && m_parent != m_window)
        connect(m_parent, &QObject::destroyed, this, &UTIL_Overlay::endWithParent);
}

/// As everywhere else, a dialog goes with its parent.
void UTIL_Overlay::endWithParent()
{
    m_parent = nullptr;
    m_dialog.done(QDialog::Rejected);
}

UTIL_Overlay::~UTIL_Overlay()
{
    overlays().removeOne(this);
    if (m_focus)
        m_focus->setFocus();
}

void UTIL_Overlay::giveBack()
{
    m_dialog.setParent(m_parent, m_flags);
}

void UTIL_Overlay::centre()
{
    QRect card(QPoint(), m_dialog.size());
    card.moveCenter(m_window->rect().center());
    m_dialog.move(std::max(card.left(), 0), std::max(card.top(), 0));
}

// Qt does both for dialogs that are windows.
void UTIL_Overlay::takeKeyboard()
{
    const auto keys = m_dialog.findChildren<QPushButton*>();
    const auto isDefault = [](const QPushButton* key) { return key->isDefault(); };
    const auto mayBeDefault = [](const QPushButton* key) { return key->autoDefault(); };
    const auto key = std::find_if(keys.begin(), keys.end(), mayBeDefault);
    if (std::none_of(keys.begin(), keys.end(), isDefault) && key != keys.end())
        (*key)->setDefault(true);

    const auto children = m_dialog.findChildren<QWidget*>();
    const auto takesFocus = [](const QWidget* widget) {
        return widget->focusPolicy() & Qt::TabFocus && widget->isEnabled() && !widget->isHidden();
    };
    const auto child = std::find_if(children.begin(), children.end(), takesFocus);
    (child != children.end() ? *child : &m_dialog)->setFocus();
}

bool UTIL_Overlay::isAbove(const QWidget& widget) const
{
    const QWidget* window = widget.window();
    if (window->windowType() == Qt::Popup || (window != m_window && window->isModal()))
        return true;
    for (const QWidget* at = &widget; at; at = at->parentWidget()) {
        if (at == &m_dialog)
            return true;
    }
    return false;
}

bool UTIL_Overlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Resize)
        centre();
    const bool isAsking = event->isInputEvent() ||
                          (event->type() == QEvent::Close && event->spontaneous()) ||
                          event->type() == QEvent::DragEnter || event->type() == QEvent::Drop;
    if (!isAsking || !watched->isWidgetType() || overlays().constLast() != this)
        return false;
    if (isAbove(static_cast<const QWidget&>(*watched)))
        return false;
    // Keys that the dialog ignores come here, too. They are accepted, so that they run no shortcut.
    event->setAccepted(event->isInputEvent());
    return true;
}
