#pragma once

#include "UTIL_PictureDialog.h"

class QLabel;
class QVBoxLayout;
class UTIL_PictureFolder;
class UTIL_PictureView;
class UTIL_PushButton;

/// What the dialogs for picking and for naming a picture file have in common: a folder that can be gone
/// through, and the two keys. It fills the screen.
class UTIL_FolderDialog : public UTIL_PictureDialog
{
    Q_OBJECT

public:
    void reject() override;

protected:
    UTIL_FolderDialog(QWidget* parent, const QString& title, const QStringList& patterns);

    [[nodiscard]] UTIL_PictureFolder& folder() const { return *m_folder; }
    [[nodiscard]] UTIL_PictureView& view() const { return *m_view; }
    [[nodiscard]] UTIL_PushButton& confirmKey() const { return *m_confirmKey; }
    /// Puts a widget between the folder and the keys.
    void addBelowFolder(QWidget* widget);

    /// Goes to a folder and lets it be seen.
    virtual void enter(const QString& folder);
    /// A picture became the current one; none of the folder's when it is empty.
    virtual void choose(const QString& path) = 0;
    /// The confirm key, or a picture opened.
    virtual void confirm() = 0;

private:
    void open(const QModelIndex& index);
    void goUp();

    UTIL_PictureFolder* m_folder;
    UTIL_PictureView* m_view;
    QLabel* m_place;
    UTIL_PushButton* m_upKey;
    UTIL_PushButton* m_confirmKey;
    QVBoxLayout* m_layout;
};
