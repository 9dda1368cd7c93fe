#include "EditorFixtures.h"

#include "KORVA_Text.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;
using fixtures::ToolID;

namespace {

enum Action { Open, ChooseCanvas, Save, InsertStamp, Create };
enum Answer { None = -1, Yes, No };

const QString pick = "pick | /photos | *.png *.gif *.jpeg *.jpg *.bmp *.wbmp";
const QString nameAsked = "name | /photos | *.png *.jpeg *.jpg *.bmp";
const QString saved = "message | Dialog_Complete.gif | Saved Successfully <2.11.2.9;DIALOG_ICON_50> | 1";
const QString notSaved = "message | Dialog_Error.gif | Saved Failed <2.11.2.10;DIALOG_ICON_50> | 1";
const QString deleteAsked =
    "question | Dialog_Empty_Trash.gif | Delete drawing? <2.11.2.1;DIALOG_ICON_50> | "
    "OK <2.11.2.1;SOFTKEY_2BUTTON> / Cancel <2.11.2.1;SOFTKEY_2BUTTON>";

const QStringList recorded{"modified()", "canUndo(true)", "canRedo(false)"};
const QStringList opened{"canUndo(false)", "canRedo(false)", "pixmapChanged(40x30)", "sizeChanged()",
                         "canDelete(true)"};
const QSize normal(200, 170);

QString question(const char* before)
{
    return QString("question | Dialog_Exclamatory_Mark.gif | Save changes to drawing before %1? "
                   "<2.11.2.3;DIALOG_ICON_50_WARP> | Yes <2.11.2.3;SOFTKEY_2BUTTON> / No "
                   "<2.11.2.3;SOFTKEY_2BUTTON>")
        .arg(before);
}

} // namespace

/// What happens to unsaved changes before a document command, in which order; and the delete command.
class tst_Documents : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { QFile::remove(fixtures::handedOver); }

    void saveChanges_data();
    void saveChanges();
    void floatingPieceComesFirst();
    void typedText_data();
    void typedText();
    void openAfterAFailedSave();
    void saveDialogRejectedDropsTheOpen();
    void nameGivenByTheHost_data();
    void nameGivenByTheHost();
    void slotOpenAsks();

    void deletes_data();
    void deletes();
    void deletingTypedText();
};

void tst_Documents::init()
{
    support::TestCase::init();
    QVERIFY2(!QFile::exists(fixtures::handedOver), "somebody else's /tmp/korva.tmp is in the way");
}

// --- Saving changes first

void tst_Documents::saveChanges_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<bool>("modified");
    QTest::addColumn<bool>("named");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("handedOver");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<bool>("savedThen");
    const QStringList savedNow{saved, "canDelete(true)"};
    const QStringList openedNow = QStringList(pick) + opened;
    const QStringList stamped = QStringList(pick) + recorded;
    const auto add = [](const char* name, Action action, bool modified, bool named, Answer answer,
                        const QStringList& expected, bool savedThen = false, bool handedOver = false) {
        QTest::newRow(name) << int(action) << modified << named << int(answer) << handedOver << expected
                            << savedThen;
    };
    const QString opening = question("opening");
    const QString choosing = question("choosing canvas");
    const QString creating = question("creating");

    add("open, modified, named, yes", Open, true, true, Yes, QStringList(opening) + savedNow + openedNow,
        true);
    add("open, modified, named, no", Open, true, true, No, QStringList(opening) + openedNow);
    add("open, modified, unnamed, yes", Open, true, false, Yes,
        QStringList({opening, nameAsked}) + savedNow + openedNow, true);
    add("open, modified, unnamed, no", Open, true, false, No, QStringList(opening) + openedNow);
    add("open, unmodified, named", Open, false, true, None, openedNow);
    add("open, unmodified, unnamed", Open, false, false, None, openedNow);

    add("choose canvas, modified, named, yes", ChooseCanvas, true, true, Yes,
        QStringList(choosing) + savedNow, true);
    add("choose canvas, modified, named, no", ChooseCanvas, true, true, No, QStringList(choosing));
    add("choose canvas, modified, unnamed, yes", ChooseCanvas, true, false, Yes,
        QStringList({choosing, nameAsked}) + savedNow, true);
    add("choose canvas, modified, unnamed, no", ChooseCanvas, true, false, No, QStringList(choosing));
    add("choose canvas, unmodified, named", ChooseCanvas, false, true, None, {});
    add("choose canvas, unmodified, unnamed", ChooseCanvas, false, false, None, {});

    add("save, modified, named", Save, true, true, None, savedNow, true);
    add("save, modified, unnamed", Save, true, false, None, QStringList(nameAsked) + savedNow, true);
    add("save, unmodified, named", Save, false, true, None, {});
    add("save, unmodified, unnamed", Save, false, false, None, {});
    add("save, unmodified, named, handed over", Save, false, true, None, {}, false, true);
    add("save, unmodified, unnamed, handed over", Save, false, false, None,
        QStringList(nameAsked) + savedNow, true, true);

    add("stamp, modified, named", InsertStamp, true, true, None, stamped);
    add("stamp, modified, unnamed", InsertStamp, true, false, None, stamped);
    add("stamp, unmodified, named", InsertStamp, false, true, None, stamped);
    add("stamp, unmodified, unnamed", InsertStamp, false, false, None, stamped);

    add("create, modified, named, yes", Create, true, true, Yes, QStringList(creating) + savedNow, true);
    add("create, modified, named, no", Create, true, true, No, QStringList(creating));
    add("create, modified, unnamed, yes", Create, true, false, Yes,
        QStringList({creating, nameAsked}) + savedNow, true);
    add("create, modified, unnamed, no", Create, true, false, No, QStringList(creating));
    add("create, unmodified, named", Create, false, true, None, {});
    add("create, unmodified, unnamed", Create, false, false, None, {});
}

