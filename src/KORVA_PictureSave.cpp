#include "KORVA_PictureSave.h"

#include "UTIL_FileLock.h"
#include "UTIL_Png.h"
#include "UTIL_Sync.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int jpegQuality = 96;
constexpr int leastQuality = 30;   // below this, a smaller picture looks better
constexpr int defaultQuality = -1; // for other formats, where a quality would mean something else
constexpr int lockTime = 5000;     // milliseconds; a save takes far less

/// Writes everything, and flushes it to the disk: the data must be there before the move that follows.
bool writeAll(QFile& file, const QByteArray& bytes)
{
    return file.write(bytes) == bytes.size() && file.flush() && util::sync(file.handle());
}

/// The file system and the mount of a file or folder. Within one, a move is a single step.
struct Place
{
    quint64 device = 0;
    quint64 mount = 0;
    bool operator==(const Place&) const = default;
};

Place placeOf(const QString& path)
{
    struct statx status = {};
    statx(AT_FDCWD, QFile::encodeName(path).constData(), 0, STATX_BASIC_STATS | STATX_MNT_ID, &status);
    return {quint64(status.stx_dev_major) << 32 | status.stx_dev_minor, status.stx_mnt_id};
}

/// Whether the file is protected against writing. This is respected even by a user who may write anything.
bool isWriteProtected(const QString& path)
{
    constexpr auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const QFileInfo file(path);
    return file.exists() && (!file.isWritable() || !(file.permissions() & anyWrite));
}

bool isQuotable(const QString& name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('\'')) && !name.contains(QChar::Null);
}

/// The same file, by a name that no command mistakes for an option.
QString asOperand(const QString& name)
{
    return name.startsWith(QLatin1Char('-')) ? "./" + name : name;
}

/// Runs a command in the system shell. Its standard input is empty, so that it cannot wait for an answer in
/// a terminal.
bool moveByShell(const QString& from, const QString& to)
{
    if (!isQuotable(from) || !isQuotable(to))
        return false;
    QProcess shell;
    shell.setStandardInputFile(QProcess::nullDevice());
    shell.setProcessChannelMode(QProcess::ForwardedChannels);
    shell.start("/bin/sh", {"-c", QString("mv  '%1' '%2'").arg(asOperand(from), asOperand(to))});
    return shell.waitForFinished(-1) && shell.exitStatus() == QProcess::NormalExit && shell.exitCode() == 0;
}

/// The properties that a new file takes over from the one that it replaces.
struct Ownership
{
    bool isKnown = false; ///< false if the system did not say whether there is a file
    bool exists = false;
    mode_t mode = 0;
    uid_t user = 0;
    gid_t group = 0;

    [[nodiscard]] static Ownership of(const QString& fileName)
    {
        struct stat status = {};
        if (stat(QFile::encodeName(fileName).constData(), &status) != 0)
            return {errno == ENOENT, false, 0, 0, 0};
        constexpr mode_t permissions = 07777;
        return {true, true, status.st_mode & permissions, status.st_uid, status.st_gid};
    }

    /// The mode that a file is made with: nobody else may read it before it has its own.
    [[nodiscard]] mode_t firstMode() const
    {
        constexpr mode_t anyone = 0666;
        constexpr mode_t ownerOnly = 0600;
        return exists ? ownerOnly : anyone;
    }

    /// Always sets the mode, and the owner if the system permits.
    void giveTo(int handle) const
    {
        if (!exists)
            return;
        [[maybe_unused]] const int mayFail = fchown(handle, user, group);
        fchmod(handle, mode);
    }
};

/// A new file, complete and on the disk. It is removed with the object, unless it was moved.
class NewFile
{
public:
    explicit NewFile(const QString& name) : m_name(name), m_path(QFile::encodeName(name)) {}
    ~NewFile()
    {
        if (m_file.isOpen() && identity() != Identity::Other)
            unlink(m_path.constData());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    [[nodiscard]] bool write(const QByteArray& bytes, const Ownership& ownership)
    {
        const int handle = util::repeated([&] {
            return open(m_path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                        ownership.firstMode());
        });
        if (handle < 0 ||
            !m_file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle))
            return false;
        ownership.giveTo(handle);
        return writeAll(m_file, bytes);
    }
    [[nodiscard]] bool moveTo(const QString& target) const
    {
        return m_file.isOpen() && identity() == Identity::Ours && moveByShell(m_name, target);
    }

private:
    enum class Identity { Ours, Other, Unknown };

    /// Whether the name still refers to the file that was written.
    [[nodiscard]] Identity identity() const
    {
        struct stat named = {};
        struct stat opened = {};
        if (lstat(m_path.constData(), &named) != 0)
            return errno == ENOENT ? Identity::Other : Identity::Unknown;
        if (fstat(m_file.handle(), &opened) != 0)
            return Identity::Unknown;
        const bool isSame = named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
        return isSame ? Identity::Ours : Identity::Other;
    }

    QString m_name;
    QByteArray m_path;
    QFile m_file;
};

