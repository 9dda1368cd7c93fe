#include "EditorFixtures.h"

using fixtures::EditorDesk;
using fixtures::ToolID;
using support::Gestures;

namespace {

using Action = std::function<void(EditorDesk&)>;

const QSize normal(200, 170);

} // namespace

Q_DECLARE_METATYPE(Action)

/// The widget that a host embeds: how it starts, what it hands on and what it tells.
class tst_EditCanvas : public support::TestCase
{
    Q_OBJECT

private slots:
    void startsAsAPencil();
    void constructorArguments();
    void widgetOfThePublicKind();
    void places_data();
    void places();
    void fittedAgainInAnotherSize();
    void whatIsInHandIsNotResized();
    void toolPopup_data();
    void toolPopup();
    void mainViewTakesTheFocus();
    void everyControlHasAName_data();
    void everyControlHasAName();
    void everyEntryHasAName();

    void signalsToTheHost_data();
    void signalsToTheHost();

    void chooseCanvas_data();
    void chooseCanvas();
    void chooseCanvasKeepsTheZoom();

    void colorButtonPicture();
    void fillColorButton();
    void colorButtonOpensThePicker_data();
    void colorButtonOpensThePicker();
};

// --- How it starts

void tst_EditCanvas::startsAsAPencil()
{
    const EditorDesk desk;
    const KORVA_EditCanvas& editor = *desk.editor;
    QCOMPARE(editor.size(), QSize(240, 225));
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::Pencil));
    QCOMPARE(desk.canvas().getCurrentToolID(), int(ToolID::Pencil));
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 1);
    QCOMPARE(desk.manager().currentTool()->leftPen().color(), QColor(255, 0, 0));
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Pencil_Tool.gif"));
    QVERIFY(fixtures::shows(desk.button("optionButton"), "DaApV_Line_Tool_Opt_S.gif"));
    QCOMPARE(desk.options().size(), 3);
    QCOMPARE(desk.zoomBox().currentIndex(), 1);
    QCOMPARE(editor.canvas()->zoom(), 100);
    QCOMPARE(editor.color(), QColor(255, 0, 0));
    QCOMPARE(editor.fileName(), QString());
    QVERIFY(!editor.isModified());
    QCOMPARE(editor.canvas()->size(), normal);
    QVERIFY(support::sameImage(desk.picture(), support::sheet(normal)));
}

void tst_EditCanvas::constructorArguments()
{
    QWidget parent;
    QWidget owner;
    for (const KORVA_COLORTYPE type :
         {KORVA_COLOR_1BIT, KORVA_COLOR_4BIT, KORVA_COLOR_8BIT, KORVA_COLOR_16BIT}) {
        const KORVA_EditCanvas editor(type, &parent, "pad", Qt::Window, &owner);
        QCOMPARE(editor.colorType(), type);
        QCOMPARE(editor.parentWidget(), &parent);
        QCOMPARE(editor.objectName(), "pad");
        QVERIFY(editor.isWindow());
    }
    const KORVA_EditCanvas plain(KORVA_COLOR_8BIT, &parent);
    QVERIFY(!plain.isWindow());
    QCOMPARE(plain.objectName(), "");
}

void tst_EditCanvas::widgetOfThePublicKind()
{
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QCOMPARE(editor.metaObject()->className(), "KORVA_EditCanvas");
    QCOMPARE(editor.metaObject()->superClass()->className(), "QWidget");
}

void tst_EditCanvas::places_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QRect>("place");
    QTest::newRow("tool button") << QByteArray("toolButton") << QRect(2, 2, 33, 24);
    QTest::newRow("option button") << QByteArray("optionButton") << QRect(38, 2, 33, 24);
    QTest::newRow("zoom box") << QByteArray("zoomBox") << QRect(74, 2, 126, 24);
    QTest::newRow("color button") << QByteArray("colorButton") << QRect(203, 2, 25, 24);
    QTest::newRow("main view") << QByteArray() << QRect(2, 33, 228, 192);
}

void tst_EditCanvas::places()
{
    QFETCH(const QByteArray, control);
    QFETCH(const QRect, place);
    EditorDesk desk;
    desk.editor->show();
    const QWidget* widget =
        control.isEmpty() ? desk.editor->mainView() : desk.editor->findChild<QWidget*>(control);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), desk.editor.get());
    QCOMPARE(widget->geometry(), place);
    desk.editor->resize(480, 640); // the controls stay where the design puts them
    QCOMPARE(widget->geometry(), control.isEmpty() ? QRect(2, 33, 468, 607) : place);
    desk.editor->resize(100, 100); // less than all was made for is cut off
    QCOMPARE(widget->geometry(), place);
}

