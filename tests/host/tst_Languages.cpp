#include "ButtonsDialog.h"
#include "ColorPopup.h"
#include "ColorsDialog.h"
#include "Commands.h"
#include "Documents.h"
#include "EarlierDialog.h"
#include "Language.h"
#include "MessageDialog.h"
#include "PadWindow.h"
#include "Platform.h"
#include "PrintDialog.h"
#include "Theme.h"
#include "Wording.h"
#include "support/Images.h"
#include "support/Languages.h"
#include "support/Modal.h"
#include "support/PadProcess.h"
#include "support/PaintedTexts.h"
#include "support/TestCase.h"

#include <KORVA_ColorPicker.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Translations.h>

namespace {

constexpr QSize sizes[] = {QSize(240, 320), QSize(480, 640)};

/// The questions and messages of the programs by what stands in them for the places.
struct BoxRow
{
    const char* context;
    const char* text;
    const char* comment;
    QStringList places;
    QList<std::pair<const char*, const char*>> keys; ///< of the same context; a comment
};

QString words(const char* context, const char* text, const char* comment, const QStringList& places = {})
{
    QString said = QCoreApplication::translate(context, text, comment);
    for (int i = 0; i < places.size(); ++i)
        said.replace(QString("%%1").arg(i + 1), places.at(i));
    return said;
}

const QString big = QString("3%1000%2×%2").arg(QChar(0x202f)).arg(QChar(0xa0)) + "2000";

const QList<BoxRow>& boxes()
{
    using Keys = QList<std::pair<const char*, const char*>>;
    static const Keys changes{{"Yes", "changes"}, {"No", "changes"}, {"Cancel", "changes"}};
    static const Keys replacing{{"Save as new", "saving"}, {"Replace", "saving"}, {"Cancel", "saving"}};
    static const QString name = "holiday in the mountains.png";
    static const QList<BoxRow> rows{
        {"pad::Documents", "Save changes to drawing before closing?", "changes", {}, changes},
        {"pad::Documents", "Save changes to drawing before creating?", "changes", {}, changes},
        {"pad::Documents", "Save changes to drawing before opening?", "changes", {}, changes},
        {"pad::Documents",
         "No copy of the drawing can be kept. Give it up?",
         "changes",
         {},
         {{"Cancel", "changes"}, {"Give it up", "changes"}}},
        {"pad::Documents",
         "Not saved: %1",
         "saving",
         {words("pad::DrawingFile", "No permission to write in %1.", "saving", {"Pictures"})},
         {{"OK", "saving"}}},
        {"pad::Documents",
         "%1 pictures can only be opened: the drawing of %2 pixels needs a new file.",
         "saving; %1: 'GIF', %2: '300 × 200'",
         {"GIF", big},
         {{"Save as new", "saving"}, {"Cancel", "saving"}}},
        {"pad::Documents",
         "%1 has %2 pixels and the drawing %3: replacing it would lose the rest.",
         "saving; %1: a file, %2 and %3: '300 × 200'",
         {name, big, big},
         replacing},
        {"pad::Documents",
         "%1 has more colors than the drawing of %2 pixels: replacing it would lose them.",
         "saving; %1: a file, %2: '300 × 200'",
         {name, big},
         replacing},
        {"pad::Documents",
         "%1 was changed since it was opened: replacing it would lose that.",
         "saving",
         {name},
         replacing},
        {"pad::Documents",
         "Move %1 to the trash?",
         "deleting",
         {name},
         {{"Cancel", "deleting"}, {"To the trash", "deleting"}}},
        {"pad::Documents",
         "There is no trash for %1. Delete it for good?",
         "deleting",
         {name},
         {{"Cancel", "deleting"}, {"Delete", "deleting"}}},
        {"pad::Documents",
         "%1 was saved: %2",
         "saving; %1: a file, %2: '29.6 kB'",
         {name, words("pad::Documents", "%1 kB", "size of a file", {"299.9"})},
         {}},
        {"pad::Copies", "The printer does not take it.", "print", {}, {}},
        {"pad::Documents", "Not deleted: %1", "deleting", {"Permission denied"}, {{"OK", "deleting"}}},
        {"pad::Recovery",
         "A drawing of %1 on %2 was not saved.",
         "recovery; %1: 'today at 9:30', %2: a file",
         {"", name},
         {{"Bring it back", "recovery"}, {"Not now", "recovery"}}},
        {"pad::Recovery",
         "A drawing of %1 was not saved.",
         "recovery; %1: 'today at 9:30'",
         {""},
         {{"Bring it back", "recovery"}, {"Not now", "recovery"}}},
        {"pad::Recovery", "Save changes to drawing before bringing another one back?", "recovery", {}, {}},
        {"pad::Recovery",
         "No copy of the drawing can be kept: %1",
         "recovery",
         {"No space left on device"},
         {{"OK", "recovery"}}},
    };
    return rows;
}

} // namespace

