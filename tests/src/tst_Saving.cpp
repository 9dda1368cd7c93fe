#include "EditorFixtures.h"

#include "KORVA_Text.h"
#include "support/PictureFiles.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;
using fixtures::ToolID;

namespace {

const QString nameAsked = "name | /photos | *.png *.jpeg *.jpg *.bmp";
const QString saved = "message | Dialog_Complete.gif | Saved Successfully <2.11.2.9;DIALOG_ICON_50> | 1";
const QString notSaved = "message | Dialog_Error.gif | Saved Failed <2.11.2.10;DIALOG_ICON_50> | 1";

QByteArray formatOf(const QString& name)
{
    QImageReader reader(name);
    reader.setDecideFormatFromContent(true);
    return reader.format();
}

} // namespace

/// How the drawing becomes a picture file.
class tst_Saving : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();

    void underItsName();
    void withoutANameAsks();
    void nameNotGiven();
    void emptyName();
    void unmodifiedIsNotSaved();
    void formatByExtension_data();
    void formatByExtension();
    void gifFailsAndKeepsItsName();
    void failureClearsTheName_data();
    void failureClearsTheName();
    void saveFileWithoutAName();
    void saveTellsNothing();

    void temporaryFolder_data();
    void temporaryFolder();

    void floatingPieceIsSaved();
    void typedTextIsSaved();
    void anEmptyTextIsAChange();
    void savingKeepsUndo();

    void setFileName_data();
    void setFileName();
    void handedOverPictureAsksForAName();
};

void tst_Saving::init()
{
    support::TestCase::init();
    QVERIFY2(!QFile::exists(fixtures::handedOver), "somebody else's /tmp/korva.tmp is in the way");
}

// --- The save command

void tst_Saving::underItsName()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.setPicture(support::mosaic({60, 40}));
    desk.editor->setFileName(folder.file("drawing.png"));
    desk.scribble();
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList({saved, "canDelete(true)"}));
    QVERIFY(support::sameImage(QImage(folder.file("drawing.png")), desk.picture()));
    QVERIFY(!desk.editor->isModified());
    QCOMPARE(desk.editor->fileName(), folder.file("drawing.png"));
    QCOMPARE(folder.names(), QStringList("drawing.png"));
    QVERIFY(QDir(folder.file("appwrite")).isEmpty());
}

void tst_Saving::withoutANameAsks()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.scribble();
    desk.platform->names = {folder.file("drawing.png")};
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList({nameAsked, saved, "canDelete(true)"}));
    QVERIFY(support::sameImage(QImage(folder.file("drawing.png")), desk.picture()));
    QCOMPARE(desk.editor->fileName(), folder.file("drawing.png"));
    QVERIFY(!desk.editor->isModified());
    QVERIFY(!desk.editor->findChild<QDialog*>("folderDialog"));

    desk.scribble();
    desk.editor->slotSave(); // it has a name now
    QCOMPARE(desk.log.taken(), QStringList({saved, "canDelete(true)"}));
}

void tst_Saving::nameNotGiven()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.scribble();
    desk.platform->names = {std::nullopt};
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList(nameAsked));
    QVERIFY(desk.editor->isModified());
    QCOMPARE(desk.editor->fileName(), QString());
    QCOMPARE(folder.names(), QStringList());
    QVERIFY(!desk.editor->findChild<QDialog*>("folderDialog"));
}

void tst_Saving::emptyName()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.scribble();
    desk.platform->names = {QString()}; // accepted, but nothing in it
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList({nameAsked, "canDelete(false)"}));
    QVERIFY(desk.editor->isModified());
}

void tst_Saving::unmodifiedIsNotSaved()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->slotSave();
    desk.editor->setFileName(folder.file("drawing.png"));
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList());
    QCOMPARE(folder.names(), QStringList());
}

