#include "KORVA_Picture.h"
#include "KORVA_PictureFile.h"
#include "KORVA_PictureSave.h"
#include "KORVA_Zoom.h"
#include "support/Images.h"
#include "support/TestCase.h"

using support::mosaic;
using support::sameImage;

namespace {

constexpr QSize size(20, 10);

KORVA_Picture drawingOf(const QImage& image)
{
    return KORVA_Picture(QPixmap::fromImage(image));
}

/// The mosaic with one pixel that is transparent, and what it looks like on white paper.
QImage withHole(QPoint hole = {2, 1})
{
    QImage image = mosaic(size).convertToFormat(QImage::Format_ARGB32);
    image.setPixel(hole, qRgba(255, 0, 0, 0));
    return image;
}

QImage holeOnPaper(QPoint hole = {2, 1})
{
    return support::filled(mosaic(size), QRect(hole, QSize(1, 1)), Qt::white);
}

bool isPaper(const QPixmap& pixmap)
{
    return !pixmap.hasAlphaChannel() && pixmap.devicePixelRatio() == 1.0;
}

} // namespace

/// All of it without a QApplication, under which no widget could be made.
class tst_Picture : public support::TestCase
{
    Q_OBJECT

private slots:
    void thereIsNoWidget();

    void whatComesInIsOpaque_data();
    void whatComesInIsOpaque();
    void whatIsPaintedOnIsOpaqueAgain();
    void thePixmapStaysTheSameObject();

    void fillsWithAColor_data();
    void fillsWithAColor();
    void scales_data();
    void scales();
    void anEmptyOneScalesToPaper();
    void piece_data();
    void piece();
    void erasesWhatTheMatrixMaps_data();
    void erasesWhatTheMatrixMaps();
    void laysAPieceByItsPixels_data();
    void laysAPieceByItsPixels();
    void withAPieceItStaysAsItIs();

    void onlyWhoMarksItModifies();
    void undoAndRedoExchange();
    void undoGoesBackOverASize();
    void untilASnapshotIsTakenUndoGoesBackToTheStart();
    void aSnapshotMayBeOfAnotherPicture();
    void noChangeTakesASnapshot();
    void copiesPartWays();

    void aFileIsConvertedWithoutAScreen();
};

void tst_Picture::thereIsNoWidget()
{
    QVERIFY(QCoreApplication::instance());
    QVERIFY(!qobject_cast<QApplication*>(QCoreApplication::instance()));
}

// --- What comes in

void tst_Picture::whatComesInIsOpaque_data()
{
    QTest::addColumn<QImage>("in");
    QTest::addColumn<QImage>("out");
    QImage fine = mosaic(size);
    fine.setDevicePixelRatio(2.0);
    QTest::newRow("as it is") << mosaic(size) << mosaic(size);
    QTest::newRow("transparent") << withHole() << holeOnPaper();
    QTest::newRow("for a finer screen") << fine << mosaic(size);
    QTest::newRow("nothing") << QImage() << QImage();
}

void tst_Picture::whatComesInIsOpaque()
{
    QFETCH(const QImage, in);
    QFETCH(const QImage, out);
    KORVA_Picture made = drawingOf(in);
    KORVA_Picture taken = drawingOf(support::sheet({3, 3}));
    taken.take(QPixmap::fromImage(in));
    for (KORVA_Picture* drawing : {&made, &taken}) {
        QCOMPARE(drawing->size(), in.size());
        QVERIFY(isPaper(*drawing->pixmap()));
        QVERIFY(sameImage(*drawing->pixmap(), out));
        QVERIFY(sameImage(drawing->image(), out));
    }
}

void tst_Picture::whatIsPaintedOnIsOpaqueAgain()
{
    KORVA_Picture drawing = drawingOf(mosaic(size));
    *drawing.pixmap() = QPixmap::fromImage(withHole());
    QVERIFY(sameImage(drawing.image(), holeOnPaper()));
    QVERIFY(isPaper(*drawing.pixmap()));
    QVERIFY(sameImage(*drawing.pixmap(), holeOnPaper()));
}

void tst_Picture::thePixmapStaysTheSameObject()
{
    KORVA_Picture drawing = drawingOf(mosaic(size));
    const QPixmap* const pixmap = drawing.pixmap();
    drawing.take(QPixmap::fromImage(withHole()));
    drawing.scale({5, 5});
    drawing.undo();
    QCOMPARE(drawing.pixmap(), pixmap);
}

// --- What changes it

void tst_Picture::fillsWithAColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("blue") << QColor(Qt::blue) << QColor(Qt::blue);
    QTest::newRow("transparent") << QColor(Qt::transparent) << QColor(Qt::white);
}

void tst_Picture::fillsWithAColor()
{
    QFETCH(const QColor, color);
    QFETCH(const QColor, expected);
    KORVA_Picture drawing = drawingOf(mosaic(size));
    drawing.fill(color);
    QVERIFY(sameImage(*drawing.pixmap(), support::sheet(size, expected)));
}

