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
    const int wanted = tool >= 0 ? tool : int(tables::Line);
    if (!m_tools.inOrder().contains(wanted))
        return;
    selectTool(wanted);
    tellChoice(KORVA_CHOICE_TOOL);
}

void KORVA_ToolChoice::select(int tool)
{
    if (!m_tools.isOffered(tool))
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
    selectTool(m_tools.isOffered(tables::Pencil) ? int(tables::Pencil) : firstTool());
    tellChanges();
}

/// The first of the tool pop-up. The hand, which changes nothing, when there is none.
int KORVA_ToolChoice::firstTool()
{
    const QList<int> tools = m_tools.inOrder();
    if (tools.isEmpty())
        m_remembered.selectionMode = KORVA_OPTION_HAND;
    return tools.value(0, tables::AreaSelect);
}

void KORVA_ToolChoice::offer()
{
    const QList<int> tools = m_tools.inOrder();
    const int tool = optionTool();
    const bool isIdle = m_tool == tables::Drag && tools.isEmpty();
    if (!tools.contains(tool) && !isIdle) {
        selectTool(firstTool());
    } else if (tools.contains(tool)) {
        m_bar.loadOptions(tool);
        const int row = option();
        const int width = row >= 0 ? m_tools.penWidth(tool, row) : 0;
        const bool isOtherWidth =
            width > 0 && width != m_editor.manager()->currentTool()->leftPen().width();
        if (row != m_toldOption || (isOtherWidth && m_tool != tables::Drag))
            applyOption(m_tools.firstOptionEntry(tool) + row);
        else
            m_bar.showOption(row);
    }
    tellChanges();
}

void KORVA_ToolChoice::selectOptionEntry(int menuId)
{
    if (!m_tools.inOrder().contains(optionTool()))
        return;
    if (menuId == tables::boldEntry && m_tools.offersBold(m_tool)) {
        m_editor.setBold(!m_editor.isBold());
        emit m_editor.chosen(KORVA_CHOICE_BOLD, m_editor.isBold() ? 1 : 0);
        return;
    }
    applyOption(menuId);
    tellChoice(KORVA_CHOICE_OPTION);
}

void KORVA_ToolChoice::selectOption(int row)
{
    const int tool = optionTool();
    if (m_tools.isOptionOffered(tool, row))
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
    applyOption(m_tools.firstOptionEntry(tool) + remembered(tool));
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

bool KORVA_ToolChoice::sharesMemory(int tool) const
{
    const tables::ToolRow* const row = tables::toolRow(tool);
    const bool isApart = row && row->option == tables::Option::Size && m_editor.manners().ownSizes;
    return row && !isApart && !m_tools.hasOwnOptions(tool);
}

/// Of the options that are offered; of all if there is nothing to choose from.
int KORVA_ToolChoice::remembered(int tool) const
{
    const int option = sharesMemory(tool) ? m_remembered.*memory(tables::toolRow(tool)->option)
                                          : m_remembered.own.value(tool);
    for (int row = 0; row < m_tools.optionCount(tool) && !m_tools.isOptionOffered(tool, option); ++row) {
        if (m_tools.isOptionOffered(tool, row))
            return row;
    }
    return option;
}

void KORVA_ToolChoice::remember(int tool, int option)
{
    if (sharesMemory(tool))
        m_remembered.*memory(tables::toolRow(tool)->option) = option;
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
    const int wanted = entry >= 0 && entry < last ? entry : last;
    const bool isChoice = m_tools.isOptionOffered(tool, wanted) || m_tools.inOrder().isEmpty();
    const int value = wanted < 0 || isChoice ? wanted : remembered(tool);
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
    updateEdge();
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

void KORVA_ToolChoice::updateEdge()
{
    m_editor.manager()->setEdgeColor(m_tools.isEdged(m_tool, option()) ? m_editor.outlineColor()
                                                                       : QColor());
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
