#include "KORVA_PieceHandles.h"
#include "PieceFixtures.h"

using fixtures::PieceDesk;
using fixtures::pieceSize;
using support::mosaic;
using support::overlaid;
using support::sameImage;

namespace {

constexpr QSize size = fixtures::pieceDeskSize;

} // namespace

class tst_PieceHandles : public support::TestCase
{
    Q_OBJECT

private slots:
    void rowsOfTheMenu();
    void whatTheRowsDo_data();
    void whatTheRowsDo();
    void doubleEndsAtTheLimit();
    void handlesKeepOffSmallPieces_data();
    void handlesKeepOffSmallPieces();
    void handlesAreNoPartOfThePicture();
    void pointerFollows();
    void handlesTurnAndStretch();
    void fingersFindTheHandles();
};

void tst_PieceHandles::rowsOfTheMenu()
{
    PieceDesk desk({});
    const QStringList classic{"Copy", "Cut", "Paste"};
    QCOMPARE(desk.rows(), classic);
    desk.editor->setManners(KORVA_Manners::modern());
    desk.editor->setManners(KORVA_Manners::modern());
    QCOMPARE(desk.rows(), classic + QStringList({"Turn left", "Turn right", "Flip", "Double", "Halve",
                                                 "White is clear", "Delete"}));
    desk.editor->paste();
    desk.row("Delete")->trigger();
    QVERIFY(!desk.floats());
    QVERIFY(sameImage(desk.picture(), mosaic(size)));
    desk.editor->setManners({});
    QCOMPARE(desk.rows(), classic);
}

void tst_PieceHandles::whatTheRowsDo_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("change");
    QTest::addColumn<QImage>("expected");
    const QImage clip = support::inverted(mosaic(pieceSize));
    const auto add = [](const char* row, int change, const QImage& expected) {
        QTest::newRow(row) << QString(row) << change << expected;
    };
    add("Turn left", KORVA_PasteLabel::TurnLeft, clip.transformed(QTransform().rotate(-90)));
    add("Turn right", KORVA_PasteLabel::TurnRight, clip.transformed(QTransform().rotate(90)));
    add("Flip", KORVA_PasteLabel::Flip, clip.mirrored(true, false));
    add("Double", KORVA_PasteLabel::Double, clip.scaled(pieceSize * 2));
    add("Halve", KORVA_PasteLabel::Halve, clip.scaled(pieceSize / 2.0));
}

void tst_PieceHandles::whatTheRowsDo()
{
    QFETCH(const QString, row);
    QFETCH(const int, change);
    QFETCH(const QImage, expected);
    for (const int zoom : {37, 100, 200}) {
        PieceDesk desk({&KORVA_Manners::pieceHandles});
        support::SignalRecorder told;
        told.watch(&desk.piece(), &KORVA_PasteLabel::changeChosen);
        desk.editor->setZoom(zoom);
        desk.piece().change(KORVA_PasteLabel::Change(change)); // nothing floats
        desk.editor->paste();
        desk.canvas().placePiece({5, 6});
        (void)desk.log.taken();
        desk.row(row)->trigger();
        QCOMPARE(told.taken().size(), 1);
        QCOMPARE(desk.log.taken(), QStringList());
        QVERIFY(sameImage(desk.piece().getImage(), expected));
        QVERIFY(qAbs(desk.piece().width() - expected.width() * zoom / 100) <= 1);
        const QPoint place = desk.canvas().piecePlace();
        const QSize turned = (pieceSize - expected.size()) / 2; // around its middle
        const bool isTurn = row.startsWith("Turn");
        const QPoint slip =
            place - QPoint(5, 6) - (isTurn ? QPoint(turned.width(), turned.height()) : QPoint());
        QVERIFY2(slip.manhattanLength() <= (isTurn ? 200 / zoom - 2 * (zoom == 100) : 0),
                 qPrintable(QString("%1 %2").arg(slip.x()).arg(slip.y())));
        QVERIFY(sameImage(desk.whole(), overlaid(mosaic(size), place, expected)));
    }
}

void tst_PieceHandles::doubleEndsAtTheLimit()
{
    const PieceDesk desk({&KORVA_Manners::pieceHandles});
    desk.editor->paste();
    for (int i = 0; i < 12; ++i)
        desk.piece().change(KORVA_PasteLabel::Double);
    const QSize grown = desk.piece().getImage().size();
    QVERIFY(grown.width() > 1000 && qint64(grown.width()) * grown.height() <= 16'000'000);
    for (int i = 0; i < 20; ++i)
        desk.piece().change(KORVA_PasteLabel::Halve);
    QCOMPARE(desk.piece().getImage().size(), QSize(1, 1));
}

void tst_PieceHandles::handlesKeepOffSmallPieces_data()
{
    QTest::addColumn<QSize>("extent");
    QTest::addColumn<int>("side");
    QTest::newRow("tiny") << QSize(5, 5) << 0;
    QTest::newRow("just too small") << QSize(23, 60) << 0;
    QTest::newRow("small") << QSize(24, 24) << 8;
    QTest::newRow("middle") << QSize(40, 33) << 11;
    QTest::newRow("large") << QSize(90, 80) << 16;
}

