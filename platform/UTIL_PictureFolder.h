#pragma once

#include "UTIL_PictureDialog.h"
#include "UTIL_Thumbnails.h"

#include <QAbstractListModel>

/// A folder as a model: its sub-folders by name, then its files that match the patterns, by name or the
/// newest first. The texts are names, the decorations are thumbnails.
class UTIL_PictureFolder : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role : int {
        IsFolderRole = Qt::UserRole,
        IsMadeRole, ///< whether the decoration is final; if it is and there is none, the file is no picture
    };

    explicit UTIL_PictureFolder(const QStringList& patterns, QObject* parent = nullptr);

    void setFolder(const QString& folder);
    void setOrder(UTIL_PictureDialog::Order order);
    /// An absolute path.
    [[nodiscard]] QString folder() const { return m_folder; }
    /// False for a folder that exists but cannot be read.
    [[nodiscard]] bool isReadable() const { return m_isReadable; }
    [[nodiscard]] QString path(const QModelIndex& index) const;
    [[nodiscard]] bool isFolder(const QModelIndex& index) const;
    /// The row of an entry; invalid if no entry has this name.
    [[nodiscard]] QModelIndex find(const QString& name) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    void list();
    void tellReady(const QString& fileName);

    QStringList m_patterns;
    UTIL_PictureDialog::Order m_order = UTIL_PictureDialog::ByName;
    QString m_folder;
    bool m_isReadable = true;
    QStringList m_names; ///< sub-folders first
    int m_folderCount = 0;
    mutable UTIL_Thumbnails m_thumbnails; ///< starts making thumbnails when data() asks for them
};
