#include "DrawingFile.h"

#include <KORVA_EditCanvas.h>
#include <UTIL_Platform.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QPromise>
#include <QRegularExpression>
#include <QSaveFile>
#include <QThreadPool>
#include <QWidget>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pad {

namespace {

struct Reason
{
    int code;
    struct
    {
        const char* text; ///< %1 is the folder
        const char* comment;
    } label;
};

constexpr Reason reasons[] = {
    {ENOSPC, QT_TRANSLATE_NOOP3("pad::DrawingFile", "The disk is full.", "saving")},
    {EDQUOT, QT_TRANSLATE_NOOP3("pad::DrawingFile", "The disk is full.", "saving")},
    {EACCES, QT_TRANSLATE_NOOP3("pad::DrawingFile", "No permission to write in %1.", "saving")},
    {EPERM, QT_TRANSLATE_NOOP3("pad::DrawingFile", "No permission to write in %1.", "saving")},
    {EROFS, QT_TRANSLATE_NOOP3("pad::DrawingFile", "%1 is on a disk that can only be read.", "saving")},
    {EIO, QT_TRANSLATE_NOOP3("pad::DrawingFile", "The disk reports an error.", "saving")},
    {ENOENT, QT_TRANSLATE_NOOP3("pad::DrawingFile", "The folder %1 is not there.", "saving")},
    {ENOTDIR, QT_TRANSLATE_NOOP3("pad::DrawingFile", "The folder %1 is not there.", "saving")},
    {EISDIR, QT_TRANSLATE_NOOP3("pad::DrawingFile", "There is a folder of this name.", "saving")},
    {ENAMETOOLONG, QT_TRANSLATE_NOOP3("pad::DrawingFile", "The name is too long.", "saving")},
};

/// Why a file or folder cannot be written, as in errno; 0 if it can, or does not exist. A write protection
/// counts even for a user who may write anything.
int protectionOf(const QString& name)
{
    constexpr mode_t anyWrite = 0222;
    const QByteArray path = QFile::encodeName(name);
    struct stat status = {};
    if (stat(path.constData(), &status) != 0)
        return errno == ENOENT ? 0 : errno;
    if (access(path.constData(), W_OK) != 0)
        return errno;
    return status.st_mode & anyWrite ? 0 : EACCES;
}

QString systemsWords(int code)
{
    return QString::fromLocal8Bit(std::strerror(code));
}

WriteError systemError(int code, const QString& fileName)
{
    return {code, systemsWords(code), fileName};
}

/// Also when a signal comes in between.
bool sync(int handle)
{
    int result = fsync(handle);
    while (result != 0 && errno == EINTR)
        result = fsync(handle);
    return result == 0;
}

/// Brings the name of a new file to the disk, where the file system can do it.
void syncFolder(const QString& folder)
{
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    [[maybe_unused]] const bool mayFail = sync(handle);
    close(handle);
}

/// Whether a new file has the mode of the old one, which may be private; with errno. Some disks have but
/// one mode.
bool takesMode(int handle, mode_t mode)
{
    constexpr mode_t permissions = 07777;
    if (fchmod(handle, mode & permissions) == 0)
        return true;
    const int error = errno;
    struct stat status = {};
    const bool isSame =
        fstat(handle, &status) == 0 && (status.st_mode & permissions) == (mode & permissions);
    errno = error;
    return isSame;
}

/// Qt has words of its own for some errors, in English.
WriteError errorOf(const QSaveFile& file, const QString& fileName)
{
    const int code = file.error() == QFile::PermissionsError ? EACCES : errno;
    return {code, code != 0 ? systemsWords(code) : file.errorString(), fileName};
}

} // namespace

QString WriteError::sentence() const
{
    const QString folder = QFileInfo(fileName).absoluteDir().dirName();
    for (const Reason& reason : reasons) {
        if (reason.code != code)
            continue;
        const QString text =
            QCoreApplication::translate("pad::DrawingFile", reason.label.text, reason.label.comment);
        return text.contains(QLatin1String("%1")) ? text.arg(folder) : text;
    }
    return detail;
}

WriteError WriteError::of(const QString& words, const QString& fileName)
{
    const auto* const found = std::find_if(std::begin(reasons), std::end(reasons), [&](const Reason& each) {
        return systemsWords(each.code) == words;
    });
    return {found == std::end(reasons) ? 0 : found->code, words, fileName};
}

QString WriteError::line() const
{
    return QCoreApplication::translate("pad::DrawingFile", "cannot write '%1': %2", "command line")
        .arg(fileName, detail);
}

QString openError(const QString& fileName, const QString& reason)
{
    return QCoreApplication::translate("pad::DrawingFile", "cannot open '%1': %2", "command line")
        .arg(fileName, reason);
}

bool canBeWritten(const QString& fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    return !QDir::match(KORVA_EditCanvas::openPatterns(), name) ||
           QDir::match(KORVA_EditCanvas::savePatterns(), name);
}

