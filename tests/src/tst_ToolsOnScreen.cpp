#include "TextFixtures.h"

using fixtures::ToolID;

/// The canvas repaints no more than what a tool has changed. Whatever that was, the screen shows it.
class tst_ToolsOnScreen : public support::TestCase
{
    Q_OBJECT

private slots:
    void dragsReachTheScreen_data();
    void dragsReachTheScreen();
    void typingReachesTheScreen();

private:
    static bool isOnScreen(KORVA_Canvas& canvas);
};

bool tst_ToolsOnScreen::isOnScreen(KORVA_Canvas& canvas)
{
    const auto screen = [&] {
        return canvas.screen()->grabWindow(canvas.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage expected = canvas.zoomedPixmap()->toImage().convertToFormat(QImage::Format_RGB32);
    return QTest::qWaitFor([&] { return screen() == expected; }, 500) ||
           support::sameImage(screen(), expected);
}

void tst_ToolsOnScreen::dragsReachTheScreen_data()
{
    QTest::addColumn<ToolID>("id");
    QTest::newRow("pencil") << fixtures::Pencil;
    QTest::newRow("area select") << fixtures::AreaSelect;
    QTest::newRow("line") << fixtures::Line;
    QTest::newRow("rectangle") << fixtures::Rectangle;
    QTest::newRow("ellipse") << fixtures::Ellipse;
    QTest::newRow("eraser") << fixtures::Rubber;
}

void tst_ToolsOnScreen::dragsReachTheScreen()
{
    QFETCH(const ToolID, id);
    fixtures::Desk desk(id, support::mosaic(QSize(80, 60)), 150);
    desk.canvas.setWindowFlag(Qt::FramelessWindowHint);
    desk.canvas.show();
    QVERIFY(isOnScreen(desk.canvas));

    QRandomGenerator random{quint32(id)};
    const auto somewhere = [&] { return QPoint(random.bounded(-20, 140), random.bounded(-20, 110)); };
    for (int drag = 0; drag < 24; ++drag) {
        desk.manager.setPenWidth(random.bounded(6));
        desk.stylus.press(somewhere());
        for (int moves = random.bounded(4); moves > 0; --moves) {
            desk.stylus.move(somewhere());
            if (drag % 2 == 0)
                QVERIFY(isOnScreen(desk.canvas));
        }
        desk.stylus.release(somewhere());
        desk.canvas.mergePastePixmap();
        QVERIFY(isOnScreen(desk.canvas));
    }
}

void tst_ToolsOnScreen::typingReachesTheScreen()
{
    fixtures::WritingDesk desk(support::mosaic(QSize(120, 80)), 150, 3);
    desk.canvas.setWindowFlag(Qt::FramelessWindowHint);
    desk.canvas.show();
    desk.tap({30, 50});
    QVERIFY(isOnScreen(desk.canvas));
    for (const QString& typed : QStringList{"Wg", "\n", u"j\u0301"_qs, "\b", "\b", "\ti"}) {
        desk.type(typed);
        QVERIFY(isOnScreen(desk.canvas));
        desk.blink();
        QVERIFY(isOnScreen(desk.canvas));
    }
    desk.resize(5);
    QVERIFY(isOnScreen(desk.canvas));
    desk.stylus.press({100, 100});
    QVERIFY(isOnScreen(desk.canvas));
}

int main(int argc, char** argv)
{
    return support::run<tst_ToolsOnScreen>(argc, argv);
}

#include "tst_ToolsOnScreen.moc"
