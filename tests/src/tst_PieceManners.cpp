#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"
#include "PieceFixtures.h"

using fixtures::PieceDesk;
using fixtures::pieceSize;
using support::filled;
using support::mosaic;
using support::overlaid;
using support::sameImage;

namespace {

constexpr QSize size = fixtures::pieceDeskSize;

} // namespace

class tst_PieceManners : public support::TestCase
{
    Q_OBJECT

private slots:
    void zoomLeavesItFloating_data();
    void zoomLeavesItFloating();
    void classicZoomMerges();
    void changesAtASmallZoomLoseNothing();
    void liftedPixelsAreWhole_data();
    void liftedPixelsAreWhole();
    void fitToPageLeavesItFloating();
    void optionAndColorLeaveItFloating();
    void anotherToolMerges();
    void anotherSizeMerges();
    void everyPieceIsOffered();
    void cutOfAPastedPieceLeavesNoHole();
    void cutAfterAZoomLeavesOneHole();
    void comesInTheMiddle_data();
    void comesInTheMiddle();
    void whiteIsClear();
    void copyOfAClearPieceIsClear();
    void whiteIsClearForOnePiece();
};

// --- steadyPiece

void tst_PieceManners::zoomLeavesItFloating_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (const int from : {37, 50, 100, 150, 333}) {
        for (const int to : {37, 50, 99, 100, 200, 333})
            QTest::addRow("%d to %d %%", from, to) << from << to;
    }
}

void tst_PieceManners::zoomLeavesItFloating()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    PieceDesk desk({&KORVA_Manners::steadyPiece});
    desk.editor->setZoom(from);
    desk.editor->paste();
    desk.canvas().placePiece({31, 17});
    const QImage expected = overlaid(mosaic(size), {31, 17}, desk.clip);
    (void)desk.log.taken();
    desk.editor->setZoom(to);
    desk.editor->setZoom(from);
    desk.editor->setZoom(to);
    QVERIFY(desk.floats());
    QVERIFY(!desk.log.taken().contains("selection(false)"));
    QCOMPARE(desk.canvas().piecePlace(), QPoint(31, 17));
    QVERIFY(sameImage(desk.piece().getImage(), desk.clip));
    const QRect onScreen = desk.piece().geometry();
    QVERIFY(qAbs(onScreen.x() - 31 * to / 100) <= 1 && qAbs(onScreen.y() - 17 * to / 100) <= 1);
    QVERIFY(qAbs(onScreen.width() - pieceSize.width() * to / 100) <= 1);
    QVERIFY(sameImage(desk.whole(), expected));
    desk.canvas().mergePastePixmap();
    QVERIFY(sameImage(desk.picture(), expected));
}

void tst_PieceManners::classicZoomMerges()
{
    const PieceDesk desk({});
    desk.editor->paste();
    desk.editor->selectZoom(KORVA_ZOOM_200);
    QVERIFY(!desk.floats());
}

void tst_PieceManners::changesAtASmallZoomLoseNothing()
{
    const PieceDesk desk({&KORVA_Manners::steadyPiece});
    desk.editor->setZoom(50);
    desk.editor->paste();
    desk.piece().moveBy({5, 4});
    desk.piece().turn(true);
    desk.piece().turn(true);
    QVERIFY(sameImage(desk.piece().getImage(), desk.clip.transformed(QTransform().rotate(180))));
    support::Gestures pointer(desk.piece());
    pointer.hover(desk.piece().rect().center());
    pointer.drag({desk.piece().rect().center(), desk.piece().rect().center() + QPoint(3, 2)});
    QCOMPARE(desk.piece().getImage().size(), pieceSize);
}

void tst_PieceManners::liftedPixelsAreWhole_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QRect>("marked"); // on the screen
    QTest::addColumn<QRect>("lifted"); // in the picture
    QTest::newRow("50 %") << 50 << QRect(10, 5, 8, 6) << QRect(20, 10, 16, 12);
    QTest::newRow("100 %") << 100 << QRect(10, 5, 8, 6) << QRect(10, 5, 8, 6);
    QTest::newRow("150 %") << 150 << QRect(10, 5, 8, 6) << QRect(6, 3, 6, 5);
    QTest::newRow("200 %") << 200 << QRect(10, 5, 8, 6) << QRect(5, 2, 4, 4);
    QTest::newRow("800 %") << 800 << QRect(12, 8, 9, 7) << QRect(1, 1, 2, 1);
    QTest::newRow("less than a pixel") << 800 << QRect(12, 10, 2, 3) << QRect(1, 1, 1, 1);
    QTest::newRow("at the corner") << 400 << QRect(470, 355, 30, 30) << QRect(117, 88, 3, 2);
}

