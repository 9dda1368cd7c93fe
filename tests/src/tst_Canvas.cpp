#include "Fixtures.h"
#include "UTIL_Platform.h"

#include <csignal>

using fixtures::PictureCanvas;
using fixtures::RecordingTool;
using support::ChildProcess;
using support::mosaic;
using support::sameImage;
using support::SignalRecorder;

namespace {

/// Watches a canvas from the moment at which its constructor asks for the mouse mode.
class ConstructionWitness : public UTIL_Platform
{
public:
    explicit ConstructionWitness(SignalRecorder& recorder) : m_recorder(recorder) {}

    void setMouseMode(QWidget* widget, int mode) override
    {
        m_recorder.note(QString("%1 mode %2").arg(widget->metaObject()->className()).arg(mode));
        if (auto* canvas = qobject_cast<KORVA_Canvas*>(widget))
            watch(canvas);
    }

private:
    void watch(KORVA_Canvas* canvas)
    {
        QObject::connect(canvas, &KORVA_Canvas::sizeChanged, canvas, [this, canvas] {
            m_recorder.note(
                QString("%1x%2 menu %3 focus %4 inst %5")
                    .arg(canvas->width())
                    .arg(canvas->height())
                    .arg(canvas->findChild<QMenu*>({}, Qt::FindDirectChildrenOnly) ? "yes" : "no")
                    .arg(canvas->focusPolicy())
                    .arg(KORVA_Canvas::inst));
        });
        QObject::connect(canvas, &KORVA_Canvas::modified, canvas,
                         [this] { m_recorder.note(QString("inst %1").arg(KORVA_Canvas::inst)); });
        m_recorder.watch(canvas, &KORVA_Canvas::sizeChanged);
        m_recorder.watch(canvas, &KORVA_Canvas::pixmapChanged);
        m_recorder.watch(canvas, &KORVA_Canvas::modified);
        m_recorder.watch(canvas, qOverload<bool>(&KORVA_Canvas::selection));
        m_recorder.watch(canvas, &KORVA_Canvas::clipboard);
        m_recorder.watch(canvas, &KORVA_Canvas::canUndo);
        m_recorder.watch(canvas, &KORVA_Canvas::canRedo);
    }

    SignalRecorder& m_recorder;
};

} // namespace

class tst_Canvas : public support::TestCase
{
    Q_OBJECT

public:
    Q_INVOKABLE void activatesTwice();
    Q_INVOKABLE void deactivatesIdle();
    Q_INVOKABLE void setsDepthTwo();

private slots:
    void constructionBySizeKeepsItsOrder();
    void constructionByFileKeepsItsOrder();
    void newCanvasIsWhiteModifiedAndHasNothingToUndo();
    void canvasOfAFileTakesItsSizeOnly();
    void canvasOfAMissingFileIsEmpty();
    void instCountsConstructionsOnly();
    void editorHearsSixSignals();
    void editorMayBeNull();

    void activationMarksTheTool();
    void programmingErrorsAbort_data();
    void programmingErrorsAbort();

    void paintShowsTheZoomedPicture();
    void toolGetsEventsInWidgetCoordinates();
    void toolGetsNeitherDoubleClicksNorEnterNorLeave();
    void otherButtonsReachNoTool();
    void keysGoToTheToolOrToTheParent();
    void leftPressOutsideThePieceMergesFirst();
    void moveAndReleaseOutsideThePieceMergeNothing();
    void eventsOnThePieceReachItInItsOwnCoordinates();
    void rightPressOpensTheMenu();
    void rightPressOnThePieceOpensTheCanvasMenu();
};

// --- Construction

void tst_Canvas::constructionBySizeKeepsItsOrder()
{
    SignalRecorder recorder;
    KORVA_Canvas::inst = 0;
    UTIL_Platform::install(std::make_unique<ConstructionWitness>(recorder));
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    recorder.watch(&editor, &KORVA_EditCanvas::modified, "editor");
    KORVA_Canvas::inst = 0;
    static_cast<void>(recorder.taken());
    const KORVA_Canvas canvas(&editor, 32, 40);
    UTIL_Platform::install(nullptr);

    QCOMPARE(recorder.taken(),
             QStringList({"KORVA_Canvas mode 1", "KORVA_PasteLabel mode 1", "32x40 menu no focus 0 inst 0",
                          "sizeChanged()", "32x40 menu yes focus 11 inst 0", "sizeChanged()", "inst 1",
                          "modified()"}));
}

