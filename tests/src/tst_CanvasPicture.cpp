#include "Fixtures.h"

using fixtures::PictureCanvas;
using fixtures::RecordingTool;
using support::mosaic;
using support::sameImage;
using support::SignalRecorder;

class tst_CanvasPicture : public support::TestCase
{
    Q_OBJECT

private slots:
    void modifiedFlag();
    void pixmapMergesAndZoomedPixmapDoesNot();
    void setPixmapCopiesFitsAndDoesNotModify();
    void setPixmapDropsThePiece();
    void setPixmapOfTheSameSizeDoesNotResize();
    void setPixmapLaysTransparencyOnWhite();
    void setPixmapOfNullIsIgnored();
    void ownDepthChangesNothing();
    void anotherDepthKeepsThePixels_data();
    void anotherDepthKeepsThePixels();
    void clearCanvasFillsBothPictures();
    void clearCanvasDropsThePiece();
    void resizeImageScales();
    void resizeImageToTheSameSizeOnlyRepaints();
    void loadTakesAFileInWhileIdle();
    void loadRefusesWhileAToolIsActive();
    void loadOfAnUnreadableFileGivesAnEmptyPicture();
    void loadGoesByContent();
    void saveWritesAPendingPaste();
    void saveKeepsTheModifiedFlag();
    void savedPngIsCompressed();
    void saveWhereNothingCanBeWrittenFails();
};

void tst_CanvasPicture::modifiedFlag()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    canvas.clearModified();
    QVERIFY(!canvas.isModified());
    QCOMPARE(recorder.taken(), QStringList());
    canvas.markModified();
    QVERIFY(canvas.isModified());
}

void tst_CanvasPicture::pixmapMergesAndZoomedPixmapDoesNot()
{
    PictureCanvas canvas(mosaic(QSize(40, 30)));
    canvas.setSelection(QRect(10, 10, 5, 5));
    canvas.zoomedPixmap();
    QVERIFY(canvas.isFloating());
    QVERIFY(sameImage(*canvas.pixmap(), mosaic(QSize(40, 30))));
    QVERIFY(!canvas.isFloating());
}

void tst_CanvasPicture::setPixmapCopiesFitsAndDoesNotModify()
{
    PictureCanvas canvas(support::sheet(QSize(10, 10)));
    canvas.setZoom(150);
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    QPixmap picture = QPixmap::fromImage(mosaic(QSize(13, 17)));
    canvas.setPixmap(&picture);
    QCOMPARE(recorder.taken(), QStringList({"pixmapChanged(13x17)", "sizeChanged()"}));
    QVERIFY(!canvas.isModified());
    QCOMPARE(canvas.size(), QSize(19, 25));
    QVERIFY(sameImage(canvas.shown(), support::scaled(mosaic(QSize(13, 17)), 150)));

    picture.fill(Qt::red); // the caller's own
    QVERIFY(sameImage(canvas.merged(), mosaic(QSize(13, 17))));
    QVERIFY(sameImage(canvas.snapshot(), support::sheet(QSize(10, 10)))); // none was taken
}

void tst_CanvasPicture::setPixmapDropsThePiece()
{
    PictureCanvas canvas(mosaic(QSize(40, 30)));
    canvas.setSelection(QRect(10, 10, 5, 5));
    QPixmap picture = QPixmap::fromImage(support::sheet(QSize(40, 30), Qt::blue));
    canvas.setPixmap(&picture);
    QVERIFY(!canvas.isFloating());
    QVERIFY(sameImage(canvas.merged(), support::sheet(QSize(40, 30), Qt::blue)));
}

void tst_CanvasPicture::setPixmapOfTheSameSizeDoesNotResize()
{
    PictureCanvas canvas(support::sheet(QSize(10, 10)));
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    QPixmap picture = QPixmap::fromImage(mosaic(QSize(10, 10)));
    canvas.setPixmap(&picture);
    QCOMPARE(recorder.taken(), QStringList({"pixmapChanged(10x10)"}));
}

void tst_CanvasPicture::setPixmapLaysTransparencyOnWhite()
{
    QImage seeThrough(6, 4, QImage::Format_ARGB32);
    seeThrough.fill(qRgba(255, 0, 0, 0));
    seeThrough.setPixel(2, 1, qRgba(0, 0, 255, 255));
    KORVA_Canvas canvas(nullptr, 6, 4);
    QPixmap picture = QPixmap::fromImage(seeThrough);
    canvas.setPixmap(&picture);
    QVERIFY(!canvas.pixmap()->hasAlphaChannel());
    QVERIFY(sameImage(*canvas.pixmap(),
                      support::filled(support::sheet(QSize(6, 4)), QRect(2, 1, 1, 1), Qt::blue)));
}

