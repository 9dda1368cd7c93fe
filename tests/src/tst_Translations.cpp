#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Translations.h"
#include "support/Languages.h"
#include "support/TestCase.h"

using support::Message;

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList matches(const char* pattern, const QString& text)
{
    QStringList found;
    for (const QRegularExpressionMatch& match :
         QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption).globalMatch(text))
        found << match.captured();
    found.sort();
    return found;
}

/// What is wrong with one text of a translation; empty: nothing.
QString fault(const Message& message, const QString& translation)
{
    if (translation.trimmed().isEmpty())
        return "is not translated";
    const auto blanks = [](const QString& text) { return matches("\\A\\s+|\\s+\\z", text); };
    if (blanks(translation) != blanks(message.source))
        return "has other blanks at its ends";
    const bool mayLeaveOut = message.translations.size() > 1; // "one color"
    constexpr auto places = "%L?[n\\d]";
    const QStringList wanted = matches(places, message.source);
    const QStringList found = matches(places, translation);
    if (found != wanted && !(mayLeaveOut && found.isEmpty()))
        return "has other places for what is put in";
    // A letter of a word that is written joined cannot be underlined alone: it stands behind the text.
    if (matches("&[\\p{Arabic}\\p{Devanagari}\\p{Thai}]", translation).size() > 0)
        return "tears a word apart";
    constexpr auto letters = "&\\w";
    if (translation.count('&') != message.source.count('&') ||
        matches(letters, translation).size() != matches(letters, message.source).size())
        return "has other letters that choose it";
    if (message.source.endsWith(" ...") != translation.endsWith(" ..."))
        return "does not tell of the dialog behind it";
    if (message.comment.startsWith("Keywords") && !translation.endsWith(';'))
        return "does not end";
    return {};
}

QStringList faultsOf(const QString& language)
{
    QStringList faults;
    QSet<QString> cancels;
    for (const Message& message : support::messagesOf(language)) {
        const auto note = [&](const QString& what) {
            if (!what.isEmpty())
                faults << QString("%1: '%2' (%3) %4")
                              .arg(message.context, message.source, message.comment, what);
        };
        if (!message.isFinished)
            note("is unfinished");
        if (message.comment.isEmpty())
            note("has no comment");
        for (const QString& translation : message.translations)
            note(fault(message, translation));
        if (message.source == "Cancel")
            cancels += message.translations.value(0);
    }
    if (cancels.size() > 1) // a box finds the key that Escape means by its word
        faults << "several words for Cancel: " + cancels.values().join(", ");
    return faults;
}

/// A folder with languages that nobody has translated.
class Folder
{
public:
    void add(const QString& language, const QString& cut)
    {
        const QString source = m_folder.filePath("source.ts");
        QFile file(source);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QString("<TS version='2.1' language='%1'><context><name>KORVA_Canvas</name><message>"
                           "<source>Cut</source><comment>2.11.1;MENU</comment><translation>%2</translation>"
                           "</message></context></TS>")
                       .arg(language, cut)
                       .toUtf8());
        file.close();
        QCOMPARE(QProcess::execute("/usr/lib/qt6/bin/lrelease", {"-silent", source, "-qm", path(language)}),
                 0);
    }
    void addBroken(const QString& language, const QByteArray& bytes)
    {
        QFile file(path(language));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    [[nodiscard]] QString path(const QString& language) const
    {
        return m_folder.filePath("korva_" + language + ".qm");
    }
    [[nodiscard]] QString name() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

QString cut()
{
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    return editor.canvas()->contextMenu()->actions().at(0)->text();
}

/// What is there of a language that has a file; else English.
QString orEnglish(const QString& language)
{
    return support::languages().contains(language) ? language : "en";
}

} // namespace

