#pragma once

#include "KORVA_Export.h"

#include <QBasicTimer>
#include <QDateTime>
#include <QElapsedTimer>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QThreadPool>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class KORVA_EditCanvas;
class KORVA_JournalFolder;
class UTIL_FileLock;

/// Keeps an editor's unsaved drawing in a folder while it is being drawn, so that a crash, a kill or an
/// empty battery costs only a second or two of work. It also keeps copies of drawings that the user gave
/// up.
///
/// A host makes one journal per editor. It calls adopt() once it can ask its user, settle() after each save
/// of its own, and keep() before it lets an unsaved drawing go. Several programs may share a folder: none
/// finds a drawing on which another one is still working. A thread of its own writes each file as a whole
/// and flushes it. For the GUI thread only.
class KORVA_EXPORT KORVA_Journal : public QObject
{
    Q_OBJECT

public:
    /// A drawing in the folder.
    struct Entry
    {
        QString file; ///< the PNG file that holds it
        QString
            pictureName; ///< the picture file that it was drawn on, to propose as a name; empty for none
        QDateTime time;  ///< when it was written
        QSize size;      ///< in pixels
    };

    /// How many copies keep() leaves in the folder, the newest ones.
    static constexpr int mostEarlier = 20;

    /// Follows the editor from now on; its present drawing counts as settled. The folder is made when
    /// something is first written. Only the owner can read it and its files.
    KORVA_Journal(KORVA_EditCanvas* editor, const QString& folder, QObject* parent = nullptr);
    /// Writes an unsaved drawing and leaves it for adopt(), as after a crash. A host that ends normally
    /// calls settle() before.
    ~KORVA_Journal() override;

    /// The folder's absolute path.
    [[nodiscard]] QString folder() const;

    /// The newest drawing that a program left behind. It belongs to this journal from now on, so that no
    /// other program finds it; older ones are moved to the earlier drawings. Nothing when there is none, or
    /// when the editor's drawing is in the journal already. bringBack(), settle() or shelve() decides what
    /// becomes of it. While a large drawing is read the user waits for it, as for opening a picture; one
    /// that the user does not wait for is found the next time. The journal may be deleted meanwhile.
    [[nodiscard]] std::optional<Entry> adopt();
    /// Moves the drawing that adopt() returned to the earlier drawings.
    void shelve();

    /// The earlier drawings that were kept, newest first.
    [[nodiscard]] QList<Entry> earlier() const;
    /// The picture of an entry; null when it is gone.
    [[nodiscard]] static QImage picture(const Entry& entry);
    /// Makes a picture that fits a box. Null when the entry's is gone, or once the function that it is
    /// given returns true; it may be given none.
    using Thumbnailer = std::function<QImage(const std::function<bool()>& isCancelled)>;
    /// What makes an entry's thumbnail, in any thread. For lists: a large picture takes long to be read.
    [[nodiscard]] static Thumbnailer thumbnailer(const Entry& entry, QSize box);
    /// Gives the editor the picture of an entry as a new drawing: without a file name, modified, with
    /// nothing to undo. The editor's previous drawing is lost, including open text. If the picture is gone,
    /// nothing is done, and the result is false; so it is when the user does not wait for a large one.
    /// Journal and editor may be deleted meanwhile.
    bool bringBack(const Entry& entry);

    /// Tells the journal that the present drawing is saved, or that nobody wants it: it removes its files.
    /// The journal notices by itself when the editor saves or opens a picture; this does not touch what
    /// adopt() returned. A host that writes files itself calls this function.
    void settle();
    /// Adds a copy of the present drawing to the earlier ones and waits until it is on the disk. `spared`
    /// stays, however old it is: the entry that is to be brought back next. False when the copy could not
    /// be written.
    bool keep(const Entry& spared = {});
    /// Writes a copy of a drawing; returns the system's reason if it cannot, else nothing.
    using Keeper = std::function<QString()>;
    /// What does the work of keep() for the drawing as it is now, in any thread: a host can let its user
    /// wait, because a large drawing takes long to be written. It emits nothing.
    [[nodiscard]] Keeper keeper(const Entry& spared = {}) const;
    /// Writes an unsaved drawing at once and waits until it is on the disk. For a program that is told to
    /// end. False when that failed.
    bool flush();

signals:
    /// The drawing could not be written; `reason` is the system's. Emitted only once until a write
    /// succeeds.
    void failed(const QString& reason);

protected:
    /// Watches every press, move and key that may change the drawing.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    /// What the folder holds of this journal.
    enum class State {
        Nothing, ///< no file: the drawing is settled
        Adopted, ///< another program's drawing, not yet brought back, settled or shelved
        Living,  ///< the drawing as it was a moment ago
    };

    [[nodiscard]] KORVA_EditCanvas* editor() const;
    void expectChange();
    void write();
    [[nodiscard]] QString begin();
    void end();
    void noteSettled();
    void finishWrite(const QString& error, int milliseconds);
    [[nodiscard]] QString pictureName() const;

    QPointer<QWidget> m_editor;
    std::unique_ptr<KORVA_JournalFolder> m_folder;
    State m_state = State::Nothing;
    QString m_id;
    QString m_proposal; ///< the name of a drawing that was brought back
    std::unique_ptr<UTIL_FileLock> m_lock;
    size_t m_written; ///< a hash of the drawing last settled or handed to the thread; 0 for neither
    int m_pause;      ///< milliseconds between two writes while drawing goes on
    QElapsedTimer m_sinceChange;
    QElapsedTimer m_sinceWrite;
    bool m_hasFailed = false;
    QBasicTimer m_timer;
    QThreadPool m_writer; ///< one thread, so that writes and removals keep their order
};
