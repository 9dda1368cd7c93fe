#include "Fixtures.h"
#include "KORVA_Zoom.h"

using fixtures::PictureCanvas;
using support::mosaic;
using support::sameImage;

class tst_Zoom : public support::TestCase
{
    Q_OBJECT

private slots:
    void sizesAreTruncated_data();
    void sizesAreTruncated();
    void zoomedPictureIsThePictureScaled_data();
    void zoomedPictureIsThePictureScaled();
    void sameZoomIsSilent();
    void anotherZoomResizesOnce();
    void equalSizeAtAnotherZoomIsSilent();
    void setZoomCommitsAFloatingPieceAtTheOldZoom();
    void pasteItemIsToldTheZoom();
    void ratesBelowOneAreIgnored();
    void updateZoomedShowsWhatWasPainted();
    void thePictureCoversTheZoomedOne();
    void emptyClipboardPictureStaysEmpty();
    void coordinatesTruncateTowardZero();
    void penWidthTruncates();
    void mergePlacesThePieceByTruncation_data();
    void mergePlacesThePieceByTruncation();
};

void tst_Zoom::sizesAreTruncated_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QSize>("zoomed");
    QTest::newRow("real size") << QSize(175, 99) << 100 << QSize(175, 99);
    QTest::newRow("half") << QSize(175, 99) << 50 << QSize(87, 49);
    QTest::newRow("one and a half") << QSize(175, 99) << 150 << QSize(262, 148);
    QTest::newRow("double") << QSize(175, 99) << 200 << QSize(350, 198);
    QTest::newRow("a third") << QSize(100, 10) << 33 << QSize(33, 3);
    // 100 x 0.29 is 29 in single and 28.999999999999996 in double precision.
    QTest::newRow("reckoned in single precision") << QSize(100, 100) << 29 << QSize(29, 29);
    QTest::newRow("to nothing") << QSize(1, 1) << 50 << QSize(0, 0);
}

void tst_Zoom::sizesAreTruncated()
{
    QFETCH(const QSize, picture);
    QFETCH(const int, zoom);
    QFETCH(const QSize, zoomed);
    KORVA_Canvas canvas(nullptr, picture.width(), picture.height());
    canvas.setZoom(zoom);
    QCOMPARE(canvas.zoomedPixmap()->size(), zoomed);
    QCOMPARE(canvas.size(), zoomed);
    QCOMPARE(canvas.pixmap()->size(), picture);
    QCOMPARE(canvas.zoom(), zoom);
}

void tst_Zoom::zoomedPictureIsThePictureScaled_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : {1, 37, 50, 75, 99, 100, 101, 150, 200, 333, 1000})
        QTest::addRow("%d %%", zoom) << zoom;
}

void tst_Zoom::zoomedPictureIsThePictureScaled()
{
    QFETCH(const int, zoom);
    PictureCanvas canvas(mosaic(QSize(31, 23)));
    canvas.setZoom(zoom);
    QVERIFY(sameImage(canvas.shown(), support::scaled(mosaic(QSize(31, 23)), zoom)));
    QVERIFY(!canvas.isModified());
}

void tst_Zoom::sameZoomIsSilent()
{
    KORVA_Canvas canvas(nullptr, 20, 10);
    support::SignalRecorder recorder;
    recorder.watch(&canvas, &KORVA_Canvas::sizeChanged);
    canvas.setZoom(100);
    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(canvas.zoomedPixmap()->size(), QSize(20, 10));
}

void tst_Zoom::anotherZoomResizesOnce()
{
    KORVA_Canvas canvas(nullptr, 20, 10);
    support::SignalRecorder recorder;
    recorder.watch(&canvas, &KORVA_Canvas::sizeChanged);
    recorder.watch(&canvas, &KORVA_Canvas::pixmapChanged);
    recorder.watch(&canvas, &KORVA_Canvas::modified);
    canvas.setZoom(200);
    QCOMPARE(recorder.taken(), QStringList("sizeChanged()"));
}

void tst_Zoom::equalSizeAtAnotherZoomIsSilent()
{
    KORVA_Canvas canvas(nullptr, 3, 3);
    canvas.setZoom(110);
    support::SignalRecorder recorder;
    recorder.watch(&canvas, &KORVA_Canvas::sizeChanged);
    canvas.setZoom(120); // 3.3 and 3.6 are both 3
    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(canvas.zoom(), 120);
}

void tst_Zoom::setZoomCommitsAFloatingPieceAtTheOldZoom()
{
    PictureCanvas canvas(support::sheet(QSize(40, 40)));
    canvas.setZoom(200);
    fixtures::setClipboard(mosaic(QSize(6, 5)));
    canvas.paste();
    canvas.pasteLabel()->move(21, 30); // place (10, 15) in the picture
    canvas.setZoom(50);
    QVERIFY(!canvas.isFloating());
    const QImage expected =
        support::overlaid(support::sheet(QSize(40, 40)), QPoint(10, 15), mosaic(QSize(6, 5)));
    QVERIFY(sameImage(canvas.shown(), support::scaled(expected, 50)));
    QVERIFY(sameImage(canvas.merged(), expected));
}

