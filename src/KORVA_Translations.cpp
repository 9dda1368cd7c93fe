#include "KORVA_Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <memory>

#include <dlfcn.h>

namespace {

constexpr auto translatorName = "KORVA_Translations";
constexpr auto english = "en";

const QString prefix = QStringLiteral("korva_");
const QString suffix = QStringLiteral(".qm");

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
    if (const QString own = ownFolder(); !own.isEmpty())
        all << QDir(own).filePath(QStringLiteral(KORVA_BUILT_TRANSLATIONS))
            << QDir(own).filePath(QStringLiteral(KORVA_INSTALLED_TRANSLATIONS));
    return all + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                           QStringLiteral("korva/translations"),
                                           QStandardPaths::LocateDirectory);
}

/// All languages' files, the first choice first; a language may come several times.
QStringList files()
{
    QStringList all;
    for (const QString& folder : folders()) {
        const QDir dir(folder);
        for (const QString& name : dir.entryList(QDir::Files)) {
            if (name.startsWith(prefix) && name.endsWith(suffix))
                all.append(dir.absoluteFilePath(name));
        }
    }
    return all;
}

QString codeOf(const QString& file)
{
    return QFileInfo(file).completeBaseName().mid(prefix.size());
}

constexpr int best = 4;

/// How well a language suits a locale: 0 not at all.
int suitability(const QString& code, const QLocale& wanted)
{
    const QLocale own(code);
    if (own.language() != wanted.language() || own.script() != wanted.script())
        return 0;
    if (code == wanted.name())
        return best;
    if (!code.contains('_')) // the language wherever it is spoken
        return 3;
    return own.territory() == wanted.territory() ? 2 : 1;
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

/// The one that suits best of those that can be read. English needs none but for its plural forms, and is
/// what a locale of no language reads.
bool installFor(const QLocale& wished, const QStringList& all)
{
    const QLocale locale = wished.language() == QLocale::C ? QLocale(english) : wished;
    for (int wanted = best; wanted > 0; --wanted) {
        for (const QString& file : all) {
            if (suitability(codeOf(file), locale) == wanted && install(file))
                return true;
        }
    }
    return locale.language() == QLocale::English;
}

} // namespace

bool KORVA_Translations::load(const QLocale& locale)
{
    unload();
    const QStringList all = files();
    for (const QString& name : locale.uiLanguages()) {
        if (installFor(QLocale(name), all))
            return true;
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
    return translator ? codeOf(translator->filePath()) : QString(english);
}

QStringList KORVA_Translations::languages()
{
    QStringList codes{english};
    for (const QString& file : files())
        codes.append(codeOf(file));
    codes.sort();
    codes.removeDuplicates();
    return codes;
}

void KORVA_Translations::addFolder(const QString& folder)
{
    addedFolders().prepend(folder);
}
