#include "EditorFixtures.h"
#include "KORVA_ScrollView.h"
#include "UTIL_Platform.h"
#include "support/TestCase.h"

using fixtures::EditorDesk;
using support::sameImage;

namespace {

using Act = std::function<void(EditorDesk&)>;

/// What a person and a host can see of an editor.
QStringList facts(const EditorDesk& desk)
{
    const KORVA_EditCanvas& editor = *desk.editor;
    const KORVA_Tool& tool = *desk.manager().currentTool();
    QStringList facts;
    const auto add = [&facts](const char* what, const auto& value) {
        QString text;
        QDebug(&text) << what << value;
        facts << text;
    };
    add("tool", editor.tool());
    add("option", editor.option());
    add("zoom", desk.canvas().zoom());
    add("row", desk.zoomBox().currentIndex());
    add("color", editor.color());
    add("color type", int(editor.colorType()));
    add("pen", tool.leftPen());
    add("brush", tool.leftBrush());
    add("right pen", tool.rightPen());
    add("size", desk.canvas().pictureSize());
    add("widget", desk.canvas().size());
    add("scrolled",
        QPoint(editor.mainView()->scrollView()->contentsX(), editor.mainView()->scrollView()->contentsY()));
    add("file", editor.fileName());
    add("source", editor.sourceSize());
    add("reduced", editor.isReduced());
    add("changes", editor.hasChanges());
    add("modified", editor.isModified());
    add("undo", desk.canvas().undoFlag());
    add("floating", desk.canvas().pasteLabel()->isVisible());
    add("kept", desk.canvas().pasteLabel()->getImage().size());
    add("selection", desk.canvas().hasSelection());
    add("picture", qHash(QByteArrayView(editor.snapshot().constBits(), editor.snapshot().sizeInBytes())));
    add("screen", desk.editor->grab().toImage().pixelColor(120, 120));
    return facts;
}

void stroke(EditorDesk& desk)
{
    support::Gestures(desk.canvas()).drag({{10, 10}, {60, 70}});
}

} // namespace

class tst_Reset : public support::TestCase
{
    Q_OBJECT

private slots:
    void everythingIsAsNew_data();
    void everythingIsAsNew();
    void gesturesGoOnAsNew_data();
    void gesturesGoOnAsNew();
    void hostsSettingsStay();
    void clipboardStays();
    void signalsTellOfIt();
    void endsWhatIsOpen_data();
    void endsWhatIsOpen();
    void whatWasToFollowIsForgotten();
    void othersDialogsStay();
    void encodedPicturesComeWithoutABox();
};

void tst_Reset::everythingIsAsNew_data()
{
    QTest::addColumn<Act>("act");
    const auto add = [](const char* name, const Act& act) { QTest::newRow(name) << act; };
    add("nothing", [](EditorDesk&) {});
    for (int tool = KORVA_TOOL_PENCIL; tool <= KORVA_TOOL_HAND; ++tool) {
        add(qPrintable(QString("tool %1 in its last option").arg(tool)), [tool](EditorDesk& desk) {
            desk.editor->selectTool(tool);
            desk.editor->selectOption(tool == KORVA_TOOL_SELECT ? 0 : 2);
            desk.editor->selectOption(1);
            desk.editor->setColor(Qt::blue);
            stroke(desk);
        });
        add(qPrintable(QString("within a gesture of tool %1").arg(tool)), [tool](EditorDesk& desk) {
            desk.editor->selectTool(tool);
            support::Gestures hand(desk.canvas());
            hand.press({10, 10});
            hand.move({50, 60});
        });
    }
    add("zoomed and scrolled", [](EditorDesk& desk) {
        desk.editor->selectZoom(KORVA_ZOOM_200);
        desk.editor->mainView()->scrollView()->setContentsPos(40, 30);
    });
    add("fitted", [](EditorDesk& desk) { desk.editor->selectZoom(KORVA_ZOOM_FIT); });
    add("text open", [](EditorDesk& desk) { desk.type("abc"); });
    add("anchored selection", [](EditorDesk& desk) {
        desk.editor->selectTool(KORVA_TOOL_SELECT);
        support::Gestures(desk.canvas()).click({20, 20});
    });
    add("floating selection", [](EditorDesk& desk) {
        stroke(desk);
        desk.editor->selectTool(KORVA_TOOL_SELECT);
        stroke(desk);
    });
    add("pasted piece", [](EditorDesk& desk) {
        QGuiApplication::clipboard()->setImage(support::mosaic({30, 30}));
        desk.editor->paste();
    });
    add("undone", [](EditorDesk& desk) {
        stroke(desk);
        desk.editor->undo();
    });
    add("another canvas", [](EditorDesk& desk) { desk.editor->chooseCanvas(KORVA_CANVAS_1BIT, 300, 20); });
    add("a name", [](EditorDesk& desk) { desk.editor->setFileName("/tmp/a.png"); });
    add("a picture", [](EditorDesk& desk) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        support::mosaic({400, 300}).save(&buffer, "PNG");
        QVERIFY(desk.editor->setEncoded(bytes));
        QVERIFY(desk.editor->isReduced());
    });
}

