#include "HostFixtures.h"

Q_DECLARE_METATYPE(fixtures::ToolID)

using fixtures::EditorDesk;
using fixtures::toolCount;
using fixtures::trouble;
using fixtures::typeLetter;
using support::Gestures;

namespace {

constexpr int firstTool = 100; ///< of the menu
constexpr int pencilEntry = 103;
constexpr int textEntry = 104;
constexpr int rectangleEntry = 105;
constexpr int eraserEntry = 101;

using Editor = KORVA_EditCanvas;
using Reaction = void (*)(Editor&);
using Connect = void (*)(Editor&, const std::function<void()>&);

template <auto signal>
void connectTo(Editor& editor, const std::function<void()>& slot)
{
    QObject::connect(&editor, signal, &editor, slot);
}

/// Gives a tool an event that no canvas hands on.
void send(KORVA_Tool& tool, void (KORVA_Tool::*handler)(QMouseEvent*), QPoint at)
{
    QMouseEvent event(QEvent::MouseMove, QPointF(at), QPointF(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    (tool.*handler)(&event);
}

/// What a person does with a tool, and then with the commands.
void use(Editor& editor, int tool)
{
    KORVA_Canvas& canvas = *editor.canvas();
    Gestures pointer(canvas);
    editor.slotSelChangeTool(firstTool + tool);
    editor.paste();
    pointer.press({60, 40});
    pointer.move({70, 50});
    editor.paste(); // a piece that floats in the middle of a gesture
    pointer.move({75, 45});
    pointer.release({90, 60});
    pointer.click({20, 40});
    typeLetter(canvas, "a");
    typeLetter(canvas, "\r");
    typeLetter(canvas, "b");
    editor.slotSelZoomRate(3);
    typeLetter(canvas, "c");
    pointer.drag({{30, 30}, {50, 45}, {64, 60}});
    editor.slotSelZoomRate(1);
    editor.undo();
    editor.redo();
    editor.selectAll();
    editor.cut();
    editor.paste();
    editor.setCanvasSize(150, 120);
    editor.slotSelChangeTool(firstTool + (tool + 1) % (toolCount - 1));
    editor.chooseCanvas(KORVA_CANVAS_16BIT, 120, 100);
}

} // namespace

Q_DECLARE_METATYPE(Reaction)
Q_DECLARE_METATYPE(Connect)

/// A host whose slots call the editor that has called them.
class tst_HostSlots : public support::TestCase
{
    Q_OBJECT

private slots:
    void everySlotMayReact_data();
    void everySlotMayReact();
    void aStrokeEndsWithItsTool();
    void aShapeEndsWithItsTool_data();
    void aShapeEndsWithItsTool();
    void anErasureEndsWithItsTool();
    void aLetterEndsWithItsTool();
    void aSelectionEndsWithItsTool();
    void theZoomMayChangeUnderAStroke_data();
    void theZoomMayChangeUnderAStroke();
    void theLastChoiceStands();
    void aChoiceWhileTextIsLeftStands();
    void aChoiceWhileTheSelectionIsLeftStands();
    void everySlotMayLookAtThePicture();
    void everySlotMayZoomWhileTextIsTyped();
    void everySlotMayChooseTheTextTool();
    void thePictureOfASignalStaysForAllItsListeners();
    void theCanvasMayGoBeforeItsTool_data();
    void theCanvasMayGoBeforeItsTool();
    void theCanvasMayGoBeforeItsManager();
    void theToolMayGoBeforeItsCanvas();
};

void tst_HostSlots::everySlotMayReact_data()
{
    static constexpr std::pair<const char*, Connect> heard[] = {
        {"modified", connectTo<&Editor::modified>},
        {"canUndo", connectTo<&Editor::canUndo>},
        {"canRedo", connectTo<&Editor::canRedo>},
        {"selection", connectTo<&Editor::selection>},
        {"sizeChanged", connectTo<&Editor::sizeChanged>},
        {"pixmapChanged", connectTo<&Editor::pixmapChanged>},
        {"canvasChanged", connectTo<&Editor::canvasChanged>},
        {"signalTextTool", connectTo<&Editor::signalTextTool>},
        {"TextToolClicked", connectTo<&Editor::TextToolClicked>},
    };
    static constexpr std::pair<const char*, Reaction> done[] = {
        {"another tool",
         [](Editor& e) {
             const bool isRectangle = e.manager()->currentToolID() == fixtures::Rectangle;
             e.slotSelChangeTool(isRectangle ? pencilEntry : rectangleEntry);
         }},
        {"the text tool", [](Editor& e) { e.slotSelChangeTool(textEntry); }},
        {"the manager's next tool",
         [](Editor& e) { e.manager()->setCurrentTool((e.manager()->currentToolID() + 1) % toolCount); }},
        {"zoom", [](Editor& e) { e.slotSelZoomRate(e.canvas()->zoom() == 100 ? 3 : 1); }},
        {"a zoom of the host's", [](Editor& e) { e.setZoom(e.canvas()->zoom() == 77 ? 133 : 77); }},
        {"another picture",
         [](Editor& e) {
             const QSize size = e.canvas()->pixmap()->width() == 60 ? QSize(90, 70) : QSize(60, 50);
             QPixmap picture = QPixmap::fromImage(support::mosaic(size));
             e.setPixmap(&picture);
         }},
        {"another size",
         [](Editor& e) { e.resizeImage(e.canvas()->pixmap()->width() == 70 ? 80 : 70, 60); }},
        {"undo", [](Editor& e) { e.undo(); }},
        {"select all", [](Editor& e) { e.selectAll(); }},
        {"paste", [](Editor& e) { e.paste(); }},
        {"clear", [](Editor& e) { e.clearCanvas(); }},
        {"a look", [](Editor& e) { (void)e.pixmap(); }},
        {"delete later", [](Editor& e) { e.deleteLater(); }},
    };
    QTest::addColumn<Connect>("heard");
    QTest::addColumn<Reaction>("done");
    for (const auto& [signal, connecting] : heard)
        for (const auto& [name, reaction] : done)
            QTest::addRow("%s: %s", signal, name) << connecting << reaction;
}

void tst_HostSlots::everySlotMayReact()
{
    QFETCH(const Connect, heard);
    QFETCH(const Reaction, done);
    fixtures::setClipboard(support::mosaic(QSize(20, 20)));
    int reactions = 0;
    for (int tool = 0; tool < toolCount - 1; ++tool) {
        const QPointer<Editor> editor = new Editor(KORVA_COLOR_16BIT);
        bool isBusy = false;
        heard(*editor, [&] {
            if (std::exchange(isBusy, true))
                return;
            ++reactions;
            done(*editor);
            isBusy = false;
        });
        use(*editor, tool);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (editor)
            QCOMPARE(trouble(*editor), QString());
        isBusy = true;
        delete editor;
    }
    QVERIFY(reactions > 0);
}

// --- What becomes of a gesture

void tst_HostSlots::aStrokeEndsWithItsTool()
{
    EditorDesk desk;
    connect(desk.editor.get(), &Editor::modified, this,
            [&] { desk.editor->slotSelChangeTool(rectangleEntry); });
    Gestures(desk.canvas()).drag({{20, 20}, {40, 40}, {60, 20}});
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Rectangle));
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(desk.editor->isModified());
}