/// The programs in every language: their windows, menus and boxes can be read whole, and their command
/// lines speak it.
class tst_Languages : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void windowIsReadable_data() { addRows(); }
    void windowIsReadable();
    void menuIsReadable_data() { addRows(); }
    void menuIsReadable();
    void lettersChooseOneRowEach_data();
    void lettersChooseOneRowEach();
    void dialogsAreReadable_data() { addRows(); }
    void dialogsAreReadable();
    void boxesAreReadable_data() { addRows(); }
    void boxesAreReadable();
    void canvasTypesAreReadable_data() { addRows(); }
    void canvasTypesAreReadable();

    void numbersAreTheLanguages();
    void mnemonicsAreTakenAway_data();
    void mnemonicsAreTakenAway();
    void windowIsMirrored();
    void longValuesFitTheStatusLine();

    void localeChoosesTheLanguage();
    void optionChoosesTheLanguage();
    void unknownLanguageIsEnglish_data();
    void unknownLanguageIsEnglish();
    void failuresSpeakTheLanguage_data();
    void failuresSpeakTheLanguage();

private:
    static void addRows();
    /// The program's window in a language, at a size.
    void open(const QString& language, QSize size);
    [[nodiscard]] QMenu* menu() const { return m_window->commands().menu(); }
    /// What `ask` opens can be read whole; it is left by a key or, without one, as by Escape.
    void checkDialog(const std::function<void()>& ask, const QString& key = {}) const;
    /// The same for a dialog of copies, before and after there is one.
    template <typename Dialog>
    void checkCopy(const QImage& drawing, int number) const;

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<pad::PadWindow> m_window;
    pad::Platform* m_platform = nullptr;
};

void tst_Languages::init()
{
    support::TestCase::init();
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_STATE_HOME", m_home->path().toUtf8());
    m_platform = &pad::Platform::install();
    pad::theme::apply();
}

void tst_Languages::cleanup()
{
    m_window.reset();
    UTIL_Platform::install(nullptr);
    KORVA_Translations::unload();
    pad::language::choose({});
    QLocale::setDefault(QLocale::system());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_Languages::addRows()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");
    for (const QString& language : support::languages())
        for (const QSize size : sizes)
            QTest::addRow("%s %d", qPrintable(language), size.width()) << language << size;
}

void tst_Languages::open(const QString& language, QSize size)
{
    pad::language::choose(language);
    QVERIFY(pad::language::load());
    m_window = std::make_unique<pad::PadWindow>(*m_platform);
    m_window->resize(size);
    m_window->show();
}

void tst_Languages::windowIsReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    open(language, size);
    for (int tool = 0; tool <= 7; ++tool) {
        m_window->editor().selectTool(tool);
        (void)m_window->screenshot(); // brings the status line up to date
        const QList<support::PaintedText> texts = support::paintedTexts(*m_window);
        QVERIFY(texts.size() >= 6); // zoom box, two keys, three fields
        QCOMPARE(support::unreadable(texts).join("; "), QString());
    }
}

void tst_Languages::menuIsReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    open(language, size);
    QList<QMenu*> pages{menu()};
    for (const QAction* action : menu()->actions())
        if (action->menu())
            pages << action->menu();
    QCOMPARE(pages.size(), 5);
    for (QMenu* page : pages) {
        page->resize(page->sizeHint());
        QVERIFY(size.expandedTo(page->size()) == size);
        const QList<support::PaintedText> texts = support::paintedTexts(*page);
        QVERIFY(texts.size() >= page->actions().size());
        QCOMPARE(support::unreadable(texts).join("; "), QString());
    }
}

void tst_Languages::lettersChooseOneRowEach_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : support::languages())
        QTest::newRow(language.toUtf8()) << language;
}

