#include "EditorFixtures.h"

#include "KORVA_ENGINE_CloseFilter.h"
#include "KORVA_Preview.h"
#include "support/Modal.h"
#include "support/PictureFiles.h"

namespace {

using Editor = KORVA_EditCanvas;
using Operation = std::function<void(Editor&)>;
using Deletion = void (*)(Editor*);

constexpr auto noPicture = "/nowhere/none.png";

void scribble(Editor& editor)
{
    support::Gestures(*editor.canvas()).click({20, 15});
}

/// A drawing with changes.
Operation changed(const Operation& operation)
{
    return [=](Editor& editor) {
        scribble(editor);
        operation(editor);
    };
}

/// The same with letters that are not committed.
Operation typed(const Operation& operation)
{
    return [=](Editor& editor) {
        constexpr int text = 104;
        editor.slotSelChangeTool(text);
        support::Gestures(*editor.canvas()).click({20, 40});
        QKeyEvent key(QEvent::KeyPress, Qt::Key_H, Qt::NoModifier, "H");
        QCoreApplication::sendEvent(editor.canvas(), &key);
        operation(editor);
    };
}

Operation named(const QString& name, const Operation& operation)
{
    return [=](Editor& editor) {
        editor.setFileName(name);
        operation(editor);
    };
}

/// A dialog that is answered without being shown, and may go while it runs.
class SilentDialog : public UTIL_PictureDialog
{
public:
    SilentDialog(QWidget* parent, const QString& name, const std::function<void()>& meanwhile)
        : UTIL_PictureDialog(parent), m_meanwhile(meanwhile)
    {
        setFileName(name);
    }
    int exec() override
    {
        const std::function<void()> meanwhile = m_meanwhile;
        meanwhile();
        return Accepted;
    }

private:
    std::function<void()> m_meanwhile;
};

/// Services of a host's own; in one of its calls, counted from 1, it deletes the editor.
class DeletingPlatform : public UTIL_Platform
{
public:
    std::function<void()> strike;
    int strikeAt = 0;
    int calls = 0;
    int answer = 0;
    QString chosen;

    int question(QWidget*, const QString&, const QString&, const QStringList&) override
    {
        call();
        return answer;
    }
    void timedInformation(QWidget*, const QString&, const QString&, const QString&, int) override
    {
        call();
    }
    void timedMessage(QWidget*, const QString&, const QString&, int) override { call(); }
    bool waitFor(QWidget*, const QString&, const QFuture<void>& work) override
    {
        QFuture<void> mine = work;
        mine.waitForFinished();
        call();
        return true;
    }
    UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString&, const QStringList&) override
    {
        return new SilentDialog(parent, chosen, [this] { call(); });
    }
    UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString&, const QStringList&) override
    {
        return new SilentDialog(parent, chosen, [this] { call(); });
    }
    bool removePicture(const QString&) override
    {
        call();
        return true;
    }

private:
    void call()
    {
        if (++calls == strikeAt)
            strike();
    }
};

/// The desktop's, with a folder of pictures.
class FolderPlatform : public UTIL_Platform
{
public:
    explicit FolderPlatform(const QString& folder) : m_folder(folder) {}
    [[nodiscard]] QString photoFolder() const override { return m_folder; }

private:
    QString m_folder;
};

} // namespace

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(Deletion)

/// A host that deletes the editor while the user is asked or told something.
class tst_HostDeletes : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup();

    void whileADialogIsOpen_data();
    void whileADialogIsOpen();
    void whileASecondDialogIsOpen();
    void inAnyServiceOfItsOwn_data();
    void inAnyServiceOfItsOwn();
    void thePreviewMayGoToo();

private:
    void addOperations();

    fixtures::PictureFolder m_folder;
};

void tst_HostDeletes::cleanup()
{
    UTIL_Platform::install(nullptr);
}

void tst_HostDeletes::addOperations()
{
    const QString name = m_folder.file("drawing.png");
    (void)m_folder.written("large.bmp", fixtures::flag({1200, 1000}));
    const QString damaged = m_folder.file("damaged.gif");
    support::write(damaged, QByteArray("GIF89a\x10\0\x10\0\0\0\0,\0\0\0\0\x10\0\x10\0\0\2", 22));
    const Operation open = [](Editor& e) { e.slotOpen(); };
    const Operation save = [](Editor& e) { e.slotSave(); };
    const auto change = [](int action) { return Operation([=](Editor& e) { e.saveChangePic(action); }); };
    const auto openFile = [](int flag, const QString& file) {
        return Operation([=](Editor& e) { (void)e.openNewFilePrivate(flag, file); });
    };

    QTest::addColumn<Operation>("operation");
    QTest::newRow("the question before an open") << changed(open);
    QTest::newRow("the question before an open, with letters") << typed(open);
    QTest::newRow("the question before a choice of canvas") << changed(change(1));
    QTest::newRow("the question before a new drawing") << typed(change(4));
    QTest::newRow("the question before deleting") << named(name, [](Editor& e) { e.slotDelete(); });
    QTest::newRow("the pick dialog") << open;
    QTest::newRow("the pick dialog for a stamp") << change(3);
    QTest::newRow("the pick dialog after a save") << changed([](Editor& e) { e.savePic(3); });
    QTest::newRow("the save dialog") << typed(save);
    QTest::newRow("the save dialog before an open") << changed([](Editor& e) { e.savePic(0); });
    QTest::newRow("saved") << named(name, changed(save));
    QTest::newRow("saved before an open") << named(name, [](Editor& e) { e.savePic(0); });
    QTest::newRow("saved under a name")
        << Operation([=](Editor& e) { e.slotSaveDlgCloseBeforeOpen(name); });
    QTest::newRow("not saved") << named(noPicture, changed(save));
    QTest::newRow("a picture that is not there") << openFile(0, noPicture);
    QTest::newRow("a stamp that is not there") << openFile(3, noPicture);
    QTest::newRow("a damaged picture") << openFile(0, damaged);
    QTest::newRow("a check of what is not there")
        << Operation([](Editor& e) { (void)e.isPicSizeNotOver(noPicture, "PNG"); });
    QTest::newRow("a buffer that is no picture") << Operation([](Editor& e) { e.setBuffer("xyz"); });
}

