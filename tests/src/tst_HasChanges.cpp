#include "EditorFixtures.h"

#include "KORVA_Text.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;

/// hasChanges(): whether there is anything to lose.
class tst_HasChanges : public support::TestCase
{
    Q_OBJECT

private slots:
    void changes();
    void changesOfAPiece_data();
    void changesOfAPiece();
    void changesOfAText();
    void openedIsUnchanged();
};

void tst_HasChanges::changes()
{
    EditorDesk desk;
    QVERIFY(!desk.editor->hasChanges());
    desk.scribble();
    QVERIFY(desk.editor->hasChanges());
    desk.editor->clearModified();
    QVERIFY(!desk.editor->hasChanges());
    desk.editor->undo();
    QVERIFY(!desk.editor->hasChanges() || desk.editor->isModified());
    desk.editor->clearCanvas();
    QVERIFY(desk.editor->hasChanges());
    (void)desk.log.taken();
    QVERIFY(desk.editor->hasChanges());
    QCOMPARE(desk.log.taken(), QStringList());
}

void tst_HasChanges::changesOfAPiece_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : {50, 100, 150, 200})
        QTest::addRow("%d %%", zoom) << zoom;
}

void tst_HasChanges::changesOfAPiece()
{
    QFETCH(const int, zoom);
    EditorDesk desk;
    desk.setPicture(support::mosaic({80, 60}));
    desk.editor->setZoom(zoom);
    desk.chooseTool(fixtures::AreaSelect);
    const int unit = zoom / 50; // a whole pixel of the picture, or two
    support::Gestures stylus(desk.canvas());
    stylus.drag({{2 * unit, 2 * unit}, {30 * unit, 26 * unit}});
    KORVA_PasteLabel& piece = *desk.canvas().pasteLabel();
    QVERIFY(!piece.isHidden());
    QVERIFY(!desk.editor->isModified());
    QVERIFY(!desk.editor->hasChanges()); // it lies where it was
    const QPoint place = piece.pos();
    (void)desk.log.taken();
    const auto dragBy = [&](QPoint distance) {
        const QPoint inside = piece.geometry().center();
        stylus.hover(inside);
        stylus.drag({inside, inside + distance});
    };
    dragBy({6 * unit, 4 * unit});
    QCOMPARE(piece.pos(), place + QPoint(6 * unit, 4 * unit));
    QVERIFY(!desk.editor->isModified());
    QVERIFY(desk.editor->hasChanges());
    desk.editor->clearModified(); // say, the host wrote the snapshot somewhere
    QVERIFY(!desk.editor->hasChanges());
    dragBy({-6 * unit, -4 * unit});
    QVERIFY(desk.editor->hasChanges());
    dragBy({6 * unit, 4 * unit});
    QVERIFY(!desk.editor->hasChanges());
    QCOMPARE(desk.log.taken(), QStringList());
}

void tst_HasChanges::changesOfAText()
{
    EditorDesk desk;
    desk.type({});
    QVERIFY(desk.editor->currentText()->takesText());
    desk.editor->clearModified();
    QVERIFY(!desk.editor->hasChanges()); // open, and nothing typed
    desk.type("a");
    QVERIFY(desk.editor->hasChanges());
    desk.editor->clearModified();
    QVERIFY(!desk.editor->hasChanges());
    QVERIFY(!desk.editor->isModified());
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier, "\b");
    QCoreApplication::sendEvent(&desk.canvas(), &key);
    QVERIFY(!desk.editor->isModified());
    QVERIFY(desk.editor->hasChanges()); // the letter that counts as saved is gone
}

void tst_HasChanges::openedIsUnchanged()
{
    constexpr int openAction = 0;
    const PictureFolder folder;
    const QString name = folder.written("a.png", support::mosaic({40, 30}));
    EditorDesk desk(name);
    const auto isUnchanged = [&desk] {
        if (desk.editor->hasChanges())
            return false;
        desk.chooseTool(fixtures::AreaSelect);
        support::Gestures(desk.canvas()).drag({{5, 5}, {20, 15}});
        return !desk.canvas().pasteLabel()->isHidden() && !desk.editor->hasChanges();
    };
    QVERIFY(isUnchanged());
    desk.chooseTool(fixtures::Pencil);
    desk.scribble();
    QVERIFY(desk.editor->hasChanges());
    QVERIFY(desk.editor->openNewFilePrivate(openAction, name));
    QVERIFY(isUnchanged());
}

int main(int argc, char** argv)
{
    return support::run<tst_HasChanges>(argc, argv);
}

#include "tst_HasChanges.moc"
