#pragma once

#include "KORVA_Tool.h"

#include <memory>
#include <span>

/// The table of the tools: their names, icons and options. To add a tool, add a row in KORVA_ToolTable.cpp.
namespace KORVA_ToolTable {

/// The identifiers: the numbers of the rows.
enum ToolId : int { Pencil, AreaSelect, Line, Text, Rectangle, Ellipse, Eraser, Drag };

/// The choices of options that the editor remembers. Tools with the same kind of option share it.
enum class Option { None, Size, Fill, SelectionMode };

/// A name for people to read and hear.
struct Name
{
    const char* text;
    const char* comment; ///< for the translation
};

struct OptionRow
{
    const char* icon;
    int penWidth; ///< 0 leaves the manager's width alone
    Name name;
};

struct ToolRow
{
    std::unique_ptr<KORVA_Tool> (*make)(const QString& name);
    const char* toolName; ///< KORVA_Tool::name()
    const char* word;     ///< its word in recordings
    Name name;
    int place; ///< in the tool pop-up; noPlace for the hand, which is an option of select
    const char* icon;
    Option option;
    std::span<const OptionRow> options;    ///< in the order of the option pop-up
    std::span<const OptionRow> edges = {}; ///< behind them with KORVA_Manners::outlinedShapes
};

constexpr int noPlace = -1;

/// All rows.
[[nodiscard]] std::span<const ToolRow> tools();
/// The row of an identifier; null for none.
[[nodiscard]] const ToolRow* toolRow(int tool);

// The identifiers of the pop-ups' entries start here, so that none is 0, -1 or a tool's number.
constexpr int toolMenuBase = 100;
constexpr int optionMenuBase = 200;
/// The entry that makes letters bold or plain.
constexpr int boldEntry = 99;

/// The tool at a place of the tool pop-up; -1 for none.
[[nodiscard]] int toolAt(int place);
/// The identifier of the entry of a tool's first option; those of its other options follow.
[[nodiscard]] int firstOptionId(int tool);

} // namespace KORVA_ToolTable
