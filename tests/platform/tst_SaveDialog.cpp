#include "FolderFixtures.h"
#include "UTIL_SaveDialog.h"
#include "UTIL_Skin.h"

using fixtures::Photos;

namespace {

const QStringList patterns{"*.png", "*.jpeg", "*.jpg", "*.bmp"};

struct Stage : fixtures::Stage<UTIL_SaveDialog>
{
    explicit Stage(const QString& folder, const QString& proposal = {})
        : fixtures::Stage<UTIL_SaveDialog>(folder, patterns)
    {
        dialog.setFileName(proposal);
        show();
    }

    [[nodiscard]] QLineEdit& edit() { return *dialog.findChild<QLineEdit*>(); }
    void type(const QString& name)
    {
        edit().selectAll();
        QTest::keyClick(&edit(), Qt::Key_Delete);
        QTest::keyClicks(&edit(), name);
    }
};

/// Answers the question whether to replace a file.
struct Answering : UTIL_Platform
{
    explicit Answering(QStringList& asked, int answer) : m_asked(asked), m_answer(answer) {}
    int question(QWidget*, const QString& icon, const QString& text, const QStringList& buttons) override
    {
        m_asked << icon << text << buttons;
        return m_answer;
    }

private:
    QStringList& m_asked;
    int m_answer;
};

} // namespace

class tst_SaveDialog : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { UTIL_Platform::install(nullptr); }

    void platformMakesIt();
    void fitsTheScreen();
    void proposesAFreeName();
    void proposalOfTheCallerIsTaken();
    void onlyTheBaseNameIsMarked();
    void proposalMovesAlongToAnotherFolder();
    void typedNameGetsAnExtension_data();
    void typedNameGetsAnExtension();
    void noNameIsNotConfirmed_data();
    void noNameIsNotConfirmed();
    void existingFileIsAskedFor_data();
    void existingFileIsAskedFor();
    void tappedPictureGivesItsName();
    void returnConfirms();
    void cancelReturnsNothing();
    void missingFolderIsMade();
};

void tst_SaveDialog::platformMakesIt()
{
    const Photos photos;
    QWidget window;
    UTIL_PictureDialog* dialog =
        UTIL_Platform::instance()->createSaveDialog(&window, photos.path(), patterns);
    QVERIFY(qobject_cast<UTIL_SaveDialog*>(dialog));
    QCOMPARE(dialog->parentWidget(), &window);
    support::whenOpen(
        [](QDialog& open) { QTest::mouseClick(support::button(open, "Save"), Qt::LeftButton); });
    QCOMPARE(dialog->exec(), 1);
    QCOMPARE(dialog->fileName(), photos.path("Drawing.png"));
    QVERIFY(!QFile::exists(photos.path("Drawing.png"))); // it only names it
}

void tst_SaveDialog::fitsTheScreen()
{
    const Photos photos;
    Stage stage(photos.path());
    QCOMPARE(stage.dialog.size(), QSize(UTIL_Skin::Size::screenWidth, UTIL_Skin::Size::screenHeight));
    QVERIFY(stage.edit().height() >= UTIL_Skin::Size::keyHeight);
    QVERIFY(stage.dialog.rect().contains(stage.edit().geometry()));
    QVERIFY(stage.view().height() > stage.view().gridSize().height());
    QCOMPARE(support::labels(stage.dialog).value(0), "Save picture as");
}

void tst_SaveDialog::proposesAFreeName()
{
    const Photos photos;
    QCOMPARE(Stage(photos.path()).edit().text(), "Drawing.png");
    photos.add("Drawing.png");
    QCOMPARE(Stage(photos.path()).edit().text(), "Drawing 2.png");
    photos.add("Drawing 2.png");
    photos.add("Drawing 4.png");
    QCOMPARE(Stage(photos.path()).edit().text(), "Drawing 3.png");
}

void tst_SaveDialog::proposalOfTheCallerIsTaken()
{
    const Photos photos;
    QCOMPARE(Stage(photos.path(), "mine.jpg").edit().text(), "mine.jpg");
}

void tst_SaveDialog::onlyTheBaseNameIsMarked()
{
    const Photos photos;
    Stage stage(photos.path());
    QCOMPARE(stage.edit().selectedText(), "Drawing");
    QTest::keyClicks(&stage.edit(), "Sea");
    QCOMPARE(stage.edit().text(), "Sea.png");
}

void tst_SaveDialog::proposalMovesAlongToAnotherFolder()
{
    const Photos photos;
    photos.add("Drawing.png");
    Stage stage(photos.path());
    QCOMPARE(stage.edit().text(), "Drawing 2.png");
    stage.tap("sub");
    QCOMPARE(stage.edit().text(), "Drawing.png");
    stage.type("mine");
    stage.press("Up");
    QCOMPARE(stage.edit().text(), "mine");
    stage.tap("sub");
    stage.press("Save");
    QCOMPARE(stage.dialog.fileName(), photos.path("sub/mine.png"));
}

