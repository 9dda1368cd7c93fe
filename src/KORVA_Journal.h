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

#include <memory>
#include <optional>

class KORVA_EditCanvas;
class KORVA_JournalFolder;
class UTIL_FileLock;

/// Keeps an editor's unsaved drawing in a folder while it is being drawn, so that a crash, a kill or an
/// empty battery costs a second or two of it, and keeps copies of what its user gave up.
///
/// A host makes one per editor, calls adopt() once it can ask its user, settle() after each save, and
/// keep() before it lets an unsaved drawing go. Several programs may share a folder: none finds what
/// another one is still drawing. All that is written is written whole and flushed, by a thread of its own.
/// GUI thread only.
class KORVA_EXPORT KORVA_Journal : public QObject
{
    Q_OBJECT

public:
    /// A drawing in the folder.
    struct Entry
    {
        QString file;        ///< where it is: a PNG file
        QString pictureName; ///< the picture file that it was drawn on, as a proposal; empty for none
        QDateTime time;      ///< when it was written
        QSize size;          ///< in pixels
    };

    /// How many copies keep() leaves in the folder: the newest.
    static constexpr int mostEarlier = 20;

    /// Follows the editor from now on: what it shows counts as settled. The folder is made when something
    /// is first written; it and its files can be read by their owner only.
    KORVA_Journal(KORVA_EditCanvas* editor, const QString& folder, QObject* parent = nullptr);
    /// Writes what is unsaved and leaves it for adopt(), as after a crash: a host that ends in order
    /// settles before.
    ~KORVA_Journal() override;

    /// The folder's absolute path.
    [[nodiscard]] QString folder() const;

    /// The newest drawing that a program left behind, which is this journal's own from now on, so that no
    /// other program finds it; older ones go among the earlier ones. Nothing when there is none, or when
    /// the editor's drawing is in the journal already. bringBack(), settle() or shelve() decides what
    /// becomes of it.
    [[nodiscard]] std::optional<Entry> adopt();
    /// Moves what adopt() gave among the earlier drawings.
    void shelve();

    /// The copies that were kept, newest first.
    [[nodiscard]] QList<Entry> earlier() const;
    /// The picture of an entry; null when it is gone.
    [[nodiscard]] static QImage picture(const Entry& entry);
    /// Gives the editor the picture of an entry as a new drawing: without a file name, modified, with
    /// nothing to undo. What the editor held is lost, open text included. False, with nothing done, when
    /// the picture is gone.
    bool bringBack(const Entry& entry);

    /// The drawing as it is now is saved, or nobody wants it: nothing of it is left to be found. Follows
    /// every save and every picture opened by the editor itself, which leave alone what adopt() gave; a
    /// host that writes files itself calls it.
    void settle();
    /// Puts a copy of the drawing as it is now among the earlier ones and waits until it is on the disk.
    /// `spared` stays however old it is: the one that is to be brought back next. False when that failed.
    bool keep(const Entry& spared = {});
    /// Writes what is unsaved at once and waits until it is on the disk: for a program that is told to end.
    /// False when that failed.
    bool flush();

signals:
    /// The drawing could not be written; `reason` is the system's own. Comes once until a write succeeds.
    void failed(const QString& reason);

protected:
    /// Hears of every press, move and key that may change the drawing.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    /// What of this journal is in the folder.
    enum class State {
        Nothing, ///< no file: the drawing is settled
        Adopted, ///< another program's drawing, until it is decided what becomes of it
        Living,  ///< the drawing as it was a moment ago
    };

    [[nodiscard]] KORVA_EditCanvas* editor() const;
    void expectChange();
    void write();
    [[nodiscard]] bool begin();
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
    size_t m_written; ///< a hash of the drawing as it was settled or last handed to the thread; 0: neither
    int m_pause;      ///< milliseconds between two writes while drawing goes on
    QElapsedTimer m_sinceChange;
    QElapsedTimer m_sinceWrite;
    bool m_hasFailed = false;
    QBasicTimer m_timer;
    QThreadPool m_writer; ///< one thread, so that writes and removals keep their order
};
