#pragma once

#include "Recording.h"

#include <QList>
#include <QObject>

class KORVA_EditCanvas;
class QAction;
class QMenu;

namespace pad {

class Document;

/// The commands behind the menu, the keys and the right soft key, enabled as the editor says.
class Commands : public QObject
{
    Q_OBJECT

public:
    Commands(KORVA_EditCanvas& editor, Document& document, QWidget* window);

    [[nodiscard]] QMenu* menu() const { return m_menu; }
    /// What the right soft key offers: the way back or, after an undo, forward again.
    [[nodiscard]] QAction* contextAction() const;

    /// Leaves plain keys to the text tool.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A person chose a command that a recording can hold; it is carried out already.
    void performed(const pad::Command& command);
    void contextActionChanged();
    void failed(const QString& message);

private:
    struct Entry;
    /// What must be there for a command to make sense.
    enum class Needs {
        Nothing,
        File,      ///< one behind the drawing
        Undo,      ///< a change to take back
        Redo,      ///< a change taken back
        Selection, ///< a floating piece
        Clipboard, ///< a picture on it
    };

    QAction* add(const Entry& entry, QMenu* menu, QWidget* window);
    void addZooms(QWidget* window);
    void follow(const KORVA_EditCanvas& editor);
    void setAvailable(Needs what, bool available);
    void perform(Verb verb, int number = 0);
    void save();
    void quit();
    void updateClipboard();

    KORVA_EditCanvas& m_editor;
    Document& m_document;
    QWidget* m_window; // not owned
    QMenu* m_menu;
    QList<std::pair<Needs, QAction*>> m_actions;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
};

} // namespace pad
