#include "PasteItem.h"

using fixtures::itemPlace;
using fixtures::itemSize;
using fixtures::PasteItem;
using fixtures::transformed;
using support::mosaic;
using support::sameImage;

class tst_PasteLabelPicture : public support::TestCase
{
    Q_OBJECT

private slots:
    void setZoomRemembersTheHorizontalRate();
    void resizeZoomAddsUp();
    void rotateTurnsClockwise();
    void imageOfAFile();
    void imageOfAMissingFileIsNone();
    void growingFillsWithTheBaseColour();
    void growingFillsWithWhiteOnADarkDesktop();
    void shrinkingKeepsThePicture();
    void menuHasCopyCutPaste();
    void rightClickOpensTheMenu();
    void pasteWaitsUntilEnabled();
    void actionsOnlyEmitSignals();
    void paintsPictureFrameAndHandles();
};

void tst_PasteLabelPicture::setZoomRemembersTheHorizontalRate()
{
    PasteItem item;
    item.label.setZoom(200, 50);
    QCOMPARE(item.label.size(), QSize(200, 40));
    QVERIFY(sameImage(item.label.getImage(), item.picture));
    item.label.setImage(QPixmap::fromImage(mosaic(QSize(10, 20))));
    QCOMPARE(item.label.size(), QSize(20, 40));
    item.label.setZoom(50, 50);
    item.label.setImage(QPixmap::fromImage(mosaic(QSize(175, 99))));
    QCOMPARE(item.label.size(), QSize(88, 50)); // rounded, where the canvas truncates
}

void tst_PasteLabelPicture::resizeZoomAddsUp()
{
    PasteItem item;
    item.label.setResizeZoom(200, 100);
    item.label.setResizeZoom(200, 50);
    QCOMPARE(item.label.size(), QSize(400, 40));
    QVERIFY(sameImage(item.label.getImage(), item.picture));
    item.label.setImage(QPixmap::fromImage(mosaic(QSize(10, 20))));
    QCOMPARE(item.label.size(), QSize(10, 20)); // the zoom has stayed
}

void tst_PasteLabelPicture::rotateTurnsClockwise()
{
    PasteItem item;
    item.label.rotate(90);
    item.drag({40, 50}, {0, 0}); // folds it into the picture
    const QImage turned = item.label.getImage().toImage();
    QCOMPARE(turned.size(), itemSize.transposed());
    QCOMPARE(turned.pixel(turned.width() - 1, 0), item.picture.pixel(0, 0));
    QCOMPARE(turned.pixel(0, turned.height() - 1), item.picture.pixel(99, 79));
}

void tst_PasteLabelPicture::imageOfAFile()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("pi\u00e8ce.png");
    QVERIFY(mosaic(QSize(12, 9)).save(file));
    PasteItem item;
    item.label.setZoom(200, 200);
    item.label.setImage(file.toUtf8().constData());
    QVERIFY(sameImage(item.label.getImage(), mosaic(QSize(12, 9))));
    QCOMPARE(item.label.size(), QSize(24, 18));
}

void tst_PasteLabelPicture::imageOfAMissingFileIsNone()
{
    PasteItem item;
    item.label.setImage("/nowhere/at/all.png");
    QVERIFY(item.label.getImage().isNull());
    QVERIFY(item.label.size().isEmpty());
}

void tst_PasteLabelPicture::growingFillsWithTheBaseColour()
{
    PasteItem item;
    QPalette colors;
    colors.setColor(QPalette::Base, Qt::yellow);
    item.label.setPalette(colors);
    item.parent.show();
    item.label.resize(110, 85);
    item.drag({50, 40}, {0, 0}); // folds it into the picture
    QVERIFY(sameImage(item.label.getImage(),
                      support::overlaid(support::sheet(QSize(110, 85), Qt::yellow), {0, 0}, item.picture)));
}

void tst_PasteLabelPicture::growingFillsWithWhiteOnADarkDesktop()
{
    PasteItem item;
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    item.parent.setPalette(dark);
    item.parent.show();
    item.label.resize(110, 85);
    item.drag({50, 40}, {0, 0});
    QVERIFY(sameImage(item.label.getImage(),
                      support::overlaid(support::sheet(QSize(110, 85), Qt::white), {0, 0}, item.picture)));
}