void tst_SaveDialog::typedNameGetsAnExtension_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    const std::pair<const char*, const char*> rows[] = {
        {"new", "new.png"},
        {"new.png", "new.png"},
        {"new.PNG", "new.PNG"},
        {"new.jpg", "new.jpg"},
        {"new.Jpeg", "new.Jpeg"},
        {"new.bmp", "new.bmp"},
        {"new.gif", "new.png"},
        {"new.wbmp", "new.png"},
        {"version 1.2", "version 1.2.png"},
        {"new.png.jpg", "new.png.jpg"},
        {" new ", "new.png"},
        {"new.", "new..png"},
        {"$HOME", "$HOME.png"},
        {"-rf", "-rf.png"},
    };
    for (const auto& [typed, name] : rows)
        QTest::addRow("\"%s\"", typed) << QString(typed) << QString(name);
}

void tst_SaveDialog::typedNameGetsAnExtension()
{
    QFETCH(QString, typed);
    QFETCH(QString, name);
    const Photos photos;
    Stage stage(photos.path());
    stage.type(typed);
    stage.press("Save");
    QCOMPARE(stage.dialog.result(), 1);
    QCOMPARE(stage.dialog.fileName(), photos.path(name));
}

void tst_SaveDialog::noNameIsNotConfirmed_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("taken"); // what the field lets through
    QTest::addRow("nothing") << ""
                             << "";
    QTest::addRow("blanks") << "   "
                            << "   ";
    QTest::addRow("only an extension") << ".png"
                                       << ".png";
    QTest::addRow("slashes") << "//"
                             << "";
    QTest::addRow("quotes") << "''"
                            << "";
}

void tst_SaveDialog::noNameIsNotConfirmed()
{
    QFETCH(QString, typed);
    const Photos photos;
    Stage stage(photos.path());
    stage.type(typed);
    QTEST(stage.edit().text(), "taken");
    QVERIFY(!stage.isEnabled("Save"));
    QTest::keyClick(&stage.edit(), Qt::Key_Return);
    QVERIFY(stage.dialog.isVisible());
}

void tst_SaveDialog::existingFileIsAskedFor_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("answer"); // -1: none is asked for
    QTest::addRow("cancel") << "a.bmp" << 0;
    QTest::addRow("replace") << "a.bmp" << 1;
    QTest::addRow("replace, with the extension added") << "b10" << 1;
    QTest::addRow("a new one") << "new" << -1;
}

void tst_SaveDialog::existingFileIsAskedFor()
{
    QFETCH(QString, typed);
    QFETCH(int, answer);
    QStringList asked;
    UTIL_Platform::install(std::make_unique<Answering>(asked, answer));
    const Photos photos;
    Stage stage(photos.path());
    stage.type(typed);
    stage.press("Save");
    QCOMPARE(stage.dialog.isVisible(), answer == 0);
    if (answer == 0)
        QVERIFY(stage.dialog.fileName().isEmpty());
    if (answer < 0)
        QCOMPARE(asked, QStringList());
    else
        QCOMPARE(asked, QStringList({"Dialog_Exclamatory_Mark.gif",
                                     typed == "b10" ? "Replace b10.png?" : "Replace a.bmp?", "Cancel",
                                     "Replace"}));
}

void tst_SaveDialog::tappedPictureGivesItsName()
{
    const Photos photos;
    Stage stage(photos.path());
    stage.tap("B9.jpg");
    QCOMPARE(stage.edit().text(), "B9.jpg");
    QVERIFY(stage.dialog.isVisible());
}

void tst_SaveDialog::returnConfirms()
{
    const Photos photos;
    Stage stage(photos.path());
    QVERIFY(stage.edit().hasFocus());
    QTest::keyClick(&stage.edit(), Qt::Key_Return);
    QCOMPARE(stage.dialog.result(), 1);
    QCOMPARE(stage.dialog.fileName(), photos.path("Drawing.png"));
}

void tst_SaveDialog::cancelReturnsNothing()
{
    const Photos photos;
    for (const bool isByKeyboard : {false, true}) {
        Stage stage(photos.path(), "mine.png");
        if (isByKeyboard)
            QTest::keyClick(&stage.edit(), Qt::Key_Escape);
        else
            stage.press("Cancel");
        QCOMPARE(stage.dialog.result(), 0);
        QVERIFY(stage.dialog.fileName().isEmpty());
    }
}

void tst_SaveDialog::missingFolderIsMade()
{
    const Photos photos;
    Stage stage(photos.path("never/used"));
    stage.press("Save");
    QCOMPARE(stage.dialog.fileName(), photos.path("never/used/Drawing.png"));
    QVERIFY(QFileInfo(photos.path("never/used")).isDir());
}

int main(int argc, char** argv)
{
    return support::run<tst_SaveDialog>(argc, argv);
}

#include "tst_SaveDialog.moc"