void tst_PieceManners::liftedPixelsAreWhole()
{
    QFETCH(const int, zoom);
    QFETCH(const QRect, marked);
    QFETCH(const QRect, lifted);
    PieceDesk desk({&KORVA_Manners::steadyPiece});
    desk.editor->setZoom(zoom);
    desk.canvas().setSelection(marked);
    QCOMPARE(desk.canvas().piecePlace(), lifted.topLeft());
    QVERIFY(sameImage(desk.piece().getImage(), mosaic(size).copy(lifted)));
    QVERIFY(sameImage(desk.whole(), mosaic(size)));
    desk.piece().hide();
    QVERIFY(sameImage(desk.whole(), filled(mosaic(size), lifted, Qt::white)));
}

void tst_PieceManners::fitToPageLeavesItFloating()
{
    const PieceDesk desk({&KORVA_Manners::steadyPiece});
    desk.editor->show();
    desk.editor->paste();
    desk.canvas().placePiece({31, 17});
    desk.editor->selectZoom(KORVA_ZOOM_FIT);
    QVERIFY(desk.canvas().zoom() > 100);
    const int fitted = desk.canvas().zoom();
    desk.editor->resize(desk.editor->size() + QSize(100, 100));
    QVERIFY(desk.canvas().zoom() > fitted);
    QVERIFY(desk.floats());
    QCOMPARE(desk.canvas().piecePlace(), QPoint(31, 17));
}

void tst_PieceManners::optionAndColorLeaveItFloating()
{
    const PieceDesk desk({&KORVA_Manners::steadyPiece});
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    desk.editor->paste();
    desk.editor->selectOption(2);
    desk.editor->setColor(Qt::green);
    QVERIFY(desk.floats());
    QCOMPARE(desk.editor->option(), 2);
}

void tst_PieceManners::anotherToolMerges()
{
    const PieceDesk desk({&KORVA_Manners::steadyPiece});
    desk.editor->paste();
    desk.editor->selectTool(KORVA_TOOL_LINE);
    QVERIFY(!desk.floats());
    QVERIFY(sameImage(desk.picture(), overlaid(mosaic(size), {}, desk.clip)));
}

void tst_PieceManners::anotherSizeMerges()
{
    const PieceDesk desk({&KORVA_Manners::steadyPiece});
    desk.editor->paste();
    desk.editor->resizeImage(60, 45);
    QVERIFY(!desk.floats());
    QCOMPARE(desk.picture().size(), QSize(60, 45));
}

// --- offeredPiece

void tst_PieceManners::everyPieceIsOffered()
{
    PieceDesk desk({&KORVA_Manners::offeredPiece});
    const auto states = [&] { return fixtures::enabledActions(desk.canvas().contextMenu()).left(2); };
    QCOMPARE(states(), QString("00"));
    desk.editor->paste();
    QCOMPARE(desk.log.taken(),
             QStringList({"modified()", "canUndo(true)", "canRedo(false)", "selection(true)"}));
    QCOMPARE(states(), QString("11"));
    desk.canvas().mergePastePixmap();
    QCOMPARE(states(), QString("00"));
    QPixmap stamp = QPixmap::fromImage(desk.clip);
    desk.editor->insertStamp(stamp);
    QCOMPARE(states(), QString("11"));
    desk.editor->clearCanvas();
    QCOMPARE(states(), QString("00"));
    desk.editor->paste();
    desk.setPicture(mosaic(size));
    QCOMPARE(states(), QString("00"));

    PieceDesk classic({});
    classic.editor->paste();
    QCOMPARE(classic.log.taken(), QStringList({"modified()", "canUndo(true)", "canRedo(false)"}));
}

void tst_PieceManners::cutOfAPastedPieceLeavesNoHole()
{
    const PieceDesk desk({&KORVA_Manners::offeredPiece});
    desk.lift(QRect(70, 50, 20, 20)); // an old selection is no hole either
    desk.canvas().mergePastePixmap();
    desk.editor->paste();
    desk.canvas().placePiece({10, 10});
    desk.editor->cut();
    QVERIFY(!desk.floats());
    QVERIFY(sameImage(desk.picture(), mosaic(size)));
    QVERIFY(sameImage(fixtures::clipboardImage(), desk.clip));
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), overlaid(mosaic(size), {10, 10}, desk.clip)));
}

void tst_PieceManners::cutAfterAZoomLeavesOneHole()
{
    const PieceDesk desk({&KORVA_Manners::offeredPiece, &KORVA_Manners::steadyPiece});
    desk.lift(QRect(20, 10, 20, 20));
    desk.editor->setZoom(50);
    desk.editor->cut();
    QVERIFY(sameImage(desk.picture(), filled(mosaic(size), QRect(20, 10, 20, 20), Qt::white)));
}

// --- centeredPiece

void tst_PieceManners::comesInTheMiddle_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("extent");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QPoint>("scrolled");
    QTest::newRow("all is seen") << QSize(120, 90) << QSize(30, 20) << 100 << QPoint(0, 0);
    QTest::newRow("zoomed") << QSize(120, 90) << QSize(30, 20) << 50 << QPoint(0, 0);
    QTest::newRow("scrolled") << QSize(600, 500) << QSize(40, 30) << 100 << QPoint(200, 150);
    QTest::newRow("scrolled and zoomed") << QSize(600, 500) << QSize(40, 30) << 200 << QPoint(500, 420);
    QTest::newRow("whole at the edge") << QSize(600, 500) << QSize(300, 300) << 100 << QPoint(0, 0);
    QTest::newRow("larger than the picture") << QSize(120, 90) << QSize(200, 50) << 100 << QPoint(0, 0);
}

