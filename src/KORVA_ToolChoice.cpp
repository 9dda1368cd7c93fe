#include "KORVA_ToolChoice.h"

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Manager.h"
#include "KORVA_Text.h"
#include "KORVA_ToolBar.h"
#include "KORVA_ToolTable.h"

#include <QScopedValueRollback>

#include <span>

namespace tables = KORVA_ToolTable;

KORVA_ToolChoice::KORVA_ToolChoice(KORVA_EditCanvas& editor, KORVA_ToolBar& bar)
    : m_editor(editor), m_bar(bar)
{
    m_bar.showTool(tables::Pencil);
    m_bar.loadOptions(tables::Pencil);
    m_bar.showOption(0);
}

void KORVA_ToolChoice::selectEntry(int menuId)
{
    const int tool = tables::toolAt(menuId - tables::toolMenuBase);
    selectTool(tool >= 0 ? tool : int(tables::Line));
}

void KORVA_ToolChoice::selectAreaTool()
{
    m_remembered.selectionMode = 0;
    selectTool(tables::AreaSelect);
}

void KORVA_ToolChoice::selectTool(int tool)
{
    const int choice = ++m_choices; // a host that hears of it may choose another one, which stands
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
    selectOption(m_bar.optionId(remembered(tool)));
}

int& KORVA_ToolChoice::remembered(int tool)
{
    switch (tables::toolRow(tool)->option) {
    case tables::Option::SelectionMode:
        return m_remembered.selectionMode;
    case tables::Option::Fill:
        return m_remembered.fill;
    default:
        return m_remembered.size;
    }
}

void KORVA_ToolChoice::selectOption(int menuId)
{
    KORVA_Manager* const manager = m_editor.manager();
    manager->setLMBColor(m_editor.color());

    // The hand is the select tool's other half. What is none of a tool's options counts as its last one.
    const int tool = m_tool == tables::Drag ? int(tables::AreaSelect) : m_tool;
    const std::span<const tables::OptionRow> options = tables::toolRow(tool)->options;
    const int entry = menuId - tables::firstOptionId(tool);
    const int last = int(options.size()) - 1;
    const int value = entry >= 0 && entry < last ? entry : last;
    const tables::OptionRow& chosen = options[std::size_t(value)];

    const int choice = m_choices;
    remembered(tool) = value;
    if (tool == tables::AreaSelect) {
        m_tool = value == 0 ? tables::AreaSelect : tables::Drag;
        if (m_tool == tables::AreaSelect) {
            manager->setPenWidth(chosen.penWidth);
            manager->setLMBColor(Qt::black);
            manager->setBrush(Qt::NoBrush);
        }
        manager->setCurrentTool(m_tool);
    } else {
        manager->setPenWidth(chosen.penWidth);
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

void KORVA_ToolChoice::updateRubberCursor()
{
    KORVA_Manager* const manager = m_editor.manager();
    if (manager->currentToolID() == tables::Eraser)
        m_editor.setRubberCursor(manager->currentTool()->leftPen().width(), m_editor.canvas()->zoom());
}