void tst_HostDeletes::whileADialogIsOpen_data()
{
    addOperations();
    QTest::newRow("the colour picker") << Operation([](Editor& e) { e.slotColor(); });
}

void tst_HostDeletes::whileADialogIsOpen()
{
    QFETCH(const Operation, operation);
    static constexpr std::pair<const char*, Deletion> deletions[] = {
        {"at once", [](Editor* editor) { delete editor; }},
        {"later", [](Editor* editor) { editor->deleteLater(); }},
        {"by the close filter",
         [](Editor* editor) { KORVA_ENGINE_CloseFilter::deleteWidgetLater(editor); }},
        {"with its window", [](Editor* editor) { delete editor->window(); }},
    };
    for (const auto& [how, deletion] : deletions) {
        QPointer<QWidget> window = new QWidget;
        const QPointer<Editor> editor = new Editor(KORVA_COLOR_16BIT, window);
        window->show();
        int seen = 0;
        support::whenOpen([&, deletes = deletion](QDialog&) {
            ++seen;
            deletes(editor);
        });
        operation(*editor);
        QVERIFY2(seen == 1, how);
        QVERIFY2(!editor, how);
        QVERIFY2(!QApplication::activeModalWidget(), how);
        delete window;
    }
}

void tst_HostDeletes::whileASecondDialogIsOpen()
{
    UTIL_Platform::install(std::make_unique<FolderPlatform>(m_folder.file({})));
    const QString taken = m_folder.written("taken.png", fixtures::flag());
    const QPointer<Editor> editor = new Editor(KORVA_COLOR_16BIT);
    editor->show();
    scribble(*editor);
    int seen = 0;
    support::whenOpen([&](QDialog& saving) {
        ++seen;
        saving.findChild<QLineEdit*>()->setText(QFileInfo(taken).fileName());
        support::whenOpen([&](QDialog&) { // may it be replaced?
            ++seen;
            editor->deleteLater();
        });
        support::button(saving, "Save")->click();
    });
    editor->slotSave();
    QCOMPARE(seen, 2);
    QVERIFY(!editor);
    QVERIFY(support::sameImage(QImage(taken), fixtures::flag()));
}

void tst_HostDeletes::inAnyServiceOfItsOwn_data()
{
    addOperations();
    const QString picture = m_folder.file("large.bmp");
    QTest::newRow("a large picture") << Operation(
        [=](Editor& e) { (void)e.openNewFilePrivate(0, picture); });
    QTest::newRow("a check of a large picture")
        << Operation([=](Editor& e) { (void)e.isPicSizeNotOver(picture, nullptr); });
}

void tst_HostDeletes::inAnyServiceOfItsOwn()
{
    QFETCH(const Operation, operation);
    auto owned = std::make_unique<DeletingPlatform>();
    DeletingPlatform& platform = *owned;
    UTIL_Platform::install(std::move(owned));
    int services = 0;
    for (const QString& chosen : {m_folder.file("large.bmp"), m_folder.file("damaged.gif")}) {
        for (const int answer : {0, 1}) {
            platform.chosen = chosen;
            platform.answer = answer;
            for (int strikeAt = 0; strikeAt == 0 || platform.calls >= strikeAt; ++strikeAt) {
                (void)m_folder.written("large.bmp", fixtures::flag({1200, 1000})); // what was there before
                QPointer<Editor> editor = new Editor(KORVA_COLOR_16BIT);
                platform.strikeAt = strikeAt;
                platform.calls = 0;
                platform.strike = [&] { delete editor; };
                operation(*editor);
                if (strikeAt > 0 && platform.calls >= strikeAt) {
                    QVERIFY(!editor);
                    QCOMPARE(platform.calls, strikeAt); // nothing is asked or told in its name any more
                    ++services;
                }
                delete editor;
            }
        }
    }
    QVERIFY(services > 0);
}

void tst_HostDeletes::thePreviewMayGoToo()
{
    const QString file = m_folder.written("flag.png", fixtures::flag());
    QTimer::singleShot(0, qApp, [] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->inherits("KORVA_ImageView_Dialog"))
                delete widget;
        }
    });
    int result = 0;
    KorvaPreview(QString(), file, result);
    QCOMPARE(result, int(KORVA_PREVIEW_CANCELLED));
}

int main(int argc, char** argv)
{
    return support::run<tst_HostDeletes>(argc, argv);
}

#include "tst_HostDeletes.moc"
