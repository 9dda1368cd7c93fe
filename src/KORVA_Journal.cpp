#include "KORVA_Journal.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_JournalFolder.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Patience.h"
#include "KORVA_PictureFile.h"
#include "KORVA_Text.h"
#include "UTIL_FileLock.h"
#include "UTIL_ImageReader.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>

#include <utility>

namespace {

constexpr int shortestPause = 1000; // milliseconds
constexpr int stillness = 700;      // milliseconds after the last change: nobody is drawing any more
constexpr int longestPause = 10000;
constexpr int pausePerWork = 10; // a large drawing or a slow disk must not keep the program busy

UTIL_ImageReader readerOf(const QString& fileName, const UTIL_ImageReader::Allowance& allowance,
                          const std::function<bool()>& isCancelled)
{
    UTIL_ImageReader reader(fileName, "PNG");
    reader.setAllowance(allowance);
    reader.setIsCancelled(isCancelled);
    return reader;
}

/// Reads a small picture at once, any other in a thread for which the user waits. Nothing when the user has
/// cancelled.
std::optional<QImage> pictureOf(const KORVA_Journal::Entry& entry, KORVA_EditCanvas* editor)
{
    if (!editor || !editor->features().dialogs || KORVA_PictureFile::isSmall(entry.size))
        return KORVA_Journal::picture(entry);
    return patience::opening(*editor,
                             [file = entry.file, allowance = UTIL_ImageReader::Allowance::ofPlatform()](
                                 const util::IsCancelled& isCancelled) {
                                 UTIL_ImageReader reader = readerOf(file, allowance, isCancelled);
                                 return reader.read() ? reader.image() : QImage();
                             });
}

} // namespace

KORVA_Journal::KORVA_Journal(KORVA_EditCanvas* editor, const QString& folder, QObject* parent)
    : QObject(parent),
      m_editor(editor),
      m_folder(std::make_unique<KORVA_JournalFolder>(folder)),
      m_written(classic::hash(editor->snapshot())),
      m_pause(shortestPause)
{
    m_writer.setMaxThreadCount(1);
    editor->canvas()->installEventFilter(this);
    editor->canvas()->pasteLabel()->installEventFilter(this);
    for (const auto signal :
         {&KORVA_EditCanvas::canUndo, &KORVA_EditCanvas::canRedo, &KORVA_EditCanvas::selection})
        connect(editor, signal, this, &KORVA_Journal::expectChange);
    connect(editor, &KORVA_EditCanvas::pixmapChanged, this, &KORVA_Journal::expectChange);
    connect(editor, &KORVA_EditCanvas::canDelete, this, [this] {
        if (!this->editor()->hasChanges())
            noteSettled();
    });
}

KORVA_Journal::~KORVA_Journal()
{
    if (editor()) {
        if (editor()->hasChanges())
            flush();
        else
            noteSettled();
    }
    m_writer.waitForDone();
}

KORVA_EditCanvas* KORVA_Journal::editor() const
{
    // While a destroyed editor deletes its children it is no longer a KORVA_EditCanvas.
    return qobject_cast<KORVA_EditCanvas*>(m_editor.data());
}

// --- Following the drawing

bool KORVA_Journal::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        if (static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton)
            break;
        [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::InputMethod:
        expectChange();
        break;
    default:
        break;
    }
    return false;
}

void KORVA_Journal::expectChange()
{
    m_sinceChange.start();
    // A running timer is not restarted: that would cost every event of a stroke, and delay the writing of a
    // long one.
    if (!m_timer.isActive())
        m_timer.start(shortestPause, Qt::CoarseTimer, this);
}

void KORVA_Journal::timerEvent(QTimerEvent*)
{
    m_timer.stop();
    // If writing takes long it waits, but only while drawing goes on.
    const bool isDrawing = m_sinceChange.isValid() && m_sinceChange.elapsed() < stillness;
    const qint64 rest = m_sinceWrite.isValid() ? m_pause - m_sinceWrite.elapsed() : 0;
    if (isDrawing && rest > 0)
        m_timer.start(int(qMin<qint64>(rest, shortestPause)), Qt::CoarseTimer, this);
    else if (editor())
        write();
}

void KORVA_Journal::write()
{
    const QImage picture = editor()->snapshot();
    const size_t hash = classic::hash(picture);
    if (hash == m_written)
        return;
    if (!editor()->hasChanges()) { // the host set another picture and cleared the modified flag
        noteSettled();
        return;
    }
    if (m_writer.activeThreadCount() > 0) {
        expectChange();
        return;
    }
    if (m_state == State::Adopted)
        shelve();
    if (m_state == State::Nothing) {
        if (const QString error = begin(); !error.isEmpty()) {
            finishWrite(error, 0);
            return;
        }
    }
    m_written = hash;
    m_sinceWrite.start();
    m_writer.start([this, picture, file = m_folder->livingFile(m_id), name = pictureName()] {
        QElapsedTimer timer;
        timer.start();
        const QString error = KORVA_JournalFolder::store(picture, file, name, KORVA_JournalFolder::Quick);
        QMetaObject::invokeMethod(
            this, [this, error, time = int(timer.elapsed())] { finishWrite(error, time); },
            Qt::QueuedConnection);
    });
}

QString KORVA_Journal::begin()
{
    if (!m_folder->make())
        return KORVA_JournalFolder::systemError();
    const QString id = KORVA_JournalFolder::newId();
    auto lock = std::make_unique<UTIL_FileLock>(m_folder->lockFile(id));
    if (!lock->lock()) {
        const QString error = KORVA_JournalFolder::systemError();
        QFile::remove(m_folder->lockFile(id)); // nobody else knows this identifier
        return error;
    }
    m_id = id;
    m_lock = std::move(lock);
    m_state = State::Living;
    return {};
}

