#include "KORVA_ClassicPainter.h"
#include "KORVA_Enlarge.h"
#include "support/Images.h"
#include "support/TestCase.h"

#include <QPixmap>

using support::sameImage;

namespace {

QPixmap pixmap(QSize size)
{
    return QPixmap::fromImage(support::mosaic(size));
}

QPixmap blank(QSize size)
{
    QPixmap blank(size);
    blank.fill(Qt::darkCyan);
    return blank;
}

} // namespace

class tst_Enlarge : public support::TestCase
{
    Q_OBJECT

private slots:
    void isWhatAPainterPaints_data();
    void isWhatAPainterPaints();
    void memoryIsKept();
    void whoSharesItKeepsTheOld();
    void refusesWhatDoesNotFit_data();
    void refusesWhatDoesNotFit();
};

void tst_Enlarge::isWhatAPainterPaints_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("factor");
    for (const QSize size : {QSize(1, 1), QSize(7, 1), QSize(1, 5), QSize(31, 17), QSize(352, 288)}) {
        for (const int factor : {1, 2, 3, 4, 8})
            QTest::addRow("%d x %d, %d times", size.width(), size.height(), factor) << size << factor;
    }
}

void tst_Enlarge::isWhatAPainterPaints()
{
    QFETCH(QSize, size);
    QFETCH(int, factor);
    const QPixmap picture = pixmap(size);
    QPixmap enlarged = blank(size * factor);
    QVERIFY(classic::enlarge(picture, factor, enlarged));

    QPixmap painted = blank(size * factor);
    KORVA_ClassicPainter painter(&painted);
    painter.setWorldMatrix(QTransform::fromScale(factor, factor));
    painter.drawPixmap(0, 0, picture);
    QVERIFY(sameImage(enlarged, painted.toImage()));

    const QImage from = picture.toImage();
    const QImage to = enlarged.toImage();
    for (const QPoint at : {QPoint(0, 0), QPoint(to.width() - 1, to.height() - 1), to.rect().center()})
        QCOMPARE(to.pixel(at), from.pixel(at.x() / factor, at.y() / factor));
}

void tst_Enlarge::memoryIsKept()
{
    QPixmap enlarged = blank({40, 30});
    const uchar* const before = enlarged.toImage().constBits();
    QVERIFY(classic::enlarge(pixmap({20, 15}), 2, enlarged));
    QCOMPARE(enlarged.toImage().constBits(), before);
}

void tst_Enlarge::whoSharesItKeepsTheOld()
{
    QPixmap enlarged = blank({40, 30});
    const QPixmap held = enlarged;
    QVERIFY(classic::enlarge(pixmap({20, 15}), 2, enlarged));
    QVERIFY(sameImage(held, blank({40, 30}).toImage()));
    QVERIFY(held.toImage() != enlarged.toImage());
}

void tst_Enlarge::refusesWhatDoesNotFit_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("factor");
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("wider") << QSize(41, 30) << 2 << QImage::Format_RGB32;
    QTest::newRow("lower") << QSize(40, 29) << 2 << QImage::Format_RGB32;
    QTest::newRow("another factor") << QSize(40, 30) << 3 << QImage::Format_RGB32;
    QTest::newRow("nothing, enlarged to nothing") << QSize(0, 0) << 0 << QImage::Format_RGB32;
    QTest::newRow("another format") << QSize(40, 30) << 2 << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("16 bits") << QSize(40, 30) << 2 << QImage::Format_RGB16;
}

void tst_Enlarge::refusesWhatDoesNotFit()
{
    QFETCH(QSize, size);
    QFETCH(int, factor);
    QFETCH(QImage::Format, format);
    QImage enlarged(size, format);
    enlarged.fill(Qt::darkCyan);
    const QImage before = enlarged;
    QVERIFY(!classic::enlarge(support::mosaic({20, 15}).convertToFormat(QImage::Format_RGB32), factor,
                              enlarged));
    QVERIFY(enlarged == before);
    if (format == QImage::Format_RGB16)
        QVERIFY(!classic::enlarge(support::mosaic({20, 15}).convertToFormat(format), factor, enlarged));
}

int main(int argc, char** argv)
{
    return support::run<tst_Enlarge>(argc, argv);
}

#include "tst_Enlarge.moc"