QString freeNameBeside(const QString& fileName)
{
    static const QRegularExpression number(QStringLiteral(" \\d+$"));
    const QFileInfo file(fileName);
    const QString extension = canBeWritten(fileName) && !file.suffix().isEmpty() ? file.suffix() : "png";
    QString base = file.completeBaseName();
    // "photo 2" is followed by "photo 3" if there is a "photo"; "Trip 2024" is a name.
    if (const QString first = QString(base).remove(number);
        QFileInfo::exists(file.dir().filePath(first + '.' + extension)))
        base = first;
    QString name = file.dir().filePath(base + '.' + extension);
    for (int i = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++i)
        name = file.dir().filePath(QStringLiteral("%1 %2.%3").arg(base).arg(i).arg(extension));
    return name;
}

namespace {

/// A drawing on its way into a file; for any thread.
class Draft
{
public:
    Draft(const KORVA_EditCanvas& editor, const QString& fileName)
        : m_picture(editor.snapshot()), m_fileName(fileName)
    {
        editor.getFileFormat(fileName, m_format);
        if (m_format == QLatin1String("WBMP"))
            m_format = QStringLiteral("PNG"); // as the editor writes it; no dialog gives this name
    }

    [[nodiscard]] std::optional<WriteError> write(const Writer& write, const MayReplace& mayReplace) const
    {
        if (m_format == QLatin1String("GIF"))
            return WriteError{0,
                              QCoreApplication::translate("pad::DrawingFile", "GIF pictures are only read",
                                                          "command line"),
                              m_fileName};
        const QByteArray bytes = KORVA_EditCanvas::encoded(m_picture, m_format.toLatin1().constData());
        if (bytes.isEmpty())
            return systemError(ENOMEM, m_fileName);
        return write(bytes, m_fileName, mayReplace);
    }

private:
    QImage m_picture;
    QString m_fileName;
    QString m_format;
};

/// Shared by the thread that writes and the one that waits.
struct Saving
{
    /// The first one decides whether the file is replaced or the save is cancelled.
    [[nodiscard]] bool decide() { return !isDecided.exchange(true); }

    std::atomic_bool isDecided = false;
    std::optional<WriteError> error;
    QPromise<void> promise;
};

} // namespace

std::optional<WriteError> saveDrawing(const KORVA_EditCanvas& editor, const QString& fileName)
{
    return Draft(editor, fileName).write(writeFile, {});
}

DiskWork savingDrawing(const KORVA_EditCanvas& editor, const QString& fileName, const Writer& write)
{
    return [draft = Draft(editor, fileName), write](const MayReplace& mayReplace) {
        return draft.write(write, mayReplace);
    };
}

DiskWork savingEncoded(const Encoder& encode, const QString& fileName, const Writer& write)
{
    return [encode, fileName, write](const MayReplace& mayReplace) {
        const QByteArray bytes = encode(fileName);
        return bytes.isEmpty() ? systemError(ENOMEM, fileName) : write(bytes, fileName, mayReplace);
    };
}

std::optional<WriteError> workWhileWaiting(const DiskWork& work, const QString& fileName, QWidget* window,
                                           UTIL_Platform& platform)
{
    const auto saving = std::make_shared<Saving>();
    saving->promise.start();
    QFuture<void> done = saving->promise.future();
    QThreadPool::globalInstance()->start([saving, work] {
        saving->error = work([&saving] { return saving->decide(); });
        saving->promise.finish();
    });
    const QString text = QCoreApplication::translate("pad::DrawingFile", "Saving drawing", "saving");
    const QPointer<QWidget> parent = window;
    // A cancel that comes too late changes nothing: the last step may take its time, too.
    while (!platform.waitFor(parent, text, done) && parent) {
        if (saving->decide())
            return systemError(ECANCELED, fileName);
    }
    done.waitForFinished();
    return saving->error;
}

std::optional<WriteError> writeFile(const QByteArray& bytes, const QString& fileName,
                                    const MayReplace& mayReplace)
{
    // A chain of links is followed to its end; QSaveFile follows one.
    const QFileInfo named(fileName);
    const QString target = named.exists() ? named.canonicalFilePath() : fileName;
    for (const QString& name : {target, QFileInfo(target).path()}) {
        if (const int protection = protectionOf(name))
            return systemError(protection, fileName);
    }
    if (QFileInfo(target).isDir())
        return systemError(EISDIR, fileName);
    struct stat before = {};
    const bool isNew = stat(QFile::encodeName(target).constData(), &before) != 0;
    if (isNew && errno != ENOENT)
        return systemError(errno, fileName);
    QSaveFile file(target);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly))
        return errorOf(file, fileName);
    if (!isNew && !takesMode(file.handle(), before.st_mode))
        return systemError(errno, fileName);
    errno = 0;
    if (file.write(bytes) != bytes.size() || !file.flush())
        return errorOf(file, fileName);
    if (!sync(file.handle()))
        return systemError(errno, fileName);
    if (mayReplace && !mayReplace())
        return systemError(ECANCELED, fileName);
    errno = 0;
    if (!file.commit())
        return errorOf(file, fileName);
    syncFolder(QFileInfo(target).path());
    return {};
}

} // namespace pad
