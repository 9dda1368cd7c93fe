#include "KORVA_KeyboardRoom.h"

#include "KORVA_Canvas.h"
#include "KORVA_ScrollView.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QInputMethod>

KORVA_KeyboardRoom::KORVA_KeyboardRoom(KORVA_ScrollView& view, const KORVA_Canvas& canvas)
    : m_view(view), m_canvas(canvas)
{
    const QInputMethod* const keyboard = QGuiApplication::inputMethod();
    for (const auto change : {&QInputMethod::keyboardRectangleChanged, &QInputMethod::visibleChanged,
                              &QInputMethod::cursorRectangleChanged})
        connect(keyboard, change, this, &KORVA_KeyboardRoom::makeRoom);
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &KORVA_KeyboardRoom::makeRoom);
}

void KORVA_KeyboardRoom::makeRoom()
{
    m_view.setLift(missing());
}

int KORVA_KeyboardRoom::missing() const
{
    const QInputMethod& keyboard = *QGuiApplication::inputMethod();
    if (!keyboard.isVisible() || QGuiApplication::focusObject() != &m_canvas ||
        !m_canvas.inputMethodQuery(Qt::ImEnabled).toBool())
        return 0;
    const QRect covered = keyboard.keyboardRectangle().toAlignedRect(); // in the window
    const QFontMetrics metrics(qvariant_cast<QFont>(m_canvas.inputMethodQuery(Qt::ImFont)));
    QRect line = m_canvas.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    line.adjust(0, line.height() - 1 - metrics.ascent(), 0,
                metrics.descent() - 1); // its last row is the baseline
    line.translate(m_canvas.mapTo(m_canvas.window(), QPoint(0, m_view.lift())));
    if (!covered.intersects(line))
        return 0;
    const int top = m_view.viewport()->mapTo(m_canvas.window(), QPoint(0, 0)).y();
    return qBound(0, line.bottom() + 1 - covered.top(), qMax(0, line.top() - top));
}
