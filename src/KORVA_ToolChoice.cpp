#include "KORVA_ToolChoice.h"

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Manager.h"
#include "KORVA_Text.h"
#include "KORVA_ToolBar.h"
#include "KORVA_ToolSet.h"
#include "KORVA_ToolTable.h"

#include <QScopedValueRollback>

#include <utility>

namespace tables = KORVA_ToolTable;

KORVA_ToolChoice::KORVA_ToolChoice(KORVA_EditCanvas& editor, KORVA_ToolBar& bar, const KORVA_ToolSet& tools)
    : m_editor(editor), m_bar(bar), m_tools(tools)
{
    m_bar.showTool(tables::Pencil);
    m_bar.loadOptions(tables::Pencil);
    m_bar.showOption(0);
}

void KORVA_ToolChoice::selectEntry(int menuId)
{
    const int tool = m_tools.toolOfEntry(menuId);
    selectTool(tool >= 0 ? tool : int(tables::Line));
    tellChoice(KORVA_CHOICE_TOOL);
}

void KORVA_ToolChoice::select(int tool)
{
    if (!m_tools.has(tool))
        return;
    if (tool == tables::AreaSelect || tool == tables::Drag)
        m_remembered.selectionMode = tool == tables::Drag ? KORVA_OPTION_HAND : KORVA_OPTION_AREA;
    selectTool(tool == tables::Drag ? int(tables::AreaSelect) : tool);
    tellChoice(KORVA_CHOICE_TOOL);
}

void KORVA_ToolChoice::selectAreaTool()
{
    m_remembered.selectionMode = KORVA_OPTION_AREA;
    selectTool(tables::AreaSelect);
    tellChanges();
}

void KORVA_ToolChoice::reset()
{
    m_remembered = {};
    selectTool(tables::Pencil);
    tellChanges();
}

void KORVA_ToolChoice::selectOptionEntry(int menuId)
{
    applyOption(menuId);
    tellChoice(KORVA_CHOICE_OPTION);
}

void KORVA_ToolChoice::selectOption(int row)
{
    const int tool = optionTool();
    if (row >= 0 && row < m_tools.optionCount(tool))
        selectOptionEntry(m_tools.firstOptionEntry(tool) + row);
}

// The hand is the select tool's other half.
int KORVA_ToolChoice::optionTool() const
{
    return m_tool == tables::Drag ? int(tables::AreaSelect) : m_tool;
}

int KORVA_ToolChoice::option() const
{
    const int tool = optionTool();
    return m_tools.optionCount(tool) > 0 ? remembered(tool) : -1;
}

void KORVA_ToolChoice::tellChoice(KORVA_CHOICETYPE what)
{
    tellChanges();
    const bool isMode = optionTool() == tables::AreaSelect;
    if (what == KORVA_CHOICE_TOOL || isMode)
        emit m_editor.chosen(KORVA_CHOICE_TOOL, m_tool);
    else
        emit m_editor.chosen(KORVA_CHOICE_OPTION, option());
}

void KORVA_ToolChoice::tellChanges()
{
    const int tool = m_tool;
    const bool isOtherTool = std::exchange(m_toldTool, tool) != tool;
    if (isOtherTool)
        emit m_editor.toolChanged(tool);
    if (tool != m_tool)
        return; // a slot chose another one, and all is announced
    const bool isOtherOption = std::exchange(m_toldOption, option()) != option();
    if (isOtherTool || isOtherOption)
        emit m_editor.optionChanged(option());
}

void KORVA_ToolChoice::selectTool(int tool)
{
    const int choice = ++m_choices; // a slot may choose another one, which stays
    m_bar.showTool(tool);
    if (KORVA_Text* text = m_editor.currentText(); text && tool != tables::Text) {
        text->clearOldCursor();
        text->paintProportionBuffer();
        text->resetBuffer();
    }
    if (choice != m_choices)
        return;
    m_tool = tool;
    emit m_editor.signalTextTool(tool == tables::Text);
    if (choice != m_choices)
        return;
    m_bar.loadOptions(tool);
    KORVA_Manager* const manager = m_editor.manager();
    QObject::connect(manager->tool(tool), &KORVA_Tool::TextToolClicked, &m_editor,
                     &KORVA_EditCanvas::TextToolClicked, Qt::UniqueConnection);
    manager->setCurrentTool(tool);
    if (choice != m_choices) {
        updateRubberCursor();
        return;
    }
    applyOption(m_bar.optionId(remembered(tool)));
}

int KORVA_ToolChoice::Remembered::*KORVA_ToolChoice::memory(tables::Option option)
{
    switch (option) {
    case tables::Option::SelectionMode:
        return &Remembered::selectionMode;
    case tables::Option::Fill:
        return &Remembered::fill;
    default:
        return &Remembered::size;
    }
}

int KORVA_ToolChoice::remembered(int tool) const
{
    const tables::ToolRow* const row = tables::toolRow(tool);
    return row ? m_remembered.*memory(row->option) : m_remembered.own.value(tool);
}

void KORVA_ToolChoice::remember(int tool, int option)
{
    if (const tables::ToolRow* const row = tables::toolRow(tool))
        m_remembered.*memory(row->option) = option;
    else
        m_remembered.own.insert(tool, option);
}

void KORVA_ToolChoice::applyOption(int menuId)
{
    KORVA_Manager* const manager = m_editor.manager();
    manager->setLMBColor(m_editor.color());

    const int tool = optionTool(); // any other number counts as its last one
    const int entry = menuId - m_tools.firstOptionEntry(tool);
    const int last = m_tools.optionCount(tool) - 1;
    const int value = entry >= 0 && entry < last ? entry : last;
    const int penWidth = value >= 0 ? m_tools.penWidth(tool, value) : 0;

    const int choice = m_choices;
    remember(tool, qMax(0, value));
    if (tool == tables::AreaSelect) {
        m_tool = value == 0 ? tables::AreaSelect : tables::Drag;
        if (m_tool == tables::AreaSelect) {
            manager->setPenWidth(penWidth);
            manager->setLMBColor(Qt::black);
            manager->setBrush(Qt::NoBrush);
        }
        manager->setCurrentTool(m_tool);
    } else if (penWidth > 0) {
        manager->setPenWidth(penWidth);
    }
    if (tool == tables::Rectangle || tool == tables::Ellipse)
        manager->setBrush(value == 0 ? Qt::NoBrush : Qt::SolidPattern);
    if (tool == tables::Eraser)
        manager->setLMBColor(Qt::white);
    if (KORVA_Text* text = m_editor.currentText();
        text && !text->getPaintPropotionStatus() && !m_isChangingPen) {
        const QScopedValueRollback isChangingPen(m_isChangingPen, true);
        text->penChanged();
    }
    updateRubberCursor();
    if (choice == m_choices)
        m_bar.showOption(value);
}

void KORVA_ToolChoice::lendEraser()
{
    if (m_tool == tables::Eraser)
        return;
    m_beforeEraser = m_tool;
    select(tables::Eraser);
}

void KORVA_ToolChoice::takeEraserBack()
{
    const auto before = std::exchange(m_beforeEraser, {});
    if (before && m_tool == tables::Eraser)
        select(*before);
}

void KORVA_ToolChoice::updateRubberCursor()
{
    KORVA_Manager* const manager = m_editor.manager();
    if (manager->currentToolID() == tables::Eraser)
        m_editor.setRubberCursor(manager->currentTool()->leftPen().width(), m_editor.canvas()->zoom());
}
