#pragma once

#include <QWidget>

class KORVA_EditCanvas;
class QAction;
class UTIL_PushButton;

namespace pad {

class Colors;
class Commands;
class Documents;
class Platform;
class SidePanel;
class StatusLine;

/// The window of korva-pad: the editor, the status line and two soft keys. It may be larger than the
/// device's 240 × 320, and a large one has tools and colours beside the editor; F11 makes it fill its
/// screen.
class PadWindow : public QWidget
{
    Q_OBJECT

public:
    /// Opens a picture at once; an empty name means a new drawing. If the picture cannot be opened, the
    /// editor tells why and has no file name.
    explicit PadWindow(Platform& platform, const QString& picture = {});

    [[nodiscard]] KORVA_EditCanvas& editor() const { return *m_editor; }
    [[nodiscard]] Commands& commands() const { return *m_commands; }
    [[nodiscard]] Colors& colors() const { return *m_colors; }
    [[nodiscard]] Documents& documents() const { return *m_documents; }

    /// The window as it is on screen, at its scale.
    [[nodiscard]] QImage screenshot();

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Accepts picture files, which are opened when dropped, or with Shift laid over the drawing.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    UTIL_PushButton* addKey(const QString& text);
    void arrange();
    void addPanel();
    void openMenu();
    void updateContextKey();
    void updateTitle();

    KORVA_EditCanvas* m_editor;
    Documents* m_documents;
    Commands* m_commands;
    StatusLine* m_status;
    Colors* m_colors;
    SidePanel* m_panel = nullptr; ///< made when the window is first large enough
    UTIL_PushButton* m_menuKey;
    UTIL_PushButton* m_contextKey;
};

} // namespace pad
