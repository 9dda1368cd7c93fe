#include "ToolFixtures.h"

using fixtures::Desk;
using fixtures::painted;
using fixtures::shape;
using fixtures::solidPen;
using fixtures::toggled;
using fixtures::ToolID;
using support::sameImage;

/// The gesture that line, rectangle and ellipse share.
class tst_TwoPointTools : public support::TestCase
{
    Q_OBJECT

private slots:
    void cursorIsACross_data() { addTools(); }
    void cursorIsACross();
    void pressDrawsNothing_data() { addTools(); }
    void pressDrawsNothing();
    void moveToTheSamePointDrawsNothing_data() { addTools(); }
    void moveToTheSamePointDrawsNothing();
    void releaseCommitsToBothPictures_data() { addTools(); }
    void releaseCommitsToBothPictures();
    void buttonChoosesThePen_data();
    void buttonChoosesThePen();
    void penIsScaledForTheScreenAndRestored_data() { addTools(); }
    void penIsScaledForTheScreenAndRestored();
    void thinPenAtHalfSize_data() { addTools(); }
    void thinPenAtHalfSize();
    void secondPressIsIgnored_data() { addTools(); }
    void secondPressIsIgnored();
    void otherButtonIsIgnored_data() { addTools(); }
    void otherButtonIsIgnored();
    void releaseWithoutPressIsIgnored_data() { addTools(); }
    void releaseWithoutPressIsIgnored();
    void undoBringsThePictureBack_data() { addTools(); }
    void undoBringsThePictureBack();
    void snapshotIsTakenOnRelease_data() { addTools(); }
    void snapshotIsTakenOnRelease();
    void floatingPieceIsMergedFirst_data() { addTools(); }
    void floatingPieceIsMergedFirst();
    void inactiveToolDoesNothing_data() { addTools(); }
    void inactiveToolDoesNothing();
    void dragOutlivesAChangeOfTools_data() { addTools(); }
    void dragOutlivesAChangeOfTools();
    void dragOutlivesAZoom_data() { addTools(); }
    void dragOutlivesAZoom();
    void dragOutlivesAChangeOfWidth_data() { addTools(); }
    void dragOutlivesAChangeOfWidth();

private:
    static void addTools();
    static void drawsBetween(Desk& desk, const QColor& color, int width, QPoint from, QPoint to);

    static constexpr QPoint from{10, 12};
    static constexpr QPoint to{50, 40};
};

void tst_TwoPointTools::addTools()
{
    QTest::addColumn<ToolID>("id");
    QTest::newRow("line") << fixtures::Line;
    QTest::newRow("rectangle") << fixtures::Rectangle;
    QTest::newRow("ellipse") << fixtures::Ellipse;
}

// Both pictures hold the shape and nothing else; for a zoom of 100.
void tst_TwoPointTools::drawsBetween(Desk& desk, const QColor& color, int width, QPoint a, QPoint b)
{
    QFETCH(const ToolID, id);
    const QImage expected = painted(desk.base, solidPen(color, width), Qt::NoBrush, shape(id, a, b));
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_TwoPointTools::cursorIsACross()
{
    QFETCH(const ToolID, id);
    const Desk desk(id);
    QCOMPARE(desk.canvas.cursor().shape(), Qt::CrossCursor);
}

void tst_TwoPointTools::pressDrawsNothing()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    desk.stylus.press(from);
    QVERIFY(desk.isUntouched());
}

void tst_TwoPointTools::moveToTheSamePointDrawsNothing()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    desk.stylus.press(from);
    desk.stylus.move(from);
    QVERIFY(desk.isUntouched());
    desk.stylus.move(to);
    const QImage preview = desk.canvas.shown();
    desk.stylus.move(to);
    QVERIFY(sameImage(desk.canvas.shown(), preview));
}