void tst_Languages::lettersChooseOneRowEach()
{
    QFETCH(const QString, language);
    open(language, sizes[0]);
    QList<QMenu*> pages{menu()};
    for (const QAction* action : menu()->actions())
        if (action->menu())
            pages << action->menu();
    for (const QMenu* page : pages) {
        QMap<QString, QString> letters;
        for (const QAction* action : page->actions()) {
            const QString text = action->menu() ? action->menu()->title() : action->text();
            const QString letter = QKeySequence::mnemonic(text).toString();
            QVERIFY2(!letter.isEmpty(), qPrintable(text));
            QVERIFY2(
                !letters.contains(letter),
                qPrintable(QString("%1 chooses '%2' and '%3'").arg(letter, letters.value(letter), text)));
            letters[letter] = text;
        }
    }
}

void tst_Languages::checkDialog(const std::function<void()>& ask, const QString& key) const
{
    QStringList faults{"nothing opened"};
    const QSize size = m_window->size();
    support::whenOpen([&](QDialog& dialog) {
        const QList<support::PaintedText> texts = support::paintedTexts(dialog);
        faults = support::unreadable(texts);
        if (texts.size() < 2)
            faults << "hardly a text";
        if (size.expandedTo(dialog.size()) != size)
            faults << "larger than the window";
        if (key.isEmpty())
            dialog.reject();
        else
            support::button(dialog, key)->click();
    });
    ask();
    QCOMPARE(faults.join("; "), QString());
}

template <typename Dialog>
void tst_Languages::checkCopy(const QImage& drawing, int number) const
{
    const QSize size = m_window->size();
    Dialog dialog(m_window.get(), "Title", drawing, number);
    dialog.show();
    QCOMPARE(support::unreadable(support::paintedTexts(dialog)).join("; "), QString());
    const auto description = [&dialog] { return support::labels(dialog).constLast(); };
    const QString before = description();
    QTRY_VERIFY_WITH_TIMEOUT(description() != before, 60'000);
    const QList<support::PaintedText> texts = support::paintedTexts(dialog);
    QVERIFY(texts.size() >= 7); // title, choices, description, zoom, keys
    QCOMPARE(support::unreadable(texts).join("; "), QString());
    QVERIFY(size.expandedTo(dialog.size()) == size);
}

void tst_Languages::dialogsAreReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    open(language, size);
    const auto choose = [this](const QKeySequence& keys) {
        for (QAction* action : m_window->actions())
            if (action->shortcut() == keys)
                action->trigger();
    };
    checkDialog([&] { choose(QKeySequence("F1")); });
    checkDialog([&] { pad::ButtonsDialog(m_window.get(), m_window->editor(), *menu()).exec(); });
    checkDialog([&] { pad::EarlierDialog(m_window.get(), {}).exec(); });
    QList<KORVA_Journal::Entry> entries;
    for (const int days : {0, 1, 40}) {
        KORVA_Journal::Entry entry;
        const QTime widest(0, 58); // where hours are counted to twelve
        entry.time = QDateTime(QDate::currentDate().addDays(-days), widest);
        entry.size = QSize(200, 170);
        entries << entry;
    }
    checkDialog([&] { pad::EarlierDialog(m_window.get(), entries).exec(); });
    checkDialog([&] { choose(QKeySequence("Ctrl+M")); });
    // What the dialogs of copies compute is long; there is more room for it in the larger window.
    const bool isTight = size == sizes[0];
    if (isTight)
        checkCopy<pad::MessageDialog>(support::sheet(QSize(1352, 1288)), 300);
    checkCopy<pad::MessageDialog>(QImage(), 300);
    checkDialog([&] { choose(QKeySequence("Ctrl+P")); });
    checkDialog([&] {
        const pad::Printer printer{"Office-Laser-2000", QPageSize(QPageSize::A4), {}};
        pad::PrintDialog(m_window.get(), pad::Commands::tr("&Print ...", "menu").remove('&'),
                         support::sheet({352, 288}), printer)
            .exec();
    });
    if (isTight)
        checkCopy<pad::ColorsDialog>(support::sheet(QSize(1352, 1288)), 2);
    checkCopy<pad::ColorsDialog>(support::mosaic({352, 288}), 256);
    checkDialog([&] { choose(QKeySequence("Ctrl+N")); });
    checkDialog(
        [&] { (void)KORVA_ColorPicker::getColor(KORVA_COLOR_16BIT, Qt::red, &m_window->editor()); });
    QStringList faults{"nothing opened"};
    QTimer::singleShot(0, m_window.get(), [&] {
        QWidget* popup = pad::ColorPopup::current();
        const QList<support::PaintedText> texts = support::paintedTexts(*popup);
        faults = support::unreadable(texts);
        if (texts.size() < 2) // the value, and what leads to the dialog
            faults << "hardly a text";
        popup->close();
    });
    choose(QKeySequence("C"));
    QCOMPARE(faults.join("; "), QString());
}

