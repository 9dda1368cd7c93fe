#pragma once

#include "UTIL_PictureDialog.h"

class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class UTIL_PictureFolder;
class UTIL_PictureView;
class UTIL_PushButton;

/// What the dialogs for picking and for naming a picture file have in common: a title, a folder that can be
/// gone through, in an order that the user chooses, and the two keys. It fills the window that it belongs
/// to, or the screen of the device.
///
/// While the program runs, a dialog of the same kind that begins in the folder where the last one was left
/// shows the same place in it.
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
    /// Puts a widget between the folder and the keys.
    void addBelowFolder(QWidget* widget);

    /// Goes to a folder and lets it be seen.
    virtual void enter(const QString& folder);
    /// A picture became the current one; none of the folder's when it is empty.
    virtual void choose(const QString& path) = 0;
    /// The confirm key, or a picture opened.
    virtual void confirm() = 0;
    void fit() override;

private:
    void open(const QModelIndex& index);
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
