#include "UTIL_PictureDialog.h"

namespace {

UTIL_PictureDialog::Order chosenOrder = UTIL_PictureDialog::ByName;

} // namespace

UTIL_PictureDialog::Order UTIL_PictureDialog::order()
{
    return chosenOrder;
}

void UTIL_PictureDialog::setOrder(Order order)
{
    chosenOrder = order;
}