/// The file behind a name: the end of a chain of links, whether it exists or not.
QString behindLinks(const QString& name)
{
    constexpr int mostLinks = 40; // the system follows no more
    QString at = name;
    for (int i = 0; i < mostLinks; ++i) {
        const QFileInfo file(at);
        if (!file.isSymLink())
            return at;
        // Qt would resolve ".." in the text, which leads elsewhere if the folder is a link.
        std::error_code error;
        const QString to = QFile::decodeName(
            std::filesystem::read_symlink(QFile::encodeName(at).constData(), error).c_str());
        at = QDir::isAbsolutePath(to) ? to : file.path() + '/' + to;
    }
    return {};
}

struct Format
{
    const char* name;
    QByteArray (*encode)(const QImage& image, int quality);
};

QByteArray writtenAs(const char* format, const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format, quality) ? bytes : QByteArray();
}

constexpr Format formats[] = {
    {"PNG", [](const QImage& image, int) { return png::encoded(image); }},
    {"JPEG", [](const QImage& image, int quality) { return writtenAs("JPEG", image, quality); }},
    {"JPG", [](const QImage& image, int quality) { return writtenAs("JPEG", image, quality); }},
    {"BMP", [](const QImage& image, int) { return writtenAs("BMP", image, defaultQuality); }},
};

const Format* formatOf(const QByteArray& name)
{
    const auto* const found =
        std::find_if(std::begin(formats), std::end(formats), [&name](const Format& each) {
            return name.compare(each.name, Qt::CaseInsensitive) == 0;
        });
    return found == std::end(formats) ? nullptr : found;
}

/// The bytes for the greatest number in a range for which `attempt` gives any. It gives none for all
/// numbers above that.
template <typename Attempt>
QByteArray bestWithin(int lowest, int highest, const Attempt& attempt)
{
    QByteArray best;
    while (lowest <= highest) {
        const int middle = (lowest + highest + 1) / 2;
        if (const QByteArray bytes = attempt(middle); !bytes.isEmpty()) {
            best = bytes;
            lowest = middle + 1;
        } else {
            highest = middle - 1;
        }
    }
    return best;
}

bool isReplaceable(const QString& target)
{
    return isQuotable(target) && isQuotable(picturesave::temporaryPath()) && !QFileInfo(target).isDir() &&
           !isWriteProtected(target) && !isWriteProtected(QFileInfo(target).path());
}

bool saveUnder(const QString& target, const QByteArray& bytes)
{
    const Ownership before = Ownership::of(target);
    if (bytes.isEmpty() || !before.isKnown)
        return false;
    NewFile temporary(picturesave::temporaryPath());
    if (!temporary.write(bytes, before))
        return false;
    const QDir folder = QFileInfo(target).dir();
    if (placeOf(QFileInfo(picturesave::temporaryPath()).path()) == placeOf(folder.path()))
        return temporary.moveTo(target);
    // Between file systems a move destroys the old file before the new one is there. So the new one is
    // first copied beside it.
    NewFile beside(folder.filePath(".korva." + QUuid::createUuid().toString(QUuid::Id128)));
    return beside.write(bytes, before) && beside.moveTo(target);
}

} // namespace

QString picturesave::temporaryPath()
{
    const QString folder = qEnvironmentVariable("KIV_LOCAL_DOWNLOAD_PATH").trimmed();
    return folder + (folder.endsWith(QLatin1Char('/')) ? "appwrite/korva.temp" : "/appwrite/korva.temp");
}

QByteArray picturesave::encoded(const QImage& image, const QByteArray& format)
{
    const Format* writer = formatOf(format);
    return writer && !image.isNull() ? writer->encode(image, jpegQuality) : QByteArray();
}

QByteArray picturesave::encodedWithin(const QImage& image, const QByteArray& format, qsizetype mostBytes)
{
    const QByteArray best = encoded(image, format);
    if (mostBytes <= 0 || best.size() <= mostBytes)
        return best;
    const Format* writer = formatOf(format);
    if (writer->encode != formatOf("JPEG")->encode)
        return {}; // exact formats are written bit for bit or not at all
    const auto within = [mostBytes](const QByteArray& bytes) {
        return bytes.size() <= mostBytes ? bytes : QByteArray();
    };
    const QByteArray plainer = bestWithin(
        leastQuality, jpegQuality, [&](int quality) { return within(writer->encode(image, quality)); });
    if (!plainer.isEmpty())
        return plainer;
    return bestWithin(1, qMax(image.width(), image.height()), [&](int longSide) {
        const QImage smaller = image.scaled(
            image.size().scaled(longSide, longSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)),
            Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return within(writer->encode(smaller, leastQuality));
    });
}

bool picturesave::write(const QImage& image, const QString& fileName, const char* format)
{
    const QByteArray bytes =
        encoded(image, format ? QByteArray(format) : QFileInfo(fileName).suffix().toLatin1());
    if (bytes.isEmpty())
        return false;
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    const bool complete = writeAll(file, bytes);
    file.close();
    if (!complete)
        file.remove();
    return complete;
}

bool picturesave::replace(const QString& name, const std::function<QByteArray()>& encode)
{
    // Another program may share the download folder.
    UTIL_FileLock lock(temporaryPath() + ".lock");
    bool isSaved = false;
    if (lock.lock(lockTime)) {
        QFile::remove(temporaryPath()); // may be left by an earlier run, or planted
        const QString target = isQuotable(name) ? behindLinks(name) : QString();
        isSaved = isReplaceable(target) && saveUnder(target, encode());
        if (isSaved)
            util::syncFolder(QFileInfo(target).path());
    }
    lock.remove();
    return isSaved;
}
