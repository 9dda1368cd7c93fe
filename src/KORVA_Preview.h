#pragma once

#include "KORVA_Export.h"

#include <QString>

/// @file
/// The picture preview for programs that need no editor.

/// What KorvaPreview() tells.
enum KORVA_PREVIEWRESULT : int {
    KORVA_PREVIEW_CONFIRMED = 900, ///< the user took the picture
    KORVA_PREVIEW_CANCELLED = 902, ///< with the Cancel key, Escape or by closing
};

/// Shows a picture file to the user and returns when it was confirmed or cancelled, which is written to
/// `result` as a KORVA_PREVIEWRESULT. A file that cannot be read, of which the user is told, can only be
/// cancelled. The first string means nothing. GUI thread only; runs an event loop.
KORVA_EXPORT void KorvaPreview(const QString&, const QString& file, int& result);
