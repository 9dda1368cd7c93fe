#pragma once

#include "KORVA_Tool.h"

#include <memory>
#include <span>

/// The tools and all that is said of them: who adds one adds a row in KORVA_ToolTable.cpp.
namespace KORVA_ToolTable {

/// The identifiers: the numbers of the rows.
enum ToolId : int { Pencil, AreaSelect, Line, Text, Rectangle, Ellipse, Eraser, Drag };

/// What the editor remembers of the options, shared by all tools that have the same one.
enum class Option { None, Size, Fill, SelectionMode };

/// As a person reads and hears it.
struct Name
{
    const char* text;
    const char* comment; ///< for the translation
};

struct OptionRow
{
    const char* icon;
    int penWidth; ///< 0 leaves the manager's alone
    Name name;
};

struct ToolRow
{
    std::unique_ptr<KORVA_Tool> (*make)(const QString& name);
    const char* toolName; ///< KORVA_Tool::name()
    const char* word;     ///< in recordings
    Name name;
    int place; ///< in the tool pop-up; none for the hand, an option of select
    const char* icon;
    Option option;
    std::span<const OptionRow> options; ///< in the order of its pop-up
};

constexpr int noPlace = -1;

/// All rows.
[[nodiscard]] std::span<const ToolRow> tools();
/// The row of an identifier; null for none.
[[nodiscard]] const ToolRow* toolRow(int tool);

// What the pop-ups' entries carry: no identifier is 0, -1 or a tool's number.
constexpr int toolMenuBase = 100;
constexpr int optionMenuBase = 200;

/// The tool at a place of the tool pop-up; -1 for none.
[[nodiscard]] int toolAt(int place);
/// The identifier of a tool's first option's entry; those of its others follow.
[[nodiscard]] int firstOptionId(int tool);

} // namespace KORVA_ToolTable
