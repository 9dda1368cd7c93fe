#include "KORVA_ClassicPainter.h"
#include "support/Images.h"
#include "support/TestCase.h"

using support::inkBounds;
using support::inkCount;
using support::mosaic;
using support::sameImage;
using support::sheet;

namespace {

constexpr int penWidths[] = {0, 1, 2, 3, 5, 10};
constexpr QSize size(70, 60);
constexpr QPoint anchor(30, 28);

// Where the line of a pen lies about the pixel it goes through.
int before(int width)
{
    return width / 2;
}
int after(int width)
{
    return qMax(0, width - 1) / 2;
}

QRect grown(const QRect& box, int width)
{
    return box.adjusted(-before(width), -before(width), after(width), after(width));
}

QRect inside(const QRect& box, int width)
{
    return box.adjusted(after(width) + 1, after(width) + 1, -before(width) - 1, -before(width) - 1);
}

// The pixels from the anchor on, to the other side where the length is negative.
QRect boxFromAnchor(int w, int h)
{
    const QPoint far(anchor.x() + (w > 0 ? w - 1 : w + 1), anchor.y() + (h > 0 ? h - 1 : h + 1));
    return {QPoint(qMin(anchor.x(), far.x()), qMin(anchor.y(), far.y())),
            QPoint(qMax(anchor.x(), far.x()), qMax(anchor.y(), far.y()))};
}

/// A shape that can be painted and inverted.
struct Shape
{
    QByteArray name;
    std::function<void(KORVA_ClassicPainter&)> draw;
};

std::vector<Shape> randomShapes(int count)
{
    QRandomGenerator random(4711);
    const auto number = [&random](int least, int most) { return random.bounded(least, most + 1); };
    std::vector<Shape> shapes;
    for (int i = 0; i < count; ++i) {
        const int x = number(0, 60);
        const int y = number(0, 50);
        const int w = number(-40, 40);
        const int h = number(-40, 40);
        const auto name = [&](const char* kind) {
            return QString("%1 %2 %3 %4 %5").arg(kind).arg(x).arg(y).arg(w).arg(h).toUtf8();
        };
        shapes.push_back(
            {name("line"), [=](KORVA_ClassicPainter& painter) { painter.drawLine(x, y, x + w, y + h); }});
        shapes.push_back(
            {name("rectangle"), [=](KORVA_ClassicPainter& painter) { painter.drawRect(x, y, w, h); }});
        shapes.push_back({name("ellipse"), [=](KORVA_ClassicPainter& painter) {
                              painter.drawEllipse(x, y, qAbs(w) + 1, qAbs(h) + 1);
                          }});
        shapes.push_back({name("point"), [=](KORVA_ClassicPainter& painter) { painter.drawPoint(x, y); }});
    }
    return shapes;
}

void addPenRows()
{
    QTest::addColumn<int>("width");
    for (const int width : penWidths)
        QTest::addRow("pen %d", width) << width;
}

} // namespace

class tst_ClassicPainter : public support::TestCase
{
    Q_OBJECT

private slots:
    void rectangleCoversItsSize_data();
    void rectangleCoversItsSize();
    void todaysRectangleIsLarger();
    void rectangleWithoutPenFillsItsSize();
    void thinRectangleOfADottedPenStaysInItsBox();

    void ellipseStaysInItsBox_data() { addPenRows(); }
    void ellipseStaysInItsBox();
    void ellipseFillsItsBox();
    void todaysEllipseLeavesItsBox();
    void filledEllipseStaysInItsOutline();

    void normalizedSwapsCorners_data();
    void normalizedSwapsCorners();
    void todaysNormalizedLosesPixels();

    void lineWidthIsNotScaled_data() { addPenRows(); }
    void lineWidthIsNotScaled();
    void todaysLineWidthIsScaled();
    void dotIsAsWideAsThePen_data() { addPenRows(); }
    void dotIsAsWideAsThePen();
    void todaysDotIsNot();
    void aMatrixMapsWhatLiesFarOutside();
    void lineEndsAreIncluded();

