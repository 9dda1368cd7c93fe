#include "PieceFixtures.h"

using fixtures::PieceDesk;
using support::mosaic;
using support::overlaid;
using support::sameImage;

namespace {

constexpr QSize size = fixtures::pieceDeskSize;

} // namespace

class tst_PieceKeys : public support::TestCase
{
    Q_OBJECT

private slots:
    void escapePutsALiftedPieceBack_data();
    void escapePutsALiftedPieceBack();
    void escapeDropsAPastedPiece();
    void escapeBringsTheOffersBack();
    void escapeKeepsWhatAHostDid();
    void escapeInTheMiddleOfADrag();
    void classicEscapeIsTheHosts();
    void arrowsMoveIt();
};

void tst_PieceKeys::escapePutsALiftedPieceBack_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("steps");
    for (const int zoom : {37, 50, 100, 150, 200, 333}) {
        for (const int steps : {1, 20})
            QTest::addRow("%d %%, %d steps", zoom, steps) << zoom << steps;
    }
}

void tst_PieceKeys::escapePutsALiftedPieceBack()
{
    QFETCH(const int, zoom);
    QFETCH(const int, steps);
    PieceDesk desk({&KORVA_Manners::pieceKeys, &KORVA_Manners::steadyPiece});
    desk.editor->setUndoSteps(steps);
    desk.editor->setZoom(zoom);
    desk.scribble();
    const QImage drawn = desk.picture();
    desk.editor->clearModified();
    QCoreApplication::processEvents();
    desk.lift(QRect(7, 5, 22, 17));
    QVERIFY(desk.floats());
    QVERIFY(!sameImage(desk.canvas().zoomedPixmap()->toImage(), support::scaled(drawn, zoom)));
    desk.piece().moveBy({6, 8});
    desk.piece().turn(true);
    desk.editor->setZoom(100);
    QCoreApplication::processEvents();
    (void)desk.log.taken();
    support::SignalRecorder dropped;
    dropped.watch(&desk.canvas(), &KORVA_Canvas::pieceDropped);
    desk.key(Qt::Key_Escape);
    QVERIFY(!desk.floats());
    QCOMPARE(dropped.taken(), QStringList{"pieceDropped()"});
    QCOMPARE(desk.log.taken(), QStringList{"selection(false)"});
    QVERIFY(sameImage(desk.picture(), drawn));
    QVERIFY(sameImage(desk.canvas().zoomedPixmap()->toImage(), drawn));
    QVERIFY(!desk.editor->isModified());
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), mosaic(size)));
    desk.editor->redo();
    QVERIFY(sameImage(desk.picture(), drawn));
}

void tst_PieceKeys::escapeDropsAPastedPiece()
{
    PieceDesk desk({&KORVA_Manners::pieceKeys});
    desk.editor->paste();
    QVERIFY(desk.editor->isModified());
    (void)desk.log.taken();
    desk.key(Qt::Key_Escape);
    QVERIFY(!desk.floats());
    QVERIFY(sameImage(desk.picture(), mosaic(size)));
    QVERIFY(!desk.editor->isModified() && !desk.editor->hasChanges());
    QCOMPARE(desk.log.taken(), QStringList({"selection(false)", "canUndo(false)"}));
    desk.canvas().dropPiece(); // nothing floats
    QCOMPARE(desk.log.taken(), QStringList());
}

// A paste over another piece merges that, which stays.
void tst_PieceKeys::escapeBringsTheOffersBack()
{
    PieceDesk desk({&KORVA_Manners::pieceKeys});
    desk.scribble();
    const QImage drawn = desk.picture();
    desk.editor->undo();
    (void)desk.log.taken();
    desk.editor->paste();
    QCOMPARE(desk.log.taken(), QStringList({"modified()", "canUndo(true)", "canRedo(false)"}));
    desk.key(Qt::Key_Escape);
    QCOMPARE(desk.log.taken(), QStringList({"selection(false)", "canUndo(false)", "canRedo(true)"}));
    QCOMPARE(desk.canvas().undoFlag(), 2);
    desk.editor->redo();
    QVERIFY(sameImage(desk.picture(), drawn));

    desk.editor->paste();
    desk.editor->paste();
    desk.key(Qt::Key_Escape);
    QVERIFY(sameImage(desk.picture(), overlaid(drawn, {}, desk.clip)));
    QVERIFY(desk.editor->isModified());
}

void tst_PieceKeys::escapeKeepsWhatAHostDid()
{
    const PieceDesk desk({&KORVA_Manners::pieceKeys});
    desk.lift(QRect(60, 40, 20, 20));
    desk.editor->paste(2, 3);
    desk.editor->clearModified();
    desk.key(Qt::Key_Escape);
    QVERIFY(desk.editor->isModified()); // the piece was where it is not now
    QVERIFY(sameImage(desk.picture(), overlaid(mosaic(size), {2, 3}, desk.clip)));
}

void tst_PieceKeys::escapeInTheMiddleOfADrag()
{
    const PieceDesk desk({&KORVA_Manners::pieceKeys});
    desk.lift(QRect(20, 10, 40, 40));
    support::Gestures pointer(desk.piece());
    pointer.hover({20, 20});
    pointer.press({20, 20});
    pointer.move({25, 25});
    desk.key(Qt::Key_Escape);
    pointer.release({25, 25});
    QVERIFY(!desk.floats());
    QVERIFY(sameImage(desk.picture(), mosaic(size)));
    desk.editor->paste();
    const QPoint at = desk.piece().pos();
    pointer.hover({15, 15}); // no drag goes on
    QCOMPARE(desk.piece().pos(), at);
}

void tst_PieceKeys::classicEscapeIsTheHosts()
{
    const PieceDesk desk({});
    desk.canvas().setKeyboardDrawing(true);
    desk.lift(QRect(20, 10, 40, 40));
    desk.key(Qt::Key_Escape);
    desk.canvas().dropPiece();
    QVERIFY(desk.floats());
    QKeyEvent claim(QEvent::ShortcutOverride, Qt::Key_Escape, {});
    claim.ignore();
    QCoreApplication::sendEvent(&desk.canvas(), &claim);
    QVERIFY(!claim.isAccepted());
}

void tst_PieceKeys::arrowsMoveIt()
{
    const PieceDesk desk({&KORVA_Manners::pieceKeys});
    QVERIFY(!desk.canvas().isKeyboardDrawing());
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, {});
    QCOMPARE(desk.canvas().penKey(press), KORVA_Canvas::NotThePens);
    desk.editor->paste();
    QCOMPARE(desk.canvas().penKey(press), KORVA_Canvas::OnPiece);
    desk.key(Qt::Key_Right);
    desk.key(Qt::Key_Down);
    desk.key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(desk.piece().pos(), QPoint(1, 11));
    QVERIFY(!desk.canvas().keyboardPen());
    desk.key(Qt::Key_Return);
    QVERIFY(!desk.floats());
    QVERIFY(sameImage(desk.picture(), overlaid(mosaic(size), {1, 11}, desk.clip)));

    PieceDesk classic({});
    classic.editor->paste();
    classic.key(Qt::Key_Right);
    QCOMPARE(classic.piece().pos(), QPoint(0, 0));
}

int main(int argc, char** argv)
{
    return support::run<tst_PieceKeys>(argc, argv);
}

#include "tst_PieceKeys.moc"