void tst_Saving::formatByExtension_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    const auto add = [](const char* name, const char* format) {
        QTest::newRow(name) << name << QByteArray(format);
    };
    add("a.png", "png");
    add("a.PNG", "png");
    add("a.bmp", "bmp");
    add("a.jpg", "jpeg");
    add("a.Jpe", "jpeg");
    add("a.JPEG", "jpeg");
    add("a.wbmp", "png");
    add("a.tif", "png");
    add("a", "png");
    add("a.gif.bmp", "bmp");
    add("with blanks and gr\u00fcn.png", "png");
}

void tst_Saving::formatByExtension()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, format);
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(folder.file(name));
    desk.scribble();
    desk.editor->saveFilePrivate();
    QCOMPARE(desk.log.taken(), QStringList({saved, "canDelete(true)"}));
    QCOMPARE(formatOf(folder.file(name)), format);
    QCOMPARE(QImage(folder.file(name)).size(), QSize(200, 170));
}

void tst_Saving::gifFailsAndKeepsItsName()
{
    const PictureFolder folder;
    const QString name = folder.file("drawing.Gif");
    support::write(name, "as it was");
    EditorDesk desk;
    desk.editor->setFileName(name);
    desk.scribble();
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList({notSaved, "canDelete(true)"}));
    QCOMPARE(desk.editor->fileName(), name);
    QVERIFY(desk.editor->isModified());
    QCOMPARE(support::contents(name), QByteArray("as it was"));
}

void tst_Saving::failureClearsTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("temporary");
    QTest::newRow("a single quote in the name") << "it's.png" << QString();
    QTest::newRow("no such folder") << "nowhere/drawing.png" << QString();
    QTest::newRow("no temporary folder") << "drawing.png"
                                         << "/nowhere";
}

void tst_Saving::failureClearsTheName()
{
    QFETCH(const QString, name);
    QFETCH(const QString, temporary);
    const PictureFolder folder;
    const QString file = folder.file(name);
    if (QFileInfo(file).dir().exists())
        support::write(file, "as it was");
    const QByteArray before = support::contents(file);
    if (!temporary.isNull())
        qputenv("KIV_LOCAL_DOWNLOAD_PATH", temporary.toUtf8());
    EditorDesk desk;
    desk.editor->setFileName(file);
    desk.scribble();
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList({notSaved, "canDelete(true)"}));
    QCOMPARE(desk.editor->fileName(), QString());
    QVERIFY(desk.editor->isModified());
    QCOMPARE(support::contents(file), before);
    QVERIFY(QDir(folder.file("appwrite")).isEmpty());
}

void tst_Saving::saveFileWithoutAName()
{
    EditorDesk desk;
    desk.scribble();
    desk.editor->saveFilePrivate();
    QCOMPARE(desk.log.taken(), QStringList("canDelete(false)"));
    QVERIFY(desk.editor->isModified());
}

void tst_Saving::saveTellsNothing()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.scribble();
    QVERIFY(desk.editor->save(folder.file("a.bin"), "BMP"));
    QCOMPARE(formatOf(folder.file("a.bin")), "bmp");
    QVERIFY(!desk.editor->save(folder.file("nowhere/a.png"), "PNG"));
    QVERIFY(!desk.editor->save(folder.file("a.xyz"), "XYZ"));
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(desk.editor->isModified());
    QCOMPARE(desk.editor->fileName(), QString());
    QCOMPARE(folder.names(), QStringList("a.bin"));
    QVERIFY(QDir(folder.file("appwrite")).isEmpty());
}

// --- Where it is encoded

void tst_Saving::temporaryFolder_data()
{
    QTest::addColumn<QString>("value"); // %1 is the folder
    QTest::newRow("plain") << "%1";
    QTest::newRow("with a slash") << "%1/";
    QTest::newRow("with blanks around it") << " \t%1/ \n";
}

void tst_Saving::temporaryFolder()
{
    QFETCH(const QString, value);
    const PictureFolder folder;
    const QString base = folder.file("download");
    QVERIFY(QDir().mkpath(base + "/appwrite"));
    qputenv("KIV_LOCAL_DOWNLOAD_PATH", value.arg(base).toUtf8());
    QFileSystemWatcher watcher({base + "/appwrite"});
    QStringList seen;
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this,
            [&](const QString& path) { seen << path; });
    EditorDesk desk;
    desk.scribble();
    QVERIFY(desk.editor->save(folder.file("a.png"), "PNG"));
    QTRY_VERIFY(seen.contains(base + "/appwrite"));
    QVERIFY(QDir(base + "/appwrite").isEmpty());
    QVERIFY(support::sameImage(QImage(folder.file("a.png")), desk.picture()));
}

