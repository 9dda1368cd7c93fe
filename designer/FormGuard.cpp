#include "FormGuard.h"

#include <QEvent>
#include <QWidget>

namespace {

bool isKeptOff(QEvent::Type type)
{
    switch (type) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

// By its name: the plugin is also loaded by programs that do without Designer's library.
bool isInForm(const QObject* object)
{
    while (object && !object->inherits("QDesignerFormWindowInterface"))
        object = object->parent();
    return object;
}

} // namespace

FormGuard::FormGuard(QWidget& widget) : QObject(&widget)
{
    widget.installEventFilter(this);
    for (QWidget* part : widget.findChildren<QWidget*>())
        part->installEventFilter(this);
}

bool FormGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (!isKeptOff(event->type()) || !isInForm(watched))
        return QObject::eventFilter(watched, event);
    event->ignore(); // so that it goes on to Designer, a touch as a mouse's
    return true;
}
