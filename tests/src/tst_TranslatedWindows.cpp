#include "KORVA_Canvas.h"
#include "KORVA_ChooseCanvasDlg.h"
#include "KORVA_ColorPicker.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_ImageView_Dialog.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Preview_Dialog.h"
#include "KORVA_Translations.h"
#include "UTIL_PictureDialog.h"
#include "UTIL_Platform.h"
#include "support/Images.h"
#include "support/Languages.h"
#include "support/Modal.h"
#include "support/PaintedTexts.h"
#include "support/TestCase.h"

namespace {

constexpr QSize sizes[] = {QSize(240, 320), QSize(480, 640)};

/// Of a name that is short enough to be read whole.
QString emptyFolder()
{
    static const QTemporaryDir folder;
    QDir(folder.path()).mkdir("Pictures");
    return folder.filePath("Pictures");
}

struct WindowRow
{
    const char* name;
    std::unique_ptr<QWidget> (*create)(QWidget* parent);
};

template <typename Window, typename... Arguments>
std::unique_ptr<QWidget> made(Arguments&&... arguments)
{
    return std::make_unique<Window>(std::forward<Arguments>(arguments)...);
}

const WindowRow windows[] = {
    {"editor", [](QWidget* parent) { return made<KORVA_EditCanvas>(KORVA_COLOR_16BIT, parent); }},
    {"color picker",
     [](QWidget* parent) { return made<KORVA_ColorPicker>(KORVA_COLOR_16BIT, Qt::red, parent); }},
    {"canvas sizes", [](QWidget* parent) { return made<KORVA_ChooseCanvasDlg>(parent, 3); }},
    {"viewer", [](QWidget*) { return made<KORVA_ImageView_Dialog>(support::sheet(QSize(20, 20))); }},
    {"preview", [](QWidget*) { return made<KORVA_Preview_Dialog>(QString()); }},
    {"open dialog",
     [](QWidget* parent) {
         return std::unique_ptr<QWidget>(
             UTIL_Platform::instance()->createPickDialog(parent, emptyFolder(), {"*.png"}));
     }},
    {"stamp dialog",
     [](QWidget* parent) {
         UTIL_PictureDialog* dialog =
             UTIL_Platform::instance()->createPickDialog(parent, emptyFolder(), {"*.png"});
         dialog->setPurpose(KORVA_EditCanvas::tr("Insert stamp", "PICK_DIALOG;TITLE"),
                            KORVA_EditCanvas::tr("Insert", "PICK_DIALOG;SOFTKEY_2BUTTON"));
         return std::unique_ptr<QWidget>(dialog);
     }},
    {"save dialog",
     [](QWidget* parent) {
         return std::unique_ptr<QWidget>(
             UTIL_Platform::instance()->createSaveDialog(parent, emptyFolder(), {"*.png"}));
     }},
};

/// Everything that the editor says in a box, with the keys that it has there.
struct BoxRow
{
    const char* context;
    const char* text;
    const char* comment;
    QList<std::pair<const char*, const char*>> keys; ///< of the same context
};

const BoxRow boxes[] = {
    {"KORVA_EditCanvas",
     "Save changes to drawing before choosing canvas?",
     "2.11.2.3;DIALOG_ICON_50_WARP",
     {{"Yes", "2.11.2.3;SOFTKEY_2BUTTON"}, {"No", "2.11.2.3;SOFTKEY_2BUTTON"}}},
    {"KORVA_EditCanvas",
     "Save changes to drawing before opening?",
     "2.11.2.3;DIALOG_ICON_50_WARP",
     {{"Yes", "2.11.2.3;SOFTKEY_2BUTTON"}, {"No", "2.11.2.3;SOFTKEY_2BUTTON"}}},
    {"KORVA_EditCanvas",
     "Save changes to drawing before creating?",
     "2.11.2.3;DIALOG_ICON_50_WARP",
     {{"Yes", "2.11.2.3;SOFTKEY_2BUTTON"}, {"No", "2.11.2.3;SOFTKEY_2BUTTON"}}},
    {"KORVA_EditCanvas",
     "Delete drawing?",
     "2.11.2.1;DIALOG_ICON_50",
     {{"OK", "2.11.2.1;SOFTKEY_2BUTTON"}, {"Cancel", "2.11.2.1;SOFTKEY_2BUTTON"}}},
    {"KORVA_EditCanvas",
     "This file can not be opened.",
     "4.4.4.2;DIALOG_ICON_50_WARP",
     {{"OK", "4.4.4.2;SOFTKEY_1BUTTON"}}},
    {"KORVA_EditCanvas", "The image is oversize", "2.11.2.9;DIALOG_ICON_50", {}},
    {"KORVA_EditCanvas", "Failed to open file", "2.11.2.9;DIALOG_ICON_50", {}},
    {"KORVA_EditCanvas", "open buffer fail!", "2.11.2.9;DIALOG_ICON_50", {}},
    {"KORVA_EditCanvas", "Saved Successfully", "2.11.2.9;DIALOG_ICON_50", {}},
    {"KORVA_EditCanvas", "Saved Failed", "2.11.2.10;DIALOG_ICON_50", {}},
    {"KORVA_ImageView_Dialog",
     "Picture load error.",
     "2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2",
     {{"OK", "2.16.5.9.4;CST_5BUTTON"}}},
    {"UTIL_SaveDialog",
     "Replace %1?",
     "SAVE_DIALOG;DIALOG_ICON_50_WARP",
     {{"Cancel", "SAVE_DIALOG;SOFTKEY_2BUTTON"}, {"Replace", "SAVE_DIALOG;SOFTKEY_2BUTTON"}}},
};

} // namespace