// --- What is saved

void tst_Saving::floatingPieceIsSaved()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(folder.file("drawing.png"));
    QPixmap stamp = QPixmap::fromImage(support::mosaic({32, 40}));
    desk.editor->insertStamp(stamp);
    desk.editor->slotSave();
    const QImage expected =
        support::overlaid(support::sheet({200, 170}), {0, 0}, support::mosaic({32, 40}));
    QVERIFY(support::sameImage(QImage(folder.file("drawing.png")), expected));
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
}

void tst_Saving::typedTextIsSaved()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(folder.file("drawing.png"));
    desk.type("Hm");
    desk.editor->slotSave();
    QVERIFY(fixtures::hasInk(QImage(folder.file("drawing.png"))));
    QVERIFY(support::sameImage(QImage(folder.file("drawing.png")), desk.picture()));
    const auto* text = qobject_cast<KORVA_Text*>(desk.manager().currentTool());
    QVERIFY(text && text->isBufferEmpty());
    QVERIFY(!desk.editor->isModified());
}

void tst_Saving::anEmptyTextIsAChange()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(folder.file("drawing.png"));
    desk.chooseTool(ToolID::Text);
    desk.editor->clearModified();
    (void)desk.log.taken();
    desk.editor->slotSave(); // which commits the text before it looks whether there is anything to save
    QCOMPARE(desk.log.taken(),
             QStringList({"modified()", "canUndo(true)", "canRedo(false)", saved, "canDelete(true)"}));
}

void tst_Saving::savingKeepsUndo()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(folder.file("drawing.png"));
    desk.scribble();
    desk.editor->slotSave();
    desk.editor->undo();
    QVERIFY(support::sameImage(desk.picture(), support::sheet({200, 170})));
}

// --- The name

void tst_Saving::setFileName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("a name") << "/photos/a.png"
                            << "/photos/a.png" << QStringList();
    QTest::newRow("empty") << ""
                           << "" << QStringList("canDelete(false)");
    QTest::newRow("null") << QString() << "" << QStringList("canDelete(false)");
    QTest::newRow("handed over") << "/tmp/korva.tmp"
                                 << "" << QStringList("canDelete(false)");
    QTest::newRow("the other handed over") << "/tmp/korva.file"
                                           << "/tmp/korva.file" << QStringList();
}

void tst_Saving::setFileName()
{
    QFETCH(const QString, name);
    QFETCH(const QString, expected);
    QFETCH(const QStringList, log);
    EditorDesk desk;
    desk.editor->setFileName("/photos/before.png");
    desk.editor->setFileName(name);
    QCOMPARE(desk.editor->fileName(), expected);
    QCOMPARE(desk.log.taken(), log);
}

void tst_Saving::handedOverPictureAsksForAName()
{
    const auto remove = qScopeGuard([] { QFile::remove(fixtures::handedOver); });
    const PictureFolder folder;
    QVERIFY(support::mosaic({40, 30}).save(fixtures::handedOver, "PNG"));
    EditorDesk desk(fixtures::handedOver);
    desk.editor->setFileName(fixtures::handedOver);
    (void)desk.log.taken();
    QVERIFY(!desk.editor->isModified());

    desk.platform->names = {folder.file("drawing.png")};
    desk.editor->slotSave();
    QCOMPARE(desk.log.taken(), QStringList({nameAsked, saved, "canDelete(true)"}));
    QVERIFY(support::sameImage(QImage(folder.file("drawing.png")), desk.picture()));
    desk.editor->slotSave(); // named and unmodified
    QCOMPARE(desk.log.taken(), QStringList());
}

int main(int argc, char** argv)
{
    return support::run<tst_Saving>(argc, argv);
}

#include "tst_Saving.moc"
