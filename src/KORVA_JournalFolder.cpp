#include "KORVA_JournalFolder.h"

#include "UTIL_FileLock.h"
#include "UTIL_PictureProbe.h"
#include "UTIL_Sync.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

constexpr int leftoverAge = 60; // seconds; no write takes as long

const QString livingPrefix = QStringLiteral("living-");
const QString earlierPrefix = QStringLiteral("earlier-");
const QString pictureSuffix = QStringLiteral(".png");
const QString lockSuffix = QStringLiteral(".lock");
const QString nameKey = QStringLiteral("PictureName");

/// The files whose names fulfil a condition. Qt's own patterns would load a library at every start.
template <typename Condition>
QFileInfoList filesOf(const QString& folder, QDir::SortFlags order, const Condition& isMeant)
{
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, order);
    files.removeIf([&](const QFileInfo& file) { return !isMeant(file.fileName()); });
    return files;
}

QFileInfoList filesIn(const QString& folder, const QString& prefix)
{
    return filesOf(folder, QDir::Name | QDir::Reversed, [&](const QString& name) {
        return name.startsWith(prefix) && name.endsWith(pictureSuffix);
    });
}

} // namespace

KORVA_JournalFolder::KORVA_JournalFolder(const QString& path)
    : m_path(QDir::cleanPath(QDir(path).absolutePath()))
{
}

bool KORVA_JournalFolder::make() const
{
    if (QFileInfo(m_path).isDir())
        return true;
    return QDir().mkpath(m_path) &&
           QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString KORVA_JournalFolder::newId()
{
    static int count = 0;
    return QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz-")) +
           QStringLiteral("%1-%2")
               .arg(++count, 6, 10, QLatin1Char('0'))
               .arg(QRandomGenerator::global()->generate(), 0, 16);
}

QString KORVA_JournalFolder::livingFile(const QString& id) const
{
    return m_path + '/' + livingPrefix + id + pictureSuffix;
}

QString KORVA_JournalFolder::lockFile(const QString& id) const
{
    return m_path + '/' + livingPrefix + id + lockSuffix;
}

QString KORVA_JournalFolder::newEarlierFile() const
{
    return m_path + '/' + earlierPrefix + newId() + pictureSuffix;
}

QString KORVA_JournalFolder::store(const QImage& picture, const QString& fileName,
                                   const QString& pictureName, Size size)
{
    // In memory first: a writer that fails half-way through a file loses some of its own.
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    writer.setText(nameKey, pictureName);
    writer.setQuality(size);
    if (!writer.write(picture))
        return writer.errorString();
    QSaveFile file(fileName);
    const auto error = [&file] { return errno != 0 ? systemError() : file.errorString(); };
    errno = 0;
    if (!file.open(QIODevice::WriteOnly))
        return error();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    errno = 0;
    if (file.write(bytes) != bytes.size() || !file.flush() || !util::sync(file.handle()))
        return error();
    errno = 0;
    if (!file.commit())
        return error();
    util::syncFolder(QFileInfo(fileName).path());
    return {};
}

QString KORVA_JournalFolder::systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

KORVA_Journal::Entry KORVA_JournalFolder::entryOf(const QString& fileName)
{
    KORVA_Journal::Entry entry{fileName, {}, QFileInfo(fileName).lastModified(), {}};
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return entry;
    const UTIL_PictureProbe probe = UTIL_PictureProbe::of(file);
    if (probe.format != "PNG" || !probe.sound) // of damaged files the reader below would complain
        return entry;
    const QImageReader reader(fileName, "png");
    entry.pictureName = reader.text(nameKey);
    entry.size = reader.size();
    return entry;
}

QStringList KORVA_JournalFolder::livingIds() const
{
    QFileInfoList files = filesIn(m_path, livingPrefix);
    std::sort(files.begin(), files.end(), [](const QFileInfo& one, const QFileInfo& other) {
        return one.lastModified() < other.lastModified();
    });
    QStringList ids;
    for (const QFileInfo& file : files)
        ids.append(file.completeBaseName().sliced(livingPrefix.size()));
    return ids;
}

QList<KORVA_Journal::Entry> KORVA_JournalFolder::earlier() const
{
    QList<KORVA_Journal::Entry> entries;
    for (const QFileInfo& file : filesIn(m_path, earlierPrefix)) {
        if (const KORVA_Journal::Entry entry = entryOf(file.filePath()); entry.size.isValid())
            entries.append(entry);
    }
    return entries;
}

void KORVA_JournalFolder::moveAmongEarlier(const QString& id) const
{
    // It gets a new identifier: with the old one, a drawing begun long ago would be pruned first.
    QFile::rename(livingFile(id), newEarlierFile());
}

void KORVA_JournalFolder::prune(int most, const QString& spared) const
{
    const QFileInfoList files = filesIn(m_path, earlierPrefix);
    for (qsizetype i = most; i < files.size(); ++i) {
        if (files[i].filePath() != spared)
            QFile::remove(files[i].filePath());
    }
}

void KORVA_JournalFolder::removeLeftovers() const
{
    const QDateTime lately = QDateTime::currentDateTime().addSecs(-leftoverAge);
    const auto isHalfWritten = [](const QString& name) { return name.contains(pictureSuffix + '.'); };
    for (const QFileInfo& file : filesOf(m_path, QDir::NoSort, isHalfWritten)) {
        if (file.lastModified() < lately)
            QFile::remove(file.filePath());
    }
    const auto isLock = [](const QString& name) {
        return name.startsWith(livingPrefix) && name.endsWith(lockSuffix);
    };
    for (const QFileInfo& file : filesOf(m_path, QDir::NoSort, isLock)) {
        if (QFile::exists(m_path + '/' + file.completeBaseName() + pictureSuffix))
            continue;
        UTIL_FileLock lock(file.filePath());
        if (lock.lock())
            lock.remove();
    }
}
