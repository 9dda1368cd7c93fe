#pragma once

#include "KORVA_Export.h"

#include <QString>

/// What KorvaPreview() tells.
enum KORVA_PREVIEWRESULT : int {
    KORVA_PREVIEW_CONFIRMED = 900,
    KORVA_PREVIEW_CANCELLED = 902,
};

/// Shows a picture file to the user and returns when it was confirmed or cancelled, which is written to
/// `result` as a KORVA_PREVIEWRESULT. A file that cannot be read can only be cancelled. The first string
/// means nothing.
KORVA_EXPORT void KorvaPreview(const QString&, const QString& file, int& result);