void tst_Documents::saveChanges()
{
    QFETCH(const int, action);
    QFETCH(const bool, modified);
    QFETCH(const bool, named);
    QFETCH(const int, answer);
    QFETCH(const bool, handedOver);
    QFETCH(const QStringList, expected);
    QFETCH(const bool, savedThen);
    const PictureFolder folder;
    if (handedOver)
        QVERIFY(fixtures::flag().save(fixtures::handedOver, "PNG"));
    EditorDesk desk;
    const QString drawing = folder.file("drawing.png");
    if (named)
        desk.editor->setFileName(drawing);
    if (modified)
        desk.scribble();
    const QImage before = desk.picture();
    desk.platform->picks = {folder.written("flag.png", fixtures::flag())};
    desk.platform->names = {drawing};
    if (answer != None)
        desk.platform->answers = {answer};

    desk.editor->saveChangePic(action);
    QCOMPARE(desk.log.taken(), expected);
    QCOMPARE(QFile::exists(drawing), savedThen);
    if (savedThen)
        QVERIFY(support::sameImage(QImage(drawing), before));
    const bool isOpened = action == Open;
    const bool isStamped = action == InsertStamp;
    const QImage stamped = support::overlaid(before, {0, 0}, fixtures::flag());
    QVERIFY(support::sameImage(desk.picture(), isOpened ? fixtures::flag() : isStamped ? stamped : before));
    QCOMPARE(desk.editor->isModified(), isStamped || (modified && !savedThen && !isOpened));
    QCOMPARE(desk.editor->fileName(), isOpened             ? folder.file("flag.png")
                                      : named || savedThen ? drawing
                                                           : QString());
}

void tst_Documents::floatingPieceComesFirst()
{
    EditorDesk desk;
    desk.setPicture(support::mosaic({60, 50}));
    desk.canvas().setSelection({5, 5, 20, 10});
    QVERIFY(!desk.editor->isModified()); // lifting alone is no change
    (void)desk.log.taken();
    desk.platform->answers = {No};
    desk.editor->saveChangePic(Create);
    QCOMPARE(desk.log.taken(), recorded + QStringList({"selection(false)", question("creating")}));
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
}

void tst_Documents::typedText_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("painted");
    QTest::addColumn<bool>("dropped");
    QTest::newRow("open, yes") << int(Open) << int(Yes) << true << true;
    QTest::newRow("open, no") << int(Open) << int(No) << false << true;
    QTest::newRow("create, yes") << int(Create) << int(Yes) << true << true;
    QTest::newRow("create, no") << int(Create) << int(No) << false << false;
    QTest::newRow("choose canvas, no") << int(ChooseCanvas) << int(No) << false << false;
    QTest::newRow("save") << int(Save) << int(None) << true << true;
}

void tst_Documents::typedText()
{
    QFETCH(const int, action);
    QFETCH(const int, answer);
    QFETCH(const bool, painted);
    QFETCH(const bool, dropped);
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(folder.file("drawing.png"));
    desk.type("Hm");
    const auto* text = qobject_cast<KORVA_Text*>(desk.manager().currentTool());
    if (answer != None)
        desk.platform->answers = {answer};
    desk.platform->picks = {std::nullopt};
    desk.editor->saveChangePic(action);
    QCOMPARE(QFile::exists(folder.file("drawing.png")), painted);
    QCOMPARE(fixtures::hasInk(desk.picture()), painted);
    if (painted)
        QVERIFY(support::sameImage(QImage(folder.file("drawing.png")), desk.picture()));
    QCOMPARE(text->isBufferEmpty(), dropped);
}

void tst_Documents::openAfterAFailedSave()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(folder.file("nowhere/drawing.png"));
    desk.scribble();
    desk.platform->answers = {Yes};
    desk.platform->picks = {std::nullopt};
    desk.editor->saveChangePic(Open);
    QCOMPARE(desk.log.taken(), QStringList({question("opening"), notSaved, "canDelete(true)", pick}));
    QVERIFY(desk.editor->isModified()); // nothing is lost yet
}

