#pragma once

class KORVA_EditCanvas;
class KORVA_ToolBar;

/// Which tool and which option of it are chosen: what the tool bar shows of it, what the manager gets, and
/// what is remembered for the next tool that has the same option. Small, medium and large are one choice
/// for all that have a size.
///
/// Who hears a signal meanwhile may choose another tool, which then stands.
class KORVA_ToolChoice
{
public:
    /// The pencil in its first option, as the manager begins with. Neither is owned; the editor needs its
    /// manager with the first call.
    KORVA_ToolChoice(KORVA_EditCanvas& editor, KORVA_ToolBar& bar);

    /// An entry of the tool pop-up; another number is the line.
    void selectEntry(int menuId);
    /// An entry of the option pop-up; another number is the tool's last option.
    void selectOption(int menuId);
    /// The select tool, set to frame an area and not to move the view.
    void selectAreaTool();

    /// The cursor of the eraser as large as the eraser and the zoom make it; nothing with other tools.
    void updateRubberCursor();

private:
    struct Remembered
    {
        int selectionMode = 0; ///< 0 rectangle, 1 hand
        int size = 0;          ///< 0 small, 1 medium, 2 large
        int fill = 0;          ///< 0 outline, 1 filled
    };

    void selectTool(int tool);
    [[nodiscard]] int& remembered(int tool);

    KORVA_EditCanvas& m_editor;
    KORVA_ToolBar& m_bar;
    Remembered m_remembered;
    int m_tool = 0;    ///< the identifier in the manager; 7 while select is in hand mode
    int m_choices = 0; ///< of a tool, counted
    bool m_isChangingPen = false;
};