void tst_EditCanvas::fittedAgainInAnotherSize()
{
    EditorDesk desk;
    desk.editor->show();
    desk.setPicture(support::sheet({111, 93}));
    desk.chooseZoom(4);
    QCOMPARE(desk.canvas().zoom(), 200);
    (void)desk.log.taken();
    desk.editor->resize(240 + 222, 225 + 186); // twice the page
    QCOMPARE(desk.canvas().zoom(), 400);
    QCOMPARE(desk.log.taken(), QStringList("sizeChanged()"));
    desk.editor->resize(240 + 222, 225); // as high as before
    QCOMPARE(desk.canvas().zoom(), 200);
    desk.editor->resize(240, 225);
    QCOMPARE(desk.canvas().zoom(), 200);
    desk.chooseZoom(1);
    (void)desk.log.taken();
    desk.editor->resize(600, 600);
    QCOMPARE(desk.canvas().zoom(), 100);
    QCOMPARE(desk.log.taken(), QStringList());
    desk.chooseZoom(4); // by the page as it is
    QCOMPARE(desk.canvas().zoom(), qMin(100 * (222 + 360) / 111, 100 * (186 + 375) / 93));
}

void tst_EditCanvas::whatIsInHandIsNotResized()
{
    EditorDesk desk;
    desk.editor->show();
    desk.chooseZoom(4);
    desk.canvas().setSelection(QRect(10, 10, 40, 40));
    (void)desk.log.taken();
    desk.editor->resize(600, 600);
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QCOMPARE(desk.canvas().zoom(), 109);
    QCOMPARE(desk.log.taken(), QStringList());
    desk.canvas().mergePastePixmap();

    desk.type("Hm");
    desk.editor->resize(700, 700);
    QCOMPARE(desk.canvas().zoom(), 109);
    QVERIFY(desk.manager().currentTool()->getTextKey());
    QCOMPARE(desk.log.taken(), QStringList());
}

void tst_EditCanvas::toolPopup_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<int>("tool");
    QTest::newRow("select") << 0 << "DaApV_Selection_Tool.gif" << int(ToolID::AreaSelect);
    QTest::newRow("eraser") << 1 << "DaApV_Eraser_Tool.gif" << int(ToolID::Eraser);
    QTest::newRow("line") << 2 << "DaApV_Line_Tool.gif" << int(ToolID::Line);
    QTest::newRow("pencil") << 3 << "DaApV_Pencil_Tool.gif" << int(ToolID::Pencil);
    QTest::newRow("text") << 4 << "DaApV_Text_Tool.gif" << int(ToolID::Text);
    QTest::newRow("rectangle") << 5 << "DaApV_Rectangle_Tool.gif" << int(ToolID::Rectangle);
    QTest::newRow("ellipse") << 6 << "DaApV_Ellipse_Tool.gif" << int(ToolID::Ellipse);
}

void tst_EditCanvas::toolPopup()
{
    QFETCH(const QString, icon);
    QFETCH(const int, tool);
    QFETCH(const int, row);
    const EditorDesk desk;
    const QList<QAction*> entries = desk.tools();
    QCOMPARE(entries.size(), 7);
    QAction* entry = entries[row];
    QVERIFY(
        support::sameImage(fixtures::iconPicture(entry->icon(), {24, 18}), fixtures::iconPicture(icon)));
    entry->trigger();
    QCOMPARE(desk.manager().currentToolID(), tool);
    QVERIFY(fixtures::shows(desk.button("toolButton"), icon));
}

void tst_EditCanvas::mainViewTakesTheFocus()
{
    EditorDesk desk;
    QCOMPARE(desk.editor->mainView()->focusPolicy(), Qt::StrongFocus);
    desk.editor->show();
    desk.editor->activateWindow();
    QTRY_VERIFY(desk.editor->isActiveWindow());
    QCOMPARE(QApplication::focusWidget(), &desk.canvas());
    desk.button("toolButton").setFocus();
    desk.editor->mainView()->setFocus();
    QCOMPARE(QApplication::focusWidget(), &desk.canvas());
}

void tst_EditCanvas::everyControlHasAName_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("expected");
    QTest::newRow("tool button") << QByteArray("toolButton") << "Tool <tool bar>";
    QTest::newRow("option button") << QByteArray("optionButton") << "Tool option <tool bar>";
    QTest::newRow("zoom box") << QByteArray("zoomBox") << "Zoom <tool bar>";
    QTest::newRow("color button") << QByteArray("colorButton") << "Color <tool bar>";
}