void tst_CanvasPicture::setPixmapOfNullIsIgnored()
{
    PictureCanvas canvas(mosaic(QSize(10, 10)));
    canvas.setPixmap(nullptr);
    QVERIFY(sameImage(canvas.merged(), mosaic(QSize(10, 10))));
}

void tst_CanvasPicture::ownDepthChangesNothing()
{
    PictureCanvas canvas(support::sheet(QSize(10, 10), Qt::blue));
    canvas.clearCanvas(Qt::red);
    canvas.clearModified();
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    canvas.setDepth(canvas.getDepth());
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(!canvas.isModified());
    QVERIFY(sameImage(canvas.snapshot(), support::sheet(QSize(10, 10), Qt::blue)));
}

void tst_CanvasPicture::anotherDepthKeepsThePixels_data()
{
    QTest::addColumn<int>("depth");
    for (const int depth : {1, 4, 8, 15, 16, 24})
        QTest::addRow("%d bits", depth) << depth;
}

void tst_CanvasPicture::anotherDepthKeepsThePixels()
{
    QFETCH(const int, depth);
    PictureCanvas canvas(support::sheet(QSize(10, 10), Qt::blue));
    QPixmap picture = QPixmap::fromImage(mosaic(QSize(10, 10)));
    canvas.setPixmap(&picture);
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    canvas.setDepth(depth);
    QCOMPARE(recorder.taken(),
             QStringList({"pixmapChanged(10x10)", "canUndo(true)", "canRedo(false)", "modified()"}));
    QVERIFY(canvas.isModified());
    QVERIFY(sameImage(canvas.merged(), mosaic(QSize(10, 10))));
    QVERIFY(sameImage(canvas.snapshot(), mosaic(QSize(10, 10)))); // taken before it
}

void tst_CanvasPicture::clearCanvasFillsBothPictures()
{
    PictureCanvas canvas(mosaic(QSize(20, 10)));
    canvas.setZoom(50);
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    canvas.clearCanvas(Qt::darkGreen);
    QCOMPARE(recorder.taken(), QStringList({"canUndo(true)", "canRedo(false)", "modified()"}));
    QVERIFY(sameImage(canvas.shown(), support::sheet(QSize(10, 5), Qt::darkGreen)));
    QVERIFY(sameImage(canvas.merged(), support::sheet(QSize(20, 10), Qt::darkGreen)));
    canvas.undo();
    QVERIFY(sameImage(canvas.merged(), mosaic(QSize(20, 10))));
}

void tst_CanvasPicture::clearCanvasDropsThePiece()
{
    PictureCanvas canvas(mosaic(QSize(40, 30)));
    canvas.setSelection(QRect(10, 10, 5, 5));
    canvas.clearCanvas(Qt::white);
    QVERIFY(!canvas.isFloating());
    QVERIFY(sameImage(canvas.merged(), support::sheet(QSize(40, 30))));
}

void tst_CanvasPicture::resizeImageScales()
{
    PictureCanvas canvas(mosaic(QSize(20, 10)));
    canvas.setZoom(150);
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    canvas.resizeImage(50, 7);
    QCOMPARE(recorder.taken(), QStringList({"sizeChanged()", "pixmapChanged(50x7)", "canUndo(true)",
                                            "canRedo(false)", "modified()"}));
    const QImage expected = support::sheet(QSize(50, 7), Qt::white, [](QPainter& painter) {
        painter.scale(2.5, static_cast<double>(7.0F / 10.0F));
        painter.drawImage(0, 0, mosaic(QSize(20, 10)));
    });
    QVERIFY(sameImage(canvas.shown(), support::scaled(expected, 150)));
    QVERIFY(sameImage(canvas.merged(), expected));
    QCOMPARE(canvas.size(), QSize(75, 10));
    canvas.undo();
    QVERIFY(sameImage(canvas.merged(), mosaic(QSize(20, 10))));
}

void tst_CanvasPicture::resizeImageToTheSameSizeOnlyRepaints()
{
    PictureCanvas canvas(mosaic(QSize(20, 10)));
    canvas.setSelection(QRect(2, 2, 5, 5));
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    canvas.resizeImage(20, 10);
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(!canvas.isModified());
    QVERIFY(canvas.isFloating());
}

// --- Files

void tst_CanvasPicture::loadTakesAFileInWhileIdle()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("picture.png");
    QImage seeThrough = mosaic(QSize(6, 4)).convertToFormat(QImage::Format_ARGB32);
    seeThrough.setPixel(2, 1, qRgba(255, 0, 0, 0));
    QVERIFY(seeThrough.save(file));

    PictureCanvas canvas(support::sheet(QSize(10, 10)));
    SignalRecorder recorder;
    fixtures::watchPicture(recorder, canvas);
    QVERIFY(canvas.load(file, nullptr));
    QCOMPARE(recorder.taken(), QStringList({"pixmapChanged(6x4)", "sizeChanged()"}));
    QVERIFY(!canvas.isModified());
    QVERIFY(sameImage(canvas.merged(), support::filled(mosaic(QSize(6, 4)), QRect(2, 1, 1, 1), Qt::white)));
}