void tst_PieceHandles::handlesKeepOffSmallPieces()
{
    QFETCH(const QSize, extent);
    QFETCH(const int, side);
    const PieceDesk desk({&KORVA_Manners::pieceHandles});
    fixtures::setClipboard(support::sheet(extent, Qt::blue));
    desk.editor->paste();
    desk.canvas().placePiece({4, 4});
    QCOMPARE(KORVA_PieceHandles(desk.piece().rect()).side(), side);
    QCOMPARE(desk.piece().geometry(), QRect(QPoint(4, 4), extent));
    int moving = 0;
    for (int y = 0; y < extent.height(); ++y) {
        for (int x = 0; x < extent.width(); ++x) {
            support::Gestures(desk.piece()).hover({x, y});
            moving += desk.piece().cursor().shape() == Qt::SizeAllCursor ? 1 : 0;
        }
    }
    if (side == 0)
        QCOMPARE(moving, extent.width() * extent.height());
    else
        QVERIFY(moving * 9 >= extent.width() * extent.height());

    // What is painted is the piece itself, except for its frame and its handles.
    const QImage shown = desk.piece().grab().toImage();
    const QRect inside = desk.piece().rect().adjusted(1, 1, -1, -1);
    int covered = 0;
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            covered += shown.pixelColor(x, y) != QColor(Qt::blue) ? 1 : 0;
    }
    if (side == 0)
        QCOMPARE(covered, 0);
    else
        QVERIFY(covered > 2 * side * side && covered < 8 * side * side);
}

void tst_PieceHandles::handlesAreNoPartOfThePicture()
{
    const PieceDesk desk({&KORVA_Manners::pieceHandles});
    fixtures::setClipboard(support::sheet({80, 70}, Qt::blue));
    desk.editor->paste();
    (void)desk.canvas().grab();
    const QImage expected = overlaid(mosaic(size), {}, support::sheet({80, 70}, Qt::blue));
    QVERIFY(sameImage(desk.whole(), expected));
    QVERIFY(sameImage(desk.canvas().zoomedPixmap()->toImage(), mosaic(size)));
    desk.canvas().mergePastePixmap();
    QVERIFY(sameImage(desk.canvas().grab(), expected));
}

void tst_PieceHandles::pointerFollows()
{
    const PieceDesk desk({&KORVA_Manners::pieceHandles});
    fixtures::setClipboard(support::sheet({80, 70}, Qt::blue));
    desk.editor->paste();
    const auto shapeAt = [&](QPoint at) {
        support::Gestures(desk.piece()).hover(at);
        return desk.piece().cursor().shape();
    };
    QCOMPARE(shapeAt({40, 35}), Qt::SizeAllCursor);
    QCOMPARE(shapeAt({3, 35}), Qt::SizeHorCursor);
    QCOMPARE(shapeAt({40, 68}), Qt::SizeVerCursor);
    QCOMPARE(shapeAt({12, 12}), Qt::SizeFDiagCursor);
    QCOMPARE(shapeAt({12, 60}), Qt::SizeBDiagCursor);
    QCOMPARE(shapeAt({70, 60}), Qt::SizeFDiagCursor);
    QCOMPARE(shapeAt({70, 12}), Qt::BitmapCursor); // the picture of turning
    QVERIFY(support::inkCount(desk.piece().cursor().pixmap().toImage()) > 50);
}

void tst_PieceHandles::handlesTurnAndStretch()
{
    const PieceDesk desk({&KORVA_Manners::pieceHandles});
    const QImage clip = mosaic({80, 60});
    fixtures::setClipboard(clip);
    desk.editor->paste();
    support::Gestures pointer(desk.piece());
    pointer.drag({{70, 10}, {70, 30}}); // without a hover before
    QVERIFY(sameImage(desk.piece().getImage(), clip.transformed(QTransform().rotate(90))));
    pointer.drag({{52, 72}, {52 + 30, 72}}); // the lower right corner of 60 × 80 pixels
    QCOMPARE(desk.piece().getImage().size(), QSize(90, 80));
}

void tst_PieceHandles::fingersFindTheHandles()
{
    const PieceDesk desk({&KORVA_Manners::pieceHandles});
    fixtures::setClipboard(support::sheet({8, 8}, Qt::blue));
    desk.editor->paste();
    QCOMPARE(desk.piece().gripFor({-10, 12}, 20), std::optional(QPoint(3, 3))); // all of it moves
    QCOMPARE(desk.piece().gripFor({-30, 12}, 20), std::nullopt);
    desk.canvas().mergePastePixmap();
    fixtures::setClipboard(support::sheet({300, 70}, Qt::blue));
    desk.editor->paste();
    QCOMPARE(desk.piece().rect().right(), 299);
    // Its right edge is beyond the canvas, where nothing can be seen.
    QCOMPARE(desk.piece().gripFor({115, 10}, 20), std::optional(QPoint(119, 0)));
}

int main(int argc, char** argv)
{
    return support::run<tst_PieceHandles>(argc, argv);
}

#include "tst_PieceHandles.moc"
