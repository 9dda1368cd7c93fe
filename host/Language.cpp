#include "Language.h"

#include <KORVA_Translations.h>

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace pad::language {

namespace {

QString& chosen()
{
    static QString code;
    return code;
}

void loadToolkitsTexts(const QString& code)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QStringLiteral("qtbase_") + code,
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

void choose(const QString& code)
{
    chosen() = code;
}

bool load()
{
    bool isSpoken = true;
    if (chosen().isEmpty()) {
        KORVA_Translations::load(QLocale());
    } else {
        const QLocale wanted(chosen());
        // A name that is no language's gives the locale of none.
        const bool isLanguage = wanted.language() != QLocale::C || chosen() == QLatin1String("C") ||
                                chosen() == QLatin1String("POSIX");
        isSpoken = isLanguage && KORVA_Translations::load(wanted);
        QLocale::setDefault(isSpoken ? wanted : QLocale(QLocale::English));
    }
    const QString code = KORVA_Translations::language();
    loadToolkitsTexts(code);
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(QLocale(code).textDirection());
    return isSpoken;
}

QString complaint()
{
    return QCoreApplication::translate(
               "pad::CommandLine", "there is no language '%1'; taking English (known: %2)", "command line")
        .arg(chosen(), KORVA_Translations::languages().join(QLatin1String(", ")));
}

Early::Early()
{
    load();
}

} // namespace pad::language