void tst_Canvas::constructionByFileKeepsItsOrder()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("picture.png");
    QVERIFY(mosaic(QSize(17, 9)).save(file));

    SignalRecorder recorder;
    UTIL_Platform::install(std::make_unique<ConstructionWitness>(recorder));
    KORVA_Canvas::inst = 5;
    const KORVA_Canvas canvas(nullptr, file);
    UTIL_Platform::install(nullptr);

    // The widget has the picture's size before the zoomed picture is made: nothing changes then.
    QCOMPARE(recorder.taken(),
             QStringList({"KORVA_Canvas mode 1", "KORVA_PasteLabel mode 1", "17x9 menu yes focus 11 inst 5",
                          "sizeChanged()", "inst 6", "modified()"}));
}

void tst_Canvas::newCanvasIsWhiteModifiedAndHasNothingToUndo()
{
    KORVA_Canvas canvas(nullptr, 32, 40, nullptr, "pad");
    QCOMPARE(canvas.objectName(), "pad");
    QCOMPARE(canvas.size(), QSize(32, 40));
    QVERIFY(sameImage(*canvas.pixmap(), support::sheet(QSize(32, 40))));
    QVERIFY(sameImage(*canvas.zoomedPixmap(), support::sheet(QSize(32, 40))));
    QVERIFY(canvas.isModified());
    QCOMPARE(canvas.undoFlag(), 0);
    QCOMPARE(canvas.zoom(), 100);
    QVERIFY(!canvas.isActive());
    QVERIFY(!canvas.getCurrentTool());
    QCOMPARE(canvas.getCurrentToolID(), -1);
    QVERIFY(!canvas.hasSelection());
    QCOMPARE(canvas.selection(), QRect());
    QCOMPARE(canvas.focusPolicy(), Qt::StrongFocus);
    QVERIFY(canvas.testAttribute(Qt::WA_OpaquePaintEvent));
    QVERIFY(canvas.pasteLabel()->isHidden());
    QCOMPARE(canvas.pasteLabel()->parentWidget(), &canvas);

    QStringList texts;
    for (const QAction* action : canvas.contextMenu()->actions())
        texts << action->text();
    QCOMPARE(texts, QStringList({"Cut", "Copy", "Paste"}));
    QCOMPARE(fixtures::enabledActions(canvas.contextMenu()), "000");
}

void tst_Canvas::canvasOfAFileTakesItsSizeOnly()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("picture.png");
    QVERIFY(mosaic(QSize(17, 9)).save(file));
    KORVA_Canvas canvas(nullptr, file);
    QCOMPARE(canvas.size(), QSize(17, 9));
    QVERIFY(sameImage(*canvas.pixmap(), support::sheet(QSize(17, 9))));
    QVERIFY(canvas.isModified());
    QCOMPARE(canvas.undoFlag(), 0);
    canvas.undo(); // the file was read and then painted over
    QVERIFY(sameImage(*canvas.pixmap(), mosaic(QSize(17, 9))));
}

void tst_Canvas::canvasOfAMissingFileIsEmpty()
{
    KORVA_Canvas canvas(nullptr, "/nowhere/at/all.png");
    QVERIFY(canvas.pixmap()->isNull());
    QCOMPARE(canvas.size(), QSize(0, 0));
}

void tst_Canvas::instCountsConstructionsOnly()
{
    KORVA_Canvas::inst = 0;
    {
        const KORVA_Canvas first(nullptr, 3, 4);
        const KORVA_Canvas second(nullptr, "/nowhere/at/all.png");
        QCOMPARE(KORVA_Canvas::inst, 2);
    }
    QCOMPARE(KORVA_Canvas::inst, 2);
}

void tst_Canvas::editorHearsSixSignals()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    KORVA_Canvas& canvas = *editor.canvas();
    SignalRecorder recorder;
    recorder.watch(&editor, &KORVA_EditCanvas::sizeChanged);
    recorder.watch(&editor, &KORVA_EditCanvas::pixmapChanged);
    recorder.watch(&editor, &KORVA_EditCanvas::modified);
    recorder.watch(&editor, &KORVA_EditCanvas::selection);
    recorder.watch(&editor, &KORVA_EditCanvas::canUndo);
    recorder.watch(&editor, &KORVA_EditCanvas::canRedo);

    canvas.markModified();
    QCOMPARE(recorder.taken(), QStringList({"modified()", "canUndo(true)", "canRedo(false)"}));
    canvas.resizeImage(20, 30);
    QCOMPARE(recorder.taken(), QStringList({"sizeChanged()", "pixmapChanged(20x30)", "modified()",
                                            "canUndo(true)", "canRedo(false)"}));
    canvas.setSelection(QRect(1, 1, 5, 5));
    QCOMPARE(recorder.taken(), QStringList({"selection(true)"}));
}

