#pragma once

class KORVA_EditCanvas;
class KORVA_ToolSet;
class QColor;
class QMenu;
class QPushButton;
class UTIL_ComboBox;

/// The editor's four controls: the tool and the option button with their pop-ups, the zoom box and the
/// colour button. They are the editor's own children, and choices in them go to its slots.
class KORVA_ToolBar
{
public:
    /// Begins with an empty zoom box and no option.
    KORVA_ToolBar(KORVA_EditCanvas& editor, const KORVA_ToolSet& tools);

    [[nodiscard]] UTIL_ComboBox& zoomBox() const { return *m_zoomBox; }

    /// Puts the controls where the editor's direction and size want them.
    void arrange();
    /// Shows the controls that are offered, and in the tool pop-up the tools that are. The option pop-up
    /// follows with loadOptions().
    void offer();
    /// Shows a tool that has a row in the tool pop-up: its icon on the button, its row checked.
    void showTool(int tool);
    /// Shows an option of the tool that the pop-up has; any other number shows none.
    void showOption(int entry);
    void showColor(const QColor& color);
    /// Shows whether letters are bold, where that can be chosen.
    void showBold();

    /// Fills the option pop-up with the options of a tool that are offered; empty for tools without.
    void loadOptions(int tool);

private:
    void giveKeyboardToText() const;

    KORVA_EditCanvas& m_editor;
    const KORVA_ToolSet& m_tools;
    QPushButton* m_toolButton;
    QPushButton* m_optionButton;
    QMenu* m_optionMenu;
    UTIL_ComboBox* m_zoomBox;
    QPushButton* m_colorButton;
    int m_tool = 0;       ///< that the button shows
    int m_optionTool = 0; ///< whose options the pop-up has
};
