#pragma once

#include "UTIL_PictureDialog.h"

class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class UTIL_PictureFolder;
class UTIL_PictureView;
class UTIL_PushButton;

/// The common base of the dialogs for picking and for naming a picture file: a title, a folder to browse in
/// an order that the user chooses, and two keys. It fills the window that it belongs to, or the device's
/// screen.
///
/// While the program runs, each kind of dialog remembers its place: the next dialog that begins in the
/// folder where the last one was left shows the same entries.
class UTIL_FolderDialog : public UTIL_PictureDialog
{
    Q_OBJECT

public:
    void setPurpose(const QString& title, const QString& verb) override;
    void reject() override;
    void done(int result) override;
    void setVisible(bool visible) override;

protected:
    /// `verb` is the text of the key that confirms.
    UTIL_FolderDialog(QWidget* parent, const QString& title, const QString& verb,
                      const QStringList& patterns);

    [[nodiscard]] UTIL_PictureFolder& folder() const { return *m_folder; }
    [[nodiscard]] UTIL_PictureView& view() const { return *m_view; }
    [[nodiscard]] UTIL_PushButton& confirmKey() const { return *m_confirmKey; }
    /// Adds a widget between the folder and the keys.
    void addBelowFolder(QWidget* widget);

    /// Goes to a folder and shows it.
    virtual void enter(const QString& folder);
    /// A picture became the current one; an empty path means that none in the folder is.
    virtual void choose(const QString& path) = 0;
    /// The confirm key was pressed, or a picture was opened.
    virtual void confirm() = 0;
    void fit() override;

private:
    void openItem(const QModelIndex& index);
    void goUp();
    void createOrderMenu(UTIL_PushButton& key);
    void sortBy(Order order);
    void showPlace();

    UTIL_PictureFolder* m_folder;
    UTIL_PictureView* m_view;
    QLabel* m_caption;
    QLabel* m_place;
    UTIL_PushButton* m_upKey;
    UTIL_PushButton* m_confirmKey;
    QVBoxLayout* m_layout;
    QHBoxLayout* m_head;
    bool m_isSorting = false;
};