void tst_Canvas::editorMayBeNull()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    canvas.markModified();
    QCOMPARE(recorder.taken(), QStringList({"canUndo(true)", "canRedo(false)", "modified()"}));
    canvas.setSelection(QRect(1, 1, 3, 3));
    QCOMPARE(fixtures::enabledActions(canvas.contextMenu()), "110");
}

// --- Activation and assertions

void tst_Canvas::activationMarksTheTool()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    RecordingTool tool;
    canvas.activate(&tool);
    QVERIFY(canvas.isActive());
    QCOMPARE(canvas.getCurrentTool(), &tool);
    QCOMPARE(canvas.getCurrentToolID(), -1); // the tool's own, until the manager numbers it
    tool.setId(4);
    QCOMPARE(canvas.getCurrentToolID(), 4);
    canvas.deactivate();
    QVERIFY(!canvas.isActive());
    QVERIFY(!canvas.getCurrentTool());
    QCOMPARE(canvas.getCurrentToolID(), -1);
    QCOMPARE(tool.log, QStringList()); // neither side of it calls the tool
}

void tst_Canvas::activatesTwice()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    RecordingTool tool;
    canvas.activate(&tool);
    canvas.activate(&tool);
}

void tst_Canvas::deactivatesIdle()
{
    KORVA_Canvas(nullptr, 10, 10).deactivate();
}

void tst_Canvas::setsDepthTwo()
{
    KORVA_Canvas(nullptr, 10, 10).setDepth(2);
}

void tst_Canvas::programmingErrorsAbort_data()
{
    QTest::addColumn<QString>("expression");
    QTest::newRow("activatesTwice") << "!isActive()";
    QTest::newRow("deactivatesIdle") << "isActive()";
    QTest::newRow("setsDepthTwo")
        << "(d == 1) || (d == 4) || (d == 8) || (d == 15) || (d == 16) || (d == 24) || (d == 32)";
}

void tst_Canvas::programmingErrorsAbort()
{
    QFETCH(const QString, expression);
    const ChildProcess child = ChildProcess::run(QTest::currentDataTag());
    QCOMPARE(child.signal, SIGABRT);
    QVERIFY2(fixtures::assertionText(expression, "src/KORVA_Canvas").match(child.errors).hasMatch(),
             qPrintable(child.errors));
}

// --- Events

void tst_Canvas::paintShowsTheZoomedPicture()
{
    PictureCanvas canvas(mosaic(QSize(20, 10)));
    canvas.setZoom(200);
    QVERIFY(sameImage(canvas.grab(), support::scaled(mosaic(QSize(20, 10)), 200)));
}

void tst_Canvas::toolGetsEventsInWidgetCoordinates()
{
    KORVA_Canvas canvas(nullptr, 40, 30);
    canvas.setZoom(200);
    RecordingTool tool;
    fixtures::use(canvas, tool);
    support::Gestures pointer(canvas);
    pointer.drag({{70, 50}, {75, 55}});
    pointer.hover({9, 9}); // the canvas does not track
    QCOMPARE(tool.log, QStringList({"activating", "press 70,50", "move 75,55", "release 75,55"}));
}

void tst_Canvas::toolGetsNeitherDoubleClicksNorEnterNorLeave()
{
    KORVA_Canvas canvas(nullptr, 40, 30);
    RecordingTool tool;
    fixtures::use(canvas, tool);
    tool.log.clear();
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&canvas, &enter);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&canvas, &leave);
    QVERIFY(!tool.log.contains("enter") && !tool.log.contains("leave"));
    QTest::mouseDClick(&canvas, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(!tool.log.contains("doubleClick 5,5"));
    QVERIFY(tool.log.contains("press 5,5"));
}

void tst_Canvas::otherButtonsReachNoTool()
{
    KORVA_Canvas canvas(nullptr, 40, 30);
    RecordingTool tool;
    fixtures::use(canvas, tool);
    tool.log.clear();
    canvas.setSelection(QRect(20, 20, 5, 5));
    support::Gestures pointer(canvas);
    pointer.press({3, 3}, Qt::MiddleButton);
    QCOMPARE(tool.log, QStringList());
    QVERIFY(!canvas.pasteLabel()->isHidden());
}