    void invertingTwiceRestores_data() { addPenRows(); }
    void invertingTwiceRestores();
    void invertedShapeIsThePaintedShape_data() { addPenRows(); }
    void invertedShapeIsThePaintedShape();
    void invertedGreatShapeIsThePaintedShape_data() { addPenRows(); }
    void invertedGreatShapeIsThePaintedShape();
    void invertedGreatDashesAreTheToolkits();
    void todaysThinRectangleInvertsPixelsTwice();

    void transparencyComesOutWhite();
    void todaysTransparencyHasAColour();
    void opaqueKeepsWhatIsOpaque();
    void picturesWithoutPixelsAreNull();
    void bitBltCopiesWhatFits();
    void nothingIsPaintedOnANullPicture();
};

// --- Sizes

void tst_ClassicPainter::rectangleCoversItsSize_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("brush");
    for (const int width : penWidths) {
        QTest::addRow("pen %d", width) << width << false;
        QTest::addRow("pen %d and brush", width) << width << true;
    }
}

void tst_ClassicPainter::rectangleCoversItsSize()
{
    QFETCH(const int, width);
    QFETCH(const bool, brush);
    for (const int w : {-24, -7, -3, -2, -1, 0, 1, 2, 3, 4, 7, 24}) {
        for (const int h : {-20, -5, -3, -2, -1, 0, 1, 2, 3, 4, 5, 20}) {
            QPixmap picture = QPixmap::fromImage(mosaic(size));
            KORVA_ClassicPainter painter(&picture);
            painter.setPen(QPen(Qt::red, width));
            if (brush)
                painter.setBrush(Qt::blue);
            painter.drawRect(anchor.x(), anchor.y(), w, h);

            QImage expected = mosaic(size);
            if (w && h) {
                const QRect box = boxFromAnchor(w, h);
                QVERIFY(box.contains(anchor) && box.size() == QSize(qAbs(w), qAbs(h)));
                const QRect hole = inside(box, width);
                expected = support::filled(expected, grown(box, width), Qt::red);
                if (!hole.isEmpty())
                    expected =
                        support::overlaid(expected, hole.topLeft(),
                                          brush ? sheet(hole.size(), Qt::blue) : mosaic(size).copy(hole));
            }
            QVERIFY2(sameImage(picture, expected), qPrintable(QString("%1 x %2").arg(w).arg(h)));
        }
    }
}

void tst_ClassicPainter::todaysRectangleIsLarger()
{
    const QImage image =
        sheet(size, Qt::white, [](QPainter& painter) { painter.drawRect(10, 10, 20, 10); });
    QCOMPARE(inkBounds(image), QRect(10, 10, 21, 11));
}

void tst_ClassicPainter::rectangleWithoutPenFillsItsSize()
{
    QPixmap picture = classic::filled(size, Qt::white);
    KORVA_ClassicPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::blue);
    painter.drawRect(10, 20, 5, 7);
    QVERIFY(sameImage(picture, support::filled(sheet(size), {10, 20, 5, 7}, Qt::blue)));
}

void tst_ClassicPainter::thinRectangleOfADottedPenStaysInItsBox()
{
    QPixmap picture = classic::filled(size, Qt::white);
    KORVA_ClassicPainter painter(&picture);
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    painter.drawRect(10, 20, 30, 12);
    const QImage image = picture.toImage();
    QCOMPARE(inkBounds(image), QRect(10, 20, 30, 12));
    QCOMPARE(inkBounds(image.copy(11, 21, 28, 10)), QRect());
    const int border = 2 * (30 + 10);
    QVERIFY(inkCount(image) > border / 4 && inkCount(image) < border * 3 / 4);
}

