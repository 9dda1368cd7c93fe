#pragma once

#include "KORVA_Export.h"

#include <QStringList>

class QLocale;

/// The library's texts in other languages than English. Each language is a file, korva_de.qm for German, in
/// a folder beside the library or in korva/translations of the data folders; what is there is what is
/// known. The library touches no translator of its host by itself: whoever wants them calls load(). GUI
/// thread only, while the application object exists.
class KORVA_EXPORT KORVA_Translations
{
public:
    KORVA_Translations() = delete;

    /// Shows the library's texts in the first of the locale's user interface languages that it knows, in
    /// English, and false, when it knows none. Of several files for a language the one for the locale's
    /// country is taken; the script must be the locale's (Hong Kong reads korva_zh_TW). A file that cannot
    /// be read is as if it were not there. Replaces what an earlier call loaded. Call it before the first
    /// widget is made: texts are read when a widget is made and stay.
    static bool load(const QLocale& locale);
    /// English again, as before the first load(); nothing of the library is left in the application.
    static void unload();

    /// The code of what load() has loaded, like "de" or "zh_TW"; "en" for English.
    static QString language();
    /// The codes of all languages that load() could show, English among them, sorted.
    static QStringList languages();
    /// Looks into this folder first, before those that were added earlier; at the next load().
    static void addFolder(const QString& folder);
};
