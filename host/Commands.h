#pragma once

#include "EditorControls.h"
#include "Recording.h"

#include <QObject>

#include <vector>

class KORVA_EditCanvas;
class QAction;
class QMenu;

namespace pad {

class Documents;
class Recovery;

/// The commands behind the menu, the keys and the right soft key, enabled as the editor says.
class Commands : public QObject
{
    Q_OBJECT

public:
    Commands(KORVA_EditCanvas& editor, Documents& documents, QWidget* window);

    /// Lets the person see the earlier drawings; null: there are none. Not owned.
    void setRecovery(Recovery* recovery);

    [[nodiscard]] QMenu* menu() const { return m_menu; }
    /// What the right soft key offers: the way back or, after an undo, forward again.
    [[nodiscard]] QAction* contextAction() const;

signals:
    /// A person chose something that a recording can hold; it is carried out already.
    void performed(const pad::Command& command);
    void contextActionChanged();

private:
    enum class Page;
    struct Entry;
    /// What must be there for a command to make sense.
    enum class Needs {
        Nothing,
        File,      ///< one behind the drawing
        Recovery,  ///< a folder of earlier drawings
        Undo,      ///< a change to take back
        Redo,      ///< a change taken back
        Selection, ///< a floating piece
        Clipboard, ///< a picture on it; taken for granted until somebody asks
    };
    struct Dependent
    {
        Needs needs;
        QAction* action; // the menu's
    };

    /// A tool or a zoom, checked while it is in force.
    struct Alternative
    {
        bool isTool;
        int number;
        QAction* action; // the menu's
    };

    void addEntries();
    void checkAlternatives();
    QAction* add(const Entry& entry, const QString& text, QMenu* page);
    void follow();
    void setAvailable(Needs what, bool available);
    bool updateClipboard();

    void perform(Verb verb);
    void removeSelection();
    void paste();
    void chooseTool(int tool);
    void chooseZoom(int index);
    void showKeys();

    KORVA_EditCanvas& m_editor;
    Documents& m_documents;
    Recovery* m_recovery = nullptr;
    QWidget* m_window; // the parent
    EditorControls m_controls;
    QMenu* m_menu;
    std::vector<Dependent> m_dependents;
    std::vector<Alternative> m_choices;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
};

} // namespace pad
