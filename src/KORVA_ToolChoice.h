#pragma once

#include "KORVA_ToolTable.h"
#include "KORVA_Types.h"

#include <QHash>

#include <optional>

class KORVA_EditCanvas;
class KORVA_ToolBar;
class KORVA_ToolSet;

/// Which tool and which option of it are chosen: what the tool bar shows of it, what the manager gets, and
/// what is remembered for the next tool that has the same option. Small, medium and large are one choice
/// for all that have a size; a host's own tools keep their options to themselves.
///
/// Who hears a signal meanwhile may choose another tool, which then stands.
class KORVA_ToolChoice
{
public:
    /// The pencil in its first option, as the manager begins with. Neither is owned; the editor needs its
    /// manager with the first call.
    KORVA_ToolChoice(KORVA_EditCanvas& editor, KORVA_ToolBar& bar, const KORVA_ToolSet& tools);

    /// An entry of the tool pop-up; another number is the line.
    void selectEntry(int menuId);
    /// An entry of the option pop-up; another number is the tool's last option.
    void selectOptionEntry(int menuId);
    /// A tool by its identifier; nothing for none.
    void select(int tool);
    /// An option by its row; nothing for none.
    void selectOption(int row);
    /// The select tool, set to frame an area and not to move the view; nobody has chosen it.
    void selectAreaTool();
    /// As the constructor left it; the manager has been reset before.
    void reset();

    /// Chooses the eraser for a while, as a person does in the pop-up; nothing where it is chosen already.
    void lendEraser();
    /// Chooses the tool again that lendEraser() found, unless another than the eraser is chosen by now.
    void takeEraserBack();

    [[nodiscard]] int tool() const { return m_tool; }
    /// -1 for a tool without options.
    [[nodiscard]] int option() const;

    /// The cursor of the eraser as large as the eraser and the zoom make it; nothing with other tools.
    void updateRubberCursor();

private:
    struct Remembered
    {
        int selectionMode = 0; ///< 0 rectangle, 1 hand
        int size = 0;          ///< 0 small, 1 medium, 2 large
        int fill = 0;          ///< 0 outline, 1 filled
        QHash<int, int> own;   ///< of a host's tools, by their identifiers
    };

    void selectTool(int tool);
    void applyOption(int menuId);
    [[nodiscard]] static int Remembered::*memory(KORVA_ToolTable::Option option);
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
    int m_toldTool = 0;                ///< what listeners know
    int m_toldOption = 0;
    int m_tool = 0;    ///< the identifier in the manager; 7 while select is in hand mode
    int m_choices = 0; ///< of a tool, counted
    bool m_isChangingPen = false;
};