void tst_Reset::everythingIsAsNew()
{
    QFETCH(const Act, act);
    EditorDesk fresh;
    const QStringList expected = facts(fresh);
    EditorDesk desk;
    act(desk);
    desk.editor->reset();
    QCOMPARE(facts(desk), expected);
    QVERIFY(sameImage(desk.editor->grab(), fresh.editor->grab().toImage()));
}

void tst_Reset::gesturesGoOnAsNew_data()
{
    everythingIsAsNew_data();
}

void tst_Reset::gesturesGoOnAsNew()
{
    QFETCH(const Act, act);
    EditorDesk fresh;
    EditorDesk desk;
    act(desk);
    desk.editor->reset();
    support::Gestures(desk.canvas()).move({90, 90}); // of a gesture that is over
    QVERIFY(sameImage(desk.picture(), support::sheet({200, 170})));
    for (int tool = KORVA_TOOL_PENCIL; tool <= KORVA_TOOL_HAND; ++tool) {
        for (EditorDesk* each : {&fresh, &desk}) {
            each->editor->selectTool(tool);
            support::Gestures(each->canvas()).drag({{10 + 5 * tool, 10}, {60, 70 + 5 * tool}});
        }
        QVERIFY(sameImage(desk.editor->grab(), fresh.editor->grab().toImage()));
    }
    for (EditorDesk* each : {&fresh, &desk})
        each->editor->undo();
    QVERIFY(sameImage(desk.picture(), fresh.picture()));
}

void tst_Reset::hostsSettingsStay()
{
    EditorDesk desk;
    desk.editor->setUndoSteps(7);
    desk.editor->setPaper(support::mosaic({200, 170}));
    stroke(desk);
    desk.editor->reset();
    QCOMPARE(desk.editor->undoSteps(), 7);
    QVERIFY(sameImage(desk.picture(), support::mosaic({200, 170})));
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), support::mosaic({200, 170})));
}

void tst_Reset::clipboardStays()
{
    EditorDesk desk;
    QGuiApplication::clipboard()->setImage(support::mosaic({30, 30}));
    desk.editor->reset();
    QVERIFY(sameImage(QGuiApplication::clipboard()->image(), support::mosaic({30, 30})));
}

