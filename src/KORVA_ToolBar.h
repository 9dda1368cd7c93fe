#pragma once

class KORVA_EditCanvas;
class KORVA_ToolSet;
class QColor;
class QMenu;
class QPushButton;
class UTIL_ComboBox;

/// The editor's four controls as they look: the tool and the option button with their pop-ups, the zoom box
/// and the colour button. They are the editor's own children, and what is chosen in them goes to its slots.
class KORVA_ToolBar
{
public:
    /// The zoom box is empty, and no option is shown.
    KORVA_ToolBar(KORVA_EditCanvas& editor, const KORVA_ToolSet& tools);

    [[nodiscard]] UTIL_ComboBox& zoomBox() const { return *m_zoomBox; }

    /// Puts the controls where the editor's direction and size have them.
    void arrange();
    /// A tool that is new in the set gets the last row of the tool pop-up.
    void addTool(int tool);
    /// A tool that has a row in the tool pop-up: its icon on the button, its row checked.
    void showTool(int tool);
    /// A row of the option pop-up; another number shows none.
    void showOption(int entry);
    void showColor(const QColor& color);

    /// Fills the option pop-up with a tool's options; empty for tools without.
    void loadOptions(int tool);
    /// The identifier of an entry of the option pop-up, which has to exist.
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
