#include "UTIL_PictureFolder.h"

#include <QCollator>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// The order in which people sort: whatever the case, and 9 before 10.
QStringList sorted(const QStringList& names)
{
    // The C locale would sort 10 before 9.
    QCollator collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, QString>> keyed;
    for (const QString& name : names)
        keyed.emplace_back(collator.sortKey(name), name);
    std::sort(keyed.begin(), keyed.end(), [](const auto& left, const auto& right) {
        const int order = left.first.compare(right.first);
        return order != 0 ? order < 0 : left.second < right.second;
    });
    QStringList result;
    for (const auto& [key, name] : keyed)
        result.append(name);
    return result;
}

/// Files of the same moment are sorted by name.
QStringList newestFirst(const QFileInfoList& files)
{
    QHash<QString, qint64> times;
    QStringList names;
    for (const QFileInfo& file : files) {
        times.insert(file.fileName(), file.lastModified().toMSecsSinceEpoch());
        names.append(file.fileName());
    }
    names = sorted(names);
    std::stable_sort(names.begin(), names.end(), [&times](const QString& left, const QString& right) {
        return times.value(left) > times.value(right);
    });
    return names;
}

} // namespace

UTIL_PictureFolder::UTIL_PictureFolder(const QStringList& patterns, QObject* parent)
    : QAbstractListModel(parent), m_patterns(patterns)
{
    connect(&m_thumbnails, &UTIL_Thumbnails::ready, this, &UTIL_PictureFolder::tellReady);
}

void UTIL_PictureFolder::setFolder(const QString& folder)
{
    m_folder = QDir::cleanPath(QDir(folder).absolutePath());
    list();
}

void UTIL_PictureFolder::setOrder(UTIL_PictureDialog::Order order)
{
    if (order == std::exchange(m_order, order) || m_folder.isEmpty())
        return;
    list();
}

void UTIL_PictureFolder::list()
{
    beginResetModel();
    m_thumbnails.clear();
    const QDir dir(m_folder);
    const QFileInfo place(m_folder);
    m_isReadable = !place.exists() || (place.isDir() && place.isReadable() && place.isExecutable());
    const QStringList folders = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    m_folderCount = int(folders.size());
    m_names =
        sorted(folders) + (m_order == UTIL_PictureDialog::NewestFirst
                               ? newestFirst(dir.entryInfoList(m_patterns, QDir::Files, QDir::Unsorted))
                               : sorted(dir.entryList(m_patterns, QDir::Files, QDir::Unsorted)));
    endResetModel();
}

QString UTIL_PictureFolder::path(const QModelIndex& index) const
{
    return QDir(m_folder).filePath(m_names.value(index.row()));
}

bool UTIL_PictureFolder::isFolder(const QModelIndex& index) const
{
    return index.isValid() && index.row() < m_folderCount;
}

QModelIndex UTIL_PictureFolder::find(const QString& name) const
{
    return index(int(m_names.indexOf(name)));
}

int UTIL_PictureFolder::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_names.size());
}

QVariant UTIL_PictureFolder::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return m_names[index.row()];
    case Qt::DecorationRole:
        return isFolder(index) ? QVariant() : m_thumbnails.wanted(path(index));
    case IsMadeRole:
        return m_thumbnails.isMade(path(index));
    case IsFolderRole:
        return isFolder(index);
    default:
        return {};
    }
}

void UTIL_PictureFolder::tellReady(const QString& fileName)
{
    const QFileInfo file(fileName);
    const QModelIndex at = find(file.fileName());
    if (at.isValid() && file.path() == m_folder)
        emit dataChanged(at, at, {Qt::DecorationRole});
}