void tst_TwoPointTools::releaseCommitsToBothPictures()
{
    QFETCH(const ToolID, id);
    Desk desk(id, support::mosaic(QSize(80, 60)));
    desk.stylus.press(from);
    desk.stylus.move(to);
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(!desk.canvas.isModified());
    desk.stylus.release(to);
    drawsBetween(desk, Qt::blue, 1, from, to);
    QVERIFY(desk.canvas.isModified());
    QCOMPARE(desk.canvas.undoFlag(), 1);
}

void tst_TwoPointTools::buttonChoosesThePen_data()
{
    QTest::addColumn<ToolID>("id");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QColor>("color");
    for (const ToolID id : {fixtures::Line, fixtures::Rectangle, fixtures::Ellipse}) {
        QTest::addRow("left, tool %d", id) << id << Qt::LeftButton << QColor(Qt::blue);
        QTest::addRow("right, tool %d", id) << id << Qt::RightButton << QColor(Qt::darkGreen);
        QTest::addRow("middle, tool %d", id) << id << Qt::MiddleButton << QColor(Qt::darkGreen);
    }
}

void tst_TwoPointTools::buttonChoosesThePen()
{
    QFETCH(const ToolID, id);
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const QColor, color);
    Desk desk(id);
    fixtures::Stylus stylus(desk.tool());
    stylus.press(from, button);
    stylus.move(to);
    stylus.release(to, button);
    drawsBetween(desk, color, 1, from, to);
}

void tst_TwoPointTools::penIsScaledForTheScreenAndRestored()
{
    QFETCH(const ToolID, id);
    Desk desk(id, support::sheet(QSize(60, 40)), 200);
    desk.manager.setPenWidth(3);
    desk.stylus.drag({{20, 20}, {80, 60}});
    QVERIFY(sameImage(desk.canvas.shown(), painted(desk.start, solidPen(Qt::blue, 6), Qt::NoBrush,
                                                   shape(id, {20, 20}, {80, 60}))));
    QVERIFY(sameImage(desk.canvas.merged(), painted(desk.base, solidPen(Qt::blue, 3), Qt::NoBrush,
                                                    shape(id, {10, 10}, {40, 30}))));
    QCOMPARE(desk.tool().leftPen().width(), 3);
    QCOMPARE(desk.tool().rightPen().width(), 3);
}

void tst_TwoPointTools::thinPenAtHalfSize()
{
    QFETCH(const ToolID, id);
    Desk desk(id, support::sheet(QSize(80, 60)), 50);
    desk.stylus.drag({{5, 5}, {25, 20}});
    QVERIFY(sameImage(desk.canvas.shown(), painted(desk.start, solidPen(Qt::blue, 0), Qt::NoBrush,
                                                   shape(id, {5, 5}, {25, 20}))));
    QVERIFY(sameImage(desk.canvas.merged(), painted(desk.base, solidPen(Qt::blue, 1), Qt::NoBrush,
                                                    shape(id, {10, 10}, {50, 40}))));
}

void tst_TwoPointTools::secondPressIsIgnored()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    fixtures::Stylus stylus(desk.tool());
    stylus.press(from);
    stylus.move(to);
    stylus.press({70, 5}, Qt::RightButton);
    stylus.press({70, 5});
    stylus.release(to);
    drawsBetween(desk, Qt::blue, 1, from, to);
}

void tst_TwoPointTools::otherButtonIsIgnored()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    desk.stylus.press(from);
    desk.stylus.move({20, 20});
    const QImage preview = desk.canvas.shown();
    desk.stylus.release({20, 20}, Qt::RightButton);
    QVERIFY(!desk.canvas.isModified());
    QVERIFY(sameImage(desk.canvas.shown(), preview));
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    desk.stylus.move(to);
    desk.stylus.release(to);
    drawsBetween(desk, Qt::blue, 1, from, to);
}

void tst_TwoPointTools::releaseWithoutPressIsIgnored()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    fixtures::Stylus stylus(desk.tool());
    stylus.move(from);
    stylus.release(to);
    stylus.release(to, Qt::NoButton);
    QVERIFY(desk.isUntouched());
}