void tst_EditCanvas::everyControlHasAName()
{
    QFETCH(const QByteArray, control);
    QFETCH(const QString, expected);
    const EditorDesk desk;
    auto& widget = desk.control<QWidget>(control);
    QCOMPARE(widget.toolTip(), expected);
    QCOMPARE(widget.accessibleName(), expected);
    // Of a combo box the toolkit speaks the chosen entry here.
    if (!qobject_cast<QComboBox*>(&widget))
        QCOMPARE(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name), expected);
}

void tst_EditCanvas::everyEntryHasAName()
{
    const EditorDesk desk;
    QStringList names;
    const auto addNames = [&names](QMenu* menu) {
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(menu);
        for (int i = 0; i < menu->actions().size(); ++i) {
            const QString name = spoken->child(i)->text(QAccessible::Name);
            QCOMPARE(menu->actions()[i]->toolTip(), name);
            names << name;
        }
    };
    addNames(desk.button("toolButton").menu());
    QCOMPARE(names, QStringList({"Select <tool>", "Eraser <tool>", "Line <tool>", "Pencil <tool>",
                                 "Text <tool>", "Rectangle <tool>", "Ellipse <tool>"}));
    names.clear();
    for (int tool = ToolID::Pencil; tool <= ToolID::Eraser; ++tool) {
        desk.editor->loadToolOptions(tool);
        addNames(desk.button("optionButton").menu());
    }
    QCOMPARE(names.size(), 18);
    const QRegularExpression translated("^[^ <].* <tool option>$");
    QCOMPARE(names.filter(translated), names);

    const QComboBox& box = desk.zoomBox();
    for (int i = 0; i < box.count(); ++i)
        QCOMPARE(box.itemData(i, Qt::ToolTipRole).toString(), box.itemText(i));
}

// --- What it tells

void tst_EditCanvas::signalsToTheHost_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QStringList>("expected");
    const auto add = [](const char* name, const Action& action, const QStringList& expected) {
        QTest::newRow(name) << action << expected;
    };
    const QStringList recorded{"modified()", "canUndo(true)", "canRedo(false)"};

    add(
        "stroke",
        [](EditorDesk& desk) {
            Gestures(desk.canvas()).click({9, 9});
        },
        recorded);
    add("undo", [](EditorDesk& desk) { desk.editor->undo(); }, {"canUndo(false)", "canRedo(true)"});
    add("redo", [](EditorDesk& desk) { desk.editor->redo(); }, {"canUndo(true)", "canRedo(false)"});
    add(
        "clear", [](EditorDesk& desk) { desk.editor->clearCanvas(); }, recorded);
    add("selection",
        [](EditorDesk& desk) {
            desk.canvas().setSelection({5, 5, 10, 10});
        },
        {"selection(true)"});
    add("picture of the same size",
        [](EditorDesk& desk) {
            QPixmap picture = QPixmap::fromImage(support::mosaic(normal));
            desk.editor->setPixmap(&picture);
        },
        {"canUndo(false)", "canRedo(false)", "pixmapChanged(200x170)"});
    add("picture of another size",
        [](EditorDesk& desk) {
            QPixmap picture = QPixmap::fromImage(support::mosaic({32, 40}));
            desk.editor->setPixmap(&picture);
        },
        {"canUndo(false)", "canRedo(false)", "pixmapChanged(32x40)", "sizeChanged()"});
    add("no picture", [](EditorDesk& desk) { desk.editor->setPixmap(nullptr); },
        {"canUndo(false)", "canRedo(false)"});
    add(
        "text tool", [](EditorDesk& desk) { desk.chooseTool(ToolID::Text); },
        QStringList{"signalTextTool(true)"} + recorded); // the font may be another one now
    add("line tool", [](EditorDesk& desk) { desk.chooseTool(ToolID::Line); }, {"signalTextTool(false)"});
    add("zoom", [](EditorDesk& desk) { desk.chooseZoom(0); }, {"sizeChanged()"});
    add(
        "new canvas of the same size",
        [](EditorDesk& desk) { desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 200, 170); },
        recorded + QStringList{"pixmapChanged(200x170)"} + recorded +
            QStringList{"canvasChanged(1)", "canRedo(false)", "canUndo(false)"});
    add(
        "new canvas of another size",
        [](EditorDesk& desk) { desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 64, 80); },
        recorded + QStringList{"pixmapChanged(200x170)"} + recorded + QStringList{"pixmapChanged(64x80)"} +
            recorded + QStringList{"canvasChanged(1)", "canRedo(false)", "canUndo(false)"});
}

void tst_EditCanvas::signalsToTheHost()
{
    QFETCH(const Action, action);
    QFETCH(const QStringList, expected);
    EditorDesk desk;
    action(desk);
    QCOMPARE(desk.log.taken(), expected);
}