void tst_Picture::scales_data()
{
    QTest::addColumn<QSize>("to");
    QTest::newRow("wider and lower") << QSize(50, 7);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("its own size") << size;
    QTest::newRow("no height") << QSize(50, 0);
    QTest::newRow("a negative width") << QSize(-3, 7);
}

void tst_Picture::scales()
{
    QFETCH(const QSize, to);
    KORVA_Picture drawing = drawingOf(mosaic(size));
    drawing.scale(to);
    if (to.isEmpty()) {
        QVERIFY(drawing.pixmap()->isNull());
        return;
    }
    const QImage expected = support::sheet(to, Qt::white, [&](QPainter& painter) {
        painter.scale(double(float(to.width()) / 20.0F), double(float(to.height()) / 10.0F));
        painter.drawImage(0, 0, mosaic(size));
    });
    QVERIFY(sameImage(*drawing.pixmap(), expected));
}

void tst_Picture::anEmptyOneScalesToPaper()
{
    KORVA_Picture drawing{QPixmap()};
    QVERIFY(drawing.size().isEmpty());
    drawing.scale({4, 3});
    QVERIFY(sameImage(*drawing.pixmap(), support::sheet({4, 3})));
}

void tst_Picture::piece_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::newRow("inside") << QRect(3, 2, 8, 5);
    QTest::newRow("all") << QRect({0, 0}, size);
    QTest::newRow("over the lower right corner") << QRect(15, 6, 10, 10);
    QTest::newRow("over the upper left corner") << QRect(-3, -2, 8, 5);
    QTest::newRow("outside") << QRect(30, 30, 4, 4);
}

void tst_Picture::piece()
{
    QFETCH(const QRect, rect);
    const KORVA_Picture drawing = drawingOf(mosaic(size));
    const QImage expected = support::overlaid(support::sheet(rect.size()), -rect.topLeft(), mosaic(size));
    QVERIFY(sameImage(drawing.piece(rect), expected));
    QVERIFY(sameImage(drawing.image(), mosaic(size)));
}

void tst_Picture::erasesWhatTheMatrixMaps_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("white");
    QTest::newRow("real size") << 100 << QRect(3, 2, 8, 5) << QRect(3, 2, 8, 5);
    QTest::newRow("twice") << 200 << QRect(6, 4, 16, 10) << QRect(3, 2, 8, 5);
    QTest::newRow("half") << 50 << QRect(2, 1, 4, 3) << QRect(4, 2, 8, 6);
    QTest::newRow("beyond the edge") << 100 << QRect(15, 6, 50, 50) << QRect(15, 6, 5, 4);
}

void tst_Picture::erasesWhatTheMatrixMaps()
{
    QFETCH(const int, percent);
    QFETCH(const QRect, rect);
    QFETCH(const QRect, white);
    KORVA_Picture drawing = drawingOf(mosaic(size));
    drawing.erase(rect, KORVA_Zoom(percent).toPictureMatrix());
    QVERIFY(sameImage(*drawing.pixmap(), support::filled(mosaic(size), white, Qt::white)));
}

void tst_Picture::laysAPieceByItsPixels_data()
{
    QTest::addColumn<QImage>("piece");
    QTest::addColumn<QPoint>("at");
    QTest::newRow("inside") << mosaic({6, 4}) << QPoint(5, 3);
    QTest::newRow("over the edge") << mosaic({6, 4}) << QPoint(-2, 8);
    QTest::newRow("outside") << mosaic({6, 4}) << QPoint(40, 40);
    QTest::newRow("transparent in part") << withHole() << QPoint(1, 1);
    QImage fine = mosaic({6, 4});
    fine.setDevicePixelRatio(2.0);
    QTest::newRow("for a finer screen") << fine << QPoint(5, 3);
}

void tst_Picture::laysAPieceByItsPixels()
{
    QFETCH(const QImage, piece);
    QFETCH(const QPoint, at);
    const QImage blue = support::sheet(size, Qt::blue);
    QImage pixelByPixel = piece;
    pixelByPixel.setDevicePixelRatio(1.0);
    const QImage expected =
        support::sheet(size, Qt::blue, [&](QPainter& painter) { painter.drawImage(at, pixelByPixel); });

    KORVA_Picture drawing = drawingOf(blue);
    QVERIFY(sameImage(drawing.with(QPixmap::fromImage(piece), at), expected));
    drawing.lay(QPixmap::fromImage(piece), at);
    QVERIFY(sameImage(*drawing.pixmap(), expected));
    QVERIFY(isPaper(*drawing.pixmap()));
}

void tst_Picture::withAPieceItStaysAsItIs()
{
    KORVA_Picture drawing = drawingOf(mosaic(size));
    QVERIFY(sameImage(drawing.with(QPixmap(), {3, 3}), mosaic(size)));
    const QImage with = drawing.with(QPixmap::fromImage(support::sheet({4, 4}, Qt::red)), {3, 3}).toImage();
    QVERIFY(sameImage(with, support::filled(mosaic(size), QRect(3, 3, 4, 4), Qt::red)));
    QVERIFY(sameImage(drawing.image(), mosaic(size)));
}

// --- Modified, and back

