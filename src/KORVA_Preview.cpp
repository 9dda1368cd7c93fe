#include "KORVA_Preview.h"

#include "KORVA_ImageView_Dialog.h"
#include "UTIL_Modal.h"

void KorvaPreview(const QString&, const QString& file, int& result)
{
    UTIL_Modal viewer(new KORVA_ImageView_Dialog(file));
    switch (viewer.run()) {
    case QDialog::Rejected:
        result = KORVA_PREVIEW_CANCELLED;
        break;
    case QDialog::Accepted:
        result = KORVA_PREVIEW_CONFIRMED;
        break;
    }
}
