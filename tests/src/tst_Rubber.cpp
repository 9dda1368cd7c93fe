#include "ToolFixtures.h"

using fixtures::Desk;
using support::filled;
using support::sameImage;

class tst_Rubber : public support::TestCase
{
    Q_OBJECT

private slots:
    void cursorIsACross();
    void pressErasesNothing();
    void tapErasesOneSquare_data();
    void tapErasesOneSquare();
    void everyMoveErasesASquare();
    void moveWithoutPressErases();
    void erasesWhiteWhateverThePens();
    void buttonChoosesTheWidth();
    void sideIsZoomedInBothPictures();
    void releaseLandsAtThePicturesPlaceOnScreen();
    void thinEraserAtHalfSizeErasesNothing();
    void otherButtonErasesNothing();
    void releaseBeforeAnyPressErasesNothing();
    void modifiedOnReleaseOnly();
    void onlyTheInsideIsErasedAtTheEdges_data();
    void onlyTheInsideIsErasedAtTheEdges();
    void undoBringsTheStrokeBack();
    void secondPressBeforeAMoveIsIgnored();
    void pressAfterAMoveIsAnotherStep();
    void penKeepsItsWidth();
    void floatingPieceIsMerged();
    void inactiveToolDoesNothing();
};

void tst_Rubber::cursorIsACross()
{
    const Desk desk(fixtures::Rubber);
    QCOMPARE(desk.canvas.cursor().shape(), Qt::CrossCursor);
}

void tst_Rubber::pressErasesNothing()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    desk.stylus.press({10, 20});
    QVERIFY(desk.isUntouched());
}

void tst_Rubber::tapErasesOneSquare_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("small") << 1;
    QTest::newRow("medium") << 3;
    QTest::newRow("large") << 5;
}

void tst_Rubber::tapErasesOneSquare()
{
    QFETCH(const int, width);
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    desk.manager.setPenWidth(width);
    desk.stylus.click({10, 20});
    const QImage expected = filled(desk.base, QRect(10, 20, width, width), Qt::white);
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
    QVERIFY(desk.canvas.isModified());
}

void tst_Rubber::everyMoveErasesASquare()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    desk.manager.setPenWidth(3);
    desk.stylus.press({1, 1});
    desk.stylus.move({10, 20});
    desk.stylus.move({30, 40});
    QImage expected = filled(desk.base, QRect(10, 20, 3, 3), Qt::white);
    expected = filled(expected, QRect(30, 40, 3, 3), Qt::white);
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
    desk.stylus.release({50, 5});
    QVERIFY(sameImage(desk.canvas.merged(), filled(expected, QRect(50, 5, 3, 3), Qt::white)));
}

void tst_Rubber::moveWithoutPressErases()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    fixtures::Stylus(desk.tool()).move({10, 20});
    QVERIFY(sameImage(desk.canvas.merged(), filled(desk.base, QRect(10, 20, 1, 1), Qt::white)));
    QVERIFY(!desk.canvas.isModified());
}

void tst_Rubber::erasesWhiteWhateverThePens()
{
    Desk desk(fixtures::Rubber, support::sheet(QSize(80, 60), Qt::red));
    desk.manager.setBrush(Qt::SolidPattern);
    desk.stylus.click({10, 20});
    QCOMPARE(desk.canvas.merged().pixelColor(10, 20), QColor(Qt::white));
}

void tst_Rubber::buttonChoosesTheWidth()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    desk.tool().setLeftPen(QPen(Qt::red, 3));
    desk.tool().setRightPen(QPen(Qt::red, 7));
    fixtures::Stylus stylus(desk.tool());
    stylus.press({10, 20}, Qt::RightButton);
    stylus.release({10, 20}, Qt::RightButton);
    QVERIFY(sameImage(desk.canvas.merged(), filled(desk.base, QRect(10, 20, 7, 7), Qt::white)));
}

void tst_Rubber::sideIsZoomedInBothPictures()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)), 200);
    desk.manager.setPenWidth(3);
    desk.stylus.press({40, 30});
    desk.stylus.move({41, 31});
    QVERIFY(sameImage(desk.canvas.merged(), filled(desk.base, QRect(20, 15, 6, 6), Qt::white)));
    QVERIFY(sameImage(desk.canvas.shown(), filled(desk.start, QRect(41, 31, 6, 6), Qt::white)));
}

void tst_Rubber::releaseLandsAtThePicturesPlaceOnScreen()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)), 200);
    desk.manager.setPenWidth(3);
    desk.stylus.click({40, 31});
    QVERIFY(sameImage(desk.canvas.merged(), filled(desk.base, QRect(20, 15, 6, 6), Qt::white)));
    QVERIFY(sameImage(desk.canvas.shown(), filled(desk.start, QRect(20, 15, 6, 6), Qt::white)));
    desk.canvas.updateZoomed();
    QVERIFY(sameImage(desk.canvas.shown(), support::scaled(desk.canvas.merged(), 200)));
}