void tst_Documents::saveDialogRejectedDropsTheOpen()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.scribble();
    desk.platform->answers = {Yes};
    desk.platform->names = {std::nullopt};
    desk.editor->saveChangePic(Open);
    QCOMPARE(desk.log.taken(), QStringList({question("opening"), nameAsked}));
    QVERIFY(desk.editor->isModified());
    QVERIFY(!desk.editor->findChild<QDialog*>("folderDialog"));

    // A save of its own does not take the open up again.
    desk.editor->slotSaveDlgCloseBeforeOpen(folder.file("drawing.png"));
    QCOMPARE(desk.log.taken(), QStringList({saved, "canDelete(true)"}));
}

void tst_Documents::nameGivenByTheHost_data()
{
    QTest::addColumn<int>("pending");
    QTest::addColumn<bool>("picksThen");
    QTest::newRow("nothing before") << -1 << false;
    QTest::newRow("after choose canvas") << int(ChooseCanvas) << false;
    QTest::newRow("after save") << int(Save) << false;
    QTest::newRow("after create") << int(Create) << false;
    QTest::newRow("after open") << int(Open) << true;
    QTest::newRow("after stamp") << int(InsertStamp) << true;
}

void tst_Documents::nameGivenByTheHost()
{
    QFETCH(const int, pending);
    QFETCH(const bool, picksThen);
    const PictureFolder folder;
    EditorDesk desk;
    desk.platform->picks = {std::nullopt, std::nullopt};
    if (pending >= 0)
        desk.editor->saveChangePic(pending);
    desk.scribble();
    desk.editor->slotSaveDlgCloseBeforeOpen(folder.file("drawing.png"));
    const QStringList savedNow{saved, "canDelete(true)"};
    QCOMPARE(desk.log.taken(), picksThen ? savedNow + QStringList(pick) : savedNow);
    QCOMPARE(desk.editor->fileName(), folder.file("drawing.png"));
    QVERIFY(QFile::exists(folder.file("drawing.png")));
}

void tst_Documents::slotOpenAsks()
{
    EditorDesk desk;
    desk.scribble();
    desk.platform->answers = {No};
    desk.platform->picks = {std::nullopt};
    desk.editor->slotOpen();
    QCOMPARE(desk.log.taken(), QStringList({question("opening"), pick}));
}

// --- Deleting

void tst_Documents::deletes_data()
{
    QTest::addColumn<bool>("named");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("named, OK") << true << true << true;
    QTest::newRow("named, cancelled") << true << true << false;
    QTest::newRow("named but gone, OK") << true << false << true;
    QTest::newRow("unnamed, OK") << false << false << true;
    QTest::newRow("unnamed, cancelled") << false << false << false;
}

void tst_Documents::deletes()
{
    QFETCH(const bool, named);
    QFETCH(const bool, exists);
    QFETCH(const bool, confirmed);
    const PictureFolder folder;
    const QString other = folder.written("other.png", fixtures::flag());
    EditorDesk desk;
    const QString name = folder.file("drawing.png");
    if (named)
        desk.editor->setFileName(name);
    if (exists)
        (void)folder.written("drawing.png", fixtures::flag());
    desk.scribble();
    const QImage before = desk.picture();
    desk.platform->answers = {confirmed ? 0 : 1};
    desk.editor->slotDelete();
    QCOMPARE(desk.log.taken(), confirmed ? QStringList(deleteAsked) + recorded : QStringList(deleteAsked));
    QVERIFY(support::sameImage(desk.picture(), confirmed ? support::sheet(normal) : before));
    QCOMPARE(desk.editor->isModified(), !confirmed);
    QCOMPARE(desk.editor->fileName(), named && !confirmed ? name : QString());
    QCOMPARE(QFile::exists(name), exists && !confirmed);
    QVERIFY(QFile::exists(other));

    if (!confirmed)
        return;
    desk.scribble();
    desk.platform->names = {std::nullopt};
    desk.editor->slotSave(); // it has no name any more
    QCOMPARE(desk.log.taken(), QStringList(nameAsked));
}

void tst_Documents::deletingTypedText()
{
    EditorDesk desk;
    desk.type("Hm");
    desk.platform->answers = {0};
    desk.editor->slotDelete();
    const auto* text = qobject_cast<KORVA_Text*>(desk.manager().currentTool());
    QVERIFY(text->isBufferEmpty());
    QVERIFY(!text->getTextKey());
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(!fixtures::hasInk(desk.canvas().zoomedPixmap()->toImage()));
}

int main(int argc, char** argv)
{
    return support::run<tst_Documents>(argc, argv);
}

#include "tst_Documents.moc"