void tst_Picture::onlyWhoMarksItModifies()
{
    KORVA_Picture drawing = drawingOf(mosaic(size));
    QVERIFY(!drawing.isModified());
    drawing.fill(Qt::blue);
    drawing.takeSnapshot();
    drawing.undo();
    QVERIFY(!drawing.isModified());
    drawing.markModified();
    drawing.undo();
    drawing.redo();
    drawing.take(QPixmap::fromImage(mosaic(size)));
    QVERIFY(drawing.isModified());
    drawing.clearModified();
    QVERIFY(!drawing.isModified());
}

void tst_Picture::undoAndRedoExchange()
{
    const QImage blue = support::sheet(size, Qt::blue);
    KORVA_Picture drawing = drawingOf(mosaic(size));
    drawing.takeSnapshot();
    drawing.fill(Qt::blue);
    drawing.undo();
    QVERIFY(sameImage(drawing.image(), mosaic(size)));
    drawing.redo();
    QVERIFY(sameImage(drawing.image(), blue));
    drawing.redo(); // one step goes to and fro
    QVERIFY(sameImage(drawing.image(), mosaic(size)));
    drawing.undo();
    QVERIFY(sameImage(drawing.image(), blue));
}

void tst_Picture::undoGoesBackOverASize()
{
    KORVA_Picture drawing = drawingOf(mosaic(size));
    drawing.takeSnapshot();
    drawing.scale({7, 7});
    drawing.undo();
    QVERIFY(sameImage(drawing.image(), mosaic(size)));
    drawing.redo();
    QCOMPARE(drawing.size(), QSize(7, 7));
}

void tst_Picture::untilASnapshotIsTakenUndoGoesBackToTheStart()
{
    KORVA_Picture drawing = drawingOf(withHole());
    drawing.fill(Qt::blue);
    drawing.undo();
    QVERIFY(sameImage(drawing.image(), holeOnPaper()));
}

void tst_Picture::aSnapshotMayBeOfAnotherPicture()
{
    KORVA_Picture drawing = drawingOf(mosaic(size));
    drawing.takeSnapshot(drawing.with(QPixmap::fromImage(support::sheet({4, 4}, Qt::red)), {3, 3}));
    QVERIFY(sameImage(drawing.image(), mosaic(size)));
    drawing.undo();
    QVERIFY(sameImage(drawing.image(), support::filled(mosaic(size), QRect(3, 3, 4, 4), Qt::red)));
    drawing.takeSnapshot(QPixmap::fromImage(withHole()));
    drawing.undo();
    QVERIFY(isPaper(*drawing.pixmap()));
    QVERIFY(sameImage(*drawing.pixmap(), holeOnPaper()));
}

void tst_Picture::noChangeTakesASnapshot()
{
    const QImage start = support::sheet(size, Qt::yellow);
    const std::function<void(KORVA_Picture&)> changes[] = {
        [](KORVA_Picture& drawing) { drawing.fill(Qt::blue); },
        [](KORVA_Picture& drawing) { drawing.take(QPixmap::fromImage(mosaic(size))); },
        [](KORVA_Picture& drawing) {
            drawing.scale({7, 7});
        },
        [](KORVA_Picture& drawing) {
            drawing.erase({1, 1, 5, 5});
        },
        [](KORVA_Picture& drawing) {
            drawing.lay(QPixmap::fromImage(mosaic({4, 4})), {1, 1});
        },
        [](KORVA_Picture& drawing) { QPainter(drawing.pixmap()).fillRect(1, 1, 5, 5, Qt::green); },
    };
    for (const auto& change : changes) {
        KORVA_Picture drawing = drawingOf(start);
        change(drawing);
        QVERIFY(drawing.image() != start);
        drawing.undo();
        QVERIFY(sameImage(drawing.image(), start));
    }
}

void tst_Picture::copiesPartWays()
{
    KORVA_Picture drawing = drawingOf(mosaic(size));
    KORVA_Picture copy = drawing;
    QPainter(copy.pixmap()).fillRect(0, 0, 5, 5, Qt::green);
    copy.markModified();
    QVERIFY(sameImage(drawing.image(), mosaic(size)));
    QVERIFY(!drawing.isModified());
    QVERIFY(sameImage(copy.image(), support::filled(mosaic(size), QRect(0, 0, 5, 5), Qt::green)));
}

// --- The whole way

void tst_Picture::aFileIsConvertedWithoutAScreen()
{
    QTemporaryDir folder;
    const QString from = folder.filePath("from.png");
    const QString to = folder.filePath("to.bmp");
    QVERIFY(withHole().save(from));

    QPixmap pixels;
    QVERIFY(KORVA_WorkingLimits().convert(KORVA_PictureFile(from).take(), &pixels));
    KORVA_Picture drawing(pixels);
    drawing.scale(size * 2);
    QVERIFY(picturesave::write(drawing.image(), to, nullptr));

    // 16 bits and back: as a picture is that the editor opens.
    const QImage expected = support::scaled(holeOnPaper().convertToFormat(QImage::Format_RGB16), 200);
    QVERIFY(sameImage(QImage(to), expected));
}

int main(int argc, char** argv)
{
    const QGuiApplication app(argc, argv);
    tst_Picture test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Picture.moc"
