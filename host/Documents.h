#pragma once

#include "DrawingFile.h"
#include "LastFolder.h"
#include "Recording.h"

#include <KORVA_Journal.h>

#include <QDateTime>
#include <QObject>
#include <QPointer>

class KORVA_EditCanvas;
class UTIL_PictureDialog;

namespace pad {

class Platform;

/// The drawing as a document: makes, opens, saves and deletes it, and asks before anything could be lost.
/// In every question Return loses nothing and Escape changes nothing. A failure leaves the drawing, its
/// name and its changes as they were, and ends the command.
class Documents : public QObject
{
    Q_OBJECT

public:
    /// All arguments outlive this object; the window is the parent.
    Documents(KORVA_EditCanvas& editor, Platform& platform, QWidget* window);

    /// Sets the function that writes files from now on, so that tests can replace the disk.
    void setWriter(const Writer& writer) { m_write = writer; }
    /// Sets the journal that keeps drawings that are given up; null for none. Not owned.
    void setJournal(KORVA_Journal* journal) { m_journal = journal; }

    /// Keeps the folder and the order of the folder dialogs in the settings, for the next start.
    void rememberFolders() { m_folder.remember(); }

    /// On white paper, as an opened picture is.
    void newDrawing();
    /// Lets the person pick a picture. It becomes the paper of a new drawing without a name.
    void newFromPicture();
    /// Lets the person pick a picture and opens it.
    void open();
    /// Opens a picture by its name, after asking about changes.
    void openNamed(const QString& fileName);
    /// Saves under the drawing's name, or asks for one if it has none. If the file would lose something,
    /// asks first. False when the drawing is not saved.
    bool save();
    /// Saves under a name that the person chooses.
    bool saveAs();
    /// Saves something that is made of the drawing under a name that the person chooses, in a format of
    /// these patterns; the first one is proposed. The drawing stays what it is, under its name, and the
    /// person is told the file's name and size. False when nothing is saved.
    bool saveCopy(const Encoder& encode, const QStringList& patterns);
    /// Lays a picture that the person picks over the drawing.
    void stamp();
    /// Lays a picture over the drawing.
    void stampNamed(const QString& fileName);
    /// Moves the drawing's file to the trash.
    void deletePicture();
    void clear();
    /// Whether the window may close, after any questions.
    [[nodiscard]] bool mayClose();

    /// Asks about changes, and saves them if the answer is yes. False when the drawing must stay. Otherwise
    /// call keep() right before it goes.
    [[nodiscard]] bool mayReplace(const QString& question);
    /// Puts a copy of a drawing with changes where it can be found again. See KORVA_Journal::keep(). False
    /// when the person does not want to wait until it is written.
    bool keep(const KORVA_Journal::Entry& spared = {});
    /// The same for a drawing that goes for good: asks if no copy can be kept. False when the drawing must
    /// stay.
    [[nodiscard]] bool mayGo();
    /// Tells that the drawing was brought back. `pictureName`, the picture that it was drawn on, is
    /// proposed as its name.
    void takeBroughtBack(const QString& pictureName);

    /// Tells what went wrong.
    void tell(const QString& text, const QString& button);

    /// The name of the drawing's file, or the name to propose; empty if there is none.
    [[nodiscard]] QString name() const;

signals:
    /// A person did something that a recording can hold.
    void performed(const pad::Command& command);
    /// The drawing became another one, or the file behind it changed.
    void changed();
    /// No copy could be kept of a drawing that was given up; `reason` is the system's.
    void notKept(const QString& reason);

private:
    /// The state of the drawing's file when file and drawing were last the same.
    struct Version
    {
        QDateTime time;
        qint64 size = -1;
        bool operator==(const Version& other) const = default;
        [[nodiscard]] static Version of(const QString& fileName);
    };

    /// The purpose of a pick dialog that is not for opening.
    struct Purpose
    {
        QString title;
        QString verb;
    };

    /// The facts of a file that was written.
    struct Written
    {
        Version version;
        bool isDrawings = false; ///< it is the drawing's own file
    };

    /// Whether the file is not all of the drawing.
    [[nodiscard]] bool hasChanges() const;
    /// Runs and deletes a dialog; empty if it was not accepted.
    [[nodiscard]] QString run(const QPointer<UTIL_PictureDialog>& dialog);
    /// Lets the person name a file, beside the drawing's own if possible; empty if none was named.
    [[nodiscard]] QString askName(const QString& proposal, const QStringList& patterns);
    /// Lets `save` write the file. A new one beside the drawing's own is no more public than that one.
    /// Tells what goes wrong; the result is nothing then, or when the person has cancelled.
    [[nodiscard]] std::optional<Written> write(const QString& fileName, const DiskWork& save);
    /// Asks the disk, which may take its time, in another thread. Nothing when the person will not wait.
    template <typename Question>
    [[nodiscard]] auto answerOfDisk(const Question& question) -> std::optional<decltype(question())>;
    /// Lets the person pick a picture file; empty if none was picked.
    [[nodiscard]] QString pick(const std::optional<Purpose>& purpose = {});
    /// Opens a picture. What writes a copy of the drawing that it replaced, to be called once the new one
    /// is settled; null if that needs none. Nothing when the picture was not opened.
    [[nodiscard]] std::optional<KORVA_Journal::Keeper> takeIn(const QString& fileName);
    /// Writes a copy while the person waits. The reason if it could not be written, empty if it was;
    /// nothing when the person did not wait.
    [[nodiscard]] std::optional<QString> written(const KORVA_Journal::Keeper& copy);
    /// The same, and tells when it could not. False when the person did not wait.
    bool keepCopy(const KORVA_Journal::Keeper& copy);
    void openFile(const QString& fileName);
    /// Nothing when the person will not wait for the answer.
    [[nodiscard]] std::optional<QString> whatReplacingLoses();
    bool askAndSave(const QString& loss);
    bool saveUnder(const QString& fileName);
    [[nodiscard]] int askCanvasType();
    void begin(const Command& how);
    void beginDocument();
    void settle();

    KORVA_EditCanvas& m_editor;
    Platform& m_platform;
    QWidget* m_window;
    Writer m_write = writeFile;
    KORVA_Journal* m_journal = nullptr;
    LastFolder m_folder;
    QString m_proposal;        ///< of a drawing without a name
    bool m_mayReplace = false; ///< the person has agreed to lose what opening left out
    bool m_isLess = false;     ///< a copy that is less than the drawing has replaced its file
    Version m_version;
};

} // namespace pad
