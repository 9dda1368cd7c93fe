#pragma once

#include <KORVA_Translations.h>

#include <QString>

/// The kiosk's own words, in English and in German; the library has its own.
struct Word
{
    const char* english;
    const char* german;

    [[nodiscard]] QString text() const
    {
        return QString::fromUtf8(KORVA_Translations::language() == "de" ? german : english);
    }
};
