#include "KORVA_Preview.h"

#include "KORVA_ImageView_Dialog.h"

void KorvaPreview(const QString&, const QString& file, int& result)
{
    KORVA_ImageView_Dialog viewer(file);
    switch (viewer.exec()) {
    case QDialog::Rejected:
        result = KORVA_PREVIEW_CANCELLED;
        break;
    case QDialog::Accepted:
        result = KORVA_PREVIEW_CONFIRMED;
        break;
    }
}
