#pragma once

#include "KORVA_Export.h"

#include <QString>

/// @file
/// The picture preview for programs that need no editor.

/// The results of KorvaPreview().
enum KORVA_PREVIEWRESULT : int {
    KORVA_PREVIEW_CONFIRMED = 900, ///< the user took the picture
    KORVA_PREVIEW_CANCELLED = 902, ///< the user pressed Cancel or Escape, or closed the dialog
};

/// Shows a picture file to the user, and returns when the user has confirmed or cancelled. `result` is then
/// a KORVA_PREVIEWRESULT. If the file cannot be read the user is told, and can only cancel. The first
/// string is not used. For the GUI thread only; runs an event loop.
KORVA_EXPORT void KorvaPreview(const QString&, const QString& file, int& result);
