#include "UTIL_PictureFolder.h"

#include <QDir>
#include <QFileInfo>

UTIL_PictureFolder::UTIL_PictureFolder(const QStringList& patterns, QObject* parent)
    : QAbstractListModel(parent), m_patterns(patterns)
{
    connect(&m_thumbnails, &UTIL_Thumbnails::ready, this, &UTIL_PictureFolder::tellReady);
}

void UTIL_PictureFolder::setFolder(const QString& folder)
{
    constexpr QDir::SortFlags byName = QDir::Name | QDir::IgnoreCase;
    beginResetModel();
    m_thumbnails.clear();
    const QDir dir(folder);
    m_folder = QDir::cleanPath(dir.absolutePath());
    const QStringList folders = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, byName);
    m_folderCount = int(folders.size());
    m_names = folders + dir.entryList(m_patterns, QDir::Files, byName);
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