void tst_Canvas::keysGoToTheToolOrToTheParent()
{
    struct Parent : QWidget
    {
        int keys = 0;
        void keyPressEvent(QKeyEvent*) override { ++keys; }
        void keyReleaseEvent(QKeyEvent*) override { ++keys; }
    } parent;
    KORVA_Canvas canvas(nullptr, 40, 30, &parent);
    support::Gestures keys(canvas);
    keys.key(Qt::Key_A, "a");
    QCOMPARE(parent.keys, 2);

    RecordingTool tool;
    fixtures::use(canvas, tool);
    keys.key(Qt::Key_B, "b");
    QCOMPARE(tool.log, QStringList({"activating", "keyPress b", "keyRelease b"}));
    QCOMPARE(parent.keys, 2);
}

void tst_Canvas::leftPressOutsideThePieceMergesFirst()
{
    PictureCanvas canvas(mosaic(QSize(40, 30)));
    RecordingTool tool;
    fixtures::use(canvas, tool);
    canvas.setSelection(QRect(20, 20, 5, 5));
    support::Gestures(canvas).press({3, 3});
    QCOMPARE(tool.log, QStringList({"activating", "press 3,3"})); // not floating any more
    QVERIFY(sameImage(canvas.merged(), mosaic(QSize(40, 30))));
}

void tst_Canvas::moveAndReleaseOutsideThePieceMergeNothing()
{
    PictureCanvas canvas(mosaic(QSize(40, 30)));
    RecordingTool tool;
    fixtures::use(canvas, tool);
    support::Gestures pointer(canvas);
    pointer.press({3, 3});
    canvas.setSelection(QRect(20, 20, 5, 5));
    pointer.move({4, 4});
    pointer.release({5, 5});
    QCOMPARE(tool.log,
             QStringList({"activating", "press 3,3", "move 4,4 floating", "release 5,5 floating"}));
    QVERIFY(canvas.isFloating());
}

void tst_Canvas::eventsOnThePieceReachItInItsOwnCoordinates()
{
    PictureCanvas canvas(mosaic(QSize(60, 60)));
    RecordingTool tool;
    fixtures::use(canvas, tool);
    canvas.setSelection(QRect(20, 20, 20, 20));
    // Straight to the canvas, as when it holds the pointer since an earlier press.
    const auto send = [&canvas](QEvent::Type type, QPoint at, Qt::MouseButton button) {
        QMouseEvent event(type, at, canvas.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&canvas, &event);
    };
    send(QEvent::MouseMove, {38, 21}, Qt::NoButton); // (18, 1) of the item
    QCOMPARE(canvas.pasteLabel()->cursor().shape(), Qt::UpArrowCursor);
    send(QEvent::MouseMove, {30, 30}, Qt::NoButton);
    QCOMPARE(canvas.pasteLabel()->cursor().shape(), Qt::PointingHandCursor);
    send(QEvent::MouseButtonPress, {30, 30}, Qt::LeftButton);
    send(QEvent::MouseMove, {33, 34}, Qt::NoButton);
    QCOMPARE(canvas.pasteLabel()->pos(), QPoint(23, 24));
    send(QEvent::MouseButtonRelease, {33, 34}, Qt::LeftButton);
    send(QEvent::MouseMove, {35, 35}, Qt::NoButton);
    QCOMPARE(canvas.pasteLabel()->pos(), QPoint(23, 24));
    QCOMPARE(tool.log, QStringList("activating"));
}

void tst_Canvas::rightPressOpensTheMenu()
{
    KORVA_Canvas canvas(nullptr, 60, 60);
    RecordingTool tool;
    fixtures::use(canvas, tool);
    canvas.show();
    canvas.setSelection(QRect(30, 30, 20, 20));
    support::Gestures(canvas).press({10, 12}, Qt::RightButton);
    QVERIFY(canvas.contextMenu()->isVisible());
    QVERIFY(canvas.contextMenu()->geometry().contains(canvas.mapToGlobal(QPoint(10, 12))));
    QVERIFY(canvas.pasteLabel()->isVisible()); // nothing was merged
    QCOMPARE(tool.log, QStringList("activating"));
    canvas.contextMenu()->close();
}

void tst_Canvas::rightPressOnThePieceOpensTheCanvasMenu()
{
    KORVA_Canvas canvas(nullptr, 60, 60);
    canvas.show();
    canvas.setSelection(QRect(10, 10, 40, 40));
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(30, 30), canvas.mapToGlobal(QPointF(30, 30)),
                      Qt::RightButton, Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &press);
    QVERIFY(canvas.contextMenu()->isVisible());
    QVERIFY(!canvas.pasteLabel()->menu()->isVisible());
    canvas.contextMenu()->close();
}

int main(int argc, char** argv)
{
    return support::run<tst_Canvas>(argc, argv);
}

#include "tst_Canvas.moc"
