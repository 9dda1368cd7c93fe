#pragma once

#include <QObject>

class KORVA_EditCanvas;
class QAbstractButton;
class QComboBox;
class QMenu;

namespace pad {

struct Command;

/// The editor's own controls, worked and watched as a person does: tool, option, zoom and colour.
class EditorControls : public QObject
{
    Q_OBJECT

public:
    explicit EditorControls(KORVA_EditCanvas& editor, QObject* parent = nullptr);

    /// `tool` is the identifier; the hand is reached through select.
    void chooseTool(int tool);
    /// False where the tool has no such option.
    bool chooseOption(int option);
    /// `index` counts in the zoom box.
    void chooseZoom(int index);

    /// The index in the zoom box.
    [[nodiscard]] int zoom() const;
    /// Lets the person pick a colour.
    void pickColor();

signals:
    /// Something was chosen, by whomever; it is in force already.
    void chosen(const pad::Command& command);

private:
    void watch();
    void announceTool();

    KORVA_EditCanvas& m_editor;
    QMenu* m_tools; // the editor's own, as the others
    QMenu* m_options;
    QComboBox* m_zooms;
    QAbstractButton* m_color;
};

} // namespace pad
