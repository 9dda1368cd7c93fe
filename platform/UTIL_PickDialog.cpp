#include "UTIL_PickDialog.h"

#include "UTIL_PictureFolder.h"
#include "UTIL_PictureView.h"
#include "UTIL_PushButton.h"

UTIL_PickDialog::UTIL_PickDialog(QWidget* parent, const QString& path, const QStringList& patterns)
    : UTIL_FolderDialog(parent, tr("Open picture", "PICK_DIALOG;TITLE"),
                        tr("Open", "PICK_DIALOG;SOFTKEY_2BUTTON"), patterns)
{
    enter(path);
}

void UTIL_PickDialog::choose(const QString& path)
{
    setFileName(path);
    confirmKey().setEnabled(view().currentIndex().isValid());
}

/// On a folder the key goes there: nothing else could be meant.
void UTIL_PickDialog::confirm()
{
    const QModelIndex index = view().currentIndex();
    if (folder().isFolder(index))
        enter(folder().path(index));
    else if (!fileName().isEmpty())
        accept();
}
