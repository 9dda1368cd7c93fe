#pragma once

#include "KORVA_Export.h"

class QLocale;

/// The library's texts in other languages than English. The library touches no translator of its host by
/// itself: whoever wants them calls load(). GUI thread only, while the application object exists.
class KORVA_EXPORT KORVA_Translations
{
public:
    KORVA_Translations() = delete;

    /// Shows the library's texts in the first of the locale's user interface languages that it knows:
    /// English, German or Simplified Chinese; in English, and false, when it knows none. Replaces what an
    /// earlier call loaded. Call it before the first widget is made: texts are read when a widget is made
    /// and stay.
    static bool load(const QLocale& locale);
    /// English again, as before the first load(); nothing of the library is left in the application.
    static void unload();
};