void tst_HostSlots::aShapeEndsWithItsTool_data()
{
    QTest::addColumn<fixtures::ToolID>("tool");
    QTest::newRow("line") << fixtures::Line;
    QTest::newRow("rectangle") << fixtures::Rectangle;
    QTest::newRow("ellipse") << fixtures::Ellipse;
}

void tst_HostSlots::aShapeEndsWithItsTool()
{
    QFETCH(const fixtures::ToolID, tool);
    EditorDesk desk;
    desk.chooseTool(tool);
    const auto connection = connect(desk.editor.get(), &Editor::modified, this,
                                    [&] { desk.editor->slotSelChangeTool(pencilEntry); });
    Gestures stylus(desk.canvas());
    stylus.drag({{20, 20}, {40, 40}, {60, 30}});
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Pencil));
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(!fixtures::hasInk(desk.canvas().zoomedPixmap()->toImage()));

    disconnect(connection);
    desk.chooseTool(tool); // the old drag does not come back
    QVERIFY(!fixtures::hasInk(desk.canvas().zoomedPixmap()->toImage()));
    stylus.drag({{20, 20}, {40, 40}, {60, 30}});
    QVERIFY(fixtures::hasInk(desk.picture()));
}

void tst_HostSlots::anErasureEndsWithItsTool()
{
    EditorDesk desk;
    desk.setPicture(support::sheet({80, 60}, Qt::blue));
    desk.chooseTool(fixtures::Eraser);
    connect(desk.editor.get(), &Editor::modified, this, [&] { desk.manager().setCurrentTool(0); });
    Gestures stylus(desk.canvas());
    stylus.press({20, 20});
    stylus.release({20, 20});
    QCOMPARE(desk.manager().currentToolID(), 0);
    QVERIFY(support::sameImage(desk.picture(), support::sheet({80, 60}, Qt::blue)));
}