void tst_Languages::boxesAreReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    open(language, size);
    for (const BoxRow& row : boxes()) {
        QStringList places = row.places;
        if (QLatin1String(row.context) == QLatin1String("pad::Recovery") && places.value(0, "-").isEmpty())
            places[0] = pad::EarlierDialog::timeText(QDateTime::currentDateTime().addDays(-1));
        QStringList keys;
        for (const auto& [key, comment] : row.keys)
            keys << words(row.context, key, comment);
        if (keys.isEmpty())
            for (const char* key : {"Yes", "No", "Cancel"})
                keys << words("pad::Documents", key, "changes");
        const QString text = words(row.context, row.text, row.comment, places);
        checkDialog([&] { (void)m_platform->question(m_window.get(), "Dialog_Error.gif", text, keys); },
                    keys.constLast());
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(text));
    }
}

void tst_Languages::canvasTypesAreReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    open(language, size);
    QStringList faults{"nothing opened"};
    support::whenOpen([&](QDialog& dialog) {
        support::whenOpen([&](QDialog& types) {
            const QList<support::PaintedText> texts = support::paintedTexts(types);
            faults = support::unreadable(texts);
            if (texts.size() < 6)
                faults << "hardly a text";
            if (size.expandedTo(types.size()) != size)
                faults << "larger than the window";
            types.reject();
        });
        dialog.accept();
    });
    m_window->documents().newDrawing();
    QCOMPARE(faults.join("; "), QString());
}

void tst_Languages::numbersAreTheLanguages()
{
    const auto said = [](const char* language) {
        pad::language::choose(language);
        return pad::language::load() ? pad::wording::inPixels({1200, 90}) : QString();
    };
    QCOMPARE(said("de"), QString("1.200\u00a0×\u00a090"));
    QCOMPARE(said("en"), QString("1,200\u00a0×\u00a090"));
    QCOMPARE(pad::wording::plainNumber(1200), "1200");
    pad::language::choose("de");
    QVERIFY(pad::language::load());
    QCOMPARE(pad::Documents::tr("%Ln colors", "canvas type", 65536), "65.536 Farben");
    QCOMPARE(pad::Documents::tr("%Ln colors", "canvas type", 1), "1 Farbe");
}

void tst_Languages::mnemonicsAreTakenAway_data()
{
    QTest::addColumn<QString>("plain");
    QTest::newRow("Save &as ...") << "Save as ...";
    QTest::newRow("撤消(&U)") << "撤消";
    QTest::newRow("ยกเลิก (&U)") << "ยกเลิก";
    QTest::newRow("Plain (U)") << "Plain (U)";
}

void tst_Languages::mnemonicsAreTakenAway()
{
    QFETCH(const QString, plain);
    QCOMPARE(pad::wording::withoutMnemonic(QTest::currentDataTag()), plain);
}

