#include "KORVA_Journal.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Text.h"
#include "UTIL_FileLock.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int shortestPause = 1000; // milliseconds
constexpr int stillness = 700;      // after the last change nobody is drawing any more
constexpr int longestPause = 10000;
constexpr int leftoverAge = 60;  // seconds; no write takes as long
constexpr int pausePerWork = 10; // a great drawing or a slow disk shall not keep the program busy

const QString livingPrefix = QStringLiteral("living-");
const QString earlierPrefix = QStringLiteral("earlier-");
const QString pictureSuffix = QStringLiteral(".png");
const QString nameKey = QStringLiteral("PictureName");

/// How small a file is made.
enum class Size : int { Quick = 100, Small = -1 };

/// Sorts by time, within a moment by the order in which it was asked for, and is no other program's.
QString newId()
{
    static int count = 0;
    return QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz-")) +
           QStringLiteral("%1-%2")
               .arg(++count, 6, 10, QLatin1Char('0'))
               .arg(QRandomGenerator::global()->generate(), 0, 16);
}

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

void flushFolder(const QString& folder)
{
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
}

/// Writes the whole picture or nothing, onto the disk; what went wrong, or an empty text. For any thread.
QString store(const QImage& picture, const QString& fileName, const QString& pictureName, Size size)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    QImageWriter writer(&file, "png");
    writer.setText(nameKey, pictureName);
    writer.setQuality(int(size));
    if (!writer.write(picture))
        return file.error() == QFile::NoError ? writer.errorString() : file.errorString();
    if (!file.flush())
        return file.errorString();
    if (fsync(file.handle()) != 0)
        return systemError();
    if (!file.commit())
        return file.errorString();
    flushFolder(QFileInfo(fileName).path());
    return {};
}

KORVA_Journal::Entry entryOf(const QFileInfo& file)
{
    const QImageReader reader(file.filePath());
    return {file.filePath(), reader.text(nameKey), file.lastModified(), reader.size()};
}

QFileInfoList filesIn(const QString& folder, const QString& prefix)
{
    return QDir(folder).entryInfoList({prefix + '*' + pictureSuffix}, QDir::Files,
                                      QDir::Name | QDir::Reversed);
}

} // namespace

KORVA_Journal::KORVA_Journal(KORVA_EditCanvas* editor, const QString& folder, QObject* parent)
    : QObject(parent),
      m_editor(editor),
      m_folder(QDir::cleanPath(QDir(folder).absolutePath())),
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
    // An editor that is being destroyed is none any more when it deletes its children.
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
    // Never started anew while it runs: a stroke must not pay for it, and a long one is written, too.
    if (!m_timer.isActive())
        m_timer.start(shortestPause, Qt::CoarseTimer, this);
}

void KORVA_Journal::timerEvent(QTimerEvent*)
{
    m_timer.stop();
    // Where writing is costly it waits, but only while drawing goes on.
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
    if (!editor()->hasChanges()) { // the host took another picture in and said so itself
        noteSettled();
        return;
    }
    if (m_writer.activeThreadCount() > 0) {
        expectChange();
        return;
    }
    if (m_state == State::Adopted)
        shelve();
    if (m_state == State::Nothing && !begin()) {
        finishWrite(systemError(), 0);
        return;
    }
    m_written = hash;
    m_sinceWrite.start();
    m_writer.start([this, picture, file = livingFile(), name = pictureName()] {
        QElapsedTimer timer;
        timer.start();
        const QString error = store(picture, file, name, Size::Quick);
        QMetaObject::invokeMethod(
            this, [this, error, time = int(timer.elapsed())] { finishWrite(error, time); },
            Qt::QueuedConnection);
    });
}

bool KORVA_Journal::begin()
{
    if (!makeFolder())
        return false;
    const QString id = newId();
    auto lock = std::make_unique<UTIL_FileLock>(lockFile(id));
    if (!lock->lock())
        return false;
    m_id = id;
    m_lock = std::move(lock);
    m_state = State::Living;
    return true;
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
    else // nobody has decided about that one yet
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
    QFile::remove(livingFile());
    end();
}

void KORVA_Journal::shelve()
{
    if (m_state != State::Adopted)
        return;
    moveAmongEarlier(m_id);
    end();
    prune();
}

