#pragma once

#include "Copies.h"
#include "Recording.h"

#include <KORVA_Types.h>

#include <QObject>

#include <vector>

class KORVA_EditCanvas;
class QAction;
class QMenu;

namespace pad {

class Documents;
class Recovery;

/// The commands of the menu, the keys and the right soft key. The editor's signals enable them.
class Commands : public QObject
{
    Q_OBJECT

public:
    Commands(KORVA_EditCanvas& editor, Documents& documents, QWidget* window);

    /// Gives access to the earlier drawings; null if there are none. Not owned.
    void setRecovery(Recovery* recovery);
    /// Takes up what a finger did last and how long a message could be, and keeps both in the settings for
    /// the next start.
    void rememberChoices();

    [[nodiscard]] QMenu* menu() const { return m_menu; }
    /// The key that chooses a tool, or an option by its row, as it is shown to a person; empty for none.
    [[nodiscard]] QString keyFor(KORVA_CHOICETYPE what, int number) const;
    /// A person picked a drawing colour.
    void takeColor(const QColor& color);
    /// Shows what the buttons are, once in this user's life.
    void introduceButtons();

    /// The action of the right soft key: undo or, after an undo, redo.
    [[nodiscard]] QAction* contextAction() const;

signals:
    /// A person chose something that a recording can hold. It has already been carried out.
    void performed(const pad::Command& command);
    void contextActionChanged();

private:
    enum class Page;
    struct Entry;
    /// What a command needs to be enabled.
    enum class Needs {
        Nothing,
        File,      ///< the drawing has a file
        Recovery,  ///< a folder of earlier drawings
        Undo,      ///< a change to undo
        Redo,      ///< a change that was undone
        Selection, ///< a floating piece
        Clipboard, ///< a picture on the clipboard; assumed until it is examined
        FewColors, ///< a canvas with few colours
        Fingers,   ///< always enabled; marked while fingers pan
    };
    struct Dependent
    {
        Needs needs;
        QAction* action; // the menu's
    };

    /// A tool, an option or a zoom, checked while it is in force.
    struct Alternative
    {
        KORVA_CHOICETYPE what;
        int number;      ///< of a zoom: its rate
        QAction* action; // the menu's
    };

    void addEntries();
    void checkAlternatives();
    [[nodiscard]] bool isInForce(const Alternative& alternative) const;
    QAction* add(const Entry& entry, const QString& text, QMenu* page);
    void follow();
    void setAvailable(Needs what, bool available);
    bool updateClipboard();

    void perform(Verb verb);
    void removeSelection();
    void paste();
    [[nodiscard]] int zoomRow(int rate) const;
    void showKeys();
    void showButtons();
    void letFingersPan(bool pan);

    KORVA_EditCanvas& m_editor;
    Documents& m_documents;
    Copies m_copies;
    Recovery* m_recovery = nullptr;
    QWidget* m_window; // the parent
    QMenu* m_menu;
    std::vector<Dependent> m_dependents;
    std::vector<Alternative> m_choices;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_fingersPan = nullptr;
    bool m_isRemembered = false; ///< what a finger does
};

} // namespace pad
