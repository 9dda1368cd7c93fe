#pragma once

#include "KORVA_Export.h"

#include <QStringList>

class QLocale;

/// The library's texts in other languages than English. Each language is a file, korva_de.qm for German, in
/// a folder beside the library or in korva/translations of the data folders; the files that exist are the
/// known languages. The library touches no translator of its host until load() is called. GUI thread only,
/// while the application object exists.
class KORVA_EXPORT KORVA_Translations
{
public:
    KORVA_Translations() = delete;

    /// Shows the library's texts in the first of the locale's user interface languages that it knows. If it
    /// knows none the texts are English, and the result is false. Of several files for a language the one
    /// for the locale's country is taken; the script must be the locale's (Hong Kong reads korva_zh_TW). A
    /// file that cannot be read does not count. Replaces what an earlier call loaded. Call it before the
    /// first widget is made: texts are read when a widget is made and stay.
    static bool load(const QLocale& locale);
    /// Shows English again, as before the first load(). Nothing of the library stays in the application.
    static void unload();

    /// The code of what load() has loaded, like "de" or "zh_TW"; "en" for English.
    static QString language();
    /// The codes of all languages that load() could show, English among them, sorted.
    static QStringList languages();
    /// From the next load() on, looks into this folder first, before those that were added earlier.
    static void addFolder(const QString& folder);
};
