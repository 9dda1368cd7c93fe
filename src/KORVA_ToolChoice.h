#pragma once

#include "KORVA_ToolTable.h"
#include "KORVA_Types.h"

#include <QHash>

#include <optional>

class KORVA_EditCanvas;
class KORVA_ToolBar;
class KORVA_ToolSet;

/// The chosen tool and its option. It shows them in the tool bar, hands them to the manager, and remembers
/// the option for the next tool that has the same one. Small, medium and large are one choice for all tools
/// that have a size; a host's own tools keep their options to themselves.
///
/// A slot of a signal that is emitted meanwhile may choose another tool; that choice stays.
class KORVA_ToolChoice
{
public:
    /// Begins with the pencil in its first option, as the manager does. Owns none of its arguments. The
    /// editor needs its manager from the first call on.
    KORVA_ToolChoice(KORVA_EditCanvas& editor, KORVA_ToolBar& bar, const KORVA_ToolSet& tools);

    /// Chooses an entry of the tool pop-up; any other number means the line.
    void selectEntry(int menuId);
    /// Chooses an entry of the option pop-up; any other number means the tool's last option.
    void selectOptionEntry(int menuId);
    /// Chooses a tool by its identifier. Does nothing if there is no such tool.
    void select(int tool);
    /// Chooses an option by its row. Does nothing if there is no such row.
    void selectOption(int row);
    /// Takes another colour for the outlines of filled shapes.
    void updateEdge();
    /// Makes the select tool current, to frame an area and not to move the view. Does not emit chosen().
    void selectAreaTool();
    /// Returns to the constructor's choice, as far as it is offered. The manager has been reset before.
    void reset();
    /// Something else is offered now: what is in force and no longer offered gives way.
    void offer();

    /// Chooses the eraser for a while, as a person does in the pop-up. Does nothing if it is chosen
    /// already.
    void lendEraser();
    /// Chooses the tool before lendEraser() again, unless one other than the eraser has been chosen by now.
    void takeEraserBack();

    [[nodiscard]] int tool() const { return m_tool; }
    /// -1 for a tool without options.
    [[nodiscard]] int option() const;

    /// Sets the eraser's cursor, in the size that eraser and zoom give it. Does nothing with other tools.
    void updateRubberCursor();

private:
    struct Remembered
    {
        int selectionMode = 0; ///< 0 rectangle, 1 hand
        int size = 0;          ///< 0 small, 1 medium, 2 large
        int fill = 0;          ///< 0 outline, 1 filled
        QHash<int, int> own;   ///< of a host's tools, by their identifiers
    };

    int firstTool();
    void selectTool(int tool);
    void applyOption(int menuId);
    [[nodiscard]] static int Remembered::*memory(KORVA_ToolTable::Option option);
    /// Whether the option is one choice for all tools with the same kind.
    [[nodiscard]] bool sharesMemory(int tool) const;
    [[nodiscard]] int remembered(int tool) const;
    void remember(int tool, int option);
    [[nodiscard]] int optionTool() const;
    void tellChanges();
    void tellChoice(KORVA_CHOICETYPE what);

    KORVA_EditCanvas& m_editor;
    KORVA_ToolBar& m_bar;
    const KORVA_ToolSet& m_tools;
    Remembered m_remembered;
    std::optional<int> m_beforeEraser; ///< the tool, while the eraser is lent
    int m_toldTool = 0;                ///< the tool last announced by a signal
    int m_toldOption = 0;
    int m_tool = 0;    ///< the identifier in the manager; 7 while select is in hand mode
    int m_choices = 0; ///< how many choices of a tool there were
    bool m_isChangingPen = false;
};
