#include "KORVA_PictureSave.h"

#include "UTIL_Png.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int jpegQuality = 96;
constexpr int defaultQuality = -1; // for other writers the number would mean something else

/// Removes the file, whatever is still there, when it goes.
class Remover
{
public:
    explicit Remover(const QString& fileName) : m_fileName(fileName) {}
    ~Remover() { QFile::remove(m_fileName); }
    Remover(const Remover&) = delete;
    Remover& operator=(const Remover&) = delete;

private:
    QString m_fileName;
};

QByteArray encoded(const QImage& image, const QString& format)
{
    if (format == "PNG")
        return png::encoded(image);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool isJpeg = format == "JPEG" || format == "JPG";
    return image.save(&buffer, format.toLatin1().constData(), isJpeg ? jpegQuality : defaultQuality)
               ? bytes
               : QByteArray();
}

/// Everything written, and on the disk: the move that follows must not be there before the data is.
bool writeAll(QFile& file, const QByteArray& bytes)
{
    return file.write(bytes) == bytes.size() && file.flush() && fsync(file.handle()) == 0;
}

/// The file system and the mount that a file or folder lies on: within one, a move is a single step.
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

/// Whether it was protected against writing, be it only from others: even who may do anything respects
/// that.
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

/// The same file, by a name that no command takes for an option.
QString asOperand(const QString& name)
{
    return name.startsWith(QLatin1Char('-')) ? "./" + name : name;
}

/// Through the system shell. Its standard input is empty, so that no question of the command's can wait for
/// an answer in a terminal.
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

/// Between file systems a move destroys the old file before the new one is there. So the new one first goes
/// beside it, under a name of its own.
bool moveAcross(const QString& from, const QString& to)
{
    QFile source(from);
    QTemporaryFile beside(QFileInfo(to).dir().filePath(".korva.XXXXXX")); // removes itself unless moved
    if (!source.open(QIODevice::ReadOnly) || !beside.open() || !writeAll(beside, source.readAll()))
        return false;
    beside.setPermissions(source.permissions()); // a temporary file is its owner's alone
    return moveByShell(beside.fileName(), to);
}

} // namespace

QString picturesave::temporaryPath()
{
    const QString folder = qEnvironmentVariable("KIV_LOCAL_DOWNLOAD_PATH").trimmed();
    return folder + (folder.endsWith(QLatin1Char('/')) ? "appwrite/korva.temp" : "/appwrite/korva.temp");
}

bool picturesave::write(const QImage& image, const QString& fileName, const char* format)
{
    const QString type = (format ? QString::fromLatin1(format) : QFileInfo(fileName).suffix()).toUpper();
    const QByteArray bytes = encoded(image, type);
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

bool picturesave::replace(const QString& name,
                          const std::function<bool(const QString& temporaryPath)>& encode)
{
    const QFileInfo target(name);
    const QString folder = target.path();
    const QString temporary = temporaryPath();
    if (!isQuotable(name) || !isQuotable(temporary) || target.isDir() || isWriteProtected(name) ||
        isWriteProtected(folder))
        return false;

    // What an earlier run left, or someone planted, is not written through.
    QFile::remove(temporary);
    const Remover remover(temporary);
    if (!encode(temporary))
        return false;
    return placeOf(temporary) == placeOf(folder) ? moveByShell(temporary, name)
                                                 : moveAcross(temporary, name);
}