/// Whether or not there is a language that does it.
void tst_Languages::windowIsMirrored()
{
    const auto places = [this](Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
        m_window = std::make_unique<pad::PadWindow>(*m_platform);
        m_window->resize(300, 400);
        m_window->show();
        QMap<QString, QRect> found;
        for (const QWidget* child : m_window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (const auto* key = qobject_cast<const QAbstractButton*>(child))
                found[key->text()] = key->geometry();
        for (const QLabel* field : m_window->findChildren<QLabel*>())
            if (field->parentWidget()->metaObject()->className() == QLatin1String("pad::StatusLine"))
                found[field->toolTip()] = field->geometry(); // what it means
        return found;
    };
    const QMap<QString, QRect> plain = places(Qt::LeftToRight);
    QVERIFY(plain.contains("Menu") && plain.contains("Undo") && plain.contains("Zoom"));
    QMap<QString, QRect> wanted;
    for (auto it = plain.begin(); it != plain.end(); ++it)
        wanted[it.key()] = QRect(300 - it->x() - it->width(), it->y(), it->width(), it->height());
    QCOMPARE(places(Qt::RightToLeft), wanted);
}

void tst_Languages::longValuesFitTheStatusLine()
{
    m_window = std::make_unique<pad::PadWindow>(*m_platform);
    m_window->show();
    m_window->editor().chooseCanvas(KORVA_CANVAS_16BIT, 2048, 1536);
    m_window->editor().selectTool(KORVA_TOOL_RECTANGLE);
    int values = 0;
    for (const QLabel* field : m_window->findChildren<QLabel*>()) {
        if (field->parentWidget()->metaObject()->className() != QLatin1String("pad::StatusLine"))
            continue;
        QTRY_VERIFY(field->text().isEmpty() || field->toolTip() != "Picture size" ||
                    field->text().contains("2048"));
        ++values;
        const int needed = QFontMetrics(field->font()).horizontalAdvance(field->text());
        QVERIFY2(needed <= field->width(), qPrintable(field->text()));
    }
    QCOMPARE(values, 4);
}

// --- Their command lines

void tst_Languages::localeChoosesTheLanguage()
{
    qputenv("LANGUAGE", "de");
    const auto restore = qScopeGuard([] { qunsetenv("LANGUAGE"); });
    support::PadProcess pad({"--help"});
    QVERIFY(pad.waitForEnd());
    QVERIFY2(pad.output().startsWith("Aufruf: korva-pad"), qPrintable(pad.output()));
}

void tst_Languages::optionChoosesTheLanguage()
{
    for (const QStringList& arguments :
         {QStringList{"--language", "de", "--help"}, {"--help", "--language=de_AT"}}) {
        support::PadProcess pad(arguments);
        QVERIFY(pad.waitForEnd());
        QVERIFY2(pad.output().startsWith("Aufruf: korva-pad"), qPrintable(pad.output()));
        QCOMPARE(pad.errors(), QString());
        QCOMPARE(pad.exitCode(), 0);
    }
}

void tst_Languages::unknownLanguageIsEnglish_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("none's") << "xx";
    QTest::newRow("nobody translated") << "cy";
}

void tst_Languages::unknownLanguageIsEnglish()
{
    QFETCH(const QString, code);
    const QString picture = m_home->filePath("out.png");
    support::PadProcess pad({"--language", code, "--save", picture});
    QVERIFY(pad.waitForEnd());
    QStringList known = support::languages();
    known.sort();
    QCOMPARE(pad.errors(), QString("korva-pad: there is no language '%1'; taking English (known: %2)\n")
                               .arg(code, known.join(", ")));
    QCOMPARE(pad.exitCode(), 0);
    QVERIFY(QFileInfo::exists(picture));
}

void tst_Languages::failuresSpeakTheLanguage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");
    QTest::newRow("command line") << QStringList{"--nix"}
                                  << "unbekannte Option »--nix« (--help nennt alle)";
    QTest::newRow("recording") << QStringList{"--replay", "bad.rec"}
                               << "bad.rec:1: unbekannter Befehl »kritzeln«";
    QTest::newRow("within it") << QStringList{"--replay", "worse.rec", "--save", "out.png"}
                               << "worse.rec:1: das Werkzeug hat keine Option 9";
    QTest::newRow("picture") << QStringList{"none.png"}
                             << "»none.png« lässt sich nicht öffnen: No such file or directory";
}

void tst_Languages::failuresSpeakTheLanguage()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, line);
    for (const auto& [name, text] :
         {std::pair("bad.rec", "kritzeln\n"), std::pair("worse.rec", "option 9\n")}) {
        QFile file(m_home->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    support::PadProcess pad(QStringList{"--language", "de"} + arguments, {}, m_home->path());
    QVERIFY(pad.waitForEnd());
    QCOMPARE(pad.errors(), "korva-pad: " + line + "\n");
    QCOMPARE(pad.exitCode(), 1);
}

int main(int argc, char** argv)
{
    return support::run<tst_Languages>(argc, argv);
}

#include "tst_Languages.moc"
