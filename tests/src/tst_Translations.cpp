#include "KORVA_Canvas.h"
#include "KORVA_ChooseCanvasDlg.h"
#include "KORVA_ColorPicker.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Translations.h"
#include "UTIL_PictureDialog.h"
#include "UTIL_Platform.h"
#include "UTIL_Skin.h"
#include "support/Modal.h"
#include "support/TestCase.h"

#include <memory>

namespace {

using Size = UTIL_Skin::Size;

constexpr QSize screen(Size::screenWidth, Size::screenHeight);
/// The languages that have a file.
const QStringList& languages()
{
    static const QStringList codes = [] {
        QStringList found = QDir(KORVA_SOURCE_DIR "/translations").entryList({"korva_*.ts"}, QDir::Files);
        for (QString& name : found)
            name = name.mid(int(qstrlen("korva_"))).chopped(int(qstrlen(".ts")));
        return found;
    }();
    return codes;
}

struct Message
{
    QString context = {};
    QString source = {};
    QString comment = {};
    QString translation = {};
    bool finished = true;
};

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString sourceOf(const QString& language)
{
    return QString(KORVA_SOURCE_DIR "/translations/korva_%1.ts").arg(language);
}

QList<Message> messagesIn(const QString& path)
{
    QXmlStreamReader xml(contents(path));
    QList<Message> all;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QStringView name = xml.name();
        if (name == u"name") {
            context = xml.readElementText();
        } else if (name == u"message") {
            all << Message{.context = context};
        } else if (name == u"source") {
            all.last().source = xml.readElementText();
        } else if (name == u"comment") {
            all.last().comment = xml.readElementText();
        } else if (name == u"translation") {
            all.last().finished = !xml.attributes().hasAttribute("type");
            all.last().translation = xml.readElementText();
        }
    }
    return all;
}

/// The places where a translation must hold what the text has.
QStringList placeholders(const QString& text)
{
    static const QRegularExpression place("%\\d");
    QStringList found;
    for (const QRegularExpressionMatch& match : place.globalMatch(text))
        found << match.captured();
    found.sort();
    return found;
}

// --- What of a window's texts cannot be seen whole

bool isCutOff(const QLabel& label)
{
    const QFontMetrics metrics = label.fontMetrics();
    if (!label.inherits("UTIL_WrapLabel"))
        return metrics.size(0, label.text()).width() > label.contentsRect().width() ||
               metrics.height() > label.contentsRect().height();
    bool aWordIsBroken = false;
    static const QRegularExpression betweenWords("[\\s\\p{Han}]+"); // a Chinese letter stands for itself
    for (const QString& word : label.text().split(betweenWords))
        aWordIsBroken |= metrics.horizontalAdvance(word) > label.contentsRect().width();
    return aWordIsBroken || !label.toolTip().isEmpty() ||
           label.heightForWidth(label.width()) > label.height();
}

bool isCutOff(const QComboBox& box)
{
    const int room = box.width() - 3 * Size::keyPadding - 2 * Size::chevron;
    for (int i = 0; i < box.count(); ++i)
        if (box.fontMetrics().horizontalAdvance(box.itemText(i)) > room)
            return true;
    return false;
}

bool isCutOff(const QListWidget& list)
{
    constexpr int fieldLeft = 30; // behind the radio mark
    constexpr int fieldWidth = 189;
    const int room = std::min(fieldWidth, list.viewport()->width() - fieldLeft);
    for (int i = 0; i < list.count(); ++i)
        if (list.fontMetrics().horizontalAdvance(list.item(i)->text()) > room)
            return true;
    return false;
}

QStringList cutOffIn(const QWidget& window)
{
    QStringList cut;
    const auto look = [&](const QWidget* widget, bool tooSmall, const QString& text) {
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        if (widget->isVisible() && (tooSmall || !window.rect().contains(place)))
            cut << QString("%1 '%2'").arg(widget->metaObject()->className(), text);
    };
    for (const auto* label : window.findChildren<QLabel*>())
        if (!label->text().isEmpty())
            look(label, isCutOff(*label), label->text());
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (!button->text().isEmpty())
            look(button, button->sizeHint().width() > button->width(), button->text());
    for (const auto* box : window.findChildren<QComboBox*>())
        look(box, isCutOff(*box), box->currentText());
    for (const auto* list : window.findChildren<QListWidget*>())
        look(list, isCutOff(*list), list->accessibleName());
    if (window.width() > screen.width() || window.height() > screen.height())
        cut << "the window itself";
    return cut;
}

bool holdsTexts(const QWidget& window)
{
    return !window.findChildren<QAbstractButton*>().isEmpty();
}

// --- The library's windows

struct WindowRow
{
    const char* name;
    std::unique_ptr<QWidget> (*create)(QWidget* parent);
};