void KORVA_Journal::finishWrite(const QString& error, int milliseconds)
{
    m_pause =
        error.isEmpty() ? qBound(shortestPause, pausePerWork * milliseconds, longestPause) : longestPause;
    if (error.isEmpty()) {
        m_hasFailed = false;
        return;
    }
    m_written = 0; // so that it is tried again
    m_timer.start(longestPause, Qt::CoarseTimer, this);
    if (!std::exchange(m_hasFailed, true))
        emit failed(error);
}

bool KORVA_Journal::flush()
{
    m_timer.stop();
    m_writer.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    if (editor())
        write();
    m_writer.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    return !m_hasFailed || !editor() || !editor()->hasChanges();
}

// --- What is done with it

void KORVA_Journal::noteSettled()
{
    if (m_state != State::Adopted)
        settle();
    else // nobody has decided about the adopted drawing yet
        m_written = classic::hash(editor()->snapshot());
}

void KORVA_Journal::settle()
{
    if (editor())
        m_written = classic::hash(editor()->snapshot());
    m_writer.waitForDone();
    m_proposal.clear();
    if (m_state == State::Nothing)
        return;
    QFile::remove(m_folder->livingFile(m_id));
    end();
}

void KORVA_Journal::shelve()
{
    if (m_state != State::Adopted)
        return;
    m_folder->moveAmongEarlier(m_id);
    end();
    m_folder->prune(mostEarlier);
}

bool KORVA_Journal::keep(const Entry& spared)
{
    const QString error = keeper(spared)();
    if (!error.isEmpty())
        finishWrite(error, 0);
    return error.isEmpty();
}

KORVA_Journal::Keeper KORVA_Journal::keeper(const Entry& spared) const
{
    return [folder = *m_folder, picture = editor()->snapshot(), file = m_folder->newEarlierFile(),
            name = pictureName(), spared = spared.file] {
        if (!folder.make())
            return KORVA_JournalFolder::systemError();
        const QString error = KORVA_JournalFolder::store(picture, file, name, KORVA_JournalFolder::Small);
        folder.prune(mostEarlier, spared);
        return error;
    };
}

bool KORVA_Journal::bringBack(const Entry& entry)
{
    const QPointer<KORVA_Journal> self = this;
    const std::optional<QImage> picture = pictureOf(entry, editor());
    if (!picture || !self || !editor())
        return false;
    QPixmap found = QPixmap::fromImage(*picture);
    if (found.isNull())
        return false;
    const bool isAdopted = m_state == State::Adopted && entry.file == m_folder->livingFile(m_id);
    if (isAdopted)
        m_state = State::Living;
    if (KORVA_Text* text = editor()->currentText())
        text->resetBuffer();
    editor()->setPixmap(&found);
    editor()->canvas()->markModified(); // before the name goes: a slot that hears of that must see a change
    editor()->setFileName({});
    editor()->canvas()->setUndoFlag(0);
    m_proposal = entry.pictureName;
    if (isAdopted)
        m_written = classic::hash(editor()->snapshot());
    else if (KORVA_PictureFile::isSmall(entry.size))
        flush();
    else
        write(); // which takes long, and the entry is still there
    return true;
}

void KORVA_Journal::end()
{
    m_lock->remove();
    m_lock.reset();
    m_id.clear();
    m_state = State::Nothing;
}

// --- What is found

std::optional<KORVA_Journal::Entry> KORVA_Journal::adopt()
{
    if (m_state != State::Nothing)
        return {};
    m_folder->removeLeftovers();
    const QPointer<KORVA_Journal> self = this;
    std::optional<Entry> newest;
    for (const QString& id : m_folder->livingIds()) {
        const QString file = m_folder->livingFile(id);
        auto lock = std::make_unique<UTIL_FileLock>(m_folder->lockFile(id));
        if (!lock->lock())
            continue; // another program is working on it
        if (!QFile::exists(file)) {
            lock->remove(); // another program has just dealt with it
            continue;
        }
        const State before = m_state;
        const std::optional<QImage> picture = pictureOf(KORVA_JournalFolder::entryOf(file), editor());
        if (!self || m_state != before)
            return {}; // a drawing was begun meanwhile
        if (!picture)
            break;
        if (picture->isNull()) {
            m_folder->moveAmongEarlier(id); // damaged, so there is nothing to offer
            lock->remove();
        } else {
            shelve();
            newest = KORVA_JournalFolder::entryOf(file);
            m_id = id;
            m_lock = std::move(lock);
            m_state = State::Adopted;
        }
    }
    m_folder->prune(mostEarlier);
    return newest;
}

QList<KORVA_Journal::Entry> KORVA_Journal::earlier() const
{
    return m_folder->earlier();
}

QString KORVA_Journal::folder() const
{
    return m_folder->path();
}

QImage KORVA_Journal::picture(const Entry& entry)
{
    UTIL_ImageReader reader(entry.file, "PNG");
    return reader.read() ? reader.image() : QImage();
}

KORVA_Journal::Thumbnailer KORVA_Journal::thumbnailer(const Entry& entry, QSize box)
{
    return [file = entry.file, box, allowance = UTIL_ImageReader::Allowance::ofPlatform()](
               const std::function<bool()>& isCancelled) {
        UTIL_ImageReader reader = readerOf(file, allowance, isCancelled);
        reader.setReduction([box](QSize size) {
            return size.boundedTo(size.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
        });
        return reader.read() ? reader.image().scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                             : QImage();
    };
}

QString KORVA_Journal::pictureName() const
{
    const QString name = editor()->fileName();
    return name.isEmpty() ? m_proposal : name;
}
