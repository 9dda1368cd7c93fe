#include "EditorFixtures.h"

#include "KORVA_ScrollView.h"

using fixtures::EditorDesk;
using fixtures::ToolID;
using support::Gestures;

namespace {

using Action = std::function<void(EditorDesk&)>;

const QSize normal(200, 170);

void draw(EditorDesk& desk)
{
    Gestures(desk.canvas()).drag({{20, 15}, {60, 45}});
}

} // namespace

Q_DECLARE_METATYPE(Action)

/// The commands that a host gives to the editor.
class tst_EditorCommands : public support::TestCase
{
    Q_OBJECT

private slots:
    void undoAndRedo();
    void cutCopyAndPaste();
    void pasteAtAPlace();
    void pixmapCommitsTypedText();
    void loadNeedsNoTool();
    void depth();
    void resizeImageScales();
    void setCanvasSize();
    void setCanvasSizeToWhatItHas_data();
    void setCanvasSizeToWhatItHas();
    void setZoom();
    void clearCanvasIsAlwaysWhite();
    void insertStampFloats();
    void slotInsertStampDoesNothing();
    void typedTextIsAnnounced();
    void selectAll_data();
    void selectAll();
    void selectAllMergesAFloatingPiece();
};

// --- Editing

void tst_EditorCommands::undoAndRedo()
{
    EditorDesk desk;
    draw(desk);
    const QImage drawn = desk.picture();
    QVERIFY(fixtures::hasInk(drawn));
    desk.editor->undo();
    QVERIFY(support::sameImage(desk.picture(), support::sheet(normal)));
    desk.editor->redo();
    QVERIFY(support::sameImage(desk.picture(), drawn));
}

void tst_EditorCommands::cutCopyAndPaste()
{
    EditorDesk desk;
    const QImage mosaic = support::mosaic({60, 50});
    desk.setPicture(mosaic);
    const QRect piece(10, 5, 20, 15);

    desk.canvas().setSelection(piece);
    desk.editor->copy();
    QVERIFY(support::sameImage(fixtures::clipboardImage(), mosaic.copy(piece)));
    QVERIFY(desk.canvas().hasSelection());

    QGuiApplication::clipboard()->clear();
    desk.editor->cut();
    QVERIFY(support::sameImage(fixtures::clipboardImage(), mosaic.copy(piece)));
    const QImage hole = support::filled(mosaic, piece, Qt::white);
    QVERIFY(support::sameImage(desk.picture(), hole));

    desk.editor->paste();
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QVERIFY(
        support::sameImage(*desk.editor->pixmap(), support::overlaid(hole, {0, 0}, mosaic.copy(piece))));
}

void tst_EditorCommands::pasteAtAPlace()
{
    EditorDesk desk;
    const QImage piece = support::mosaic({20, 10});
    fixtures::setClipboard(piece);
    desk.editor->paste(30, 40);
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
    QVERIFY(support::sameImage(desk.picture(), support::overlaid(support::sheet(normal), {30, 40}, piece)));
}

void tst_EditorCommands::pixmapCommitsTypedText()
{
    EditorDesk desk;
    desk.type("Hm");
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(fixtures::hasInk(desk.editor->pixmap()->toImage()));
    QCOMPARE(desk.editor->pixmap(), desk.canvas().pixmap());
}

void tst_EditorCommands::loadNeedsNoTool()
{
    const fixtures::PictureFolder folder;
    const QImage mosaic = support::mosaic({30, 20});
    const QString name = folder.written("mosaic.png", mosaic);
    EditorDesk desk;
    QVERIFY(!desk.editor->load(name, nullptr)); // the pencil is in use
    QVERIFY(support::sameImage(desk.picture(), support::sheet(normal)));

    KORVA_Tool* pencil = desk.canvas().getCurrentTool();
    desk.canvas().deactivate();
    QVERIFY(desk.editor->load(name, "PNG"));
    QVERIFY(support::sameImage(desk.picture(), mosaic));
    desk.canvas().activate(pencil);
}

void tst_EditorCommands::depth()
{
    EditorDesk desk;
    QCOMPARE(desk.editor->getDepth(), desk.canvas().getDepth());
    const QImage before = desk.picture();
    desk.editor->setDepth(8);
    QVERIFY(support::sameImage(desk.picture(), before));
    QVERIFY(desk.editor->isModified());
    desk.editor->clearModified();
    QVERIFY(!desk.editor->isModified());
    QVERIFY(!desk.canvas().isModified());
}

void tst_EditorCommands::resizeImageScales()
{
    EditorDesk desk;
    desk.setPicture(support::mosaic({40, 30}));
    desk.editor->resizeImage(80, 60);
    QVERIFY(support::sameImage(desk.picture(), support::scaled(support::mosaic({40, 30}), 200)));
}

void tst_EditorCommands::setCanvasSizeToWhatItHas_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : {50, 100, 150, 200, 77})
        QTest::addRow("%d", zoom) << zoom;
}

void tst_EditorCommands::setCanvasSizeToWhatItHas()
{
    QFETCH(const int, zoom);
    EditorDesk desk;
    desk.editor->setZoom(zoom);
    const QSize shown = desk.canvas().size();
    (void)desk.log.taken();
    desk.editor->setCanvasSize(200, 170);
    QCOMPARE(desk.canvas().size(), shown);
    QCOMPARE(desk.canvas().zoomedPixmap()->size(), shown);
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(!desk.editor->isModified());
}

