#include "KORVA_ToolTable.h"

#include "KORVA_AreaSelect.h"
#include "KORVA_Drag.h"
#include "KORVA_Ellipse.h"
#include "KORVA_Line.h"
#include "KORVA_Pen.h"
#include "KORVA_Rectangle.h"
#include "KORVA_Rubber.h"
#include "KORVA_Text.h"

#include <QCoreApplication>

namespace KORVA_ToolTable {

namespace {

template <typename Tool>
std::unique_ptr<KORVA_Tool> make(const QString& name)
{
    return std::make_unique<Tool>(name);
}

// "7pt" and the like in the icons are only labels: the text tool turns these widths into 12, 16 and 20
// points.
constexpr OptionRow sizes[] = {
    {"DaApV_Line_Tool_Opt_S.gif", 1, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Small", "tool option")},
    {"DaApV_Line_Tool_Opt_M.gif", 3, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Medium", "tool option")},
    {"DaApV_Line_Tool_Opt_L.gif", 5, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Large", "tool option")},
};
constexpr OptionRow eraserSizes[] = {
    {"DaApV_Eraser_Tool_Opt_S.gif", 1, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Small", "tool option")},
    {"DaApV_Eraser_Tool_Opt_M.gif", 3, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Medium", "tool option")},
    {"DaApV_Eraser_Tool_Opt_L.gif", 5, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Large", "tool option")},
};
constexpr OptionRow textSizes[] = {
    {"DaApV_Text_Tool_Opt_7pt.gif", 1, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "7 point", "tool option")},
    {"DaApV_Text_Tool_Opt_9pt.gif", 3, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "9 point", "tool option")},
    {"DaApV_Text_Tool_Opt_11pt.gif", 5, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "11 point", "tool option")},
};
constexpr OptionRow selectionModes[] = {
    {"DaApV_Sel_Tool_Opt_Rect.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Select area", "tool option")},
    {"DaApV_Sel_Tool_Opt_Hand.gif", 0, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Move view", "tool option")},
};
constexpr OptionRow rectangleFills[] = {
    {"DaApV_Rectangle_Tool_Opt_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Outline", "tool option")},
    {"DaApV_Rectangle_Tool_Opt_N_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Filled", "tool option")},
};
constexpr OptionRow ellipseFills[] = {
    {"DaApV_Ellipse_Tool_Opt_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Outline", "tool option")},
    {"DaApV_Ellipse_Tool_Opt_N_Border.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Filled", "tool option")},
};

// Behind those of both shapes.
constexpr OptionRow rectangleEdges[] = {
    {"DaApV_Rectangle_Tool_Opt_Thin.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Thin edge", "tool option; around what is filled")},
    {"DaApV_Rectangle_Tool_Opt_Thick.gif", 3,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Thick edge", "tool option; around what is filled")},
};
constexpr OptionRow ellipseEdges[] = {
    {"DaApV_Ellipse_Tool_Opt_Thin.gif", 1,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Thin edge", "tool option; around what is filled")},
    {"DaApV_Ellipse_Tool_Opt_Thick.gif", 3,
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Thick edge", "tool option; around what is filled")},
};

constexpr ToolRow rows[] = {
    // The row's number is the tool's identifier.
    {make<KORVA_Pen>, "Pencil", "pencil", QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Pencil", "tool"), 3,
     "DaApV_Pencil_Tool.gif", Option::Size, sizes},
    {make<KORVA_AreaSelect>, "Area Select", "select",
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Select", "tool"), 0, "DaApV_Selection_Tool.gif",
     Option::SelectionMode, selectionModes},
    {make<KORVA_Line>, "Line", "line", QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Line", "tool"), 2,
     "DaApV_Line_Tool.gif", Option::Size, sizes},
    {make<KORVA_Text>, "Text", "text", QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Text", "tool"), 4,
     "DaApV_Text_Tool.gif", Option::Size, textSizes},
    {make<KORVA_Rectangle>, "Rectangle", "rectangle",
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Rectangle", "tool"), 5, "DaApV_Rectangle_Tool.gif",
     Option::Fill, rectangleFills, rectangleEdges},
    {make<KORVA_Ellipse>, "Ellipse", "ellipse", QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Ellipse", "tool"),
     6, "DaApV_Ellipse_Tool.gif", Option::Fill, ellipseFills, ellipseEdges},
    {make<KORVA_Rubber>, "Rubber", "eraser", QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Eraser", "tool"), 1,
     "DaApV_Eraser_Tool.gif", Option::Size, eraserSizes},
    {make<KORVA_Drag>,
     "Drag",
     "hand",
     QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Hand", "tool"),
     noPlace,
     nullptr,
     Option::None,
     {}},
};

} // namespace

std::span<const ToolRow> tools()
{
    return rows;
}

const ToolRow* toolRow(int tool)
{
    return tool >= 0 && tool < int(std::size(rows)) ? &rows[tool] : nullptr;
}

int toolAt(int place)
{
    for (const ToolRow& row : rows) {
        if (place != noPlace && row.place == place)
            return int(&row - rows);
    }
    return -1;
}

int firstOptionId(int tool)
{
    int id = optionMenuBase;
    for (int before = 0; before < qMin(tool, int(std::size(rows))); ++before)
        id += int(rows[before].options.size());
    return id;
}

} // namespace KORVA_ToolTable
