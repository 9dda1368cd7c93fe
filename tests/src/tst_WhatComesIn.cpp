#include "Fixtures.h"
#include "KORVA_Manager.h"

using namespace fixtures;
using namespace support;

namespace {

using Paint = void (*)(QPixmap& picture);

constexpr QSize size(60, 50);
constexpr QSize pieceSize(16, 12);

/// As a host's grab() is on a screen of this ratio.
QPixmap grabbed(double ratio)
{
    QPixmap piece = QPixmap::fromImage(mosaic(pieceSize));
    piece.setDevicePixelRatio(ratio);
    return piece;
}

} // namespace

/// Pictures of any make come in pixel for pixel, and the document stays opaque.
class tst_WhatComesIn : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void piecesComePixelForPixel_data();
    void piecesComePixelForPixel();
    void picturesComePixelForPixel();
    void translucentColorIsLaidOnWhite();
    void whatAHostPaintsIsLaidOnWhite_data();
    void whatAHostPaintsIsLaidOnWhite();
    void aPieceOfAForeignFormatIsNone();
    void aCutPieceLeavesAHoleWhereItWasLifted_data();
    void aCutPieceLeavesAHoleWhereItWasLifted();
};

void tst_WhatComesIn::init()
{
    TestCase::init();
    QGuiApplication::clipboard()->clear();
}

void tst_WhatComesIn::piecesComePixelForPixel_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("zoom");
    for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
        for (const int zoom : {100, 200})
            QTest::addRow("%g at %d percent", ratio, zoom) << ratio << zoom;
    }
}

void tst_WhatComesIn::piecesComePixelForPixel()
{
    QFETCH(const double, ratio);
    QFETCH(const int, zoom);
    const QImage expected = overlaid(sheet(size), {0, 0}, mosaic(pieceSize));
    PictureCanvas canvas(sheet(size));
    canvas.setZoom(zoom);
    QPixmap stamp = grabbed(ratio);
    canvas.insertStamp(stamp);
    QCOMPARE(canvas.pasteLabel()->size(), pieceSize * zoom / 100);
    QVERIFY(sameImage(canvas.pasteLabel()->getImage(), mosaic(pieceSize)));
    QVERIFY(sameImage(canvas.merged(), expected));

    PictureCanvas pasted(sheet(size));
    QGuiApplication::clipboard()->setPixmap(grabbed(ratio));
    pasted.paste();
    QVERIFY(sameImage(pasted.merged(), expected));
    PictureCanvas placed(sheet(size));
    placed.paste(0, 0);
    QVERIFY(sameImage(placed.merged(), expected));
}

void tst_WhatComesIn::picturesComePixelForPixel()
{
    PictureCanvas canvas(sheet(size));
    QPixmap picture = grabbed(2);
    canvas.setPixmap(&picture);
    QCOMPARE(canvas.pixmap()->devicePixelRatio(), 1.0);
    QVERIFY(sameImage(canvas.merged(), mosaic(pieceSize)));
    QCOMPARE(canvas.size(), pieceSize);
}

void tst_WhatComesIn::translucentColorIsLaidOnWhite()
{
    PictureCanvas canvas(mosaic(size));
    canvas.clearCanvas(QColor(0, 0, 0, 51)); // a fifth
    for (const QImage& picture : {canvas.merged(), canvas.shown()}) {
        QVERIFY(!picture.hasAlphaChannel());
        QVERIFY(sameImage(picture, sheet(size, QColor(204, 204, 204))));
    }
}

void tst_WhatComesIn::whatAHostPaintsIsLaidOnWhite_data()
{
    QTest::addColumn<Paint>("paint");
    const auto row = [](const char* name, Paint paint) { QTest::newRow(name) << paint; };
    row("filled", [](QPixmap& picture) { picture.fill(QColor(0, 0, 0, 51)); });
    row("replaced", [](QPixmap& picture) {
        QImage other(size, QImage::Format_ARGB32);
        other.fill(QColor(0, 0, 0, 51));
        picture = QPixmap::fromImage(other);
    });
}

void tst_WhatComesIn::whatAHostPaintsIsLaidOnWhite()
{
    QFETCH(const Paint, paint);
    const QImage expected = sheet(size, QColor(204, 204, 204));
    const QTemporaryDir folder;
    PictureCanvas canvas(mosaic(size));
    paint(*canvas.pixmap());
    QVERIFY(sameImage(canvas.KORVA_Canvas::snapshot().toImage(), expected));
    QVERIFY(canvas.save(folder.filePath("saved.png"), "PNG"));
    const QImage saved(folder.filePath("saved.png"));
    QVERIFY(!saved.hasAlphaChannel());
    QVERIFY(sameImage(saved, expected));

    paint(*canvas.pixmap());
    canvas.updateZoomed();
    for (const QImage& picture : {canvas.shown(), canvas.merged()}) {
        QVERIFY(!picture.hasAlphaChannel());
        QVERIFY(sameImage(picture, expected));
    }
}

void tst_WhatComesIn::aPieceOfAForeignFormatIsNone()
{
    const QTemporaryDir folder;
    const QByteArray name = folder.filePath("a.png").toUtf8();
    QVERIFY(mosaic(pieceSize).save(QString::fromUtf8(name), "WEBP"));
    QVERIFY(!QImage(QString::fromUtf8(name)).isNull()); // an installed decoder could
    KORVA_PasteLabel piece(nullptr, nullptr, {});
    piece.setImage(name.constData());
    QVERIFY(piece.getImage().isNull());
    QVERIFY(mosaic(pieceSize).save(QString::fromUtf8(name), "PNG"));
    piece.setImage(name.constData());
    QVERIFY(sameImage(piece.getImage(), mosaic(pieceSize)));
}

void tst_WhatComesIn::aCutPieceLeavesAHoleWhereItWasLifted_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<bool>("leavesAHole");
    QTest::newRow("lifted") << QStringList{"lift"} << true;
    QTest::newRow("pasted") << QStringList{"paste"} << false;
    QTest::newRow("stamped") << QStringList{"stamp"} << false;
    QTest::newRow("pasted after another was lifted") << QStringList{"lift", "paste"} << false;
    QTest::newRow("lifted after another was pasted") << QStringList{"paste", "lift"} << true;
}

void tst_WhatComesIn::aCutPieceLeavesAHoleWhereItWasLifted()
{
    QFETCH(const QStringList, before);
    QFETCH(const bool, leavesAHole);
    constexpr QRect area(20, 20, 10, 8);
    PictureCanvas canvas(mosaic(size));
    QGuiApplication::clipboard()->setPixmap(grabbed(1));
    for (const QString& step : before) {
        if (step == "lift")
            canvas.setSelection(area);
        else if (step == "paste")
            canvas.paste();
        else if (QPixmap stamp = grabbed(1); step == "stamp")
            canvas.insertStamp(stamp);
    }
    const bool wasMerged = before.size() > 1 && before.constFirst() == "paste";
    const QImage under = wasMerged ? overlaid(mosaic(size), {0, 0}, mosaic(pieceSize)) : mosaic(size);
    canvas.cut();
    QVERIFY(!canvas.isFloating());
    QVERIFY(sameImage(canvas.merged(), leavesAHole ? filled(under, area, Qt::white) : under));
    QVERIFY(sameImage(canvas.shown(), canvas.merged()));
}

int main(int argc, char** argv)
{
    return support::run<tst_WhatComesIn>(argc, argv);
}

#include "tst_WhatComesIn.moc"