void tst_HostSlots::aLetterEndsWithItsTool()
{
    EditorDesk desk;
    desk.type("");
    connect(desk.editor.get(), &Editor::modified, this,
            [&] { desk.editor->slotSelChangeTool(pencilEntry); });
    typeLetter(desk.canvas(), "H");
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Pencil));
    QVERIFY(fixtures::hasInk(desk.picture())); // it was there when the host heard of it
    QVERIFY(support::sameImage(*desk.canvas().zoomedPixmap(), desk.picture()));
}

void tst_HostSlots::aSelectionEndsWithItsTool()
{
    EditorDesk desk;
    fixtures::setClipboard(fixtures::flag());
    desk.chooseTool(fixtures::AreaSelect);
    Gestures stylus(desk.canvas());
    stylus.press({80, 80});
    stylus.move({100, 100});
    desk.editor->paste();
    connect(desk.editor.get(), &Editor::selection, this,
            [&] { desk.editor->slotSelChangeTool(pencilEntry); });
    stylus.release({120, 110});
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Pencil));
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
    QVERIFY(support::sameImage(desk.picture(),
                               support::overlaid(support::sheet({200, 170}), {0, 0}, fixtures::flag())));
}

void tst_HostSlots::theZoomMayChangeUnderAStroke_data()
{
    QTest::addColumn<fixtures::ToolID>("tool");
    QTest::newRow("pencil") << fixtures::Pencil;
    QTest::newRow("line") << fixtures::Line;
    QTest::newRow("rectangle") << fixtures::Rectangle;
    QTest::newRow("ellipse") << fixtures::Ellipse;
    QTest::newRow("eraser") << fixtures::Eraser;
}

void tst_HostSlots::theZoomMayChangeUnderAStroke()
{
    QFETCH(const fixtures::ToolID, tool);
    EditorDesk desk;
    desk.setPicture(support::sheet({80, 60}, tool == fixtures::Eraser ? Qt::blue : Qt::white));
    const QImage before = desk.picture();
    desk.chooseTool(tool);
    connect(desk.editor.get(), &Editor::modified, this, [&] { desk.editor->setZoom(200); });
    Gestures stylus(desk.canvas());
    stylus.drag({{20, 20}, {40, 40}, {60, 30}});
    QCOMPARE(desk.canvas().zoom(), 200);
    QVERIFY(desk.picture() != before);
    QCOMPARE(trouble(*desk.editor), QString());
}

// --- Which tool it is in the end

void tst_HostSlots::theLastChoiceStands()
{
    EditorDesk desk;
    connect(desk.editor.get(), &Editor::signalTextTool, this, [&](bool isText) {
        if (isText)
            desk.editor->slotSelChangeTool(eraserEntry);
    });
    desk.chooseTool(fixtures::Text);
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Eraser));
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Eraser_Tool.gif"));
    QCOMPARE(desk.options().size(), 3);
    QCOMPARE(desk.options().at(0)->data().toInt(), 215);
    QCOMPARE(desk.canvas().cursor().shape(), Qt::BitmapCursor);
}

void tst_HostSlots::aChoiceWhileTextIsLeftStands()
{
    EditorDesk desk;
    desk.type("Hm");
    bool isFirst = true;
    connect(desk.editor.get(), &Editor::modified, this, [&] {
        if (std::exchange(isFirst, false))
            desk.editor->slotSelChangeTool(eraserEntry);
    });
    desk.chooseTool(fixtures::Pencil);
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Eraser));
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Eraser_Tool.gif"));
    QCOMPARE(desk.canvas().cursor().shape(), Qt::BitmapCursor);
    QVERIFY(fixtures::hasInk(desk.picture()));
}

void tst_HostSlots::aChoiceWhileTheSelectionIsLeftStands()
{
    EditorDesk desk;
    desk.chooseTool(fixtures::AreaSelect);
    bool isFirst = true;
    connect(desk.editor.get(), &Editor::selection, this, [&] {
        if (std::exchange(isFirst, false))
            desk.editor->slotSelChangeTool(textEntry);
    });
    desk.chooseTool(fixtures::Pencil);
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Text));
    QCOMPARE(desk.canvas().getCurrentToolID(), int(fixtures::Text));
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Text_Tool.gif"));
    (void)desk.log.taken();
    Gestures(desk.canvas()).click({30, 30});
    QCOMPARE(desk.log.taken().count("TextToolClicked()"), 1);
}

// --- No end of it