void tst_ClassicPainter::ellipseStaysInItsBox()
{
    QFETCH(const int, width);
    const int margin = 12;
    for (int w = 2; w < 100; ++w) {
        for (int h = 2; h < 100; ++h) {
            QImage image(w + 2 * margin, h + 2 * margin, QImage::Format_RGB32);
            image.fill(Qt::white);
            const QRect box(margin, margin, w, h);
            {
                KORVA_ClassicPainter painter(&image);
                painter.setPen(QPen(Qt::black, width));
                painter.drawEllipse(box.x(), box.y(), w, h);
                painter.fillRect(grown(box, width), Qt::white); // takes off what lies inside
            }
            QVERIFY2(image == sheet(image.size()), qPrintable(QString("%1 x %2").arg(w).arg(h)));
        }
    }
}

void tst_ClassicPainter::ellipseFillsItsBox()
{
    for (int w = 2; w < 100; w += 3) {
        for (int h = 2; h < 100; h += 5) {
            QImage image = sheet(QSize(110, 110));
            KORVA_ClassicPainter(&image).drawEllipse(4, 5, w, h);
            QCOMPARE(inkBounds(image), QRect(4, 5, w, h));
        }
    }
}

void tst_ClassicPainter::todaysEllipseLeavesItsBox()
{
    const QImage image =
        sheet(size, Qt::white, [](QPainter& painter) { painter.drawEllipse(10, 10, 20, 10); });
    QCOMPARE(inkBounds(image), QRect(10, 10, 21, 11));

    int spilled = 0; // even when it is told one pixel less
    for (int w = 8; w < 100; ++w) {
        for (int h = 8; h <= 12; ++h) {
            const QImage smaller = sheet(QSize(110, 20), Qt::white, [&](QPainter& painter) {
                painter.drawEllipse(4, 4, w - 1, h - 1);
            });
            spilled += !QRect(4, 4, w, h).contains(inkBounds(smaller));
        }
    }
    QVERIFY(spilled > 100);
}

void tst_ClassicPainter::filledEllipseStaysInItsOutline()
{
    QImage image = sheet(size);
    KORVA_ClassicPainter painter(&image);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::blue);
    painter.drawEllipse(10, 10, 30, 20);
    for (int y = 10; y < 30; ++y) {
        int first = 0;
        int last = size.width() - 1;
        while (image.pixelColor(first, y) == Qt::white)
            ++first;
        while (image.pixelColor(last, y) == Qt::white)
            --last;
        QVERIFY(image.pixelColor(first, y) == Qt::black && image.pixelColor(last, y) == Qt::black);
    }
    QCOMPARE(image.pixelColor(25, 20), QColor(Qt::blue));
}

// --- Corners

void tst_ClassicPainter::normalizedSwapsCorners_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("both swapped") << QPoint(30, 30) << QPoint(10, 10) << QRect(10, 10, 21, 21);
    QTest::newRow("x swapped") << QPoint(30, 10) << QPoint(10, 15) << QRect(10, 10, 21, 6);
    QTest::newRow("y swapped") << QPoint(10, 30) << QPoint(15, 10) << QRect(10, 10, 6, 21);
    QTest::newRow("in order") << QPoint(10, 10) << QPoint(15, 12) << QRect(10, 10, 6, 3);
    QTest::newRow("one pixel") << QPoint(7, 8) << QPoint(7, 8) << QRect(7, 8, 1, 1);
    QTest::newRow("next to each other") << QPoint(8, 9) << QPoint(7, 8) << QRect(7, 8, 2, 2);
    QTest::newRow("below zero") << QPoint(2, -3) << QPoint(-4, 5) << QRect(-4, -3, 7, 9);
}

void tst_ClassicPainter::normalizedSwapsCorners()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, to);
    QFETCH(const QRect, rect);
    QCOMPARE(classic::normalized(QRect(from, to)), rect);
}

void tst_ClassicPainter::todaysNormalizedLosesPixels()
{
    QCOMPARE(QRect(QPoint(30, 30), QPoint(10, 10)).normalized(), QRect(11, 11, 19, 19));
}

// --- Pens

