#pragma once

#include <QCoreApplication>
#include <QtGlobal>

/// What the tool button and the option button offer, as tables. A row's menu identifier is its number plus
/// the table's base; no identifier is 0, -1 or a tool's number.
namespace KORVA_ToolTable {

/// The identifiers of the tools in the manager.
enum ToolId : int { Pencil, AreaSelect, Line, Text, Rectangle, Ellipse, Eraser, Drag };

/// What the editor remembers of the options, shared by all tools that have the same one.
enum class Option { Size, Fill, SelectionMode };

constexpr int toolMenuBase = 100;
constexpr int optionMenuBase = 200;

/// As a person reads and hears it.
struct Name
{
    const char* text;
    const char* comment; ///< for the translation
};

struct ToolRow
{
    int tool;
    const char* icon;
    Option option;
    Name name;
};

/// In the order of the tool pop-up.
constexpr ToolRow tools[] = {
    {AreaSelect, "DaApV_Selection_Tool.gif", Option::SelectionMode,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Select", "tool")},
    {Eraser, "DaApV_Eraser_Tool.gif", Option::Size,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Eraser", "tool")},
    {Line, "DaApV_Line_Tool.gif", Option::Size, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Line", "tool")},
    {Pencil, "DaApV_Pencil_Tool.gif", Option::Size,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Pencil", "tool")},
    {Text, "DaApV_Text_Tool.gif", Option::Size, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Text", "tool")},
    {Rectangle, "DaApV_Rectangle_Tool.gif", Option::Fill,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Rectangle", "tool")},
    {Ellipse, "DaApV_Ellipse_Tool.gif", Option::Fill,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Ellipse", "tool")},
};

struct OptionRow
{
    int tool;
    int value; ///< what is remembered of the tool's option; the rows of a tool count from 0
    const char* icon;
    int penWidth; ///< 0 leaves the manager's alone
    Name name;
};

/// The rows of a tool stand together, in the order of its pop-up.
constexpr OptionRow options[] = {
    {Pencil, 0, "DaApV_Line_Tool_Opt_S.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Small", "tool option")},
    {Pencil, 1, "DaApV_Line_Tool_Opt_M.gif", 3,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Medium", "tool option")},
    {Pencil, 2, "DaApV_Line_Tool_Opt_L.gif", 5,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Large", "tool option")},
    {AreaSelect, 0, "DaApV_Sel_Tool_Opt_Rect.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Select area", "tool option")},
    {AreaSelect, 1, "DaApV_Sel_Tool_Opt_Hand.gif", 0,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Move view", "tool option")},
    {Line, 0, "DaApV_Line_Tool_Opt_S.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Small", "tool option")},
    {Line, 1, "DaApV_Line_Tool_Opt_M.gif", 3,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Medium", "tool option")},
    {Line, 2, "DaApV_Line_Tool_Opt_L.gif", 5,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Large", "tool option")},
    {Text, 0, "DaApV_Text_Tool_Opt_7pt.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "7 point", "tool option")},
    {Text, 1, "DaApV_Text_Tool_Opt_9pt.gif", 3,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "9 point", "tool option")},
    {Text, 2, "DaApV_Text_Tool_Opt_11pt.gif", 5,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "11 point", "tool option")},
    {Rectangle, 0, "DaApV_Rectangle_Tool_Opt_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Outline", "tool option")},
    {Rectangle, 1, "DaApV_Rectangle_Tool_Opt_N_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Filled", "tool option")},
    {Ellipse, 0, "DaApV_Ellipse_Tool_Opt_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Outline", "tool option")},
    {Ellipse, 1, "DaApV_Ellipse_Tool_Opt_N_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Filled", "tool option")},
    {Eraser, 0, "DaApV_Eraser_Tool_Opt_S.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Small", "tool option")},
    {Eraser, 1, "DaApV_Eraser_Tool_Opt_M.gif", 3,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Medium", "tool option")},
    {Eraser, 2, "DaApV_Eraser_Tool_Opt_L.gif", 5,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Large", "tool option")},
};

/// The row of a tool in the tool pop-up; null for none (the hand is an option of select).
[[nodiscard]] constexpr const ToolRow* toolRow(int tool)
{
    for (const ToolRow& row : tools) {
        if (row.tool == tool)
            return &row;
    }
    return nullptr;
}

} // namespace KORVA_ToolTable
