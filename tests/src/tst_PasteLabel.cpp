#include "PasteItem.h"

using fixtures::itemPlace;
using fixtures::itemSize;
using fixtures::parentSize;
using fixtures::PasteItem;
using fixtures::transformed;
using support::mosaic;
using support::sameImage;

class tst_PasteLabel : public support::TestCase
{
    Q_OBJECT

private slots:
    void newItemIsEmptyAndTracks();
    void hoverShowsTheZone_data();
    void hoverShowsTheZone();
    void tinyItemTurnsFirst();

    void insideFollowsThePointer();
    void moveIsLimitedToTheRightAndBelowOnly();
    void zoneOfTheLastHoverCounts();
    void outsideDragDoesNothing();
    void edgesAndCornersStretch_data();
    void edgesAndCornersStretch();
    void stretchWaitsForTheRelease();
    void percentagesAreTruncated();
    void stretchIsFoldedBackToRealSize();
    void stretchingToNothingIsClamped_data();
    void stretchingToNothingIsClamped();
    void rotationFollowsTheDrag_data();
    void rotationFollowsTheDrag();
    void twoQuarterTurnsMakeAHalf_data();
    void twoQuarterTurnsMakeAHalf();
    void releaseShowsTheCrossAndEndsTheDrag();
    void releaseWithoutPressDoesNothing();
    void everyReleaseFoldsTheShownPictureBack();
};

void tst_PasteLabel::newItemIsEmptyAndTracks()
{
    const KORVA_PasteLabel label(nullptr, "piece", Qt::Tool);
    QCOMPARE(label.objectName(), "piece");
    QVERIFY(label.windowFlags() & Qt::Tool);
    QVERIFY(label.hasMouseTracking());
    QVERIFY(label.getImage().isNull());
}

// --- Hover

void tst_PasteLabel::hoverShowsTheZone_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<Qt::CursorShape>("cursor");
    const auto row = [](const char* name, int x, int y, Qt::CursorShape cursor) {
        QTest::newRow(name) << QPoint(x, y) << cursor;
    };
    row("inside", 50, 40, Qt::PointingHandCursor);
    row("rotate corner", 97, 2, Qt::UpArrowCursor);
    row("rotate corner's inner end", 95, 5, Qt::UpArrowCursor);
    row("rotate corner's outer end", 100, 0, Qt::UpArrowCursor);
    row("top left corner", 2, 3, Qt::SizeFDiagCursor);
    row("top left corner's inner end", 5, 5, Qt::SizeFDiagCursor);
    row("bottom left corner", 2, 78, Qt::SizeBDiagCursor);
    row("bottom left corner's inner end", 5, 75, Qt::SizeBDiagCursor);
    row("bottom right corner", 97, 78, Qt::SizeFDiagCursor);
    row("bottom right corner's outer end", 100, 80, Qt::SizeFDiagCursor);
    row("left edge", 3, 40, Qt::SizeHorCursor);
    row("left edge's outer end", 0, 7, Qt::SizeHorCursor);
    row("right edge", 96, 40, Qt::SizeHorCursor);
    row("right edge's outer end", 100, 73, Qt::SizeHorCursor);
    row("top edge", 50, 3, Qt::SizeVerCursor);
    row("bottom edge", 50, 77, Qt::SizeVerCursor);
    row("bottom edge's outer end", 50, 80, Qt::SizeVerCursor);
    row("exactly a handle from the left", 6, 40, Qt::PointingHandCursor);
    row("exactly a handle from the right", 94, 40, Qt::PointingHandCursor);
    row("exactly a handle from the top", 50, 6, Qt::PointingHandCursor);
    row("exactly a handle from the bottom", 50, 74, Qt::PointingHandCursor);
    row("between left edge and its corner", 3, 6, Qt::PointingHandCursor);
    row("between top edge and its corner", 6, 3, Qt::PointingHandCursor);
    row("left of it", -1, 40, Qt::CrossCursor);
    row("right of it", 101, 40, Qt::CrossCursor);
    row("above it", 50, -1, Qt::CrossCursor);
    row("below it", 50, 81, Qt::CrossCursor);
}

void tst_PasteLabel::hoverShowsTheZone()
{
    QFETCH(const QPoint, point);
    QFETCH(const Qt::CursorShape, cursor);
    PasteItem item;
    item.pointer.hover(point);
    QCOMPARE(item.label.cursor().shape(), cursor);
    QCOMPARE(item.label.geometry(), QRect(itemPlace, itemSize));
}

void tst_PasteLabel::tinyItemTurnsFirst()
{
    PasteItem item;
    item.label.setImage(QPixmap::fromImage(mosaic(QSize(8, 8))));
    item.pointer.hover({4, 4}); // in reach of all four corners
    QCOMPARE(item.label.cursor().shape(), Qt::UpArrowCursor);
    item.pointer.hover({2, 4});
    QCOMPARE(item.label.cursor().shape(), Qt::SizeFDiagCursor);
}