void tst_Rubber::thinEraserAtHalfSizeErasesNothing()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)), 50);
    desk.stylus.drag({{10, 10}, {20, 20}});
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
    QVERIFY(desk.canvas.isModified());
}

void tst_Rubber::otherButtonErasesNothing()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    desk.stylus.press({10, 20});
    desk.stylus.release({30, 30}, Qt::RightButton);
    QVERIFY(desk.isUntouched());
}

void tst_Rubber::releaseBeforeAnyPressErasesNothing()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    fixtures::Stylus stylus(desk.tool());
    stylus.release({30, 30});
    stylus.release({30, 30}, Qt::RightButton);
    QVERIFY(desk.isUntouched());
}

void tst_Rubber::modifiedOnReleaseOnly()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    desk.stylus.press({10, 20});
    desk.stylus.move({12, 22});
    QVERIFY(!desk.canvas.isModified());
    desk.stylus.release({12, 22});
    QVERIFY(desk.canvas.isModified());
    QCOMPARE(desk.canvas.undoFlag(), 1);
}

void tst_Rubber::onlyTheInsideIsErasedAtTheEdges_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("right") << QPoint(78, 20);
    QTest::newRow("bottom") << QPoint(20, 58);
    QTest::newRow("corner") << QPoint(79, 59);
    QTest::newRow("left") << QPoint(-2, 20);
    QTest::newRow("outside") << QPoint(90, 20);
}

void tst_Rubber::onlyTheInsideIsErasedAtTheEdges()
{
    QFETCH(const QPoint, at);
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    desk.manager.setPenWidth(5);
    desk.stylus.press({10, 20});
    desk.stylus.release(at);
    const QImage expected = filled(desk.base, QRect(at, QSize(5, 5)), Qt::white);
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Rubber::undoBringsTheStrokeBack()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)), 150);
    desk.manager.setPenWidth(5);
    desk.stylus.drag({{10, 20}, {20, 20}, {30, 30}, {40, 70}});
    QVERIFY(desk.canvas.merged() != desk.base);
    desk.canvas.undo();
    QVERIFY(sameImage(desk.canvas.merged(), desk.base));
    QVERIFY(sameImage(desk.canvas.shown(), desk.start));
}

void tst_Rubber::secondPressBeforeAMoveIsIgnored()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    fixtures::Stylus stylus(desk.tool());
    stylus.press({10, 20});
    stylus.press({10, 20}, Qt::RightButton);
    stylus.release({10, 20}, Qt::RightButton);
    QVERIFY(desk.isUntouched());
    stylus.release({10, 20});
    QVERIFY(desk.canvas.isModified());
}

void tst_Rubber::pressAfterAMoveIsAnotherStep()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)));
    fixtures::Stylus stylus(desk.tool());
    stylus.press({10, 20});
    stylus.move({11, 21});
    const QImage first = desk.canvas.merged();
    stylus.press({30, 30});
    stylus.move({31, 31});
    stylus.release({32, 32});
    desk.canvas.undo();
    QVERIFY(sameImage(desk.canvas.merged(), first));
}

void tst_Rubber::penKeepsItsWidth()
{
    Desk desk(fixtures::Rubber, support::mosaic(QSize(80, 60)), 333);
    desk.manager.setPenWidth(3);
    desk.stylus.drag({{10, 20}, {20, 20}});
    QCOMPARE(desk.tool().leftPen().width(), 3);
    QCOMPARE(desk.tool().rightPen().width(), 3);
}

void tst_Rubber::floatingPieceIsMerged()
{
    Desk desk(fixtures::Rubber);
    fixtures::setClipboard(support::sheet(QSize(8, 8), Qt::red));
    desk.canvas.paste();
    fixtures::Stylus(desk.tool()).move({2, 2});
    QVERIFY(!desk.canvas.isFloating());
    const QImage expected =
        filled(filled(desk.base, QRect(0, 0, 8, 8), Qt::red), QRect(2, 2, 1, 1), Qt::white);
    QVERIFY(sameImage(desk.canvas.merged(), expected));
    QVERIFY(sameImage(desk.canvas.shown(), expected));
}

void tst_Rubber::inactiveToolDoesNothing()
{
    Desk desk(fixtures::Pencil, support::mosaic(QSize(80, 60)));
    fixtures::Stylus stylus(*desk.manager.tool(fixtures::Rubber));
    stylus.press({5, 5});
    stylus.move({15, 5});
    stylus.release({15, 5});
    QVERIFY(desk.isUntouched());
}

int main(int argc, char** argv)
{
    return support::run<tst_Rubber>(argc, argv);
}

#include "tst_Rubber.moc"