bool KORVA_Journal::keep(const Entry& spared)
{
    if (!makeFolder()) {
        finishWrite(systemError(), 0);
        return false;
    }
    const QString file = m_folder + '/' + earlierPrefix + newId() + pictureSuffix;
    const QString error = store(editor()->snapshot(), file, pictureName(), Size::Small);
    prune(spared.file);
    if (!error.isEmpty())
        finishWrite(error, 0);
    return error.isEmpty();
}

bool KORVA_Journal::bringBack(const Entry& entry)
{
    QPixmap found = QPixmap::fromImage(picture(entry));
    if (found.isNull() || !editor())
        return false;
    const bool isAdopted = m_state == State::Adopted && entry.file == livingFile();
    if (isAdopted)
        m_state = State::Living;
    if (KORVA_Text* text = editor()->currentText())
        text->resetBuffer();
    editor()->setPixmap(&found);
    editor()->canvas()->markModified(); // before the name goes, which says what there is to lose
    editor()->setFileName({});
    editor()->canvas()->setUndoFlag(0);
    m_proposal = entry.pictureName;
    if (isAdopted)
        m_written = classic::hash(editor()->snapshot());
    else
        flush();
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
    removeLeftovers();
    QFileInfoList left = filesIn(m_folder, livingPrefix);
    std::sort(left.begin(), left.end(), [](const QFileInfo& one, const QFileInfo& other) {
        return one.lastModified() < other.lastModified();
    });
    std::optional<Entry> newest;
    for (const QFileInfo& file : left) {
        const QString id = file.completeBaseName().sliced(livingPrefix.size());
        auto lock = std::make_unique<UTIL_FileLock>(lockFile(id));
        if (!lock->lock())
            continue; // somebody is drawing it
        if (!QFile::exists(file.filePath())) {
            lock->remove(); // somebody has just had it
        } else if (QImage(file.filePath()).isNull()) {
            moveAmongEarlier(id); // damaged: nothing to offer
            lock->remove();
        } else {
            shelve();
            newest = entryOf(file);
            m_id = id;
            m_lock = std::move(lock);
            m_state = State::Adopted;
        }
    }
    prune();
    return newest;
}

QList<KORVA_Journal::Entry> KORVA_Journal::earlier() const
{
    QList<Entry> entries;
    for (const QFileInfo& file : filesIn(m_folder, earlierPrefix)) {
        if (const Entry entry = entryOf(file); entry.size.isValid())
            entries.append(entry);
    }
    return entries;
}

QImage KORVA_Journal::picture(const Entry& entry)
{
    return QImage(entry.file);
}

/// What programs left that ended in the middle of something.
void KORVA_Journal::removeLeftovers() const
{
    const QDateTime lately = QDateTime::currentDateTime().addSecs(-leftoverAge);
    for (const QFileInfo& file : QDir(m_folder).entryInfoList({'*' + pictureSuffix + ".*"}, QDir::Files)) {
        if (file.lastModified() < lately)
            QFile::remove(file.filePath());
    }
    for (const QFileInfo& file : QDir(m_folder).entryInfoList({livingPrefix + "*.lock"}, QDir::Files)) {
        if (QFile::exists(m_folder + '/' + file.completeBaseName() + pictureSuffix))
            continue;
        UTIL_FileLock lock(file.filePath());
        if (lock.lock())
            lock.remove();
    }
}

QString KORVA_Journal::pictureName() const
{
    const QString name = editor()->fileName();
    return name.isEmpty() ? m_proposal : name;
}

// --- The folder

QString KORVA_Journal::livingFile() const
{
    return m_folder + '/' + livingPrefix + m_id + pictureSuffix;
}

QString KORVA_Journal::lockFile(const QString& id) const
{
    return m_folder + '/' + livingPrefix + id + ".lock";
}

bool KORVA_Journal::makeFolder() const
{
    if (QFileInfo(m_folder).isDir())
        return true;
    return QDir().mkpath(m_folder) &&
           QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void KORVA_Journal::moveAmongEarlier(const QString& id) const
{
    // Under a new number: one that was begun long ago would be the first to be pruned.
    const QString prefix = m_folder + '/';
    QFile::rename(prefix + livingPrefix + id + pictureSuffix,
                  prefix + earlierPrefix + newId() + pictureSuffix);
}

void KORVA_Journal::prune(const QString& spared) const
{
    const QFileInfoList files = filesIn(m_folder, earlierPrefix);
    for (qsizetype i = mostEarlier; i < files.size(); ++i) {
        if (files[i].filePath() != spared)
            QFile::remove(files[i].filePath());
    }
}