const WindowRow windows[] = {
    {"editor",
     [](QWidget* parent) -> std::unique_ptr<QWidget> {
         return std::make_unique<KORVA_EditCanvas>(KORVA_COLOR_16BIT, parent);
     }},
    {"color picker",
     [](QWidget* parent) -> std::unique_ptr<QWidget> {
         return std::make_unique<KORVA_ColorPicker>(KORVA_COLOR_16BIT, Qt::red, parent);
     }},
    {"canvas sizes",
     [](QWidget* parent) -> std::unique_ptr<QWidget> {
         return std::make_unique<KORVA_ChooseCanvasDlg>(parent, 3);
     }},
    {"open dialog",
     [](QWidget* parent) -> std::unique_ptr<QWidget> {
         return std::unique_ptr<QWidget>(
             UTIL_Platform::instance()->createPickDialog(parent, QDir::tempPath(), {"*.png"}));
     }},
    {"save dialog",
     [](QWidget* parent) -> std::unique_ptr<QWidget> {
         return std::unique_ptr<QWidget>(
             UTIL_Platform::instance()->createSaveDialog(parent, QDir::tempPath(), {"*.png"}));
     }},
};

} // namespace

/// The library's texts in the languages that it brings.
class tst_Translations : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { KORVA_Translations::unload(); }

    void sourcesHoldEveryText_data();
    void sourcesHoldEveryText();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();

    void nothingIsTranslatedUnasked();
    void loadFindsTheLanguage_data();
    void loadFindsTheLanguage();
    void loadingReplacesAndUnloadLeavesNothing();

    void textsInWindowsAreWhole_data();
    void textsInWindowsAreWhole();
    void textsInBoxesAreWhole_data();
    void textsInBoxesAreWhole();
    void menusFitTheScreen_data();
    void menusFitTheScreen();
    void cutOffTextsAreNoticed();

private:
    static void addLanguages();
};

void tst_Translations::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages())
        QTest::newRow(language.toUtf8()) << language;
}

void tst_Translations::sourcesHoldEveryText_data()
{
    addLanguages();
}

void tst_Translations::sourcesHoldEveryText()
{
    QFETCH(const QString, language);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(sourceOf(language)).fileName());
    QVERIFY(QFile::copy(sourceOf(language), copy));
    QProcess update;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("KORVA_TRANSLATIONS", folder.path());
    update.setProcessEnvironment(environment);
    update.start(KORVA_SOURCE_DIR "/translations/update", {language});
    QVERIFY(update.waitForFinished());
    QCOMPARE(update.readAllStandardError(), QByteArray());
    QCOMPARE(contents(copy), contents(sourceOf(language))); // else: run translations/update
}

void tst_Translations::everyTextIsTranslated_data()
{
    addLanguages();
}

void tst_Translations::everyTextIsTranslated()
{
    QFETCH(const QString, language);
    const QList<Message> messages = messagesIn(sourceOf(language));
    QVERIFY(messages.size() > 50);
    for (const Message& message : messages) {
        const QByteArray what = (message.context + ": " + message.source).toUtf8();
        QVERIFY2(message.finished && !message.translation.isEmpty(), what);
        QVERIFY2(!message.comment.isEmpty(), what);
        QCOMPARE(placeholders(message.translation), placeholders(message.source));
    }
}

void tst_Translations::nothingIsTranslatedUnasked()
{
    QLocale::setDefault(QLocale("de_DE"));
    const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::system()); });
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QCOMPARE(editor.canvas()->contextMenu()->actions().at(0)->text(), "Cut");
}

void tst_Translations::loadFindsTheLanguage_data()
{
    QTest::addColumn<bool>("known");
    QTest::addColumn<QString>("cut");
    const auto row = [](const char* locale, bool known, const char* cut) {
        QTest::newRow(locale) << known << QString(cut);
    };
    row("de_DE", true, "Ausschneiden");
    row("de_AT", true, "Ausschneiden");
    row("zh_CN", true, "剪切");
    row("zh_SG", true, "剪切");
    row("zh_TW", false, "Cut"); // reads the traditional letters
    row("en_GB", true, "Cut");
    row("C", true, "Cut");
    row("fr_FR", false, "Cut");
}

void tst_Translations::loadFindsTheLanguage()
{
    QFETCH(const bool, known);
    QFETCH(const QString, cut);
    QCOMPARE(KORVA_Translations::load(QLocale(QTest::currentDataTag())), known);
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QCOMPARE(editor.canvas()->contextMenu()->actions().at(0)->text(), cut);
}

