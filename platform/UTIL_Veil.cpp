#include "UTIL_Veil.h"

#include "UTIL_Skin.h"

#include <QEvent>
#include <QPainter>

UTIL_Veil::UTIL_Veil(QWidget* window) : QWidget(window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("Dimmed for a dialog", "screen reader"));
    setFocusPolicy(Qt::NoFocus);
    setGeometry(window->rect());
    window->installEventFilter(this);
    show();
    raise();
}

bool UTIL_Veil::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return false;
}

void UTIL_Veil::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), UTIL_Skin::color(UTIL_Skin::Color::Veil));
}