void tst_EditorCommands::setCanvasSize()
{
    EditorDesk desk;
    desk.setPicture(support::mosaic({40, 30}));
    desk.editor->setCanvasSize(80, 60);
    QCOMPARE(desk.canvas().size(), QSize(80, 60));
    QVERIFY(support::sameImage(desk.picture(), support::scaled(support::mosaic({40, 30}), 200)));
    QCOMPARE(desk.canvas().pos(), QPoint((228 - 80) / 2 - 2, (192 - 60) / 2 - 2));
    const KORVA_ScrollView* view = desk.editor->mainView()->scrollView();
    QCOMPARE(QSize(view->contentsWidth(), view->contentsHeight()), QSize(80, 60));
}

void tst_EditorCommands::setZoom()
{
    EditorDesk desk;
    desk.editor->setZoom(150);
    QCOMPARE(desk.canvas().zoom(), 150);
    QCOMPARE(desk.canvas().size(), QSize(300, 255));
    QCOMPARE(desk.zoomBox().currentIndex(), 1);
}

void tst_EditorCommands::clearCanvasIsAlwaysWhite()
{
    EditorDesk desk;
    draw(desk);
    QCOMPARE(desk.editor->color(), QColor(Qt::red));
    desk.editor->clearCanvas();
    QVERIFY(support::sameImage(desk.picture(), support::sheet(normal)));
    QVERIFY(desk.editor->isModified());
}

void tst_EditorCommands::insertStampFloats()
{
    EditorDesk desk;
    const QImage stamp = support::mosaic({32, 40});
    QPixmap pixmap = QPixmap::fromImage(stamp);
    desk.editor->insertStamp(pixmap);
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QCOMPARE(desk.canvas().pasteLabel()->pos(), QPoint(0, 0));
    QVERIFY(support::sameImage(desk.picture(), support::overlaid(support::sheet(normal), {0, 0}, stamp)));
}

void tst_EditorCommands::slotInsertStampDoesNothing()
{
    EditorDesk desk;
    draw(desk);
    const QImage before = desk.picture();
    (void)desk.log.taken();
    desk.editor->slotInsertStamp();
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(support::sameImage(desk.picture(), before));
}

void tst_EditorCommands::typedTextIsAnnounced()
{
    EditorDesk desk;
    desk.chooseTool(ToolID::Text);
    (void)desk.log.taken();
    Gestures(desk.canvas()).click({20, 40});
    QCOMPARE(desk.log.taken(), QStringList("TextToolClicked()"));
    desk.chooseTool(ToolID::Pencil);
    desk.chooseTool(ToolID::Text); // connected once, however often the tool was chosen
    (void)desk.log.taken();
    Gestures(desk.canvas()).click({20, 40});
    QCOMPARE(desk.log.taken().count("TextToolClicked()"), 1);
}

// --- Select all

void tst_EditorCommands::selectAll_data()
{
    QTest::addColumn<Action>("before");
    QTest::newRow("from the pencil") << Action([](EditorDesk&) {});
    QTest::newRow("from the line") << Action([](EditorDesk& desk) { desk.chooseTool(ToolID::Line); });
    QTest::newRow("from the text") << Action([](EditorDesk& desk) { desk.type("Hm"); });
    QTest::newRow("from the selection")
        << Action([](EditorDesk& desk) { desk.chooseTool(ToolID::AreaSelect); });
    QTest::newRow("from the hand") << Action([](EditorDesk& desk) {
        desk.chooseTool(ToolID::AreaSelect);
        desk.chooseOption(1);
    });
    QTest::newRow("at 150 %") << Action([](EditorDesk& desk) { desk.chooseZoom(2); });
}

void tst_EditorCommands::selectAll()
{
    QFETCH(const Action, before);
    EditorDesk desk;
    desk.setPicture(support::mosaic({40, 30}));
    before(desk);
    (void)desk.log.taken();
    const QImage whole = desk.editor->pixmap()->toImage();
    desk.editor->selectAll();
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::AreaSelect));
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Selection_Tool.gif"));
    QVERIFY(fixtures::shows(desk.button("optionButton"), "DaApV_Sel_Tool_Opt_Rect.gif"));
    QCOMPARE(desk.options().size(), 2);
    QVERIFY(desk.canvas().hasSelection());
    QCOMPARE(desk.canvas().selection(), desk.canvas().rect());
    QCOMPARE(desk.log.taken().constLast(), "selection(true)");
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QVERIFY(support::sameImage(desk.canvas().pasteLabel()->getImage().copy(0, 0, 40, 30).toImage(), whole));
    QVERIFY(support::sameImage(desk.picture(), whole));

    desk.chooseTool(ToolID::Pencil);
    desk.chooseTool(ToolID::AreaSelect);
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::AreaSelect)); // and not the hand
}

void tst_EditorCommands::selectAllMergesAFloatingPiece()
{
    EditorDesk desk;
    const QImage stamp = support::mosaic({32, 40});
    QPixmap pixmap = QPixmap::fromImage(stamp);
    desk.editor->insertStamp(pixmap);
    desk.editor->selectAll();
    const QImage all = support::overlaid(support::sheet(normal), {0, 0}, stamp);
    QVERIFY(support::sameImage(desk.canvas().pasteLabel()->getImage(), all));
}

int main(int argc, char** argv)
{
    return support::run<tst_EditorCommands>(argc, argv);
}

#include "tst_EditorCommands.moc"