void tst_PieceManners::comesInTheMiddle()
{
    QFETCH(const QSize, picture);
    QFETCH(const QSize, extent);
    QFETCH(const int, zoom);
    QFETCH(const QPoint, scrolled);
    const PieceDesk desk({&KORVA_Manners::centeredPiece}, picture);
    desk.editor->show();
    desk.editor->setZoom(zoom);
    KORVA_ScrollView* view = desk.editor->mainView()->scrollView();
    view->setContentsPos(scrolled.x(), scrolled.y());
    const QRect seen = desk.canvas().visibleRegion().boundingRect();
    fixtures::setClipboard(support::sheet(extent, Qt::blue));
    desk.editor->paste();
    QCOMPARE(QPoint(view->contentsX(), view->contentsY()), scrolled);
    const QRect piece(desk.canvas().piecePlace(), extent);
    const QRect room(QPoint(), picture);
    const QPoint off = desk.piece().geometry().center() - seen.center();
    const bool fits = extent.width() <= picture.width() && extent.height() <= picture.height();
    const bool isSeen = desk.piece().width() <= seen.width() && desk.piece().height() <= seen.height();
    if (fits)
        QVERIFY(room.contains(piece));
    else
        QCOMPARE(piece.x(), 0);
    if (isSeen) {
        QVERIFY(seen.contains(desk.piece().geometry()));
        QVERIFY(qAbs(off.x()) <= 3 && qAbs(off.y()) <= 3);
    }
}

// --- clearWhite

void tst_PieceManners::whiteIsClear()
{
    for (const int zoom : {50, 100, 200}) {
        const PieceDesk desk({&KORVA_Manners::clearWhite});
        desk.editor->setZoom(zoom);
        fixtures::setClipboard(fixtures::dotted());
        desk.editor->paste();
        desk.canvas().placePiece({10, 20});
        QVERIFY(desk.row("White is clear"));
        desk.row("White is clear")->trigger();
        QVERIFY(desk.row("\u2713 White is clear")->isChecked());
        const QImage expected = filled(mosaic(size), QRect(13, 24, 9, 5), Qt::blue);
        QVERIFY(sameImage(desk.whole(), expected));
        QVERIFY(sameImage(desk.piece().getImage(), fixtures::dotted()));

        // Within the frame, the screen shows what the merge makes of it.
        const QRect part = desk.piece().geometry().adjusted(7, 7, -7, -7) & desk.canvas().rect();
        const QImage shown = desk.canvas().grab().toImage().copy(part);
        if (zoom == 200)
            QVERIFY(sameImage(shown, support::scaled(expected, zoom).copy(part)));
        desk.editor->copy();
        QVERIFY(sameImage(fixtures::clipboardImage(), fixtures::dotted()));
        desk.canvas().mergePastePixmap();
        QVERIFY(sameImage(desk.picture(), expected));
    }
}

void tst_PieceManners::copyOfAClearPieceIsClear()
{
    const PieceDesk desk({&KORVA_Manners::clearWhite});
    fixtures::setClipboard(fixtures::dotted());
    desk.editor->paste();
    desk.row("White is clear")->trigger();
    desk.editor->copy();
    desk.editor->paste();
    QVERIFY(desk.piece().isWhiteClear());
    desk.row("\u2713 White is clear")->trigger();
    desk.editor->copy();
    desk.editor->paste();
    QVERIFY(!desk.piece().isWhiteClear());
    desk.row("White is clear")->trigger();
    desk.editor->copy();
    fixtures::setClipboard(desk.clip); // somebody else's
    desk.editor->paste();
    QVERIFY(!desk.piece().isWhiteClear());
}

void tst_PieceManners::whiteIsClearForOnePiece()
{
    const PieceDesk desk({&KORVA_Manners::clearWhite});
    fixtures::setClipboard(fixtures::dotted());
    desk.editor->paste();
    desk.piece().change(KORVA_PasteLabel::ClearWhite);
    QVERIFY(desk.piece().isWhiteClear());
    desk.editor->paste();
    QVERIFY(!desk.piece().isWhiteClear());
    desk.piece().change(KORVA_PasteLabel::ClearWhite);
    desk.piece().change(KORVA_PasteLabel::ClearWhite);
    QVERIFY(!desk.piece().isWhiteClear());
    desk.piece().setWhiteClear(true);
    desk.editor->setManners({});
    QVERIFY(desk.piece().isWhiteClear()); // what is chosen for a piece stays
    QVERIFY(!desk.row("White is clear") && !desk.row("\u2713 White is clear"));
}

int main(int argc, char** argv)
{
    return support::run<tst_PieceManners>(argc, argv);
}

#include "tst_PieceManners.moc"