void tst_ClassicPainter::lineWidthIsNotScaled()
{
    QFETCH(const int, width);
    for (const double scale : {0.37, 0.5, 1.0, 1.5, 3.33}) {
        QImage image = sheet(size);
        KORVA_ClassicPainter painter(&image);
        painter.setPen(QPen(Qt::black, width));
        painter.setWorldMatrix(QTransform::fromScale(scale, scale));
        painter.drawLine(qRound(5 / scale), qRound(30 / scale), qRound(60 / scale), qRound(30 / scale));
        const QImage middle = image.copy(20, 0, 20, size.height());
        QCOMPARE(inkBounds(middle).height(), qMax(1, width));
        QCOMPARE(inkCount(middle), 20 * qMax(1, width));
    }
}

void tst_ClassicPainter::todaysLineWidthIsScaled()
{
    const QImage image = sheet(size, Qt::white, [](QPainter& painter) {
        painter.setPen(QPen(Qt::black, 3));
        painter.scale(2, 2);
        painter.drawLine(0, 15, 30, 15);
    });
    QCOMPARE(inkBounds(image.copy(20, 0, 20, size.height())).height(), 6);
}

void tst_ClassicPainter::dotIsAsWideAsThePen()
{
    QFETCH(const int, width);
    const int side = qMax(1, width);
    for (int zoom = 37; zoom <= 333; zoom += 8) {
        const double scale = 100.0 / zoom;
        for (const QPoint place : {QPoint(20, 20), QPoint(21, 33), QPoint(40, 40), QPoint(47, 30)}) {
            const QPoint widgetPlace = (place + QPoint(place.y() % 2, 0)) * zoom / 100;
            QImage image = sheet(size);
            KORVA_ClassicPainter painter(&image);
            painter.setPen(QPen(Qt::black, width));
            painter.setWorldMatrix(QTransform::fromScale(scale, scale));
            painter.drawPoint(widgetPlace.x(), widgetPlace.y());
            QCOMPARE(inkBounds(image).size(), QSize(side, side));
            QCOMPARE(inkCount(image), side * side);
            const QPoint pixel = widgetPlace * 100 / zoom;
            QVERIFY(inkBounds(image).adjusted(-1, -1, 1, 1).contains(pixel));
        }
    }
}

void tst_ClassicPainter::todaysDotIsNot()
{
    const QImage wide = sheet(size, Qt::white, [](QPainter& painter) {
        painter.setPen(QPen(Qt::black, 5));
        painter.drawPoint(40, 40);
    });
    QCOMPARE(inkBounds(wide).size(), QSize(6, 5));

    const QImage underAMatrix = sheet(size, Qt::white, [](QPainter& painter) {
        QPen pen(Qt::black, 3);
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.scale(0.5, 0.5);
        painter.drawPoint(40, 40);
    });
    QCOMPARE(inkBounds(underAMatrix).size(), QSize(4, 3));
}

void tst_ClassicPainter::aMatrixMapsWhatLiesFarOutside()
{
    for (const bool isEllipse : {false, true}) {
        QImage image = sheet(size);
        KORVA_ClassicPainter painter(&image);
        painter.setPen(QPen(Qt::black, 1));
        painter.setWorldMatrix(QTransform::fromTranslate(-1000, -2000));
        if (isEllipse)
            painter.drawEllipse(1010, 2010, 20, 15);
        else
            painter.drawRect(1010, 2010, 20, 15);
        QCOMPARE(inkBounds(image), QRect(10, 10, 20, 15));
    }
}

void tst_ClassicPainter::lineEndsAreIncluded()
{
    QImage image = sheet(size);
    KORVA_ClassicPainter painter(&image);
    painter.drawLine(5, 6, 15, 6);
    painter.drawLine(20, 30, 20, 21);
    painter.drawLine(40, 41, 40, 41);
    painter.drawLine(30, 10, 36, 16);
    QImage expected = sheet(size, Qt::white, [](QPainter& p) {
        p.fillRect(5, 6, 11, 1, Qt::black);
        p.fillRect(20, 21, 1, 10, Qt::black);
        p.fillRect(40, 41, 1, 1, Qt::black);
        for (int i = 0; i <= 6; ++i)
            p.fillRect(30 + i, 10 + i, 1, 1, Qt::black);
    });
    QVERIFY(sameImage(image, expected));
}

