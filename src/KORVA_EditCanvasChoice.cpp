#include "KORVA_EditCanvas.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_ColorName.h"
#include "KORVA_ColorPicker.h"
#include "KORVA_Manager.h"
#include "KORVA_Text.h"
#include "KORVA_Tool.h"
#include "KORVA_ToolBar.h"
#include "KORVA_ToolChoice.h"
#include "KORVA_ToolSet.h"
#include "KORVA_ZoomChoice.h"
#include "UTIL_Platform.h"

#include <QCursor>
#include <QPointer>

#include <utility>

namespace {

int depthOf(KORVA_COLORTYPE type)
{
    static constexpr int depths[] = {1, 4, 8, 16}; // by KORVA_COLORTYPE
    return depths[qBound(0, int(type), int(std::size(depths)) - 1)];
}

} // namespace

// What is chosen, in the controls or by a host: tool, option, zoom and colour.

void KORVA_EditCanvas::slotSelChangeTool(int menuId)
{
    m_toolChoice->selectEntry(menuId);
}

void KORVA_EditCanvas::slotSelChangeToolOptions(int menuId)
{
    m_toolChoice->selectOptionEntry(menuId);
}

void KORVA_EditCanvas::slotSelZoomRate(int index)
{
    if (features().zooms.isEmpty())
        return;
    m_zoomChoice->select(index);
    emit chosen(KORVA_CHOICE_ZOOM, index);
}

void KORVA_EditCanvas::selectTool(int tool)
{
    m_toolChoice->select(tool);
}

void KORVA_EditCanvas::selectOption(int option)
{
    m_toolChoice->selectOption(option);
}

void KORVA_EditCanvas::selectZoom(int index)
{
    if (m_zoomChoice->show(index))
        slotSelZoomRate(index);
}

void KORVA_EditCanvas::stepZoom(int direction)
{
    m_zoomChoice->step(direction);
}

int KORVA_EditCanvas::addTool(std::unique_ptr<KORVA_Tool> tool, const QIcon& icon, const QString& name,
                              const QList<KORVA_ToolOption>& options)
{
    if (!tool)
        return -1;
    m_tools->add(icon, name, options);
    const int id = m_manager->addTool(std::move(tool));
    m_toolBar->offer();
    return id;
}

QString KORVA_EditCanvas::nameOfTool(int tool) const
{
    return m_tools->name(tool);
}

int KORVA_EditCanvas::tool() const
{
    return m_toolChoice->tool();
}

int KORVA_EditCanvas::option() const
{
    return m_toolChoice->option();
}

void KORVA_EditCanvas::loadToolOptions(int tool)
{
    m_toolBar->loadOptions(tool);
}

void KORVA_EditCanvas::setRubberCursor(int width, int rate)
{
    const QPixmap paper = classic::filled(QSize(width, width), Qt::white)
                              .transformed(QTransform::fromScale(rate / 100.0, rate / 100.0));
    QPixmap cursor = classic::filled(paper.size() + QSize(2, 2), Qt::black);
    classic::bitBlt(&cursor, 1, 1, paper);
    canvas()->setCursor(QCursor(cursor, 0, 0));
}

void KORVA_EditCanvas::slotColor()
{
    if (!features().colors || !mayEdit())
        return;
    const QPointer<KORVA_EditCanvas> self = this; // the picker runs an event loop
    const int cancellations = m_cancellations;
    const std::optional<QColor> hosts =
        UTIL_Platform::instance()->pickColor(this, m_color, depthOf(m_colorType));
    if (!self || cancellations != m_cancellations)
        return;
    const QColor picked = hosts ? *hosts : KORVA_ColorPicker::getColor(m_colorType, m_color, this, nullptr);
    if (!self || cancellations != m_cancellations)
        return;
    setColor(picked);
    emit chosen(KORVA_CHOICE_COLOR, 0);
}

void KORVA_EditCanvas::setColor(const QColor& color)
{
    if (!color.isValid())
        return;
    const bool isOther = std::exchange(m_color, color) != color;
    fillColorButton(m_color);
    m_manager->setLMBColor(m_color);
    if (KORVA_Text* text = currentText())
        text->colorChanged();
    if (isOther)
        emit colorChanged(m_color);
}

void KORVA_EditCanvas::setOutlineColor(const QColor& color)
{
    m_outlineColor = color;
    m_toolChoice->updateEdge();
}

void KORVA_EditCanvas::setBold(bool bold)
{
    if (auto* const text = qobject_cast<KORVA_Text*>(m_manager->tool(KORVA_TOOL_TEXT)))
        text->setBold(bold);
    m_toolBar->showBold();
}

bool KORVA_EditCanvas::isBold() const
{
    const auto* const text = qobject_cast<KORVA_Text*>(m_manager->tool(KORVA_TOOL_TEXT));
    return text && text->isBold();
}

void KORVA_EditCanvas::fillColorButton(const QColor& color)
{
    m_toolBar->showColor(color);
}

QString KORVA_EditCanvas::colorName(const QColor& color)
{
    return colorname::spoken(color);
}

int KORVA_EditCanvas::zoomIndex() const
{
    return m_zoomChoice->shown();
}
