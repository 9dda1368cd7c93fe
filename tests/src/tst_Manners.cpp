#include "EditorFixtures.h"
#include "KORVA_Manners.h"

using fixtures::EditorDesk;
using support::filled;
using support::sameImage;

namespace {

constexpr QSize size(80, 60);

struct MannersDesk : EditorDesk
{
    explicit MannersDesk(bool KORVA_Manners::*modern)
    {
        KORVA_Manners manners;
        manners.*modern = true;
        editor->setManners(manners);
        setPicture(support::mosaic(size));
    }
};

/// Squares of this side with their top left at each of these places and everywhere between two of them.
QImage erasedAlong(QImage image, const QList<QPoint>& places, int side)
{
    const auto clear = [&](QPoint at) { image = filled(image, QRect(at, QSize(side, side)), Qt::white); };
    clear(places.first());
    for (qsizetype i = 1; i < places.size(); ++i) {
        const QPoint way = places[i] - places[i - 1];
        const int steps = std::max({std::abs(way.x()), std::abs(way.y()), 1});
        for (int step = 0; step <= steps; ++step)
            clear(places[i - 1] +
                  QPoint(qRound(double(way.x()) * step / steps), qRound(double(way.y()) * step / steps)));
    }
    return image;
}

} // namespace

class tst_Manners : public support::TestCase
{
    Q_OBJECT

private slots:
    void classicAtFirst();
    void wordsThereAndBack();
    void truePixelsAreSeenAtOnce_data();
    void truePixelsAreSeenAtOnce();
    void joinedEraserClearsTheWay_data();
    void joinedEraserClearsTheWay();
    void joinedEraserIsOneStep();
    void joinedEraserNeedsAPress();
    void joinedEraserBringsPaperBack();
    void joinedEraserMayLoseItsCanvas();
    void everyToolRemembersItsSize();
};

void tst_Manners::classicAtFirst()
{
    const EditorDesk desk;
    QCOMPARE(desk.editor->manners(), KORVA_Manners());
    QVERIFY(KORVA_Manners().words().isEmpty());
}

void tst_Manners::wordsThereAndBack()
{
    const QStringList all = KORVA_Manners::modern().words();
    QVERIFY(all.contains("joined-eraser"));
    QCOMPARE(KORVA_Manners::ofWords(all), KORVA_Manners::modern());
    for (const QString& word : all)
        QCOMPARE(KORVA_Manners::ofWords({word})->words(), QStringList{word});
    QCOMPARE(KORVA_Manners::ofWords({}), KORVA_Manners());
    QVERIFY(!KORVA_Manners::ofWords({all.first(), "no-such"}));
}

void tst_Manners::truePixelsAreSeenAtOnce_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("width");
    for (const int zoom : {100, 150, 200, 333, 400, 800}) {
        for (const int width : {1, 2, 5}) {
            for (const int tool :
                 {KORVA_TOOL_PENCIL, KORVA_TOOL_LINE, KORVA_TOOL_RECTANGLE, KORVA_TOOL_ELLIPSE})
                QTest::addRow("tool %d, %d %%, width %d", tool, zoom, width) << tool << zoom << width;
        }
    }
}

void tst_Manners::truePixelsAreSeenAtOnce()
{
    QFETCH(const int, tool);
    QFETCH(const int, zoom);
    QFETCH(const int, width);
    MannersDesk desk(&KORVA_Manners::truePixels);
    desk.editor->selectTool(tool);
    desk.editor->setZoom(zoom);
    desk.manager().setPenWidth(width);
    const auto screenIsTrue = [&] {
        return sameImage(*desk.canvas().zoomedPixmap(), support::scaled(desk.picture(), zoom));
    };
    support::Gestures stylus(desk.canvas());
    stylus.press({31, 20});
    for (const QPoint to : {QPoint(33, 22), QPoint(75, 64), QPoint(-9, 51)}) {
        stylus.move(to);
        QVERIFY(tool != KORVA_TOOL_PENCIL || screenIsTrue());
    }
    stylus.release({-9, 51});
    QVERIFY(desk.picture() != support::mosaic(size).convertToFormat(desk.picture().format()));
    QVERIFY(screenIsTrue());
}

void tst_Manners::joinedEraserClearsTheWay_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("option");
    for (const int zoom : {37, 50, 100, 150, 200, 333}) {
        for (const int option : {0, 1, 2})
            QTest::addRow("%d %%, option %d", zoom, option) << zoom << option;
    }
}