// --- Inverting

void tst_ClassicPainter::invertingTwiceRestores()
{
    QFETCH(const int, width);
    for (const Shape& shape : randomShapes(100)) {
        QImage image = mosaic(size);
        {
            KORVA_ClassicPainter painter(&image, KORVA_ClassicPainter::NotROP);
            painter.setPen(QPen(Qt::black, width));
            shape.draw(painter);
            shape.draw(painter);
        }
        QVERIFY2(sameImage(image, mosaic(size)), shape.name);
    }
}

void tst_ClassicPainter::invertedShapeIsThePaintedShape()
{
    QFETCH(const int, width);
    for (const Shape& shape : randomShapes(100)) {
        QImage images[] = {sheet(size), sheet(size)};
        for (const auto op : {KORVA_ClassicPainter::CopyROP, KORVA_ClassicPainter::NotROP}) {
            KORVA_ClassicPainter painter(&images[op], op);
            painter.setPen(QPen(Qt::black, width));
            shape.draw(painter);
        }
        QVERIFY2(sameImage(images[KORVA_ClassicPainter::NotROP], images[KORVA_ClassicPainter::CopyROP]),
                 shape.name);
    }
}

// Large enough to be inverted in many parts; some reach out of the sheet.
void tst_ClassicPainter::invertedGreatShapeIsThePaintedShape()
{
    QFETCH(const int, width);
    constexpr QSize great(400, 300);
    QRandomGenerator random(1);
    for (int i = 0; i < 24; ++i) {
        const QPoint from(random.bounded(-50, 450), random.bounded(-50, 350));
        const QPoint to(random.bounded(-50, 450), random.bounded(-50, 350));
        const QPoint span = to - from;
        QImage images[] = {sheet(great), sheet(great)};
        for (const auto op : {KORVA_ClassicPainter::CopyROP, KORVA_ClassicPainter::NotROP}) {
            KORVA_ClassicPainter painter(&images[op], op);
            painter.setPen(QPen(Qt::black, width));
            if (i % 3 == 0)
                painter.drawRect(from.x(), from.y(), span.x(), span.y());
            else if (i % 3 == 1)
                painter.drawLine(from.x(), from.y(), to.x(), to.y());
            else
                painter.drawEllipse(from.x(), from.y(), qAbs(span.x()) + 2, qAbs(span.y()) + 2);
        }
        QVERIFY(sameImage(images[KORVA_ClassicPainter::NotROP], images[KORVA_ClassicPainter::CopyROP]));
    }
}

void tst_ClassicPainter::invertedGreatDashesAreTheToolkits()
{
    constexpr QSize great(400, 300);
    const QPen pen(Qt::green, 0, Qt::DashLine);
    for (const QRect& frame : {QRect(3, 4, 380, 290), QRect(200, 150, 300, 3), QRect(-20, -30, 300, 200)}) {
        QImage parts = sheet(great);
        {
            KORVA_ClassicPainter painter(&parts, KORVA_ClassicPainter::NotROP);
            painter.setPen(pen);
            painter.drawRect(frame.x(), frame.y(), frame.width(), frame.height());
        }
        const QImage whole = sheet(great, Qt::white, [&](QPainter& painter) {
            painter.setCompositionMode(QPainter::RasterOp_NotDestination);
            painter.setPen(QPen(Qt::green, 0, Qt::DashLine, Qt::SquareCap, Qt::MiterJoin));
            painter.drawRect(frame.adjusted(0, 0, -1, -1));
        });
        QVERIFY(sameImage(parts, whole));
    }
}