// --- Drags

void tst_PasteLabel::insideFollowsThePointer()
{
    PasteItem item;
    item.pointer.press({50, 40});
    item.pointer.move({57, 45}); // at once, before the release
    QCOMPARE(item.label.pos(), itemPlace + QPoint(7, 5));
    item.pointer.move({50, 40}); // the item's own coordinates have moved along
    QCOMPARE(item.label.pos(), itemPlace + QPoint(7, 5));
    item.pointer.release({50, 40});
    QCOMPARE(item.label.geometry(), QRect(itemPlace + QPoint(7, 5), itemSize));
    QVERIFY(sameImage(item.label.getImage(), item.picture));
}

void tst_PasteLabel::moveIsLimitedToTheRightAndBelowOnly()
{
    PasteItem item;
    item.drag({50, 40}, {1000, 900});
    QCOMPARE(item.label.pos(), QPoint(parentSize.width(), parentSize.height()));
    item.drag({50, 40}, {-1000, -900});
    QCOMPARE(item.label.pos(), QPoint(parentSize.width() - 1000, parentSize.height() - 900));
}

void tst_PasteLabel::zoneOfTheLastHoverCounts()
{
    PasteItem item;
    item.pointer.drag({{97, 2}, {107, 12}}); // never hovered: it moves
    QCOMPARE(item.label.geometry(), QRect(itemPlace + QPoint(10, 10), itemSize));
    item.pointer.hover({97, 40});
    item.pointer.drag({{50, 40}, {60, 40}}); // the right edge still
    QCOMPARE(item.label.geometry(), QRect(itemPlace + QPoint(10, 10), QSize(110, 80)));
}

void tst_PasteLabel::outsideDragDoesNothing()
{
    PasteItem item;
    item.pointer.hover({-5, 40});
    item.pointer.drag({{50, 40}, {70, 60}});
    QCOMPARE(item.label.geometry(), QRect(itemPlace, itemSize));
    QVERIFY(sameImage(item.label.getImage(), item.picture));
}

void tst_PasteLabel::edgesAndCornersStretch_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<QRect>("geometry"); // relative to the item's old place
    const auto row = [](const char* name, QPoint from, QPoint distance, QRect geometry) {
        QTest::newRow(name) << from << distance << geometry;
    };
    row("left inwards", {3, 40}, {30, 9}, {30, 0, 70, 80});
    row("left outwards", {3, 40}, {-30, 9}, {-30, 0, 130, 80});
    row("right outwards", {97, 40}, {20, 9}, {0, 0, 120, 80});
    row("right inwards", {97, 40}, {-20, 9}, {0, 0, 80, 80});
    row("top inwards", {50, 3}, {9, 20}, {0, 20, 100, 60});
    row("top outwards", {50, 3}, {9, -40}, {0, -40, 100, 120});
    row("bottom outwards", {50, 77}, {9, 40}, {0, 0, 100, 120});
    row("bottom inwards", {50, 77}, {9, -20}, {0, 0, 100, 60});
    row("top left inwards", {2, 2}, {10, 20}, {10, 20, 90, 60});
    row("bottom left outwards", {2, 78}, {-10, 40}, {-10, 0, 110, 120});
    row("bottom right outwards", {98, 78}, {10, 20}, {0, 0, 110, 100});
    row("without a move", {98, 78}, {0, 0}, {0, 0, 100, 80});
}

void tst_PasteLabel::edgesAndCornersStretch()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, distance);
    QFETCH(const QRect, geometry);
    PasteItem item;
    item.drag(from, distance);
    QCOMPARE(item.label.geometry(), geometry.translated(itemPlace));
    QVERIFY(sameImage(item.label.getImage(),
                      transformed(item.picture, QTransform::fromScale(geometry.width() / 100.0,
                                                                      geometry.height() / 80.0))));
}

void tst_PasteLabel::stretchWaitsForTheRelease()
{
    PasteItem item;
    item.pointer.hover({3, 40});
    item.pointer.press({3, 40});
    item.pointer.move({33, 40});
    QCOMPARE(item.label.geometry(), QRect(itemPlace, itemSize));
    item.pointer.release({60, 40}); // the last move counts, not the place of the release
    QCOMPARE(item.label.geometry(), QRect(itemPlace + QPoint(30, 0), QSize(70, 80)));
}