void tst_HostSlots::everySlotMayLookAtThePicture()
{
    EditorDesk desk;
    desk.type("");
    int changes = 0;
    connect(desk.editor.get(), &Editor::modified, this, [&] {
        ++changes;
        (void)desk.editor->pixmap();
    });
    typeLetter(desk.canvas(), "H");
    QVERIFY2(changes > 0 && changes < 5, QByteArray::number(changes));
    QVERIFY(fixtures::hasInk(desk.canvas().pixmap()->toImage()));
}

void tst_HostSlots::everySlotMayZoomWhileTextIsTyped()
{
    EditorDesk desk;
    desk.type("");
    connect(desk.editor.get(), &Editor::modified, this, [&] { desk.editor->slotSelZoomRate(3); });
    typeLetter(desk.canvas(), "H");
    QCOMPARE(desk.canvas().zoom(), 200);
    QVERIFY(fixtures::hasInk(desk.picture()));
}

void tst_HostSlots::everySlotMayChooseTheTextTool()
{
    EditorDesk desk;
    connect(desk.editor.get(), &Editor::modified, this, [&] { desk.editor->slotSelChangeTool(textEntry); });
    desk.scribble();
    QCOMPARE(desk.manager().currentToolID(), int(fixtures::Text));
    QVERIFY(!fixtures::hasInk(desk.picture()));
}

// --- What goes first

void tst_HostSlots::thePictureOfASignalStaysForAllItsListeners()
{
    EditorDesk desk;
    desk.scribble();
    QList<QSize> sizes;
    connect(desk.editor.get(), &Editor::pixmapChanged, this, [&] { desk.editor->undo(); });
    connect(desk.editor.get(), &Editor::pixmapChanged, this,
            [&](const QPixmap* picture) { sizes << picture->toImage().size(); });
    desk.editor->resizeImage(50, 40);
    QCOMPARE(sizes, QList<QSize>{QSize(200, 170)});
    QCOMPARE(trouble(*desk.editor), QString());
}

void tst_HostSlots::theCanvasMayGoBeforeItsTool_data()
{
    QTest::addColumn<int>("id");
    for (int id = 0; id < toolCount; ++id)
        QTest::addRow("tool %d", id) << id;
}

void tst_HostSlots::theCanvasMayGoBeforeItsTool()
{
    QFETCH(const int, id);
    auto canvas = std::make_unique<fixtures::PictureCanvas>(support::sheet({80, 60}));
    KORVA_Manager manager(canvas.get());
    manager.setCurrentTool(id);
    KORVA_Tool& tool = *manager.currentTool();
    send(tool, &KORVA_Tool::mousePressEvent, {10, 20});
    send(tool, &KORVA_Tool::mouseMoveEvent, {30, 30});
    canvas.reset();
    QVERIFY(!tool.canvas());
    QVERIFY(tool.isActive());

    send(tool, &KORVA_Tool::mouseMoveEvent, {32, 30});
    send(tool, &KORVA_Tool::mouseReleaseEvent, {35, 35});
    send(tool, &KORVA_Tool::mousePressEvent, {12, 20});
    send(tool, &KORVA_Tool::mouseReleaseEvent, {12, 20});
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    tool.keyPressEvent(&key);
    QInputMethodEvent compose("ni", {});
    tool.inputMethodEvent(&compose);
    QVERIFY(!tool.inputMethodQuery(Qt::ImCursorRectangle).isValid());
    QTimerEvent tick(1);
    QCoreApplication::sendEvent(&tool, &tick);
    tool.deactivate();
    QVERIFY(!tool.isActive());
}

void tst_HostSlots::theCanvasMayGoBeforeItsManager()
{
    auto canvas = std::make_unique<fixtures::PictureCanvas>(support::sheet({80, 60}));
    KORVA_Manager manager(canvas.get());
    manager.setCurrentTool(fixtures::Text);
    canvas.reset();
    manager.setCurrentTool(fixtures::Pencil);
    manager.setPenWidth(5);
    manager.setLMBColor(Qt::blue);
    QCOMPARE(manager.currentToolID(), int(fixtures::Text));
}

void tst_HostSlots::theToolMayGoBeforeItsCanvas()
{
    fixtures::PictureCanvas canvas(support::sheet({80, 60}));
    auto tool = std::make_unique<fixtures::RecordingTool>();
    fixtures::use(canvas, *tool);
    tool.reset();
    QCOMPARE(canvas.getCurrentTool(), nullptr);
    QCOMPARE(canvas.getCurrentToolID(), -1);
    Gestures(canvas).drag({{10, 10}, {20, 20}});
    typeLetter(canvas, "a");
    canvas.setZoom(200);
    (void)canvas.snapshot();
    canvas.undo();
}

int main(int argc, char** argv)
{
    return support::run<tst_HostSlots>(argc, argv);
}

#include "tst_HostSlots.moc"