/// The library's windows in every language, on the screen that all is made for and on one of twice the
/// size: nothing is cut off.
class tst_TranslatedWindows : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void windowIsReadable_data();
    void windowIsReadable();
    void boxIsReadable_data();
    void boxIsReadable();
    void waitBoxIsReadable_data() { addRows(); }
    void waitBoxIsReadable();
    void menusAreReadable_data() { addRows(); }
    void menusAreReadable();
    void allBoxesAreHere();
    void whatIsCutOffIsNoticed_data();
    void whatIsCutOffIsNoticed();

private:
    static void addRows(const std::function<void(const QString& language, QSize size)>& add = {});
    /// The language loaded as a program does it, and a window of this size.
    [[nodiscard]] static bool speak(const QString& language);
    QTemporaryDir m_folder;
    std::unique_ptr<QWidget> m_parent;
};

void tst_TranslatedWindows::addRows(const std::function<void(const QString&, QSize)>& add)
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");
    for (const QString& language : support::languages()) {
        for (const QSize size : sizes) {
            if (add)
                add(language, size);
            else
                QTest::addRow("%s %d", qPrintable(language), size.width()) << language << size;
        }
    }
}

bool tst_TranslatedWindows::speak(const QString& language)
{
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    return KORVA_Translations::load(QLocale(language));
}

/// The viewer looks for the file, and tells for a second when there is none.
void tst_TranslatedWindows::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QVERIFY(support::sheet(QSize(20, 20)).save("image.jpg"));
}

void tst_TranslatedWindows::cleanup()
{
    m_parent.reset();
    KORVA_Translations::unload();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_TranslatedWindows::windowIsReadable_data()
{
    addRows([](const QString& language, QSize size) {
        if (language == support::languages().constFirst() && size == sizes[0])
            QTest::addColumn<int>("window");
        for (int i = 0; i < int(std::size(windows)); ++i)
            QTest::addRow("%s %d %s", qPrintable(language), size.width(), windows[i].name)
                << language << size << i;
    });
}

void tst_TranslatedWindows::windowIsReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    QFETCH(const int, window);
    QVERIFY(speak(language));
    m_parent = std::make_unique<QWidget>();
    m_parent->resize(size);
    m_parent->show();
    const std::unique_ptr<QWidget> shown = windows[window].create(m_parent.get());
    shown->show();
    QVERIFY(size.expandedTo(shown->size()) == size);
    const QList<support::PaintedText> texts = support::paintedTexts(*shown);
    QVERIFY(!texts.isEmpty());
    QCOMPARE(support::unreadable(texts).join("; "), QString());
}

void tst_TranslatedWindows::boxIsReadable_data()
{
    addRows([](const QString& language, QSize size) {
        if (language == support::languages().constFirst() && size == sizes[0])
            QTest::addColumn<int>("box");
        for (int i = 0; i < int(std::size(boxes)); ++i)
            QTest::addRow("%s %d %s", qPrintable(language), size.width(), boxes[i].text)
                << language << size << i;
    });
}

void tst_TranslatedWindows::boxIsReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    QFETCH(const int, box);
    QVERIFY(speak(language));
    m_parent = std::make_unique<QWidget>();
    m_parent->resize(size);
    m_parent->show();
    const BoxRow& row = boxes[box];
    QString text = QCoreApplication::translate(row.context, row.text, row.comment);
    if (text.contains("%1"))
        text = text.arg("photo.png");
    QStringList keys;
    for (const auto& [key, comment] : row.keys)
        keys << QCoreApplication::translate(row.context, key, comment);
    if (keys.isEmpty())
        keys << "OK";
    QStringList faults;
    int painted = 0;
    support::whenOpen([&](QDialog& dialog) {
        const QList<support::PaintedText> texts = support::paintedTexts(dialog);
        painted = int(texts.size());
        faults = support::unreadable(texts);
        if (!size.expandedTo(dialog.size()).isValid() || size.expandedTo(dialog.size()) != size)
            faults << "larger than the window";
        support::button(dialog, keys.constLast())->click();
    });
    (void)UTIL_Platform::instance()->question(m_parent.get(), "Dialog_Error.gif", text, keys);
    QVERIFY(painted > int(row.keys.size()));
    QCOMPARE(faults.join("; "), QString());
}

