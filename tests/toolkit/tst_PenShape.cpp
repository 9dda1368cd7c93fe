#include "KORVA_ClassicPainter.h"
#include "support/Images.h"
#include "support/TestCase.h"

using support::sameImage;
using support::sheet;

namespace {

constexpr QSize size(60, 50);

QPen penOf(int width, Qt::PenCapStyle cap, Qt::PenJoinStyle join)
{
    return {Qt::black, double(width), Qt::SolidLine, cap, join};
}

/// The pixels of a box whose middles lie within its corners' circles.
QImage withRoundCorners(QImage image, const QRect& box, double radius)
{
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x) {
            const double dx =
                std::max({box.left() + radius - (x + 0.5), x + 0.5 - (box.right() + 1 - radius), 0.0});
            const double dy =
                std::max({box.top() + radius - (y + 0.5), y + 0.5 - (box.bottom() + 1 - radius), 0.0});
            if (dx * dx + dy * dy <= radius * radius)
                image.setPixelColor(x, y, Qt::black);
        }
    }
    return image;
}

} // namespace

/// What a pen's cap and join are seen in.
class tst_PenShape : public support::TestCase
{
    Q_OBJECT

private slots:
    void pointHasThePensShape_data();
    void pointHasThePensShape();
    void cornersHaveThePensJoin_data();
    void cornersHaveThePensJoin();
    void roundShapesInvertEachPixelOnce();
};

void tst_PenShape::pointHasThePensShape_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {1, 2, 3, 4, 5, 8})
        QTest::addRow("%d", width) << width;
}

void tst_PenShape::pointHasThePensShape()
{
    QFETCH(const int, width);
    const QRect box(30 - width / 2, 20 - width / 2, width, width);
    const auto point = [&](Qt::PenCapStyle cap) {
        QPixmap target = QPixmap::fromImage(sheet(size));
        KORVA_ClassicPainter painter(&target);
        painter.setPen(penOf(width, cap, Qt::MiterJoin));
        painter.drawPoint(30, 20);
        return target;
    };
    const QImage square = support::filled(sheet(size), box, Qt::black);
    QVERIFY(sameImage(point(Qt::SquareCap), square));
    QVERIFY(sameImage(point(Qt::FlatCap), square));
    QVERIFY(sameImage(point(Qt::RoundCap), withRoundCorners(sheet(size), box, width / 2.0)));
}

void tst_PenShape::cornersHaveThePensJoin_data()
{
    pointHasThePensShape_data();
}

void tst_PenShape::cornersHaveThePensJoin()
{
    QFETCH(const int, width);
    constexpr QRect box(15, 12, 30, 24);
    const int before = width / 2;
    const int after = (width - 1) / 2;
    const QRect outer = box.adjusted(-before, -before, after, after);
    const auto rectangle = [&](Qt::PenJoinStyle join, Qt::BrushStyle brush) {
        QPixmap target = QPixmap::fromImage(sheet(size));
        KORVA_ClassicPainter painter(&target);
        painter.setPen(penOf(width, Qt::SquareCap, join));
        painter.setBrush(QBrush(Qt::red, brush));
        painter.drawRect(box.x(), box.y(), box.width(), box.height());
        return target;
    };
    for (const Qt::BrushStyle brush : {Qt::NoBrush, Qt::SolidPattern}) {
        const QColor inside = brush == Qt::NoBrush ? Qt::white : Qt::red;
        const QRect hole = outer.adjusted(width, width, -width, -width);
        QVERIFY(sameImage(rectangle(Qt::MiterJoin, brush),
                          support::filled(support::filled(sheet(size), outer, Qt::black), hole, inside)));
        QVERIFY(sameImage(rectangle(Qt::RoundJoin, brush),
                          support::filled(withRoundCorners(sheet(size), outer, width > 1 ? width / 2.0 : 0),
                                          hole, inside)));
    }
}

void tst_PenShape::roundShapesInvertEachPixelOnce()
{
    QPixmap target = QPixmap::fromImage(support::mosaic(size));
    KORVA_ClassicPainter painter(&target, KORVA_ClassicPainter::NotROP);
    painter.setPen(penOf(5, Qt::RoundCap, Qt::RoundJoin));
    const auto shapes = [&] {
        painter.drawPoint(8, 8);
        painter.drawRect(15, 12, 30, 24);
        painter.drawRect(50, 4, 3, 3); // narrower than its pen
    };
    shapes();
    QVERIFY(target.toImage().pixel(8, 8) != support::mosaic(size).pixel(8, 8));
    shapes();
    QVERIFY(sameImage(target, support::mosaic(size)));
}

int main(int argc, char** argv)
{
    return support::run<tst_PenShape>(argc, argv);
}

#include "tst_PenShape.moc"