void tst_Reset::signalsTellOfIt()
{
    EditorDesk desk;
    desk.editor->selectTool(KORVA_TOOL_LINE);
    desk.editor->selectZoom(KORVA_ZOOM_200);
    desk.editor->setColor(Qt::blue);
    desk.editor->setFileName("/tmp/a.png");
    stroke(desk);
    (void)desk.log.taken();
    desk.log.watch(desk.editor.get(), &KORVA_EditCanvas::toolChanged);
    desk.log.watch(desk.editor.get(), &KORVA_EditCanvas::zoomChanged);
    desk.editor->reset();
    QCOMPARE(desk.log.taken(), QStringList({"canDelete(false)", "signalTextTool(false)", "toolChanged(0)",
                                            "sizeChanged()", "zoomChanged(100)", "selection(false)",
                                            "pixmapChanged(200x170)", "canRedo(false)", "canUndo(false)"}));
}

void tst_Reset::endsWhatIsOpen_data()
{
    QTest::addColumn<Act>("open");
    const auto add = [](const char* name, const Act& act) { QTest::newRow(name) << act; };
    add("save question", [](EditorDesk& desk) { desk.editor->saveChangePic(KORVA_ACTION_OPEN); });
    add("delete question", [](EditorDesk& desk) { desk.editor->slotDelete(); });
    add("colour picker", [](EditorDesk& desk) { desk.editor->slotColor(); });
    add("open dialog", [](EditorDesk& desk) { desk.editor->openNewFilePrivate(KORVA_ACTION_OPEN, {}); });
    add("stamp dialog",
        [](EditorDesk& desk) { desk.editor->openNewFilePrivate(KORVA_ACTION_INSERT_STAMP, {}); });
    add("save dialog", [](EditorDesk& desk) { desk.editor->savePic(KORVA_ACTION_SAVE); });
    add("message", [](EditorDesk& desk) { desk.editor->setBuffer("no picture"); });
    add("tool menu", [](EditorDesk& desk) { desk.button("toolButton").menu()->exec(); });
    add("context menu", [](EditorDesk& desk) { desk.canvas().contextMenu()->exec(); });
}

void tst_Reset::endsWhatIsOpen()
{
    QFETCH(const Act, open);
    EditorDesk fresh;
    const QStringList expected = facts(fresh);
    EditorDesk desk;
    UTIL_Platform::install(nullptr); // the desktop's boxes and dialogs
    desk.editor->setColor(Qt::blue);
    desk.editor->show();
    stroke(desk);
    bool wasOpen = false;
    QStringList during;
    QTimer::singleShot(100, desk.editor.get(), [&] {
        wasOpen = QApplication::activeModalWidget() || QApplication::activePopupWidget();
        desk.editor->reset();
        during = facts(desk);
    });
    open(desk);
    QVERIFY(wasOpen);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(during, expected);
    QCOMPARE(facts(desk), expected); // and whoever had opened it did no more
}

void tst_Reset::whatWasToFollowIsForgotten()
{
    const fixtures::PictureFolder folder;
    EditorDesk desk;
    desk.platform->picks = {std::nullopt};
    desk.editor->saveChangePic(KORVA_ACTION_OPEN);
    QVERIFY(desk.platform->picks.isEmpty());
    desk.editor->reset();
    desk.editor->slotSaveDlgCloseBeforeOpen(folder.file("a.png")); // fails if another dialog opens
    QCOMPARE(folder.names(), QStringList("a.png"));
}

void tst_Reset::othersDialogsStay()
{
    EditorDesk desk;
    QDialog others;
    others.show();
    desk.editor->cancelDialogs();
    QVERIFY(others.isVisible());
}

void tst_Reset::encodedPicturesComeWithoutABox()
{
    EditorDesk desk;
    const QImage before = desk.picture();
    QVERIFY(!desk.editor->setEncoded("no picture"));
    QVERIFY(!desk.editor->setEncoded({}));
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(sameImage(desk.picture(), before));
    QVERIFY(desk.editor->setEncoded(desk.editor->encoded("PNG")));
    QCOMPARE(desk.log.taken().first(), QString("canUndo(false)"));
}

int main(int argc, char** argv)
{
    return support::run<tst_Reset>(argc, argv);
}

#include "tst_Reset.moc"
