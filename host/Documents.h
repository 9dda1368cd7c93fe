#pragma once

#include "DrawingFile.h"
#include "LastFolder.h"
#include "Recording.h"

#include <KORVA_Journal.h>

#include <QDateTime>
#include <QObject>
#include <QPointer>

class KORVA_EditCanvas;

namespace pad {

class Platform;

/// The drawing as a document: made new, opened, saved and deleted, and what is asked before anything could
/// be lost. In every question Return loses nothing and Escape changes nothing. Whatever fails leaves the
/// drawing, its name and its changes as they were, and nothing follows it.
class Documents : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive the documents; the window is the parent.
    Documents(KORVA_EditCanvas& editor, Platform& platform, QWidget* window);

    /// Writes what is saved from now on; for disks that are no disks.
    void setWriter(const Writer& writer) { m_write = writer; }
    /// Where what is given up is kept; null: nowhere. Not owned.
    void setJournal(KORVA_Journal* journal) { m_journal = journal; }

    /// Keeps the folder and the order of the folder dialogs in the settings, for the next start.
    void rememberFolders() { m_folder.remember(); }

    void newDrawing();
    /// Lets the person pick.
    void open();
    /// A picture by its name, after the question about changes.
    void openNamed(const QString& fileName);
    /// Under the drawing's name; asks for one where it has none, and first where the name's file would lose
    /// something. False when the drawing is not saved.
    bool save();
    /// Under a name that the person chooses.
    bool saveAs();
    /// Lays a picture that the person picks over the drawing.
    void stamp();
    /// The file behind the drawing goes to the trash.
    void deletePicture();
    void clear();
    /// Whether the window may go.
    [[nodiscard]] bool mayClose();

    /// Asks about changes and saves them if so answered. False when the drawing must stay; otherwise keep()
    /// comes right before it goes.
    [[nodiscard]] bool mayReplace(const QString& question);
    /// Puts a copy of a drawing with changes where it can be found again. See KORVA_Journal::keep().
    void keep(const KORVA_Journal::Entry& spared = {});
    /// The same where the drawing goes for good; asks where no copy can be kept. False when the drawing
    /// must stay.
    [[nodiscard]] bool mayGo();
    /// The drawing is now one that was brought back; the picture that it was drawn on is the name to
    /// propose.
    void takeBroughtBack(const QString& pictureName);

    /// What the drawing is called: its file's name, or what is proposed; empty for none.
    [[nodiscard]] QString name() const;

signals:
    /// A person did something that a recording can hold.
    void performed(const pad::Command& command);
    /// The drawing became another one, or the file behind it changed.
    void changed();

private:
    /// A file as it was when the drawing was last the same.
    struct Version
    {
        QDateTime time;
        qint64 size = -1;
        bool operator==(const Version& other) const = default;
        [[nodiscard]] static Version of(const QString& fileName);
    };

    /// What a dialog for picking is for, where it is not for opening.
    struct Purpose
    {
        QString title;
        QString verb;
    };

    /// A picture file that the person picks; empty for none.
    [[nodiscard]] QString pick(const std::optional<Purpose>& purpose = {});
    bool openFile(const QString& fileName);
    [[nodiscard]] QString whatReplacingLoses() const;
    bool askAndSave(const QString& loss);
    bool saveUnder(const QString& fileName);
    [[nodiscard]] int askCanvasType();
    void beginDocument();
    void settle();
    void tell(const WriteError& error);

    KORVA_EditCanvas& m_editor;
    Platform& m_platform;
    QWidget* m_window;
    Writer m_write = writeFile;
    KORVA_Journal* m_journal = nullptr;
    LastFolder m_folder;
    QString m_proposal;        ///< of a drawing without a name
    bool m_mayReplace = false; ///< the person has agreed to lose what opening took away
    Version m_version;
};

} // namespace pad