void tst_Translations::loadingReplacesAndUnloadLeavesNothing()
{
    const auto before = qApp->children();
    QVERIFY(KORVA_Translations::load(QLocale("zh_CN")));
    QVERIFY(KORVA_Translations::load(QLocale("de_DE")));
    QCOMPARE(KORVA_EditCanvas::tr("No", "2.11.2.3;SOFTKEY_2BUTTON"), "Nein");
    QVERIFY(!KORVA_Translations::load(QLocale("fr_FR")));
    QCOMPARE(KORVA_EditCanvas::tr("No", "2.11.2.3;SOFTKEY_2BUTTON"), "No");
    QVERIFY(KORVA_Translations::load(QLocale("de_DE")));
    KORVA_Translations::unload();
    KORVA_Translations::unload();
    QCOMPARE(KORVA_EditCanvas::tr("No", "2.11.2.3;SOFTKEY_2BUTTON"), "No");
    QCOMPARE(qApp->children(), before);
}

void tst_Translations::textsInWindowsAreWhole_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("window");
    for (const QString& language : languages() + QStringList{"en"})
        for (int i = 0; i < int(std::size(windows)); ++i)
            QTest::addRow("%s in %s", windows[i].name, qPrintable(language)) << language << i;
}

void tst_Translations::textsInWindowsAreWhole()
{
    QFETCH(const QString, language);
    QFETCH(const int, window);
    QVERIFY(KORVA_Translations::load(QLocale(language)));
    QWidget parent;
    parent.resize(screen);
    parent.show();
    const std::unique_ptr<QWidget> shown = windows[window].create(&parent);
    shown->show();
    QVERIFY(holdsTexts(*shown));
    QCOMPARE(cutOffIn(*shown), QStringList());
}

void tst_Translations::textsInBoxesAreWhole_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    for (const QString& language : languages())
        for (const Message& message : messagesIn(sourceOf(language)))
            if (message.comment.contains("DIALOG_ICON") || message.comment.contains("FORM_CONTEXT"))
                QTest::addRow("%s: %s", qPrintable(language), qPrintable(message.source))
                    << language << message.translation;
}

void tst_Translations::textsInBoxesAreWhole()
{
    QFETCH(const QString, language);
    QFETCH(const QString, text);
    QVERIFY(KORVA_Translations::load(QLocale(language)));
    QWidget parent;
    parent.resize(screen);
    parent.show();
    const QStringList buttons = {KORVA_EditCanvas::tr("OK", "2.11.2.1;SOFTKEY_2BUTTON"),
                                 KORVA_EditCanvas::tr("Cancel", "2.11.2.1;SOFTKEY_2BUTTON")};
    QStringList cut;
    bool hasTexts = false;
    support::whenOpen([&](QDialog& dialog) {
        hasTexts = holdsTexts(dialog) && support::labels(dialog).contains(text);
        cut = cutOffIn(dialog);
        dialog.reject(); // means "Cancel", in whatever language
    });
    QCOMPARE(UTIL_Platform::instance()->question(&parent, "Dialog_Error.gif", text, buttons), 1);
    QVERIFY(hasTexts);
    QCOMPARE(cut, QStringList());
}

void tst_Translations::menusFitTheScreen_data()
{
    addLanguages();
}

void tst_Translations::menusFitTheScreen()
{
    QFETCH(const QString, language);
    QVERIFY(KORVA_Translations::load(QLocale(language)));
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    const auto fits = [](const QMenu* menu) {
        const QSize size = menu->sizeHint();
        return !menu->isEmpty() && size.width() <= screen.width() && size.height() <= screen.height();
    };
    constexpr int lastTool = 6;
    QVERIFY(fits(editor.canvas()->contextMenu()));
    QVERIFY(fits(editor.canvas()->pasteLabel()->menu()));
    QVERIFY(fits(editor.findChild<QPushButton*>("toolButton")->menu()));
    for (int tool = 0; tool <= lastTool; ++tool) {
        editor.loadToolOptions(tool);
        QVERIFY(fits(editor.findChild<QPushButton*>("optionButton")->menu()));
    }
}

void tst_Translations::cutOffTextsAreNoticed()
{
    QWidget window;
    window.resize(screen);
    auto* label = new QLabel("Ein Text, der viel zu lang ist", &window);
    label->setGeometry(10, 10, 60, 20);
    auto* button = new QPushButton("Ein Knopf, der viel zu schmal ist", &window);
    button->setGeometry(10, 40, 60, 30);
    auto* outside = new QLabel("Halb", &window);
    outside->setGeometry(220, 100, 60, 20);
    window.show();
    QCOMPARE(cutOffIn(window).size(), 3);
    QString text = "Ein Satz von vielen Worten ";
    support::whenOpen([](QDialog& dialog) {
        QCOMPARE(cutOffIn(dialog).size(), 1);
        dialog.reject();
    });
    (void)UTIL_Platform::instance()->question(&window, "", text.repeated(30), {"Cancel"});
}

int main(int argc, char** argv)
{
    return support::run<tst_Translations>(argc, argv);
}

#include "tst_Translations.moc"
