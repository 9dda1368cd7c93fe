#include "KORVA_Preview_Dialog.h"

#include "IMV_UI_IconViewItem.h"
#include "UTIL_PushButton.h"

#include <QFileInfo>

namespace {

constexpr QRect thumbnailRect(10, 14, 204, 191);

} // namespace

KORVA_Preview_Dialog::KORVA_Preview_Dialog(const QString& file) : UTIL_Dialog(StandardDialog, false)
{
    auto* thumbnail = new IMV_UI_IconViewItem(QFileInfo(file), content());
    thumbnail->setGeometry(thumbnailRect);
    // The keys are the other way round than in KORVA_ImageView_Dialog; users of this dialog know them so.
    connect(createSoftKey(tr("Cancel", "4.4.2.12;SOFTKEY_2BUTTON"), 10), &QPushButton::clicked, this,
            &QDialog::reject);
    connect(createSoftKey(tr("Confirm", "4.4.2.12;SOFTKEY_2BUTTON"), 9), &QPushButton::clicked, this,
            &QDialog::accept);
}
