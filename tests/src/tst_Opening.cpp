#include "EditorFixtures.h"

#include "KORVA_ScrollView.h"
#include "support/PictureFiles.h"

#include <unistd.h>

using fixtures::EditorDesk;
using fixtures::PictureFolder;
using fixtures::RecordingPlatform;
using fixtures::ToolID;

namespace {

const QString pick = "pick | /photos | *.png *.gif *.jpeg *.jpg *.bmp *.wbmp";
const QString oversize =
    "message | Dialog_Complete.gif | The image is oversize <2.11.2.9;DIALOG_ICON_50> | 1";
const QString failed = "message | Dialog_Complete.gif | Failed to open file <2.11.2.9;DIALOG_ICON_50> | 1";
const QString notOpened = "information | Dialog_Exclamatory_Mark.gif | This file can not be opened. "
                          "<4.4.4.2;DIALOG_ICON_50_WARP> | OK <4.4.4.2;SOFTKEY_1BUTTON> | 2";

const QSize normal(200, 170);
constexpr int openAction = 0;
constexpr int stampAction = 3;

/// A file that cannot be opened, and what the user is told of it.
struct Trouble
{
    QString log;
    std::function<QString(const PictureFolder&)> write;
    std::function<void(RecordingPlatform&, const QString&)> arrange = {};
};

const std::pair<const char*, Trouble> troubles[] = {
    {"missing", {failed, [](const PictureFolder& folder) { return folder.file("none.png"); }}},
    {"a folder", {failed, [](const PictureFolder& folder) { return folder.file("appwrite"); }}},
    {"no picture",
     {failed,
      [](const PictureFolder& folder) {
          support::write(folder.file("words.png"), "These are words.");
          return folder.file("words.png");
      }}},
    {"a picture under another format's name",
     {failed,
      [](const PictureFolder& folder) { return folder.written("a.jpg", fixtures::flag(), "PNG"); }}},
    {"more pixels than can be decoded",
     {oversize, [](const PictureFolder& folder) { return folder.written("a.png", fixtures::flag()); },
      [](RecordingPlatform& platform, const QString&) { platform.limit = 40 * 30 - 1; }}},
    {"a GIF damaged behind its first frame",
     {notOpened,
      [](const PictureFolder& folder) {
          constexpr int end = 4;
          support::write(folder.file("a.gif"), support::gifOfFrames({40, 30}, 2).chopped(end));
          return folder.file("a.gif");
      }}},
    {"gone after the size check",
     {notOpened, [](const PictureFolder& folder) { return folder.written("a.png", fixtures::flag()); },
      [](RecordingPlatform& platform, const QString& name) {
          platform.onReading = [name] { QFile::remove(name); };
      }}},
};

void addTroubles()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(troubles)); ++i)
        QTest::newRow(troubles[i].first) << i;
}

} // namespace

/// How a picture file becomes the drawing or a stamp on it.
class tst_Opening : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();

    void pickedPictureBecomesTheDrawing();
    void pickedPictureBecomesAStamp();
    void pickCancelled_data();
    void pickCancelled();
    void givenName();
    void givenNameAsAStamp();
    void openIsIgnoredWhilePicking();
    void troubleOnOpening_data();
    void troubleOnOpening();
    void troubleWithAStamp_data();
    void troubleWithAStamp();
    void scrollsToTheTop();

    void atConstruction();
    void handedOverAtConstruction_data();
    void handedOverAtConstruction();
    void notHandedOverByOthers_data();
    void notHandedOverByOthers();
    void troubleAtConstruction_data();
    void troubleAtConstruction();

    void logLines();

public:
    Q_INVOKABLE void opensWithoutAName();
    Q_INVOKABLE void opensWithAName();
};

void tst_Opening::init()
{
    support::TestCase::init();
    QVERIFY2(!QFile::exists(fixtures::handedOver), "somebody else's /tmp/korva.tmp is in the way");
}

