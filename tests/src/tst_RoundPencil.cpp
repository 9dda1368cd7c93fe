#include "EditorFixtures.h"
#include "KORVA_RoundBrush.h"
#include "support/TestCase.h"

using fixtures::EditorDesk;
using support::sameImage;

namespace {

constexpr QSize sheetSize(90, 80);

/// The pixels whose middles are within `radius` of the middle of one of these; another way to sweep a disc.
QImage discs(const QList<QPointF>& middles, double radius)
{
    QImage image = support::sheet(sheetSize);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            for (const QPointF& middle : middles) {
                const QPointF way = QPointF(x, y) - middle;
                if (QPointF::dotProduct(way, way) <= radius * radius)
                    image.setPixelColor(x, y, Qt::black);
            }
        }
    }
    return image;
}

QImage swept(QPoint from, QPoint to, int width)
{
    QImage image = support::sheet(sheetSize);
    for (const QRect& run : roundbrush::swept(from, to, width))
        image = support::filled(image, run, Qt::black);
    return image;
}

bool covers(const QImage& image, const QImage& part)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (part.pixelColor(x, y) == QColor(Qt::black) && image.pixelColor(x, y) != QColor(Qt::black))
                return false;
        }
    }
    return true;
}

} // namespace

/// KORVA_Manners::roundPencil.
class tst_RoundPencil : public support::TestCase
{
    Q_OBJECT

private slots:
    void dotIsADisc_data();
    void dotIsADisc();
    void sweptIsAsWideAsThePen_data();
    void sweptIsAsWideAsThePen();
    void strokeHasNoThorns_data();
    void strokeHasNoThorns();
    void thinAndClassicStrokesAreAsEver();
};

void tst_RoundPencil::dotIsADisc_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {1, 2, 3, 4, 5, 8, 15})
        QTest::addRow("%d", width) << width;
}

void tst_RoundPencil::dotIsADisc()
{
    QFETCH(const int, width);
    const double shift = width % 2 ? 0 : -0.5;
    QVERIFY(sameImage(swept({40, 30}, {40, 30}, width), discs({{40 + shift, 30 + shift}}, width / 2.0)));
}

void tst_RoundPencil::sweptIsAsWideAsThePen_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<int>("width");
    for (const QPoint to : {QPoint(70, 40), QPoint(70, 43), QPoint(41, 70), QPoint(10, 9), QPoint(43, 12),
                            QPoint(9, 70), QPoint(40, 70)}) {
        for (const int width : {1, 3, 5, 9})
            QTest::addRow("to %d, %d, width %d", to.x(), to.y(), width) << to << width;
    }
}

void tst_RoundPencil::sweptIsAsWideAsThePen()
{
    QFETCH(const QPoint, to);
    QFETCH(const int, width);
    QList<QPointF> way;
    for (int i = 0; i <= 400; ++i)
        way << QPointF(40, 40) + QPointF(to - QPoint(40, 40)) * i / 400.0;
    const QImage drawn = swept({40, 40}, to, width);
    QVERIFY(covers(drawn, discs(way, qMax(0.0, width / 2.0 - 0.75))));
    QVERIFY(covers(discs(way, width / 2.0 + 0.75), drawn));
}

void tst_RoundPencil::strokeHasNoThorns_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("option");
    for (const int zoom : {50, 100, 200, 333}) {
        QTest::addRow("%d %%, medium", zoom) << zoom << int(KORVA_OPTION_MEDIUM);
        QTest::addRow("%d %%, large", zoom) << zoom << int(KORVA_OPTION_LARGE);
    }
}

// Every pixel of the stroke belongs to a disc that is all stroke.
void tst_RoundPencil::strokeHasNoThorns()
{
    QFETCH(const int, zoom);
    QFETCH(const int, option);
    EditorDesk desk;
    KORVA_Manners manners;
    manners.roundPencil = true;
    desk.editor->setManners(manners);
    desk.setPicture(support::sheet(sheetSize));
    desk.editor->setColor(Qt::black);
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    desk.editor->selectOption(option);
    desk.editor->setZoom(zoom);
    support::Gestures stylus(desk.canvas());
    const auto at = [zoom](int x) {
        return QPoint(x * zoom / 100, int(40 + 25 * std::sin(x / 13.0)) * zoom / 100);
    };
    stylus.press(at(8));
    for (int x = 12; x <= 80; x += 4)
        stylus.move(at(x));
    stylus.release(at(80));

    const int width = option == KORVA_OPTION_MEDIUM ? 3 : 5;
    const QImage drawn = desk.picture().convertToFormat(QImage::Format_RGB32);
    QImage covered = support::sheet(sheetSize);
    for (int y = width; y < sheetSize.height() - width; ++y) {
        for (int x = width; x < sheetSize.width() - width; ++x) {
            const QImage disc = discs({QPointF(x, y)}, width / 2.0);
            const QRect around(x - width, y - width, 2 * width + 1, 2 * width + 1);
            if (drawn.pixelColor(x, y) == QColor(Qt::black) &&
                covers(drawn.copy(around), disc.copy(around)))
                for (const QRect& run : roundbrush::swept({x, y}, {x, y}, width))
                    covered = support::filled(covered, run, Qt::black);
        }
    }
    QVERIFY(support::inkCount(drawn) > 60 * width);
    QVERIFY(sameImage(drawn, covered));
}

void tst_RoundPencil::thinAndClassicStrokesAreAsEver()
{
    const auto stroke = [](bool isRound, int option) {
        EditorDesk desk;
        KORVA_Manners manners;
        manners.roundPencil = isRound;
        desk.editor->setManners(manners);
        desk.setPicture(support::sheet(sheetSize));
        desk.editor->selectTool(KORVA_TOOL_PENCIL);
        desk.editor->selectOption(option);
        support::Gestures(desk.canvas()).drag({{10, 10}, {23, 14}, {31, 40}, {70, 41}});
        return desk.picture();
    };
    QVERIFY(sameImage(stroke(true, KORVA_OPTION_SMALL), stroke(false, KORVA_OPTION_SMALL)));
    QVERIFY(stroke(true, KORVA_OPTION_LARGE) != stroke(false, KORVA_OPTION_LARGE));
}

int main(int argc, char** argv)
{
    return support::run<tst_RoundPencil>(argc, argv);
}

#include "tst_RoundPencil.moc"
