#include "StatusLine.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Zoom.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

#include <chrono>

namespace pad {

using namespace std::chrono_literals;

StatusLine::StatusLine(const KORVA_EditCanvas& editor, QWidget* parent) : QWidget(parent), m_editor(editor)
{
    auto* fields = new QHBoxLayout(this);
    fields->setContentsMargins(10, 0, 10, 0);
    fields->setSpacing(6);
    m_tool = addField(tr("Tool", "status line"), Qt::AlignLeft, 3);
    m_size = addField(tr("Picture size", "status line"), Qt::AlignHCenter, 3);
    m_zoom = addField(tr("Zoom", "status line"), Qt::AlignHCenter, 2);
    m_position = addField(tr("Position", "status line"), Qt::AlignRight, 3);

    m_timer.setSingleShot(true);
    m_timer.setInterval(60ms);
    connect(&m_timer, &QTimer::timeout, this, &StatusLine::refresh);
    connect(&editor, &KORVA_EditCanvas::sizeChanged, this, &StatusLine::refreshSoon);
    connect(&editor, &KORVA_EditCanvas::pixmapChanged, this, &StatusLine::refreshSoon);
    // A hover over the canvas is seen only here: the canvas asks for moves with a button held.
    qApp->installEventFilter(this);
    refresh();
}

QLabel* StatusLine::addField(const QString& meaning, Qt::Alignment alignment, int stretch)
{
    auto* field = new QLabel(this);
    field->setAccessibleName(meaning);
    field->setToolTip(meaning);
    field->setAlignment(alignment | Qt::AlignVCenter);
    static_cast<QHBoxLayout*>(layout())->addWidget(field, stretch);
    return field;
}

void StatusLine::refresh()
{
    const KORVA_Canvas& canvas = *m_editor.canvas();
    const KORVA_Zoom zoom(canvas.zoom());
    const QSize size = zoom.percent() ? m_editor.canvas()->size() : QSize();
    m_tool->setText(tr("Pencil", "tool"));
    m_size->setText(
        tr("%1 × %2", "picture size").arg(zoom.toPicture(size.width())).arg(zoom.toPicture(size.height())));
    m_zoom->setText(tr("%1 %", "zoom").arg(zoom.percent()));
    const QPoint at = zoom.toPicture(m_pointer);
    m_position->setText(m_isOver ? tr("%1, %2", "position").arg(at.x()).arg(at.y()) : QString());
}

void StatusLine::refreshSoon()
{
    if (!m_timer.isActive())
        m_timer.start();
}

bool StatusLine::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove && watched == m_editor.canvas()) {
        m_pointer = static_cast<QMouseEvent*>(event)->position().toPoint();
        m_isOver = true;
        refreshSoon();
    } else if (event->type() == QEvent::Leave && watched == m_editor.canvas()) {
        m_isOver = false;
        refreshSoon();
    }
    return false;
}

} // namespace pad
