#include "KORVA_ENGINE_CloseFilter.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCloseEvent>
#include <QWidget>

void KORVA_ENGINE_CloseFilter::deleteWidgetLater(QWidget* widget)
{
    if (!widget)
        return;
    auto* filter = new KORVA_ENGINE_CloseFilter; // deletes itself with the widget, however that is deleted
    widget->installEventFilter(filter);
    connect(widget, &QObject::destroyed, filter, &QObject::deleteLater);
    QCoreApplication::postEvent(widget, new QCloseEvent);
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        dispatcher->wakeUp();
}

bool KORVA_ENGINE_CloseFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Close)
        return false;
    delete this;
    delete watched;
    return true;
}