// --- Picking

void tst_Opening::pickedPictureBecomesTheDrawing()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.platform->picks = {folder.written("flag.png", fixtures::flag())};
    desk.editor->slotOpen();
    QCOMPARE(desk.log.taken(), QStringList({pick, "canUndo(false)", "canRedo(false)",
                                            "pixmapChanged(40x30)", "sizeChanged()", "canDelete(true)"}));
    QVERIFY(support::sameImage(desk.picture(), fixtures::flag()));
    QCOMPARE(desk.editor->fileName(), folder.file("flag.png"));
    QVERIFY(!desk.editor->isModified());
    QVERIFY(!desk.editor->findChild<QDialog*>("folderDialog"));
}

void tst_Opening::pickedPictureBecomesAStamp()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName("/photos/drawing.png");
    desk.platform->picks = {folder.written("flag.png", fixtures::flag())};
    QVERIFY(desk.editor->openNewFilePrivate(stampAction, QString()));
    QCOMPARE(desk.log.taken(), QStringList({pick, "modified()", "canUndo(true)", "canRedo(false)"}));
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QVERIFY(support::sameImage(desk.picture(),
                               support::overlaid(support::sheet(normal), {0, 0}, fixtures::flag())));
    QCOMPARE(desk.editor->fileName(), "/photos/drawing.png");
    QVERIFY(!desk.editor->findChild<QDialog*>("folderDialog"));
}

void tst_Opening::pickCancelled_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<bool>("accepted");
    for (const int action : {openAction, stampAction}) {
        QTest::addRow("action %d, cancelled", action) << action << false;
        QTest::addRow("action %d, nothing chosen", action) << action << true;
    }
}

void tst_Opening::pickCancelled()
{
    QFETCH(const int, action);
    QFETCH(const bool, accepted);
    EditorDesk desk;
    desk.editor->setFileName("/photos/drawing.png");
    desk.scribble();
    const QImage before = desk.picture();
    desk.platform->picks = {accepted ? std::optional<QString>(QString()) : std::nullopt};
    QVERIFY(!desk.editor->openNewFilePrivate(action, QString()));
    QCOMPARE(desk.log.taken(), QStringList(pick));
    QCOMPARE(desk.editor->fileName(), "/photos/drawing.png");
    QVERIFY(desk.editor->isModified());
    QVERIFY(support::sameImage(desk.picture(), before));
    QVERIFY(!desk.editor->findChild<QDialog*>("folderDialog"));
}

void tst_Opening::givenName()
{
    const PictureFolder folder;
    EditorDesk desk;
    QVERIFY(desk.editor->openNewFilePrivate(openAction, folder.written("flag.png", fixtures::flag())));
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(false)", "pixmapChanged(40x30)",
                                            "sizeChanged()", "canDelete(true)"}));
    QVERIFY(support::sameImage(desk.picture(), fixtures::flag()));
    QCOMPARE(desk.editor->fileName(), folder.file("flag.png"));
}

void tst_Opening::givenNameAsAStamp()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName("/photos/drawing.png");
    QVERIFY(desk.editor->openNewFilePrivate(stampAction, folder.written("flag.png", fixtures::flag())));
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QCOMPARE(desk.editor->fileName(), "/photos/drawing.png");
    QVERIFY(!desk.log.taken().contains("canDelete(true)"));
}

void tst_Opening::openIsIgnoredWhilePicking()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.platform->picks = {folder.written("flag.png", fixtures::flag())};
    desk.platform->whilePicking = [&desk] {
        QVERIFY(desk.editor->findChild<QDialog*>("folderDialog")->isModal());
        desk.editor->slotOpen();
    };
    desk.editor->slotOpen();
    QCOMPARE(desk.log.taken().count(pick), 1);
    QVERIFY(support::sameImage(desk.picture(), fixtures::flag()));

    desk.platform->picks = {std::nullopt}; // and afterwards it works again
    desk.platform->whilePicking = {};
    desk.editor->slotOpen();
    QCOMPARE(desk.log.taken(), QStringList(pick));
}