void tst_PasteLabelPicture::shrinkingKeepsThePicture()
{
    PasteItem item;
    item.parent.show();
    item.label.resize(20, 90);
    item.drag({10, 40}, {0, 0});
    QCOMPARE(item.label.getImage().size(), QSize(100, 90));
    QVERIFY(sameImage(item.label.getImage().copy(0, 0, 100, 80), item.picture));
}

// --- Menu and look

void tst_PasteLabelPicture::menuHasCopyCutPaste()
{
    const PasteItem item;
    QStringList texts;
    for (const QAction* action : item.label.menu()->actions())
        texts << action->text();
    QCOMPARE(texts, QStringList({"Copy", "Cut", "Paste"}));
}

void tst_PasteLabelPicture::rightClickOpensTheMenu()
{
    PasteItem item;
    item.parent.show();
    for (const QPoint place : {QPoint(50, 40), QPoint(98, 1), QPoint(0, 79)}) {
        item.pointer.click(place, Qt::RightButton);
        QVERIFY(item.label.menu()->isVisible());
        QVERIFY(item.label.menu()->geometry().contains(item.label.mapToGlobal(place)));
        item.label.menu()->close();
    }
    item.pointer.move({80, 70}); // no drag has begun
    QCOMPARE(item.label.pos(), itemPlace);
}

void tst_PasteLabelPicture::pasteWaitsUntilEnabled()
{
    PasteItem item;
    QCOMPARE(fixtures::enabledActions(item.label.menu()), "110");
    item.label.setPasteItem(true);
    QCOMPARE(fixtures::enabledActions(item.label.menu()), "111");
    item.label.setPasteItem(false);
    QCOMPARE(fixtures::enabledActions(item.label.menu()), "110");
}

void tst_PasteLabelPicture::actionsOnlyEmitSignals()
{
    PasteItem item;
    support::SignalRecorder recorder;
    recorder.watch(&item.label, &KORVA_PasteLabel::signalCut);
    recorder.watch(&item.label, &KORVA_PasteLabel::signalCopy);
    recorder.watch(&item.label, &KORVA_PasteLabel::signalPaste);
    item.label.setPasteItem(true);
    for (QAction* action : item.label.menu()->actions())
        action->trigger();
    QCOMPARE(recorder.taken(), QStringList({"signalCopy()", "signalCut()", "signalPaste()"}));
    item.label.slotCut();
    item.label.slotCopy();
    item.label.slotPaste();
    QCOMPARE(recorder.taken(), QStringList({"signalCut()", "signalCopy()", "signalPaste()"}));
    QVERIFY(sameImage(item.label.getImage(), item.picture));
}

void tst_PasteLabelPicture::paintsPictureFrameAndHandles()
{
    PasteItem item;
    QImage shown = item.label.grab().toImage();

    // The frame is dotted: some of its pixels are inverted, the others are the picture's.
    int inverted = 0;
    int plain = 0;
    const auto inspect = [&](int x, int y) {
        const QRgb was = item.picture.pixel(x, y);
        inverted += shown.pixel(x, y) == (~was | 0xff000000);
        plain += shown.pixel(x, y) == was;
        shown.setPixel(x, y, was); // taken off for what follows
    };
    const QImage withHandles = shown;
    for (int x = 0; x < 100; ++x) {
        inspect(x, 0);
        inspect(x, 79);
    }
    for (int y = 1; y < 79; ++y) {
        inspect(0, y);
        inspect(99, y);
    }
    QVERIFY2(inverted > 70 && plain > 70, qPrintable(QString("%1 and %2").arg(inverted).arg(plain)));
    QCOMPARE(inverted + plain, 356 - 4 * 11 - 4 * 6); // the rest of the border is under the handles

    QImage expected = item.picture;
    for (const QPoint handle : {QPoint(0, 0), QPoint(94, 0), QPoint(0, 74), QPoint(94, 74), QPoint(47, 0),
                                QPoint(47, 74), QPoint(0, 37), QPoint(94, 37)}) {
        const QRect square(handle, QSize(6, 6));
        QVERIFY(sameImage(withHandles.copy(square), support::sheet(square.size(), Qt::black)));
        expected = support::filled(expected, square.intersected(QRect(1, 1, 98, 78)), Qt::black);
    }
    QVERIFY(sameImage(shown, expected));
}

int main(int argc, char** argv)
{
    return support::run<tst_PasteLabelPicture>(argc, argv);
}

#include "tst_PasteLabelPicture.moc"