void tst_PasteLabel::percentagesAreTruncated()
{
    PasteItem item;
    item.drag({50, 77}, {0, 1}); // 81 of 80 is 101.25 %, taken as 101: 80.8 pixels
    QCOMPARE(item.label.size(), QSize(100, 81));
    item.label.setImage(QPixmap::fromImage(mosaic(QSize(300, 40))));
    item.drag({297, 20}, {2, 0}); // 100.67 % is nothing
    QCOMPARE(item.label.size(), QSize(300, 40));
}

void tst_PasteLabel::stretchIsFoldedBackToRealSize()
{
    PasteItem item(200);
    item.drag({97, 40}, {30, 0});
    QCOMPARE(item.label.size(), QSize(130, 80));
    QCOMPARE(item.label.getImage().size(), QSize(65, 40));
    const QImage stretched =
        transformed(transformed(item.picture, QTransform::fromScale(2, 2)), QTransform::fromScale(1.3, 1));
    QVERIFY(sameImage(item.label.getImage(), transformed(stretched, QTransform::fromScale(0.5, 0.5))));
}

void tst_PasteLabel::stretchingToNothingIsClamped_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("distance");
    QTest::newRow("right edge far to the left") << QPoint(97, 40) << QPoint(-200, 0);
    QTest::newRow("right edge by its width") << QPoint(97, 40) << QPoint(-100, 0);
    QTest::newRow("bottom edge far up") << QPoint(50, 77) << QPoint(0, -200);
    QTest::newRow("corner past the other") << QPoint(98, 78) << QPoint(-500, -500);
}

void tst_PasteLabel::stretchingToNothingIsClamped()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, distance);
    PasteItem item;
    item.drag(from, distance);
    QVERIFY(item.label.size().isEmpty());
    QVERIFY(item.label.getImage().isNull());
    // What is done to nothing does no harm.
    item.drag({0, 0}, {20, 20});
    item.label.rotate(90);
    item.label.setZoom(200, 200);
    item.label.grab();
    QVERIFY(item.label.getImage().isNull());
}

void tst_PasteLabel::rotationFollowsTheDrag_data()
{
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<int>("degrees");
    QTest::newRow("a tap turns back") << QPoint(0, 0) << -90;
    QTest::newRow("sideways turns back") << QPoint(30, 0) << -90;
    QTest::newRow("upwards turns back") << QPoint(0, -5) << -90;
    QTest::newRow("downwards turns on") << QPoint(0, 1) << 90;
    QTest::newRow("far down turns on once") << QPoint(-40, 60) << 90;
}

void tst_PasteLabel::rotationFollowsTheDrag()
{
    QFETCH(const QPoint, distance);
    QFETCH(const int, degrees);
    PasteItem item;
    item.drag({97, 2}, distance);
    QCOMPARE(item.label.geometry(), QRect(itemPlace, itemSize.transposed()));
    QVERIFY(sameImage(item.label.getImage(), transformed(item.picture, QTransform().rotate(degrees))));
}

void tst_PasteLabel::twoQuarterTurnsMakeAHalf_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : {100, 200})
        QTest::addRow("%d %%", zoom) << zoom;
}

void tst_PasteLabel::twoQuarterTurnsMakeAHalf()
{
    QFETCH(const int, zoom);
    PasteItem item(zoom);
    item.drag({97, 2}, {0, 0});
    item.drag({77, 2}, {0, 0});
    QCOMPARE(item.label.geometry(), QRect(itemPlace, itemSize));
    QVERIFY(sameImage(item.label.getImage(), item.picture.mirrored(true, true)));
}

void tst_PasteLabel::releaseShowsTheCrossAndEndsTheDrag()
{
    PasteItem item;
    item.drag({50, 40}, {5, 5});
    QCOMPARE(item.label.cursor().shape(), Qt::CrossCursor);
    item.pointer.hover({60, 60});
    QCOMPARE(item.label.pos(), itemPlace + QPoint(5, 5));
}

void tst_PasteLabel::releaseWithoutPressDoesNothing()
{
    PasteItem item;
    item.pointer.hover({97, 2});
    item.pointer.release({97, 2});
    QCOMPARE(item.label.geometry(), QRect(itemPlace, itemSize));
    QCOMPARE(item.label.cursor().shape(), Qt::UpArrowCursor);
}

void tst_PasteLabel::everyReleaseFoldsTheShownPictureBack()
{
    PasteItem item;
    item.label.setZoom(50, 50);
    QVERIFY(sameImage(item.label.getImage(), item.picture));
    item.pointer.press({20, 20});
    item.pointer.release({20, 20}); // what half size has lost stays lost
    const QImage half = transformed(item.picture, QTransform::fromScale(0.5, 0.5));
    QVERIFY(sameImage(item.label.getImage(), transformed(half, QTransform::fromScale(2, 2))));
}

int main(int argc, char** argv)
{
    return support::run<tst_PasteLabel>(argc, argv);
}

#include "tst_PasteLabel.moc"
