#include "EditorFixtures.h"

#include "support/EventLoop.h"
#include "support/Modal.h"
#include "support/PictureFiles.h"
#include "support/StalledFile.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;
using support::StalledFile;

namespace {

/// Asked for its limit by any thread.
struct AskedPlatform : UTIL_Platform
{
    [[nodiscard]] qint64 pixelLimit() const override
    {
        ++(QThread::currentThread() == qApp->thread() ? asked : askedElsewhere);
        return UTIL_Platform::pixelLimit();
    }
    static inline std::atomic<int> asked;
    static inline std::atomic<int> askedElsewhere;
};

constexpr int openAction = 0;
constexpr int stampAction = 3;
constexpr QSize large(1200, 1000);

const QStringList opened{"canUndo(false)", "canRedo(false)", "pixmapChanged(345x288)", "sizeChanged()",
                         "canDelete(true)"};

/// What no picture is: large, and nothing can be made of it.
QString rubbish(const PictureFolder& folder)
{
    support::write(folder.file("rubbish.png"), QByteArray(200'000, 'x'));
    return folder.file("rubbish.png");
}

QStringList threads()
{
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

/// Reads the box that is about to open, then does `work`.
void whileWaiting(const std::function<void(QDialog&)>& work, int* seen)
{
    support::whenOpen([=](QDialog& box) {
        ++*seen;
        QVERIFY(box.inherits("UTIL_WaitBox"));
        QCOMPARE(support::labels(box), QStringList("Opening picture <WAIT_BOX>"));
        work(box);
    });
}

void cancel(QDialog& box)
{
    QTest::mouseClick(support::button(box, "Cancel"), Qt::LeftButton);
}

} // namespace

/// What one sees while a large picture is opened, and what is left when it is cancelled.
class tst_Waiting : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void smallPicturesStartNoThread();
    void largePicturesStartOne();
    void theDeviceIsAskedInItsOwnThread();
    void nothingIsHandledAtFirst();
    void whatTakesLongIsShown_data();
    void whatTakesLongIsShown();
    void isCancelled_data();
    void isCancelled();
    void isCancelledInThePickDialog();
    void cancelledAtConstruction();
    void troubleIsToldAfterwards();
    void theEditorMayGoAway_data();
    void theEditorMayGoAway();
    void theEditorMayGoAwayUnderAHostsBox();
    void theSizeCheckIsCancelled();
};

void tst_Waiting::init()
{
    support::TestCase::init();
    QThreadPool::globalInstance()->waitForDone(); // ends its idle threads, too
}

void tst_Waiting::cleanup()
{
    QThreadPool::globalInstance()->waitForDone();
}

void tst_Waiting::smallPicturesStartNoThread()
{
    const PictureFolder folder;
    EditorDesk desk;
    for (const char* name : {"flag.png", "flag.bmp", "flag.jpg"}) {
        const QString file = folder.written(name, fixtures::flag());
        const QStringList before = threads();
        QVERIFY(desk.editor->openNewFilePrivate(openAction, file));
        QCOMPARE(threads(), before);
    }
    const QStringList before = threads();
    QVERIFY(!desk.editor->openNewFilePrivate(openAction, folder.file("none.png")));
    QCOMPARE(threads(), before);
}

void tst_Waiting::largePicturesStartOne()
{
    const PictureFolder folder;
    EditorDesk desk;
    const QString flat = folder.written("flat.png", fixtures::flag(large)); // few bytes, many pixels
    QVERIFY(QFileInfo(flat).size() < 64 * 1024);
    for (const QString& name : {flat, rubbish(folder)}) {
        QThreadPool::globalInstance()->waitForDone();
        const QStringList before = threads();
        (void)desk.editor->openNewFilePrivate(openAction, name);
        QVERIFY(threads() != before);
    }
}

void tst_Waiting::theDeviceIsAskedInItsOwnThread()
{
    const PictureFolder folder;
    EditorDesk desk;
    const QString file = folder.written("flat.png", fixtures::flag(large));
    UTIL_Platform::install(std::make_unique<AskedPlatform>());
    const auto restore = qScopeGuard([] { UTIL_Platform::install(nullptr); });
    QVERIFY(desk.editor->openNewFilePrivate(openAction, file));
    QVERIFY(AskedPlatform::asked > 0);
    QCOMPARE(AskedPlatform::askedElsewhere, 0);
}

void tst_Waiting::nothingIsHandledAtFirst()
{
    const PictureFolder folder;
    EditorDesk desk;
    const QString name = rubbish(folder);
    StalledFile file(name);
    const support::FirstTurn turn;
    std::unique_ptr<QThread> release(QThread::create([&] {
        QThread::msleep(50);
        file.letGo();
    }));
    release->start();
    (void)desk.editor->openNewFilePrivate(openAction, name);
    const bool isUnhandled = turn.isNotBefore(100);
    release->wait();
    QVERIFY(isUnhandled);
}

void tst_Waiting::whatTakesLongIsShown_data()
{
    QTest::addColumn<int>("action");
    QTest::newRow("opening") << openAction;
    QTest::newRow("a stamp") << stampAction;
}

void tst_Waiting::whatTakesLongIsShown()
{
    QFETCH(const int, action);
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->show();
    const QString name = folder.written("large.bmp", fixtures::flag(large));
    StalledFile file(name);
    int seen = 0;
    whileWaiting([&](QDialog&) { file.letGo(); }, &seen);
    QVERIFY(desk.editor->openNewFilePrivate(action, name));
    QCOMPARE(seen, 1);
    if (action == openAction) {
        QCOMPARE(desk.log.taken(), opened);
        QCOMPARE(desk.editor->fileName(), name);
        QCOMPARE(desk.picture().size(), QSize(345, 288));
        QCOMPARE(desk.editor->sourceSize(), large);
        QVERIFY(desk.editor->isReduced());
    } else {
        QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    }
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_Waiting::isCancelled_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("before");
    for (const char* before : {"/photos/drawing.png", ""}) {
        QTest::addRow("opening over '%s'", before) << openAction << QString(before);
        QTest::addRow("a stamp over '%s'", before) << stampAction << QString(before);
    }
}

void tst_Waiting::isCancelled()
{
    QFETCH(const int, action);
    QFETCH(const QString, before);
    const PictureFolder folder;
    EditorDesk desk;
    desk.editor->setFileName(before);
    desk.scribble();
    desk.editor->setWindowTitle("drawing");
    const QImage picture = desk.picture();
    const QString name = rubbish(folder);
    StalledFile file(name);
    QString during;
    int seen = 0;
    whileWaiting(
        [&](QDialog& box) {
            during = desk.editor->fileName();
            cancel(box);
        },
        &seen);
    QVERIFY(!desk.editor->openNewFilePrivate(action, name));
    QCOMPARE(seen, 1);
    QCOMPARE(desk.log.taken(), QStringList()); // neither a signal nor a box
    QCOMPARE(desk.editor->fileName(), before);
    QCOMPARE(during, before);
    QCOMPARE(desk.editor->windowTitle(), "drawing");
    QVERIFY(desk.editor->isModified());
    QVERIFY(support::sameImage(desk.picture(), picture));
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
    file.letGo();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QCOMPARE(desk.log.taken(), QStringList()); // nor does it come afterwards
}

void tst_Waiting::isCancelledInThePickDialog()
{
    const PictureFolder folder;
    EditorDesk desk;
    const QString name = rubbish(folder);
    StalledFile file(name);
    desk.platform->picks = {name};
    int seen = 0;
    const QList<QDialog*> before = desk.editor->findChildren<QDialog*>();
    desk.platform->whilePicking = [&] { whileWaiting(cancel, &seen); };
    desk.editor->slotOpen();
    QCOMPARE(seen, 1);
    QCOMPARE(desk.editor->fileName(), QString());
    QCOMPARE(desk.editor->findChildren<QDialog*>(), before);
}

void tst_Waiting::cancelledAtConstruction()
{
    const PictureFolder folder;
    const QString name = rubbish(folder);
    StalledFile file(name);
    int seen = 0;
    support::whenOpen([&](QDialog& box) {
        ++seen;
        cancel(box);
    });
    const EditorDesk desk(name);
    QCOMPARE(seen, 1);
    QCOMPARE(desk.editor->fileName(), QString());
    QVERIFY(support::sameImage(desk.picture(), support::sheet({200, 170})));
    QVERIFY(!desk.editor->isModified());
}

void tst_Waiting::troubleIsToldAfterwards()
{
    const PictureFolder folder;
    EditorDesk desk;
    const QString name = rubbish(folder);
    StalledFile file(name);
    int seen = 0;
    whileWaiting([&](QDialog&) { file.letGo(); }, &seen);
    QVERIFY(!desk.editor->openNewFilePrivate(openAction, name));
    QCOMPARE(seen, 1);
    QCOMPARE(desk.log.taken(), QStringList("message | Dialog_Complete.gif | Failed to open file "
                                           "<2.11.2.9;DIALOG_ICON_50> | 1"));
}

void tst_Waiting::theEditorMayGoAway_data()
{
    QTest::addColumn<bool>("modified");
    QTest::newRow("opening") << false;
    QTest::newRow("after the question about changes") << true;
}

void tst_Waiting::theEditorMayGoAway()
{
    QFETCH(const bool, modified);
    const PictureFolder folder;
    EditorDesk desk;
    const QString name = rubbish(folder);
    StalledFile file(name);
    desk.platform->picks = {name};
    if (modified) {
        desk.scribble();
        desk.platform->answers = {1};
    }
    int seen = 0;
    desk.platform->whilePicking = [&] { whileWaiting([&](QDialog&) { desk.editor.reset(); }, &seen); };
    desk.editor->slotOpen();
    QCOMPARE(seen, 1);
    QVERIFY(!QApplication::activeModalWidget());
    file.letGo();
    QThreadPool::globalInstance()->waitForDone();
}

void tst_Waiting::theEditorMayGoAwayUnderAHostsBox()
{
    const PictureFolder folder;
    EditorDesk desk;
    const QString name = folder.written("large.bmp", fixtures::flag(large));
    desk.platform->picks = {name};
    desk.platform->whileWaiting = [&](const QFuture<void>& work) {
        QFuture<void>(work).waitForFinished();
        desk.editor.reset();
        return true;
    };
    desk.editor->slotOpen();
    QVERIFY(!desk.log.taken().contains("canDelete(true)"));
}

void tst_Waiting::theSizeCheckIsCancelled()
{
    const PictureFolder folder;
    EditorDesk desk;
    const QString name = rubbish(folder);
    StalledFile file(name);
    int seen = 0;
    whileWaiting(cancel, &seen);
    QVERIFY(!desk.editor->isPicSizeNotOver(name, "PNG"));
    QCOMPARE(seen, 1);
    QCOMPARE(desk.log.taken(), QStringList());
}

int main(int argc, char** argv)
{
    return support::run<tst_Waiting>(argc, argv);
}

#include "tst_Waiting.moc"
