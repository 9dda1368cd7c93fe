#pragma once

#include "KORVA_Export.h"
#include "UTIL_Dialog.h"

/// Shows a picture file's thumbnail and name, which the user confirms or cancels; exec() is 1 or 0. Its
/// caller runs it. The file need not be readable to be confirmed.
class KORVA_EXPORT KORVA_Preview_Dialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// Neither modal nor with a parent.
    explicit KORVA_Preview_Dialog(const QString& file);
};
