#pragma once

#include <QWidget>

class KORVA_EditCanvas;

namespace pad {

class Commands;
class Document;
class SoftKey;
class StatusLine;

/// The window of the device: the editor, the status line and two soft keys.
class PadWindow : public QWidget
{
    Q_OBJECT

public:
    PadWindow();

    [[nodiscard]] KORVA_EditCanvas& editor() const { return *m_editor; }
    [[nodiscard]] Document& document() const { return *m_document; }
    [[nodiscard]] Commands& commands() const { return *m_commands; }

    /// The window as it is on screen, at its scale.
    [[nodiscard]] QImage screenshot();

private:
    void openMenu();
    void updateContextKey();
    void updateTitle();

    KORVA_EditCanvas* m_editor;
    Document* m_document;
    Commands* m_commands;
    StatusLine* m_status;
    SoftKey* m_menuKey;
    SoftKey* m_contextKey;
};

} // namespace pad
