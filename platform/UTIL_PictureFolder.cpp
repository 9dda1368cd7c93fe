#include "UTIL_PictureFolder.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <vector>

namespace {

/// As people sort: whatever the case, and 9 before 10.
QStringList sorted(const QStringList& names)
{
    // The C locale knows no numbers.
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

} // namespace

UTIL_PictureFolder::UTIL_PictureFolder(const QStringList& patterns, QObject* parent)
    : QAbstractListModel(parent), m_patterns(patterns)
{
    connect(&m_thumbnails, &UTIL_Thumbnails::ready, this, &UTIL_PictureFolder::tellReady);
}

void UTIL_PictureFolder::setFolder(const QString& folder)
{
    beginResetModel();
    m_thumbnails.clear();
    const QDir dir(folder);
    m_folder = QDir::cleanPath(dir.absolutePath());
    const QStringList folders = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    m_folderCount = int(folders.size());
    m_names = sorted(folders) + sorted(dir.entryList(m_patterns, QDir::Files, QDir::Unsorted));
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
        return m_names[index.row()];
    case Qt::DecorationRole:
        return isFolder(index) ? QVariant() : m_thumbnails.wanted(path(index));
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