// --- What goes wrong

void tst_Opening::troubleOnOpening_data()
{
    addTroubles();
}

void tst_Opening::troubleOnOpening()
{
    QFETCH(const int, index);
    const Trouble& trouble = troubles[index].second;
    const bool isChecked = trouble.log != notOpened; // by the size check
    const PictureFolder folder;
    const QString name = trouble.write(folder);
    EditorDesk desk;
    desk.scribble();
    desk.editor->setFileName("/photos/drawing.png");
    const QImage before = desk.picture();
    if (trouble.arrange)
        trouble.arrange(*desk.platform, name);
    desk.platform->picks = {name};
    QVERIFY(!desk.editor->openNewFilePrivate(openAction, QString()));
    QCOMPARE(desk.log.taken(), isChecked ? QStringList({pick, trouble.log})
                                         : QStringList({pick, trouble.log, "canDelete(true)"}));
    QCOMPARE(desk.editor->fileName(), isChecked ? name : QString());
    QVERIFY(support::sameImage(desk.picture(), before));
    QVERIFY(desk.editor->isModified());
    QVERIFY(!desk.editor->findChild<QDialog*>("folderDialog"));
}

void tst_Opening::troubleWithAStamp_data()
{
    addTroubles();
}

void tst_Opening::troubleWithAStamp()
{
    QFETCH(const int, index);
    const Trouble& trouble = troubles[index].second;
    const PictureFolder folder;
    const QString name = trouble.write(folder);
    EditorDesk desk;
    desk.editor->setFileName("/photos/drawing.png");
    if (trouble.arrange)
        trouble.arrange(*desk.platform, name);
    desk.platform->picks = {name};
    QVERIFY(!desk.editor->openNewFilePrivate(stampAction, QString()));
    QCOMPARE(desk.log.taken(), QStringList({pick, trouble.log}));
    QCOMPARE(desk.editor->fileName(), "/photos/drawing.png");
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
    QVERIFY(!desk.editor->isModified());
}

void tst_Opening::scrollsToTheTop()
{
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->show();
    desk.setPicture(support::sheet({352, 288}));
    KORVA_ScrollView* view = desk.editor->mainView()->scrollView();
    view->setContentsPos(50, 60);
    QCOMPARE(QPoint(view->contentsX(), view->contentsY()), QPoint(50, 60));
    QVERIFY(desk.editor->openNewFilePrivate(openAction,
                                            folder.written("flag.png", fixtures::flag({352, 288}))));
    QCOMPARE(QPoint(view->contentsX(), view->contentsY()), QPoint(0, 0));
}

// --- At construction

void tst_Opening::atConstruction()
{
    const PictureFolder folder;
    const QString name = folder.written("flag.png", fixtures::flag());
    EditorDesk desk(name);
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(support::sameImage(desk.picture(), fixtures::flag()));
    QCOMPARE(desk.canvas().size(), QSize(40, 30));
    QCOMPARE(desk.editor->fileName(), name);
    QVERIFY(!desk.editor->isModified());
    QCOMPARE(desk.canvas().undoFlag(), 0);
    QCOMPARE(desk.editor->size(), QSize(240, 225));
}

void tst_Opening::handedOverAtConstruction_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    for (const char* format : {"PNG", "JPEG", "BMP"}) {
        QTest::addRow("%s in korva.tmp", format) << "/tmp/korva.tmp" << QByteArray(format);
        QTest::addRow("%s in korva.file", format) << "/tmp/korva.file" << QByteArray(format);
    }
}