void tst_TranslatedWindows::waitBoxIsReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    QVERIFY(speak(language));
    m_parent = std::make_unique<QWidget>();
    m_parent->resize(size);
    m_parent->show();
    QPromise<void> work;
    work.start();
    QStringList faults;
    int painted = 0;
    support::whenOpen([&](QDialog& dialog) {
        const QList<support::PaintedText> texts = support::paintedTexts(dialog);
        painted = int(texts.size());
        faults = support::unreadable(texts);
        dialog.reject();
    });
    QVERIFY(!UTIL_Platform::instance()->waitFor(
        m_parent.get(), KORVA_EditCanvas::tr("Opening picture", "WAIT_BOX"), work.future()));
    work.finish();
    QVERIFY(painted > 1);
    QCOMPARE(faults.join("; "), QString());
}

void tst_TranslatedWindows::menusAreReadable()
{
    QFETCH(const QString, language);
    QFETCH(const QSize, size);
    QVERIFY(speak(language));
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.resize(size);
    const auto look = [&size](QMenu* menu) {
        menu->resize(menu->sizeHint());
        const QList<support::PaintedText> texts = support::paintedTexts(*menu);
        QVERIFY(texts.size() >= menu->actions().size());
        QCOMPARE(support::unreadable(texts).join("; "), QString());
        QVERIFY(size.expandedTo(menu->size()) == size);
    };
    look(editor.canvas()->contextMenu());
    look(editor.canvas()->pasteLabel()->menu());
    look(editor.findChild<QPushButton*>("toolButton")->menu());
    constexpr int lastTool = 6;
    for (int tool = 0; tool <= lastTool; ++tool) {
        editor.loadToolOptions(tool);
        look(editor.findChild<QPushButton*>("optionButton")->menu());
    }
    auto* zooms = editor.findChild<QComboBox*>("zoomBox");
    editor.show();
    zooms->showPopup();
    QWidget* list = zooms->view()->window();
    const QList<support::PaintedText> texts = support::paintedTexts(*list);
    zooms->hidePopup();
    QVERIFY(texts.size() >= zooms->count());
    QCOMPARE(support::unreadable(texts).join("; "), QString());
    QVERIFY(size.expandedTo(list->size()) == size);
}

void tst_TranslatedWindows::allBoxesAreHere()
{
    QSet<QString> texts;
    for (const BoxRow& row : boxes)
        texts << QString(row.context) + row.text;
    for (const support::Message& message : support::messagesOf("de"))
        if (message.comment.contains("DIALOG_ICON") || message.comment.contains("FORM_CONTEXT"))
            QVERIFY2(texts.contains(message.context + message.source) ||
                         texts.contains("KORVA_EditCanvas" + message.source),
                     qPrintable(message.source));
}

void tst_TranslatedWindows::whatIsCutOffIsNoticed_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("fault");
    QTest::newRow("label") << 0 << "'Ein Text, der viel zu lang ist' is cut off";
    QTest::newRow("shortened") << 1 << "'Ein Tex…' is shortened";
    QTest::newRow("over another") << 2 << "'darauf' lies over 'Ein Text'";
    QTest::newRow("outside") << 3 << "'Halb' is cut off";
}

void tst_TranslatedWindows::whatIsCutOffIsNoticed()
{
    QFETCH(const int, kind);
    QFETCH(const QString, fault);
    QWidget window;
    window.resize(sizes[0]);
    auto* label = new QLabel("Ein Text", &window);
    label->setGeometry(10, 10, 100, 20);
    switch (kind) {
    case 0:
        label->setText("Ein Text, der viel zu lang ist");
        break;
    case 1:
        label->setText("Ein Tex…");
        break;
    case 2:
        (new QLabel("darauf", &window))->setGeometry(12, 10, 100, 20);
        break;
    default:
        label->setText("Halb");
        label->move(230, 10);
    }
    window.show();
    QCOMPARE(support::unreadable(support::paintedTexts(window)), QStringList(fault));
}

int main(int argc, char** argv)
{
    return support::run<tst_TranslatedWindows>(argc, argv);
}

#include "tst_TranslatedWindows.moc"
