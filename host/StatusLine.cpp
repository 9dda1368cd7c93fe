#include "StatusLine.h"

#include "Accessible.h"
#include "Wording.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Pixel.h>
#include <KORVA_Zoom.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QStyle>

#include <algorithm>
#include <numeric>

namespace pad {

namespace {

constexpr int pace = 200; // ms
constexpr int margin = 8;
constexpr int spacing = 4;
constexpr int shares[] = {58, 59, 40, 55}; // each field's share of the width

} // namespace

StatusLine::StatusLine(const KORVA_EditCanvas& editor, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_picture(editor.canvas()->size())
{
    installAccessibility();
    setAccessibleName(tr("Status", "status line"));
    m_tool = addField(tr("Tool", "status line"), Qt::AlignLeft);
    m_size = addField(tr("Picture size", "status line"), Qt::AlignHCenter);
    m_zoom = addField(wording::zoom(), Qt::AlignHCenter);
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
    connect(editor.canvas(), &KORVA_Canvas::dragging, this, [this](QSize size) {
        m_dragged = size;
        refreshSoon();
    });
    connect(editor.canvas(), &KORVA_Canvas::keyboardPenChanged, this, &StatusLine::refreshSoon);
    // Only the application sees a hover over the canvas: the canvas itself gets moves only while a button
    // is held.
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

// A layout would measure all texts again whenever the pointer has moved.
void StatusLine::resizeEvent(QResizeEvent*)
{
    const QList<QLabel*> fields{m_tool, m_size, m_zoom, m_position};
    const int room = width() - 2 * margin - (fieldCount - 1) * spacing;
    const std::array<int, fieldCount> extents = this->extents(room);
    const int beyond = std::accumulate(extents.begin(), extents.end(), 0) - room;
    int left = margin - std::max(0, beyond);
    for (int i = 0; i < fieldCount; ++i) {
        const int extent = extents[size_t(i)];
        fields.at(i)->setGeometry(
            QStyle::visualRect(layoutDirection(), rect(), QRect(left, 0, extent, height())));
        left += extent + spacing;
        fitFont(*fields.at(i));
    }
}

/// Every field its share; where the longest tool's name needs more, what the others can spare.
std::array<int, StatusLine::fieldCount> StatusLine::extents(int room) const
{
    const int shared = std::accumulate(std::begin(shares), std::end(shares), 0);
    std::array<int, fieldCount> extents{};
    std::transform(std::begin(shares), std::end(shares), extents.begin(),
                   [=](int share) { return room * share / shared; });
    const QFontMetrics metrics = m_tool->fontMetrics();
    int lacking = -extents[0];
    for (int tool = KORVA_TOOL_PENCIL; tool <= KORVA_TOOL_HAND; ++tool)
        lacking =
            std::max(lacking, metrics.horizontalAdvance(KORVA_EditCanvas::toolName(tool)) - extents[0]);
    const std::array<QString, fieldCount> longest{QString(), sizeText({240, 320}), wording::percent(200),
                                                  positionText({239, 319})};
    for (size_t i = fieldCount - 1; i > 0 && lacking > 0; --i) {
        const int spare = std::clamp(extents[i] - metrics.horizontalAdvance(longest[i]), 0, lacking);
        extents[i] -= spare;
        extents[0] += spare;
        lacking -= spare;
    }
    extents[0] += std::clamp(lacking, 0, margin - 1); // rather than a word cut off
    return extents;
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

QString StatusLine::sizeText(QSize size)
{
    return tr("%1 × %2", "picture size")
        .arg(wording::plainNumber(size.width()), wording::plainNumber(size.height()));
}

QString StatusLine::positionText(QPoint at)
{
    return tr("%1, %2", "position").arg(wording::plainNumber(at.x()), wording::plainNumber(at.y()));
}

void StatusLine::refresh()
{
    m_sinceRefresh.start();
    const KORVA_Zoom zoom(m_editor.canvas()->zoom());
    const QSize size = pictureSize();
    const std::optional<QPoint> pen = m_editor.canvas()->keyboardPen();
    const QPoint at = pen.value_or(zoom.toPicture(m_pointer));
    fill(m_tool, m_editor.nameOfTool(m_editor.canvas()->getCurrentToolID()));
    m_size->setToolTip(m_dragged.isValid() ? tr("Size", "status line; of what is dragged")
                                           : tr("Picture size", "status line"));
    fill(m_size, sizeText(m_dragged.isValid() ? m_dragged : size));
    fill(m_zoom, wording::percent(zoom.percent()));
    fill(m_position, m_isOver || pen ? positionText(at) : QString());
}

/// A cut number would be another one.
void StatusLine::fitFont(QLabel& field) const
{
    constexpr int smallest = 7; // pixels
    QFont fitting = font();
    for (int size = QFontInfo(fitting).pixelSize();
         size > smallest && QFontMetrics(fitting).horizontalAdvance(field.text()) > field.width(); --size)
        fitting.setPixelSize(size - 1);
    if (field.font() != fitting)
        field.setFont(fitting);
}

/// A screen reader hears the value behind its meaning.
void StatusLine::fill(QLabel* field, const QString& value) const
{
    field->setText(value);
    fitFont(*field);
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
    else if (m_sinceRefresh.hasExpired(pace)) // a running timer would cost every event of a stroke
        refresh();
    return false;
}

} // namespace pad