void tst_Opening::handedOverAtConstruction()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, format);
    const auto remove = qScopeGuard([&name] { QFile::remove(name); });
    QVERIFY(support::sheet({40, 30}, Qt::blue).save(name, format));
    EditorDesk desk(name);
    QCOMPARE(desk.log.taken(), QStringList());
    QCOMPARE(desk.picture().size(), QSize(40, 30));
    QVERIFY(desk.picture().pixelColor(20, 15).blue() > 240);
    QCOMPARE(desk.editor->fileName(), name);
    QVERIFY(!desk.editor->isModified());
}

void tst_Opening::notHandedOverByOthers_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("a link") << true;
    QTest::newRow("another user's file") << false;
}

void tst_Opening::notHandedOverByOthers()
{
    QFETCH(const bool, isLink);
    const PictureFolder folder;
    const QString name = fixtures::handedOver;
    const auto remove = qScopeGuard([&name] { QFile::remove(name); });
    if (isLink) {
        QVERIFY(QFile::link(folder.written("flag.png", fixtures::flag()), name));
    } else {
        constexpr uid_t nobody = 65534;
        QVERIFY(fixtures::flag().save(name, "PNG"));
        if (chown(QFile::encodeName(name).constData(), nobody, nobody) != 0)
            QSKIP("a file cannot be given to another user here");
    }
    EditorDesk desk(name);
    QCOMPARE(desk.log.taken(), QStringList(failed));
    QCOMPARE(desk.picture().size(), normal);
    QVERIFY(!desk.editor->openNewFilePrivate(openAction, name));
    QCOMPARE(desk.picture().size(), normal);
}

void tst_Opening::troubleAtConstruction_data()
{
    addTroubles();
    // Only the two hand-over names are read by content.
    QTest::newRow("a picture in another .tmp") << -1;
}

void tst_Opening::troubleAtConstruction()
{
    QFETCH(const int, index);
    const Trouble trouble = index < 0
                                ? Trouble{failed,
                                          [](const PictureFolder& folder) {
                                              return folder.written("korva.tmp", fixtures::flag(), "BMP");
                                          }}
                                : troubles[index].second;
    const PictureFolder folder;
    const QString name = trouble.write(folder);
    EditorDesk desk(name, [&](RecordingPlatform& platform) {
        if (trouble.arrange)
            trouble.arrange(platform, name);
    });
    QCOMPARE(desk.log.taken(), QStringList(trouble.log));
    QCOMPARE(desk.editor->fileName(), QString());
    QVERIFY(support::sameImage(desk.picture(), support::sheet(normal)));
    QVERIFY(!desk.editor->isModified());
}

// --- The log

void tst_Opening::opensWithoutAName()
{
    EditorDesk desk;
    desk.platform->picks = {std::nullopt};
    desk.editor->openNewFilePrivate(stampAction, QString());
}

void tst_Opening::opensWithAName()
{
    EditorDesk desk;
    desk.editor->openNewFilePrivate(openAction, "/nowhere/gr\u00fcn.png");
}

void tst_Opening::logLines()
{
    const QString start =
        "\\{1\\} KORVA_EditCanvas\\.cpp:[1-9][0-9]*\tKORVA_EditCanvas::openNewFilePrivate";
    const auto matches = [](const char* childCase, const QString& pattern) {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {"--case", childCase});
        child.waitForFinished();
        const QString errors = QString::fromLatin1(child.readAllStandardError());
        const bool matching = QRegularExpression('^' + pattern + '$').match(errors).hasMatch();
        if (!matching)
            qInfo().noquote() << "the child wrote" << errors;
        return matching && child.exitCode() == 0;
    };
    QVERIFY(matches("opensWithoutAName", start + " calling, flag=3, openDocFile=\n\n"));
    QVERIFY(matches("opensWithAName",
                    start + " calling, flag=0, openDocFile=/nowhere/gr\u00fcn\\.png\n\n" + start +
                        ", openResult is set to true, openDocFile=/nowhere/gr\u00fcn\\.png"
                        "\n\n"));
}

int main(int argc, char** argv)
{
    return support::run<tst_Opening>(argc, argv);
}

#include "tst_Opening.moc"
