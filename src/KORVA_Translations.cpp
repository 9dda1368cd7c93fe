#include "KORVA_Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace {

constexpr auto translatorName = "KORVA_Translations";

struct LanguageRow
{
    QLocale::Language language;
    QLocale::Script script;
    const char* file; // null for the language that the texts are written in
};

constexpr LanguageRow languages[] = {
    {QLocale::C, QLocale::AnyScript, nullptr},
    {QLocale::English, QLocale::AnyScript, nullptr},
    {QLocale::German, QLocale::AnyScript, ":/korva/translations/korva_de.qm"},
    {QLocale::Chinese, QLocale::SimplifiedHanScript, ":/korva/translations/korva_zh_CN.qm"},
};

const LanguageRow* findLanguage(const QLocale& wanted)
{
    for (const QString& name : wanted.uiLanguages()) {
        const QLocale locale(name);
        const auto fits = [&locale](const LanguageRow& row) {
            return row.language == locale.language() &&
                   (row.script == QLocale::AnyScript || row.script == locale.script());
        };
        const LanguageRow* row = std::find_if(std::begin(languages), std::end(languages), fits);
        if (row != std::end(languages))
            return row;
    }
    return nullptr;
}

} // namespace

bool KORVA_Translations::load(const QLocale& locale)
{
    unload();
    const LanguageRow* row = findLanguage(locale);
    if (!row || !row->file)
        return row;
    auto* translator = new QTranslator(QCoreApplication::instance());
    translator->setObjectName(translatorName);
    return translator->load(QLatin1String(row->file)) && QCoreApplication::installTranslator(translator);
}

void KORVA_Translations::unload()
{
    // Its destructor takes it out of the application.
    delete QCoreApplication::instance()->findChild<QTranslator*>(translatorName,
                                                                 Qt::FindDirectChildrenOnly);
}