void tst_Manners::joinedEraserClearsTheWay()
{
    QFETCH(const int, zoom);
    QFETCH(const int, option);
    MannersDesk desk(&KORVA_Manners::joinedEraser);
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    desk.editor->selectOption(option);
    desk.editor->setZoom(zoom);
    const QList<QPoint> path{{10, 12}, {60, 40}, {22, 41}, {-8, 20}};
    QList<QPoint> inPicture;
    support::Gestures stylus(desk.canvas());
    for (const QPoint p : path) {
        const QPoint onScreen = p * zoom / 100;
        inPicture << QPoint(onScreen.x() * 100 / zoom, onScreen.y() * 100 / zoom);
        if (inPicture.size() == 1)
            stylus.press(onScreen);
        else
            stylus.move(onScreen);
        const QImage expected = erasedAlong(support::mosaic(size), inPicture, 2 * option + 1);
        QVERIFY(sameImage(desk.picture(), expected));
        QVERIFY(sameImage(desk.canvas().zoomedPixmap()->toImage(), support::scaled(expected, zoom)));
    }
    const QImage before = desk.picture();
    stylus.release(path.last() * zoom / 100);
    QVERIFY(sameImage(desk.picture(), before));
}

void tst_Manners::joinedEraserIsOneStep()
{
    MannersDesk desk(&KORVA_Manners::joinedEraser);
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    (void)desk.log.taken();
    support::Gestures(desk.canvas()).drag({{10, 10}, {30, 30}, {50, 10}});
    QCOMPARE(desk.log.taken().filter("modified").size(), 1);
    QVERIFY(desk.editor->isModified());
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), support::mosaic(size)));
}

void tst_Manners::joinedEraserNeedsAPress()
{
    MannersDesk desk(&KORVA_Manners::joinedEraser);
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    support::Gestures stylus(desk.canvas());
    stylus.hover({10, 10});
    stylus.hover({40, 40});
    stylus.release({40, 40});
    QVERIFY(sameImage(desk.picture(), support::mosaic(size)));
    QVERIFY(!desk.editor->isModified());
}

void tst_Manners::joinedEraserBringsPaperBack()
{
    MannersDesk desk(&KORVA_Manners::joinedEraser);
    desk.setPicture(support::sheet(size, Qt::blue));
    desk.editor->setPaper(support::mosaic(size));
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    desk.editor->selectOption(KORVA_OPTION_LARGE);
    support::Gestures(desk.canvas()).drag({{10, 10}, {30, 10}});
    const QRect way(10, 10, 25, 5);
    QVERIFY(sameImage(desk.picture(), support::overlaid(support::sheet(size, Qt::blue), way.topLeft(),
                                                        support::mosaic(size).copy(way))));
}

void tst_Manners::joinedEraserMayLoseItsCanvas()
{
    MannersDesk desk(&KORVA_Manners::joinedEraser);
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    connect(desk.editor.get(), &KORVA_EditCanvas::modified, desk.editor.get(),
            [&desk] { desk.editor->selectTool(KORVA_TOOL_LINE); });
    support::Gestures stylus(desk.canvas());
    stylus.press({10, 10}); // its modification takes the eraser away
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_LINE));
    QVERIFY(sameImage(desk.picture(), support::mosaic(size)));
    stylus.move({30, 30});
    stylus.release({30, 30});
    QVERIFY(sameImage(desk.picture(), support::mosaic(size)));
}

void tst_Manners::everyToolRemembersItsSize()
{
    MannersDesk desk(&KORVA_Manners::ownSizes);
    const QMap<int, int> sizes{{KORVA_TOOL_PENCIL, 0}, {KORVA_TOOL_ERASER, 2}, {KORVA_TOOL_LINE, 1}};
    for (auto each = sizes.begin(); each != sizes.end(); ++each) {
        desk.editor->selectTool(each.key());
        desk.editor->selectOption(each.value());
    }
    for (auto each = sizes.begin(); each != sizes.end(); ++each) {
        desk.editor->selectTool(each.key());
        QCOMPARE(desk.editor->option(), each.value());
        QCOMPARE(desk.manager().currentTool()->leftPen().width(), 2 * each.value() + 1);
    }
    desk.editor->selectTool(KORVA_TOOL_RECTANGLE);
    desk.editor->selectOption(KORVA_OPTION_FILLED);
    desk.editor->selectTool(KORVA_TOOL_ELLIPSE); // what is filled stays one choice
    QCOMPARE(desk.editor->option(), int(KORVA_OPTION_FILLED));
    desk.editor->setManners({});
    desk.editor->selectTool(KORVA_TOOL_LINE);
    QCOMPARE(desk.editor->option(), 0); // the choice that all share was not touched
}

int main(int argc, char** argv)
{
    return support::run<tst_Manners>(argc, argv);
}

#include "tst_Manners.moc"