void tst_Zoom::pasteItemIsToldTheZoom()
{
    PictureCanvas canvas(support::sheet(QSize(40, 40)));
    canvas.setZoom(300);
    fixtures::setClipboard(mosaic(QSize(6, 5)));
    canvas.paste();
    QCOMPARE(canvas.pasteLabel()->size(), QSize(18, 15));
}

void tst_Zoom::ratesBelowOneAreIgnored()
{
    PictureCanvas canvas(mosaic(QSize(10, 10)));
    canvas.setZoom(150);
    canvas.setZoom(0);
    canvas.setZoom(-100);
    QCOMPARE(canvas.zoom(), 150);
    QVERIFY(sameImage(canvas.shown(), support::scaled(mosaic(QSize(10, 10)), 150)));
}

void tst_Zoom::updateZoomedShowsWhatWasPainted()
{
    PictureCanvas canvas(mosaic(QSize(20, 20)));
    canvas.setZoom(150);
    canvas.pixmap()->fill(Qt::blue);
    canvas.zoomedPixmap()->fill(Qt::red);
    canvas.updateZoomed();
    QVERIFY(sameImage(canvas.shown(), support::sheet(QSize(30, 30), Qt::blue)));
    QVERIFY(sameImage(canvas.grab(), support::sheet(QSize(30, 30), Qt::blue)));
    QVERIFY(!canvas.isModified());
}

void tst_Zoom::thePictureCoversTheZoomedOne()
{
    for (int side = 1; side <= 40; ++side) {
        PictureCanvas canvas(support::sheet(QSize(side, 2 * side + 1), Qt::blue));
        for (int zoom = 3; zoom <= 400; zoom += 7) {
            canvas.setZoom(zoom);
            canvas.zoomedPixmap()->fill(Qt::red);
            canvas.updateZoomed();
            const QImage expected = support::sheet(canvas.zoomedPixmap()->size(), Qt::blue);
            QVERIFY2(sameImage(canvas.shown(), expected),
                     qPrintable(QStringLiteral("%1 pixels wide at %2 %").arg(side).arg(zoom)));
        }
    }
}

void tst_Zoom::emptyClipboardPictureStaysEmpty()
{
    PictureCanvas canvas(mosaic(QSize(20, 20)));
    canvas.setZoom(200);
    canvas.updateZoomedClipboard();
    canvas.updateZoomedClipboard();
    QVERIFY(!canvas.isFloating());
    QVERIFY(!canvas.isModified());
    QVERIFY(sameImage(canvas.merged(), mosaic(QSize(20, 20))));
    QVERIFY(sameImage(canvas.shown(), support::scaled(mosaic(QSize(20, 20)), 200)));
}

void tst_Zoom::coordinatesTruncateTowardZero()
{
    constexpr KORVA_Zoom threeQuarters(150);
    QCOMPARE(threeQuarters.toPicture(10), 6);
    QCOMPARE(threeQuarters.toPicture(-10), -6);
    QCOMPARE(threeQuarters.toPicture(QPoint(2, -2)), QPoint(1, -1));
    // Place and size each on its own: the far corner is not the corner's place.
    QCOMPARE(threeQuarters.toPicture(QRect(10, 10, 10, 10)), QRect(6, 6, 6, 6));
    QCOMPARE(KORVA_Zoom(37).toPicture(36), 97);
    QCOMPARE(KORVA_Zoom(333).toPicture(332), 99);
}

void tst_Zoom::penWidthTruncates()
{
    QCOMPARE(KORVA_Zoom(200).penWidth(3), 6);
    QCOMPARE(KORVA_Zoom(50).penWidth(1), 0);
    QCOMPARE(KORVA_Zoom(50).penWidth(3), 1);
    QCOMPARE(KORVA_Zoom(150).penWidth(5), 7);
}

void tst_Zoom::mergePlacesThePieceByTruncation_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QPoint>("widgetPlace");
    QTest::addColumn<QPoint>("picturePlace");
    QTest::newRow("real size") << 100 << QPoint(7, 9) << QPoint(7, 9);
    QTest::newRow("one and a half") << 150 << QPoint(10, 11) << QPoint(6, 7);
    QTest::newRow("half") << 50 << QPoint(3, 4) << QPoint(6, 8);
    QTest::newRow("out to the left") << 150 << QPoint(-4, 5) << QPoint(-2, 3);
    QTest::newRow("out at the top") << 200 << QPoint(9, -3) << QPoint(4, -1);
}

void tst_Zoom::mergePlacesThePieceByTruncation()
{
    QFETCH(const int, zoom);
    QFETCH(const QPoint, widgetPlace);
    QFETCH(const QPoint, picturePlace);
    PictureCanvas canvas(support::sheet(QSize(30, 30)));
    canvas.setZoom(zoom);
    fixtures::setClipboard(mosaic(QSize(8, 7)));
    canvas.paste();
    canvas.pasteLabel()->move(widgetPlace);
    QVERIFY(sameImage(canvas.merged(),
                      support::overlaid(support::sheet(QSize(30, 30)), picturePlace, mosaic(QSize(8, 7)))));
}

int main(int argc, char** argv)
{
    return support::run<tst_Zoom>(argc, argv);
}

#include "tst_Zoom.moc"
