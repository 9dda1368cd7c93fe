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
    /// Gives a tool that is new in the set the last row of the tool pop-up.
    void addTool(int tool);
    /// Shows a tool that has a row in the tool pop-up: its icon on the button, its row checked.
    void showTool(int tool);
    /// Shows a row of the option pop-up; any other number shows none.
    void showOption(int entry);
    void showColor(const QColor& color);

    /// Fills the option pop-up with a tool's options; empty for tools without.
    void loadOptions(int tool);
    /// The identifier of an entry of the option pop-up. The entry must exist.
    [[nodiscard]] int optionId(int entry) const;

private:
    KORVA_EditCanvas& m_editor;
    const KORVA_ToolSet& m_tools;
    QPushButton* m_toolButton;
    QPushButton* m_optionButton;
    QMenu* m_optionMenu;
    UTIL_ComboBox* m_zoomBox;
    QPushButton* m_colorButton;
    int m_optionTool = 0; ///< whose options the pop-up has
};
