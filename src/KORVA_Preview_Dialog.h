#pragma once

#include "KORVA_Export.h"
#include "UTIL_Dialog.h"

/// The dialog that shows a picture file's thumbnail and name, which the user confirms or cancels; exec()
/// returns 1 or 0. Its caller runs it. Even a file that cannot be read can be confirmed.
class KORVA_EXPORT KORVA_Preview_Dialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// The dialog is not modal and has no parent.
    explicit KORVA_Preview_Dialog(const QString& file);
};