/// The languages' sources, and how the library finds a language.
class tst_Translations : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { KORVA_Translations::unload(); }

    void sourcesHoldEveryText_data() { support::addLanguages(); }
    void sourcesHoldEveryText();
    void everyTextIsTranslated_data() { support::addLanguages(); }
    void everyTextIsTranslated();
    void faultsAreNoticed_data();
    void faultsAreNoticed();
    void aLanguageIsBegunWithItsFile();

    void nothingIsTranslatedUnasked();
    void loadFindsTheLanguage_data();
    void loadFindsTheLanguage();
    void loadingReplacesAndUnloadLeavesNothing();
    void allLanguagesAreFound();
    void theNearestOfSeveralIsTaken();
    void whatCannotBeReadIsEnglish_data();
    void whatCannotBeReadIsEnglish();
};

void tst_Translations::sourcesHoldEveryText()
{
    QFETCH(const QString, language);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(support::sourceFile(language)).fileName());
    QVERIFY(QFile::copy(support::sourceFile(language), copy));
    QProcess update;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("KORVA_TRANSLATIONS", folder.path());
    update.setProcessEnvironment(environment);
    update.start(KORVA_SOURCE_DIR "/translations/update", {language});
    QVERIFY(update.waitForFinished());
    QCOMPARE(update.readAllStandardError(), QByteArray());
    QCOMPARE(contents(copy), contents(support::sourceFile(language))); // else: run translations/update
}

void tst_Translations::everyTextIsTranslated()
{
    QFETCH(const QString, language);
    QVERIFY(language == "en" || support::messagesOf(language).size() > 200);
    QCOMPARE(faultsOf(language).join("\n"), QString());
}

void tst_Translations::faultsAreNoticed_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("what");
    const auto row = [](const char* source, const char* translation, const char* what) {
        QTest::newRow(what) << QString(source) << QString(translation) << QString(what);
    };
    row("Save", " ", "is not translated");
    row("Save", "Speichern ", "has other blanks at its ends");
    row("%1 of %2", "%1 von %1", "has other places for what is put in");
    row("&Save", "Speichern", "has other letters that choose it");
    row("&Save", "ح&فظ", "tears a word apart");
    row("&Open ...", "Ö&ffnen", "does not tell of the dialog behind it");
}

void tst_Translations::faultsAreNoticed()
{
    QFETCH(const QString, source);
    QFETCH(const QString, translation);
    QFETCH(const QString, what);
    const Message message{.source = source, .comment = "menu", .translations = {translation}};
    QCOMPARE(fault(message, translation), what);
    QCOMPARE(fault(message, source), QString());
}

void tst_Translations::aLanguageIsBegunWithItsFile()
{
    const QTemporaryDir folder;
    QProcess update;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("KORVA_TRANSLATIONS", folder.path());
    update.setProcessEnvironment(environment);
    update.start(KORVA_SOURCE_DIR "/translations/update", {"cy"});
    QVERIFY(update.waitForFinished() && update.exitCode() == 0);
    const QByteArray begun = contents(folder.filePath("korva_cy.ts"));
    QCOMPARE(begun.count("<source>"), contents(support::sourceFile("de")).count("<source>"));
    QCOMPARE(begun.count("type=\"unfinished\""), begun.count("<source>"));
}

void tst_Translations::nothingIsTranslatedUnasked()
{
    QLocale::setDefault(QLocale("de_DE"));
    const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::system()); });
    QCOMPARE(cut(), "Cut");
}

void tst_Translations::loadFindsTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isKnown");
    const auto row = [](const char* locale, const QString& language, bool isKnown = true) {
        QTest::newRow(locale) << language << isKnown;
    };
    row("de_DE", "de");
    row("de_AT", "de");
    row("zh_CN", "zh_CN");
    row("zh_SG", "zh_CN");
    for (const char* traditional : {"zh_TW", "zh_HK"}) // never the simplified letters
        row(traditional, orEnglish("zh_TW"), orEnglish("zh_TW") != "en");
    row("pt_BR", orEnglish("pt"), orEnglish("pt") != "en");
    row("en_GB", "en");
    row("C", "en");
    row("nb_NO", "en", false); // its neighbours' languages are not its own
    row("cy_GB", "en", false);
}