void tst_TwoPointTools::undoBringsThePictureBack()
{
    QFETCH(const ToolID, id);
    Desk desk(id, support::mosaic(QSize(80, 60)), 150);
    desk.stylus.drag({from, to});
    const QImage drawn = desk.canvas.merged();
    QVERIFY(drawn != desk.base);
    desk.canvas.undo();
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    desk.canvas.redo();
    QVERIFY(sameImage(desk.canvas.merged(), drawn));
}

void tst_TwoPointTools::snapshotIsTakenOnRelease()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    desk.stylus.press(from);
    desk.stylus.move(to);
    desk.canvas.pixmap()->fill(Qt::yellow);
    desk.stylus.release(to);
    QVERIFY(sameImage(desk.canvas.snapshot(), support::sheet(QSize(80, 60), Qt::yellow)));
}

void tst_TwoPointTools::floatingPieceIsMergedFirst()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    fixtures::setClipboard(support::sheet(QSize(20, 20), Qt::red));
    fixtures::Stylus stylus(desk.tool());
    stylus.press(from);
    stylus.move(to);
    desk.canvas.paste();
    stylus.release(to);
    QVERIFY(!desk.canvas.isFloating());
    const QImage expected = painted(support::filled(desk.base, QRect(0, 0, 20, 20), Qt::red),
                                    solidPen(Qt::blue, 1), Qt::NoBrush, shape(id, from, to));
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_TwoPointTools::inactiveToolDoesNothing()
{
    QFETCH(const ToolID, id);
    Desk desk(fixtures::Pencil);
    fixtures::Stylus stylus(*desk.manager.tool(id));
    stylus.press(from);
    stylus.move(to);
    stylus.release(to);
    QVERIFY(desk.isUntouched());
}

void tst_TwoPointTools::dragOutlivesAChangeOfTools()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    desk.stylus.press(from);
    desk.stylus.move(to);
    const QImage preview = desk.canvas.shown();
    desk.manager.setCurrentTool(fixtures::Pencil);
    QVERIFY(desk.isUntouched()); // the preview is gone meanwhile, and a rebuilt screen does not matter
    desk.canvas.setZoom(200);
    desk.canvas.setZoom(100);
    desk.manager.setPenWidth(5);
    desk.manager.setCurrentTool(id);
    QVERIFY(sameImage(desk.canvas.shown(), preview));
    desk.stylus.release(to);
    drawsBetween(desk, Qt::blue, 5, from, to);
}

void tst_TwoPointTools::dragOutlivesAZoom()
{
    QFETCH(const ToolID, id);
    Desk desk(id, support::sheet(QSize(60, 40)));
    desk.stylus.press({10, 10});
    desk.stylus.move({20, 10});
    desk.canvas.setZoom(200);
    desk.stylus.move({30, 28});
    desk.stylus.release({30, 28});
    QVERIFY(sameImage(desk.canvas.merged(),
                      painted(desk.base, solidPen(Qt::blue, 1), Qt::NoBrush, shape(id, {5, 5}, {15, 14}))));
    QVERIFY(
        sameImage(desk.canvas.shown(), painted(support::sheet(desk.canvas.size()), solidPen(Qt::blue, 2),
                                               Qt::NoBrush, shape(id, {10, 10}, {30, 28}))));
}

void tst_TwoPointTools::dragOutlivesAChangeOfWidth()
{
    QFETCH(const ToolID, id);
    Desk desk(id);
    desk.stylus.press(from);
    desk.stylus.move({40, 30});
    desk.manager.setPenWidth(5);
    desk.stylus.move(to);
    desk.manager.setPenWidth(3);
    desk.stylus.release(to);
    drawsBetween(desk, Qt::blue, 3, from, to);
}

int main(int argc, char** argv)
{
    return support::run<tst_TwoPointTools>(argc, argv);
}

#include "tst_TwoPointTools.moc"
