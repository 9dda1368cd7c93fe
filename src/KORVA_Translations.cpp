#include "KORVA_Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <algorithm>
#include <memory>

#include <dlfcn.h>

namespace {

constexpr auto translatorName = "KORVA_Translations";
constexpr auto english = "en";

const QString prefix = QStringLiteral("korva_");
const QString suffix = QStringLiteral(".qm");

struct Language
{
    QString code;
    QString file; ///< empty: the texts as they are written
};

QStringList& addedFolders()
{
    static QStringList folders;
    return folders;
}

/// Where this code lies: the shared library, or the program that it was linked into.
QString ownFolder()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&ownFolder), &info) == 0)
        return {};
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
}

QStringList folders()
{
    QStringList all = addedFolders();
    if (const QDir own(ownFolder()); !own.path().isEmpty())
        all << own.absoluteFilePath(QStringLiteral(KORVA_BUILT_TRANSLATIONS))
            << own.absoluteFilePath(QStringLiteral(KORVA_INSTALLED_TRANSLATIONS));
    return all + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                           QStringLiteral("korva/translations"),
                                           QStandardPaths::LocateDirectory);
}

/// What is there, the first choice first; a code may come several times.
QList<Language> found()
{
    QList<Language> all;
    for (const QString& folder : folders()) {
        const QDir dir(folder);
        for (const QString& name : dir.entryList({prefix + '*' + suffix}, QDir::Files)) {
            const QString code = name.mid(prefix.size()).chopped(suffix.size());
            all.append(Language{code, dir.absoluteFilePath(name)});
        }
    }
    all.append(Language{english, {}});
    return all;
}

/// How well a language's file suits a locale: 0 not at all.
int suitability(const QString& code, const QLocale& wanted)
{
    const QLocale own(code);
    if (own.language() != wanted.language() || own.script() != wanted.script())
        return 0;
    if (code == wanted.name())
        return 4;
    if (!code.contains('_')) // the language wherever it is spoken
        return 3;
    return own.territory() == wanted.territory() ? 2 : 1;
}

/// Those that suit the locale, the best first.
QList<Language> suitable(const QList<Language>& all, const QString& localeName)
{
    QLocale locale(localeName);
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English);
    QList<Language> fitting;
    std::copy_if(all.begin(), all.end(), std::back_inserter(fitting),
                 [&locale](const Language& language) { return suitability(language.code, locale) > 0; });
    std::stable_sort(fitting.begin(), fitting.end(), [&locale](const Language& a, const Language& b) {
        return suitability(a.code, locale) > suitability(b.code, locale);
    });
    return fitting;
}

QTranslator* loaded()
{
    return QCoreApplication::instance()->findChild<QTranslator*>(translatorName,
                                                                 Qt::FindDirectChildrenOnly);
}

bool install(const QString& file)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file))
        return false;
    translator->setObjectName(translatorName);
    translator->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

bool KORVA_Translations::load(const QLocale& locale)
{
    unload();
    const QList<Language> all = found();
    for (const QString& name : locale.uiLanguages()) {
        for (const Language& language : suitable(all, name)) {
            if (language.file.isEmpty() || install(language.file))
                return true;
        }
    }
    return false;
}

void KORVA_Translations::unload()
{
    delete loaded(); // its destructor takes it out of the application
}

QString KORVA_Translations::language()
{
    const QTranslator* translator = loaded();
    return translator ? QFileInfo(translator->filePath()).completeBaseName().mid(prefix.size()) : english;
}

QStringList KORVA_Translations::languages()
{
    QStringList codes;
    for (const Language& language : found())
        codes.append(language.code);
    codes.sort();
    codes.removeDuplicates();
    return codes;
}

void KORVA_Translations::addFolder(const QString& folder)
{
    addedFolders().prepend(folder);
}