void tst_EditCanvas::chooseCanvas_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("colors");
    QTest::newRow("16 bit") << 0 << int(KORVA_COLOR_16BIT);
    QTest::newRow("1 bit") << 1 << int(KORVA_COLOR_1BIT);
    QTest::newRow("4 bit") << 2 << int(KORVA_COLOR_4BIT);
    QTest::newRow("8 bit") << 3 << int(KORVA_COLOR_8BIT);
    QTest::newRow("4 bit, the other one") << 4 << int(KORVA_COLOR_4BIT);
    QTest::newRow("one past the last keeps the colors") << 5 << int(KORVA_COLOR_8BIT);
    QTest::newRow("unknown keeps the colors") << 99 << int(KORVA_COLOR_8BIT);
    QTest::newRow("negative keeps the colors") << -1 << int(KORVA_COLOR_8BIT);
}

void tst_EditCanvas::chooseCanvas()
{
    QFETCH(const int, type);
    QFETCH(const int, colors);
    KORVA_EditCanvas editor(KORVA_COLOR_8BIT);
    Gestures(*editor.canvas()).drag({{5, 5}, {50, 50}});
    editor.chooseCanvas(static_cast<KORVA_CANVASTYPE>(type), 32, 40);
    QCOMPARE(int(editor.colorType()), colors);
    QVERIFY(support::sameImage(*editor.pixmap(), support::sheet({32, 40})));
    QCOMPARE(editor.canvas()->size(), QSize(32, 40));
    QCOMPARE(editor.canvas()->undoFlag(), 0);
    QVERIFY(editor.isModified()); // a change of size is one; the host clears it
    QCOMPARE(editor.color(), QColor(Qt::red));
}

void tst_EditCanvas::chooseCanvasKeepsTheZoom()
{
    EditorDesk desk;
    desk.chooseZoom(3);
    desk.editor->chooseCanvas(KORVA_CANVAS_1BIT, 64, 80);
    QCOMPARE(desk.canvas().zoom(), 200);
    QCOMPARE(desk.canvas().size(), QSize(128, 160));
    desk.chooseZoom(4);
    desk.editor->chooseCanvas(KORVA_CANVAS_1BIT, 111, 93);
    QCOMPARE(desk.canvas().zoom(), 200);
    desk.editor->chooseCanvas(KORVA_CANVAS_1BIT, 222, 93);
    QCOMPARE(desk.canvas().zoom(), 100);
}

// --- The colour button

void tst_EditCanvas::colorButtonPicture()
{
    const EditorDesk desk;
    QPushButton& button = desk.button("colorButton");
    QVERIFY(button.isFlat());
    QImage expected = support::sheet({25, 24}, Qt::red);
    expected =
        support::filled(expected, QRect(1, 1, 23, 22), desk.editor->palette().color(QPalette::Light));
    expected = support::filled(expected, QRect(2, 2, 21, 20), Qt::red);
    QVERIFY(support::sameImage(fixtures::iconPicture(button.icon(), button.iconSize()), expected));
    QVERIFY(support::sameImage(button.grab(), expected));
}

void tst_EditCanvas::fillColorButton()
{
    EditorDesk desk;
    desk.editor->fillColorButton(Qt::blue);
    const QImage shown = desk.button("colorButton").grab().toImage();
    QCOMPARE(shown.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(shown.pixelColor(12, 12), QColor(Qt::blue));
    QCOMPARE(desk.editor->color(), QColor(Qt::red)); // only the button's picture
}

void tst_EditCanvas::colorButtonOpensThePicker_data()
{
    QTest::addColumn<bool>("accept");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("accepted") << true << QColor(255, 0, 255);
    QTest::newRow("cancelled") << false << QColor(255, 0, 0);
}

void tst_EditCanvas::colorButtonOpensThePicker()
{
    QFETCH(const bool, accept);
    QFETCH(const QColor, expected);
    EditorDesk desk;
    desk.editor->show();
    fixtures::mixColor(QColor(255, 0, 255), accept ? QDialog::Accepted : QDialog::Rejected);
    desk.button("colorButton").click();
    QCOMPARE(desk.editor->color(), expected);
    QCOMPARE(desk.manager().currentTool()->leftPen().color(), expected);
    QCOMPARE(desk.button("colorButton").grab().toImage().pixelColor(12, 12), expected);
    Gestures(desk.canvas()).click({30, 30});
    QCOMPARE(desk.picture().pixelColor(30, 30), expected);
}

int main(int argc, char** argv)
{
    return support::run<tst_EditCanvas>(argc, argv);
}

#include "tst_EditCanvas.moc"