void tst_Translations::loadFindsTheLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const bool, isKnown);
    QCOMPARE(KORVA_Translations::load(QLocale(QTest::currentDataTag())), isKnown);
    QCOMPARE(KORVA_Translations::language(), language);
    const QHash<QString, QString> words{{"de", "Ausschneiden"}, {"zh_CN", "剪切"}, {"en", "Cut"}};
    if (words.contains(language))
        QCOMPARE(cut(), words.value(language));
}

void tst_Translations::loadingReplacesAndUnloadLeavesNothing()
{
    const auto before = qApp->children();
    QVERIFY(KORVA_Translations::load(QLocale("zh_CN")));
    QVERIFY(KORVA_Translations::load(QLocale("de_DE")));
    QCOMPARE(KORVA_EditCanvas::tr("No", "2.11.2.3;SOFTKEY_2BUTTON"), "Nein");
    QVERIFY(!KORVA_Translations::load(QLocale("cy_GB")));
    QCOMPARE(KORVA_EditCanvas::tr("No", "2.11.2.3;SOFTKEY_2BUTTON"), "No");
    QVERIFY(KORVA_Translations::load(QLocale("de_DE")));
    KORVA_Translations::unload();
    KORVA_Translations::unload();
    QCOMPARE(KORVA_EditCanvas::tr("No", "2.11.2.3;SOFTKEY_2BUTTON"), "No");
    QCOMPARE(qApp->children(), before);
}

void tst_Translations::allLanguagesAreFound()
{
    QStringList languages = support::languages();
    languages.sort();
    QCOMPARE(KORVA_Translations::languages(), languages);
    for (const QString& language : languages) {
        QVERIFY(KORVA_Translations::load(QLocale(language)));
        QCOMPARE(KORVA_Translations::language(), language);
    }
}

void tst_Translations::theNearestOfSeveralIsTaken()
{
    Folder own;
    own.add("sw", "Kata");
    own.add("sw_KE", "Kata Kenya");
    own.add("sw_CD", "Kata Kongo");
    KORVA_Translations::addFolder(own.name());
    const auto loaded = [](const char* locale) {
        return KORVA_Translations::load(QLocale(locale)) ? cut() : QString();
    };
    QCOMPARE(loaded("sw_KE"), "Kata Kenya");
    QCOMPARE(loaded("sw_CD"), "Kata Kongo");
    QCOMPARE(loaded("sw_UG"), "Kata");
    QVERIFY(KORVA_Translations::languages().contains("sw_CD"));

    Folder later;
    later.add("sw_KE", "Kata tena");
    later.add("de", "Schneiden");
    KORVA_Translations::addFolder(later.name());
    QCOMPARE(loaded("sw_KE"), "Kata tena");
    QCOMPARE(loaded("de_DE"), "Schneiden");
    QVERIFY(QFile::remove(later.path("de")));
    QCOMPARE(loaded("de_DE"), "Ausschneiden");
    QVERIFY(QFile::remove(own.path("sw_CD")));
    QCOMPARE(loaded("sw_CD"), "Kata");
}

void tst_Translations::whatCannotBeReadIsEnglish_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("anything") << QByteArray("not a language at all, but long enough to be looked at");
    Folder whole;
    whole.add("cy", "Torri");
    QTest::newRow("a part") << contents(whole.path("cy")).chopped(20);
}

void tst_Translations::whatCannotBeReadIsEnglish()
{
    QFETCH(const QByteArray, bytes);
    Folder folder;
    folder.addBroken("cy", bytes);
    KORVA_Translations::addFolder(folder.name());
    KORVA_Translations::addFolder(folder.name() + "/is not there");
    QVERIFY(!KORVA_Translations::load(QLocale("cy_GB")));
    QCOMPARE(KORVA_Translations::language(), "en");
    QCOMPARE(cut(), "Cut");
}

int main(int argc, char** argv)
{
    return support::run<tst_Translations>(argc, argv);
}

#include "tst_Translations.moc"