void tst_CanvasPicture::loadRefusesWhileAToolIsActive()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("picture.png");
    QVERIFY(mosaic(QSize(6, 4)).save(file));
    PictureCanvas canvas(support::sheet(QSize(10, 10), Qt::blue));
    RecordingTool tool;
    fixtures::use(canvas, tool);
    QVERIFY(!canvas.load(file, nullptr));
    QVERIFY(!canvas.load("/nowhere/at/all.png", nullptr));
    QVERIFY(sameImage(canvas.merged(), support::sheet(QSize(10, 10), Qt::blue)));
}

void tst_CanvasPicture::loadOfAnUnreadableFileGivesAnEmptyPicture()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    QVERIFY(canvas.load("/nowhere/at/all.png", nullptr));
    QVERIFY(canvas.pixmap()->isNull());
    QCOMPARE(canvas.size(), QSize(0, 0));
    // Whatever is done with it then does no harm.
    canvas.setZoom(200);
    canvas.clearCanvas(Qt::red);
    canvas.setSelection(QRect(0, 0, 5, 5));
    canvas.undo();
    canvas.resizeImage(8, 8);
    QVERIFY(sameImage(*canvas.pixmap(), support::sheet(QSize(8, 8))));
}

void tst_CanvasPicture::loadGoesByContent()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("picture.jpg");
    QVERIFY(mosaic(QSize(6, 4)).save(file, "PNG"));
    KORVA_Canvas canvas(nullptr, 10, 10);
    QVERIFY(canvas.load(file, nullptr));
    QVERIFY(sameImage(*canvas.pixmap(), mosaic(QSize(6, 4))));
    QVERIFY(canvas.load(file, "BMP")); // the one format asked for, and it is not that
    QVERIFY(canvas.pixmap()->isNull());
}

void tst_CanvasPicture::saveWritesAPendingPaste()
{
    QTemporaryDir folder;
    PictureCanvas canvas(support::sheet(QSize(20, 20)));
    fixtures::setClipboard(mosaic(QSize(8, 8)));
    canvas.paste();
    canvas.pasteLabel()->move(5, 6);
    QVERIFY(canvas.save(folder.filePath("picture.png"), "PNG"));
    QVERIFY(!canvas.isFloating());
    QVERIFY(sameImage(QImage(folder.filePath("picture.png")),
                      support::overlaid(support::sheet(QSize(20, 20)), QPoint(5, 6), mosaic(QSize(8, 8)))));
}

void tst_CanvasPicture::saveKeepsTheModifiedFlag()
{
    QTemporaryDir folder;
    KORVA_Canvas canvas(nullptr, 10, 10);
    QVERIFY(canvas.save(folder.filePath("a.png"), "PNG"));
    QVERIFY(canvas.isModified());
    canvas.clearModified();
    QVERIFY(canvas.save(folder.filePath("b.png"), nullptr));
    QVERIFY(!canvas.isModified());
}

void tst_CanvasPicture::savedPngIsCompressed()
{
    QTemporaryDir folder;
    KORVA_Canvas canvas(nullptr, 300, 300);
    const QString file = folder.filePath("a.png");
    QVERIFY(canvas.save(file, "PNG"));
    QVERIFY(QFileInfo(file).size() < 5000);

    const QString asQualitySays = folder.filePath("b.png"); // what 96 would have meant
    QVERIFY(canvas.pixmap()->save(asQualitySays, "PNG", 96));
    QVERIFY(QFileInfo(asQualitySays).size() > 200000);

    QVERIFY(canvas.save(folder.filePath("a.jpg"), "JPEG"));
    QVERIFY(canvas.pixmap()->save(folder.filePath("b.jpg"), "JPEG", 96));
    QCOMPARE(QFileInfo(folder.filePath("a.jpg")).size(), QFileInfo(folder.filePath("b.jpg")).size());
}

void tst_CanvasPicture::saveWhereNothingCanBeWrittenFails()
{
    QTemporaryDir folder;
    KORVA_Canvas canvas(nullptr, 10, 10);
    QVERIFY(!canvas.save(folder.filePath("no/such/folder/a.png"), "PNG"));
}

int main(int argc, char** argv)
{
    return support::run<tst_CanvasPicture>(argc, argv);
}

#include "tst_CanvasPicture.moc"