void tst_ClassicPainter::todaysThinRectangleInvertsPixelsTwice()
{
    const auto inverted = [](int w, int h) {
        return inkCount(sheet(size, Qt::white, [=](QPainter& painter) {
            painter.setCompositionMode(QPainter::RasterOp_NotDestination);
            painter.drawRect(10, 10, w - 1, h - 1);
        }));
    };
    QVERIFY(inverted(2, 2) < 4);
    QVERIFY(inverted(1, 10) < 10);
}

// --- Pictures

void tst_ClassicPainter::transparencyComesOutWhite()
{
    QImage seeThrough(4, 3, QImage::Format_ARGB32);
    seeThrough.fill(qRgba(255, 0, 0, 0));
    seeThrough.setPixel(1, 1, qRgba(0, 0, 255, 255));
    seeThrough.setPixel(2, 1, qRgba(0, 0, 0, 128));
    const QPixmap result = classic::opaque(QPixmap::fromImage(seeThrough));
    QVERIFY(!result.hasAlphaChannel());
    QImage expected = support::filled(sheet(QSize(4, 3)), {1, 1, 1, 1}, Qt::blue);
    expected.setPixelColor(2, 1, QColor(127, 127, 127));
    QVERIFY(sameImage(result, expected));
    QCOMPARE(result.toImage().convertToFormat(QImage::Format_RGB16).pixelColor(0, 0), QColor(Qt::white));
}

void tst_ClassicPainter::todaysTransparencyHasAColour()
{
    QImage seeThrough(4, 3, QImage::Format_ARGB32);
    seeThrough.fill(qRgba(255, 0, 0, 0));
    QCOMPARE(seeThrough.convertToFormat(QImage::Format_RGB16).pixelColor(0, 0), QColor(Qt::red));
}

void tst_ClassicPainter::opaqueKeepsWhatIsOpaque()
{
    QVERIFY(sameImage(classic::opaque(QPixmap::fromImage(mosaic(size))), mosaic(size)));
    QVERIFY(classic::opaque(QPixmap()).isNull());

    QImage dense = mosaic(size); // as from a file for a finer screen
    dense.setDevicePixelRatio(2.0);
    const QPixmap result = classic::opaque(QPixmap::fromImage(dense));
    QCOMPARE(result.devicePixelRatio(), 1.0);
    QVERIFY(sameImage(result, mosaic(size)));
}

void tst_ClassicPainter::picturesWithoutPixelsAreNull()
{
    QVERIFY(classic::filled(QSize(0, 5), Qt::red).isNull());
    QVERIFY(classic::filled(QSize(5, -5), Qt::red).isNull());
    QVERIFY(classic::filled(QSize(), Qt::red).isNull());
    QVERIFY(sameImage(classic::filled(QSize(5, 4), Qt::red), sheet(QSize(5, 4), Qt::red)));
}

void tst_ClassicPainter::bitBltCopiesWhatFits()
{
    QPixmap picture = classic::filled(size, Qt::white);
    classic::bitBlt(&picture, -3, 55, QPixmap::fromImage(mosaic(QSize(10, 10))));
    QVERIFY(sameImage(picture, support::overlaid(sheet(size), {-3, 55}, mosaic(QSize(10, 10)))));
    classic::bitBlt(&picture, 500, 500, QPixmap::fromImage(mosaic(QSize(10, 10))));
    classic::bitBlt(&picture, 5, 5, QPixmap());
    QVERIFY(sameImage(picture, support::overlaid(sheet(size), {-3, 55}, mosaic(QSize(10, 10)))));
}

void tst_ClassicPainter::nothingIsPaintedOnANullPicture()
{
    QPixmap nothing;
    KORVA_ClassicPainter painter(&nothing);
    painter.drawLine(0, 0, 5, 5);
    painter.drawEllipse(0, 0, 5, 5);
    painter.fillRect(QRect(0, 0, 5, 5), Qt::red);
    QVERIFY(nothing.isNull());
}

int main(int argc, char** argv)
{
    return support::run<tst_ClassicPainter>(argc, argv);
}

#include "tst_ClassicPainter.moc"
