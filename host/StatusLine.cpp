#include "StatusLine.h"

#include "Accessible.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Pixel.h>
#include <KORVA_Zoom.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

#include <numeric>

namespace pad {

namespace {

constexpr int pace = 200; // ms
constexpr int margin = 8;
constexpr int spacing = 4;
constexpr int shares[] = {58, 59, 40, 55}; // of the room, a field each

} // namespace

StatusLine::StatusLine(const KORVA_EditCanvas& editor, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_picture(editor.canvas()->size())
{
    installAccessibility();
    setAccessibleName(tr("Status", "status line"));
    m_tool = addField(tr("Tool", "status line"), Qt::AlignLeft);
    m_size = addField(tr("Picture size", "status line"), Qt::AlignHCenter);
    m_zoom = addField(tr("Zoom", "status line"), Qt::AlignHCenter);
    m_position = addField(tr("Position", "status line"), Qt::AlignRight);

    m_timer.setSingleShot(true);
    m_timer.setInterval(pace);
    connect(&m_timer, &QTimer::timeout, this, &StatusLine::refresh);
    connect(&editor, &KORVA_EditCanvas::signalTextTool, this, &StatusLine::refreshSoon);
    connect(&editor, &KORVA_EditCanvas::sizeChanged, this, &StatusLine::refreshSoon);
    connect(&editor, &KORVA_EditCanvas::pixmapChanged, this, [this](const QPixmap* picture) {
        m_picture = picture->size();
        refreshSoon();
    });
    connect(editor.canvas(), &KORVA_Canvas::keyboardPenChanged, this, &StatusLine::refreshSoon);
    // A hover over the canvas is seen only here: the canvas asks for moves with a button held.
    qApp->installEventFilter(this);
    refresh();
}

QLabel* StatusLine::addField(const QString& meaning, Qt::Alignment alignment)
{
    auto* field = new QLabel(this);
    field->setToolTip(meaning);
    field->setAlignment(alignment | Qt::AlignVCenter);
    return field;
}

// Not a layout: it would measure all texts anew whenever the pointer has moved.
void StatusLine::resizeEvent(QResizeEvent*)
{
    const int room = width() - 2 * margin - (int(std::size(shares)) - 1) * spacing;
    const int shared = std::accumulate(std::begin(shares), std::end(shares), 0);
    int left = margin;
    const int* share = shares;
    for (QLabel* field : {m_tool, m_size, m_zoom, m_position}) {
        const int extent = room * *share++ / shared;
        field->setGeometry(left, 0, extent, height());
        left += extent + spacing;
    }
}

QSize StatusLine::pictureSize() const
{
    // An undo may bring back a picture of another size without announcing it.
    const KORVA_Canvas& canvas = *m_editor.canvas();
    const KORVA_Zoom zoom(canvas.zoom());
    if (zoom.zoomed(m_picture) == canvas.size())
        return m_picture;
    return {zoom.toPicture(canvas.width()), zoom.toPicture(canvas.height())};
}

void StatusLine::refresh()
{
    m_sinceRefresh.start();
    const KORVA_Zoom zoom(m_editor.canvas()->zoom());
    const QSize size = pictureSize();
    const std::optional<QPoint> pen = m_editor.canvas()->keyboardPen();
    const QPoint at = pen.value_or(zoom.toPicture(m_pointer));
    fill(m_tool, KORVA_EditCanvas::toolName(m_editor.canvas()->getCurrentToolID()));
    fill(m_size, tr("%1 × %2", "picture size").arg(size.width()).arg(size.height()));
    fill(m_zoom, tr("%1 %", "zoom").arg(zoom.percent()));
    fill(m_position, m_isOver || pen ? tr("%1, %2", "position").arg(at.x()).arg(at.y()) : QString());
}

/// A screen reader hears the value behind its meaning.
void StatusLine::fill(QLabel* field, const QString& value)
{
    field->setText(value);
    const QString meaning = field->toolTip();
    const QString spoken =
        value.isEmpty() ? meaning : tr("%1: %2", "status line, spoken").arg(meaning, value);
    if (field->accessibleName() != spoken)
        field->setAccessibleName(spoken);
}

void StatusLine::refreshSoon()
{
    if (!m_timer.isActive())
        m_timer.start();
}

bool StatusLine::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseMove && type != QEvent::MouseButtonRelease && type != QEvent::Leave)
        return false;
    if (watched != m_editor.canvas())
        return false;
    m_isOver = type != QEvent::Leave;
    if (m_isOver)
        m_pointer = pixel::under(*static_cast<const QMouseEvent*>(event), *m_editor.canvas());
    if (type != QEvent::MouseMove || !static_cast<const QMouseEvent*>(event)->buttons())
        refreshSoon();
    else if (m_sinceRefresh.hasExpired(pace)) // a timer running would cost every event of a stroke
        refresh();
    return false;
}

} // namespace pad
