#include "EditorFixtures.h"

using fixtures::EditorDesk;

/// deleteSelection(): what goes, what a host hears of it, and how it comes back.
class tst_DeleteSelection : public support::TestCase
{
    Q_OBJECT

private slots:
    void deleteNothing();
    void deleteLifted_data();
    void deleteLifted();
    void deletePasted();
    void deleteTellsTheMenus();
};

void tst_DeleteSelection::deleteNothing()
{
    EditorDesk desk;
    desk.setPicture(support::mosaic({80, 60}));
    desk.canvas().setUndoFlag(0);
    (void)desk.log.taken();
    desk.editor->deleteSelection();
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(!desk.editor->isModified());
    QVERIFY(support::sameImage(desk.picture(), support::mosaic({80, 60})));
    QCOMPARE(desk.canvas().undoFlag(), 0);
}

void tst_DeleteSelection::deleteLifted_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QRect>("hole"); // in the picture
    QTest::newRow("50 %") << 50 << QRect(20, 20, 40, 20);
    QTest::newRow("100 %") << 100 << QRect(10, 10, 20, 10);
    QTest::newRow("200 %") << 200 << QRect(5, 5, 10, 5);
}

void tst_DeleteSelection::deleteLifted()
{
    QFETCH(const int, zoom);
    QFETCH(const QRect, hole);
    const QImage mosaic = support::mosaic({80, 60});
    EditorDesk desk;
    desk.setPicture(mosaic);
    desk.editor->setZoom(zoom);
    desk.chooseTool(fixtures::AreaSelect);
    desk.canvas().setSelection(QRect(10, 10, 20, 10));
    KORVA_PasteLabel& piece = *desk.canvas().pasteLabel();
    const QImage lifted = piece.getImage().toImage();
    const QImage withHole = support::filled(mosaic, hole, Qt::white);
    piece.move(20, 14);
    const QPoint place = QPoint(20, 14) * 100 / zoom;
    (void)desk.log.taken();

    desk.editor->deleteSelection();
    QCOMPARE(desk.log.taken(),
             QStringList({"selection(false)", "modified()", "canUndo(true)", "canRedo(false)"}));
    QVERIFY(piece.isHidden());
    QVERIFY(!desk.canvas().hasSelection());
    QVERIFY(desk.editor->isModified());
    QCOMPARE(desk.canvas().undoFlag(), 1);
    QVERIFY(support::sameImage(*desk.canvas().zoomedPixmap(), support::scaled(withHole, zoom)));
    QVERIFY(support::sameImage(desk.picture(), withHole));

    desk.editor->undo(); // it is back where it lay
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(true)"}));
    const QImage merged = support::overlaid(withHole, place, lifted);
    QVERIFY(support::sameImage(desk.picture(), merged));
    QVERIFY(support::sameImage(*desk.canvas().zoomedPixmap(), support::scaled(merged, zoom)));
    desk.editor->redo();
    QVERIFY(support::sameImage(desk.picture(), withHole));

    (void)desk.log.taken();
    desk.editor->deleteSelection(); // there is no other one
    QCOMPARE(desk.log.taken(), QStringList());
}

void tst_DeleteSelection::deletePasted()
{
    const QImage mosaic = support::mosaic({80, 60});
    EditorDesk desk;
    desk.setPicture(mosaic);
    fixtures::setClipboard(support::sheet({10, 8}, Qt::red));
    desk.editor->paste();
    desk.canvas().pasteLabel()->move(20, 30);
    desk.editor->clearModified();
    (void)desk.log.taken();
    desk.editor->deleteSelection();
    QCOMPARE(desk.log.taken(),
             QStringList({"selection(false)", "modified()", "canUndo(true)", "canRedo(false)"}));
    QVERIFY(desk.editor->isModified());
    QVERIFY(support::sameImage(desk.picture(), mosaic)); // no hole
    QVERIFY(support::sameImage(fixtures::clipboardImage(), support::sheet({10, 8}, Qt::red)));
    desk.editor->undo();
    QVERIFY(support::sameImage(desk.picture(), support::filled(mosaic, {20, 30, 10, 8}, Qt::red)));
    desk.editor->redo();
    QVERIFY(support::sameImage(desk.picture(), mosaic));
}

void tst_DeleteSelection::deleteTellsTheMenus()
{
    EditorDesk desk;
    desk.setPicture(support::mosaic({80, 60}));
    desk.canvas().setSelection(QRect(10, 10, 20, 10));
    QCOMPARE(fixtures::enabledActions(desk.canvas().contextMenu()).left(2), "11");
    desk.editor->deleteSelection();
    QCOMPARE(fixtures::enabledActions(desk.canvas().contextMenu()).left(2), "00");
}

int main(int argc, char** argv)
{
    return support::run<tst_DeleteSelection>(argc, argv);
}

#include "tst_DeleteSelection.moc"
